#pragma once

#include <QIcon>

#include <string>

class QWidget;

namespace k7deval::qt
{

/// The picture of an image list by its key, such as "OnlinePass"; none for a key that is unknown.
/// A disc with a tick passed, a square with a cross failed, filled on-line and hollow off-line; a
/// triangle is a day of operation without a calibration. So they differ without colours, too.
QIcon pictureOf(const std::string& key);

/// The side of a picture beside a text of a widget, in pixels.
int pictureSize(const QWidget& widget);

} // namespace k7deval::qt
