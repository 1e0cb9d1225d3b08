#include "foundation/ExpectError.h"
#include "selection/SelectionBench.h"

#include <gtest/gtest.h>

/// Which units the filter lists, and when it hides by itself.
namespace k7deval::test
{

namespace
{

const std::string kAll = "===All Units===";

} // namespace

TEST(ParamSelectFilter, ListsAllUnitsAndThenEachUnit)
{
    ParamSelectBench bench;
    bench.filtered().list(kFiveParameters);
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{kAll, "GT1", "GT2"}));
    EXPECT_EQ(bench.tool.cmbUnit.ItemDataList(), (Indexes{-1, kHeader1, kHeader2}));
    EXPECT_EQ(bench.tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(view(bench.tool), (Lines{"-- GT1 --", "[ ] NOx", "[ ] CO", "[ ] O2", "-- GT2 --",
                                       "[ ] Load", "[ ] Flow"}));
}

TEST(ParamSelectFilter, ListsTheUnitsOfTheListUnderTheirOwnPIDs)
{
    ParamSelectBench bench;
    bench.filtered().listWithUnits({kGT2, kLoad, kGT1, kNox});
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{kAll, "GT2", "GT1"}));
    EXPECT_EQ(bench.tool.cmbUnit.ItemDataList(), (Indexes{-1, kGT2, kGT1}));
}

TEST(ParamSelectFilter, IsNotFilledWhileItIsOff)
{
    ParamSelectBench bench;
    bench.list(kFiveParameters);
    bench.tool.SetShowUnpopulatedUnits(true);
    EXPECT_EQ(bench.tool.cmbUnit.ListCount(), 0);
}

TEST(ParamSelectFilter, IsFilledAnewByEachList)
{
    ParamSelectBench bench;
    bench.filtered().list(kFiveParameters);
    bench.tool.cmbUnit.Pick(2);
    bench.list({kNox, kSo2});
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{kAll, "GT1", "GT3"}));
    EXPECT_EQ(bench.tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(view(bench.tool), (Lines{"-- GT1 --", "[ ] NOx", "-- GT3 --", "[ ] SO2"}));
}

TEST(ParamSelectFilter, OfAnEmptyListOffersAllUnitsAndKeepsTheOldRowsOnView)
{
    ParamSelectBench bench;
    bench.filtered().list(kFiveParameters);
    bench.tool.cmbUnit.Pick(2);
    bench.list({});
    EXPECT_EQ(bench.tool.cmbUnit.List(), Lines{kAll});
    EXPECT_TRUE(bench.tool.ShowUnitCombo());
    EXPECT_TRUE(bench.tool.OffsetUnits());
    EXPECT_EQ(view(bench.tool), (Lines{"[ ] Load", "[ ] Flow"}));
    bench.tool.cmbUnit.Pick(0);
    EXPECT_EQ(view(bench.tool), (Lines{"[ ] Load", "[ ] Flow"}));
}

TEST(ParamSelectFilter, WithoutAllUnitsHasNoFirstEntryToSelectInAnEmptyList)
{
    ParamSelectBench bench;
    bench.withoutAllUnits().filtered();
    EXPECT_EQ(errorOf([&] { return bench.tool.SetParamList(PIDs{}), 0; }), 381);
    EXPECT_EQ(errorOf([&] { return bench.tool.SetShowUnpopulatedUnits(true), 0; }), 381);
}

TEST(ParamSelectFilter, WithoutAllUnitsPicksTheFirstUnit)
{
    ParamSelectBench bench;
    bench.withoutAllUnits().filtered().list(kFiveParameters);
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{"GT1", "GT2"}));
    EXPECT_EQ(bench.tool.cmbUnit.ListIndex(), 0);
    EXPECT_FALSE(bench.tool.OffsetUnits());
    EXPECT_EQ(view(bench.tool), (Lines{"[ ] NOx", "[ ] CO", "[ ] O2"}));
}

TEST(ParamSelectFilter, OffersAllUnitsOrNotFromItsNextFillingOn)
{
    ParamSelectBench bench;
    bench.filtered().list(kFiveParameters);
    bench.withoutAllUnits();
    EXPECT_FALSE(bench.tool.AllUnitsInCombo());
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{kAll, "GT1", "GT2"}));
    EXPECT_EQ(bench.tool.jgexGrid.RowCount(), 7);
    bench.tool.SetShowUnpopulatedUnits(false);
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{"GT1", "GT2"}));
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
    {"UnpopulatedFirst", {kGT1, kGT2, kLoad, kGT3, kSo2}, {"GT2", "GT3"}, {"GT1", "GT2", "GT3"}},
    {"UnpopulatedBetween", {kGT1, kNox, kGT2, kGT3, kSo2}, {"GT1", "GT3"}, {"GT1", "GT2", "GT3"}},
    {"UnpopulatedLast", {kGT1, kNox, kGT2, kLoad, kGT3}, {"GT1", "GT2"}, {"GT1", "GT2", "GT3"}},
    {"TwoUnpopulatedInARow",
     {kGT1, kGT2, kGT3, kSo2, kCommon, kOpacity},
     {"GT3", "Common"},
     {"GT1", "GT2", "GT3", "Common"}},
    {"TwoUnpopulatedLast",
     {kGT1, kNox, kGT3, kSo2, kCommon, kGT2},
     {"GT1", "GT3"},
     {"GT1", "GT3", "Common", "GT2"}},
    {"NonePopulated", {kGT1, kGT2, kGT3}, {}, {"GT1", "GT2", "GT3"}},
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

    ParamSelectBench bench;
};

TEST_P(ParamSelectUnits, AreInTheFilterWhenAParameterFollowsThem)
{
    bench.filtered().listWithUnits(GetParam().list);
    EXPECT_EQ(bench.tool.cmbUnit.List(), withAll(GetParam().populated));
    EXPECT_EQ(bench.tool.cmbUnit.ListIndex(), 0);
}

TEST_P(ParamSelectUnits, AreAllInTheFilterWhenUnpopulatedOnesAreWanted)
{
    bench.tool.SetShowUnpopulatedUnits(true);
    bench.filtered().listWithUnits(GetParam().list);
    EXPECT_EQ(bench.tool.cmbUnit.List(), withAll(GetParam().all));
}

TEST_P(ParamSelectUnits, ComeAndGoWithTheWishForUnpopulatedOnes)
{
    bench.filtered().listWithUnits(GetParam().list);
    bench.tool.SetShowUnpopulatedUnits(true);
    EXPECT_EQ(bench.tool.cmbUnit.List(), withAll(GetParam().all));
    bench.tool.SetShowUnpopulatedUnits(false);
    EXPECT_EQ(bench.tool.cmbUnit.List(), withAll(GetParam().populated));
}

INSTANTIATE_TEST_SUITE_P(, ParamSelectUnits, ::testing::ValuesIn(kUnitRowsCases),
                         [](const auto& test) { return std::string(test.param.what); });

TEST(ParamSelectUnpopulatedUnits, OfHeadersAreThoseOfUnitsListedByThemselves)
{
    ParamSelectBench bench;
    bench.filtered().list({kGT1, kLoad, kGT3, kSo2});
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{kAll, "GT2", "GT3"}));
    EXPECT_EQ(view(bench.tool), (Lines{"-- GT2 --", "[ ] Load", "-- GT3 --", "[ ] SO2"}));
    bench.tool.SetShowUnpopulatedUnits(true);
    EXPECT_TRUE(bench.tool.ShowUnpopulatedUnits());
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{kAll, "GT1", "GT2", "GT3"}));
    EXPECT_EQ(view(bench.tool),
              (Lines{"-- GT1 --", "-- GT2 --", "[ ] Load", "-- GT3 --", "[ ] SO2"}));
}

TEST(ParamSelectUnpopulatedUnits, WithoutAFilterShowTheirHeadersAnyway)
{
    ParamSelectBench bench;
    bench.list({kGT1, kLoad});
    EXPECT_EQ(view(bench.tool), (Lines{"-- GT1 --", "-- GT2 --", "[ ] Load"}));
    bench.tool.SetShowUnpopulatedUnits(true);
    EXPECT_EQ(view(bench.tool), (Lines{"-- GT1 --", "-- GT2 --", "[ ] Load"}));
}

TEST(ParamSelectUnpopulatedUnits, SetTheFilterBackToItsFirstEntryAndKeepTheTicks)
{
    ParamSelectBench bench;
    bench.filtered().list(kFiveParameters).tick({2});
    bench.tool.cmbUnit.Pick(2);
    bench.tool.SetShowUnpopulatedUnits(true);
    EXPECT_EQ(bench.tool.cmbUnit.ListIndex(), 0);
    EXPECT_TRUE(bench.tool.OffsetUnits());
    EXPECT_EQ(view(bench.tool), (Lines{"-- GT1 --", "[x] NOx", "[ ] CO", "[ ] O2", "-- GT2 --",
                                       "[ ] Load", "[ ] Flow"}));
}

TEST(ParamSelectOneUnit, HidesTheFilterAndKeepsItsHeader)
{
    ParamSelectBench bench;
    bench.filtered().list({kNox, kCo});
    EXPECT_FALSE(bench.tool.ShowUnitCombo());
    EXPECT_FALSE(bench.tool.cmbUnit.Visible());
    EXPECT_TRUE(bench.tool.OffsetUnits());
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{kAll, "GT1"}));
    EXPECT_EQ(bench.tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(view(bench.tool), (Lines{"-- GT1 --", "[ ] NOx", "[ ] CO"}));
}

TEST(ParamSelectOneUnit, RunsThePickRuleBeforeTheFilterHides)
{
    ParamSelectBench bench;
    bench.filtered();
    bench.tool.SetOffsetUnits(false);
    bench.list({kNox, kCo});
    EXPECT_TRUE(bench.tool.OffsetUnits());
}

TEST(ParamSelectOneUnit, GivesTheGridTheFullHeight)
{
    ParamSelectBench bench;
    bench.filtered().list({kNox, kCo});
    EXPECT_EQ(bench.tool.jgexGrid.Place().Top, 0.0F);
    EXPECT_EQ(bench.tool.jgexGrid.Place().Height, 3495.0F);
}

TEST(ParamSelectOneUnit, WithoutAllUnitsHidesTheFilterAndSelectsNoEntry)
{
    ParamSelectBench bench;
    bench.withoutAllUnits().filtered().list({kNox, kCo});
    EXPECT_FALSE(bench.tool.ShowUnitCombo());
    EXPECT_FALSE(bench.tool.cmbUnit.Visible());
    EXPECT_EQ(bench.tool.cmbUnit.List(), Lines{"GT1"});
    EXPECT_EQ(bench.tool.cmbUnit.ListIndex(), -1);
    EXPECT_EQ(bench.tool.jgexGrid.Place().Top, 0.0F);
    EXPECT_EQ(bench.tool.jgexGrid.Place().Height, 3495.0F);
}

TEST(ParamSelectOneUnit, WithoutAllUnitsLeavesTheHeadersAsTheHostHasThem)
{
    for (const bool offset : {true, false}) {
        ParamSelectBench bench;
        bench.withoutAllUnits().filtered();
        bench.tool.SetOffsetUnits(offset);
        bench.list({kNox});
        EXPECT_EQ(bench.tool.OffsetUnits(), offset);
        EXPECT_EQ(view(bench.tool).size(), offset ? 2U : 1U);
    }
}

TEST(ParamSelectOneUnit, IsOneOfSeveralWhenTheOthersAreUnpopulated)
{
    ParamSelectBench bench;
    bench.filtered().listWithUnits({kGT1, kGT2, kLoad, kGT3});
    EXPECT_FALSE(bench.tool.ShowUnitCombo());
    EXPECT_EQ(view(bench.tool), (Lines{"-- GT1 --", "-- GT2 --", "[ ] Load", "-- GT3 --"}));
}

TEST(ParamSelectOneUnit, StaysHiddenForTheNextListUntilTheHostShowsItAgain)
{
    ParamSelectBench bench;
    bench.filtered().list({kNox}).list(kFiveParameters);
    EXPECT_FALSE(bench.tool.cmbUnit.Visible());
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{kAll, "GT1"}));
    bench.filtered().list(kFiveParameters);
    EXPECT_TRUE(bench.tool.cmbUnit.Visible());
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{kAll, "GT1", "GT2"}));
}

TEST(ParamSelectOneUnit, HidesTheFilterOfUnpopulatedUnitsWhenTheyLeaveIt)
{
    ParamSelectBench bench;
    bench.tool.SetShowUnpopulatedUnits(true);
    bench.filtered().listWithUnits({kGT1, kNox, kGT2});
    EXPECT_TRUE(bench.tool.ShowUnitCombo());
    bench.tool.SetShowUnpopulatedUnits(false);
    EXPECT_FALSE(bench.tool.ShowUnitCombo());
    EXPECT_EQ(view(bench.tool), (Lines{"-- GT1 --", "[ ] NOx", "-- GT2 --"}));
}

TEST(ParamSelectNoUnit, LeavesTheFilterWithNothingButAllUnitsAndNoRowsOnView)
{
    ParamSelectBench bench;
    bench.filtered().listWithUnits({kNox, kLoad});
    EXPECT_TRUE(bench.tool.ShowUnitCombo());
    EXPECT_TRUE(bench.tool.cmbUnit.Visible());
    EXPECT_EQ(bench.tool.jgexGrid.RowCount(), 0);
    EXPECT_EQ(bench.tool.Rows().Count(), 2);
}

} // namespace k7deval::test
