#include "screen/Label.h"

#include "foundation/Error.h"
#include "foundation/TextFunctions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace k7deval::screen
{

std::string colorText(Color value)
{
    std::array<char, 8> digits{};
    auto* const end = std::to_chars(digits.data(), digits.data() + digits.size(), value, 16).ptr;
    const std::string hex(digits.data(), end);
    return "0x" + withZerosAhead(upperCase(hex), digits.size());
}

namespace
{

std::string alignmentText(Alignment alignment)
{
    switch (alignment) {
    case Alignment::Right:
        return "Right";
    case Alignment::Centre:
        return "Centre";
    case Alignment::Left:
        break;
    }
    return "Left";
}

} // namespace

Label::Label(Container& parent, std::string name, std::string caption)
    : Widget(&parent, std::move(name)), caption_(std::move(caption))
{
}

Label::Label(Container& parent, std::string name, std::string caption, const Geometry& place,
             screen::Alignment alignment)
    : Widget(&parent, std::move(name)), caption_(std::move(caption)), alignment_(alignment)
{
    setPlace(place);
}

void Label::SetCaption(std::string caption)
{
    update(caption_, std::move(caption));
}

void Label::SetToolTipText(std::string text)
{
    update(toolTipText_, std::move(text));
}

PropertyList Label::Properties() const
{
    PropertyList properties = Widget::Properties();
    properties.push_back({"Caption", {caption_}});
    properties.push_back({"ForeColor", {colorText(foreColor_)}});
    properties.push_back({"BackColor", {colorText(backColor_)}});
    properties.push_back({"Bold", {bold_}});
    properties.push_back({"ToolTipText", {toolTipText_}});
    properties.push_back({"Alignment", {alignmentText(alignment_)}});
    return properties;
}

ImageList::ImageList(Container& parent, std::string name, std::vector<std::string> keys)
    : Widget(&parent, std::move(name)), keys_(std::move(keys))
{
}

PropertyList ImageList::Properties() const
{
    PropertyList properties = Widget::Properties();
    PropertyValues keys;
    for (const auto& key : keys_)
        keys.push_back({key});
    properties.push_back({"Keys", {std::move(keys)}});
    properties.push_back({"BackColor", {colorText(backColor_)}});
    return properties;
}

Image::Image(Container& parent, std::string name) : Widget(&parent, std::move(name)) {}

void Image::SetPicture(const ImageList& list, const std::string& key)
{
    const auto& keys = list.Keys();
    if (std::find(keys.begin(), keys.end(), key) == keys.end())
        throw Error(errors::kInvalidCall);
    update(backColor_, list.BackColor());
    update(picture_, key);
}

PropertyList Image::Properties() const
{
    PropertyList properties = Widget::Properties();
    properties.push_back({"Picture", {picture_}});
    properties.push_back({"BackColor", {colorText(backColor_)}});
    return properties;
}

} // namespace k7deval::screen
