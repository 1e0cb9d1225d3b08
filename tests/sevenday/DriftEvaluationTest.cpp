#include "sevenday/DriftTestData.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <span>
#include <string>

namespace k7deval::test
{

namespace
{

// The days, as daysOf reads them, and what the evaluation finds. A fail day is an index from 0, or
// kNone.
struct EvaluationCase {
    const char* name;
    const char* days;
    int good;
    int failed;
    int lastFail;
    int prevFail;
    const char* marks;
    int undetermined = 0;
};

constexpr int kNone = -1;

void expectOutcome(const EvaluationCase& row, model::Options options)
{
    DriftRig rig;
    const std::vector<model::Day> days = daysOf(row.days);
    setDays(rig, days);
    rig.test.blnSixOfSeven = options.sixOfSeven;
    rig.test.blnIncludeManualCals = options.includeManual;

    rig.test.EvaluateDriftTest();

    const auto past = static_cast<int>(days.size());
    const model::Outcome found = outcomeOf(rig.test);
    EXPECT_EQ(marksText(found, days.size()), row.marks);
    EXPECT_EQ(found.goodCals, row.good);
    EXPECT_EQ(found.failedCals, row.failed);
    EXPECT_EQ(found.lastFailDay, row.lastFail == kNone ? past : row.lastFail);
    EXPECT_EQ(found.prevFailDay, row.prevFail == kNone ? past : row.prevFail);
    EXPECT_EQ(found.undeterminedDays, row.undetermined);
    EXPECT_THAT(rig.messages->lines(), testing::IsEmpty());
}

constexpr EvaluationCase kAllSevenRequired[] = {
    // Seven good days in a row, whatever lies around them.
    {"SevenGoodDaysPass", "PPPPPPP", 7, 0, kNone, kNone, "1111111"},
    {"SixGoodDaysWait", "PPPPPP", 6, 0, kNone, kNone, "111111"},
    {"TheEighthGoodDayIsNotLookedAt", "PPPPPPPP", 7, 0, kNone, kNone, "1111111."},
    {"AFailureBehindTheTestIsNotLookedAt", "PPPPPPPF", 7, 0, kNone, kNone, "1111111."},
    {"AMissedDayBehindTheTestIsNotLookedAt", "PPPPPPPM", 7, 0, kNone, kNone, "1111111."},
    // Days without operation add nothing and break nothing.
    {"IdleDaysDoNotBreakTheSequence", "PPNNPPPPP", 7, 0, kNone, kNone, "11..11111"},
    {"IdleDaysAroundAndBetween", "NPNPNPNPNPNPNPN", 7, 0, kNone, kNone, ".1.1.1.1.1.1.1."},
    {"IdleDaysOnly", "NNN", 0, 0, kNone, kNone, "..."},
    // A failed day starts the test anew behind it; the marks up to it go.
    {"AFailureRestarts", "PPFPPPPPPP", 7, 0, 2, 2, "...1111111"},
    {"AFailureOnTheFirstDay", "FPPPPPPP", 7, 0, 0, 0, ".1111111"},
    {"AFailureOnTheSeventhDayLeavesNothing", "PPPPPPF", 0, 0, 6, 6, "......."},
    {"TheLastOfSeveralFailuresCounts", "FPPFPFPP", 2, 0, 5, 5, "......11"},
    {"FailuresOnly", "FFF", 0, 0, 2, 2, "..."},
    // So does a day of operation without a run.
    {"AMissedDayRestarts", "PPMP", 1, 0, 2, 2, "...1"},
    {"AMissedDayBehindAFailure", "PFPMPP", 2, 0, 3, 3, "....11"},
    {"AMissedDayAtTheEndLeavesNothing", "PPPPPPM", 0, 0, 6, 6, "......."},
    {"TheTestFitsBehindAMissedDay", "PMPPPNPPPPF", 7, 0, 1, 1, "..111.1111."},
    // Days of undetermined status count while the scan lasts and the unit did not operate.
    {"UndeterminedDaysUpToTheEndOfTheTest", "PUPUPPPPPU", 7, 0, kNone, kNone, "1.1.11111.", 2},
    {"UndeterminedDaysOnly", "UUU", 0, 0, kNone, kNone, "...", 3},
    {"AnOnlineRunMakesAnOperatingDay", "P ?A+ ?a+ P", 3, 0, kNone, kNone, "11.1", 1},
    {"AnHourWithoutDataLeavesAnOperatingDay", "QQUP", 3, 0, kNone, kNone, "11.1", 1},
    {"AnOperatedHourMakesAnOperatingDay", "PWU", 0, 0, 1, 1, "...", 1},
    {"UndeterminedDaysAheadOfARestartStayCounted", "UUPFU", 0, 0, 3, 3, ".....", 3},
};

constexpr EvaluationCase kSixOfSeven[] = {
    // Without a failure nothing changes.
    {"SevenGoodDaysPass", "PPPPPPP", 7, 0, kNone, kNone, "1111111"},
    {"SixGoodDaysWait", "PPPPPP", 6, 0, kNone, kNone, "111111"},
    // The first failure takes a place in the test and cuts nothing.
    {"OneFailureIsAllowed", "PPFPPPP", 6, 1, 2, kNone, "1111111"},
    {"TheFailureMayComeFirst", "FPPPPPP", 6, 1, 0, kNone, "1111111"},
    {"TheFailureMayComeLast", "PPPPPPF", 6, 1, 6, kNone, "1111111"},
    {"IdleDaysAroundTheFailure", "PPNFNPPPP", 6, 1, 3, kNone, "11.1.1111"},
    {"NoDayBehindTheSeventhIsLookedAt", "PPFPPPPFM", 6, 1, 2, kNone, "1111111.."},
    // The second failure keeps the count of the good runs ahead of the first, but not their marks.
    {"TheSecondFailureKeepsTheCount", "PPFPFPPP", 6, 1, 4, 2, "...11111"},
    {"TwoFailuresInARow", "PFFPPPPPP", 6, 1, 2, 1, "..111111."},
    {"TwoFailuresOnly", "FF", 0, 1, 1, 0, ".1"},
    {"TheSecondFailureEndsNoTest", "PPPPPFF", 5, 1, 6, 5, "......1"},
    // From the third one on the good runs behind the failure before it are counted anew.
    {"TheThirdFailureRecounts", "PFPFPF", 1, 1, 5, 3, "....11"},
    {"ThreeFailuresInARow", "PFFF", 0, 1, 3, 2, "...1"},
    {"TheThirdFailureRecountsSeveral", "FFPNPPF", 3, 1, 6, 1, "..1.111"},
    {"TheFourthFailureRecounts", "FPFPPFPPPFP", 4, 1, 9, 5, "......11111"},
    {"TheTestIsPassedBehindTheThirdFailure", "FFPPFPPPP", 6, 1, 4, 1, "..1111111"},
    // A missed day restarts the count of good runs; a failure taken before it stays counted.
    {"AMissedDayRestarts", "PPMP", 1, 0, 2, 2, "...1"},
    {"ARestartKeepsTheAllowedFailure", "PFMPPPPPP", 6, 1, 2, 2, "...111111"},
    {"ARestartAtTheEndLeavesTheFailureCounted", "FPPPPPM", 0, 1, 6, 6, "......."},
    // A failure behind a restart counts as a later one.
    {"AFailureBehindARestartRecounts", "MPFP", 2, 1, 2, 0, ".111"},
    {"AFailureRightBehindARestart", "PPMF", 0, 1, 3, 2, "...1"},
    {"TwoFailuresBehindARestart", "MPFPFP", 2, 1, 4, 2, "...111"},
    {"ARestartBetweenTwoFailures", "PFPMPPFP", 3, 1, 6, 3, "....1111"},
    {"ATestPassedWithAFailureBehindARestart", "PPMPPPFPPP", 6, 1, 6, 2, "...1111111"},
    // Days of undetermined status.
    {"UndeterminedDaysUpToTheEndOfTheTest", "UPPFUPPPPU", 6, 1, 3, kNone, ".111.1111.", 2},
};

constexpr EvaluationCase kManualIncluded[] = {
    // A day counts once, with its last automatic run or else its first.
    {"TheLaterOfTwoAutomaticRuns", "A+A+", 1, 0, kNone, kNone, "2"},
    {"TheLastOfThreeAutomaticRuns", "A+A+A+", 1, 0, kNone, kNone, "3"},
    {"AnAutomaticRunAheadOfAManualOne", "A+M+", 1, 0, kNone, kNone, "1"},
    {"AManualRunAheadOfAnAutomaticOne", "M+A+", 1, 0, kNone, kNone, "2"},
    {"TheFirstOfTwoManualRuns", "M+M+", 1, 0, kNone, kNone, "1"},
    {"AnAutomaticRunAmongManualOnes", "M+M+A+M+", 1, 0, kNone, kNone, "3"},
    {"AutomaticRunsAroundAManualOne", "A+M+A+", 1, 0, kNone, kNone, "3"},
    {"ADayOfManualRunsCounts", "P M+ P", 3, 0, kNone, kNone, "111"},
    // Off-line runs are neither counted nor do they fail a day.
    {"AnOfflineRunIsNotPicked", "A+a+", 1, 0, kNone, kNone, "1"},
    {"AnOfflineRunFailsNothing", "a-A+m-", 1, 0, kNone, kNone, "2"},
    {"OfflineRunsWithoutOperation", "P a+m- P", 2, 0, kNone, kNone, "1.1"},
    {"OfflineRunsOnADayOfOperation", "P !a+ P", 1, 0, 1, 1, "..1"},
    // One failing run fails the day, wherever it stands.
    {"AGoodRunBehindAFailedOne", "A-A+", 0, 0, 0, 0, "."},
    {"AGoodRunAheadOfAFailedOne", "A+A-", 0, 0, 0, 0, "."},
    {"AFailedManualRun", "P A+M- P", 1, 0, 1, 1, "..1"},
    // An on-line run makes a day of operation of one whose hours have none.
    {"AnOnlineRunWithoutOperatingHours", "A+ N A+", 2, 0, kNone, kNone, "1.1"},
};

constexpr EvaluationCase kManualExcluded[] = {
    {"AnAutomaticRunAheadOfAManualOne", "A+M+", 1, 0, kNone, kNone, "1"},
    {"AManualRunAheadOfAnAutomaticOne", "M+A+", 1, 0, kNone, kNone, "2"},
    // A day of manual runs only is neither counted nor missed.
    {"ADayOfManualRunsOnly", "P M+M+ P", 2, 0, kNone, kNone, "1.1"},
    {"AnOperatingDayOfManualRunsOnly", "P !M+ P", 2, 0, kNone, kNone, "1.1"},
    // An excluded run that fails still fails its day.
    {"AFailedManualRun", "P M- P", 1, 0, 1, 1, "..1"},
    {"AFailedManualRunBesideAGoodAutomaticOne", "P A+M- P", 1, 0, 1, 1, "..1"},
};

constexpr EvaluationCase kManualExcludedSixOfSeven[] = {
    // The allowed failure is the day's first eligible run, whether or not it is the failed one.
    {"AGoodRunStandsForTheFailure", "A+A-", 0, 1, 0, kNone, "1"},
    {"AnOfflineRunDoesNot", "a+A-", 0, 1, 0, kNone, "2"},
    {"AnExcludedRunDoesNot", "M+A-", 0, 1, 0, kNone, "2"},
    {"AGoodRunStandsForAnExcludedFailedOne", "M-A+A+", 0, 1, 0, kNone, "2"},
    // A good run that stands for a failure is not recounted: neither on the day of the failure nor
    // on the fail day before it.
    {"AGoodRunOfTheThirdFailureIsNotRecounted", "F F P A+A-", 1, 1, 3, 1, "..11"},
    {"AGoodRunOfTheFailureBeforeIsNotRecounted", "F F P A+A- P F", 1, 1, 5, 3, "....11"},
    // A failure without an eligible run is recorded, and marks and counts nothing.
    {"AnExcludedFailureMarksNothing", "P M- P", 2, 0, 1, kNone, "1.1"},
    {"SevenGoodRunsAroundAnExcludedFailure", "PPP M- PPPP", 7, 0, 3, kNone, "111.1111"},
    {"AnExcludedFailureAsTheSecond", "P F P M- P", 3, 1, 3, 1, "..1.1"},
    {"AnExcludedFailureAsTheFirstOfTwo", "P M- P F P", 3, 1, 3, 1, "..111"},
    {"AnExcludedFailureAsTheThird", "F F P M- P", 2, 1, 3, 1, "..1.1"},
};

constexpr EvaluationCase kManualIncludedSixOfSeven[] = {
    {"TheFirstRunStandsForTheFailureAlsoWhenItIsManual", "M+A-", 0, 1, 0, kNone, "1"},
};

struct EvaluationGroup {
    const char* name;
    model::Options options;
    std::span<const EvaluationCase> rows;
};

constexpr EvaluationGroup kEvaluations[] = {
    {"all seven required", {false, false}, kAllSevenRequired},
    {"six of seven", {true, false}, kSixOfSeven},
    {"manual included", {false, true}, kManualIncluded},
    {"manual excluded", {false, false}, kManualExcluded},
    {"manual excluded, six of seven", {true, false}, kManualExcludedSixOfSeven},
    {"manual included, six of seven", {true, true}, kManualIncludedSixOfSeven},
};

} // namespace

// 40 CFR 75 App. A 6.3.1: seven operating days in a row, each with a run within its limits.
TEST(Evaluation, FindsTheTestInThePatternOfDays)
{
    for (const EvaluationGroup& group : kEvaluations) {
        for (const EvaluationCase& row : group.rows) {
            SCOPED_TRACE(std::string(group.name) + ": " + row.name);
            expectOutcome(row, group.options);
        }
    }
}

TEST(Evaluation, AnEmptyIntervalIsNoScan)
{
    DriftRig rig;
    rig.setInterval(0);
    rig.test.dictCals = std::make_shared<RunMap>();
    rig.test.lngGoodCals = 5;
    rig.test.lngFailedCals = 1;
    rig.test.lngUndeterminedDays = 3;

    rig.test.EvaluateDriftTest();

    EXPECT_TRUE(rig.test.dictDays.isEmpty());
    EXPECT_EQ(outcomeOf(rig.test), model::Outcome());
    EXPECT_THAT(rig.messages->lines(), testing::IsEmpty());
}

TEST(Evaluation, AMarkThatTheOptionsNoLongerAllowGoes)
{
    DriftRig rig;
    setDays(rig, daysOf("M+ P"));
    rig.test.blnIncludeManualCals = true;
    rig.test.EvaluateDriftTest();
    ASSERT_EQ(marksText(outcomeOf(rig.test), 2), "11");

    rig.test.blnIncludeManualCals = false;
    rig.test.EvaluateDriftTest();

    EXPECT_EQ(marksText(outcomeOf(rig.test), 2), ".1");
    EXPECT_EQ(rig.test.lngGoodCals, 1);
}

TEST(Evaluation, ARunMadeWithinTheIntervalIsPlacedUnderItsDayAndMinute)
{
    DriftRig rig;
    setDays(rig, daysOf("P A+a+"));
    rig.test.EvaluateDriftTest();
    const RunMap& runs = rig.test.dictDays.Item("2024/03/11")->CalsInDay();
    EXPECT_THAT(runs.Keys(), testing::ElementsAre("2024/03/11 06:00", "2024/03/11 06:01"));
    EXPECT_EQ(runs.Item("2024/03/11 06:01"), rig.test.dictCals->Item("2024/03/11 06:01"));
}

TEST(Evaluation, CountersOfAnEarlierEvaluationGo)
{
    DriftRig rig;
    setDays(rig, daysOf("PPPPPPPF"));
    rig.test.EvaluateDriftTest();
    ASSERT_EQ(rig.test.lngGoodCals, 7);

    // The first day fails now, so the scan goes on to the last one, which restarts it.
    rig.test.dictCals->Item("2024/03/10 06:00")->SpanCal->MeasuredValue = 50;
    rig.test.EvaluateDriftTest();

    const model::Outcome found = outcomeOf(rig.test);
    EXPECT_EQ(found.goodCals, 0);
    EXPECT_EQ(marksText(found, 8), "........");
    EXPECT_EQ(found.lastFailDay, 7);
}

TEST(Evaluation, ARunOutsideTheIntervalGetsAnUndeterminedDayAtTheEnd)
{
    DriftRig rig;
    std::vector<model::Day> days = daysOf("PP A+ a+");
    days[2].date = -3;
    days[3].date = -2;
    setDays(rig, days, 2);

    rig.test.EvaluateDriftTest();

    EXPECT_THAT(rig.test.dictDays.Keys(),
                testing::ElementsAre("2024/03/10", "2024/03/11", "2024/03/07", "2024/03/08"));
    const clsDaySummary& added = *rig.test.dictDays.Item("2024/03/07");
    EXPECT_EQ(added.TStamp, Date{});
    EXPECT_TRUE(added.OpStatusIsUndetermined);
    EXPECT_THAT(added.CalsInDay().Keys(), testing::ElementsAre("2024/03/07 06:00"));
    EXPECT_EQ(rig.test.lngGoodCals, 3);
    // The day of the on-line run is an operating day, the other one is not.
    EXPECT_EQ(rig.test.lngUndeterminedDays, 1);
}

// Marks go by the calendar, not by the place of the day in the list.
TEST(Evaluation, ACutOnADayAtTheEndOfTheListTakesTheEarlierDatesOnly)
{
    DriftRig rig;
    std::vector<model::Day> days = daysOf("PP A+ A-");
    days[2].date = -3;
    days[3].date = -2;
    setDays(rig, days, 2);

    rig.test.EvaluateDriftTest();

    EXPECT_EQ(marksText(outcomeOf(rig.test), 4), "11..");
    EXPECT_EQ(rig.test.lngGoodCals, 0);
    EXPECT_EQ(rig.test.lngPrevFailDay, 3);
}

TEST(Evaluation, ALimitChangedBetweenEvaluationsChangesTheVerdict)
{
    DriftRig rig;
    setDays(rig, daysOf("PF"));
    rig.test.EvaluateDriftTest();
    ASSERT_EQ(rig.test.lngLastFailDay, 1);

    // The failed run reads 2 below its reference, which the new limit just allows.
    rig.test.dictCals->Item("2024/03/11 06:00")->SpanCal->DriftLimit = 2;
    rig.test.EvaluateDriftTest();

    EXPECT_EQ(rig.test.lngLastFailDay, 2);
    EXPECT_EQ(rig.test.lngGoodCals, 2);
}

} // namespace k7deval::test
