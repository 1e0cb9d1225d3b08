#include "sevenday/DriftTestData.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace k7deval::test
{

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

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
        setDays(bench_, daysOf(days));
        bench_.test.EvaluateDriftTest();
    }
    void mark(const std::string& key) { bench_.test.dictCals->Item(key)->IsUsedIn7Day = true; }

    [[nodiscard]] std::vector<std::string> shown() const
    {
        EXPECT_THAT(bench_.messages->lines(), IsEmpty());
        std::vector<std::string> texts;
        for (const auto& shownDay : bench_.test.objDaysToDisplay.items()) {
            for (const auto& [key, day] : bench_.test.dictDays) {
                if (day == shownDay)
                    texts.push_back(shownOf(*day, key));
            }
        }
        return texts;
    }

    DriftBench bench_;
};

} // namespace

class ShowDriftCals : public Display
{
};

TEST_F(ShowDriftCals, ShowsTheMarkedRunsOfTheDaysThatHaveOne)
{
    evaluate("P A+A+ N a+A+ F P A+a-A+M+ M+");
    bench_.test.ShowDriftCals();
    EXPECT_THAT(shown(), ElementsAre("15: 1", "16: 3"));
}

TEST_F(ShowDriftCals, ShowsTheAllowedFailure)
{
    setDays(bench_, daysOf("P A+A- P"));
    bench_.test.blnSixOfSeven = true;
    bench_.test.EvaluateDriftTest();
    bench_.test.ShowDriftCals();
    EXPECT_THAT(shown(), ElementsAre("10: 1", "11: 1", "12: 1"));
}

TEST_F(ShowDriftCals, ShowsAllMarkedRunsOfADayInOrder)
{
    evaluate("A+a+A+");
    mark("2024/03/10 06:00");
    bench_.test.ShowDriftCals();
    EXPECT_THAT(shown(), ElementsAre("10: 1 3"));
}

TEST_F(ShowDriftCals, KeepsTheDaysOfTheEvaluationBeforeWhenNothingIsMarked)
{
    evaluate("PP");
    bench_.test.ShowDriftCals();
    const auto before = bench_.test.objDaysToDisplay.items();
    ASSERT_EQ(before.size(), 2U);

    evaluate("PF");
    bench_.test.ShowDriftCals();
    EXPECT_EQ(bench_.test.objDaysToDisplay.items(), before);
}

TEST_F(ShowDriftCals, LeavesAnArrayThatWasNeverSized)
{
    evaluate("N");
    bench_.test.ShowDriftCals();
    EXPECT_FALSE(bench_.test.objDaysToDisplay.isSized());
}

TEST_F(ShowDriftCals, CutsTheDaysToTheNewLength)
{
    evaluate("PPPP");
    bench_.test.ShowDriftCals();
    ASSERT_EQ(shown().size(), 4U);
    evaluate("PPFP");
    bench_.test.ShowDriftCals();
    EXPECT_EQ(bench_.test.objDaysToDisplay.items().size(), 1U);
    EXPECT_THAT(shown(), ElementsAre("13: 1"));
}

TEST_F(ShowDriftCals, CutsTheRunsOfADayToTheNewLength)
{
    evaluate("A+a+A+");
    bench_.test.ShowIntervalCals();
    ASSERT_THAT(shown(), ElementsAre("10: 1 2 3"));
    bench_.test.ShowDriftCals();
    EXPECT_THAT(shown(), ElementsAre("10: 3"));
}

class ShowCalsWithinDrift : public Display
{
};

TEST_F(ShowCalsWithinDrift, ShowsAllRunsOfADay)
{
    evaluate("A+a-A+ P");
    bench_.test.ShowCalsWithinDrift();
    EXPECT_THAT(shown(), ElementsAre("10: 1 2 3", "11: 1"));
}

TEST_F(ShowCalsWithinDrift, LeavesOutIdleDaysWithoutRuns)
{
    evaluate("N P U a+ N P");
    bench_.test.ShowCalsWithinDrift();
    EXPECT_THAT(shown(), ElementsAre("11: 1", "13: 1", "15: 1"));
}

TEST_F(ShowCalsWithinDrift, ShowsAMissedDayWithoutRuns)
{
    evaluate("PMP");
    bench_.test.ShowCalsWithinDrift();
    EXPECT_THAT(shown(), ElementsAre("10: 1", "11:", "12: 1"));
    EXPECT_FALSE(bench_.test.objDaysToDisplay[1]->DisplayedCals.isSized());
}

TEST_F(ShowCalsWithinDrift, ShowsTheDaysAheadOfTheTestToo)
{
    evaluate("FPF P");
    bench_.test.ShowCalsWithinDrift();
    EXPECT_THAT(shown(), ElementsAre("10: 1", "11: 1", "12: 1", "13: 1"));
}

TEST_F(ShowCalsWithinDrift, StopsBehindTheDayOfTheSeventhRun)
{
    evaluate("PPPPPPPPM");
    bench_.test.ShowCalsWithinDrift();
    EXPECT_THAT(shown(),
                ElementsAre("10: 1", "11: 1", "12: 1", "13: 1", "14: 1", "15: 1", "16: 1"));
}

TEST_F(ShowCalsWithinDrift, ShowsTheRunsBehindTheSeventhOfItsDay)
{
    evaluate("PPPPPP a+A+M+a+ P");
    bench_.test.ShowCalsWithinDrift();
    EXPECT_EQ(shown().size(), 7U);
    EXPECT_EQ(shown().back(), "16: 1 2 3 4");
}

TEST_F(ShowCalsWithinDrift, GoesOnToTheEndWithSixRuns)
{
    evaluate("PPPPPP N a+");
    bench_.test.ShowCalsWithinDrift();
    EXPECT_EQ(shown().size(), 7U);
    EXPECT_EQ(shown().back(), "17: 1");
}

// Five marks stand for a test that counts seven, so nothing ends the display.
TEST_F(ShowCalsWithinDrift, GoesOnBehindATestWithFewerMarksThanItCounts)
{
    setDays(bench_, daysOf("PPFPFPPPP"));
    bench_.test.blnSixOfSeven = true;
    bench_.test.EvaluateDriftTest();
    ASSERT_TRUE(bench_.test.isPassed());
    bench_.test.ShowCalsWithinDrift();
    EXPECT_EQ(shown().size(), 9U);
}

// Two marked runs in the day of the seventh: the eighth is not shown, and no day ends the display.
TEST_F(ShowCalsWithinDrift, HidesRunsFromAnEighthMarkedOneOn)
{
    evaluate("PPPPPP A+A+ P N P");
    mark("2024/03/16 06:00");
    mark("2024/03/16 06:01");
    bench_.test.ShowCalsWithinDrift();
    EXPECT_THAT(shown(), ElementsAre("10: 1", "11: 1", "12: 1", "13: 1", "14: 1", "15: 1", "16: 1",
                                     "17:", "19:"));
}

TEST_F(ShowCalsWithinDrift, KeepsTheRunsOfADayThatItShowsNoneOf)
{
    evaluate("PPPPPP A+A+ P");
    mark("2024/03/16 06:00");
    mark("2024/03/16 06:01");
    bench_.test.ShowIntervalCals();
    bench_.test.ShowCalsWithinDrift();
    EXPECT_EQ(shown().back(), "17: 1");
    EXPECT_EQ(shown().at(6), "16: 1");
}

TEST_F(ShowCalsWithinDrift, KeepsTheDaysOfTheEvaluationBeforeWhenAllAreIdle)
{
    evaluate("PP");
    bench_.test.ShowCalsWithinDrift();
    const auto before = bench_.test.objDaysToDisplay.items();
    evaluate("NN");
    bench_.test.ShowCalsWithinDrift();
    EXPECT_EQ(bench_.test.objDaysToDisplay.items(), before);
    EXPECT_EQ(before.size(), 2U);
}

class ShowIntervalCals : public Display
{
};

TEST_F(ShowIntervalCals, ShowsAllRunsOfAllDaysThatAreNotIdle)
{
    evaluate("P N A+a-M- M U a+ PPPPPPPP");
    bench_.test.ShowIntervalCals();
    EXPECT_THAT(shown(), ElementsAre("10: 1", "12: 1 2 3", "13:", "15: 1", "16: 1", "17: 1",
                                     "18: 1", "19: 1", "20: 1", "21: 1", "22: 1", "23: 1"));
}

TEST_F(ShowIntervalCals, ShowsADayOutsideTheInterval)
{
    std::vector<model::Day> days = daysOf("P A+");
    days[1].date = -1;
    setDays(bench_, days, 1);
    bench_.test.EvaluateDriftTest();
    bench_.test.ShowIntervalCals();
    EXPECT_THAT(shown(), ElementsAre("10: 1", "09: 1"));
}

TEST_F(ShowIntervalCals, KeepsTheDaysOfTheEvaluationBeforeWhenThereAreNone)
{
    evaluate("PP");
    bench_.test.ShowIntervalCals();
    const auto before = bench_.test.objDaysToDisplay.items();
    bench_.test.dictDays = DayMap();
    bench_.test.ShowIntervalCals();
    EXPECT_EQ(bench_.test.objDaysToDisplay.items(), before);
    EXPECT_EQ(before.size(), 2U);
}

TEST_F(ShowIntervalCals, CutsTheDaysToTheNewLength)
{
    evaluate("PPPP");
    bench_.test.ShowIntervalCals();
    evaluate("NPN");
    bench_.test.ShowIntervalCals();
    EXPECT_EQ(bench_.test.objDaysToDisplay.items().size(), 1U);
    EXPECT_THAT(shown(), ElementsAre("11: 1"));
}

} // namespace k7deval::test
