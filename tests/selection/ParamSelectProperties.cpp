#include "selection/SelectionRig.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <optional>

/// What holds for any list and any course of actions on it.
namespace k7deval::test
{

namespace
{

const PIDs kAnyPIDs = {kCommon, kOpacity, kGT1,  kNox,       kCo,  kO2,
                       kGT2,    kLoad,    kFlow, kThirdUnit, kSo2, kUnknown};

enum class Act {
    List,
    ListWithUnits,
    Pick,
    ShowHeaders,
    ShowFilter,
    ShowUnpopulated,
    ShowPIDs,
    Edit,
    DoubleClick,
    SelectAll,
    DeselectAll,
    Count
};

struct Action {
    Act act = Act::List;
    std::int32_t number = 0;
    bool on = false;
    PIDs list;
};

/// Short: a unit that comes back shows its rows each time, so long lists have very many on view.
rc::Gen<PIDs> anyList()
{
    constexpr int kLongest = 20;
    return rc::gen::resize(kLongest, rc::gen::container<PIDs>(rc::gen::elementOf(kAnyPIDs)));
}

rc::Gen<Action> anyAction()
{
    const auto act = rc::gen::map(rc::gen::inRange(0, static_cast<int>(Act::Count)),
                                  [](int number) { return static_cast<Act>(number); });
    return rc::gen::build<Action>(rc::gen::set(&Action::act, act),
                                  rc::gen::set(&Action::number, rc::gen::inRange(0, 12)),
                                  rc::gen::set(&Action::on, rc::gen::arbitrary<bool>()),
                                  rc::gen::set(&Action::list, anyList()));
}

void doubleClick(ParamSelect& tool, std::int32_t gridRow)
{
    if (!tool.VisibleRows().Exists(gridRow))
        return;
    tool.jgexGrid.MouseDown(gridRow, 2);
    tool.jgexGrid.DoubleClick();
}

void actOnList(ParamSelectRig& rig, const Action& action)
{
    auto& tool = rig.tool;
    switch (action.act) {
    case Act::List:
        rig.list(action.list);
        break;
    case Act::ListWithUnits:
        rig.listWithUnits(action.list);
        break;
    case Act::Pick:
        tool.cmbUnit.Pick(action.number);
        break;
    case Act::ShowHeaders:
        tool.SetOffsetUnits(action.on);
        break;
    case Act::ShowFilter:
        tool.SetShowUnitCombo(action.on);
        break;
    default:
        tool.SetShowUnpopulatedUnits(action.on);
    }
}

void actOnRows(ParamSelectRig& rig, const Action& action)
{
    auto& tool = rig.tool;
    switch (action.act) {
    case Act::ShowPIDs:
        tool.SetShowPIDNumber(action.on);
        break;
    case Act::Edit:
        tool.jgexGrid.Edit(action.number, action.on);
        break;
    case Act::DoubleClick:
        doubleClick(tool, action.number);
        break;
    case Act::SelectAll:
        tool.SelectAll();
        break;
    default:
        tool.DeselectAll();
    }
}

/// Whether the rows, or which of them are on view, may change by it.
bool isAboutTheList(Act act)
{
    return act < Act::ShowPIDs;
}

void act(ParamSelectRig& rig, const Action& action)
{
    if (isAboutTheList(action.act))
        actOnList(rig, action);
    else
        actOnRows(rig, action);
}

/// Whether the rows on view have just been sought anew.
bool isSoughtAnew(const ParamSelect& tool, const Action& action)
{
    const bool hasRows = tool.rows().Count() > 0;
    switch (action.act) {
    case Act::List:
    case Act::ListWithUnits:
    case Act::ShowUnpopulated:
        return hasRows;
    case Act::ShowHeaders:
        return hasRows && action.on;
    default:
        return false;
    }
}

/// What the rows, their ticks and the filter say must be on view, by unit.
Indexes expectedOnView(const ParamSelect& tool)
{
    Indexes expected;
    const auto addRowsOf = [&](std::optional<std::int32_t> unit) {
        for (std::int32_t index = 0; index < tool.rows().Count(); ++index) {
            const ParamRow& row = tool.rows()[index];
            const bool isOfUnit = !unit || row.pid / 100'000'000 == *unit / 100'000'000;
            if (isOfUnit && (!row.isUnit || tool.OffsetUnits()))
                expected.push_back(index);
        }
    };
    const auto& filter = tool.cmbUnit;
    if (!tool.ShowUnitCombo())
        addRowsOf(std::nullopt);
    else if (filter.ListIndex() > 0)
        addRowsOf(filter.ItemData());
    else
        std::for_each(filter.itemDataList().begin() + std::min(1, filter.listCount()),
                      filter.itemDataList().end(), addRowsOf);
    return expected;
}

PIDs tickedOnView(const ParamSelect& tool)
{
    PIDs ticked;
    for (const std::int32_t index : visibleIndexes(tool)) {
        if (tool.rows()[index].isSelected)
            ticked.push_back(tool.rows()[index].pid);
    }
    return ticked;
}

void expectSoundList(const ParamSelect& tool)
{
    const Indexes visible = visibleIndexes(tool);
    Indexes numbers(visible.size());
    std::iota(numbers.begin(), numbers.end(), 1);
    RC_ASSERT(tool.VisibleRows().Keys() == numbers);
    RC_ASSERT(tool.jgexGrid.RowCount() == static_cast<std::int32_t>(visible.size()));
    RC_ASSERT(selectionOf(tool) == tickedOnView(tool));
    RC_ASSERT(tool.GetSelection().has_value() == !tickedOnView(tool).empty());
    RC_ASSERT(tool.cmbUnit.Visible() == tool.ShowUnitCombo());
    for (const std::int32_t index : visible) {
        RC_ASSERT(tool.rows().Count() == 0 || index < tool.rows().Count());
        RC_ASSERT(tool.rows().Count() == 0 || tool.OffsetUnits() || !tool.rows()[index].isUnit);
    }
}

void expectSoundCells(const ParamSelect& tool)
{
    const Indexes visible = visibleIndexes(tool);
    for (std::size_t i = 0; i < visible.size(); ++i) {
        const ParamRow& row = tool.rows()[visible[i]];
        const screen::GridCells cells = tool.jgexGrid.Cells(static_cast<std::int32_t>(i) + 1);
        const std::string text =
            tool.ShowPIDNumber() ? "[" + PIDToText(row.pid) + "] " + row.name : row.name;
        if (!row.isUnit)
            RC_ASSERT(cells == (screen::GridCells{row.isSelected, text}));
        else if (tool.OffsetUnits())
            RC_ASSERT(cells == (screen::GridCells{Empty{}, "-- " + row.name + " --"}));
        else
            RC_ASSERT(cells == screen::GridCells{});
    }
}

} // namespace

RC_GTEST_PROP(ParamSelectProperties, AnyCourseOfActionsLeavesASoundList, ())
{
    const auto actions = *rc::gen::container<std::vector<Action>>(anyAction());
    ParamSelectRig rig;
    for (const Action& action : actions) {
        act(rig, action);
        expectSoundList(rig.tool);
        expectSoundCells(rig.tool);
        if (isSoughtAnew(rig.tool, action))
            RC_ASSERT(visibleIndexes(rig.tool) == expectedOnView(rig.tool));
    }
}

RC_GTEST_PROP(ParamSelectProperties, AnyPickShowsTheRowsOfTheUnitAndKeepsAllTicks, ())
{
    ParamSelectRig rig;
    rig.filtered().list(*rc::gen::nonEmpty(anyList()));
    const auto actions = *rc::gen::container<std::vector<Action>>(anyAction());
    for (const Action& action : actions) {
        if (!isAboutTheList(action.act))
            act(rig, action);
        const auto rows = rig.tool.rows().all().items();
        const std::int32_t entry = *rc::gen::inRange(0, rig.tool.cmbUnit.listCount());
        rig.tool.cmbUnit.Pick(entry);
        RC_ASSERT(rig.tool.rows().all().items() == rows);
        if (!rig.tool.ShowUnitCombo() || rig.tool.rows().Count() == 0)
            continue;
        RC_ASSERT(rig.tool.OffsetUnits() == (entry == 0));
        RC_ASSERT(visibleIndexes(rig.tool) == expectedOnView(rig.tool));
    }
}

RC_GTEST_PROP(ParamSelectProperties, EveryParameterOfTheListHasARowBelowItsUnitInListOrder, ())
{
    const PIDs list = *anyList();
    ParamSelectRig rig;
    rig.list(list);
    PIDs parameters;
    std::int32_t unit = -1;
    for (const ParamRow& row : rig.tool.rows().all().items()) {
        RC_ASSERT(row.isUnit || row.pid / 100'000'000 == unit);
        RC_ASSERT(!row.isUnit || row.pid / 100'000'000 != unit);
        if (row.isUnit)
            unit = row.pid / 100'000'000;
        else
            parameters.push_back(row.pid);
    }
    PIDs expected;
    std::copy_if(list.begin(), list.end(), std::back_inserter(expected), [](PID pid) {
        return pid != kUnknown && pid != kCommon && pid != kGT1 && pid != kGT2 && pid != kThirdUnit;
    });
    RC_ASSERT(parameters == expected);
}

RC_GTEST_PROP(ParamSelectProperties, AllUnitsShowAListThatIsGroupedByUnitAsItIs, ())
{
    const auto isListed =
        *rc::gen::container<std::vector<bool>>(kAnyPIDs.size(), rc::gen::arbitrary<bool>());
    PIDs list;
    for (std::size_t i = 0; i < kAnyPIDs.size(); ++i) {
        if (isListed[i])
            list.push_back(kAnyPIDs[i]);
    }
    ParamSelectRig rig;
    rig.tool.SetShowUnpopulatedUnits(true);
    rig.filtered().list(list);
    Indexes all;
    for (std::int32_t index = 0; index < rig.tool.rows().Count(); ++index)
        all.push_back(index);
    RC_ASSERT(visibleIndexes(rig.tool) == all);
}

RC_GTEST_PROP(SingleParamSelectProperties, WithoutTheFilterAnyListGivesItsParametersInOrder, ())
{
    const PIDs list = *anyList();
    const bool hasUnits = *rc::gen::arbitrary<bool>();
    SingleRig rig;
    rig.filtered(false).tool.SetParamList(list, hasUnits);
    PIDs expected;
    for (const ParamRow& row : rig.tool.rows().all().items()) {
        if (!row.isUnit)
            expected.push_back(row.pid);
    }
    RC_ASSERT(rig.tool.cmbPID.itemDataList() == expected);
    RC_ASSERT(rig.tool.cmbPID.ListIndex() == -1);
    for (std::int32_t entry = 0; entry < rig.tool.cmbPID.listCount(); ++entry) {
        rig.tool.cmbPID.Pick(entry);
        RC_ASSERT(rig.tool.GetSelection() == expected[static_cast<std::size_t>(entry)]);
    }
}

} // namespace k7deval::test
