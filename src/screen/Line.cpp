#include "screen/Line.h"

#include <algorithm>
#include <utility>

namespace k7deval::screen
{

Line::Line(Container& parent, std::string name, const LineEnds& ends, LineStyle style)
    : Widget(&parent, std::move(name)), ends_(ends), style_(style)
{
    const auto [left, right] = std::minmax(ends.X1, ends.X2);
    const auto [top, bottom] = std::minmax(ends.Y1, ends.Y2);
    setPlace({left, top, right - left, bottom - top});
}

PropertyList Line::Properties() const
{
    PropertyList properties = Widget::Properties();
    properties.push_back({"X1", {ends_.X1}});
    properties.push_back({"Y1", {ends_.Y1}});
    properties.push_back({"X2", {ends_.X2}});
    properties.push_back({"Y2", {ends_.Y2}});
    properties.push_back(
        {"Style", {std::string(style_ == LineStyle::Dotted ? "Dotted" : "Solid")}});
    return properties;
}

} // namespace k7deval::screen
