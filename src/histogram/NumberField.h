#pragma once

#include "foundation/RegionalSettings.h"
#include "screen/TextBox.h"

namespace k7deval::histogram
{

/// A box for a number, kept beside it as a single. What is in the box is looked at when the user
/// leaves it, and without any message: a number is kept, any other text gives way to the number
/// that was kept before. Box, number and settings outlive the field.
class NumberField
{
public:
    NumberField(screen::TextBox& box, float& number, const RegionalSettings& regional);
    NumberField(const NumberField&) = delete;
    NumberField& operator=(const NumberField&) = delete;

    /// The box was left with a number in it, be it the same as before.
    screen::Event<> Entered;

    /// Keeps a number and shows it.
    void set(float number);
    /// Keeps what is in the box. Error 13 when that is no number.
    void read();

private:
    void validate();

    screen::TextBox& box_;
    float& number_;
    const RegionalSettings& regional_;
};

} // namespace k7deval::histogram
