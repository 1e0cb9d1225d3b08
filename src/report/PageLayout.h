#pragma once

#include "report/ReportDocument.h"
#include "report/ReportFace.h"

#include <cstdint>
#include <string>

/// What the pages of all reports have in common. Landscape letter; coordinates in points from the
/// bottom left corner.
namespace k7deval::layout
{

inline constexpr float kLeft = 36;
inline constexpr float kRight = 756;
/// The middle of the centred rows; four points left of the page's.
inline constexpr float kCentre = 392;
inline constexpr float kTop = 563.05F;
inline constexpr float kFooterRule = 49.1F;
inline constexpr float kGap = 2; ///< Between two rows.

/// A page of landscape letter size.
ReportPage& addPage(ReportDocument& document);

ReportTextItem& addText(ReportPage& page, const std::string& text, int font, float size);
/// Puts a text's middle at an x.
void centre(ReportTextItem& item, float x, float y);
/// A centred text whose row hangs below a y. Returns the row's y.
float centreBelow(ReportTextItem& item, float x, float above);
/// Puts a text's left end at an x.
void alignLeft(ReportTextItem& item, float x, float y);
/// Puts a text's right end at an x.
void alignRight(ReportTextItem& item, float x, float y);

/// A solid line from the left to the right edge.
void drawRule(ReportPage& page, float y);
/// A text that hangs below the left end of the footer's rule.
void drawFooterText(ReportPage& page, const std::string& text);
/// The facility's name and the report's heading, centred at the top. Returns the heading's y.
float drawTitle(ReportPage& page, const std::string& facility, const std::string& heading);

} // namespace k7deval::layout
