#include "sevenday/DriftTestData.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace k7deval::test
{

namespace
{

// Runs on 9, 10 and 11 March at 8:00, of which the middle one is marked.
class Summary : public testing::Test
{
protected:
    Summary()
    {
        for (const int day : {-1, 0, 1})
            rig_.add(runAt(onDay(day, 8)));
        mark("2024/03/10 08:00", true);
    }

    void mark(const std::string& key, bool marked)
    {
        rig_.test.dictCals->Item(key)->IsUsedIn7Day = marked;
    }

    std::string summary(int good, int failed, bool sixOfSeven, int undetermined = 0)
    {
        rig_.test.lngGoodCals = good;
        rig_.test.lngFailedCals = failed;
        rig_.test.blnSixOfSeven = sixOfSeven;
        rig_.test.lngUndeterminedDays = undetermined;
        rig_.test.BuildSummary(true);
        EXPECT_THAT(rig_.messages->lines(), testing::IsEmpty());
        return rig_.test.strSummary;
    }

    DriftRig rig_;
};

} // namespace

TEST_F(Summary, SaysThatThereAreNoRuns)
{
    rig_.test.dictCals = std::make_shared<RunMap>();
    for (const bool showSummary : {false, true}) {
        rig_.test.strSummary = "of the evaluation before";
        rig_.test.lngUndeterminedDays = 2;
        rig_.test.BuildSummary(showSummary);
        EXPECT_EQ(rig_.test.strSummary, "There are no calibrations in selected time range.");
    }
}

TEST_F(Summary, IsEmptyWhenItIsNotToBeShown)
{
    for (const int good : {3, 7}) {
        rig_.test.strSummary = "of the evaluation before";
        rig_.test.lngGoodCals = good;
        rig_.test.lngUndeterminedDays = 1;
        rig_.test.BuildSummary(false);
        EXPECT_EQ(rig_.test.strSummary, "");
    }
}

struct SummaryCase {
    const char* name;
    int good;
    int failed;
    bool sixOfSeven;
    int undetermined;
    const char* text;
};

void PrintTo(const SummaryCase& row, std::ostream* out)
{
    *out << row.good << " good, " << row.failed << " failed";
}

class SummaryOf : public Summary, public testing::WithParamInterface<SummaryCase>
{
};

TEST_P(SummaryOf, SaysHowTheTestStands)
{
    const SummaryCase& row = GetParam();
    EXPECT_EQ(summary(row.good, row.failed, row.sixOfSeven, row.undetermined), row.text);
}

constexpr const char* kTestPassed = "The 7-Day Drift Test has been passed.";

constexpr SummaryCase kSummaries[] = {
    {"Passed", 7, 0, false, 0, kTestPassed},
    {"PassedWithTheOption", 7, 0, true, 0, kTestPassed},
    {"PassedWithTheAllowedFailure", 6, 1, true, 0, kTestPassed},
    {"PassedThoughTheOptionWasTakenBack", 6, 1, false, 0, kTestPassed},
    {"RunsAreMissing", 3, 0, false, 0,
     "Starting on 3/10/2024 there are 3 on-line cal(s) counted in the 7-Day Drift "
     "Test.\r\n4 more on-line daily cal(s) are needed to pass the Drift Test."},
    {"AFailureIsAllowed", 3, 0, true, 0,
     "Starting on 3/10/2024 there are 3 on-line cal(s) counted in the 7-Day Drift "
     "Test.\r\n4 more on-line daily cal(s) are needed to pass the Drift Test where 1 of "
     "remaining cals is allowed to fail."},
    {"AFailureWasTaken", 3, 1, true, 0,
     "Starting on 3/10/2024 there are 3 on-line cal(s) and 1 on-line failed cal counted "
     "in the 7-Day Drift Test.\r\n3 more on-line daily cal(s) are needed to pass the "
     "Drift Test."},
    // The option was taken back behind the evaluation: the failure is named, but makes up for none.
    {"AFailureCountsForNothingWithoutTheOption", 3, 1, false, 0,
     "Starting on 3/10/2024 there are 3 on-line cal(s) and 1 on-line failed cal counted "
     "in the 7-Day Drift Test.\r\n4 more on-line daily cal(s) are needed to pass the "
     "Drift Test."},
    // The plural stays in brackets for one.
    {"OneRunIsMissing", 6, 0, false, 0,
     "Starting on 3/10/2024 there are 6 on-line cal(s) counted in the 7-Day Drift "
     "Test.\r\n1 more on-line daily cal(s) are needed to pass the Drift Test."},
    {"OneRunIsCounted", 1, 0, false, 0,
     "Starting on 3/10/2024 there are 1 on-line cal(s) counted in the 7-Day Drift "
     "Test.\r\n6 more on-line daily cal(s) are needed to pass the Drift Test."},
    {"OneDayIsUndetermined", 7, 0, false, 1,
     "The 7-Day Drift Test has been passed.\r\nUnit operating status cannot be determined "
     "for 1 day in selected timeframe prior to completion of the test. Test results may "
     "be inaccurate."},
    {"SeveralDaysAreUndetermined", 3, 0, false, 2,
     "Starting on 3/10/2024 there are 3 on-line cal(s) counted in the 7-Day Drift "
     "Test.\r\n4 more on-line daily cal(s) are needed to pass the Drift Test.\r\nUnit "
     "operating status cannot be determined for 2 days in selected timeframe prior to "
     "completion of the test. Test results may be inaccurate."},
};

INSTANTIATE_TEST_SUITE_P(, SummaryOf, testing::ValuesIn(kSummaries),
                         [](const auto& row) { return row.param.name; });

TEST_F(Summary, StartsOnTheEarliestMarkedRun)
{
    mark("2024/03/11 08:00", true);
    EXPECT_THAT(summary(2, 0, false), testing::StartsWith("Starting on 3/10/2024 there"));
    mark("2024/03/09 08:00", true);
    EXPECT_THAT(summary(3, 0, false), testing::StartsWith("Starting on 3/9/2024 there"));
}

TEST_F(Summary, StartsOnTheLastRunWhenNoneIsMarked)
{
    mark("2024/03/10 08:00", false);
    EXPECT_EQ(summary(0, 0, false),
              "Starting on 3/11/2024 there are 0 on-line cal(s) counted in the 7-Day Drift "
              "Test.\r\n7 more on-line daily cal(s) are needed to pass the Drift Test.");
}

TEST_F(Summary, WritesTheDateAsTheRegionDoes)
{
    rig_.regional = regionalSettings("de-DE");
    EXPECT_THAT(summary(3, 0, false), testing::StartsWith("Starting on 10.03.2024 there are 3 "));
}

// A whole test, as daysOf reads it, evaluated and summed up.
struct TestSummaryCase {
    const char* name;
    const char* days;
    bool sixOfSeven;
    const char* text;
};

TEST(SummaryOfATest, GoesByItsEvaluation)
{
    constexpr TestSummaryCase kRows[] = {
        {"it starts on the first day of the test", "PPFNPPP", false,
         "Starting on 3/14/2024 there are 3 on-line cal(s) counted in the 7-Day Drift "
         "Test.\r\n4 more on-line daily cal(s) are needed to pass the Drift Test."},
        {"it starts on the last run behind a restart on the last day", "PPPF", false,
         "Starting on 3/13/2024 there are 0 on-line cal(s) counted in the 7-Day Drift "
         "Test.\r\n7 more on-line daily cal(s) are needed to pass the Drift Test."},
        // The count is kept over the second failure, so the test is passed with five marks.
        {"passed by the count and not by the marks", "PPFPFPPP", true, kTestPassed},
        {"an undetermined day ahead of its end is named", "PPPUPPPP", false,
         "The 7-Day Drift Test has been passed.\r\nUnit operating status cannot be determined "
         "for 1 day in selected timeframe prior to completion of the test. Test results may "
         "be inaccurate."},
        {"undetermined days behind its end are not", "PPPPPPPUU", false, kTestPassed},
    };
    for (const TestSummaryCase& row : kRows) {
        DriftRig rig;
        setDays(rig, daysOf(row.days));
        rig.test.blnSixOfSeven = row.sixOfSeven;
        rig.test.EvaluateDriftTest();
        rig.test.BuildSummary(true);
        EXPECT_EQ(rig.test.strSummary, row.text) << row.name;
    }
}

} // namespace k7deval::test
