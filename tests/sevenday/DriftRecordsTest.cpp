#include "sevenday/DriftTestData.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

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

TEST(Injection, IsWithinALimitThatItsDriftEquals)
{
    EXPECT_TRUE(injection(50, 52.5F, 2.5F)->isWithinLimit());
    EXPECT_TRUE(injection(50, 47.5F, 2.5F)->isWithinLimit());
    EXPECT_FALSE(injection(50, 52.5001F, 2.5F)->isWithinLimit());
    EXPECT_FALSE(injection(50, 47.4999F, 2.5F)->isWithinLimit());
}

TEST(Injection, CanNotPassTheLimitBelowZero)
{
    EXPECT_FALSE(injection(0, 0, -999)->isWithinLimit());
    cls7DayAnalyzerCal run;
    run.ZeroCal = injection(0, 0, -999);
    run.SpanCal = injection(50, 50, 5);
    EXPECT_FALSE(run.AnalyzerPassed());
}

TEST(Injection, WithoutALimitPassesOnlyWithNoDriftAtAll)
{
    EXPECT_TRUE(injection(50, 50, 0)->isWithinLimit());
    EXPECT_TRUE(injection(50, 50.00001F, 0)->isWithinLimit());
    EXPECT_FALSE(injection(50, 50.0001F, 0)->isWithinLimit());
    EXPECT_FALSE(injection(50, 49.9999F, 0)->isWithinLimit());
}

TEST(Day, WithoutRunsIsWhatItWasSetTo)
{
    clsDaySummary day;
    EXPECT_FALSE(day.HasOnlineCals());
    EXPECT_FALSE(day.DayIsUsedIn7Day());
    EXPECT_FALSE(day.IsOpDay());
    day.SetIsOpDay(true);
    EXPECT_TRUE(day.IsOpDay());
    day.SetIsOpDay(false);
    EXPECT_FALSE(day.IsOpDay());
}

TEST(Day, WithAnOnlineRunIsAnOperatingDayWhateverIsSet)
{
    clsDaySummary day;
    addRun(day, 0, false);
    addRun(day, 1, true);
    EXPECT_TRUE(day.HasOnlineCals());
    EXPECT_TRUE(day.IsOpDay());
    day.SetIsOpDay(false);
    EXPECT_TRUE(day.IsOpDay());
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

TEST(Day, WithOfflineRunsOnlyIsWhatItWasSetTo)
{
    clsDaySummary day;
    addRun(day, 0, false);
    addRun(day, 1, false);
    EXPECT_FALSE(day.HasOnlineCals());
    EXPECT_FALSE(day.IsOpDay());
    day.SetIsOpDay(true);
    EXPECT_TRUE(day.IsOpDay());
}

TEST(Day, OfUndeterminedStatusStaysSoWhenItOperated)
{
    clsDaySummary day;
    day.OpStatusIsUndetermined = true;
    day.SetIsOpDay(true);
    EXPECT_TRUE(day.OpStatusIsUndetermined);
    addRun(day, 0, true);
    day.SetIsOpDay(false);
    EXPECT_TRUE(day.OpStatusIsUndetermined);
}

TEST(Day, OfDeterminedStatusStaysSoWhenItOperated)
{
    clsDaySummary day;
    day.SetIsOpDay(true);
    EXPECT_FALSE(day.OpStatusIsUndetermined);
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

TEST(Day, KeepsItsRunsInTheOrderInWhichTheyCame)
{
    clsDaySummary day;
    addRun(day, 30, true);
    addRun(day, 10, true);
    addRun(day, 20, true);
    EXPECT_THAT(day.CalsInDay().Keys(),
                testing::ElementsAre("2024/03/10 08:30", "2024/03/10 08:10", "2024/03/10 08:20"));
}

TEST(Day, HasNoDisplayedRunsAtFirst)
{
    const clsDaySummary day;
    EXPECT_FALSE(day.DisplayedCals.isSized());
}

} // namespace k7deval::test
