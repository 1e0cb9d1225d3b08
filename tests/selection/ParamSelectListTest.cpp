#include "foundation/ExpectError.h"
#include "selection/SelectionRig.h"

#include <gtest/gtest.h>

/// Loading a list: PIDs, parameters or anything else, with or without units of its own.
namespace k7deval
{

void PrintTo(const ParamRow& row, std::ostream* out)
{
    *out << row.pid << " " << row.name << (row.isSelected ? ", ticked" : "")
         << (row.isUnit ? ", unit" : "");
}

} // namespace k7deval

namespace k7deval::test
{

namespace
{

using Rows = std::vector<ParamRow>;

ParamRow parameterRow(PID pid, const std::string& name)
{
    return {pid, name, false, false};
}

ParamRow unitRow(PID pid, const std::string& name)
{
    return {pid, name, false, true};
}

/// All rows, which must be those that count.
Rows rowsOf(const ParamSelect& tool)
{
    EXPECT_EQ(static_cast<std::size_t>(tool.rows().Count()), tool.rows().all().items().size());
    return tool.rows().all().items();
}

} // namespace

TEST(ParamSelectList, APIDOfAnotherUnitThanTheLastOpensAHeader)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters);
    EXPECT_EQ(rowsOf(rig.tool),
              (Rows{unitRow(kHeader1, "GT1"), parameterRow(kNox, "NOx"), parameterRow(kCo, "CO"),
                    parameterRow(kO2, "O2"), unitRow(kHeader2, "GT2"), parameterRow(kLoad, "Load"),
                    parameterRow(kFlow, "Flow")}));
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT1 --", "[ ] NOx", "[ ] CO", "[ ] O2", "-- GT2 --",
                                     "[ ] Load", "[ ] Flow"}));
}

TEST(ParamSelectList, AUnitThatComesBackGetsASecondHeader)
{
    ParamSelectRig rig;
    rig.list({kNox, kLoad, kCo});
    EXPECT_EQ(view(rig.tool),
              (Lines{"-- GT1 --", "[ ] NOx", "-- GT2 --", "[ ] Load", "-- GT1 --", "[ ] CO"}));
}

TEST(ParamSelectList, TheUnitOfNumberNoughtGetsAHeaderOfPIDNought)
{
    ParamSelectRig rig;
    rig.list({kOpacity});
    EXPECT_EQ(rowsOf(rig.tool), (Rows{unitRow(0, "Common"), parameterRow(kOpacity, "Opacity")}));
}

TEST(ParamSelectList, UnitsAmongThePIDsAreDroppedThoughTheyOpenAHeader)
{
    ParamSelectRig rig;
    rig.list({kGT1, kNox, kGT1, kGT2});
    EXPECT_EQ(rowsOf(rig.tool), (Rows{unitRow(kHeader1, "GT1"), parameterRow(kNox, "NOx"),
                                      unitRow(kHeader2, "GT2")}));
}

TEST(ParamSelectList, PIDsThatDoNotExistAreSkippedAndOpenNoHeader)
{
    ParamSelectRig rig;
    rig.list({kUnknown, kLoad, kUnknown, kFlow, 0, -1});
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT2 --", "[ ] Load", "[ ] Flow"}));
    rig.listWithUnits({kUnknown, kLoad});
    EXPECT_EQ(view(rig.tool), Lines{"[ ] Load"});
}

TEST(ParamSelectList, APIDListedTwiceHasTwoRows)
{
    ParamSelectRig rig;
    rig.list({kNox, kNox}).tick({3});
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT1 --", "[ ] NOx", "[x] NOx"}));
}

TEST(ParamSelectList, ACollectionOfParametersGivesTheRowsOfItsPIDs)
{
    ParamSelectRig rig;
    rig.tool.SetParamList(collectionOf(rig.site, {kGT1, kNox, kLoad}));
    EXPECT_EQ(rowsOf(rig.tool), (Rows{unitRow(kHeader1, "GT1"), parameterRow(kNox, "NOx"),
                                      unitRow(kHeader2, "GT2"), parameterRow(kLoad, "Load")}));
}

TEST(ParamSelectList, TheParametersOfACollectionAreNotLookedUp)
{
    ParamSelectRig rig;
    rig.tool.SetParamList(collectionOf(rig.site, {kNox, kLoad}));
    rig.tool.SetParamList(collectionOf(rig.site, {kGT1, kNox}), true);
    EXPECT_EQ(rig.site->countCalls("DIServer.Parameters"), 0U);
    EXPECT_EQ(rig.site->countCalls("DIParameters.Exists"), 0U);
    EXPECT_EQ(rig.site->countCalls("DIParameters.Item"), 0U);
}

TEST(ParamSelectList, AListWithUnitsGetsNoHeadersButItsOwn)
{
    ParamSelectRig rig;
    rig.listWithUnits({kNox, kGT2, kLoad, kGT1});
    EXPECT_EQ(rowsOf(rig.tool), (Rows{parameterRow(kNox, "NOx"), unitRow(kGT2, "GT2"),
                                      parameterRow(kLoad, "Load"), unitRow(kGT1, "GT1")}));
    EXPECT_EQ(rig.site->countCalls("DIServer.StatusCodes"), 0U);
}

TEST(ParamSelectList, ACollectionWithUnitsGetsNoHeadersButItsOwn)
{
    ParamSelectRig rig;
    rig.tool.SetParamList(collectionOf(rig.site, {kGT2, kLoad, kNox}), true);
    EXPECT_EQ(rowsOf(rig.tool),
              (Rows{unitRow(kGT2, "GT2"), parameterRow(kLoad, "Load"), parameterRow(kNox, "NOx")}));
}

TEST(ParamSelectList, AnythingElseGivesNoRowsAndNoError)
{
    ParamSelectRig rig;
    rig.tool.SetParamList(std::monostate{});
    rig.tool.SetParamList(std::monostate{}, true);
    EXPECT_EQ(rig.tool.rows().Count(), 0);
    EXPECT_EQ(rig.tool.jgexGrid.RowCount(), 0);
    EXPECT_EQ(rig.site->calls, Lines{});
}

struct ListWithoutRows {
    const char* what;
    ParamList list;
};

void PrintTo(const ListWithoutRows& list, std::ostream* out)
{
    *out << list.what;
}

class ParamSelectWithoutRows : public ::testing::TestWithParam<ListWithoutRows>
{
protected:
    ParamSelectWithoutRows() { rig.list({kNox, kLoad}).tick({2}); }

    ParamSelectRig rig;
};

TEST_P(ParamSelectWithoutRows, LeavesTheOldRowsOnViewThoughNoneCounts)
{
    rig.tool.SetParamList(GetParam().list);
    EXPECT_EQ(rig.tool.rows().Count(), 0);
    EXPECT_EQ(rig.tool.rows().all().items().size(), 4U);
    EXPECT_EQ(visibleIndexes(rig.tool), (Indexes{0, 1, 2, 3}));
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT1 --", "[x] NOx", "-- GT2 --", "[ ] Load"}));
}

TEST_P(ParamSelectWithoutRows, LeavesTheSelectionOfTheOldRows)
{
    rig.tool.SetParamList(GetParam().list);
    EXPECT_EQ(selectionOf(rig.tool), PIDs{kNox});
    rig.tool.SelectAll();
    EXPECT_EQ(selectionOf(rig.tool), (PIDs{kHeader1, kNox, kHeader2, kLoad}));
    rig.tool.DeselectAll();
    EXPECT_EQ(rig.tool.GetSelection(), std::nullopt);
}

TEST_P(ParamSelectWithoutRows, LetsTheUserTickTheOldRows)
{
    rig.tool.SetParamList(GetParam().list);
    rig.tick({4});
    rig.tool.jgexGrid.MouseDown(2, 2);
    rig.tool.jgexGrid.DoubleClick();
    EXPECT_EQ(selectionOf(rig.tool), PIDs{kLoad});
}

TEST_P(ParamSelectWithoutRows, StoresWhetherHeadersShowWithoutMakingTheRowsAnew)
{
    rig.tool.SetParamList(GetParam().list);
    rig.tool.SetOffsetUnits(false);
    EXPECT_FALSE(rig.tool.OffsetUnits());
    EXPECT_EQ(view(rig.tool), (Lines{"(unset)", "[x] NOx", "(unset)", "[ ] Load"}));
    rig.tool.SetOffsetUnits(true);
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT1 --", "[x] NOx", "-- GT2 --", "[ ] Load"}));
}

INSTANTIATE_TEST_SUITE_P(, ParamSelectWithoutRows,
                         ::testing::Values(ListWithoutRows{"NoPIDs", PIDs{}},
                                           ListWithoutRows{"NoParameters", DIParameterList{}},
                                           ListWithoutRows{"UnknownPIDs", PIDs{kUnknown, 0}},
                                           ListWithoutRows{"AnythingElse", std::monostate{}}),
                         [](const auto& test) { return std::string(test.param.what); });

TEST(ParamSelectSecondList, ReplacesRowsAndTicks)
{
    ParamSelectRig rig;
    rig.list({kNox, kCo}).tick({2, 3});
    rig.list({kNox, kCo});
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT1 --", "[ ] NOx", "[ ] CO"}));
    EXPECT_EQ(rig.tool.GetSelection(), std::nullopt);
}

TEST(ParamSelectSecondList, OfFewerRowsLeavesNoneOfTheFirst)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters).tick({6});
    rig.list({kSo2});
    EXPECT_EQ(rowsOf(rig.tool), (Rows{unitRow(kHeader3, "GT3"), parameterRow(kSo2, "SO2")}));
    EXPECT_EQ(visibleIndexes(rig.tool), (Indexes{0, 1}));
    EXPECT_EQ(rig.tool.jgexGrid.RowCount(), 2);
}

TEST(ParamSelectSecondList, OfFewerRowsIsFilteredByUnitAtOnce)
{
    ParamSelectRig rig;
    rig.withoutAllUnits().filtered().list({kSo2, kLoad, kFlow, kNox, kCo, kO2});
    rig.tool.cmbUnit.Pick(2);
    rig.list({kNox, kLoad});
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{"GT1", "GT2"}));
    EXPECT_EQ(view(rig.tool), Lines{"[ ] NOx"});
}

TEST(ParamSelectSecondList, IsNotMixedWithTheFirstWhileItIsShown)
{
    ParamSelectRig rig;
    rig.withoutAllUnits().filtered().list(kFiveParameters);
    rig.tool.jgexGrid.Changed.Connect([&] { EXPECT_NO_THROW(view(rig.tool)); });
    rig.list({kSo2});
    EXPECT_EQ(view(rig.tool), Lines{"[ ] SO2"});
}

TEST(ParamSelectSecondList, BehindAnEmptyOneReplacesTheOldRows)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters).tick({2}).list({}).list({kLoad});
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT2 --", "[ ] Load"}));
    EXPECT_EQ(rig.tool.rows().all().items().size(), 2U);
}

TEST(ParamSelectWithoutData, ListsNoPIDs)
{
    ParamSelect tool;
    EXPECT_EQ(errorOf([&] { return tool.SetParamList(PIDs{kNox}), 0; }), 91);
    EXPECT_EQ(errorOf([&] { return tool.SetParamList(PIDs{kNox}, true), 0; }), 91);
    EXPECT_EQ(errorOf([&] { return tool.SetParamList(PIDs{}), 0; }), 0);
}

TEST(ParamSelectWithoutData, CannotNameTheUnitsOfACollection)
{
    ParamSelect tool;
    const auto parameters = collectionOf(siteOfThreeUnits(), {kNox});
    EXPECT_EQ(errorOf([&] { return tool.SetParamList(parameters), 0; }), 91);
}

TEST(ParamSelectWithoutData, ListsACollectionWithUnitsWhoseCellsStayUnset)
{
    ParamSelect tool;
    tool.SetParamList(collectionOf(siteOfThreeUnits(), {kGT1, kNox}), true);
    EXPECT_EQ(tool.rows().Count(), 2);
    EXPECT_EQ(view(tool), (Lines{"(unset)", "(unset)"}));
    tool.SelectAll();
    EXPECT_EQ(selectionOf(tool), (PIDs{kGT1, kNox}));
}

TEST(ParamSelectWithoutData, ShowsTheCellsOnceThereIsSome)
{
    ParamSelectRig rig;
    ParamSelect tool;
    tool.jgexGrid.TextWidth = rig.tool.jgexGrid.TextWidth;
    tool.SetParamList(collectionOf(rig.site, {kGT1, kNox}), true);
    tool.SetDIServer(serve(rig.site));
    EXPECT_EQ(view(tool), (Lines{"-- GT1 --", "[ ] NOx"}));
}

} // namespace k7deval::test
