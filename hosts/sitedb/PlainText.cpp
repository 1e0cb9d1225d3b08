#include "sitedb/PlainText.h"

#include <array>
#include <charconv>
#include <cmath>

namespace k7deval::sitedb
{

namespace
{

constexpr std::size_t kLongestQuote = 40;

} // namespace

std::string inQuotes(std::string_view text)
{
    std::string shown = "\"";
    for (const char letter : text.substr(0, kLongestQuote))
        shown += isPrintable(letter) ? letter : '?';
    if (text.size() > kLongestQuote)
        shown += "...";
    return shown + "\"";
}

bool isPrintable(char letter)
{
    return letter >= ' ' && letter <= '~';
}

std::string utf8Text(const std::filesystem::path& path)
{
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::optional<double> plainNumber(std::string_view text)
{
    double value = 0;
    const char* end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, value);
    if (text.empty() || read.ec != std::errc() || read.ptr != end || !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::string numberText(double value)
{
    // The smallest numbers have more than 300 zeros behind the point.
    std::array<char, 400> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
    return {text.data(), end.ptr};
}

} // namespace k7deval::sitedb
