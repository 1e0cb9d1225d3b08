#include "foundation/NumberText.h"

#include "foundation/ExpectError.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <ostream>

namespace k7deval
{

namespace
{

const RegionalSettings kUs;

struct SingleCase {
    const char* what;
    float value;
    const char* format;
    const char* text;
};

void PrintTo(const SingleCase& row, std::ostream* out)
{
    *out << row.what;
}

class FormattedSingles : public testing::TestWithParam<SingleCase>
{
};

constexpr float kLargest = std::numeric_limits<float>::max();
constexpr float kSmallest = std::numeric_limits<float>::denorm_min();

const SingleCase kSingles[] = {
    // Halves away from zero, counted on seven significant digits.
    {"binary a little below the half", 12.34565F, "0.0000", "12.3457"},
    {"just under the half", 12.34564F, "0.0000", "12.3456"},
    {"a negative half", -12.34565F, "0.0000", "-12.3457"},
    {"a half of a place", 0.00005F, "0.0000", "0.0001"},
    {"under a half of a place", 0.0000499F, "0.0000", "0.0000"},
    {"0.35 to one place", 0.35F, "0.0", "0.4"},
    {"0.25 to one place", 0.25F, "0.0", "0.3"},
    {"2.5 to whole", 2.5F, "0", "3"},
    {"-2.5 to whole", -2.5F, "0", "-3"},
    {"a carry through all digits", 9.99995F, "0.0000", "10.0000"},
    {"a carry through 99.95", 99.95F, "0.0", "100.0"},
    // Beyond seven digits there are zeros.
    {"more places than digits", 1.0F / 3.0F, "0.000000000", "0.333333300"},
    {"eight digits ahead of the mark", 12345678.0F, "0", "12345680"},
    {"the largest single", kLargest, "0.0", "340282300000000000000000000000000000000.0"},
    // Zero bears no sign.
    {"zero", 0.0F, "0.0000", "0.0000"},
    {"negative zero", -0.0F, "0.0000", "0.0000"},
    {"a negative that rounds to zero", -0.00004F, "0.0000", "0.0000"},
    {"the smallest single", kSmallest, "0.000000", "0.000000"},
    {"a negative one of the smallest", -kSmallest, "0.000000", "0.000000"},
    // Forms of the format.
    {"a mark without places", 12.0F, "0.", "12."},
    {"a mark without places, rounded", 12.5F, "0.", "13."},
    {"optional digits ahead", 5.25F, "##0.0", "5.3"},
    {"optional digits ahead of a fraction", 0.25F, "##0.0", "0.3"},
    {"optional digits exceeded", 1234.5F, "##0.0", "1234.5"},
    {"no digit demanded ahead", 0.25F, "#.00", ".25"},
    {"digits demanded ahead", 5.0F, "000.0", "005.0"},
    {"no mark", 5.4F, "0", "5"},
};

std::string formatOf(float value, const char* format)
{
    return FormatNumber(value, format, kUs);
}

} // namespace

TEST_P(FormattedSingles, AreRoundedOnTheirDecimalText)
{
    const SingleCase& row = GetParam();
    EXPECT_EQ(formatOf(row.value, row.format), row.text) << row.value << " as " << row.format;
}

INSTANTIATE_TEST_SUITE_P(Rows, FormattedSingles, testing::ValuesIn(kSingles));

TEST(FormatNumber, ADoubleHasFifteenDigits)
{
    EXPECT_EQ(FormatNumber(0.1, "0.00000000000000000000", kUs), "0.10000000000000000000");
    EXPECT_EQ(FormatNumber(1.0 / 3, "0.00000000000000000000", kUs), "0.33333333333333300000");
    EXPECT_EQ(FormatNumber(123456789012345678.0, "0", kUs), "123456789012346000");
    EXPECT_EQ(FormatNumber(1.005, "0.00", kUs), "1.01");
    EXPECT_EQ(FormatNumber(0.145, "0.00", kUs), "0.15");
    EXPECT_EQ(FormatNumber(-1e-300, "0.0", kUs), "0.0");
}

TEST(FormatNumber, TheMarkIsTheRegions)
{
    EXPECT_EQ(FormatNumber(1234.5F, "0.00", regionalSettings("de-DE")), "1234,50");
    EXPECT_EQ(FormatNumber(12.0F, "0.", regionalSettings("fr-FR")), "12,");
}

TEST(FormatNumber, AFormatOfOtherCharactersIsRefused)
{
    for (const char* format :
         {"", ".", "x", "0.0.0", "0#", "0.#", "#0#", "0,0", "0.0 ", "-0", "0E+00"})
        EXPECT_EQ(errorOf([&] { return formatOf(1, format); }), errors::kInvalidCall) << format;
}

TEST(FormatNumber, AValueThatIsNotFiniteIsAnOverflow)
{
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    for (const float value : {kInfinity, -kInfinity, std::nanf("")}) {
        EXPECT_EQ(errorOf([&] { return formatOf(value, "0.0"); }), errors::kOverflow);
        EXPECT_EQ(errorOf([&] { return GeneralNumber(value, kUs); }), errors::kOverflow);
        EXPECT_EQ(errorOf([&] { return roundTrip(value, 4); }), errors::kOverflow);
        EXPECT_EQ(errorOf([&] { return roundTripToDouble(value, 4); }), errors::kOverflow);
    }
}

TEST(GeneralNumber, WritesASingleWithAtMostSevenDigits)
{
    EXPECT_EQ(GeneralNumber(10.0F, kUs), "10");
    EXPECT_EQ(GeneralNumber(12.5F, kUs), "12.5");
    EXPECT_EQ(GeneralNumber(0.05F, kUs), "0.05");
    EXPECT_EQ(GeneralNumber(12345678.0F, kUs), "1.234568E+07");
    EXPECT_EQ(GeneralNumber(1234567.0F, kUs), "1234567");
    EXPECT_EQ(GeneralNumber(-0.0001F, kUs), "-0.0001");
    EXPECT_EQ(GeneralNumber(0.00001F, kUs), "1E-05");
    EXPECT_EQ(GeneralNumber(9999999.5F, kUs), "1E+07");
}

TEST(GeneralNumber, ZeroIsZeroWithoutASign)
{
    EXPECT_EQ(GeneralNumber(0.0F, kUs), "0");
    EXPECT_EQ(GeneralNumber(-0.0F, kUs), "0");
    EXPECT_EQ(GeneralNumber(-0.0, kUs), "0");
}

TEST(GeneralNumber, WritesADoubleWithAtMostFifteenDigits)
{
    // A fifth of a span of 33.3, formed in double from the single.
    EXPECT_EQ(GeneralNumber(static_cast<double>(33.3F) * 0.2, kUs), "6.65999984741211");
    EXPECT_EQ(GeneralNumber(1e15, kUs), "1E+15");
    EXPECT_EQ(GeneralNumber(1e14, kUs), "100000000000000");
    EXPECT_EQ(GeneralNumber(1.5e-300, kUs), "1.5E-300");
}

TEST(GeneralNumber, TheMarkIsTheRegions)
{
    EXPECT_EQ(GeneralNumber(12.5F, regionalSettings("de-DE")), "12,5");
    EXPECT_EQ(GeneralNumber(12345678.0F, regionalSettings("fr-FR")), "1,234568E+07");
}

TEST(RoundTrip, KeepsSoManyDecimals)
{
    EXPECT_EQ(roundTrip(12.34565F, 4), 12.3457F);
    EXPECT_EQ(roundTrip(-12.34565F, 4), -12.3457F);
    EXPECT_EQ(roundTrip(0.0005F, 3), 0.001F);
    EXPECT_EQ(roundTrip(5.00001F, 6), 5.00001F);
    EXPECT_EQ(roundTrip(2.5F, 0), 3.0F);
}

TEST(RoundTrip, CutsAValueToSevenDigits)
{
    EXPECT_EQ(roundTrip(16777216.0F, 4), 16777220.0F);
    EXPECT_EQ(roundTrip(kLargest, 9), 3.402823e38F);
}

TEST(RoundTrip, AResultOfZeroBearsNoSign)
{
    EXPECT_FALSE(std::signbit(roundTrip(-0.00004F, 4)));
    EXPECT_FALSE(std::signbit(roundTrip(-0.0F, 4)));
    EXPECT_EQ(roundTrip(-0.00004F, 4), 0.0F);
}

TEST(RoundTrip, ReadBackAsADoubleIsTheDecimalItself)
{
    EXPECT_EQ(roundTripToDouble(0.05F, 6), 0.05);
    EXPECT_EQ(roundTripToDouble(-12.34565F, 4), -12.3457);
    EXPECT_EQ(roundTripToDouble(-1.00002F, 6), -1.00002);
    EXPECT_EQ(roundTripToDouble(16777216.0F, 6), 16777220.0);
    EXPECT_FALSE(std::signbit(roundTripToDouble(-0.0000004F, 6)));
    EXPECT_EQ(roundTripToDouble(kLargest, 6), 3.402823e38) << "beyond no double";
}

TEST(ToSingle, IsRoundedFromTheDoubleNextToTheText)
{
    // Between two singles, a little above their middle, but the middle itself as a double.
    EXPECT_EQ(ToSingle("1.00000005960464477540", kUs), 1.0F);
    EXPECT_EQ(ToSingle("0.1", kUs), 0.1F);
    EXPECT_EQ(ToSingle("1E-50", kUs), 0.0F);
}

TEST(ToSingle, AValueOutOfItsRangeIsAnOverflow)
{
    EXPECT_EQ(ToSingle("3.4028235E38", kUs), kLargest);
    EXPECT_EQ(errorOf([] { return ToSingle("3.4028236E38", kUs); }), errors::kOverflow);
    EXPECT_EQ(errorOf([] { return ToSingle("-1E39", kUs); }), errors::kOverflow);
    EXPECT_EQ(errorOf([] { return ToSingle(std::nan("")); }), errors::kOverflow);
    EXPECT_EQ(errorOf([] { return ToSingle("abc", kUs); }), errors::kTypeMismatch);
}

TEST(toInt32, IsTheNearestIntegerHalvesToEven)
{
    EXPECT_EQ(toInt32(2.5), 2);
    EXPECT_EQ(toInt32(3.5), 4);
    EXPECT_EQ(toInt32(-2.5), -2);
    EXPECT_EQ(toInt32(-2.51), -3);
    EXPECT_EQ(toInt32("1,234.5", kUs), 1234);
}

TEST(toInt32, ANumberOutOfRangeIsAnOverflow)
{
    EXPECT_EQ(toInt32(2147483647.49), 2147483647);
    EXPECT_EQ(toInt32(-2147483648.5), -2147483648);
    EXPECT_EQ(errorOf([] { return toInt32(2147483647.5); }), errors::kOverflow);
    EXPECT_EQ(errorOf([] { return toInt32(-2147483649.0); }), errors::kOverflow);
    EXPECT_EQ(errorOf([] { return toInt32(std::nan("")); }), errors::kOverflow);
    EXPECT_EQ(errorOf([] { return toInt32("3000000000", kUs); }), errors::kOverflow);
    EXPECT_EQ(errorOf([] { return toInt32("", kUs); }), errors::kTypeMismatch);
}

} // namespace k7deval
