#pragma once

#include "screen/Container.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace k7deval::screen
{

class Button final : public Widget
{
public:
    Button(Container& parent, std::string name, std::string caption);

    [[nodiscard]] const std::string& Caption() const { return caption_; }

    /// The user presses the button.
    void Press();
    Event<> Clicked;

    [[nodiscard]] std::string_view kind() const override { return "Button"; }
    [[nodiscard]] PropertyList Properties() const override;

private:
    std::string caption_;
};

/// A box that is checked (1) or not (0). Its click rule runs when the value changes, by code or by
/// the user.
class CheckBox final : public Widget
{
public:
    CheckBox(Container& parent, std::string name, std::string caption);

    [[nodiscard]] const std::string& Caption() const { return caption_; }
    [[nodiscard]] std::int32_t Value() const { return checked_ ? 1 : 0; }
    [[nodiscard]] bool isChecked() const { return checked_; }
    void setChecked(bool checked);

    /// The user presses the box, which toggles it.
    void Press();
    Event<> Clicked;

    [[nodiscard]] std::string_view kind() const override { return "CheckBox"; }
    [[nodiscard]] PropertyList Properties() const override;

private:
    std::string caption_;
    bool checked_ = false;
};

class OptionButton;

/// A group of options, at most one of which is selected.
class OptionGroup
{
private:
    friend class OptionButton;
    std::vector<OptionButton*> options_;
};

/// One of several exclusive choices. Its click rule runs when it becomes selected, by code or by
/// the user.
class OptionButton final : public Widget
{
public:
    OptionButton(Container& parent, OptionGroup& group, std::string name, std::string caption);

    [[nodiscard]] const std::string& Caption() const { return caption_; }
    [[nodiscard]] bool isSelected() const { return selected_; }
    /// Selecting an option deselects the others of its group. Deselecting one runs no rule.
    void setSelected(bool selected);

    /// The user presses the option, which selects it.
    void Press();
    Event<> Clicked;

    [[nodiscard]] std::string_view kind() const override { return "OptionButton"; }
    [[nodiscard]] PropertyList Properties() const override;

private:
    void deselectOthers();

    OptionGroup* group_;
    std::string caption_;
    bool selected_ = false;
};

} // namespace k7deval::screen
