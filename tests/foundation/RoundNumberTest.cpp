#include "foundation/UtilityFunctions.h"

#include "foundation/ExpectError.h"
#include "foundation/NumberText.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <limits>

namespace k7deval
{

namespace
{

Currency amount(double value)
{
    return Currency{static_cast<std::int64_t>(std::llround(value * 10000))};
}

struct RoundCase {
    Variant value;
    int digits;
    Variant rounded;
};

Variant integer(std::int32_t value)
{
    return value;
}

const RoundCase kRounded[] = {
    // Halves go away from zero.
    {2.5, 0, 3.0},
    {-2.5, 0, -3.0},
    {2.5F, 0, 3.0F},
    {-2.5F, 0, -3.0F},
    {2.49, 0, 2.0},
    {3.5, 0, 4.0},
    // As a single, 0.35 x 10 is 3.5, although 0.35 lies below it in binary.
    {0.35F, 1, 0.4F},
    // As a double, 1.15 - 1 lies below 0.15.
    {1.15, 1, 1.1},
    {0.15, 1, 0.2},
    // Decimal places are rounded in the fraction.
    {12.3456, 2, 12.35},
    {-12.3456, 2, -12.35},
    {0.996F, 2, 1.0F},
    {7.0, 9, 7.0},
    // Negative digits round ahead of the mark; only the whole part counts, so 4.9 is no five.
    {1250.0, -2, 1300.0},
    {1249.9, -2, 1200.0},
    {-1250.0F, -2, -1300.0F},
    {49.9, -2, 0.0},
    {4.9, -1, 0.0},
    // An integer stands unchanged unless digits are negative.
    {integer(-12345), 0, integer(-12345)},
    {integer(12345), 3, integer(12345)},
    {std::int16_t{-32768}, 0, std::int16_t{-32768}},
    {integer(12345), -1, integer(12350)},
    {integer(12344), -1, integer(12340)},
    {integer(-12345), -1, integer(-12350)},
    {integer(12345), -3, integer(12000)},
    {std::int16_t{-150}, -2, std::int16_t{-200}},
    {std::uint8_t{44}, -1, std::uint8_t{40}},
    {integer(4), -1, integer(0)},
    {integer(9), -1, integer(10)},
    // True counts as -1.
    {true, 0, true},
    {false, 0, false},
    {true, 2, true},
    {true, -1, false},
    // An amount has four places, and ahead of the mark its whole part alone counts.
    {amount(1.15), 1, amount(1.2)},
    {amount(-1.15), 1, amount(-1.2)},
    {amount(1.2345), 4, amount(1.2345)},
    {amount(1.2345), 9, amount(1.2345)},
    {amount(1.2345), 3, amount(1.235)},
    {amount(2.5), 0, amount(3)},
    {amount(1250), -2, amount(1300)},
    {amount(49999), -5, amount(0)},
    {amount(4.9999), -1, amount(0)},
    {amount(5), -1, amount(10)},
};

} // namespace

TEST(RoundNumber, IsWorkedOutInTheValuesOwnType)
{
    for (const RoundCase& row : kRounded)
        EXPECT_EQ(RoundNumber(row.value, row.digits), row.rounded)
            << toText(row.value, RegionalSettings()) << " to " << row.digits;
}

TEST(RoundNumber, DigitsAreCutToNineOnEitherSide)
{
    EXPECT_EQ(RoundNumber(0.1234567894, 12), RoundNumber(0.1234567894, 9));
    EXPECT_EQ(RoundNumber(1234567890123.0, -12), RoundNumber(1234567890123.0, -9));
    EXPECT_EQ(RoundNumber(std::int32_t{1500000000}, -20), Variant(std::int32_t{2000000000}));
}

TEST(RoundNumber, AResultOutsideTheTypeIsAnOverflow)
{
    EXPECT_EQ(errorOf([] { return RoundNumber(std::uint8_t{255}, -1); }), errors::kOverflow);
    EXPECT_EQ(errorOf([] { return RoundNumber(std::int16_t{32765}, -1); }), errors::kOverflow);
    EXPECT_EQ(errorOf([] { return RoundNumber(std::int32_t{2147483647}, -1); }), errors::kOverflow);
    EXPECT_EQ(errorOf([] { return RoundNumber(std::int32_t{-2147483647}, -1); }),
              errors::kOverflow);
    EXPECT_EQ(errorOf([] { return RoundNumber(std::numeric_limits<double>::infinity(), 0); }),
              errors::kOverflow);
    EXPECT_EQ(errorOf([] { return RoundNumber(std::nan(""), 0); }), errors::kOverflow);
}

TEST(RoundNumber, AnAmountAtTheEndOfItsRangeOverflows)
{
    constexpr auto kMost = std::numeric_limits<std::int64_t>::max();
    constexpr auto kLeast = std::numeric_limits<std::int64_t>::min();
    constexpr Currency kMostWhole{kMost / 10000 * 10000};
    EXPECT_EQ(RoundNumber(kMostWhole, 0), Variant(kMostWhole));
    EXPECT_EQ(errorOf([] { return RoundNumber(Currency{kMost}, 0); }), errors::kOverflow);
    EXPECT_EQ(errorOf([] { return RoundNumber(Currency{kMost}, 3); }), errors::kOverflow);
    EXPECT_EQ(errorOf([] { return RoundNumber(Currency{kLeast}, 3); }), errors::kOverflow);
    EXPECT_EQ(RoundNumber(Currency{kLeast}, 4), Variant(Currency{kLeast}));
}

TEST(RoundNumber, AValueThatIsNotNumericGivesAnEmptyResult)
{
    EXPECT_EQ(RoundNumber(Null{}, 1), Variant(Empty{}));
    EXPECT_EQ(RoundNumber(Date{45361.5}, 0), Variant(Empty{}));
    EXPECT_EQ(RoundNumber(std::string("abc"), 1), Variant(Empty{}));
    EXPECT_EQ(RoundNumber(std::string(), 1), Variant(Empty{}));
    EXPECT_EQ(RoundNumber(Empty{}, 1), Variant(Empty{}));
}

TEST(RoundNumber, ANumericTextComesBackAsTextAndIsRoundedOnlyWhenNegative)
{
    EXPECT_EQ(RoundNumber(std::string("2.50"), 0), Variant(std::string("2.5")));
    EXPECT_EQ(RoundNumber(std::string("-2.50"), 0), Variant(std::string("-3")));
    EXPECT_EQ(RoundNumber(std::string("-2,55"), 1, regionalSettings("de-DE")),
              Variant(std::string("-2,5")));
}

TEST(RoundSingle, IsRoundNumberOfASingle)
{
    EXPECT_EQ(roundSingle(0.35F, 1), 0.4F);
    EXPECT_EQ(roundSingle(-0.35F, 1), -0.4F);
    EXPECT_EQ(roundSingle(1250, -2), 1300);
}

RC_GTEST_PROP(RoundNumberProperties, TheSignOnlyStandsAside, ())
{
    const auto value = static_cast<float>(*rc::gen::inRange(-9999999, 9999999)) / 1000.0F;
    const int digits = *rc::gen::inRange(-9, 10);
    RC_ASSERT(roundSingle(-value, digits) == -roundSingle(value, digits));
}

RC_GTEST_PROP(RoundNumberProperties, AnIntegerIsRoundedToTheNearestMultiple, ())
{
    const auto value = *rc::gen::inRange<std::int32_t>(-2000000, 2000000);
    const int digits = *rc::gen::inRange(-6, 0);
    const auto unit = static_cast<std::int32_t>(std::lround(std::pow(10, -digits)));
    const auto rounded = std::get<std::int32_t>(RoundNumber(value, digits));
    RC_ASSERT(rounded % unit == 0);
    RC_ASSERT(std::abs(value - rounded) * 2 <= unit);
}

} // namespace k7deval
