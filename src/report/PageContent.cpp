#include "report/PageContent.h"

#include "report/CharacterCodes.h"

#include <array>
#include <charconv>
#include <cstdint>

namespace k7deval
{

namespace
{

/// A number in plain decimals with a blank after it.
std::string number(double value)
{
    constexpr int kDecimals = 4;
    constexpr std::size_t kLongest = 64; // A single has at most 39 places before the point.
    std::array<char, kLongest> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                       std::chars_format::fixed, kDecimals);
    std::string text(buffer.data(), written.ptr);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
        text.pop_back();
    return (text == "-0" ? "0" : text) + " ";
}

/// Red, green and blue from 0 to 1.
std::string color(std::int32_t bbggrr)
{
    const auto bits = static_cast<std::uint32_t>(bbggrr);
    std::string parts;
    for (const unsigned shift : {0U, 8U, 16U})
        parts += number((bits >> shift & 0xFFU) / 255.0);
    return parts;
}

std::string rectangleOperators(const ReportRectangle& rectangle)
{
    return color(rectangle.FillColor()) + "rg\n" + color(rectangle.LineColor()) + "RG\n" +
           number(rectangle.X()) + number(rectangle.Y()) + number(rectangle.Width()) +
           number(rectangle.Height()) + "re\nB\n";
}

std::string dashes(const ReportLine& line)
{
    if (!line.isDashed())
        return "[] 0 d\n";
    return "[" + std::to_string(ReportLine::kDashDrawn) + " " +
           std::to_string(ReportLine::kDashLeftOut) + "] 0 d\n";
}

std::string lineOperators(const ReportLine& line)
{
    return dashes(line) + number(line.X1()) + number(line.Y1()) + "m\n" + number(line.X2()) +
           number(line.Y2()) + "l\nS\n";
}

std::string escaped(unsigned char byte)
{
    if (byte == '(' || byte == ')' || byte == '\\')
        return {'\\', static_cast<char>(byte)};
    if (byte < 0x7F)
        return {static_cast<char>(byte)};
    const auto digit = [byte](unsigned shift) {
        return static_cast<char>('0' + (byte >> shift & 7U));
    };
    return {'\\', digit(6), digit(3), digit(0)};
}

std::string standardString(std::u32string_view characters)
{
    std::string text;
    for (const char32_t character : characters)
        text += escaped(windows1252(character).value());
    return "(" + text + ")";
}

std::string embeddedString(std::u32string_view characters, EmbeddedFont& font)
{
    return "<" + hexadecimal(font.codes(characters)) + ">";
}

std::string runOperators(const TextRun& run, const ReportTextItem& text, UsedFonts& fonts)
{
    UsedFont& font = fonts.fontOf(run, text.Font());
    const std::string shown = font.embedded ? embeddedString(run.characters, *font.embedded)
                                            : standardString(run.characters);
    return "/" + font.resourceName + " " + number(text.Size()) + "Tf\n" + shown + " Tj\n";
}

/// The turn of the text and the start of its base line.
std::string placement(const ReportTextItem& text, double baseLine)
{
    if (text.readsUpward())
        return "0 1 -1 0 " + number(text.X() - baseLine) + number(text.Y());
    return "1 0 0 1 " + number(text.X()) + number(text.Y() + baseLine);
}

std::string textOperators(const ReportTextItem& text, UsedFonts& fonts)
{
    const TextLayout layout = text.layout();
    if (layout.runs.empty())
        return {};
    std::string operators = "BT\n" + placement(text, layout.baseLine(text.Size())) + "Tm\n";
    for (const TextRun& run : layout.runs)
        operators += runOperators(run, text, fonts);
    return operators + "ET\n";
}

} // namespace

std::string pageContent(const ReportPage& page, UsedFonts& fonts)
{
    std::string content = number(ReportLine::kThickness) + "w\n";
    for (const ReportRectangle& rectangle : page.Rectangles())
        content += rectangleOperators(rectangle);
    content += "0 0 0 RG\n";
    for (const ReportLine& line : page.Lines())
        content += lineOperators(line);
    content += "0 0 0 rg\n";
    for (const ReportTextItem& text : page.TextItems())
        content += textOperators(text, fonts);
    return content;
}

} // namespace k7deval
