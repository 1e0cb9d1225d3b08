#include "sevenday/DriftTestData.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace k7deval::test
{

namespace
{

struct DriftCase {
    const char* name;
    float reference;
    float measured;
    float drift;
};

void PrintTo(const DriftCase& row, std::ostream* out)
{
    *out << "reference " << row.reference << ", measured " << row.measured;
}

enum class Injection { Absent, Within, Missed };

struct RunCase {
    const char* name;
    bool useZeroCal;
    Injection zero;
    Injection upscale;
    bool passed;
};

void PrintTo(const RunCase& row, std::ostream* out)
{
    *out << row.name;
}

std::shared_ptr<clsStrippedCal> injectionFor(Injection injected)
{
    if (injected == Injection::Absent)
        return nullptr;
    return injection(50, injected == Injection::Within ? 52.5F : 52.6F, 2.5F);
}

void addRun(clsDaySummary& day, int minute, bool online)
{
    const Date time = onDay(0, 8, minute);
    day.CalsInDay().Add(minuteKey(time), runAt(time, {.online = online}));
}

} // namespace

class DriftOf : public testing::TestWithParam<DriftCase>
{
};

TEST_P(DriftOf, IsTheDifferenceToFourDecimals)
{
    const DriftCase& row = GetParam();
    const auto made = injection(row.reference, row.measured);
    EXPECT_EQ(made->Drift(), row.drift);
    EXPECT_FALSE(made->Drift() == 0 && std::signbit(made->Drift()));
}

constexpr DriftCase kDrifts[] = {
    // The sign is that of the reading against the reference.
    {"AboveTheReference", 50, 52.5F, 2.5F},
    {"BelowTheReference", 50, 47.5F, -2.5F},
    {"OnTheReference", 50, 50, 0},
    // Below and above half of the last decimal.
    {"TooSmallToShow", 100, 100.00004F, 0},
    {"LargeEnoughToShow", 100, 100.00006F, 0.0001F},
    {"TooSmallToShowBelow", 100.00004F, 100, 0},
    {"LargeEnoughToShowBelow", 100.00006F, 100, -0.0001F},
    // Halves go away from zero.
    {"AHalfAbove", 0, 0.00005F, 0.0001F},
    {"AHalfBelow", 0, -0.00005F, -0.0001F},
    {"JustUnderAHalf", 0, 0.0000499F, 0},
    {"AHalfFurtherUp", 0, 1.23455F, 1.2346F},
    // The difference is that of two singles: 10.00005 is one a little below.
    {"AHalfThatTheSinglesDoNotHold", 10, 10.00005F, 0},
    // Float noise of the subtraction goes.
    {"NoiseOfTheSubtraction", 100, 102.5999F, 2.5999F},
};

INSTANTIATE_TEST_SUITE_P(Injection, DriftOf, testing::ValuesIn(kDrifts),
                         [](const auto& row) { return row.param.name; });

TEST(Injection, DriftIsComputedAnewOnEveryRead)
{
    const auto made = injection(50, 51);
    ASSERT_EQ(made->Drift(), 1);
    made->MeasuredValue = 53;
    EXPECT_EQ(made->Drift(), 3);
    made->ReferenceValue = 53;
    EXPECT_EQ(made->Drift(), 0);
}

TEST(Injection, DriftHeedsNeitherTheLimitNorTheAlternative)
{
    const auto made = injection(50, 60, 1);
    made->UsesAPS = true;
    EXPECT_EQ(made->Drift(), 10);
    made->DriftLimit = -999;
    EXPECT_EQ(made->Drift(), 10);
}

TEST(Run, IsMadeToNeedAZeroInjectionAndNothingElse)
{
    const cls7DayAnalyzerCal run;
    EXPECT_TRUE(run.UseZeroCal);
    EXPECT_EQ(run.CalTime, Date{});
    EXPECT_EQ(run.InstrumentSpan, 0);
    EXPECT_FALSE(run.IsOnline);
    EXPECT_FALSE(run.IsUsedIn7Day);
    EXPECT_FALSE(run.ManualCal);
    EXPECT_EQ(run.ZeroCal, nullptr);
    EXPECT_EQ(run.SpanCal, nullptr);
}

class RunVerdict : public testing::TestWithParam<RunCase>
{
};

TEST_P(RunVerdict, LooksAtBothInjections)
{
    const RunCase& row = GetParam();
    cls7DayAnalyzerCal run;
    run.UseZeroCal = row.useZeroCal;
    run.ZeroCal = injectionFor(row.zero);
    run.SpanCal = injectionFor(row.upscale);
    EXPECT_EQ(run.AnalyzerPassed(), row.passed);
    EXPECT_EQ(run.IsCompleteRun(),
              row.zero != Injection::Absent && row.upscale != Injection::Absent);
}

constexpr Injection kAbsent = Injection::Absent;
constexpr Injection kWithin = Injection::Within;
constexpr Injection kMissed = Injection::Missed;

constexpr RunCase kRuns[] = {
    // Both injections have to be within their limits.
    {"BothWithin", true, kWithin, kWithin, true},
    {"ZeroMissed", true, kMissed, kWithin, false},
    {"UpscaleMissed", true, kWithin, kMissed, false},
    {"BothMissed", true, kMissed, kMissed, false},
    // A missing zero injection fails the run unless it is forgiven.
    {"ZeroAbsent", true, kAbsent, kWithin, false},
    {"ZeroAbsentAndForgiven", false, kAbsent, kWithin, true},
    {"ZeroForgivenUpscaleMissed", false, kAbsent, kMissed, false},
    // One that is there is tested all the same.
    {"ZeroNotNeededButMissed", false, kMissed, kWithin, false},
    {"ZeroNotNeededAndWithin", false, kWithin, kWithin, true},
    // Nothing forgives a missing upscale injection.
    {"UpscaleAbsent", true, kWithin, kAbsent, false},
    {"UpscaleAbsentZeroNotNeeded", false, kWithin, kAbsent, false},
    {"BothAbsent", true, kAbsent, kAbsent, false},
    {"BothAbsentZeroNotNeeded", false, kAbsent, kAbsent, false},
};

INSTANTIATE_TEST_SUITE_P(Run, RunVerdict, testing::ValuesIn(kRuns),
                         [](const auto& row) { return row.param.name; });

struct WithinCase {
    const char* what;
    float measured; ///< Of a reference of 50.
    float limit;
    bool within;
};

// 40 CFR 75 App. A 3.1: a drift equal to the limit passes.
TEST(Injection, IsWithinALimitThatItsDriftEquals)
{
    constexpr WithinCase kRows[] = {
        {"on the limit", 52.5F, 2.5F, true},
        {"on the limit below", 47.5F, 2.5F, true},
        {"just over it", 52.5001F, 2.5F, false},
        {"just over it below", 47.4999F, 2.5F, false},
        {"no limit and no drift", 50, 0, true},
        {"no limit and a drift too small to show", 50.00001F, 0, true},
        {"no limit and a drift", 50.0001F, 0, false},
        {"no limit and a drift below", 49.9999F, 0, false},
        {"a limit below zero", 50, -999, false},
    };
    for (const WithinCase& row : kRows) {
        EXPECT_EQ(injection(50, row.measured, row.limit)->isWithinLimit(), row.within) << row.what;
        cls7DayAnalyzerCal run;
        run.ZeroCal = injection(50, row.measured, row.limit);
        run.SpanCal = injection(50, 50, 5);
        EXPECT_EQ(run.AnalyzerPassed(), row.within) << row.what;
    }
}

struct StatusCase {
    const char* what;
    std::vector<bool> runs; ///< Whether each is on-line.
    bool undetermined;
    bool set; ///< What is written behind the runs.
    bool operated;
};

TEST(Day, IsWhatItWasSetToUnlessARunIsOnline)
{
    const StatusCase rows[] = {
        {"no runs, operated", {}, false, true, true},
        {"no runs, idle", {}, false, false, false},
        {"off-line runs, operated", {false, false}, false, true, true},
        {"off-line runs, idle", {false, false}, false, false, false},
        {"an on-line run, operated", {false, true}, false, true, true},
        {"an on-line run, idle", {false, true}, false, false, true},
        {"undetermined, operated", {}, true, true, true},
        {"undetermined, an on-line run", {true}, true, false, true},
    };
    for (const StatusCase& row : rows) {
        clsDaySummary day;
        EXPECT_FALSE(day.IsOpDay());
        day.OpStatusIsUndetermined = row.undetermined;
        for (const bool online : row.runs)
            addRun(day, static_cast<int>(day.CalsInDay().Count()), online);
        const bool hasOnline = std::count(row.runs.begin(), row.runs.end(), true) > 0;
        EXPECT_EQ(day.HasOnlineCals(), hasOnline) << row.what;
        EXPECT_EQ(day.IsOpDay(), hasOnline) << row.what;
        day.SetIsOpDay(row.set);
        EXPECT_EQ(day.IsOpDay(), row.operated) << row.what;
        EXPECT_EQ(day.OpStatusIsUndetermined, row.undetermined) << row.what;
        EXPECT_FALSE(day.DayIsUsedIn7Day()) << row.what;
    }
}

TEST(Day, OfARunThatIsAddedLaterBecomesAnOperatingDay)
{
    clsDaySummary day;
    day.SetIsOpDay(false);
    ASSERT_FALSE(day.IsOpDay());
    addRun(day, 0, true);
    EXPECT_TRUE(day.IsOpDay());
}

TEST(Day, KeepsWhatItsOnlineRunsMadeOfAWrittenStatus)
{
    clsDaySummary day;
    addRun(day, 0, true);
    day.SetIsOpDay(false);
    day.CalsInDay().Item("2024/03/10 08:00")->IsOnline = false;
    EXPECT_FALSE(day.HasOnlineCals());
    EXPECT_TRUE(day.IsOpDay());
}

TEST(Day, IsUsedWhenOneOfItsRunsIs)
{
    clsDaySummary day;
    addRun(day, 0, true);
    addRun(day, 1, false);
    EXPECT_FALSE(day.DayIsUsedIn7Day());
    day.CalsInDay().Item("2024/03/10 08:01")->IsUsedIn7Day = true;
    EXPECT_TRUE(day.DayIsUsedIn7Day());
}

TEST(Day, IsNotOnlineByAUsedRunThatIsNot)
{
    clsDaySummary day;
    addRun(day, 0, false);
    day.CalsInDay().Item("2024/03/10 08:00")->IsUsedIn7Day = true;
    EXPECT_TRUE(day.DayIsUsedIn7Day());
    EXPECT_FALSE(day.HasOnlineCals());
    EXPECT_FALSE(day.IsOpDay());
}

TEST(Day, KeepsItsRunsInTheOrderInWhichTheyCameAndDisplaysNoneAtFirst)
{
    clsDaySummary day;
    EXPECT_FALSE(day.DisplayedCals.isSized());
    addRun(day, 30, true);
    addRun(day, 10, true);
    addRun(day, 20, true);
    EXPECT_THAT(day.CalsInDay().Keys(),
                testing::ElementsAre("2024/03/10 08:30", "2024/03/10 08:10", "2024/03/10 08:20"));
}

} // namespace k7deval::test
