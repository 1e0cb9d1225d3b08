#include "selection/SelectionRig.h"

#include <gtest/gtest.h>

#include <ostream>

/// The filter of units over the box to pick one parameter from.
namespace k7deval::test
{

namespace
{

/// What a host and its user do; behind it the filter, whether it is on view, and the entries of the
/// box of parameters.
struct BoxesCase {
    const char* what;
    void (*steps)(SingleRig& rig);
    const char* units;
    bool isOnView;
    const char* entries;
};

void PrintTo(const BoxesCase& row, std::ostream* out)
{
    *out << row.what;
}

const PIDs kUnitsOfThree = {kGT1, kGT2, kLoad, kThirdUnit, kSo2, kNox};

const BoxesCase kBoxes[] = {
    // For all units each parameter has its unit ahead of it, in list order and not grouped.
    {"AllUnits", [](auto& r) { r.filtered().listOf(kNox, kLoad, kCo); },
     "===All Units===, GT1, GT2, GT1", true, "GT1 NOx, GT2 Load, GT1 CO"},
    {"ParametersOfUnitsThatLeftTheFilterToo",
     [](auto& r) { r.filtered().listWithUnits(kUnitsOfThree); }, "===All Units===, GT2, GT3", true,
     "GT2 Load, GT3 SO2, GT1 NOx"},
    {"UnpopulatedUnitsWhenTheyAreWanted",
     [](auto& r) { r.filtered().listWithUnits(kUnitsOfThree).unpopulated(); },
     "===All Units===, GT1, GT2, GT3", true, "GT2 Load, GT3 SO2, GT1 NOx"},
    {"UnpopulatedUnitsNoMore",
     [](auto& r) { r.filtered().listWithUnits(kUnitsOfThree).unpopulated().unpopulated(false); },
     "===All Units===, GT2, GT3", true, "GT2 Load, GT3 SO2, GT1 NOx"},
    {"UnpopulatedUnitsFillItAnewWithItsFirstEntry",
     [](auto& r) { r.filtered().listOf(kNox, kLoad).pick(2).unpopulated(); },
     "===All Units===, GT1, GT2", true, "GT1 NOx, GT2 Load"},
    // A picked unit.
    {"APickOfAUnit", [](auto& r) { r.filtered().listOf(kNox, kLoad).pick(2); },
     "===All Units===, GT1, GT2", true, ""},
    {"APickOfAllUnitsFillsTheBoxAgain",
     [](auto& r) { r.filtered().listOf(kNox, kLoad).pick(2).pick(0); }, "===All Units===, GT1, GT2",
     true, "GT1 NOx, GT2 Load"},
    {"APickHasThePIDNumberBehindThePlainName",
     [](auto& r) { r.withPIDs().filtered().listOf(kOpacity, kNox).pick(1); },
     "===All Units===, Common, GT1", true, "Opacity 0-100-0-75-00"},
    // One unit hides the filter; a host that asks for it behind the list has the last word.
    {"OneUnitHidesItAndHasPlainNames", [](auto& r) { r.filtered().listOf(kNox, kCo); },
     "===All Units===, GT1", false, "NOx, CO"},
    {"OneUnitStaysHiddenForTheNextList",
     [](auto& r) { r.filtered().listOf(kNox).listOf(kNox, kLoad); }, "===All Units===, GT1", false,
     "NOx, Load"},
    {"OneUnitIsOnViewWhenTheHostAsksForItAfterTheList",
     [](auto& r) { r.filtered(false).listOf(kNox, kCo).filtered(); }, "===All Units===, GT1", true,
     "NOx, CO"},
    {"OneUnitWithoutAllUnitsIsHiddenOnceItIsOff",
     [](auto& r) {
         r.withoutAllUnits().filtered(false).listOf(kNox, kCo).filtered().filtered(false);
     },
     "GT1", false, "NOx, CO"},
    // Names keep their form until the box is filled next.
    {"ShownAfterTheListItLeavesPlainNames",
     [](auto& r) { r.filtered(false).listOf(kNox, kLoad).filtered(); }, "===All Units===, GT1, GT2",
     true, "NOx, Load"},
    {"ShownAfterTheListItNamesUnitsWithTheNextFilling",
     [](auto& r) { r.filtered(false).listOf(kNox, kLoad).filtered().pick(0); },
     "===All Units===, GT1, GT2", true, "GT1 NOx, GT2 Load"},
    {"HiddenItLeavesTheNamesOfTheUnits",
     [](auto& r) { r.filtered().listOf(kNox, kLoad).filtered(false); }, "===All Units===, GT1, GT2",
     false, "GT1 NOx, GT2 Load"},
    {"HiddenItDropsTheNamesOfTheUnitsWithTheNextFilling",
     [](auto& r) { r.filtered().listOf(kNox, kLoad).filtered(false).withPIDs(false); },
     "===All Units===, GT1, GT2", false, "NOx, Load"},
    {"HiddenItIsNotFilled",
     [](auto& r) { r.filtered(false).listOf(kNox).withoutAllUnits().unpopulated(); }, "", false,
     "NOx"},
    // All units come and go at once.
    {"WithoutAllUnits",
     [](auto& r) { r.withoutAllUnits().filtered(false).listOf(kNox, kLoad).filtered(); },
     "GT1, GT2", true, "NOx, Load"},
};

} // namespace

class SingleParamSelectFilled : public ::testing::TestWithParam<BoxesCase>
{
};

TEST_P(SingleParamSelectFilled, ForTheUnits)
{
    SingleRig rig;
    GetParam().steps(rig);
    EXPECT_EQ(entriesOf(rig.tool.cmbUnit), GetParam().units);
    EXPECT_EQ(rig.tool.cmbUnit.Visible(), GetParam().isOnView);
    EXPECT_EQ(entriesOf(rig.tool.cmbPID), GetParam().entries);
    EXPECT_EQ(rig.tool.cmbPID.ListIndex(), -1);
    EXPECT_EQ(rig.tool.cmbPID.place().Top,
              GetParam().isOnView ? rig.tool.cmbUnit.place().Height + 45 : 0);
}

INSTANTIATE_TEST_SUITE_P(, SingleParamSelectFilled, ::testing::ValuesIn(kBoxes),
                         [](const auto& test) { return std::string(test.param.what); });

TEST(SingleParamSelectFilter, HasTheFirstOfItsEntriesSelectedAndTheirPIDs)
{
    SingleRig rig;
    rig.filtered().list(kFiveParameters);
    EXPECT_EQ(rig.tool.cmbUnit.itemDataList(), (Indexes{-1, kHeader1, kHeader2}));
    EXPECT_EQ(rig.tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(rig.tool.cmbPID.itemDataList(), (Indexes(kFiveParameters)));
    rig.pick(2).unpopulated();
    EXPECT_TRUE(rig.tool.ShowUnpopulatedUnits());
    EXPECT_EQ(rig.tool.cmbUnit.ListIndex(), 0);
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

TEST(SingleParamSelectUnitPick, KeepsNoSelection)
{
    SingleRig rig;
    rig.filtered().listOf(kNox, kLoad).tool.cmbPID.Pick(1);
    rig.pick(0);
    EXPECT_EQ(rig.tool.cmbPID.ListIndex(), -1);
}

TEST(SingleParamSelectOneUnit, IsToldByTheFilterUnlessItHasNoAllUnits)
{
    SingleRig rig;
    rig.filtered(false).listOf(kNox, kCo).filtered();
    EXPECT_FALSE(rig.tool.ShowUnitCombo()) << "the filling found one unit";
    SingleRig without;
    without.withoutAllUnits().filtered(false).listOf(kNox, kCo).filtered();
    EXPECT_TRUE(without.tool.ShowUnitCombo());
    EXPECT_EQ(without.tool.cmbUnit.ListIndex(), -1);
}

TEST(SingleParamSelectAllUnits, ComeBackToTheFilterAtOnce)
{
    SingleRig rig;
    rig.withoutAllUnits().filtered(false).listOf(kNox, kLoad).filtered();
    rig.tool.SetAllUnitsInCombo(true);
    EXPECT_TRUE(rig.tool.AllUnitsInCombo());
    EXPECT_EQ(entriesOf(rig.tool.cmbUnit), "===All Units===, GT1, GT2");
    EXPECT_EQ(rig.tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(entriesOf(rig.tool.cmbPID), "GT1 NOx, GT2 Load");
}

} // namespace k7deval::test
