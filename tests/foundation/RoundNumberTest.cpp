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

} // namespace

TEST(RoundNumber, HalvesGoAwayFromZero)
{
    EXPECT_EQ(RoundNumber(2.5, 0), Variant(3.0));
    EXPECT_EQ(RoundNumber(-2.5, 0), Variant(-3.0));
    EXPECT_EQ(RoundNumber(2.5F, 0), Variant(3.0F));
    EXPECT_EQ(RoundNumber(-2.5F, 0), Variant(-3.0F));
    EXPECT_EQ(RoundNumber(2.49, 0), Variant(2.0));
    EXPECT_EQ(RoundNumber(3.5, 0), Variant(4.0));
}

TEST(RoundNumber, EachStepIsInTheValuesOwnType)
{
    // As a single, 0.35 x 10 is 3.5, although 0.35 lies below it in binary.
    EXPECT_EQ(RoundNumber(0.35F, 1), Variant(0.4F));
    // As a double, 1.15 - 1 lies below 0.15.
    EXPECT_EQ(RoundNumber(1.15, 1), Variant(1.1));
    EXPECT_EQ(RoundNumber(0.15, 1), Variant(0.2));
}

TEST(RoundNumber, DecimalPlacesAreRoundedInTheFraction)
{
    EXPECT_EQ(RoundNumber(12.3456, 2), Variant(12.35));
    EXPECT_EQ(RoundNumber(-12.3456, 2), Variant(-12.35));
    EXPECT_EQ(RoundNumber(0.996F, 2), Variant(1.0F));
    EXPECT_EQ(RoundNumber(7.0, 9), Variant(7.0));
}

TEST(RoundNumber, NegativeDigitsRoundAheadOfTheMark)
{
    EXPECT_EQ(RoundNumber(1250.0, -2), Variant(1300.0));
    EXPECT_EQ(RoundNumber(1249.9, -2), Variant(1200.0));
    EXPECT_EQ(RoundNumber(-1250.0F, -2), Variant(-1300.0F));
    EXPECT_EQ(RoundNumber(49.9, -2), Variant(0.0));
    // Only the whole part counts, so 4.9 is no five.
    EXPECT_EQ(RoundNumber(4.9, -1), Variant(0.0));
}

TEST(RoundNumber, DigitsAreCutToNineOnEitherSide)
{
    EXPECT_EQ(RoundNumber(0.1234567894, 12), RoundNumber(0.1234567894, 9));
    EXPECT_EQ(RoundNumber(1234567890123.0, -12), RoundNumber(1234567890123.0, -9));
    EXPECT_EQ(RoundNumber(std::int32_t{1500000000}, -20), Variant(std::int32_t{2000000000}));
}

TEST(RoundNumber, AnIntegerStandsUnchangedUnlessDigitsAreNegative)
{
    EXPECT_EQ(RoundNumber(std::int32_t{-12345}, 0), Variant(std::int32_t{-12345}));
    EXPECT_EQ(RoundNumber(std::int32_t{12345}, 3), Variant(std::int32_t{12345}));
    EXPECT_EQ(RoundNumber(std::int16_t{-32768}, 0), Variant(std::int16_t{-32768}));
}

TEST(RoundNumber, AnIntegerIsRoundedAtTheDigitAskedFor)
{
    EXPECT_EQ(RoundNumber(std::int32_t{12345}, -1), Variant(std::int32_t{12350}));
    EXPECT_EQ(RoundNumber(std::int32_t{12344}, -1), Variant(std::int32_t{12340}));
    EXPECT_EQ(RoundNumber(std::int32_t{-12345}, -1), Variant(std::int32_t{-12350}));
    EXPECT_EQ(RoundNumber(std::int32_t{12345}, -3), Variant(std::int32_t{12000}));
    EXPECT_EQ(RoundNumber(std::int16_t{-150}, -2), Variant(std::int16_t{-200}));
    EXPECT_EQ(RoundNumber(std::uint8_t{44}, -1), Variant(std::uint8_t{40}));
    EXPECT_EQ(RoundNumber(std::int32_t{4}, -1), Variant(std::int32_t{0}));
    EXPECT_EQ(RoundNumber(std::int32_t{9}, -1), Variant(std::int32_t{10}));
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

TEST(RoundNumber, TrueCountsAsMinusOne)
{
    EXPECT_EQ(RoundNumber(true, 0), Variant(true));
    EXPECT_EQ(RoundNumber(false, 0), Variant(false));
    EXPECT_EQ(RoundNumber(true, 2), Variant(true));
    EXPECT_EQ(RoundNumber(true, -1), Variant(false));
}

TEST(RoundNumber, AnAmountIsRoundedInItsOwnType)
{
    EXPECT_EQ(RoundNumber(amount(1.15), 1), Variant(amount(1.2)));
    EXPECT_EQ(RoundNumber(amount(-1.15), 1), Variant(amount(-1.2)));
    EXPECT_EQ(RoundNumber(amount(1.2345), 4), Variant(amount(1.2345)));
    EXPECT_EQ(RoundNumber(amount(1.2345), 9), Variant(amount(1.2345)));
    EXPECT_EQ(RoundNumber(amount(1.2345), 3), Variant(amount(1.235)));
    EXPECT_EQ(RoundNumber(amount(2.5), 0), Variant(amount(3)));
    EXPECT_EQ(RoundNumber(amount(1250), -2), Variant(amount(1300)));
    EXPECT_EQ(RoundNumber(amount(49999), -5), Variant(amount(0)));
}

TEST(RoundNumber, OnlyTheWholePartOfAnAmountCountsAheadOfTheMark)
{
    EXPECT_EQ(RoundNumber(amount(4.9999), -1), Variant(amount(0)));
    EXPECT_EQ(RoundNumber(amount(5), -1), Variant(amount(10)));
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
