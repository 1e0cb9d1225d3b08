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

struct ListCase {
    const char* what;
    PIDs pids;
    bool hasUnits;
    Rows rows;
};

const ParamRow kNoxRow = parameterRow(kNox, "NOx");
const ParamRow kCoRow = parameterRow(kCo, "CO");
const ParamRow kLoadRow = parameterRow(kLoad, "Load");

// Without units in the list a PID of another unit than the last opens a header of that unit.
const ListCase kLists[] = {
    {"two units",
     kFiveParameters,
     false,
     {unitRow(kHeader1, "GT1"), kNoxRow, kCoRow, parameterRow(kO2, "O2"), unitRow(kHeader2, "GT2"),
      kLoadRow, parameterRow(kFlow, "Flow")}},
    {"a unit that comes back",
     {kNox, kLoad, kCo},
     false,
     {unitRow(kHeader1, "GT1"), kNoxRow, unitRow(kHeader2, "GT2"), kLoadRow,
      unitRow(kHeader1, "GT1"), kCoRow}},
    {"the unit of number nought",
     {kOpacity},
     false,
     {unitRow(0, "Common"), parameterRow(kOpacity, "Opacity")}},
    {"units among the PIDs, which are dropped but open a header",
     {kGT1, kNox, kGT1, kGT2},
     false,
     {unitRow(kHeader1, "GT1"), kNoxRow, unitRow(kHeader2, "GT2")}},
    {"a PID twice", {kNox, kNox}, false, {unitRow(kHeader1, "GT1"), kNoxRow, kNoxRow}},
    {"units of the list's own",
     {kNox, kGT2, kLoad, kGT1},
     true,
     {kNoxRow, unitRow(kGT2, "GT2"), kLoadRow, unitRow(kGT1, "GT1")}},
};

TEST(ParamSelectList, GivesTheRowsOfItsPIDsOrParameters)
{
    for (const ListCase& row : kLists) {
        ParamSelectRig rig;
        rig.tool.SetParamList(row.pids, row.hasUnits);
        EXPECT_EQ(rowsOf(rig.tool), row.rows) << row.what;
        EXPECT_EQ(rig.site->countCalls("DIServer.StatusCodes") == 0, row.hasUnits) << row.what;
        ParamSelectRig other;
        other.tool.SetParamList(collectionOf(other.site, row.pids), row.hasUnits);
        EXPECT_EQ(rowsOf(other.tool), row.rows) << row.what << ", as parameters";
    }
}

TEST(ParamSelectList, PIDsThatDoNotExistAreSkippedAndOpenNoHeader)
{
    ParamSelectRig rig;
    rig.list({kUnknown, kLoad, kUnknown, kFlow, 0, -1});
    EXPECT_EQ(viewText(rig.tool), "-- GT2 --, [ ] Load, [ ] Flow");
    rig.listWithUnits({kUnknown, kLoad});
    EXPECT_EQ(viewText(rig.tool), "[ ] Load");
}

TEST(ParamSelectList, EachRowOfAPIDListedTwiceIsTickedByItself)
{
    ParamSelectRig rig;
    rig.list({kNox, kNox}).tick({3});
    EXPECT_EQ(viewText(rig.tool), "-- GT1 --, [ ] NOx, [x] NOx");
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

TEST(ParamSelectSecondList, ReplacesRowsAndTicksAndLeavesNoneOfTheFirst)
{
    ParamSelectRig rig;
    rig.list({kNox, kCo}).tick({2, 3}).list({kNox, kCo});
    EXPECT_EQ(viewText(rig.tool), "-- GT1 --, [ ] NOx, [ ] CO");
    EXPECT_EQ(rig.tool.GetSelection(), std::nullopt);
    for (const bool emptyBetween : {false, true}) {
        rig.list(kFiveParameters).tick({6});
        if (emptyBetween)
            rig.list({});
        rig.list({kSo2});
        EXPECT_EQ(rowsOf(rig.tool), (Rows{unitRow(kHeader3, "GT3"), parameterRow(kSo2, "SO2")}));
        EXPECT_EQ(visibleIndexes(rig.tool), (Indexes{0, 1}));
        EXPECT_EQ(viewText(rig.tool), "-- GT3 --, [ ] SO2");
    }
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
