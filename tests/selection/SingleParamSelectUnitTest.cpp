#include "selection/SelectionRig.h"

#include <gtest/gtest.h>

/// The filter of units over the box to pick one parameter from.
namespace k7deval::test
{

namespace
{

} // namespace

TEST(SingleParamSelectFilter, ListsAllUnitsAndThenEachUnit)
{
    SingleRig rig;
    rig.filtered().list(kFiveParameters);
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{kAll, "GT1", "GT2"}));
    EXPECT_EQ(rig.tool.cmbUnit.itemDataList(), (Indexes{-1, kHeader1, kHeader2}));
    EXPECT_EQ(rig.tool.cmbUnit.ListIndex(), 0);
    EXPECT_TRUE(rig.tool.cmbUnit.Visible());
}

TEST(SingleParamSelectFilter, ForAllUnitsNamesTheUnitAheadOfEachParameter)
{
    SingleRig rig;
    rig.filtered().list({kNox, kLoad, kCo});
    EXPECT_EQ(rig.tool.cmbPID.List(), (Lines{"GT1 NOx", "GT2 Load", "GT1 CO"}))
        << "in list order, not grouped by unit";
    EXPECT_EQ(rig.tool.cmbPID.itemDataList(), (Indexes{kNox, kLoad, kCo}));
}

TEST(SingleParamSelectFilter, ForAllUnitsShowsParametersOfUnitsThatLeftTheFilterToo)
{
    SingleRig rig;
    rig.filtered().listWithUnits({kGT1, kGT2, kLoad, kThirdUnit, kSo2, kNox});
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{kAll, "GT2", "GT3"}));
    EXPECT_EQ(rig.tool.cmbPID.List(), (Lines{"GT2 Load", "GT3 SO2", "GT1 NOx"}));
}

TEST(SingleParamSelectFilter, HasUnpopulatedUnitsWhenTheyAreWanted)
{
    SingleRig rig;
    rig.filtered().listWithUnits({kGT1, kGT2, kLoad, kThirdUnit, kSo2, kCommon});
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{kAll, "GT2", "GT3"}));
    rig.tool.SetShowUnpopulatedUnits(true);
    EXPECT_TRUE(rig.tool.ShowUnpopulatedUnits());
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{kAll, "GT1", "GT2", "GT3", "Common"}));
    rig.tool.SetShowUnpopulatedUnits(false);
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{kAll, "GT2", "GT3"}));
}

TEST(SingleParamSelectFilter, OfUnpopulatedUnitsIsFilledAnewWithItsFirstEntry)
{
    SingleRig rig;
    rig.filtered().list(kFiveParameters);
    rig.tool.cmbUnit.Pick(2);
    rig.tool.SetShowUnpopulatedUnits(true);
    EXPECT_EQ(rig.tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(rig.tool.cmbPID.listCount(), 5);
}

struct UnitPickCase {
    const char* what;
    bool hasUnits;
    PIDs list;
    Lines entries; ///< Of the box of parameters when the second entry of the filter is picked.
};

void PrintTo(const UnitPickCase& row, std::ostream* out)
{
    *out << row.what;
}

// The whole item data of a unit is compared with the number of the unit in a parameter's PID. Only
// the header of unit 0 has the PID 0.
const UnitPickCase kUnitPickCases[] = {
    {"OfAHeader", false, {kNox, kCo, kLoad}, {}},
    {"OfAUnitOfTheList", true, {kGT1, kNox, kGT2, kLoad}, {}},
    {"OfTheHeaderOfUnitNought", false, {kOpacity, kNox}, {"Opacity"}},
    {"OfUnitNoughtOfTheList", true, {kCommon, kOpacity, kGT1, kNox}, {}},
};

class SingleParamSelectPick : public ::testing::TestWithParam<UnitPickCase>
{
};

TEST_P(SingleParamSelectPick, ComparesTheUnitWithItsWholePID)
{
    SingleRig rig;
    rig.filtered().tool.SetParamList(GetParam().list, GetParam().hasUnits);
    rig.tool.cmbUnit.Pick(1);
    EXPECT_EQ(rig.tool.cmbPID.List(), GetParam().entries) << "by its plain name";
    EXPECT_EQ(rig.tool.cmbPID.ListIndex(), -1);
}

INSTANTIATE_TEST_SUITE_P(, SingleParamSelectPick, ::testing::ValuesIn(kUnitPickCases),
                         [](const auto& test) { return std::string(test.param.what); });

TEST(SingleParamSelectUnitPick, OfAllUnitsFillsTheBoxAgain)
{
    SingleRig rig;
    rig.filtered().list({kNox, kLoad});
    rig.tool.cmbUnit.Pick(2);
    EXPECT_EQ(rig.tool.cmbPID.listCount(), 0);
    rig.tool.cmbUnit.Pick(0);
    EXPECT_EQ(rig.tool.cmbPID.List(), (Lines{"GT1 NOx", "GT2 Load"}));
}

TEST(SingleParamSelectUnitPick, KeepsNoSelection)
{
    SingleRig rig;
    rig.filtered().list({kNox, kLoad});
    rig.tool.cmbPID.Pick(1);
    rig.tool.cmbUnit.Pick(0);
    EXPECT_EQ(rig.tool.cmbPID.ListIndex(), -1);
}

TEST(SingleParamSelectUnitPick, WithPIDNumbersHasThemBehindThePlainName)
{
    SingleRig rig;
    rig.tool.SetShowPIDNumber(true);
    rig.filtered().list({kOpacity, kNox});
    rig.tool.cmbUnit.Pick(1);
    EXPECT_EQ(rig.tool.cmbPID.List(), Lines{"Opacity 0-100-0-75-00"});
}

TEST(SingleParamSelectOneUnit, HidesTheFilterAndListsPlainNamesAtTheTop)
{
    SingleRig rig;
    rig.filtered().list({kNox, kCo});
    EXPECT_FALSE(rig.tool.ShowUnitCombo());
    EXPECT_FALSE(rig.tool.cmbUnit.Visible());
    EXPECT_EQ(rig.tool.cmbPID.place().Top, 0.0F);
    EXPECT_EQ(rig.tool.cmbPID.List(), (Lines{"NOx", "CO"}));
}

TEST(SingleParamSelectOneUnit, StaysHiddenForTheNextList)
{
    SingleRig rig;
    rig.filtered().list({kNox}).list(kFiveParameters);
    EXPECT_FALSE(rig.tool.cmbUnit.Visible());
    EXPECT_EQ(rig.tool.cmbPID.List(), (Lines{"NOx", "CO", "O2", "Load", "Flow"}));
}

TEST(SingleParamSelectOneUnit, IsOnViewWhenTheHostAsksForTheFilterAfterTheList)
{
    SingleRig rig;
    rig.filtered(false).list({kNox, kCo}).filtered();
    EXPECT_FALSE(rig.tool.ShowUnitCombo()) << "the filling found one unit";
    EXPECT_TRUE(rig.tool.cmbUnit.Visible()) << "the host's wish comes last";
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{kAll, "GT1"}));
    EXPECT_EQ(rig.tool.cmbPID.List(), (Lines{"NOx", "CO"}));
    EXPECT_EQ(rig.tool.cmbPID.place().Top, rig.tool.cmbUnit.place().Height + 45);
}

TEST(SingleParamSelectOneUnit, WithoutAllUnitsIsHiddenOnceTheFilterIsOff)
{
    SingleRig rig;
    rig.withoutAllUnits().filtered(false).list({kNox, kCo}).filtered();
    EXPECT_TRUE(rig.tool.ShowUnitCombo());
    EXPECT_EQ(rig.tool.cmbUnit.List(), Lines{"GT1"});
    EXPECT_EQ(rig.tool.cmbUnit.ListIndex(), -1);
    rig.filtered(false);
    EXPECT_FALSE(rig.tool.cmbUnit.Visible());
    EXPECT_EQ(rig.tool.cmbPID.place().Top, 0.0F);
    EXPECT_EQ(rig.tool.cmbPID.List(), (Lines{"NOx", "CO"}));
}

TEST(SingleParamSelectFilterShown, AfterTheListLeavesPlainNamesUntilTheBoxIsFilledNext)
{
    SingleRig rig;
    rig.filtered(false).list({kNox, kLoad}).filtered();
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{kAll, "GT1", "GT2"}));
    EXPECT_TRUE(rig.tool.cmbUnit.Visible());
    EXPECT_EQ(rig.tool.cmbPID.List(), (Lines{"NOx", "Load"}));
    rig.tool.cmbUnit.Pick(0);
    EXPECT_EQ(rig.tool.cmbPID.List(), (Lines{"GT1 NOx", "GT2 Load"}));
}

TEST(SingleParamSelectFilterHidden, LeavesTheNamesOfTheUnitsUntilTheBoxIsFilledNext)
{
    SingleRig rig;
    rig.filtered().list({kNox, kLoad}).filtered(false);
    EXPECT_FALSE(rig.tool.cmbUnit.Visible());
    EXPECT_EQ(rig.tool.cmbPID.List(), (Lines{"GT1 NOx", "GT2 Load"}));
    rig.tool.SetShowPIDNumber(false);
    EXPECT_EQ(rig.tool.cmbPID.List(), (Lines{"NOx", "Load"}));
}

TEST(SingleParamSelectFilterHidden, IsNotFilled)
{
    SingleRig rig;
    rig.filtered(false).list(kFiveParameters);
    rig.tool.SetAllUnitsInCombo(false);
    rig.tool.SetShowUnpopulatedUnits(true);
    EXPECT_EQ(rig.tool.cmbUnit.listCount(), 0);
}

TEST(SingleParamSelectAllUnits, ComeBackToTheFilterAtOnce)
{
    SingleRig rig;
    rig.withoutAllUnits().filtered(false).list({kNox, kLoad}).filtered();
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{"GT1", "GT2"}));
    rig.tool.SetAllUnitsInCombo(true);
    EXPECT_TRUE(rig.tool.AllUnitsInCombo());
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{kAll, "GT1", "GT2"}));
    EXPECT_EQ(rig.tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(rig.tool.cmbPID.List(), (Lines{"GT1 NOx", "GT2 Load"}));
}

} // namespace k7deval::test
