#include "screen/Widget.h"

#include "screen/Container.h"

#include <utility>

namespace k7deval::screen
{

Widget::Widget(Container* parent, std::string name) : parent_(parent), name_(std::move(name))
{
    if (parent_ != nullptr)
        parent_->adopt(*this);
}

void Widget::SetVisible(bool visible)
{
    update(visible_, visible);
}

void Widget::SetEnabled(bool enabled)
{
    update(enabled_, enabled);
}

void Widget::setPlace(const Geometry& place)
{
    update(place_, place);
}

void Widget::move(float left, float top)
{
    setPlace({left, top, place_.Width, place_.Height});
}

bool Widget::isReachable() const
{
    return visible_ && enabled_ && (parent_ == nullptr || parent_->isReachable());
}

PropertyList Widget::Properties() const
{
    return {
        {"Visible", {visible_}}, {"Enabled", {enabled_}},   {"Left", {place_.Left}},
        {"Top", {place_.Top}},   {"Width", {place_.Width}}, {"Height", {place_.Height}},
    };
}

} // namespace k7deval::screen
