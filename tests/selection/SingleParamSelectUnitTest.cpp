#include "selection/SelectionBench.h"

#include <gtest/gtest.h>

/// The filter of units over the box to pick one parameter from.
namespace k7deval::test
{

namespace
{

const std::string kAll = "===All Units===";

} // namespace

TEST(SingleParamSelectFilter, ListsAllUnitsAndThenEachUnit)
{
    SingleBench bench;
    bench.filtered().list(kFiveParameters);
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{kAll, "GT1", "GT2"}));
    EXPECT_EQ(bench.tool.cmbUnit.ItemDataList(), (Indexes{-1, kHeader1, kHeader2}));
    EXPECT_EQ(bench.tool.cmbUnit.ListIndex(), 0);
    EXPECT_TRUE(bench.tool.cmbUnit.Visible());
}

TEST(SingleParamSelectFilter, ForAllUnitsNamesTheUnitAheadOfEachParameter)
{
    SingleBench bench;
    bench.filtered().list({kNox, kLoad, kCo});
    EXPECT_EQ(bench.tool.cmbPID.List(), (Lines{"GT1 NOx", "GT2 Load", "GT1 CO"}))
        << "in list order, not grouped by unit";
    EXPECT_EQ(bench.tool.cmbPID.ItemDataList(), (Indexes{kNox, kLoad, kCo}));
}

TEST(SingleParamSelectFilter, ForAllUnitsShowsParametersOfUnitsThatLeftTheFilterToo)
{
    SingleBench bench;
    bench.filtered().listWithUnits({kGT1, kGT2, kLoad, kGT3, kSo2, kNox});
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{kAll, "GT2", "GT3"}));
    EXPECT_EQ(bench.tool.cmbPID.List(), (Lines{"GT2 Load", "GT3 SO2", "GT1 NOx"}));
}

TEST(SingleParamSelectFilter, HasUnpopulatedUnitsWhenTheyAreWanted)
{
    SingleBench bench;
    bench.filtered().listWithUnits({kGT1, kGT2, kLoad, kGT3, kSo2, kCommon});
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{kAll, "GT2", "GT3"}));
    bench.tool.SetShowUnpopulatedUnits(true);
    EXPECT_TRUE(bench.tool.ShowUnpopulatedUnits());
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{kAll, "GT1", "GT2", "GT3", "Common"}));
    bench.tool.SetShowUnpopulatedUnits(false);
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{kAll, "GT2", "GT3"}));
}

TEST(SingleParamSelectFilter, OfUnpopulatedUnitsIsFilledAnewWithItsFirstEntry)
{
    SingleBench bench;
    bench.filtered().list(kFiveParameters);
    bench.tool.cmbUnit.Pick(2);
    bench.tool.SetShowUnpopulatedUnits(true);
    EXPECT_EQ(bench.tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(bench.tool.cmbPID.ListCount(), 5);
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
    SingleBench bench;
    bench.filtered().tool.SetParamList(GetParam().list, GetParam().hasUnits);
    bench.tool.cmbUnit.Pick(1);
    EXPECT_EQ(bench.tool.cmbPID.List(), GetParam().entries) << "by its plain name";
    EXPECT_EQ(bench.tool.cmbPID.ListIndex(), -1);
}

INSTANTIATE_TEST_SUITE_P(, SingleParamSelectPick, ::testing::ValuesIn(kUnitPickCases),
                         [](const auto& test) { return std::string(test.param.what); });

TEST(SingleParamSelectUnitPick, OfAllUnitsFillsTheBoxAgain)
{
    SingleBench bench;
    bench.filtered().list({kNox, kLoad});
    bench.tool.cmbUnit.Pick(2);
    EXPECT_EQ(bench.tool.cmbPID.ListCount(), 0);
    bench.tool.cmbUnit.Pick(0);
    EXPECT_EQ(bench.tool.cmbPID.List(), (Lines{"GT1 NOx", "GT2 Load"}));
}

TEST(SingleParamSelectUnitPick, KeepsNoSelection)
{
    SingleBench bench;
    bench.filtered().list({kNox, kLoad});
    bench.tool.cmbPID.Pick(1);
    bench.tool.cmbUnit.Pick(0);
    EXPECT_EQ(bench.tool.cmbPID.ListIndex(), -1);
}

TEST(SingleParamSelectUnitPick, WithPIDNumbersHasThemBehindThePlainName)
{
    SingleBench bench;
    bench.tool.SetShowPIDNumber(true);
    bench.filtered().list({kOpacity, kNox});
    bench.tool.cmbUnit.Pick(1);
    EXPECT_EQ(bench.tool.cmbPID.List(), Lines{"Opacity 0-100-0-75-00"});
}

TEST(SingleParamSelectOneUnit, HidesTheFilterAndListsPlainNamesAtTheTop)
{
    SingleBench bench;
    bench.filtered().list({kNox, kCo});
    EXPECT_FALSE(bench.tool.ShowUnitCombo());
    EXPECT_FALSE(bench.tool.cmbUnit.Visible());
    EXPECT_EQ(bench.tool.cmbPID.Place().Top, 0.0F);
    EXPECT_EQ(bench.tool.cmbPID.List(), (Lines{"NOx", "CO"}));
}

TEST(SingleParamSelectOneUnit, StaysHiddenForTheNextList)
{
    SingleBench bench;
    bench.filtered().list({kNox}).list(kFiveParameters);
    EXPECT_FALSE(bench.tool.cmbUnit.Visible());
    EXPECT_EQ(bench.tool.cmbPID.List(), (Lines{"NOx", "CO", "O2", "Load", "Flow"}));
}

TEST(SingleParamSelectOneUnit, IsOnViewWhenTheHostAsksForTheFilterAfterTheList)
{
    SingleBench bench;
    bench.filtered(false).list({kNox, kCo}).filtered();
    EXPECT_FALSE(bench.tool.ShowUnitCombo()) << "the filling found one unit";
    EXPECT_TRUE(bench.tool.cmbUnit.Visible()) << "the host's wish comes last";
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{kAll, "GT1"}));
    EXPECT_EQ(bench.tool.cmbPID.List(), (Lines{"NOx", "CO"}));
    EXPECT_EQ(bench.tool.cmbPID.Place().Top, bench.tool.cmbUnit.Place().Height + 45);
}

TEST(SingleParamSelectOneUnit, WithoutAllUnitsIsHiddenOnceTheFilterIsOff)
{
    SingleBench bench;
    bench.withoutAllUnits().filtered(false).list({kNox, kCo}).filtered();
    EXPECT_TRUE(bench.tool.ShowUnitCombo());
    EXPECT_EQ(bench.tool.cmbUnit.List(), Lines{"GT1"});
    EXPECT_EQ(bench.tool.cmbUnit.ListIndex(), -1);
    bench.filtered(false);
    EXPECT_FALSE(bench.tool.cmbUnit.Visible());
    EXPECT_EQ(bench.tool.cmbPID.Place().Top, 0.0F);
    EXPECT_EQ(bench.tool.cmbPID.List(), (Lines{"NOx", "CO"}));
}

TEST(SingleParamSelectFilterShown, AfterTheListLeavesPlainNamesUntilTheBoxIsFilledNext)
{
    SingleBench bench;
    bench.filtered(false).list({kNox, kLoad}).filtered();
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{kAll, "GT1", "GT2"}));
    EXPECT_TRUE(bench.tool.cmbUnit.Visible());
    EXPECT_EQ(bench.tool.cmbPID.List(), (Lines{"NOx", "Load"}));
    bench.tool.cmbUnit.Pick(0);
    EXPECT_EQ(bench.tool.cmbPID.List(), (Lines{"GT1 NOx", "GT2 Load"}));
}

TEST(SingleParamSelectFilterHidden, LeavesTheNamesOfTheUnitsUntilTheBoxIsFilledNext)
{
    SingleBench bench;
    bench.filtered().list({kNox, kLoad}).filtered(false);
    EXPECT_FALSE(bench.tool.cmbUnit.Visible());
    EXPECT_EQ(bench.tool.cmbPID.List(), (Lines{"GT1 NOx", "GT2 Load"}));
    bench.tool.SetShowPIDNumber(false);
    EXPECT_EQ(bench.tool.cmbPID.List(), (Lines{"NOx", "Load"}));
}

TEST(SingleParamSelectFilterHidden, IsNotFilled)
{
    SingleBench bench;
    bench.filtered(false).list(kFiveParameters);
    bench.tool.SetAllUnitsInCombo(false);
    bench.tool.SetShowUnpopulatedUnits(true);
    EXPECT_EQ(bench.tool.cmbUnit.ListCount(), 0);
}

TEST(SingleParamSelectAllUnits, ComeBackToTheFilterAtOnce)
{
    SingleBench bench;
    bench.withoutAllUnits().filtered(false).list({kNox, kLoad}).filtered();
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{"GT1", "GT2"}));
    bench.tool.SetAllUnitsInCombo(true);
    EXPECT_TRUE(bench.tool.AllUnitsInCombo());
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{kAll, "GT1", "GT2"}));
    EXPECT_EQ(bench.tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(bench.tool.cmbPID.List(), (Lines{"GT1 NOx", "GT2 Load"}));
}

} // namespace k7deval::test
