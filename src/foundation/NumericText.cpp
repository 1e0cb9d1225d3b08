#include "foundation/NumericText.h"

#include "foundation/Error.h"
#include "foundation/TextFunctions.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace k7deval
{

namespace
{

constexpr std::string_view kBlanks = " \t";

bool takeFront(std::string_view& text, std::string_view mark)
{
    const bool found = !mark.empty() && text.starts_with(mark);
    if (found)
        text.remove_prefix(mark.size());
    return found;
}

bool takeBack(std::string_view& text, std::string_view mark)
{
    const bool found = !mark.empty() && text.ends_with(mark);
    if (found)
        text.remove_suffix(mark.size());
    return found;
}

bool takeEither(std::string_view& text, std::string_view mark)
{
    return takeFront(text, mark) || takeBack(text, mark);
}

bool takeParentheses(std::string_view& text)
{
    if (!text.starts_with('(') || !text.ends_with(')'))
        return false;
    return takeFront(text, "(") && takeBack(text, ")");
}

bool takeGroupMark(std::string_view& text, const RegionalSettings& settings)
{
    return std::any_of(settings.groupMarks.begin(), settings.groupMarks.end(),
                       [&text](const std::string& mark) { return takeFront(text, mark); });
}

std::string_view takeDigits(std::string_view& text)
{
    const std::string_view digits = text.substr(0, text.find_first_not_of("0123456789"));
    text.remove_prefix(digits.size());
    return digits;
}

// What may stand around the digits: one sign or pair of parentheses, and one currency mark.
struct SignAndCurrency {
    bool sign = false;
    bool negative = false;
    bool currency = false;

    bool takeSign(std::string_view& text)
    {
        const bool minus = takeEither(text, "-") || takeParentheses(text);
        negative = negative || minus;
        return minus || takeEither(text, "+");
    }

    bool takeOne(std::string_view& text, const RegionalSettings& settings)
    {
        if (!sign && takeSign(text))
            return sign = true;
        if (!currency && takeEither(text, settings.currencyMark))
            return currency = true;
        return false;
    }
};

} // namespace

std::optional<NumericText> NumericText::read(std::string_view text,
                                             const RegionalSettings& settings)
{
    text = trimmed(text, kBlanks);
    SignAndCurrency found;
    while (found.takeOne(text, settings)) {
    }
    NumericText number;
    number.negative_ = found.negative;
    if (!number.readDigits(text, settings))
        return std::nullopt;
    return number;
}

bool NumericText::readDigits(std::string_view text, const RegionalSettings& settings)
{
    do {
        integerDigits_ += takeDigits(text);
    } while (takeGroupMark(text, settings));
    if (takeFront(text, settings.decimalMark))
        decimals_ = takeDigits(text);
    const bool hasDigits = !integerDigits_.empty() || !decimals_.empty();
    return hasDigits && readExponent(text);
}

bool NumericText::readExponent(std::string_view text)
{
    if (text.empty())
        return true;
    if (std::string_view("EeDd").find(text.front()) == std::string_view::npos)
        return false;
    text.remove_prefix(1);
    if (takeFront(text, "-"))
        exponent_ = "-";
    else
        takeFront(text, "+");
    const std::string_view digits = takeDigits(text);
    exponent_ += digits;
    return !digits.empty() && text.empty();
}

// Tells a number too small for a double from one too large.
bool NumericText::isBelowOne() const
{
    constexpr int kFarAway = std::numeric_limits<int>::max() / 2;
    const std::string digits = integerDigits_ + decimals_;
    const std::size_t leadingZeros = std::min(digits.find_first_not_of('0'), digits.size());
    if (leadingZeros == digits.size())
        return true;
    int exponent = 0;
    const char* const end = exponent_.data() + exponent_.size();
    if (std::from_chars(exponent_.data(), end, exponent).ec == std::errc::result_out_of_range)
        exponent = exponent_.front() == '-' ? -kFarAway : kFarAway;
    return exponent + static_cast<std::ptrdiff_t>(integerDigits_.size()) -
               static_cast<std::ptrdiff_t>(leadingZeros) <=
           0;
}

double NumericText::value() const
{
    std::string text = integerDigits_ + '.' + decimals_;
    if (!exponent_.empty())
        text += 'e' + exponent_;
    double magnitude = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), magnitude);
    if (read.ec == std::errc::result_out_of_range || !std::isfinite(magnitude)) {
        if (!isBelowOne())
            throw Error(errors::kOverflow);
        magnitude = 0;
    }
    // A zero bears no sign, whatever stood around it.
    return negative_ && magnitude != 0 ? -magnitude : magnitude;
}

} // namespace k7deval
