#include "foundation/ExpectError.h"
#include "selection/SelectionRig.h"

#include <gtest/gtest.h>

#include <ostream>

/// Which units the filter lists, and when it hides by itself.
namespace k7deval::test
{

namespace
{

/// What a host and its user do; behind it the entries of the filter, which of them is selected,
/// whether the filter is on view, and the rows.
struct FilterCase {
    const char* what;
    void (*steps)(ParamSelectRig& rig);
    const char* entries;
    std::int32_t selected;
    bool isOnView;
    const char* shown;
};

void PrintTo(const FilterCase& row, std::ostream* out)
{
    *out << row.what;
}

const FilterCase kFilters[] = {
    {"HasAllUnitsAndThenEachUnit", [](auto& r) { r.filtered().list(kFiveParameters); },
     "===All Units===, GT1, GT2", 0, true,
     "-- GT1 --, [ ] NOx, [ ] CO, [ ] O2, -- GT2 --, [ ] Load, [ ] Flow"},
    {"IsNotFilledWhileItIsOff", [](auto& r) { r.listOf(kNox).unpopulated(); }, "", -1, false,
     "-- GT1 --, [ ] NOx"},
    {"IsFilledAnewByEachList",
     [](auto& r) { r.filtered().list(kFiveParameters).pick(2).listOf(kNox, kSo2); },
     "===All Units===, GT1, GT3", 0, true, "-- GT1 --, [ ] NOx, -- GT3 --, [ ] SO2"},
    // An empty list offers all units and keeps the old rows on view.
    {"OfAnEmptyList", [](auto& r) { r.filtered().list(kFiveParameters).pick(2).listOf(); },
     "===All Units===", 0, true, "[ ] Load, [ ] Flow"},
    {"OfAnEmptyListPicked",
     [](auto& r) { r.filtered().list(kFiveParameters).pick(2).listOf().pick(0); },
     "===All Units===", 0, true, "[ ] Load, [ ] Flow"},
    {"WithoutAllUnitsHasItsFirstUnitPicked",
     [](auto& r) { r.withoutAllUnits().filtered().list(kFiveParameters); }, "GT1, GT2", 0, true,
     "[ ] NOx, [ ] CO, [ ] O2"},
    // All units come and go with the next filling.
    {"KeepsAllUnitsUntilItIsFilled",
     [](auto& r) { r.filtered().listOf(kNox, kLoad).withoutAllUnits(); },
     "===All Units===, GT1, GT2", 0, true, "-- GT1 --, [ ] NOx, -- GT2 --, [ ] Load"},
    {"LosesAllUnitsWhenItIsFilled",
     [](auto& r) { r.filtered().listOf(kNox, kLoad).withoutAllUnits().unpopulated(false); },
     "GT1, GT2", 0, true, "[ ] NOx"},
    // Headers of units listed by themselves are those of unpopulated units.
    {"LeavesOutUnpopulatedHeaders",
     [](auto& r) { r.filtered().listOf(kGT1, kLoad, kThirdUnit, kSo2); },
     "===All Units===, GT2, GT3", 0, true, "-- GT2 --, [ ] Load, -- GT3 --, [ ] SO2"},
    {"HasUnpopulatedHeadersWhenTheyAreWanted",
     [](auto& r) { r.filtered().listOf(kGT1, kLoad, kThirdUnit, kSo2).unpopulated(); },
     "===All Units===, GT1, GT2, GT3", 0, true,
     "-- GT1 --, -- GT2 --, [ ] Load, -- GT3 --, [ ] SO2"},
    {"ThatIsOffShowsUnpopulatedHeadersAnyway", [](auto& r) { r.listOf(kGT1, kLoad); }, "", -1,
     false, "-- GT1 --, -- GT2 --, [ ] Load"},
    {"ThatIsOffShowsThemWantedOrNot", [](auto& r) { r.listOf(kGT1, kLoad).unpopulated(); }, "", -1,
     false, "-- GT1 --, -- GT2 --, [ ] Load"},
    {"GoesBackToItsFirstEntryForUnpopulatedOnesAndKeepsTheTicks",
     [](auto& r) { r.filtered().listOf(kNox, kLoad).ticks(2).pick(2).unpopulated(); },
     "===All Units===, GT1, GT2", 0, true, "-- GT1 --, [x] NOx, -- GT2 --, [ ] Load"},
    // A single unit hides the filter and keeps its header.
    {"OfOneUnitHides", [](auto& r) { r.filtered().listOf(kNox, kCo); }, "===All Units===, GT1", 0,
     false, "-- GT1 --, [ ] NOx, [ ] CO"},
    {"OfOneUnitRunsThePickRuleBeforeItHides",
     [](auto& r) { r.filtered().headers(false).listOf(kNox, kCo); }, "===All Units===, GT1", 0,
     false, "-- GT1 --, [ ] NOx, [ ] CO"},
    {"OfOneUnitWithoutAllUnitsHasNoEntrySelected",
     [](auto& r) { r.withoutAllUnits().filtered().listOf(kNox, kCo); }, "GT1", -1, false,
     "-- GT1 --, [ ] NOx, [ ] CO"},
    {"OfOneUnitWithoutAllUnitsLeavesTheHeadersAsTheHostHasThem",
     [](auto& r) { r.withoutAllUnits().filtered().headers(false).listOf(kNox); }, "GT1", -1, false,
     "[ ] NOx"},
    {"OfOneUnitOfSeveralWhenTheOthersAreUnpopulated",
     [](auto& r) { r.filtered().withUnits(kGT1, kGT2, kLoad, kThirdUnit); }, "===All Units===, GT2",
     0, false, "-- GT1 --, -- GT2 --, [ ] Load, -- GT3 --"},
    {"StaysHiddenForTheNextList", [](auto& r) { r.filtered().listOf(kNox).listOf(kNox, kLoad); },
     "===All Units===, GT1", 0, false, "-- GT1 --, [ ] NOx, -- GT2 --, [ ] Load"},
    {"ComesBackWhenTheHostShowsIt",
     [](auto& r) { r.filtered().listOf(kNox).filtered().listOf(kNox, kLoad); },
     "===All Units===, GT1, GT2", 0, true, "-- GT1 --, [ ] NOx, -- GT2 --, [ ] Load"},
    {"OfUnpopulatedUnitsIsOnView",
     [](auto& r) { r.unpopulated().filtered().withUnits(kGT1, kNox, kGT2); },
     "===All Units===, GT1, GT2", 0, true, "-- GT1 --, [ ] NOx, -- GT2 --"},
    {"OfUnpopulatedUnitsHidesWhenTheyLeaveIt",
     [](auto& r) { r.unpopulated().filtered().withUnits(kGT1, kNox, kGT2).unpopulated(false); },
     "===All Units===, GT1", 0, false, "-- GT1 --, [ ] NOx, -- GT2 --"},
    {"OfNoUnitHasNothingButAllUnitsAndNoRowsOnView",
     [](auto& r) { r.filtered().withUnits(kNox, kLoad); }, "===All Units===", 0, true, ""},
};

} // namespace

class ParamSelectFilter : public ::testing::TestWithParam<FilterCase>
{
};

TEST_P(ParamSelectFilter, HasTheUnitsOfTheList)
{
    ParamSelectRig rig;
    GetParam().steps(rig);
    EXPECT_EQ(entriesOf(rig.tool.cmbUnit), GetParam().entries);
    EXPECT_EQ(rig.tool.cmbUnit.ListIndex(), GetParam().selected);
    EXPECT_EQ(rig.tool.cmbUnit.Visible(), GetParam().isOnView);
    EXPECT_EQ(rig.tool.ShowUnitCombo(), GetParam().isOnView);
    EXPECT_EQ(rig.tool.jgexGrid.place().Top == 0.0F, !GetParam().isOnView);
    EXPECT_EQ(viewText(rig.tool), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(, ParamSelectFilter, ::testing::ValuesIn(kFilters),
                         [](const auto& test) { return std::string(test.param.what); });

TEST(ParamSelectFilterData, IsThePIDOfTheHeaderOrOfTheUnitInTheList)
{
    ParamSelectRig rig;
    rig.filtered().list(kFiveParameters);
    EXPECT_EQ(rig.tool.cmbUnit.itemDataList(), (Indexes{-1, kHeader1, kHeader2}));
    rig.withUnits(kGT2, kLoad, kGT1, kNox);
    EXPECT_EQ(entriesOf(rig.tool.cmbUnit), "===All Units===, GT2, GT1");
    EXPECT_EQ(rig.tool.cmbUnit.itemDataList(), (Indexes{-1, kGT2, kGT1}));
}

TEST(ParamSelectFilterData, WithoutAllUnitsHasNoFirstEntryToSelectInAnEmptyList)
{
    ParamSelectRig rig;
    rig.withoutAllUnits().filtered();
    EXPECT_FALSE(rig.tool.AllUnitsInCombo());
    EXPECT_EQ(errorOf([&] { return rig.listOf(), 0; }), 381);
    EXPECT_EQ(errorOf([&] { return rig.unpopulated(), 0; }), 381);
    EXPECT_TRUE(rig.tool.ShowUnpopulatedUnits());
}

struct UnitRowsCase {
    const char* what;
    PIDs list;
    Lines populated;
    Lines all;
};

void PrintTo(const UnitRowsCase& row, std::ostream* out)
{
    *out << row.what;
}

// The entries of the filter for lists with units, of which each needs a parameter right behind it.
const UnitRowsCase kUnitRowsCases[] = {
    {"EachWithParameters", {kGT1, kNox, kGT2, kLoad}, {"GT1", "GT2"}, {"GT1", "GT2"}},
    {"UnpopulatedFirst",
     {kGT1, kGT2, kLoad, kThirdUnit, kSo2},
     {"GT2", "GT3"},
     {"GT1", "GT2", "GT3"}},
    {"UnpopulatedBetween",
     {kGT1, kNox, kGT2, kThirdUnit, kSo2},
     {"GT1", "GT3"},
     {"GT1", "GT2", "GT3"}},
    {"UnpopulatedLast",
     {kGT1, kNox, kGT2, kLoad, kThirdUnit},
     {"GT1", "GT2"},
     {"GT1", "GT2", "GT3"}},
    {"TwoUnpopulatedInARow",
     {kGT1, kGT2, kThirdUnit, kSo2, kCommon, kOpacity},
     {"GT3", "Common"},
     {"GT1", "GT2", "GT3", "Common"}},
    {"TwoUnpopulatedLast",
     {kGT1, kNox, kThirdUnit, kSo2, kCommon, kGT2},
     {"GT1", "GT3"},
     {"GT1", "GT3", "Common", "GT2"}},
    {"NonePopulated", {kGT1, kGT2, kThirdUnit}, {}, {"GT1", "GT2", "GT3"}},
    {"ParametersAheadOfTheUnits", {kNox, kGT1, kGT2}, {}, {"GT1", "GT2"}},
    {"ParameterOfAnotherUnitBehind", {kGT1, kLoad, kGT2, kNox}, {"GT1", "GT2"}, {"GT1", "GT2"}},
    {"AUnitTwice", {kGT1, kNox, kGT1, kCo}, {"GT1", "GT1"}, {"GT1", "GT1"}},
    {"NoUnitAtAll", {kNox, kLoad}, {}, {}},
};

class ParamSelectUnits : public ::testing::TestWithParam<UnitRowsCase>
{
protected:
    static Lines withAll(Lines units)
    {
        units.insert(units.begin(), kAll);
        return units;
    }

    ParamSelectRig rig;
};

TEST_P(ParamSelectUnits, AreInTheFilterWhenAParameterFollowsThem)
{
    rig.filtered().listWithUnits(GetParam().list);
    EXPECT_EQ(rig.tool.cmbUnit.List(), withAll(GetParam().populated));
    EXPECT_EQ(rig.tool.cmbUnit.ListIndex(), 0);
}

TEST_P(ParamSelectUnits, AreAllInTheFilterWhenUnpopulatedOnesAreWanted)
{
    rig.unpopulated().filtered().listWithUnits(GetParam().list);
    EXPECT_EQ(rig.tool.cmbUnit.List(), withAll(GetParam().all));
}

TEST_P(ParamSelectUnits, ComeAndGoWithTheWishForUnpopulatedOnes)
{
    rig.filtered().listWithUnits(GetParam().list);
    rig.unpopulated();
    EXPECT_EQ(rig.tool.cmbUnit.List(), withAll(GetParam().all));
    rig.unpopulated(false);
    EXPECT_EQ(rig.tool.cmbUnit.List(), withAll(GetParam().populated));
}

INSTANTIATE_TEST_SUITE_P(, ParamSelectUnits, ::testing::ValuesIn(kUnitRowsCases),
                         [](const auto& test) { return std::string(test.param.what); });

TEST(ParamSelectOneUnit, GivesTheGridTheFullHeight)
{
    ParamSelectRig rig;
    rig.filtered().listOf(kNox, kCo);
    EXPECT_EQ(rig.tool.jgexGrid.place().Height, 3495.0F);
    rig.withoutAllUnits().filtered().listOf(kNox, kCo);
    EXPECT_EQ(rig.tool.jgexGrid.place().Height, 3495.0F);
}

} // namespace k7deval::test
