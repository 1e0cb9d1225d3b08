#include "report/ReportItems.h"

#include "foundation/Error.h"

#include <cmath>

namespace k7deval
{

namespace
{

// A PDF file has no way to write an infinite number or none at all.
float finite(float value)
{
    if (!std::isfinite(value))
        throw Error(errors::kInvalidCall);
    return value;
}

float points(int thousandths, float size)
{
    return static_cast<float>(thousandths / 1000.0 * size);
}

} // namespace

ReportTextItem::ReportTextItem(std::string text, std::shared_ptr<const FontSet> fonts)
    : fonts_(std::move(fonts)), text_(std::move(text))
{
}

void ReportTextItem::SetFont(std::int32_t code)
{
    static_cast<void>(standardFaceName(code));
    font_ = code;
}

void ReportTextItem::SetSize(float points)
{
    if (finite(points) <= 0)
        throw Error(errors::kInvalidCall);
    size_ = points;
}

void ReportTextItem::SetX(float x)
{
    x_ = finite(x);
}

void ReportTextItem::SetY(float y)
{
    y_ = finite(y);
}

float ReportTextItem::Width() const
{
    return points(layout().width, size_);
}

float ReportTextItem::Height() const
{
    const TextLayout drawn = layout();
    return points(drawn.ascender - drawn.descender, size_);
}

void ReportLine::SetX1(float x)
{
    x1_ = finite(x);
}

void ReportLine::SetY1(float y)
{
    y1_ = finite(y);
}

void ReportLine::SetX2(float x)
{
    x2_ = finite(x);
}

void ReportLine::SetY2(float y)
{
    y2_ = finite(y);
}

void ReportRectangle::SetX(float x)
{
    x_ = finite(x);
}

void ReportRectangle::SetY(float y)
{
    y_ = finite(y);
}

void ReportRectangle::SetWidth(float width)
{
    width_ = finite(width);
}

void ReportRectangle::SetHeight(float height)
{
    height_ = finite(height);
}

} // namespace k7deval
