#include "histogram/HourBins.h"

#include "foundation/ExpectError.h"
#include "histogram/LiteralBins.h"

#include <gtest/gtest.h>

#include <limits>

/// The bins of a range at values worked by hand.
namespace k7deval::test
{

namespace
{

using histogram::BinScale;

struct BinCase {
    const char* what;
    float value;
    int bin;
};

// The range of 0 to 100.
constexpr BinCase kBinCases[] = {
    {"the minimum itself", 0.0F, 1},
    {"zero with a sign", -0.0F, 1},
    {"just above the minimum", 1e-30F, 1},
    {"on the first edge", 5.0F, 1},
    {"the first edge and noise", 5.00001F, 1},
    {"over the first edge", 5.0001F, 2},
    {"under the last edge but one", 94.9999F, 19},
    {"on the last edge but one", 95.0F, 19},
    {"over the last edge but one", 95.0001F, 20},
    {"on 20%", 20.0F, 4},
    {"over 20%", 20.0001F, 5},
    {"on 80%", 80.0F, 16},
    {"over 80%", 80.0001F, 17},
    {"the top", 100.0F, 20},
    {"a little below 0", -0.001F, 1},
    {"nearly 5% below 0", -4.9999F, 1},
};

/// Exactly 5% and more below the range, where no bin is.
constexpr float kTooLow[] = {-5.0F, -5.0001F, -10.0F, -100.0F, -1e6F};

struct WrittenCase {
    float value;
    std::int64_t millionths;
};

// A single's first seven digits count, then the first six places.
constexpr WrittenCase kWritten[] = {
    {0.0F, 0},
    {-0.0F, 0},
    {1.0F, 1'000'000},
    {-1.0F, -1'000'000},
    {0.05F, 50'000},
    {0.0500001F, 50'000},
    {0.0500004F, 50'000},
    {0.0500005F, 50'001}, // 0.0500005 in seven digits, however it lies in binary
    {-0.0500005F, -50'001},
    {0.9999995F, 1'000'000},
    {0.9999994F, 999'999},
    {12.345675F, 12'345'680}, // seven digits: 12.34568
    {1234567.0F, 1'234'567'000'000},
    {16777216.0F, 16'777'220'000'000},
    {0.000001F, 1},
    {0.0000005F, 1},
    {0.00000049F, 0},
    {1e-30F, 0},
};

std::vector<BinCase> shiftedCases()
{
    return {{"the minimum", 30, 1}, {"the first edge", 32.7F, 1},     {"over it", 32.701F, 2},
            {"the middle", 57, 10}, {"over the middle", 57.001F, 11}, {"the top", 84, 20}};
}

} // namespace

TEST(LiteralBins, WriteANumberByItsFirstSevenDigits)
{
    for (const WrittenCase& row : kWritten)
        EXPECT_EQ(millionthsOf(row.value), row.millionths) << row.value;
}

TEST(Bins, OfAHundredWithZeroAsMinimum)
{
    for (const BinCase& row : kBinCases) {
        EXPECT_EQ(BinScale(0, 100).binOf(row.value), row.bin) << row.what;
        EXPECT_EQ(histogram::binByDefinition(row.value, 0, 100), row.bin) << row.what;
        EXPECT_EQ(literalBin(row.value, 0, 100), row.bin) << row.what;
    }
}

TEST(Bins, OfARangeThatBeginsAboveZero)
{
    for (const BinCase& row : shiftedCases()) {
        EXPECT_EQ(BinScale(30, 84).binOf(row.value), row.bin) << row.what;
        EXPECT_EQ(histogram::binByDefinition(row.value, 30, 54), row.bin) << row.what;
        EXPECT_EQ(literalBin(row.value, 30, 54), row.bin) << row.what;
    }
}

TEST(Bins, EachUpperEdgeBelongsToItsBin)
{
    for (const float top : {100.0F, 2500.0F, 0.5F, 10.0F, 33.3F, 1e-6F, 1e20F}) {
        const BinScale scale(0, top);
        for (int bin = 1; bin <= 20; ++bin)
            EXPECT_EQ(scale.binOf(histogram::binEdge(bin, 0, top)), bin) << top;
    }
}

TEST(Bins, AValueTooFarBelowTheRangeFallsIntoNone)
{
    for (const float value : kTooLow) {
        EXPECT_EQ(errorOf([&] { return BinScale(0, 100).binOf(value); }), 9) << value;
        EXPECT_LT(histogram::binByDefinition(value, 0, 100), 0) << value;
        EXPECT_EQ(histogram::binByDefinition(value, 0, 100), literalBin(value, 0, 100)) << value;
    }
}

TEST(Bins, AValueAboveTheRangeHasANumberByDefinition)
{
    EXPECT_EQ(histogram::binByDefinition(100.0001F, 0, 100), 21);
    EXPECT_EQ(histogram::binByDefinition(100.00001F, 0, 100), 20) << "noise";
    EXPECT_EQ(histogram::binByDefinition(200, 0, 100), 40);
}

TEST(Bins, ARangeOfZeroFailsWithAnyValue)
{
    for (const float low : {0.0F, 30.0F, -7.0F}) {
        const BinScale scale(low, low);
        EXPECT_EQ(scale.range(), 0);
        EXPECT_EQ(errorOf([&] { return scale.binOf(low); }), 6) << "0 / 0";
        EXPECT_EQ(errorOf([&] { return scale.binOf(low - 1); }), 11) << "x / 0";
        EXPECT_EQ(errorOf([&] { return histogram::binByDefinition(low, low, 0); }), 6);
        EXPECT_EQ(errorOf([&] { return histogram::binByDefinition(low - 1, low, 0); }), 11);
    }
    EXPECT_EQ(errorOf([] { return BinScale(0, 0).binOf(-0.0F); }), 6);
}

TEST(Bins, OfANegativeRangeHoldItsTopAlone)
{
    const BinScale scale(0, -10);
    EXPECT_EQ(scale.range(), -10);
    EXPECT_EQ(scale.binOf(-10), 20);
    EXPECT_EQ(scale.binOf(-10.000001F), 20) << "noise";
    EXPECT_EQ(errorOf([&] { return scale.binOf(-10.001F); }), 9);
    EXPECT_EQ(errorOf([&] { return scale.binOf(-1000); }), 9);
    EXPECT_EQ(histogram::binByDefinition(-9, 0, -10), 18);
    EXPECT_EQ(histogram::binByDefinition(5, 0, -10), -10);
}

TEST(Bins, ARangeTooWideForASingleIsAnOverflow)
{
    constexpr float kMost = std::numeric_limits<float>::max();
    EXPECT_EQ(errorOf([] { return BinScale(-kMost, kMost).range(); }), 6);
    EXPECT_EQ(BinScale(0, kMost).range(), kMost);
    EXPECT_EQ(BinScale(0, kMost).binOf(kMost), 20);
    EXPECT_EQ(BinScale(0, kMost).binOf(kMost / 2), 10);
}

TEST(Bins, TheRangeIsASingle)
{
    EXPECT_EQ(BinScale(0.1F, 100.1F).range(), 100.0F);
    EXPECT_EQ(BinScale(12.5F, 45).range(), 32.5F);
}

TEST(Bins, EndAtTheirEdges)
{
    EXPECT_EQ(histogram::binEdge(0, 0, 100), 0);
    EXPECT_EQ(histogram::binEdge(3, 0, 100), 15);
    EXPECT_EQ(histogram::binEdge(20, 0, 100), 100);
    EXPECT_EQ(histogram::binEdge(1, 0, 33.3F), 1.665F);
    EXPECT_EQ(histogram::binEdge(0, 12.5F, 32.5F), 12.5F);
    EXPECT_EQ(histogram::binEdge(1, 12.5F, 32.5F), 14.125F);
    EXPECT_EQ(histogram::binEdge(20, 12.5F, 32.5F), 45);
    EXPECT_EQ(histogram::binEdge(20, 0, std::numeric_limits<float>::max()),
              std::numeric_limits<float>::max());
}

TEST(Thresholds, AreKeptToSixDecimals)
{
    EXPECT_EQ(histogram::sixDecimals(80.0, {}), 80.0F);
    EXPECT_EQ(histogram::sixDecimals(33.3F * 0.8, {}), 26.639999F) << "26.6399993896484";
    EXPECT_EQ(histogram::sixDecimals(0.0000005, {}), 0.000001F) << "halves away from zero";
    EXPECT_EQ(histogram::sixDecimals(-0.0000005, {}), -0.000001F);
    EXPECT_EQ(histogram::sixDecimals(0.00000049, {}), 0.0F);
    EXPECT_EQ(histogram::sixDecimals(12.5F * 0.2, regionalSettings("de-DE")), 2.5F);
}

TEST(Bins, ThePeakIsTheFullestOfTheTwenty)
{
    histogram::HourBins bins{};
    EXPECT_EQ(histogram::peakOf(bins), 0);
    bins[0] = 99;
    EXPECT_EQ(histogram::peakOf(bins), 0) << "index 0 holds no bin";
    bins[1] = 3;
    EXPECT_EQ(histogram::peakOf(bins), 3);
    bins[20] = 7;
    EXPECT_EQ(histogram::peakOf(bins), 7);
}

struct PercentCase {
    std::int32_t hours;
    std::int32_t total;
    const char* text;
};

// One place, halves away from zero, of the quotient as a single of seven digits.
constexpr PercentCase kPercents[] = {
    {0, 0, "-----"},       {0, 5, "0.0%"},        {1, 3, "33.3%"},          {2, 3, "66.7%"},
    {5, 5, "100.0%"},      {1, 8, "12.5%"},       {1, 16, "6.3%"},          {3, 16, "18.8%"},
    {1, 2000, "0.1%"},     {1, 2001, "0.0%"},     {3, 2000, "0.2%"},        {1999, 2000, "100.0%"},
    {1998, 2000, "99.9%"}, {1, 26280, "0.0%"},    {26279, 26280, "100.0%"}, {2201, 4000, "55.0%"},
    {2202, 4000, "55.1%"}, {2203, 4000, "55.1%"},
};

TEST(Percent, HasOnePlace)
{
    for (const PercentCase& row : kPercents)
        EXPECT_EQ(histogram::percentText(row.hours, row.total, "%", {}), row.text)
            << row.hours << " of " << row.total;
}

TEST(Percent, BearsTheTailOfItsToolAndTheMarkOfTheRegion)
{
    EXPECT_EQ(histogram::percentText(1, 3, "% of range", regionalSettings("en-GB")),
              "33.3% of range");
    EXPECT_EQ(histogram::percentText(1, 3, "%", regionalSettings("de-DE")), "33,3%");
}

} // namespace k7deval::test
