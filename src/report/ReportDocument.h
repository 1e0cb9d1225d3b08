#pragma once

#include "report/FontFiles.h"
#include "report/ReportPage.h"

#include <string>
#include <utility>

namespace k7deval
{

/// A report: pages with texts, lines and filled rectangles, each placed by its coordinates. Nothing
/// flows and nothing breaks by itself. All texts are UTF-8.
class ReportDocument
{
public:
    /// `fonts` says where the faces of texts beyond Windows-1252 are looked for.
    explicit ReportDocument(FontFiles fonts = defaultFontFiles());
    ReportDocument(const ReportDocument&) = delete;
    ReportDocument& operator=(const ReportDocument&) = delete;

    /// Empty in a new document.
    [[nodiscard]] ReportPages& Pages() { return pages_; }
    [[nodiscard]] const ReportPages& Pages() const { return pages_; }

    /// The document information of the PDF file.
    [[nodiscard]] const std::string& Title() const { return title_; }
    void SetTitle(std::string title) { title_ = std::move(title); }
    [[nodiscard]] const std::string& Subject() const { return subject_; }
    void SetSubject(std::string subject) { subject_ = std::move(subject); }
    [[nodiscard]] const std::string& Author() const { return author_; }
    void SetAuthor(std::string author) { author_ = std::move(author); }
    [[nodiscard]] const std::string& Creator() const { return creator_; }
    void SetCreator(std::string creator) { creator_ = std::move(creator); }

    /// Writes the document as a PDF file, in place of a file that is there. `path` is UTF-8. The
    /// same document gives the same bytes. A failure leaves what was there before: error 5 for a
    /// document without pages or with a page that has no size, else as `replaceFile`.
    void SaveToFile(const std::string& path) const;

private:
    std::string title_;
    std::string subject_;
    std::string author_;
    std::string creator_;
    ReportPages pages_;
};

} // namespace k7deval
