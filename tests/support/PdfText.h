#pragma once

#include <map>
#include <string>
#include <vector>

namespace k7deval::test
{

/// A word on a PDF page as a reader finds it, with the box around it: points from the bottom left
/// corner of the page. Blanks separate words.
struct PdfWord {
    std::string text;
    double left = 0;
    double bottom = 0;
    double right = 0;
    double top = 0;
};

/// A page of a PDF file as a reader sees it.
struct PdfPage {
    double width = 0;
    double height = 0;
    std::vector<PdfWord> words;

    /// The first word with that text; std::runtime_error if there is none.
    [[nodiscard]] const PdfWord& word(const std::string& text) const;
};

/// The pages of a PDF file with the words on them.
std::vector<PdfPage> pdfPages(const std::string& path);

/// The plain text of a PDF file in the order in which it is drawn, pages ended by form feeds.
std::string pdfPlainText(const std::string& path);

/// The document information and what else `pdfinfo` tells: "Title", "Pages", "Page size", ...
std::map<std::string, std::string> pdfInformation(const std::string& path);

/// The fonts of a PDF file as `pdffonts` tells them, one line each: name, type, encoding, ...
std::vector<std::string> pdfFonts(const std::string& path);

/// A PDF file with all its streams readable, as `qpdf` writes it; for looking at what is drawn.
std::string pdfSource(const std::string& path);

/// std::runtime_error with their words if `qpdf` or a reader finds anything wrong with a PDF file.
void requireValidPdf(const std::string& path);

} // namespace k7deval::test
