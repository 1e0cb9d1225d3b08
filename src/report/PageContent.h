#pragma once

#include "report/ReportPage.h"
#include "report/UsedFonts.h"

#include <string>

namespace k7deval
{

/// The drawing operators of a page, as a PDF file holds them: the rectangles first, then the lines,
/// then the texts. Fonts that the page needs are added to `fonts`.
[[nodiscard]] std::string pageContent(const ReportPage& page, UsedFonts& fonts);

} // namespace k7deval
