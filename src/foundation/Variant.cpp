#include "foundation/Variant.h"

#include "foundation/DateText.h"
#include "foundation/Error.h"
#include "foundation/NumberText.h"
#include "foundation/TextFunctions.h"

#include <concepts>
#include <cstdlib>

namespace k7deval
{

namespace
{

constexpr int kCurrencyPlaces = 4;
constexpr double kCurrencyScale = 10000;

struct NumericTest {
    const RegionalSettings& settings;

    bool operator()(Null) const { return false; }
    bool operator()(Date) const { return false; }
    bool operator()(const std::string& text) const { return IsNumeric(text, settings); }
    template <class Number> bool operator()(const Number&) const { return true; }
};

struct DoubleReader {
    const RegionalSettings& settings;

    double operator()(Empty) const { return 0; }
    double operator()(Null) const { throw Error(errors::kInvalidUseOfNull); }
    double operator()(bool value) const { return value ? -1 : 0; }
    double operator()(Currency value) const
    {
        return static_cast<double>(value.tenThousandths) / kCurrencyScale;
    }
    double operator()(Date value) const { return value.days; }
    double operator()(const std::string& text) const { return toDouble(text, settings); }
    template <class Number> double operator()(Number value) const
    {
        return static_cast<double>(value);
    }
};

std::string currencyText(Currency value, const RegionalSettings& settings)
{
    const std::int64_t whole = value.tenThousandths / static_cast<std::int64_t>(kCurrencyScale);
    const std::int64_t fraction = value.tenThousandths % static_cast<std::int64_t>(kCurrencyScale);
    std::string text = value.tenThousandths < 0 && whole == 0 ? "-0" : std::to_string(whole);
    if (fraction == 0)
        return text;
    const std::string places = withZerosAhead(std::to_string(std::abs(fraction)), kCurrencyPlaces);
    return text + settings.decimalMark + std::string(trimRight(places, "0"));
}

struct TextWriter {
    const RegionalSettings& settings;

    std::string operator()(Empty) const { return {}; }
    std::string operator()(Null) const { throw Error(errors::kInvalidUseOfNull); }
    std::string operator()(bool value) const { return value ? "True" : "False"; }
    template <std::integral Integer> std::string operator()(Integer value) const
    {
        return std::to_string(value);
    }
    template <std::floating_point Real> std::string operator()(Real value) const
    {
        return GeneralNumber(value, settings);
    }
    std::string operator()(Currency value) const { return currencyText(value, settings); }
    std::string operator()(Date value) const
    {
        return ShortDate(value, settings) + ' ' + longTime(value, settings);
    }
    std::string operator()(const std::string& text) const { return text; }
};

} // namespace

bool IsNumeric(const Variant& value, const RegionalSettings& settings)
{
    return std::visit(NumericTest{settings}, value);
}

float singleIn(const Variant& value, const RegionalSettings& settings)
{
    if (const auto* single = std::get_if<float>(&value))
        return *single;
    return ToSingle(doubleIn(value, settings));
}

double doubleIn(const Variant& value, const RegionalSettings& settings)
{
    return std::visit(DoubleReader{settings}, value);
}

std::int32_t integerIn(const Variant& value, const RegionalSettings& settings)
{
    return toInt32(doubleIn(value, settings));
}

bool booleanIn(const Variant& value, const RegionalSettings& settings)
{
    if (const auto* text = std::get_if<std::string>(&value)) {
        const std::string upper = upperCase(*text);
        if (upper == "TRUE" || upper == "FALSE")
            return upper == "TRUE";
    }
    return doubleIn(value, settings) != 0;
}

std::string toText(const Variant& value, const RegionalSettings& settings)
{
    return std::visit(TextWriter{settings}, value);
}

} // namespace k7deval
