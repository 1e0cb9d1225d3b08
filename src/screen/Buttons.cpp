#include "screen/Buttons.h"

#include <utility>

namespace k7deval::screen
{

Button::Button(Container& parent, std::string name, std::string caption)
    : Widget(&parent, std::move(name)), caption_(std::move(caption))
{
}

void Button::Press()
{
    if (isReachable())
        Clicked.raise();
}

PropertyList Button::Properties() const
{
    PropertyList properties = Widget::Properties();
    properties.push_back({"Caption", {caption_}});
    return properties;
}

CheckBox::CheckBox(Container& parent, std::string name, std::string caption)
    : Widget(&parent, std::move(name)), caption_(std::move(caption))
{
}

void CheckBox::setChecked(bool checked)
{
    if (update(checked_, checked))
        Clicked.raise();
}

void CheckBox::Press()
{
    if (isReachable())
        setChecked(!checked_);
}

PropertyList CheckBox::Properties() const
{
    PropertyList properties = Widget::Properties();
    properties.push_back({"Caption", {caption_}});
    properties.push_back({"Value", {Value()}});
    return properties;
}

OptionButton::OptionButton(Container& parent, OptionGroup& group, std::string name,
                           std::string caption)
    : Widget(&parent, std::move(name)), group_(&group), caption_(std::move(caption))
{
    group_->options_.push_back(this);
}

void OptionButton::setSelected(bool selected)
{
    if (selected)
        deselectOthers();
    if (update(selected_, selected) && selected)
        Clicked.raise();
}

/// Comes first, so that nobody who follows the group ever sees two options selected.
void OptionButton::deselectOthers()
{
    for (OptionButton* other : group_->options_) {
        if (other != this)
            other->setSelected(false);
    }
}

void OptionButton::Press()
{
    if (isReachable())
        setSelected(true);
}

PropertyList OptionButton::Properties() const
{
    PropertyList properties = Widget::Properties();
    properties.push_back({"Caption", {caption_}});
    properties.push_back({"Value", {selected_}});
    return properties;
}

} // namespace k7deval::screen
