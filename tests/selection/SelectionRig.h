#pragma once

#include "selection/ParamSelect.h"
#include "selection/SingleParamSelect.h"
#include "support/HourlySite.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace k7deval::test
{

using Lines = std::vector<std::string>;

/// The entry of a filter that lets all parameters through.
inline const std::string kAll = "===All Units===";
using PIDs = std::vector<PID>;
using Indexes = std::vector<std::int32_t>;

/// Three units and a common one of number 0, with their parameters.
inline constexpr PID kCommon = 100'000;
inline constexpr PID kOpacity = 10'007'500; ///< 0-100-0-75-00
inline constexpr PID kNox = 110'007'500;    ///< 1-100-0-75-00
inline constexpr PID kCo = 114'007'500;     ///< 1-140-0-75-00
inline constexpr PID kO2 = 122'007'500;     ///< 1-220-0-75-00
inline constexpr PID kLoad = 260'207'500;   ///< 2-602-0-75-00
inline constexpr PID kFlow = 225'007'500;   ///< 2-250-0-75-00
inline constexpr PID kThirdUnit = 300'100'000;
inline constexpr PID kSo2 = 311'007'500; ///< 3-110-0-75-00
/// No parameter of the site, though of its first unit.
inline constexpr PID kUnknown = 199'907'500;

/// The header rows that a list without units of its own gets.
inline constexpr PID kHeader1 = 100'000'000;
inline constexpr PID kHeader2 = 200'000'000;
inline constexpr PID kHeader3 = 300'000'000;

/// Three parameters of GT1, then two of GT2.
inline const PIDs kFiveParameters = {kNox, kCo, kO2, kLoad, kFlow};

std::shared_ptr<SiteData> siteOfThreeUnits();

/// The parameters with these PIDs, as the data interface hands them out.
DIParameterList collectionOf(const std::shared_ptr<SiteData>& site, const PIDs& pids);

/// The items of VisibleRows, whose keys must be 1, 2, 3, ...
Indexes visibleIndexes(const ParamSelect& tool);

/// What stands in the grid, row by row: "[x] CO" or "[ ] CO", and the second cell alone where the
/// first is unset.
Lines view(const ParamSelect& tool);

/// The ticked PIDs on view; none for Empty, which never comes as an array without entry.
PIDs selectionOf(const ParamSelect& tool);

/// The same on one line: "-- GT1 --, [ ] NOx, [x] CO".
std::string viewText(const ParamSelect& tool);

/// The entries of a box on one line: "GT1, GT2".
std::string entriesOf(const screen::ComboBox& box);

/// A control of the selection on the site. The list of parameters is measured by a font so wide
/// that a header has no more dashes than it needs.
template <class Tool> struct SelectionRig {
    SelectionRig()
    {
        if constexpr (requires { tool.jgexGrid; })
            tool.jgexGrid.TextWidth = [](const std::string&) { return 1e6F; };
        tool.SetDIServer(serve(site));
    }
    SelectionRig(const SelectionRig&) = delete;
    SelectionRig& operator=(const SelectionRig&) = delete;
    ~SelectionRig() = default;

    SelectionRig& filtered(bool on = true)
    {
        tool.SetShowUnitCombo(on);
        return *this;
    }
    SelectionRig& withoutAllUnits()
    {
        tool.SetAllUnitsInCombo(false);
        return *this;
    }
    SelectionRig& unpopulated(bool on = true)
    {
        tool.SetShowUnpopulatedUnits(on);
        return *this;
    }
    SelectionRig& withPIDs(bool on = true)
    {
        tool.SetShowPIDNumber(on);
        return *this;
    }
    /// The host shows or hides the headers of a list to tick.
    SelectionRig& headers(bool on)
    {
        tool.SetOffsetUnits(on);
        return *this;
    }
    /// Headers are made where the unit changes.
    SelectionRig& list(const PIDs& pids)
    {
        tool.SetParamList(pids);
        return *this;
    }
    /// The list brings its own units.
    SelectionRig& listWithUnits(const PIDs& pids)
    {
        tool.SetParamList(pids, true);
        return *this;
    }
    /// The same two for PIDs one by one.
    template <class... Each> SelectionRig& listOf(Each... pids) { return list({pids...}); }
    template <class... Each> SelectionRig& withUnits(Each... pids)
    {
        return listWithUnits({pids...});
    }
    /// The user picks an entry of the filter.
    SelectionRig& pick(std::int32_t entry)
    {
        tool.cmbUnit.Pick(entry);
        return *this;
    }
    SelectionRig& tick(const Indexes& gridRows)
    {
        for (const std::int32_t row : gridRows)
            tool.jgexGrid.Edit(row, true);
        return *this;
    }
    template <class... Each> SelectionRig& ticks(Each... rows) { return tick({rows...}); }

    std::shared_ptr<SiteData> site = siteOfThreeUnits();
    Tool tool;
};

using ParamSelectRig = SelectionRig<ParamSelect>;  ///< The list to tick.
using SingleRig = SelectionRig<SingleParamSelect>; ///< The drop-down boxes.

} // namespace k7deval::test
