#pragma once

#include "screen/Label.h"

#include <QColor>
#include <QPalette>

namespace k7deval::qt
{

/// A colour by its three parts, whatever the palette; higher bits count for nothing.
QColor plainColor(screen::Color color);

/// Whether texts of a palette are light on a dark ground.
bool isDark(const QPalette& palette);

/// A colour of a text. Black is the palette's own colour of texts, and red is as light as it must
/// be to stand out.
QColor textColor(screen::Color color, const QPalette& palette);

/// A colour of an area. White is the ground of the palette's lists, and the colours of the desktop
/// are those of the palette.
QColor areaColor(screen::Color color, const QPalette& palette);

} // namespace k7deval::qt
