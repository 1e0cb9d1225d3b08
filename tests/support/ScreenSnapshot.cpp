#include "support/ScreenSnapshot.h"

#include <cstdint>
#include <sstream>
#include <utility>
#include <variant>

namespace k7deval::test
{

namespace
{

std::string textOf(const PropertyValue& content);

std::string listOf(const std::vector<std::string>& texts)
{
    std::string list;
    for (const auto& text : texts)
        list += (list.empty() ? "" : ", ") + text;
    return "[" + list + "]";
}

struct ValueText {
    std::string operator()(bool value) const { return value ? "True" : "False"; }
    std::string operator()(std::int32_t value) const { return std::to_string(value); }
    std::string operator()(float value) const
    {
        std::ostringstream text;
        text << value;
        return text.str();
    }
    std::string operator()(const std::string& value) const { return '"' + value + '"'; }
    std::string operator()(const PropertyValues& values) const
    {
        std::vector<std::string> texts;
        for (const auto& value : values)
            texts.push_back(textOf(value));
        return listOf(texts);
    }
    std::string operator()(const PropertyList& properties) const
    {
        std::vector<std::string> texts;
        for (const auto& property : properties)
            texts.push_back(property.name + "=" + textOf(property.content));
        return listOf(texts);
    }
    /// Widgets hold nothing else.
    template <class Other> std::string operator()(const Other& /*value*/) const { return {}; }
};

std::string textOf(const PropertyValue& content)
{
    return std::visit(ValueText{}, content.value);
}

void add(Snapshot& snapshot, const std::string& prefix, const PropertyList& properties)
{
    for (const Property& property : properties) {
        const std::string& name = property.name;
        const auto* nested = std::get_if<PropertyList>(&property.content.value);
        if (nested == nullptr)
            snapshot[prefix + name] = textOf(property.content);
        else
            add(snapshot, name == "Widgets" ? prefix : prefix + name + ".", *nested);
    }
}

std::string valueOr(const Snapshot& snapshot, const std::string& name, const std::string& otherwise)
{
    const auto found = snapshot.find(name);
    return found == snapshot.end() ? otherwise : found->second;
}

/// Whether a property is worth a word: most widgets are visible, enabled and without content.
bool tellsMore(const std::string& name, const std::string& text)
{
    const bool isPlace = name == "Left" || name == "Top" || name == "Width" || name == "Height";
    const bool isUsual = text == "\"\"" || text == "[]" || text == "False" || text == "\"Left\"" ||
                         text == "\"0x00000000\"" || text == "\"0x8000000F\"" ||
                         (text == "True" && (name == "Visible" || name == "Enabled"));
    return !isPlace && !isUsual && name != "Widgets" && name != "Kind";
}

std::string placeOf(const screen::Geometry& place)
{
    std::ostringstream text;
    if (!(place == screen::Geometry()))
        text << " (" << place.Left << ", " << place.Top << ", " << place.Width << ", "
             << place.Height << ")";
    return text.str();
}

std::string lineOf(const screen::Widget& widget)
{
    std::string line = std::string(widget.kind()) + " " + widget.Name() + placeOf(widget.place());
    for (const Property& property : widget.Properties()) {
        const std::string& name = property.name;
        const std::string text = name == "Widgets" ? "" : textOf(property.content);
        const bool isOff = text == "False" && (name == "Visible" || name == "Enabled");
        if (isOff || tellsMore(name, text))
            line.append(" ").append(name).append("=").append(text);
    }
    return line + '\n';
}

void addLayout(std::string& layout, const screen::Widget& widget, std::size_t depth)
{
    layout.append(2 * depth, ' ').append(lineOf(widget));
    if (const auto* container = dynamic_cast<const screen::Container*>(&widget)) {
        for (const screen::Widget* child : container->Children())
            addLayout(layout, *child, depth + 1);
    }
}

} // namespace

std::string layoutOf(const screen::Control& control)
{
    std::string layout;
    addLayout(layout, control, 0);
    return layout;
}

Snapshot snapshotOf(const screen::Control& control)
{
    Snapshot snapshot;
    add(snapshot, "", control.Properties());
    return snapshot;
}

std::vector<std::string> changesBetween(const Snapshot& before, const Snapshot& after)
{
    Snapshot names = before;
    names.insert(after.begin(), after.end());
    std::vector<std::string> changes;
    for (const auto& [name, value] : names) {
        const std::string old = valueOr(before, name, "(absent)");
        const std::string now = valueOr(after, name, "(absent)");
        if (old == now)
            continue;
        std::string change = name;
        change.append(": ").append(old).append(" -> ").append(now);
        changes.push_back(std::move(change));
    }
    return changes;
}

} // namespace k7deval::test
