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

struct RangeText {
    const char* minimum;
    const char* capacity;
};

constexpr RangeText kRanges[] = {
    {"0", "100"},
    {"0", "1"},
    {"0", "3"},
    {"0", "7"},
    {"12.5", "187.3"},
    {"33.333", "66.667"},
    {"0.1", "0.7"},
    {"-50", "50"},
    {"-75.3", "-12.1"},
    {"150", "755"},
    {"180.2", "612.9"},
    {"0", "0.00001"},
    {"0", "0.000001"},
    {"0", "16777216"},
    {"0", "123456792"},
    {"1000000", "1000001"},
    {"100", "100.0001"},
    {"16777216", "16777256"},
    {"0.333333", "0.666667"},
    {"0", "3E+30"},
    {"1E-20", "3E-20"},
    {"-3E+37", "3E+37"},
};

struct BinsRig : LoadRig {
    BinsRig(const std::string& minimum, const std::string& capacity)
    {
        range(minimum, capacity).specify("1/1/2024", "3/31/2024");
    }
    /// A new evaluation of these hours alone.
    void evaluate(const std::vector<double>& values)
    {
        hours(values);
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

/// A value and its nearest neighbours.
void addAround(std::vector<double>& values, double value)
{
    for (int steps = -3; steps <= 3; ++steps)
        values.push_back(neighbour(static_cast<float>(value), steps));
}

/// All values at which a count could go one way or the other: the edges of bins, as they are and
/// where their sixth decimal turns, and the limits of levels and range.
std::vector<double> criticalValues(const LoadModel& model)
{
    std::vector<double> values;
    for (const float limit : {model.low, model.high, model.minSafe, model.capacity})
        addAround(values, limit);
    constexpr double kHalfOfSixDecimals = 0.0000005;
    for (int bin = 0; bin <= 20; ++bin) {
        for (const double shift : {0.0, kHalfOfSixDecimals, 3 * kHalfOfSixDecimals})
            addAround(values, (bin / 20.0 + shift) * double(model.range) + double(model.minSafe));
    }
    return values;
}

void expectModel(const BinsRig& rig, const LoadModel& model, const std::string& what)
{
    const LoadEvaluation& results = rig.results();
    EXPECT_EQ(results.LowThreshold, model.low) << what;
    EXPECT_EQ(results.HighThreshold, model.high) << what;
    EXPECT_EQ(countsOf(results), model.counts) << what;
    EXPECT_EQ(results.Bins, model.bins) << what;
    EXPECT_EQ(results.MaxObserved, model.maxObserved) << what;
}

std::string textOf(const RangeText& range)
{
    return std::string(range.minimum) + " to " + range.capacity;
}

LoadModel modelOf(const RangeText& range)
{
    return {singleOf(range.minimum), singleOf(range.capacity)};
}

} // namespace

TEST(LoadModel, WritesSixDecimals)
{
    EXPECT_EQ(sixDecimals(0.05F), "0.050000");
    EXPECT_EQ(sixDecimals(0.0500005F), "0.050001") << "the seventh digit decides";
    EXPECT_EQ(sixDecimals(-1.00002F), "-1.000020");
    EXPECT_EQ(sixDecimals(-0.0000001F), "0.000000");
    EXPECT_EQ(sixDecimals(123456.789F), "123456.800000");
    EXPECT_EQ(sixDecimals(9.9999999F), "10.000000");
    EXPECT_EQ(sixDecimals(0.9999996), "1.000000");
    EXPECT_EQ(sixDecimals(60.0000005), "60.000001");
}

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

TEST(LoadHours, OnAndBesideEveryEdgeAreAsDefined)
{
    for (const RangeText& range : kRanges) {
        BinsRig rig(range.minimum, range.capacity);
        LoadModel model = modelOf(range);
        const auto values = criticalValues(model);
        for (const double value : values)
            model.take(value);
        rig.evaluate(values);
        expectModel(rig, model, textOf(range));
    }
}

TEST(LoadHours, EachOnItsOwnIsAsDefined)
{
    for (const RangeText& range : kRanges) {
        const LoadModel model = modelOf(range);
        const histogram::BinScale scale(model.minSafe, model.capacity);
        for (const double value : criticalValues(model)) {
            const auto v = static_cast<float>(value);
            if (v < model.minSafe || v > model.capacity)
                continue;
            EXPECT_EQ(scale.binOf(v), model.binOf(v)) << v << " of " << textOf(range);
        }
    }
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

RC_GTEST_PROP(LoadHoursProperties, TheBinOfAnySingleIsAsDefined, ())
{
    const auto minimum = *rc::gen::map(rc::gen::inRange(-1'000'000, 1'000'000),
                                       [](int n) { return static_cast<float>(n) / 977.0F; });
    const auto width = *rc::gen::map(rc::gen::inRange(1, 10'000'000),
                                     [](int n) { return static_cast<float>(n) / 1013.0F; });
    const LoadModel model(minimum, minimum + width);
    RC_PRE(model.range > 0);
    const histogram::BinScale scale(model.minSafe, model.capacity);
    for (int i = 0; i < 50; ++i) {
        const auto bin = *rc::gen::inRange(0, 21);
        const auto steps = *rc::gen::inRange(-40, 40);
        const auto edge = static_cast<float>(bin / 20.0 * double(model.range) + double(minimum));
        const float value = neighbour(edge, steps);
        if (value < model.minSafe || value > model.capacity)
            continue;
        RC_ASSERT(scale.binOf(value) == model.binOf(value));
    }
}

} // namespace k7deval::test
