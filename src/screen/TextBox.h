#pragma once

#include "screen/Container.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace k7deval::screen
{

/// The first so many characters of a UTF-8 text; all of it for a limit of 0.
std::string cutToLength(std::string_view text, std::int32_t maxLength);

/// A field to type in. Its change rule runs when the text becomes different, its validation when
/// the user leaves it.
class TextBox final : public Widget
{
public:
    /// maxLength limits what a user can type, in characters; 0 is no limit.
    TextBox(Container& parent, std::string name, std::int32_t maxLength = 0);

    [[nodiscard]] const std::string& Text() const { return text_; }
    void SetText(std::string text);
    [[nodiscard]] std::int32_t MaxLength() const { return maxLength_; }
    Event<> TextChanged;

    /// The user types a text in place of the old one.
    void Type(std::string_view text);
    /// The user leaves the field.
    void Leave();
    Event<> Validate;

    [[nodiscard]] std::string_view kind() const override { return "TextBox"; }
    [[nodiscard]] PropertyList Properties() const override;

private:
    std::int32_t maxLength_;
    std::string text_;
};

} // namespace k7deval::screen
