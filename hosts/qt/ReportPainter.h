#pragma once

#include "report/ReportPage.h"

#include <QRectF>

class QPainter;

namespace k7deval::qt
{

/// Draws a page of a report as its PDF file shows it: rectangles, lines and texts in this order,
/// each text at its place and as long as it is measured, whatever face the desktop has for it.
///
/// The painter's units are points, its origin the top left corner of the page, y downward.
void drawPage(QPainter& painter, const ReportPage& page);

/// The box around everything on a page, in the same units; empty for an empty page.
[[nodiscard]] QRectF contentOf(const ReportPage& page);

} // namespace k7deval::qt
