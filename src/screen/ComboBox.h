#pragma once

#include "screen/Container.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace k7deval::screen
{

enum class EditField { No, Yes };

/// A list to pick from, with or without an edit field. Its pick rule runs whenever an entry is
/// picked, by code or by the user, also when that entry was selected already; its change rule when
/// the text of the edit field becomes different other than by a pick.
class ComboBox final : public Widget
{
public:
    ComboBox(Container& parent, std::string name, EditField editField = EditField::No);

    /// Whether the user can also type in it.
    [[nodiscard]] bool hasEditField() const { return editField_ == EditField::Yes; }

    /// Empties the list and the text and deselects; runs no rule.
    void clear();
    void addItem(std::string text, std::int32_t itemData = 0);
    /// Removes an entry, which runs no rule. The selection stays with its entry, or goes with it.
    /// Error 381 outside the list.
    void removeItem(std::int32_t index);
    /// Rewrites an entry in place, which runs no rule; the selection stays, and its text follows.
    /// Error 381 outside the list.
    void setItemText(std::int32_t index, std::string text);
    [[nodiscard]] std::int32_t listCount() const { return static_cast<std::int32_t>(list_.size()); }
    [[nodiscard]] const std::vector<std::string>& List() const { return list_; }
    [[nodiscard]] const std::vector<std::int32_t>& itemDataList() const { return itemData_; }

    /// The selected entry from 0; -1 for none.
    [[nodiscard]] std::int32_t ListIndex() const { return listIndex_; }
    /// Picks an entry by code. -1 deselects and runs no rule; error 381 outside the list.
    void SetListIndex(std::int32_t index);
    /// Item data of the selected entry; error 381 with none selected.
    [[nodiscard]] std::int32_t ItemData() const;

    [[nodiscard]] const std::string& Text() const { return text_; }
    /// Sets the text of the edit field by code; error 438 on a list without one.
    void SetText(const std::string& text);

    /// The user picks an entry; an index outside the list does nothing.
    void Pick(std::int32_t index);
    /// The user types in the edit field, which selects no entry. A list without one ignores it.
    void Type(std::string_view text);

    Event<> Picked;
    Event<> TextChanged;

    [[nodiscard]] std::string_view kind() const override { return "ComboBox"; }
    [[nodiscard]] PropertyList Properties() const override;

private:
    [[nodiscard]] bool isInList(std::int32_t index) const
    {
        return index >= 0 && index < listCount();
    }
    void takeText(const std::string& text);

    EditField editField_;
    std::vector<std::string> list_;
    std::vector<std::int32_t> itemData_;
    std::int32_t listIndex_ = -1;
    std::string text_;
};

} // namespace k7deval::screen
