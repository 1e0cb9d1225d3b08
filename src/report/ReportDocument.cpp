#include "report/ReportDocument.h"

#include "foundation/FileReplacement.h"
#include "report/PdfWriter.h"

#include <memory>

namespace k7deval
{

ReportDocument::ReportDocument(FontFiles fonts)
    : pages_(std::make_shared<const FontSet>(std::move(fonts)))
{
}

void ReportDocument::SaveToFile(const std::string& path) const
{
    replaceFile(path, pdfOf(*this));
}

} // namespace k7deval
