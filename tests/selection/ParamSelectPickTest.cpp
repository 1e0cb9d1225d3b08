#include "selection/SelectionRig.h"

#include <gtest/gtest.h>

#include <ostream>

/// What is on view for each entry of the filter, with and without headers.
namespace k7deval::test
{

namespace
{

/// What a host and its user do, whether headers are wanted behind it, and the rows on view.
struct ViewCase {
    const char* what;
    void (*steps)(ParamSelectRig& rig);
    bool headers;
    const char* shown;
};

void PrintTo(const ViewCase& row, std::ostream* out)
{
    *out << row.what;
}

const PIDs kTwo = {kNox, kLoad}; ///< One parameter each of GT1 and GT2.
constexpr const char* kTwoShown = "-- GT1 --, [ ] NOx, -- GT2 --, [ ] Load";

// The filter has the entries "===All Units===", GT1 and GT2, unless a row says otherwise.
const ViewCase kViews[] = {
    // A picked unit shows its own parameters without a header.
    {"APickOfAnotherUnitShowsThatOne",
     [](auto& r) { r.filtered().list(kFiveParameters).pick(2).pick(1); }, false,
     "[ ] NOx, [ ] CO, [ ] O2"},
    {"APickOfAllUnitsShowsTheHeadersAgain",
     [](auto& r) { r.filtered().list(kTwo).pick(2).pick(0); }, true, kTwoShown},
    {"APickKeepsTheTicks", [](auto& r) { r.filtered().list(kFiveParameters).ticks(3, 7).pick(2); },
     false, "[ ] Load, [x] Flow"},
    {"TicksOfAPickedUnitStandAmongAllUnits",
     [](auto& r) { r.filtered().list(kFiveParameters).ticks(3, 7).pick(2).ticks(1).pick(0); }, true,
     "-- GT1 --, [ ] NOx, [x] CO, [ ] O2, -- GT2 --, [x] Load, [x] Flow"},
    {"APickOfTheUnitOfNumberNoughtShowsItsParameters",
     [](auto& r) { r.filtered().listOf(kOpacity, kNox).pick(1); }, false, "[ ] Opacity"},
    {"AUnitFromTheListFindsItsParametersByTheNumberInThePID",
     [](auto& r) { r.filtered().withUnits(kGT2, kLoad, kGT1, kNox, kFlow).pick(1); }, false,
     "[ ] Load, [ ] Flow"},
    {"APickOfAnUnpopulatedUnitShowsNothing",
     [](auto& r) { r.unpopulated().filtered().withUnits(kGT1, kNox, kGT2).pick(2); }, false, ""},
    {"APickByTheHostIsLikeOneByTheUser",
     [](auto& r) { r.filtered().list(kFiveParameters).tool.cmbUnit.SetListIndex(2); }, false,
     "[ ] Load, [ ] Flow"},
    {"APickOfAllUnitsUndoesTheHeadersOfTheHost",
     [](auto& r) { r.filtered().list(kTwo).headers(false).pick(0); }, true, kTwoShown},
    {"APickOfAUnitUndoesTheHeadersOfTheHost",
     [](auto& r) { r.filtered().list(kTwo).pick(2).headers(true).pick(2); }, false, "[ ] Load"},
    // All units group the rows by unit; what stands ahead of its unit in the list comes behind it.
    {"AllUnitsGroupTheRowsEvenIfTheListDoesNot",
     [](auto& r) { r.filtered().withUnits(kGT2, kLoad, kNox, kGT1, kCo, kFlow); }, true,
     "-- GT2 --, [ ] Load, [ ] Flow, [ ] NOx, -- GT1 --, [ ] CO"},
    {"AllUnitsHideTheRowsOfAUnitThatLeftTheFilter",
     [](auto& r) { r.filtered().withUnits(kGT1, kGT2, kLoad, kThirdUnit, kSo2, kNox); }, true,
     "-- GT2 --, [ ] Load, -- GT3 --, [ ] SO2"},
    {"AllUnitsShowTheRowsOfAUnitThatCameBackToTheFilter",
     [](auto& r) {
         r.filtered().withUnits(kGT1, kGT2, kLoad, kThirdUnit, kSo2, kNox).unpopulated();
     },
     true, "-- GT1 --, [ ] NOx, -- GT2 --, [ ] Load, -- GT3 --, [ ] SO2"},
    {"AllUnitsHideTheRowsOfAUnitThatTheListDoesNotBring",
     [](auto& r) { r.filtered().withUnits(kGT1, kNox, kSo2, kGT2, kLoad); }, true, kTwoShown},
    {"WithoutAFilterTheRowsAreInListOrder",
     [](auto& r) { r.withUnits(kGT2, kLoad, kNox, kGT1, kCo); }, true,
     "-- GT2 --, [ ] Load, [ ] NOx, -- GT1 --, [ ] CO"},
    // A filter that is shown behind the list is empty until it is filled.
    {"AFilterShownBehindTheListLeavesTheRows", [](auto& r) { r.list(kTwo).filtered(); }, true,
     kTwoShown},
    {"AFilterWithoutUnitsShowsNoRowsOnceTheyAreSoughtAnew",
     [](auto& r) { r.list(kTwo).filtered().headers(true); }, true, ""},
    {"HeadersLeaveTheRowsOnViewNotThoseOfTheFilter",
     [](auto& r) { r.list(kTwo).filtered().headers(false); }, false, "[ ] NOx, [ ] Load"},
    {"AFilterWithNothingSelectedCountsAsAllUnits",
     [](auto& r) {
         r.filtered().list(kTwo).pick(2).tool.cmbUnit.SetListIndex(-1);
         r.headers(true);
     },
     true, kTwoShown},
    {"AFilterWithNothingSelectedTakesItsFirstEntryForAllUnitsEvenIfItIsAUnit",
     [](auto& r) {
         r.withoutAllUnits().filtered().list(kTwo).tool.cmbUnit.SetListIndex(-1);
         r.headers(true);
     },
     true, "-- GT2 --, [ ] Load"},
    {"AFilterThatIsHiddenLeavesTheRowsAsTheyWere",
     [](auto& r) { r.filtered().list(kFiveParameters).pick(2).filtered(false); }, false,
     "[ ] Load, [ ] Flow"},
    {"AHiddenFilterLeavesNothingOutOnceTheRowsAreSoughtAnew",
     [](auto& r) { r.filtered().list(kTwo).pick(2).filtered(false).headers(true); }, true,
     kTwoShown},
    // The host's own headers.
    {"HeadersOfAHostAreSetBeforeTheList", [](auto& r) { r.headers(false).list(kTwo); }, false,
     "[ ] NOx, [ ] Load"},
    {"HeadersOfAHostShowOverAPickedUnit",
     [](auto& r) { r.filtered().list(kTwo).pick(2).headers(true); }, true, "-- GT2 --, [ ] Load"},
    {"HeadersThatLeaveKeepTheTicks",
     [](auto& r) { r.list(kFiveParameters).ticks(6).headers(false); }, false,
     "[ ] NOx, [ ] CO, [ ] O2, [x] Load, [ ] Flow"},
};

} // namespace

class ParamSelectView : public ::testing::TestWithParam<ViewCase>
{
};

TEST_P(ParamSelectView, IsThatOfTheFilterAndTheHeaders)
{
    ParamSelectRig rig;
    GetParam().steps(rig);
    EXPECT_EQ(viewText(rig.tool), GetParam().shown);
    EXPECT_EQ(rig.tool.OffsetUnits(), GetParam().headers);
}

INSTANTIATE_TEST_SUITE_P(, ParamSelectView, ::testing::ValuesIn(kViews),
                         [](const auto& test) { return std::string(test.param.what); });

TEST(ParamSelectPick, OfAUnitNumbersItsRowsFromOne)
{
    ParamSelectRig rig;
    rig.filtered().list(kFiveParameters).pick(2);
    EXPECT_EQ(visibleIndexes(rig.tool), (Indexes{5, 6}));
    EXPECT_EQ(viewText(rig.tool), "[ ] Load, [ ] Flow");
}

TEST(ParamSelectPick, OfTheUnitOfNumberNoughtIsThatOfItemDataNought)
{
    ParamSelectRig rig;
    rig.filtered().listOf(kOpacity, kNox).pick(1);
    EXPECT_EQ(rig.tool.cmbUnit.ItemData(), 0);
}

TEST(ParamSelectAllUnits, ShowsTheRowsOfAUnitOnceForEachOfItsHeaders)
{
    ParamSelectRig rig;
    rig.filtered().listOf(kNox, kLoad, kCo).ticks(2);
    EXPECT_EQ(visibleIndexes(rig.tool), (Indexes{0, 1, 4, 5, 2, 3, 0, 1, 4, 5}));
    EXPECT_EQ(selectionOf(rig.tool), (PIDs{kNox, kNox}));
}

TEST(ParamSelectShownFilter, IsEmptyUntilItIsFilled)
{
    ParamSelectRig rig;
    rig.list(kTwo).filtered();
    EXPECT_EQ(rig.tool.cmbUnit.listCount(), 0);
    rig.unpopulated(false);
    EXPECT_EQ(rig.tool.cmbUnit.listCount(), 3);
    EXPECT_EQ(rig.tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(viewText(rig.tool), kTwoShown);
    EXPECT_EQ(rig.headers(true).tool.GetSelection(), std::nullopt);
}

TEST(ParamSelectHeaders, LeaveAndComeBackWithTheirRows)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters).ticks(6).headers(false);
    EXPECT_EQ(visibleIndexes(rig.tool), (Indexes{1, 2, 3, 5, 6}));
    rig.headers(true);
    EXPECT_EQ(visibleIndexes(rig.tool), (Indexes{0, 1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(view(rig.tool)[5], "[x] Load");
}

} // namespace k7deval::test
