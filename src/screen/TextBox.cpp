#include "screen/TextBox.h"

#include <utility>

namespace k7deval::screen
{

namespace
{

bool startsCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

} // namespace

std::string cutToLength(std::string_view text, std::int32_t maxLength)
{
    if (maxLength == 0)
        return std::string(text);
    std::int32_t characters = 0;
    std::size_t end = 0;
    while (end < text.size() && (characters += startsCharacter(text[end]) ? 1 : 0) <= maxLength)
        ++end;
    return std::string(text.substr(0, end));
}

TextBox::TextBox(Container& parent, std::string name, std::int32_t maxLength)
    : Widget(&parent, std::move(name)), maxLength_(maxLength)
{
}

void TextBox::SetText(std::string text)
{
    if (update(text_, std::move(text)))
        TextChanged.raise();
}

void TextBox::Type(std::string_view text)
{
    if (isReachable())
        SetText(cutToLength(text, maxLength_));
}

void TextBox::Leave()
{
    if (isReachable())
        Validate.raise();
}

PropertyList TextBox::Properties() const
{
    PropertyList properties = Widget::Properties();
    properties.push_back({"Text", {text_}});
    properties.push_back({"MaxLength", {maxLength_}});
    return properties;
}

} // namespace k7deval::screen
