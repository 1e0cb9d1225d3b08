#pragma once

#include "foundation/RegionalSettings.h"

#include <optional>
#include <string>
#include <string_view>

namespace k7deval
{

/// A numeric text taken apart: its sign, and its digits in plain form.
class NumericText
{
public:
    /// No value when the text is not a number as the region writes it.
    static std::optional<NumericText> read(std::string_view text, const RegionalSettings& settings);

    /// The nearest double. Error 6 when the number is too large; a number too small is 0.
    [[nodiscard]] double value() const;

private:
    bool readDigits(std::string_view text, const RegionalSettings& settings);
    bool readExponent(std::string_view text);
    [[nodiscard]] bool isBelowOne() const;

    bool negative_ = false;
    std::string integerDigits_;
    std::string decimals_;
    std::string exponent_; ///< With its sign when that is a minus; empty for none.
};

} // namespace k7deval
