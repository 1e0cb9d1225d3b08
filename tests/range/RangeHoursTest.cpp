#include "range/RangeRig.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

/// How an hour is counted: on a limit, one single below it and one above.
namespace k7deval::test
{

namespace
{

constexpr std::int32_t kExcludedWord = 11;
constexpr std::int32_t kInvalidWord = 12;
constexpr std::int32_t kOfflineWord = 13;
constexpr std::int32_t kValidExcludedWord = 14;
constexpr std::int32_t kValidOfflineWord = 15;
constexpr std::int32_t kNotEvenOfflineWord = 16;

std::shared_ptr<SiteData> siteOfWords()
{
    auto site = siteOfNOx();
    site->statusMeanings[kExcludedWord] = {.valid = false, .excluded = true};
    site->statusMeanings[kInvalidWord] = {.valid = false};
    site->statusMeanings[kOfflineWord] = {.valid = false, .offline = true};
    site->statusMeanings[kValidExcludedWord] = {.excluded = true};
    site->statusMeanings[kValidOfflineWord] = {.offline = true};
    site->statusMeanings[kNotEvenOfflineWord] = {.valid = false, .excluded = true, .offline = true};
    return site;
}

struct HourCase {
    const char* what;
    std::optional<double> value;
    std::int32_t status;
    Counters counters;
    const char* bins;
};

double below(float value)
{
    return std::nextafter(value, -std::numeric_limits<float>::infinity());
}

double above(float value)
{
    return std::nextafter(value, std::numeric_limits<float>::infinity());
}

/// The counters and bins of one hour with a range of 100, 90 as expected and 95 as potential value.
void expectHour(const HourCase& row)
{
    RangeRig rig(siteOfWords());
    rig.limits("90", "95").hours({row.value}, row.status).calculate();
    EXPECT_EQ(countersOf(rig.results()), row.counters) << row.what;
    EXPECT_EQ(filledBins(rig.results()), row.bins) << row.what;
}

const HourCase kBands[] = {
    {"zero", 0, 0, {.low = 1}, "1: 1"},
    {"just above zero", 1e-30, 0, {.low = 1}, "1: 1"},
    {"just below zero", -1e-30, 0, {.low = 1}, "1: 1"},
    {"on 5%", 5, 0, {.low = 1}, "1: 1"},
    {"above 5% by noise", 5.00001, 0, {.low = 1}, "1: 1"},
    {"above 5%", 5.0001, 0, {.low = 1}, "2: 1"},
    {"below 20%", below(20), 0, {.low = 1}, "4: 1"},
    {"on 20%", 20, 0, {.low = 1}, "4: 1"},
    {"above 20%, which the bins take for noise", above(20), 0, {.mid = 1}, "4: 1"},
    {"clearly above 20%", 20.001, 0, {.mid = 1}, "5: 1"},
    {"below 80%", below(80), 0, {.mid = 1}, "16: 1"},
    {"on 80%", 80, 0, {.mid = 1}, "16: 1"},
    {"above 80%, which the bins take for noise", above(80), 0, {.high = 1}, "16: 1"},
    {"clearly above 80%", 80.001, 0, {.high = 1}, "17: 1"},
    {"on the range", 100, 0, {.high = 1, .aboveMEC = 1, .aboveMPC = 1}, "20: 1"},
    {"below the range", below(100), 0, {.high = 1, .aboveMEC = 1, .aboveMPC = 1}, "20: 1"},
    {"above the range", above(100), 0, {.overRange = 1}, ""},
    {"far above the range", 1e30, 0, {.overRange = 1}, ""},
    {"a little below zero", -4.9999, 0, {.low = 1}, "1: 1"},
};

const HourCase kLimits[] = {
    {"below the expected value", below(90), 0, {.high = 1}, "18: 1"},
    {"on the expected value", 90, 0, {.high = 1}, "18: 1"},
    {"above the expected value", above(90), 0, {.high = 1, .aboveMEC = 1}, "18: 1"},
    {"below the potential value", below(95), 0, {.high = 1, .aboveMEC = 1}, "19: 1"},
    {"on the potential value", 95, 0, {.high = 1, .aboveMEC = 1}, "19: 1"},
    {"above it", above(95), 0, {.high = 1, .aboveMEC = 1, .aboveMPC = 1}, "19: 1"},
};

const HourCase kWords[] = {
    {"replaced, word 35", 50, 35, {.mid = 1, .replaced = 1}, "10: 1"},
    {"replaced, word 36", 50, 36, {.mid = 1, .replaced = 1}, "10: 1"},
    {"word 34", 50, 34, {.mid = 1}, "10: 1"},
    {"word 37", 50, 37, {.mid = 1}, "10: 1"},
    {"35 in the upper half", 50, 35 << 16, {.mid = 1}, "10: 1"},
    {"35 with more bits", 50, 256 + 35, {.mid = 1}, "10: 1"},
    {"replaced over the range", 150, 35, {.overRange = 1}, ""},
    {"replaced without a value", {}, 36, {.invalid = 1}, ""},
    {"excluded", 50, kExcludedWord, {.invalid = 1}, ""},
    {"invalid", 50, kInvalidWord, {.invalid = 1}, ""},
    {"off-line", 50, kOfflineWord, {}, ""},
    {"valid but excluded", 50, kValidExcludedWord, {.invalid = 1}, ""},
    {"usable although off-line", 50, kValidOfflineWord, {.mid = 1}, "10: 1"},
    {"everything at once", 50, kNotEvenOfflineWord, {}, ""},
    {"no value", {}, 34, {.invalid = 1}, ""},
    {"no value, off-line", {}, kValidOfflineWord, {}, ""},
    {"over the range but invalid", 150, kInvalidWord, {.invalid = 1}, ""},
    {"too far below the range but invalid", -500, kInvalidWord, {.invalid = 1}, ""},
};

} // namespace

TEST(RangeHours, OnALimitCountBelowIt)
{
    for (const HourCase& row : kBands)
        expectHour(row);
}

TEST(RangeHours, AboveALimitAreCountedInTheRange)
{
    for (const HourCase& row : kLimits)
        expectHour(row);
}

TEST(RangeHours, CountByTheirStatusWord)
{
    for (const HourCase& row : kWords)
        expectHour(row);
}

TEST(RangeHours, AnUnusableWordThirtyFiveIsNotReplaced)
{
    auto site = siteOfNOx();
    site->statusMeanings[35] = {.valid = false};
    site->statusMeanings[36] = {.excluded = true};
    for (const std::int32_t word : {35, 36}) {
        RangeRig rig(site);
        rig.hours({50}, word).calculate();
        EXPECT_EQ(countersOf(rig.results()), Counters{.invalid = 1}) << word;
    }
}

TEST(RangeHours, AreTakenAsSingles)
{
    // 100.000001 is the single 100, and 20.0000001 the single 20.
    RangeRig rig;
    rig.hours({100.000001, 20.0000001}).limits("N/A", "N/A").calculate();
    EXPECT_EQ(countersOf(rig.results()), (Counters{.low = 1, .high = 1}));
    EXPECT_EQ(filledBins(rig.results()), "4: 1, 20: 1");
}

TEST(RangeHours, ThatNoSingleHoldsAreAnOverflow)
{
    RangeRig rig;
    rig.hours({50, 1e300});
    EXPECT_THROW(rig.calculate(), Error);
    EXPECT_EQ(rig.results().MidHours, 1);
}

TEST(RangeHours, OverTheRangeAreNeitherAboveALimitNorReplaced)
{
    RangeRig rig;
    rig.limits("20", "30").hours({150}, 35).calculate();
    EXPECT_EQ(countersOf(rig.results()), Counters{.overRange = 1});
    EXPECT_EQ(filledBins(rig.results()), "");
}

TEST(RangeHours, WithoutAnythingWrittenAreInvalidUnlessTheUnitIsOffline)
{
    auto site = siteOfNOx();
    site->statusMeanings.clear();
    RangeRig rig(site);
    rig.hours({50}).calculate();
    // Twelve quarters up to the first of 2024, a leap year.
    EXPECT_EQ(rig.results().InvalidHours, (3 * 365 + 1) * 24 - 1);
}

TEST(RangeHours, OfANegativeRange)
{
    RangeRig rig;
    rig.range("-10").hours({-10, -9, 0, 5}).limits("N/A", "N/A").calculate();
    // 20% of it is -2, 80% is -8: the value at the range lies below both.
    EXPECT_EQ(countersOf(rig.results()), (Counters{.low = 1, .overRange = 3}));
    EXPECT_EQ(filledBins(rig.results()), "20: 1");
}

TEST(RangeHours, OfAShiftedRangeFollowIt)
{
    RangeRig rig;
    rig.range("2500").hours({125, 126, 500, 501, 2000, 2001, 2500, 2501}).calculate();
    EXPECT_EQ(filledBins(rig.results()), "1: 1, 2: 1, 4: 1, 5: 1, 16: 1, 17: 1, 20: 1");
    EXPECT_EQ(rig.results().LowHours, 3);
    EXPECT_EQ(rig.results().MidHours, 2);
    EXPECT_EQ(rig.results().HighHours, 2);
    EXPECT_EQ(rig.results().OverRangeHours, 1);
}

} // namespace k7deval::test
