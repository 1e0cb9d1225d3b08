#include "qt/Colors.h"

namespace k7deval::qt
{

namespace
{

constexpr int kHalfLight = 128;
const QColor kRedOnLight(0xC0, 0x00, 0x00);
const QColor kRedOnDark(0xFF, 0x80, 0x80);

} // namespace

QColor plainColor(screen::Color color)
{
    return {static_cast<int>(color & 0xFFU), static_cast<int>(color >> 8U & 0xFFU),
            static_cast<int>(color >> 16U & 0xFFU)};
}

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < kHalfLight;
}

QColor textColor(screen::Color color, const QPalette& palette)
{
    if (color == screen::color::kBlack)
        return palette.color(QPalette::WindowText);
    if (color == screen::color::kRed)
        return isDark(palette) ? kRedOnDark : kRedOnLight;
    return plainColor(color);
}

QColor areaColor(screen::Color color, const QPalette& palette)
{
    switch (color) {
    case screen::color::kWhite:
    case screen::color::kWindow:
        return palette.color(QPalette::Base);
    case screen::color::kButtonFace:
        return palette.color(QPalette::Window);
    case screen::color::kLight3D:
        return palette.color(isDark(palette) ? QPalette::Mid : QPalette::Button);
    case screen::color::kDesktop:
        return palette.color(QPalette::Highlight);
    default:
        return plainColor(color);
    }
}

} // namespace k7deval::qt
