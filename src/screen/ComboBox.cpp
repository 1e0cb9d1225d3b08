#include "screen/ComboBox.h"

#include "foundation/Error.h"

#include <utility>

namespace k7deval::screen
{

ComboBox::ComboBox(Container& parent, std::string name, EditField editField)
    : Widget(&parent, std::move(name)), editField_(editField)
{
}

void ComboBox::clear()
{
    list_.clear();
    itemData_.clear();
    listIndex_ = -1;
    text_.clear();
    Changed.raise();
}

void ComboBox::addItem(std::string text, std::int32_t itemData)
{
    list_.push_back(std::move(text));
    itemData_.push_back(itemData);
    Changed.raise();
}

void ComboBox::removeItem(std::int32_t index)
{
    if (!isInList(index))
        throw Error(errors::kInvalidArrayIndex);
    list_.erase(list_.begin() + index);
    itemData_.erase(itemData_.begin() + index);
    if (index == listIndex_) {
        listIndex_ = -1;
        text_.clear();
    } else if (index < listIndex_) {
        --listIndex_;
    }
    Changed.raise();
}

void ComboBox::setItemText(std::int32_t index, std::string text)
{
    if (!isInList(index))
        throw Error(errors::kInvalidArrayIndex);
    if (index == listIndex_)
        text_ = text;
    list_[static_cast<std::size_t>(index)] = std::move(text);
    Changed.raise();
}

void ComboBox::SetListIndex(std::int32_t index)
{
    if (index != -1 && !isInList(index))
        throw Error(errors::kInvalidArrayIndex);
    listIndex_ = index;
    text_.clear();
    if (index != -1)
        text_ = list_[static_cast<std::size_t>(index)];
    Changed.raise();
    if (index != -1)
        Picked.raise();
}

std::int32_t ComboBox::ItemData() const
{
    if (!isInList(listIndex_))
        throw Error(errors::kInvalidArrayIndex);
    return itemData_[static_cast<std::size_t>(listIndex_)];
}

void ComboBox::SetText(const std::string& text)
{
    if (!hasEditField())
        throw Error(errors::kUnknownMember);
    takeText(text);
}

void ComboBox::Pick(std::int32_t index)
{
    if (isReachable() && isInList(index))
        SetListIndex(index);
}

void ComboBox::Type(std::string_view text)
{
    if (isReachable() && hasEditField())
        takeText(std::string(text));
}

void ComboBox::takeText(const std::string& text)
{
    const bool isOtherText = text != text_;
    if (!isOtherText && listIndex_ == -1)
        return;
    listIndex_ = -1;
    text_ = text;
    Changed.raise();
    if (isOtherText)
        TextChanged.raise();
}

PropertyList ComboBox::Properties() const
{
    PropertyList properties = Widget::Properties();
    PropertyValues list;
    for (const auto& entry : list_)
        list.push_back({entry});
    PropertyValues itemData;
    for (const auto entry : itemData_)
        itemData.push_back({entry});
    properties.push_back({"List", {std::move(list)}});
    properties.push_back({"ItemData", {std::move(itemData)}});
    properties.push_back({"ListIndex", {listIndex_}});
    properties.push_back({"Text", {text_}});
    return properties;
}

} // namespace k7deval::screen
