#include "sevenday/DriftTestData.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <utility>

namespace k7deval::test
{

namespace
{

// The places of a day's displayed runs among all of its runs, from 1: "10: 1 2" is the first and
// the second of 10 March.
std::string shownOf(const clsDaySummary& day, const std::string& date)
{
    std::string text = date.substr(8) + ":";
    for (const auto& shown : day.DisplayedCals.items()) {
        int place = 1;
        for (const auto& [key, run] : day.CalsInDay()) {
            if (run == shown)
                text += ' ' + std::to_string(place);
            ++place;
        }
    }
    return text;
}

class Display : public testing::Test
{
protected:
    void evaluate(std::string_view days)
    {
        setDays(rig_, daysOf(days));
        rig_.test.EvaluateDriftTest();
    }
    void mark(const std::string& key) { rig_.test.dictCals->Item(key)->IsUsedIn7Day = true; }

    [[nodiscard]] std::string shownText() const
    {
        EXPECT_THAT(rig_.messages->lines(), testing::IsEmpty());
        std::string text;
        for (const auto& shownDay : rig_.test.objDaysToDisplay.items()) {
            for (const auto& [key, day] : rig_.test.dictDays) {
                if (day == shownDay)
                    text += (text.empty() ? "" : ", ") + shownOf(*day, key);
            }
        }
        return text;
    }

    DriftRig rig_;
};

} // namespace

namespace
{

using Show = void (DriftTest::*)();

constexpr Show kOfTest = &DriftTest::ShowDriftCals;
constexpr Show kUpToEnd = &DriftTest::ShowCalsWithinDrift;
constexpr Show kOfInterval = &DriftTest::ShowIntervalCals;

// The days, as daysOf reads them, and the days and runs on show.
struct DisplayCase {
    const char* name;
    Show show;
    const char* days;
    const char* shown;
    bool sixOfSeven = false;
};

void PrintTo(const DisplayCase& row, std::ostream* out)
{
    *out << row.days;
}

} // namespace

class DisplayOf : public Display, public testing::WithParamInterface<DisplayCase>
{
};

TEST_P(DisplayOf, ShowsItsDaysAndRuns)
{
    rig_.test.blnSixOfSeven = GetParam().sixOfSeven;
    evaluate(GetParam().days);
    (rig_.test.*GetParam().show)();
    EXPECT_EQ(shownText(), GetParam().shown);
}

constexpr DisplayCase kDisplays[] = {
    // Of the test alone: the marked runs of the days that have one.
    {"DriftShowsMarkedRuns", kOfTest, "P A+A+ N a+A+ F P A+a-A+M+ M+", "15: 1, 16: 3"},
    {"DriftShowsTheAllowedFailure", kOfTest, "P A+A- P", "10: 1, 11: 1, 12: 1", true},
    // Up to the end of the test: all runs of its days and of those ahead of it.
    {"WithinShowsAllRunsOfADay", kUpToEnd, "A+a-A+ P", "10: 1 2 3, 11: 1"},
    {"WithinLeavesOutIdleDaysWithoutRuns", kUpToEnd, "N P U a+ N P", "11: 1, 13: 1, 15: 1"},
    {"WithinShowsAMissedDayWithoutRuns", kUpToEnd, "PMP", "10: 1, 11:, 12: 1"},
    {"WithinShowsTheDaysAheadOfTheTest", kUpToEnd, "FPF P", "10: 1, 11: 1, 12: 1, 13: 1"},
    {"WithinStopsBehindTheDayOfTheSeventhRun", kUpToEnd, "PPPPPPPPM",
     "10: 1, 11: 1, 12: 1, 13: 1, 14: 1, 15: 1, 16: 1"},
    {"WithinShowsTheRunsBehindTheSeventhOfItsDay", kUpToEnd, "PPPPPP a+A+M+a+ P",
     "10: 1, 11: 1, 12: 1, 13: 1, 14: 1, 15: 1, 16: 1 2 3 4"},
    {"WithinGoesOnToTheEndWithSixRuns", kUpToEnd, "PPPPPP N a+",
     "10: 1, 11: 1, 12: 1, 13: 1, 14: 1, 15: 1, 17: 1"},
    // Five marks stand for a test that counts seven, so nothing ends the display.
    {"WithinGoesOnWithFewerMarksThanTheTestCounts", kUpToEnd, "PPFPFPPPP",
     "10: 1, 11: 1, 12: 1, 13: 1, 14: 1, 15: 1, 16: 1, 17: 1, 18: 1", true},
    // The interval: whatever is not idle.
    {"IntervalShowsAllRunsOfAllDaysThatAreNotIdle", kOfInterval, "P N A+a-M- M U a+ PPPPPPPP",
     "10: 1, 12: 1 2 3, 13:, 15: 1, 16: 1, 17: 1, 18: 1, 19: 1, 20: 1, 21: 1, 22: 1, 23: 1"},
};

INSTANTIATE_TEST_SUITE_P(, DisplayOf, testing::ValuesIn(kDisplays),
                         [](const auto& row) { return row.param.name; });

TEST_F(Display, OfTheTestShowsAllMarkedRunsOfADayInOrder)
{
    evaluate("A+a+A+");
    mark("2024/03/10 06:00");
    rig_.test.ShowDriftCals();
    EXPECT_EQ(shownText(), "10: 1 3");
}

TEST_F(Display, OfAMissedDayHasRunsThatWereNeverSized)
{
    evaluate("PMP");
    rig_.test.ShowCalsWithinDrift();
    EXPECT_FALSE(rig_.test.objDaysToDisplay[1]->DisplayedCals.isSized());
}

// With nothing to show the days of the evaluation before stay.
TEST_F(Display, KeepsTheDaysOfTheEvaluationBeforeWhenItShowsNone)
{
    for (const auto& [show, days] : {std::pair(kOfTest, "PF"), std::pair(kUpToEnd, "NN")}) {
        evaluate("PP");
        (rig_.test.*show)();
        const auto before = rig_.test.objDaysToDisplay.items();
        ASSERT_EQ(before.size(), 2U);
        evaluate(days);
        (rig_.test.*show)();
        EXPECT_EQ(rig_.test.objDaysToDisplay.items(), before) << days;
    }
    rig_.test.dictDays = DayMap();
    const auto before = rig_.test.objDaysToDisplay.items();
    rig_.test.ShowIntervalCals();
    EXPECT_EQ(rig_.test.objDaysToDisplay.items(), before);
}

TEST_F(Display, LeavesAnArrayThatWasNeverSized)
{
    evaluate("N");
    rig_.test.ShowDriftCals();
    EXPECT_FALSE(rig_.test.objDaysToDisplay.isSized());
}

TEST_F(Display, CutsTheDaysToTheNewLength)
{
    struct Cut {
        Show show;
        const char* days;
        const char* shown;
    };
    for (const Cut& row : {Cut{kOfTest, "PPFP", "13: 1"}, Cut{kOfInterval, "NPN", "11: 1"}}) {
        evaluate("PPPP");
        (rig_.test.*row.show)();
        ASSERT_EQ(rig_.test.objDaysToDisplay.items().size(), 4U);
        evaluate(row.days);
        (rig_.test.*row.show)();
        EXPECT_EQ(rig_.test.objDaysToDisplay.items().size(), 1U);
        EXPECT_EQ(shownText(), row.shown);
    }
}

TEST_F(Display, CutsTheRunsOfADayToTheNewLength)
{
    evaluate("A+a+A+");
    rig_.test.ShowIntervalCals();
    ASSERT_EQ(shownText(), "10: 1 2 3");
    rig_.test.ShowDriftCals();
    EXPECT_EQ(shownText(), "10: 3");
}

// Two marked runs in the day of the seventh: the eighth is not shown, and no day ends the display.
TEST_F(Display, UpToTheEndHidesRunsFromAnEighthMarkedOneOn)
{
    evaluate("PPPPPP A+A+ P N P");
    mark("2024/03/16 06:00");
    mark("2024/03/16 06:01");
    rig_.test.ShowCalsWithinDrift();
    EXPECT_EQ(shownText(), "10: 1, 11: 1, 12: 1, 13: 1, 14: 1, 15: 1, 16: 1, 17:, 19:");
}

TEST_F(Display, UpToTheEndKeepsTheRunsOfADayThatItShowsNoneOf)
{
    evaluate("PPPPPP A+A+ P");
    mark("2024/03/16 06:00");
    mark("2024/03/16 06:01");
    rig_.test.ShowIntervalCals();
    rig_.test.ShowCalsWithinDrift();
    EXPECT_EQ(shownText(), "10: 1, 11: 1, 12: 1, 13: 1, 14: 1, 15: 1, 16: 1, 17: 1");
}

TEST_F(Display, OfTheIntervalShowsADayOutsideOfIt)
{
    std::vector<model::Day> days = daysOf("P A+");
    days[1].date = -1;
    setDays(rig_, days, 1);
    rig_.test.EvaluateDriftTest();
    rig_.test.ShowIntervalCals();
    EXPECT_EQ(shownText(), "10: 1, 09: 1");
}

} // namespace k7deval::test
