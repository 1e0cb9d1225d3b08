#include "foundation/NumberText.h"
#include "load/LoadModel.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

/// Into which bin and level an hour of load falls.
namespace k7deval::test
{

namespace
{

struct HourCase {
    double value;
    int bin; ///< 0 for none.
    HourCounts counts;
};

constexpr HourCounts kLow{.low = 1};
constexpr HourCounts kMid{.mid = 1};
constexpr HourCounts kHigh{.high = 1};
constexpr HourCounts kOver{.over = 1};
constexpr HourCounts kUnder{.under = 1};

// Minimum 0, capacity 100.
constexpr HourCase kOfAHundred[] = {
    {0, 1, kLow},          {0.0000001, 1, kLow}, {5, 1, kLow},
    {5.00001, 1, kLow},    {5.0001, 2, kLow},    {10, 2, kLow},
    {10.1, 3, kLow},       {30, 6, kLow},        {30.00001, 6, kMid},
    {30.01, 7, kMid},      {35, 7, kMid},        {60, 12, kMid},
    {60.00001, 12, kHigh}, {60.5, 13, kHigh},    {95, 19, kHigh},
    {95.0001, 20, kHigh},  {100, 20, kHigh},     {100.000001, 20, kHigh},
    {100.00001, 0, kOver}, {150, 0, kOver},      {-0.0000001, 0, kUnder},
    {-1, 0, kUnder},
};

// Minimum 150, capacity 750: 30 to a bin, 330 and 510 the limits of the levels.
constexpr HourCase kOfSixHundred[] = {
    {149.99999, 0, kUnder}, {150, 1, kLow},    {180, 1, kLow},       {180.001, 2, kLow},
    {330, 6, kLow},         {330.01, 7, kMid}, {510, 12, kMid},      {510.01, 13, kHigh},
    {720, 19, kHigh},       {750, 20, kHigh},  {750.0001, 0, kOver},
};

struct BinsRig : LoadRig {
    BinsRig(const std::string& minimum, const std::string& capacity)
    {
        range(minimum, capacity).specify("1/1/2024", "3/31/2024");
    }
    /// A new evaluation of these hours alone.
    void evaluate(const std::vector<double>& values)
    {
        hours({values.begin(), values.end()});
        tool.txtMinSafe.Leave();
        calculate();
    }
};

void expectHour(BinsRig& rig, const HourCase& expected)
{
    rig.evaluate({expected.value});
    histogram::HourBins bins{};
    if (expected.bin > 0)
        bins.at(static_cast<std::size_t>(expected.bin)) = 1;
    EXPECT_EQ(countsOf(rig.results()), expected.counts) << expected.value;
    EXPECT_EQ(rig.results().Bins, bins) << expected.value;
}

} // namespace

TEST(LoadHours, FallIntoTheBinsAndLevelsOfARangeFromZero)
{
    BinsRig rig("0", "100");
    for (const HourCase& expected : kOfAHundred)
        expectHour(rig, expected);
}

TEST(LoadHours, FallIntoTheBinsAndLevelsOfARangeAboveAMinimum)
{
    BinsRig rig("150", "750");
    for (const HourCase& expected : kOfSixHundred)
        expectHour(rig, expected);
}

TEST(LoadHours, AreSinglesBeforeAllElse)
{
    BinsRig rig("0", "100");
    rig.evaluate({100.000001, 30.0000001, -1e-60});
    EXPECT_EQ(countsOf(rig.results()), (HourCounts{.low = 2, .high = 1}));
}

TEST(LoadThresholds, AreKeptToSixDecimals)
{
    BinsRig rig("0.1234567", "1.1234567");
    rig.evaluate({});
    EXPECT_EQ(rig.results().LowThreshold, 0.423457F);
    EXPECT_EQ(rig.results().HighThreshold, 0.723457F);
}

TEST(LoadThresholds, OfATinyRangeVanish)
{
    BinsRig rig("0", "0.000001");
    rig.evaluate({0.0000009});
    EXPECT_EQ(rig.results().LowThreshold, 0);
    EXPECT_EQ(rig.results().HighThreshold, 0.000001F);
    EXPECT_EQ(countsOf(rig.results()), kMid);
}

TEST(LoadRange, TooWideForASingleIsAnOverflow)
{
    BinsRig rig("-3E+38", "3E+38");
    EXPECT_EQ(errorOf([&] { rig.evaluate({0}); }), 6);
    EXPECT_TRUE(rig.tool.NeedsEvaluation());
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Hourglass);
}

RC_GTEST_PROP(LoadHoursProperties, AnyHoursOfAnyRangeAreAsDefined, ())
{
    const auto lowest = *rc::gen::inRange(-2000, 5000);
    const auto width = *rc::gen::inRange(1, 20000);
    const auto divisor = *rc::gen::element(1, 3, 7, 10, 64, 1000);
    const auto minimum =
        GeneralNumber(static_cast<float>(lowest) / static_cast<float>(divisor), RegionalSettings());
    const auto capacity = GeneralNumber(
        static_cast<float>(lowest + width) / static_cast<float>(divisor), RegionalSettings());
    const auto shares = *rc::gen::container<std::vector<int>>(rc::gen::inRange(-5000, 105'000));
    LoadModel model(singleOf(minimum), singleOf(capacity));
    std::vector<double> values;
    for (const int share : shares) {
        values.push_back(share / 100'000.0 * double(model.range) + double(model.minSafe));
        model.take(values.back());
    }
    BinsRig rig(minimum, capacity);
    rig.evaluate(values);
    RC_ASSERT(countsOf(rig.results()) == model.counts);
    RC_ASSERT(rig.results().Bins == model.bins);
    RC_ASSERT(rig.results().MaxObserved == model.maxObserved);
}

} // namespace k7deval::test
