#include "support/PdfText.h"

#include "support/RunTool.h"

#include <pugixml.hpp>

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace k7deval::test
{

namespace
{

std::vector<std::string> linesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

std::string trimmed(const std::string& text)
{
    const auto first = text.find_first_not_of(' ');
    return first == std::string::npos ? ""
                                      : text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

// The tool counts y downward from the top of the page.
PdfPage pageOf(const pugi::xml_node& node)
{
    PdfPage page{node.attribute("width").as_double(), node.attribute("height").as_double(), {}};
    for (const pugi::xml_node word : node.children("word"))
        page.words.push_back({word.text().as_string(), word.attribute("xMin").as_double(),
                              page.height - word.attribute("yMax").as_double(),
                              word.attribute("xMax").as_double(),
                              page.height - word.attribute("yMin").as_double()});
    return page;
}

} // namespace

const PdfWord& PdfPage::word(const std::string& text) const
{
    const auto found = std::find_if(words.begin(), words.end(),
                                    [&](const PdfWord& word) { return word.text == text; });
    if (found == words.end())
        throw std::runtime_error("no word \"" + text + "\" on the page");
    return *found;
}

std::vector<PdfPage> pdfPages(const std::string& path)
{
    pugi::xml_document xml;
    const std::string boxes = runTool({"pdftotext", "-bbox", path, "-"});
    if (!xml.load_string(boxes.c_str()))
        throw std::runtime_error("pdftotext printed no XML:\n" + boxes);
    std::vector<PdfPage> pages;
    for (const pugi::xml_node page : xml.child("html").child("body").child("doc").children("page"))
        pages.push_back(pageOf(page));
    return pages;
}

std::string pdfPlainText(const std::string& path)
{
    return runTool({"pdftotext", "-raw", path, "-"});
}

std::map<std::string, std::string> pdfInformation(const std::string& path)
{
    std::map<std::string, std::string> information;
    for (const std::string& line : linesOf(runTool({"pdfinfo", path}))) {
        if (const auto colon = line.find(':'); colon != std::string::npos)
            information[line.substr(0, colon)] = trimmed(line.substr(colon + 1));
    }
    return information;
}

std::vector<std::string> pdfFonts(const std::string& path)
{
    std::vector<std::string> fonts = linesOf(runTool({"pdffonts", path}));
    constexpr std::ptrdiff_t kHeadLines = 2;
    fonts.erase(fonts.begin(), fonts.begin() + kHeadLines);
    return fonts;
}

std::string pdfSource(const std::string& path)
{
    return runTool({"qpdf", "--qdf", "--object-streams=disable", path, "-"});
}

void requireValidPdf(const std::string& path)
{
    const std::string complaints = complaintsOfTool({"qpdf", "--check", path}) +
                                   complaintsOfTool({"pdftotext", path, "-"}) +
                                   complaintsOfTool({"pdftoppm", "-r", "20", path});
    if (!complaints.empty())
        throw std::runtime_error(complaints);
}

} // namespace k7deval::test
