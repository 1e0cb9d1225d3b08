#include "qt/Pictures.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <array>
#include <initializer_list>

namespace k7deval::qt
{

namespace
{

// Pictures are drawn on a field of 16 by 16.
constexpr double kField = 16;
constexpr std::array kSizes = {16, 24, 32, 48, 64};
const QColor kGreen(0x2E, 0x8B, 0x57);
const QColor kRed(0xC6, 0x28, 0x28);
const QColor kAmber(0xE0, 0x8E, 0x00);

struct Picture {
    QColor color;
    bool filled = true;
    QPainterPath outline;
    QPainterPath sign;
};

QPainterPath pathThrough(std::initializer_list<QPointF> points)
{
    QPainterPath path(*points.begin());
    for (const QPointF& point : points)
        path.lineTo(point);
    return path;
}

QPainterPath disc()
{
    QPainterPath path;
    path.addEllipse(QRectF(1.5, 1.5, 13, 13));
    return path;
}

QPainterPath square()
{
    QPainterPath path;
    path.addRoundedRect(QRectF(1.5, 1.5, 13, 13), 2, 2);
    return path;
}

QPainterPath cross()
{
    QPainterPath path = pathThrough({{5, 5}, {11, 11}});
    path.addPath(pathThrough({{11, 5}, {5, 11}}));
    return path;
}

QPainterPath exclamationMark()
{
    QPainterPath path = pathThrough({{8, 6}, {8, 9.5}});
    path.addPath(pathThrough({{8, 11.8}, {8, 12}}));
    return path;
}

Picture described(const std::string& key)
{
    const QPainterPath tick = pathThrough({{4.8, 8.4}, {7.2, 10.8}, {11.4, 5.6}});
    if (key == "OnlinePass")
        return {kGreen, true, disc(), tick};
    if (key == "OfflinePass")
        return {kGreen, false, disc(), tick};
    if (key == "OnlineFail")
        return {kRed, true, square(), cross()};
    if (key == "OfflineFail")
        return {kRed, false, square(), cross()};
    if (key == "OpDayNoCals")
        return {kAmber, true, pathThrough({{8, 1.5}, {15, 14.5}, {1, 14.5}, {8, 1.5}}),
                exclamationMark()};
    return {};
}

QPixmap drawn(const Picture& picture, int size)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / kField, size / kField);
    painter.setPen(QPen(picture.color, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(picture.filled ? QBrush(picture.color) : QBrush(Qt::NoBrush));
    painter.drawPath(picture.outline);
    painter.setPen(QPen(picture.filled ? QColor(Qt::white) : picture.color, 1.8, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(picture.sign);
    return pixmap;
}

/// A selected entry keeps the colours of its picture.
void addSize(QIcon& icon, const QPixmap& pixmap)
{
    icon.addPixmap(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected);
}

} // namespace

QIcon pictureOf(const std::string& key)
{
    const Picture picture = described(key);
    QIcon icon;
    if (picture.outline.isEmpty())
        return icon;
    for (const int size : kSizes)
        addSize(icon, drawn(picture, size));
    return icon;
}

int pictureSize(const QWidget& widget)
{
    return std::max(widget.style()->pixelMetric(QStyle::PM_SmallIconSize),
                    widget.fontMetrics().height());
}

} // namespace k7deval::qt
