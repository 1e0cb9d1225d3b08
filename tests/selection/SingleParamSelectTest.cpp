#include "foundation/ExpectError.h"
#include "selection/SelectionRig.h"

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
    EXPECT_EQ(tool.rows().Count(), 0);
}

TEST(SingleParamSelectStart, ShowsBothBoxesEmpty)
{
    const SingleParamSelect tool;
    EXPECT_TRUE(tool.cmbUnit.Visible()) << "though ShowUnitCombo is off";
    EXPECT_TRUE(tool.cmbPID.Visible());
    EXPECT_EQ(tool.cmbUnit.listCount(), 0);
    EXPECT_EQ(tool.cmbPID.listCount(), 0);
}

TEST(SingleParamSelectStart, LiesAsDesigned)
{
    const SingleParamSelect tool;
    EXPECT_EQ(tool.place().Width, 4590.0F);
    EXPECT_EQ(tool.place().Height, 825.0F);
    EXPECT_EQ(tool.cmbUnit.place().Top, 0.0F);
    EXPECT_EQ(tool.cmbPID.place().Top, 420.0F);
    EXPECT_EQ(tool.Find("cmbUnit"), &tool.cmbUnit);
    EXPECT_EQ(tool.Find("cmbPID"), &tool.cmbPID);
    EXPECT_EQ(tool.widgets().size(), 2U);
}

TEST(SingleParamSelectStart, PropertiesOfAnEmptyListAreStoredAndFillNothing)
{
    SingleRig rig;
    rig.tool.SetAllUnitsInCombo(false);
    rig.tool.SetShowPIDNumber(true);
    rig.tool.SetShowUnpopulatedUnits(true);
    rig.tool.SetShowUnitCombo(true);
    EXPECT_FALSE(rig.tool.AllUnitsInCombo());
    EXPECT_TRUE(rig.tool.ShowPIDNumber());
    EXPECT_TRUE(rig.tool.ShowUnpopulatedUnits());
    EXPECT_TRUE(rig.tool.ShowUnitCombo());
    EXPECT_EQ(rig.tool.cmbUnit.listCount(), 0);
    EXPECT_EQ(rig.tool.cmbPID.listCount(), 0);
}

TEST(SingleParamSelectData, IsKeptAndNothingLeavesIt)
{
    SingleParamSelect tool;
    const auto server = serve(siteOfThreeUnits());
    tool.SetDIServer(server);
    EXPECT_EQ(tool.DIServer(), server);
    tool.SetDIServer(nullptr);
    EXPECT_EQ(tool.DIServer(), server);
}

TEST(SingleParamSelectBoxes, AreTypedInWhichSelectsNothing)
{
    SingleRig rig;
    rig.filtered(false).list(kFiveParameters);
    rig.tool.cmbPID.Pick(1);
    rig.tool.cmbPID.Type("CO");
    EXPECT_EQ(rig.tool.cmbPID.Text(), "CO");
    EXPECT_EQ(errorOf([&] { return rig.tool.GetSelection(); }), 381);
}

TEST(SingleParamSelectList, GivesTheRowsOfTheListToTick)
{
    SingleRig rig;
    ParamSelectRig other;
    const PIDs pids = {kGT1, kNox, kUnknown, kLoad, kNox};
    for (const bool hasUnits : {false, true}) {
        rig.filtered(false).tool.SetParamList(pids, hasUnits);
        other.tool.SetParamList(pids, hasUnits);
        EXPECT_EQ(rig.tool.rows().all().items(), other.tool.rows().all().items());
    }
    rig.tool.SetParamList(collectionOf(rig.site, {kGT2, kFlow}));
    other.tool.SetParamList(collectionOf(other.site, {kGT2, kFlow}));
    EXPECT_EQ(rig.tool.rows().all().items(), other.tool.rows().all().items());
}

TEST(SingleParamSelectList, ShowsTheParametersInListOrderAndNoUnits)
{
    SingleRig rig;
    rig.filtered(false).list({kLoad, kNox, kGT1, kFlow});
    EXPECT_EQ(rig.tool.cmbPID.List(), (Lines{"Load", "NOx", "Flow"}));
    EXPECT_EQ(rig.tool.cmbPID.itemDataList(), (Indexes{kLoad, kNox, kFlow}));
    rig.listWithUnits({kGT1, kNox, kGT2, kLoad});
    EXPECT_EQ(rig.tool.cmbPID.List(), (Lines{"NOx", "Load"}));
}

TEST(SingleParamSelectList, SelectsNoEntry)
{
    SingleRig rig;
    rig.filtered(false).list(kFiveParameters);
    EXPECT_EQ(rig.tool.cmbPID.ListIndex(), -1);
    EXPECT_EQ(rig.tool.cmbPID.Text(), "");
}

TEST(SingleParamSelectList, WithoutRowsLeavesTheEntriesAndTheSelection)
{
    const ParamList lists[] = {PIDs{}, DIParameterList{}, PIDs{kUnknown}, std::monostate{}};
    for (const ParamList& list : lists) {
        SingleRig rig;
        rig.filtered(false).list({kNox, kLoad});
        rig.tool.cmbPID.Pick(1);
        rig.tool.SetParamList(list);
        EXPECT_EQ(rig.tool.rows().Count(), 0);
        EXPECT_EQ(rig.tool.rows().all().items().size(), 4U);
        EXPECT_EQ(rig.tool.cmbPID.List(), (Lines{"NOx", "Load"}));
        EXPECT_EQ(rig.tool.GetSelection(), kLoad);
    }
}

TEST(SingleParamSelectList, WithoutRowsNeedsNoEntryOfTheFilter)
{
    SingleRig rig;
    EXPECT_EQ(errorOf([&] { return rig.tool.SetParamList(PIDs{}), 0; }), 0);
    EXPECT_EQ(errorOf([&] { return rig.tool.SetShowPIDNumber(true), 0; }), 0);
}

TEST(SingleParamSelectSelection, IsThePIDOfThePickedEntry)
{
    SingleRig rig;
    rig.filtered(false).list(kFiveParameters);
    rig.tool.cmbPID.Pick(3);
    EXPECT_EQ(rig.tool.GetSelection(), kLoad);
    rig.tool.cmbPID.Pick(0);
    EXPECT_EQ(rig.tool.GetSelection(), kNox);
}

TEST(SingleParamSelectPIDNumber, FollowsTheNameWithoutBrackets)
{
    SingleRig rig;
    rig.tool.SetShowPIDNumber(true);
    rig.filtered(false).list({kNox, kOpacity});
    EXPECT_EQ(rig.tool.cmbPID.List(), (Lines{"NOx 1-100-0-75-00", "Opacity 0-100-0-75-00"}));
}

TEST(SingleParamSelectPIDNumber, FollowsUnitAndName)
{
    SingleRig rig;
    rig.tool.SetShowPIDNumber(true);
    rig.filtered().list({kNox, kLoad});
    EXPECT_EQ(rig.tool.cmbPID.List(), (Lines{"GT1 NOx 1-100-0-75-00", "GT2 Load 2-602-0-75-00"}));
}

TEST(SingleParamSelectPIDNumber, FillsTheBoxAnewAndKeepsNoSelection)
{
    SingleRig rig;
    rig.filtered(false).list({kNox, kLoad});
    for (const bool shown : {true, false}) {
        rig.tool.cmbPID.Pick(1);
        rig.tool.SetShowPIDNumber(shown);
        EXPECT_EQ(rig.tool.ShowPIDNumber(), shown);
        EXPECT_EQ(rig.tool.cmbPID.ListIndex(), -1);
        EXPECT_EQ(rig.tool.cmbPID.List()[0], shown ? "NOx 1-100-0-75-00" : "NOx");
    }
}

TEST(SingleParamSelectPIDNumber, IsNothingForAPIDThatIsNoValidOne)
{
    SingleRig rig;
    rig.site->parameters.push_back(rig.site->parameter(kNox));
    rig.site->parameters.back().pid = 7;
    rig.tool.SetShowPIDNumber(true);
    rig.filtered(false).listWithUnits({7});
    EXPECT_EQ(rig.tool.cmbPID.List(), Lines{"NOx "});
}

TEST(SingleParamSelectLayout, BoxesTakeTheWidthOfTheControlOneBelowTheOther)
{
    SingleRig rig;
    rig.tool.Resize(6000, 900);
    const auto& unit = rig.tool.cmbUnit.place();
    ASSERT_GT(unit.Height, 0.0F);
    EXPECT_EQ(rig.tool.place().Width, 6000.0F);
    EXPECT_EQ(rig.tool.place().Height, 900.0F);
    EXPECT_EQ(unit.Width, 6000.0F);
    EXPECT_EQ(unit.Top, 0.0F);
    EXPECT_EQ(rig.tool.cmbPID.place().Width, 6000.0F);
    EXPECT_EQ(rig.tool.cmbPID.place().Top, unit.Height + 45);
}

TEST(SingleParamSelectLayout, WithoutTheFilterTheParametersAreAtTheTop)
{
    SingleRig rig;
    rig.filtered(false);
    EXPECT_FALSE(rig.tool.cmbUnit.Visible());
    EXPECT_EQ(rig.tool.cmbPID.place().Top, 0.0F);
    rig.tool.Resize(6000, 900);
    EXPECT_EQ(rig.tool.cmbPID.place().Top, 0.0F);
    EXPECT_EQ(rig.tool.cmbUnit.place().Width, 6000.0F);
    rig.filtered();
    EXPECT_TRUE(rig.tool.cmbUnit.Visible());
    EXPECT_EQ(rig.tool.cmbPID.place().Top, rig.tool.cmbUnit.place().Height + 45);
}

TEST(SingleParamSelectLayout, TheFilterIsPutBackToTheTopWhenItIsVisible)
{
    SingleRig rig;
    rig.tool.cmbUnit.move(0, 500);
    rig.tool.Resize(6000, 900);
    EXPECT_EQ(rig.tool.cmbUnit.place().Top, 0.0F);
    EXPECT_EQ(rig.tool.cmbPID.place().Top, rig.tool.cmbUnit.place().Height + 45);
}

TEST(SingleParamSelectEnd, NeedsNothing)
{
    SingleRig rig;
    rig.filtered(false).list(kFiveParameters);
    rig.tool.cmbPID.Pick(2);
    rig.tool.Terminate();
    EXPECT_EQ(rig.tool.GetSelection(), kO2);
}

} // namespace k7deval::test
