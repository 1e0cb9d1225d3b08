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
        setDays(rig_, daysOf(days));
        rig_.test.EvaluateDriftTest();
    }
    void mark(const std::string& key) { rig_.test.dictCals->Item(key)->IsUsedIn7Day = true; }

    [[nodiscard]] std::vector<std::string> shown() const
    {
        EXPECT_THAT(rig_.messages->lines(), IsEmpty());
        std::vector<std::string> texts;
        for (const auto& shownDay : rig_.test.objDaysToDisplay.items()) {
            for (const auto& [key, day] : rig_.test.dictDays) {
                if (day == shownDay)
                    texts.push_back(shownOf(*day, key));
            }
        }
        return texts;
    }

    DriftRig rig_;
};

} // namespace

class ShowDriftCals : public Display
{
};

TEST_F(ShowDriftCals, ShowsTheMarkedRunsOfTheDaysThatHaveOne)
{
    evaluate("P A+A+ N a+A+ F P A+a-A+M+ M+");
    rig_.test.ShowDriftCals();
    EXPECT_THAT(shown(), ElementsAre("15: 1", "16: 3"));
}

TEST_F(ShowDriftCals, ShowsTheAllowedFailure)
{
    setDays(rig_, daysOf("P A+A- P"));
    rig_.test.blnSixOfSeven = true;
    rig_.test.EvaluateDriftTest();
    rig_.test.ShowDriftCals();
    EXPECT_THAT(shown(), ElementsAre("10: 1", "11: 1", "12: 1"));
}

TEST_F(ShowDriftCals, ShowsAllMarkedRunsOfADayInOrder)
{
    evaluate("A+a+A+");
    mark("2024/03/10 06:00");
    rig_.test.ShowDriftCals();
    EXPECT_THAT(shown(), ElementsAre("10: 1 3"));
}

TEST_F(ShowDriftCals, KeepsTheDaysOfTheEvaluationBeforeWhenNothingIsMarked)
{
    evaluate("PP");
    rig_.test.ShowDriftCals();
    const auto before = rig_.test.objDaysToDisplay.items();
    ASSERT_EQ(before.size(), 2U);

    evaluate("PF");
    rig_.test.ShowDriftCals();
    EXPECT_EQ(rig_.test.objDaysToDisplay.items(), before);
}

TEST_F(ShowDriftCals, LeavesAnArrayThatWasNeverSized)
{
    evaluate("N");
    rig_.test.ShowDriftCals();
    EXPECT_FALSE(rig_.test.objDaysToDisplay.isSized());
}

TEST_F(ShowDriftCals, CutsTheDaysToTheNewLength)
{
    evaluate("PPPP");
    rig_.test.ShowDriftCals();
    ASSERT_EQ(shown().size(), 4U);
    evaluate("PPFP");
    rig_.test.ShowDriftCals();
    EXPECT_EQ(rig_.test.objDaysToDisplay.items().size(), 1U);
    EXPECT_THAT(shown(), ElementsAre("13: 1"));
}

TEST_F(ShowDriftCals, CutsTheRunsOfADayToTheNewLength)
{
    evaluate("A+a+A+");
    rig_.test.ShowIntervalCals();
    ASSERT_THAT(shown(), ElementsAre("10: 1 2 3"));
    rig_.test.ShowDriftCals();
    EXPECT_THAT(shown(), ElementsAre("10: 3"));
}

class ShowCalsWithinDrift : public Display
{
};

TEST_F(ShowCalsWithinDrift, ShowsAllRunsOfADay)
{
    evaluate("A+a-A+ P");
    rig_.test.ShowCalsWithinDrift();
    EXPECT_THAT(shown(), ElementsAre("10: 1 2 3", "11: 1"));
}

TEST_F(ShowCalsWithinDrift, LeavesOutIdleDaysWithoutRuns)
{
    evaluate("N P U a+ N P");
    rig_.test.ShowCalsWithinDrift();
    EXPECT_THAT(shown(), ElementsAre("11: 1", "13: 1", "15: 1"));
}

TEST_F(ShowCalsWithinDrift, ShowsAMissedDayWithoutRuns)
{
    evaluate("PMP");
    rig_.test.ShowCalsWithinDrift();
    EXPECT_THAT(shown(), ElementsAre("10: 1", "11:", "12: 1"));
    EXPECT_FALSE(rig_.test.objDaysToDisplay[1]->DisplayedCals.isSized());
}

TEST_F(ShowCalsWithinDrift, ShowsTheDaysAheadOfTheTestToo)
{
    evaluate("FPF P");
    rig_.test.ShowCalsWithinDrift();
    EXPECT_THAT(shown(), ElementsAre("10: 1", "11: 1", "12: 1", "13: 1"));
}

TEST_F(ShowCalsWithinDrift, StopsBehindTheDayOfTheSeventhRun)
{
    evaluate("PPPPPPPPM");
    rig_.test.ShowCalsWithinDrift();
    EXPECT_THAT(shown(),
                ElementsAre("10: 1", "11: 1", "12: 1", "13: 1", "14: 1", "15: 1", "16: 1"));
}

TEST_F(ShowCalsWithinDrift, ShowsTheRunsBehindTheSeventhOfItsDay)
{
    evaluate("PPPPPP a+A+M+a+ P");
    rig_.test.ShowCalsWithinDrift();
    EXPECT_EQ(shown().size(), 7U);
    EXPECT_EQ(shown().back(), "16: 1 2 3 4");
}

TEST_F(ShowCalsWithinDrift, GoesOnToTheEndWithSixRuns)
{
    evaluate("PPPPPP N a+");
    rig_.test.ShowCalsWithinDrift();
    EXPECT_EQ(shown().size(), 7U);
    EXPECT_EQ(shown().back(), "17: 1");
}

// Five marks stand for a test that counts seven, so nothing ends the display.
TEST_F(ShowCalsWithinDrift, GoesOnBehindATestWithFewerMarksThanItCounts)
{
    setDays(rig_, daysOf("PPFPFPPPP"));
    rig_.test.blnSixOfSeven = true;
    rig_.test.EvaluateDriftTest();
    ASSERT_TRUE(rig_.test.isPassed());
    rig_.test.ShowCalsWithinDrift();
    EXPECT_EQ(shown().size(), 9U);
}

// Two marked runs in the day of the seventh: the eighth is not shown, and no day ends the display.
TEST_F(ShowCalsWithinDrift, HidesRunsFromAnEighthMarkedOneOn)
{
    evaluate("PPPPPP A+A+ P N P");
    mark("2024/03/16 06:00");
    mark("2024/03/16 06:01");
    rig_.test.ShowCalsWithinDrift();
    EXPECT_THAT(shown(), ElementsAre("10: 1", "11: 1", "12: 1", "13: 1", "14: 1", "15: 1", "16: 1",
                                     "17:", "19:"));
}

TEST_F(ShowCalsWithinDrift, KeepsTheRunsOfADayThatItShowsNoneOf)
{
    evaluate("PPPPPP A+A+ P");
    mark("2024/03/16 06:00");
    mark("2024/03/16 06:01");
    rig_.test.ShowIntervalCals();
    rig_.test.ShowCalsWithinDrift();
    EXPECT_EQ(shown().back(), "17: 1");
    EXPECT_EQ(shown().at(6), "16: 1");
}

TEST_F(ShowCalsWithinDrift, KeepsTheDaysOfTheEvaluationBeforeWhenAllAreIdle)
{
    evaluate("PP");
    rig_.test.ShowCalsWithinDrift();
    const auto before = rig_.test.objDaysToDisplay.items();
    evaluate("NN");
    rig_.test.ShowCalsWithinDrift();
    EXPECT_EQ(rig_.test.objDaysToDisplay.items(), before);
    EXPECT_EQ(before.size(), 2U);
}

class ShowIntervalCals : public Display
{
};

TEST_F(ShowIntervalCals, ShowsAllRunsOfAllDaysThatAreNotIdle)
{
    evaluate("P N A+a-M- M U a+ PPPPPPPP");
    rig_.test.ShowIntervalCals();
    EXPECT_THAT(shown(), ElementsAre("10: 1", "12: 1 2 3", "13:", "15: 1", "16: 1", "17: 1",
                                     "18: 1", "19: 1", "20: 1", "21: 1", "22: 1", "23: 1"));
}

TEST_F(ShowIntervalCals, ShowsADayOutsideTheInterval)
{
    std::vector<model::Day> days = daysOf("P A+");
    days[1].date = -1;
    setDays(rig_, days, 1);
    rig_.test.EvaluateDriftTest();
    rig_.test.ShowIntervalCals();
    EXPECT_THAT(shown(), ElementsAre("10: 1", "09: 1"));
}

TEST_F(ShowIntervalCals, KeepsTheDaysOfTheEvaluationBeforeWhenThereAreNone)
{
    evaluate("PP");
    rig_.test.ShowIntervalCals();
    const auto before = rig_.test.objDaysToDisplay.items();
    rig_.test.dictDays = DayMap();
    rig_.test.ShowIntervalCals();
    EXPECT_EQ(rig_.test.objDaysToDisplay.items(), before);
    EXPECT_EQ(before.size(), 2U);
}

TEST_F(ShowIntervalCals, CutsTheDaysToTheNewLength)
{
    evaluate("PPPP");
    rig_.test.ShowIntervalCals();
    evaluate("NPN");
    rig_.test.ShowIntervalCals();
    EXPECT_EQ(rig_.test.objDaysToDisplay.items().size(), 1U);
    EXPECT_THAT(shown(), ElementsAre("11: 1"));
}

} // namespace k7deval::test
