#include "screen/TestScreen.h"
#include "selection/SelectionRig.h"

#include <gtest/gtest.h>

/// What is ticked and on view, and the name of the unit that the filter is set to.
namespace k7deval::test
{

/// What is done to a list, and the PIDs that are selected: ticked and on view, from top to bottom.
struct SelectionCase {
    const char* what;
    void (*steps)(ParamSelectRig& rig);
    PIDs selected;
};

void selectAll(ParamSelectRig& rig)
{
    rig.tool.SelectAll();
}

void deselectAll(ParamSelectRig& rig)
{
    rig.tool.DeselectAll();
}

const PIDs kNoPIDs;
const PIDs kAllOfFive = {kHeader1, kNox, kCo, kO2, kHeader2, kLoad, kFlow};
const PIDs kAllOfGT1 = {kHeader1, kNox, kCo, kO2, kHeader2};
const PIDs kLoadAndFlow = {kLoad, kFlow};
const PIDs kNoxAlone = {kNox};
const PIDs kLoadAlone = {kLoad};
const PIDs kNoxAndLoad = {kNox, kLoad};
const PIDs kO2First = {kO2, kNox, kLoad};
const PIDs kByUnit = {kLoad, kFlow, kNox, kCo, kSo2};
const PIDs kOfHeader = {kHeader1, kNox};
const PIDs kOfUnit = {kGT1, kNox};

// A filter has the entries "===All Units===", GT1 and GT2.
const SelectionCase kSelections[] = {
    {"nothing", [](auto& r) { r.list(kFiveParameters); }, kNoPIDs},
    // All and nothing are about the rows on view, the units among them.
    {"all", [](auto& r) { selectAll(r.list(kFiveParameters)); }, kAllOfFive},
    {"all without headers",
     [](auto& r) {
         selectAll(r.listOf(kNox, kLoad).headers(false));
         r.headers(true);
     },
     kNoxAndLoad},
    {"all under a filter",
     [](auto& r) {
         selectAll(r.filtered().list(kFiveParameters).pick(2));
         r.pick(0);
     },
     kLoadAndFlow},
    {"none",
     [](auto& r) {
         selectAll(r.list(kFiveParameters));
         deselectAll(r);
     },
     kNoPIDs},
    {"none under a filter",
     [](auto& r) {
         selectAll(r.filtered().list(kFiveParameters));
         deselectAll(r.pick(2));
         r.pick(0);
     },
     kAllOfGT1},
    // The order is that of the rows on view: not that of the ticks, nor that of the list.
    {"ticked from below", [](auto& r) { r.listOf(kO2, kNox, kLoad).ticks(5, 3, 2); }, kO2First},
    {"in the order on view",
     [](auto& r) {
         r.filtered().withUnits(kGT2, kGT1, kNox, kLoad, kThirdUnit, kSo2, kCo, kFlow);
         r.unpopulated().ticks(2, 3, 5, 6, 8);
     },
     kByUnit},
    // Ticked rows behind the filter and headers that are off don't count until they come back.
    {"of GT2", [](auto& r) { r.filtered().list(kFiveParameters).ticks(2, 6).pick(2); }, kLoadAlone},
    {"of GT1", [](auto& r) { r.filtered().list(kFiveParameters).ticks(2, 6).pick(2).pick(1); },
     kNoxAlone},
    {"of all again",
     [](auto& r) { r.filtered().list(kFiveParameters).ticks(2, 6).pick(2).pick(1).pick(0); },
     kNoxAndLoad},
    {"all behind the filter", [](auto& r) { r.filtered().list(kFiveParameters).ticks(2).pick(2); },
     kNoPIDs},
    {"a ticked header that is off",
     [](auto& r) { r.listOf(kNox, kLoad).ticks(1, 2).headers(false); }, kNoxAlone},
    {"a ticked header that came back",
     [](auto& r) { r.listOf(kNox, kLoad).ticks(1, 2).headers(false).headers(true); }, kOfHeader},
    {"a ticked unit of the list", [](auto& r) { r.withUnits(kGT1, kNox).ticks(1, 2); }, kOfUnit},
};

TEST(ParamSelectSelection, IsWhatIsTickedAndOnView)
{
    for (const SelectionCase& row : kSelections) {
        ParamSelectRig rig;
        row.steps(rig);
        EXPECT_EQ(selectionOf(rig.tool), row.selected) << row.what;
    }
}

TEST(ParamSelectSelection, OfAllOrNothingLetsTheGridReadOnce)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters);
    const Raised changed(rig.tool.jgexGrid.Changed);
    rig.tool.SelectAll();
    EXPECT_EQ(changed.count, 1);
    rig.tool.DeselectAll();
    EXPECT_EQ(changed.count, 2);
}

struct UnitNameCase {
    const char* what;
    void (*steps)(ParamSelectRig& rig);
    const char* name;
};

constexpr UnitNameCase kUnitNames[] = {
    {"a picked unit", [](auto& r) { r.filtered().list(kFiveParameters).pick(2); }, "GT2"},
    {"all units", [](auto& r) { r.filtered().list(kFiveParameters); }, ""},
    {"the first entry, though it is a unit",
     [](auto& r) { r.withoutAllUnits().filtered().list(kFiveParameters); }, ""},
    {"the second entry, a unit",
     [](auto& r) { r.withoutAllUnits().filtered().list(kFiveParameters).pick(1); }, "GT2"},
    {"a unit behind a filter that is off",
     [](auto& r) { r.filtered().list(kFiveParameters).pick(2).filtered(false); }, ""},
    {"a unit of a filter that came back",
     [](auto& r) { r.filtered().list(kFiveParameters).pick(2).filtered(false).filtered(); }, "GT2"},
    {"nothing selected", [](auto& r) { r.list(kFiveParameters).filtered(); }, ""},
};

TEST(ParamSelectUnitName, IsThatOfAPickedUnitBehindTheFirstEntry)
{
    for (const UnitNameCase& row : kUnitNames) {
        ParamSelectRig rig;
        row.steps(rig);
        EXPECT_EQ(rig.tool.GetUnitName(), row.name) << row.what;
    }
}

} // namespace k7deval::test
