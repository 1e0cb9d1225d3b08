#pragma once

#include "report/ReportDocument.h"

#include <string>

namespace k7deval
{

/// The document as the bytes of a PDF file; equal documents give equal bytes. Error 5 for a
/// document without pages or with a page that has no size.
[[nodiscard]] std::string pdfOf(const ReportDocument& document);

} // namespace k7deval
