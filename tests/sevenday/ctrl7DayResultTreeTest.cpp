#include "foundation/ExpectError.h"
#include "sevenday/ResultRig.h"

#include <gtest/gtest.h>

/// The tree of days and runs.
namespace k7deval::test
{

namespace
{

const Lines kNothingToShow = {"NA [OfflineFail] light"};

Lines treeOf(const std::vector<CalDay>& days)
{
    ResultRig rig;
    return linesOf(rig.show(days).tvwCalTimes);
}

} // namespace

TEST(ResultTree, ClearedItHasTheEntryNAWhichIsNotSelected)
{
    ResultRig rig;
    rig.page.ClearTreeView();
    EXPECT_EQ(linesOf(rig.page.tvwCalTimes), kNothingToShow);
    EXPECT_EQ(rig.page.tvwCalTimes.SelectedItem(), nullptr);
    EXPECT_EQ(runOf(*rig.page.tvwCalTimes.Nodes().front()), nullptr);
}

TEST(ResultTree, ClearingBlanksTheDetails)
{
    ResultRig rig;
    rig.show({dayWith(kDay, {runAt(kMorning)})}).ClearTreeView();
    EXPECT_EQ(linesOf(rig.page.tvwCalTimes), kNothingToShow);
    EXPECT_EQ(rig.page.lblCalTimeData.Caption(), "");
    EXPECT_EQ(rig.page.lblCalResultLabel.Caption(), "");
    EXPECT_EQ(rig.page.span.refData.Caption(), "");
}

TEST(ResultTree, APressOfTheEntryNASelectsIt)
{
    ResultRig rig;
    rig.page.ClearTreeView();
    rig.page.tvwCalTimes.Press("NA");
    ASSERT_NE(rig.page.tvwCalTimes.SelectedItem(), nullptr);
    EXPECT_EQ(rig.page.lblCalTimeData.Caption(), "");
}

TEST(ResultTree, AnEmptyArrayIsNothingToShow)
{
    ResultRig rig;
    rig.show({dayWith(kDay, {runAt(kMorning)})});
    rig.show({});
    EXPECT_EQ(linesOf(rig.page.tvwCalTimes), kNothingToShow);
    EXPECT_EQ(rig.page.lblCalTimeData.Caption(), "");
}

TEST(ResultTree, AnArrayNeverSizedFailsAtItsFirstElement)
{
    ResultRig rig;
    rig.show({dayWith(kDay, {runAt(kMorning)})});
    EXPECT_EQ(errorOf([&] { return rig.page.SetTreeView(DayArray()), 0; }), 9);
    EXPECT_TRUE(rig.page.tvwCalTimes.Nodes().empty());
}

struct TreeCase {
    const char* what;
    std::vector<CalDay> days;
    Lines shown;
};

/// A day of two runs and a third one that is not displayed.
CalDay dayWithHidden(const std::vector<CalRun>& displayed, const CalRun& hidden)
{
    CalDay day = dayWith(kDay, displayed);
    day->CalsInDay().Add(minuteKey(hidden->CalTime), hidden);
    return day;
}

TEST(ResultTree, ShowsDaysAndRuns)
{
    const Date second = makeDate(2024, 3, 11);
    const Date third = makeDate(2024, 3, 12);
    const Date late = makeDate(2024, 3, 10, 22, 0);
    CalDay used = dayWith(kDay, {runAt(kMorning)});
    used->DisplayedCals = RunArray();
    CalDay cut = dayWith(second, {});
    cut->DisplayedCals.resizeKeeping(-1);
    const TreeCase rows[] = {
        {"a day without displayed runs is never used",
         {used, cut, operated(dayWith(third, {}))},
         {"3/10/2024 [OpDayNoCals] light", "3/11/2024 [OpDayNoCals] light",
          "3/12/2024 [OpDayNoCals] light"}},
        {"a day with one run is the run",
         {dayWith(kDay, {unused(runAt(kMorning))})},
         {"3/10/2024 08:15 [OnlinePass] light"}},
        {"a day with several runs holds them and is white when one is used",
         {dayWith(kDay, {unused(runAt(kMorning)), runAt(kEvening)})},
         {"3/10/2024 [OnlinePass] white", "  3/10/2024 08:15 [OnlinePass] light",
          "  3/10/2024 20:15 [OnlinePass] white"}},
        {"a day whose runs are not used is light",
         {dayWith(kDay, {unused(runAt(kMorning)), unused(runAt(kEvening))})},
         {"3/10/2024 [OnlinePass] light", "  3/10/2024 08:15 [OnlinePass] light",
          "  3/10/2024 20:15 [OnlinePass] light"}},
        {"dates and dates with times are mixed",
         {dayWith(kDay, {runAt(kMorning), runAt(kEvening)}), dayWith(second, {runAt(kNextMorning)}),
          operated(dayWith(third, {}))},
         {"3/10/2024 [OnlinePass] white", "  3/10/2024 08:15 [OnlinePass] white",
          "  3/10/2024 20:15 [OnlinePass] white", "3/11/2024 08:15 [OnlinePass] white",
          "3/12/2024 [OpDayNoCals] light"}},
        {"an on-line run that is not displayed makes an on-line day",
         {dayWithHidden({offline(runAt(kMorning)), offline(runAt(kEvening))}, runAt(late))},
         {"3/10/2024 [OnlinePass] white", "  3/10/2024 08:15 [OfflinePass] white",
          "  3/10/2024 20:15 [OfflinePass] white"}},
        {"a failed run that is not displayed does not fail its day",
         {dayWithHidden({runAt(kMorning), runAt(kEvening)}, failedRunAt(late))},
         {"3/10/2024 [OnlinePass] white", "  3/10/2024 08:15 [OnlinePass] white",
          "  3/10/2024 20:15 [OnlinePass] white"}},
        {"a run alone, passed on-line",
         {dayWith(kDay, {runAt(kMorning)})},
         {"3/10/2024 08:15 [OnlinePass] white"}},
        {"a run alone, passed off-line",
         {dayWith(kDay, {offline(runAt(kMorning))})},
         {"3/10/2024 08:15 [OfflinePass] white"}},
        {"a run alone, failed on-line",
         {dayWith(kDay, {failedRunAt(kMorning)})},
         {"3/10/2024 08:15 [OnlineFail] white"}},
        {"a run alone, failed off-line",
         {dayWith(kDay, {offline(failedRunAt(kMorning))})},
         {"3/10/2024 08:15 [OfflineFail] white"}},
        {"runs of a day, failed on-line and off-line",
         {dayWith(kDay, {failedRunAt(kMorning), offline(failedRunAt(kEvening))})},
         {"3/10/2024 [OnlineFail] white", "  3/10/2024 08:15 [OnlineFail] white",
          "  3/10/2024 20:15 [OfflineFail] white"}},
    };
    for (const TreeCase& row : rows)
        EXPECT_EQ(treeOf(row.days), row.shown) << row.what;
}

struct DayImageCase {
    const char* what;
    bool firstPasses;
    bool firstOnline;
    bool secondPasses;
    bool secondOnline;
    bool dayOperated;
    const char* image;
};

// An on-line run makes its day an operating day by itself.
constexpr DayImageCase kDayImages[] = {
    {"all passed on-line", true, true, true, true, true, "OnlinePass"},
    {"all passed on-line, no operating hour", true, true, true, true, false, "OnlinePass"},
    {"the first failed", false, true, true, true, true, "OnlineFail"},
    {"the last failed", true, true, false, true, true, "OnlineFail"},
    {"a failed off-line run beside an on-line one", true, true, false, false, true, "OnlineFail"},
    {"a passed off-line run beside an on-line one", true, true, true, false, false, "OnlinePass"},
    {"off-line runs, no operation", true, false, true, false, false, "OfflinePass"},
    {"off-line runs, one failed, no operation", true, false, false, false, false, "OfflineFail"},
    {"off-line runs, operation", true, false, true, false, true, "OpDayNoCals"},
    {"off-line runs, failed, operation", false, false, false, false, true, "OpDayNoCals"},
};

TEST(ResultTree, TheImageOfADayRollsUpItsRuns)
{
    for (const DayImageCase& row : kDayImages) {
        CalRun first = row.firstPasses ? runAt(kMorning) : failedRunAt(kMorning);
        CalRun second = row.secondPasses ? runAt(kEvening) : failedRunAt(kEvening);
        first->IsOnline = row.firstOnline;
        second->IsOnline = row.secondOnline;
        CalDay day = dayWith(kDay, {first, second});
        day->SetIsOpDay(row.dayOperated);
        EXPECT_EQ(treeOf({day})[0], std::string("3/10/2024 [") + row.image + "] white") << row.what;
    }
}

TEST(ResultTree, TheFirstEntryIsSelectedAndItsDetailsShown)
{
    ResultRig rig;
    auto& page = rig.show({dayWith(kDay, {runAt(kMorning)}), dayWith(kDay, {runAt(kNextMorning)})});
    EXPECT_EQ(page.tvwCalTimes.SelectedItem(), page.tvwCalTimes.Nodes().front().get());
    EXPECT_EQ(page.lblCalTimeData.Caption(), "3/10/2024 08:15");
}

TEST(ResultTree, AFirstEntryOfADayLeavesTheDetailsBlank)
{
    ResultRig rig;
    auto& page = rig.show({dayWith(kDay, {runAt(kMorning), runAt(kEvening)})});
    EXPECT_EQ(page.tvwCalTimes.SelectedItem()->Key, "3/10/2024");
    EXPECT_EQ(page.lblCalTimeData.Caption(), "");
}

TEST(ResultTree, EachCallBuildsItAnew)
{
    ResultRig rig;
    rig.show({dayWith(kDay, {runAt(kMorning), runAt(kEvening)})});
    rig.show({dayWith(kDay, {runAt(kNextMorning)})});
    EXPECT_EQ(linesOf(rig.page.tvwCalTimes), Lines{"3/11/2024 08:15 [OnlinePass] white"});
    EXPECT_EQ(rig.page.lblCalTimeData.Caption(), "3/11/2024 08:15");
}

TEST(ResultTree, TwoRunsOfOneMinuteFailAtTheSecond)
{
    ResultRig rig;
    CalDay day = dayWith(kDay, {runAt(kMorning)});
    day->DisplayedCals =
        RunArray({runAt(kMorning), runAt(makeDate(2024, 3, 10, 8, 15, 20)), runAt(kEvening)});
    EXPECT_EQ(errorOf([&] { return rig.show({day}), 0; }), 457);
    EXPECT_EQ(linesOf(rig.page.tvwCalTimes),
              (Lines{"3/10/2024 [] other colour", "  3/10/2024 08:15 [OnlinePass] white"}));
    EXPECT_EQ(rig.page.tvwCalTimes.SelectedItem(), nullptr);
}

TEST(ResultTree, TwoDaysOfOneDateFailAtTheSecond)
{
    ResultRig rig;
    EXPECT_EQ(errorOf([&] { return rig.show({dayWith(kDay, {}), dayWith(kDay, {})}), 0; }), 457);
}

TEST(ResultTree, DatesAreWrittenAsTheRegionDoes)
{
    ResultRig rig("de-DE");
    rig.show({dayWith(kDay, {runAt(kMorning), runAt(kEvening)})});
    EXPECT_EQ(linesOf(rig.page.tvwCalTimes),
              (Lines{"10.03.2024 [OnlinePass] white", "  10.03.2024 08:15 [OnlinePass] white",
                     "  10.03.2024 20:15 [OnlinePass] white"}));
}

TEST(ResultTree, AChildHoldsItsRunAndADayHoldsNone)
{
    ResultRig rig;
    const CalRun morning = runAt(kMorning);
    auto& page = rig.show({dayWith(kDay, {morning, runAt(kEvening)})});
    EXPECT_EQ(runOf(*page.tvwCalTimes.Find("3/10/2024 08:15")), morning);
    EXPECT_EQ(runOf(*page.tvwCalTimes.Find("3/10/2024")), nullptr);
}

} // namespace k7deval::test
