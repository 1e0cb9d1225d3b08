#include "foundation/NumberText.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

namespace k7deval
{

namespace
{

const RegionalSettings kEnglish;

// Any single but the few that are not finite.
rc::Gen<float> anySingle()
{
    return rc::gen::suchThat(
        rc::gen::map(rc::gen::resize(100, rc::gen::arbitrary<std::uint32_t>()),
                     [](std::uint32_t bits) { return std::bit_cast<float>(bits); }),
        [](float value) { return std::isfinite(value); });
}

// The singles that the tools meet: a decimal of a few digits, and its neighbours.
rc::Gen<float> measuredSingle()
{
    return rc::gen::apply(
        [](int digits, int places, int step) {
            const auto value =
                static_cast<float>(digits / std::pow(10.0, static_cast<double>(places)));
            if (step == 0)
                return value;
            return std::nextafter(value, step < 0 ? -INFINITY : INFINITY);
        },
        rc::gen::inRange(-99999999, 99999999), rc::gen::inRange(0, 9), rc::gen::inRange(-1, 2));
}

rc::Gen<float> single()
{
    return rc::gen::oneOf(anySingle(), measuredSingle());
}

rc::Gen<double> anyDouble()
{
    return rc::gen::suchThat(
        rc::gen::map(rc::gen::resize(100, rc::gen::arbitrary<std::uint64_t>()),
                     [](std::uint64_t bits) { return std::bit_cast<double>(bits); }),
        [](double value) { return std::isfinite(value); });
}

std::string printed(const char* format, double value)
{
    char buffer[512];
    const int length = std::snprintf(buffer, sizeof buffer, format, value);
    return {buffer, static_cast<std::size_t>(length)};
}

std::string withoutMinusZero(const std::string& text)
{
    return text.starts_with('-') && text.find_first_not_of("-0.") == std::string::npos
               ? text.substr(1)
               : text;
}

std::string formatWith(int places)
{
    return places == 0 ? "0" : "0." + std::string(static_cast<std::size_t>(places), '0');
}

// The definition worked out on the digits of the text: cut to so many places, then raise the last
// one where the digit behind it is 5 or more.
std::string roundedByHand(const std::string& scientific, int places)
{
    const bool negative = scientific.front() == '-';
    const std::size_t mark = scientific.find('e');
    std::string digits;
    for (const char character : scientific.substr(0, mark)) {
        if (character >= '0' && character <= '9')
            digits += character;
    }
    const int exponent = std::stoi(scientific.substr(mark + 1));
    std::string whole =
        exponent < 0 ? "0" : digits.substr(0, static_cast<std::size_t>(exponent) + 1);
    if (exponent >= 0 && whole.size() < static_cast<std::size_t>(exponent) + 1)
        whole.append(static_cast<std::size_t>(exponent) + 1 - whole.size(), '0');
    std::string fraction =
        exponent < 0
            ? std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits
            : digits.substr(std::min(digits.size(), static_cast<std::size_t>(exponent) + 1));
    fraction.resize(std::max(fraction.size(), static_cast<std::size_t>(places) + 1), '0');
    const bool up = fraction[static_cast<std::size_t>(places)] >= '5';
    std::string kept = '0' + whole + fraction.substr(0, static_cast<std::size_t>(places));
    if (up) {
        std::size_t i = kept.size() - 1;
        for (; kept[i] == '9'; --i)
            kept[i] = '0';
        ++kept[i];
    }
    std::string text = kept.substr(0, kept.size() - static_cast<std::size_t>(places));
    text.erase(0, std::min(text.find_first_not_of('0'), text.size() - 1));
    if (places > 0)
        text += '.' + kept.substr(kept.size() - static_cast<std::size_t>(places));
    return withoutMinusZero(negative ? '-' + text : text);
}

} // namespace

RC_GTEST_PROP(NumberTextProperties, ASingleIsRoundedOnItsSevenDigits, ())
{
    const float value = *single();
    const int places = *rc::gen::inRange(0, 10);
    RC_ASSERT(FormatNumber(value, formatWith(places), kEnglish) ==
              roundedByHand(printed("%.6e", static_cast<double>(value)), places));
}

RC_GTEST_PROP(NumberTextProperties, ADoubleIsRoundedOnItsFifteenDigits, ())
{
    const double value = *anyDouble();
    const int places = *rc::gen::inRange(0, 18);
    RC_ASSERT(FormatNumber(value, formatWith(places), kEnglish) ==
              roundedByHand(printed("%.14e", value), places));
}

RC_GTEST_PROP(NumberTextProperties, TheRoundTripIsTheTextReadBack, ())
{
    const float value = *single();
    const int places = *rc::gen::inRange(0, 10);
    const std::string text = FormatNumber(value, formatWith(places), kEnglish);
    const float trip = roundTrip(value, places);
    RC_ASSERT(std::bit_cast<std::uint32_t>(trip) ==
              std::bit_cast<std::uint32_t>(ToSingle(text, kEnglish)));
}

// Many more singles than a property is tried with, always the same ones.
TEST(NumberText, TheRoundTripIsTheTextReadBackForSinglesOfEveryMagnitude)
{
    constexpr int kSingles = 100'000;
    const std::string formats[] = {formatWith(3), formatWith(4), formatWith(6), formatWith(9)};
    std::mt19937 bits(40'75);
    for (int i = 0; i < kSingles; ++i) {
        const auto value = std::bit_cast<float>(static_cast<std::uint32_t>(bits()));
        if (!std::isfinite(value))
            continue;
        for (const std::string& format : formats) {
            const auto places = static_cast<int>(format.size()) - 2;
            const float read = ToSingle(FormatNumber(value, format, kEnglish), kEnglish);
            ASSERT_EQ(std::bit_cast<std::uint32_t>(roundTrip(value, places)),
                      std::bit_cast<std::uint32_t>(read))
                << value << " with " << places << " places";
        }
    }
}

RC_GTEST_PROP(NumberTextProperties, TheRoundTripIsTheSameInEveryRegion, ())
{
    const RegionalSettings german = regionalSettings("de-DE");
    const float value = *single();
    RC_ASSERT(roundTrip(value, 4) == ToSingle(FormatNumber(value, "0.0000", german), german));
}

RC_GTEST_PROP(NumberTextProperties, ASecondRoundTripChangesNothing, ())
{
    const int places = *rc::gen::inRange(0, 10);
    const float once = roundTrip(*single(), places);
    RC_ASSERT(roundTrip(once, places) == once);
}

RC_GTEST_PROP(NumberTextProperties, GeneralFormOfASingleIsThatOfPrintf, ())
{
    const float value = *single();
    RC_ASSERT(GeneralNumber(value, kEnglish) ==
              withoutMinusZero(printed("%.7G", static_cast<double>(value))));
}

RC_GTEST_PROP(NumberTextProperties, GeneralFormOfADoubleIsThatOfPrintf, ())
{
    const double value = *anyDouble();
    RC_ASSERT(GeneralNumber(value, kEnglish) == withoutMinusZero(printed("%.15G", value)));
}

RC_GTEST_PROP(NumberTextProperties, GeneralFormOfAMeasuredValueIsThatOfPrintf, ())
{
    const double value = *rc::gen::inRange(-99999999, 99999999) / 1000.0;
    RC_ASSERT(GeneralNumber(value, kEnglish) == withoutMinusZero(printed("%.15G", value)));
}

RC_GTEST_PROP(NumberTextProperties, AWrittenDoubleReadsBackToItsFifteenDigits, ())
{
    const double value = *rc::gen::suchThat(anyDouble(), [](double candidate) {
        return std::abs(candidate) < 1e308; // Rounded up, the very largest would overflow.
    });
    RC_ASSERT(toDouble(GeneralNumber(value, kEnglish), kEnglish) ==
              std::strtod(printed("%.14e", value).c_str(), nullptr));
}

} // namespace k7deval
