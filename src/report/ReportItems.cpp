#include "report/ReportItems.h"

#include "foundation/Error.h"

#include <cmath>

namespace k7deval
{

namespace
{

float points(int thousandths, float size)
{
    return static_cast<float>(thousandths / 1000.0 * size);
}

} // namespace

float finitePoints(float points)
{
    if (!std::isfinite(points))
        throw Error(errors::kInvalidCall);
    return points;
}

ReportTextItem::ReportTextItem(std::string text, std::shared_ptr<const FontSet> fonts)
    : fonts_(std::move(fonts)), text_(std::move(text))
{
}

void ReportTextItem::SetFont(std::int32_t code)
{
    font_ = ReportFace::ofCode(code).code;
}

void ReportTextItem::SetSize(float points)
{
    if (finitePoints(points) <= 0)
        throw Error(errors::kInvalidCall);
    size_ = points;
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

} // namespace k7deval
