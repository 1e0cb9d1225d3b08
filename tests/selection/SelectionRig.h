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

/// The list of parameters on the site, measured by a font so wide that a header has no more dashes
/// than it needs.
struct ParamSelectRig {
    ParamSelectRig()
    {
        tool.jgexGrid.TextWidth = [](const std::string&) { return 1e6F; };
        tool.SetDIServer(serve(site));
    }
    ParamSelectRig(const ParamSelectRig&) = delete;
    ParamSelectRig& operator=(const ParamSelectRig&) = delete;
    ~ParamSelectRig() = default;

    ParamSelectRig& filtered()
    {
        tool.SetShowUnitCombo(true);
        return *this;
    }
    ParamSelectRig& withoutAllUnits()
    {
        tool.SetAllUnitsInCombo(false);
        return *this;
    }
    /// Headers are made where the unit changes.
    ParamSelectRig& list(const PIDs& pids)
    {
        tool.SetParamList(pids);
        return *this;
    }
    /// The list brings its own units.
    ParamSelectRig& listWithUnits(const PIDs& pids)
    {
        tool.SetParamList(pids, true);
        return *this;
    }
    ParamSelectRig& tick(const Indexes& gridRows)
    {
        for (const std::int32_t row : gridRows)
            tool.jgexGrid.Edit(row, true);
        return *this;
    }

    std::shared_ptr<SiteData> site = siteOfThreeUnits();
    ParamSelect tool;
};

/// The drop-down boxes on the site.
struct SingleRig {
    SingleRig() { tool.SetDIServer(serve(site)); }
    SingleRig(const SingleRig&) = delete;
    SingleRig& operator=(const SingleRig&) = delete;
    ~SingleRig() = default;

    SingleRig& filtered(bool on = true)
    {
        tool.SetShowUnitCombo(on);
        return *this;
    }
    SingleRig& withoutAllUnits()
    {
        tool.SetAllUnitsInCombo(false);
        return *this;
    }
    SingleRig& list(const PIDs& pids)
    {
        tool.SetParamList(pids);
        return *this;
    }
    SingleRig& listWithUnits(const PIDs& pids)
    {
        tool.SetParamList(pids, true);
        return *this;
    }

    std::shared_ptr<SiteData> site = siteOfThreeUnits();
    SingleParamSelect tool;
};

} // namespace k7deval::test
