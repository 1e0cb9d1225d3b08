#include "screen/Container.h"

#include <algorithm>
#include <utility>

namespace k7deval::screen
{

namespace
{

void collect(const Container& container, std::vector<Widget*>& widgets)
{
    for (Widget* child : container.Children()) {
        widgets.push_back(child);
        if (const auto* frame = dynamic_cast<const Frame*>(child))
            collect(*frame, widgets);
    }
}

Property described(const Widget& widget)
{
    PropertyList properties = widget.Properties();
    properties.insert(properties.begin(), {"Kind", {std::string(widget.kind())}});
    return {widget.Name(), {std::move(properties)}};
}

} // namespace

Frame::Frame(Container& parent, std::string name, std::string caption)
    : Container(&parent, std::move(name)), caption_(std::move(caption))
{
}

PropertyList Frame::Properties() const
{
    PropertyList properties = Widget::Properties();
    properties.push_back({"Caption", {caption_}});
    return properties;
}

Control::Control(std::string name) : Container(nullptr, std::move(name)) {}

Control::Control(Container& parent, std::string name) : Container(&parent, std::move(name)) {}

std::vector<Widget*> Control::widgets() const
{
    std::vector<Widget*> collected;
    collect(*this, collected);
    return collected;
}

Widget* Control::Find(std::string_view name) const
{
    const auto all = widgets();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&](const Widget* widget) { return widget->Name() == name; });
    return found == all.end() ? nullptr : *found;
}

PropertyList Control::Properties() const
{
    PropertyList properties = Widget::Properties();
    properties.push_back({"MousePointer", {static_cast<std::int32_t>(mousePointer_)}});
    PropertyList descriptions;
    for (const Widget* widget : widgets())
        descriptions.push_back(described(*widget));
    properties.push_back({"Widgets", {std::move(descriptions)}});
    return properties;
}

} // namespace k7deval::screen
