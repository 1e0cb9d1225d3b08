#include "foundation/ExpectError.h"
#include "selection/SelectionRig.h"

#include <gtest/gtest.h>

/// Which units the filter lists, and when it hides by itself.
namespace k7deval::test
{

namespace
{

} // namespace

TEST(ParamSelectFilter, ListsAllUnitsAndThenEachUnit)
{
    ParamSelectRig rig;
    rig.filtered().list(kFiveParameters);
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{kAll, "GT1", "GT2"}));
    EXPECT_EQ(rig.tool.cmbUnit.itemDataList(), (Indexes{-1, kHeader1, kHeader2}));
    EXPECT_EQ(rig.tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT1 --", "[ ] NOx", "[ ] CO", "[ ] O2", "-- GT2 --",
                                     "[ ] Load", "[ ] Flow"}));
}

TEST(ParamSelectFilter, ListsTheUnitsOfTheListUnderTheirOwnPIDs)
{
    ParamSelectRig rig;
    rig.filtered().listWithUnits({kGT2, kLoad, kGT1, kNox});
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{kAll, "GT2", "GT1"}));
    EXPECT_EQ(rig.tool.cmbUnit.itemDataList(), (Indexes{-1, kGT2, kGT1}));
}

TEST(ParamSelectFilter, IsNotFilledWhileItIsOff)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters);
    rig.tool.SetShowUnpopulatedUnits(true);
    EXPECT_EQ(rig.tool.cmbUnit.listCount(), 0);
}

TEST(ParamSelectFilter, IsFilledAnewByEachList)
{
    ParamSelectRig rig;
    rig.filtered().list(kFiveParameters);
    rig.tool.cmbUnit.Pick(2);
    rig.list({kNox, kSo2});
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{kAll, "GT1", "GT3"}));
    EXPECT_EQ(rig.tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT1 --", "[ ] NOx", "-- GT3 --", "[ ] SO2"}));
}

TEST(ParamSelectFilter, OfAnEmptyListOffersAllUnitsAndKeepsTheOldRowsOnView)
{
    ParamSelectRig rig;
    rig.filtered().list(kFiveParameters);
    rig.tool.cmbUnit.Pick(2);
    rig.list({});
    EXPECT_EQ(rig.tool.cmbUnit.List(), Lines{kAll});
    EXPECT_TRUE(rig.tool.ShowUnitCombo());
    EXPECT_TRUE(rig.tool.OffsetUnits());
    EXPECT_EQ(view(rig.tool), (Lines{"[ ] Load", "[ ] Flow"}));
    rig.tool.cmbUnit.Pick(0);
    EXPECT_EQ(view(rig.tool), (Lines{"[ ] Load", "[ ] Flow"}));
}

TEST(ParamSelectFilter, WithoutAllUnitsHasNoFirstEntryToSelectInAnEmptyList)
{
    ParamSelectRig rig;
    rig.withoutAllUnits().filtered();
    EXPECT_EQ(errorOf([&] { return rig.tool.SetParamList(PIDs{}), 0; }), 381);
    EXPECT_EQ(errorOf([&] { return rig.tool.SetShowUnpopulatedUnits(true), 0; }), 381);
}

TEST(ParamSelectFilter, WithoutAllUnitsPicksTheFirstUnit)
{
    ParamSelectRig rig;
    rig.withoutAllUnits().filtered().list(kFiveParameters);
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{"GT1", "GT2"}));
    EXPECT_EQ(rig.tool.cmbUnit.ListIndex(), 0);
    EXPECT_FALSE(rig.tool.OffsetUnits());
    EXPECT_EQ(view(rig.tool), (Lines{"[ ] NOx", "[ ] CO", "[ ] O2"}));
}

TEST(ParamSelectFilter, OffersAllUnitsOrNotFromItsNextFillingOn)
{
    ParamSelectRig rig;
    rig.filtered().list(kFiveParameters);
    rig.withoutAllUnits();
    EXPECT_FALSE(rig.tool.AllUnitsInCombo());
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{kAll, "GT1", "GT2"}));
    EXPECT_EQ(rig.tool.jgexGrid.RowCount(), 7);
    rig.tool.SetShowUnpopulatedUnits(false);
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{"GT1", "GT2"}));
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
    rig.tool.SetShowUnpopulatedUnits(true);
    rig.filtered().listWithUnits(GetParam().list);
    EXPECT_EQ(rig.tool.cmbUnit.List(), withAll(GetParam().all));
}

TEST_P(ParamSelectUnits, ComeAndGoWithTheWishForUnpopulatedOnes)
{
    rig.filtered().listWithUnits(GetParam().list);
    rig.tool.SetShowUnpopulatedUnits(true);
    EXPECT_EQ(rig.tool.cmbUnit.List(), withAll(GetParam().all));
    rig.tool.SetShowUnpopulatedUnits(false);
    EXPECT_EQ(rig.tool.cmbUnit.List(), withAll(GetParam().populated));
}

INSTANTIATE_TEST_SUITE_P(, ParamSelectUnits, ::testing::ValuesIn(kUnitRowsCases),
                         [](const auto& test) { return std::string(test.param.what); });

TEST(ParamSelectUnpopulatedUnits, OfHeadersAreThoseOfUnitsListedByThemselves)
{
    ParamSelectRig rig;
    rig.filtered().list({kGT1, kLoad, kThirdUnit, kSo2});
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{kAll, "GT2", "GT3"}));
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT2 --", "[ ] Load", "-- GT3 --", "[ ] SO2"}));
    rig.tool.SetShowUnpopulatedUnits(true);
    EXPECT_TRUE(rig.tool.ShowUnpopulatedUnits());
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{kAll, "GT1", "GT2", "GT3"}));
    EXPECT_EQ(view(rig.tool),
              (Lines{"-- GT1 --", "-- GT2 --", "[ ] Load", "-- GT3 --", "[ ] SO2"}));
}

TEST(ParamSelectUnpopulatedUnits, WithoutAFilterShowTheirHeadersAnyway)
{
    ParamSelectRig rig;
    rig.list({kGT1, kLoad});
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT1 --", "-- GT2 --", "[ ] Load"}));
    rig.tool.SetShowUnpopulatedUnits(true);
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT1 --", "-- GT2 --", "[ ] Load"}));
}

TEST(ParamSelectUnpopulatedUnits, SetTheFilterBackToItsFirstEntryAndKeepTheTicks)
{
    ParamSelectRig rig;
    rig.filtered().list(kFiveParameters).tick({2});
    rig.tool.cmbUnit.Pick(2);
    rig.tool.SetShowUnpopulatedUnits(true);
    EXPECT_EQ(rig.tool.cmbUnit.ListIndex(), 0);
    EXPECT_TRUE(rig.tool.OffsetUnits());
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT1 --", "[x] NOx", "[ ] CO", "[ ] O2", "-- GT2 --",
                                     "[ ] Load", "[ ] Flow"}));
}

TEST(ParamSelectOneUnit, HidesTheFilterAndKeepsItsHeader)
{
    ParamSelectRig rig;
    rig.filtered().list({kNox, kCo});
    EXPECT_FALSE(rig.tool.ShowUnitCombo());
    EXPECT_FALSE(rig.tool.cmbUnit.Visible());
    EXPECT_TRUE(rig.tool.OffsetUnits());
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{kAll, "GT1"}));
    EXPECT_EQ(rig.tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT1 --", "[ ] NOx", "[ ] CO"}));
}

TEST(ParamSelectOneUnit, RunsThePickRuleBeforeTheFilterHides)
{
    ParamSelectRig rig;
    rig.filtered();
    rig.tool.SetOffsetUnits(false);
    rig.list({kNox, kCo});
    EXPECT_TRUE(rig.tool.OffsetUnits());
}

TEST(ParamSelectOneUnit, GivesTheGridTheFullHeight)
{
    ParamSelectRig rig;
    rig.filtered().list({kNox, kCo});
    EXPECT_EQ(rig.tool.jgexGrid.place().Top, 0.0F);
    EXPECT_EQ(rig.tool.jgexGrid.place().Height, 3495.0F);
}

TEST(ParamSelectOneUnit, WithoutAllUnitsHidesTheFilterAndSelectsNoEntry)
{
    ParamSelectRig rig;
    rig.withoutAllUnits().filtered().list({kNox, kCo});
    EXPECT_FALSE(rig.tool.ShowUnitCombo());
    EXPECT_FALSE(rig.tool.cmbUnit.Visible());
    EXPECT_EQ(rig.tool.cmbUnit.List(), Lines{"GT1"});
    EXPECT_EQ(rig.tool.cmbUnit.ListIndex(), -1);
    EXPECT_EQ(rig.tool.jgexGrid.place().Top, 0.0F);
    EXPECT_EQ(rig.tool.jgexGrid.place().Height, 3495.0F);
}

TEST(ParamSelectOneUnit, WithoutAllUnitsLeavesTheHeadersAsTheHostHasThem)
{
    for (const bool offset : {true, false}) {
        ParamSelectRig rig;
        rig.withoutAllUnits().filtered();
        rig.tool.SetOffsetUnits(offset);
        rig.list({kNox});
        EXPECT_EQ(rig.tool.OffsetUnits(), offset);
        EXPECT_EQ(view(rig.tool).size(), offset ? 2U : 1U);
    }
}

TEST(ParamSelectOneUnit, IsOneOfSeveralWhenTheOthersAreUnpopulated)
{
    ParamSelectRig rig;
    rig.filtered().listWithUnits({kGT1, kGT2, kLoad, kThirdUnit});
    EXPECT_FALSE(rig.tool.ShowUnitCombo());
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT1 --", "-- GT2 --", "[ ] Load", "-- GT3 --"}));
}

TEST(ParamSelectOneUnit, StaysHiddenForTheNextListUntilTheHostShowsItAgain)
{
    ParamSelectRig rig;
    rig.filtered().list({kNox}).list(kFiveParameters);
    EXPECT_FALSE(rig.tool.cmbUnit.Visible());
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{kAll, "GT1"}));
    rig.filtered().list(kFiveParameters);
    EXPECT_TRUE(rig.tool.cmbUnit.Visible());
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{kAll, "GT1", "GT2"}));
}

TEST(ParamSelectOneUnit, HidesTheFilterOfUnpopulatedUnitsWhenTheyLeaveIt)
{
    ParamSelectRig rig;
    rig.tool.SetShowUnpopulatedUnits(true);
    rig.filtered().listWithUnits({kGT1, kNox, kGT2});
    EXPECT_TRUE(rig.tool.ShowUnitCombo());
    rig.tool.SetShowUnpopulatedUnits(false);
    EXPECT_FALSE(rig.tool.ShowUnitCombo());
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT1 --", "[ ] NOx", "-- GT2 --"}));
}

TEST(ParamSelectNoUnit, LeavesTheFilterWithNothingButAllUnitsAndNoRowsOnView)
{
    ParamSelectRig rig;
    rig.filtered().listWithUnits({kNox, kLoad});
    EXPECT_TRUE(rig.tool.ShowUnitCombo());
    EXPECT_TRUE(rig.tool.cmbUnit.Visible());
    EXPECT_EQ(rig.tool.jgexGrid.RowCount(), 0);
    EXPECT_EQ(rig.tool.rows().Count(), 2);
}

} // namespace k7deval::test
