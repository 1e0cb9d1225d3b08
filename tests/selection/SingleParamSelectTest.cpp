#include "foundation/ExpectError.h"
#include "selection/SelectionBench.h"

#include <gtest/gtest.h>

/// The box to pick one parameter from: start, list, entries and layout.
namespace k7deval::test
{

TEST(SingleParamSelectStart, OffersAllUnitsAndNothingElse)
{
    const SingleParamSelect tool;
    EXPECT_TRUE(tool.AllUnitsInCombo());
    EXPECT_FALSE(tool.ShowPIDNumber());
    EXPECT_FALSE(tool.ShowUnitCombo());
    EXPECT_FALSE(tool.ShowUnpopulatedUnits());
    EXPECT_EQ(tool.DIServer(), nullptr);
    EXPECT_EQ(tool.Rows().Count(), 0);
}

TEST(SingleParamSelectStart, ShowsBothBoxesEmpty)
{
    const SingleParamSelect tool;
    EXPECT_TRUE(tool.cmbUnit.Visible()) << "though ShowUnitCombo is off";
    EXPECT_TRUE(tool.cmbPID.Visible());
    EXPECT_EQ(tool.cmbUnit.ListCount(), 0);
    EXPECT_EQ(tool.cmbPID.ListCount(), 0);
}

TEST(SingleParamSelectStart, LiesAsDesigned)
{
    const SingleParamSelect tool;
    EXPECT_EQ(tool.Place().Width, 4590.0F);
    EXPECT_EQ(tool.Place().Height, 825.0F);
    EXPECT_EQ(tool.cmbUnit.Place().Top, 0.0F);
    EXPECT_EQ(tool.cmbPID.Place().Top, 420.0F);
    EXPECT_EQ(tool.Find("cmbUnit"), &tool.cmbUnit);
    EXPECT_EQ(tool.Find("cmbPID"), &tool.cmbPID);
    EXPECT_EQ(tool.Widgets().size(), 2U);
}

TEST(SingleParamSelectStart, PropertiesOfAnEmptyListAreStoredAndFillNothing)
{
    SingleBench bench;
    bench.tool.SetAllUnitsInCombo(false);
    bench.tool.SetShowPIDNumber(true);
    bench.tool.SetShowUnpopulatedUnits(true);
    bench.tool.SetShowUnitCombo(true);
    EXPECT_FALSE(bench.tool.AllUnitsInCombo());
    EXPECT_TRUE(bench.tool.ShowPIDNumber());
    EXPECT_TRUE(bench.tool.ShowUnpopulatedUnits());
    EXPECT_TRUE(bench.tool.ShowUnitCombo());
    EXPECT_EQ(bench.tool.cmbUnit.ListCount(), 0);
    EXPECT_EQ(bench.tool.cmbPID.ListCount(), 0);
}

TEST(SingleParamSelectData, IsKeptAndNothingLeavesIt)
{
    SingleParamSelect tool;
    const auto server = serve(siteOfUnits());
    tool.SetDIServer(server);
    EXPECT_EQ(tool.DIServer(), server);
    tool.SetDIServer(nullptr);
    EXPECT_EQ(tool.DIServer(), server);
}

TEST(SingleParamSelectBoxes, AreTypedInWhichSelectsNothing)
{
    SingleBench bench;
    bench.filtered(false).list(kFiveParameters);
    bench.tool.cmbPID.Pick(1);
    bench.tool.cmbPID.Type("CO");
    EXPECT_EQ(bench.tool.cmbPID.Text(), "CO");
    EXPECT_EQ(errorOf([&] { return bench.tool.GetSelection(); }), 381);
}

TEST(SingleParamSelectList, GivesTheRowsOfTheListToTick)
{
    SingleBench bench;
    ParamSelectBench other;
    const PIDs pids = {kGT1, kNox, kUnknown, kLoad, kNox};
    for (const bool hasUnits : {false, true}) {
        bench.filtered(false).tool.SetParamList(pids, hasUnits);
        other.tool.SetParamList(pids, hasUnits);
        EXPECT_EQ(bench.tool.Rows().All().items(), other.tool.Rows().All().items());
    }
    bench.tool.SetParamList(collectionOf(bench.site, {kGT2, kFlow}));
    other.tool.SetParamList(collectionOf(other.site, {kGT2, kFlow}));
    EXPECT_EQ(bench.tool.Rows().All().items(), other.tool.Rows().All().items());
}

TEST(SingleParamSelectList, ShowsTheParametersInListOrderAndNoUnits)
{
    SingleBench bench;
    bench.filtered(false).list({kLoad, kNox, kGT1, kFlow});
    EXPECT_EQ(bench.tool.cmbPID.List(), (Lines{"Load", "NOx", "Flow"}));
    EXPECT_EQ(bench.tool.cmbPID.ItemDataList(), (Indexes{kLoad, kNox, kFlow}));
    bench.listWithUnits({kGT1, kNox, kGT2, kLoad});
    EXPECT_EQ(bench.tool.cmbPID.List(), (Lines{"NOx", "Load"}));
}

TEST(SingleParamSelectList, SelectsNoEntry)
{
    SingleBench bench;
    bench.filtered(false).list(kFiveParameters);
    EXPECT_EQ(bench.tool.cmbPID.ListIndex(), -1);
    EXPECT_EQ(bench.tool.cmbPID.Text(), "");
}

TEST(SingleParamSelectList, WithoutRowsLeavesTheEntriesAndTheSelection)
{
    const ParamList lists[] = {PIDs{}, DIParameterList{}, PIDs{kUnknown}, std::monostate{}};
    for (const ParamList& list : lists) {
        SingleBench bench;
        bench.filtered(false).list({kNox, kLoad});
        bench.tool.cmbPID.Pick(1);
        bench.tool.SetParamList(list);
        EXPECT_EQ(bench.tool.Rows().Count(), 0);
        EXPECT_EQ(bench.tool.Rows().All().items().size(), 4U);
        EXPECT_EQ(bench.tool.cmbPID.List(), (Lines{"NOx", "Load"}));
        EXPECT_EQ(bench.tool.GetSelection(), kLoad);
    }
}

TEST(SingleParamSelectList, WithoutRowsNeedsNoEntryOfTheFilter)
{
    SingleBench bench;
    EXPECT_EQ(errorOf([&] { return bench.tool.SetParamList(PIDs{}), 0; }), 0);
    EXPECT_EQ(errorOf([&] { return bench.tool.SetShowPIDNumber(true), 0; }), 0);
}

TEST(SingleParamSelectSelection, IsThePIDOfThePickedEntry)
{
    SingleBench bench;
    bench.filtered(false).list(kFiveParameters);
    bench.tool.cmbPID.Pick(3);
    EXPECT_EQ(bench.tool.GetSelection(), kLoad);
    bench.tool.cmbPID.Pick(0);
    EXPECT_EQ(bench.tool.GetSelection(), kNox);
}

TEST(SingleParamSelectPIDNumber, FollowsTheNameWithoutBrackets)
{
    SingleBench bench;
    bench.tool.SetShowPIDNumber(true);
    bench.filtered(false).list({kNox, kOpacity});
    EXPECT_EQ(bench.tool.cmbPID.List(), (Lines{"NOx 1-100-0-75-00", "Opacity 0-100-0-75-00"}));
}

TEST(SingleParamSelectPIDNumber, FollowsUnitAndName)
{
    SingleBench bench;
    bench.tool.SetShowPIDNumber(true);
    bench.filtered().list({kNox, kLoad});
    EXPECT_EQ(bench.tool.cmbPID.List(), (Lines{"GT1 NOx 1-100-0-75-00", "GT2 Load 2-602-0-75-00"}));
}

TEST(SingleParamSelectPIDNumber, FillsTheBoxAnewAndKeepsNoSelection)
{
    SingleBench bench;
    bench.filtered(false).list({kNox, kLoad});
    for (const bool shown : {true, false}) {
        bench.tool.cmbPID.Pick(1);
        bench.tool.SetShowPIDNumber(shown);
        EXPECT_EQ(bench.tool.ShowPIDNumber(), shown);
        EXPECT_EQ(bench.tool.cmbPID.ListIndex(), -1);
        EXPECT_EQ(bench.tool.cmbPID.List()[0], shown ? "NOx 1-100-0-75-00" : "NOx");
    }
}

TEST(SingleParamSelectPIDNumber, IsNothingForAPIDThatIsNoValidOne)
{
    SingleBench bench;
    bench.site->parameters.push_back(bench.site->parameter(kNox));
    bench.site->parameters.back().pid = 7;
    bench.tool.SetShowPIDNumber(true);
    bench.filtered(false).listWithUnits({7});
    EXPECT_EQ(bench.tool.cmbPID.List(), Lines{"NOx "});
}

TEST(SingleParamSelectLayout, BoxesTakeTheWidthOfTheControlOneBelowTheOther)
{
    SingleBench bench;
    bench.tool.Resize(6000, 900);
    const auto& unit = bench.tool.cmbUnit.Place();
    ASSERT_GT(unit.Height, 0.0F);
    EXPECT_EQ(bench.tool.Place().Width, 6000.0F);
    EXPECT_EQ(bench.tool.Place().Height, 900.0F);
    EXPECT_EQ(unit.Width, 6000.0F);
    EXPECT_EQ(unit.Top, 0.0F);
    EXPECT_EQ(bench.tool.cmbPID.Place().Width, 6000.0F);
    EXPECT_EQ(bench.tool.cmbPID.Place().Top, unit.Height + 45);
}

TEST(SingleParamSelectLayout, WithoutTheFilterTheParametersAreAtTheTop)
{
    SingleBench bench;
    bench.filtered(false);
    EXPECT_FALSE(bench.tool.cmbUnit.Visible());
    EXPECT_EQ(bench.tool.cmbPID.Place().Top, 0.0F);
    bench.tool.Resize(6000, 900);
    EXPECT_EQ(bench.tool.cmbPID.Place().Top, 0.0F);
    EXPECT_EQ(bench.tool.cmbUnit.Place().Width, 6000.0F);
    bench.filtered();
    EXPECT_TRUE(bench.tool.cmbUnit.Visible());
    EXPECT_EQ(bench.tool.cmbPID.Place().Top, bench.tool.cmbUnit.Place().Height + 45);
}

TEST(SingleParamSelectLayout, TheFilterIsPutBackToTheTopWhenItIsVisible)
{
    SingleBench bench;
    bench.tool.cmbUnit.Move(0, 500);
    bench.tool.Resize(6000, 900);
    EXPECT_EQ(bench.tool.cmbUnit.Place().Top, 0.0F);
    EXPECT_EQ(bench.tool.cmbPID.Place().Top, bench.tool.cmbUnit.Place().Height + 45);
}

TEST(SingleParamSelectEnd, NeedsNothing)
{
    SingleBench bench;
    bench.filtered(false).list(kFiveParameters);
    bench.tool.cmbPID.Pick(2);
    bench.tool.Terminate();
    EXPECT_EQ(bench.tool.GetSelection(), kO2);
}

} // namespace k7deval::test
