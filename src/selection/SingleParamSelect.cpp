#include "selection/SingleParamSelect.h"

#include "foundation/PIDFunctions.h"

#include <optional>
#include <utility>

namespace k7deval
{

namespace
{

constexpr float kSingleWidth = 4590;
constexpr float kSingleHeight = 825;
constexpr float kSingleComboHeight = 315;
constexpr float kDesignTop = 420;
constexpr float kGapBelowUnit = 45;

} // namespace

SingleParamSelect::SingleParamSelect() : Control("SingleParamSelect")
{
    setPlace({0, 0, kSingleWidth, kSingleHeight});
    cmbUnit.setPlace({0, 0, kSingleWidth, kSingleComboHeight});
    cmbPID.setPlace({0, kDesignTop, kSingleWidth, kSingleComboHeight});
    cmbUnit.Picked.Connect([this] { fillParameters(); });
}

void SingleParamSelect::SetDIServer(std::shared_ptr<k7deval::DIServer> server)
{
    if (server)
        server_ = std::move(server);
}

void SingleParamSelect::SetParamList(const ParamList& varParamList, bool blnUnitNamesInList)
{
    rows_.load(server_, varParamList, blnUnitNamesInList);
    rows_.dropOld();
    fillBoth();
}

void SingleParamSelect::SetAllUnitsInCombo(bool value)
{
    allUnitsInCombo_ = value;
    fillBoth();
}

void SingleParamSelect::SetShowPIDNumber(bool value)
{
    showPIDNumber_ = value;
    fillParameters();
}

void SingleParamSelect::SetShowUnpopulatedUnits(bool value)
{
    showUnpopulatedUnits_ = value;
    fillBoth();
}

void SingleParamSelect::SetShowUnitCombo(bool value)
{
    showUnitCombo_ = value;
    fillBoth();
    cmbUnit.SetVisible(value);
    Resize(place().Width, place().Height);
}

void SingleParamSelect::Resize(float width, float height)
{
    setPlace({place().Left, place().Top, width, height});
    screen::Geometry unit = cmbUnit.place();
    unit.Width = width;
    if (cmbUnit.Visible())
        unit.Top = 0;
    cmbUnit.setPlace(unit);
    const float below = unit.Top + unit.Height + kGapBelowUnit;
    cmbPID.setPlace({0, cmbUnit.Visible() ? below : 0, width, cmbPID.place().Height});
}

void SingleParamSelect::fillBoth()
{
    fillUnits();
    fillParameters();
}

void SingleParamSelect::fillUnits()
{
    if (rows_.Count() == 0)
        return;
    if (!showUnitCombo_) {
        if (cmbUnit.listCount() == 1)
            hideUnits();
        return;
    }
    rows_.fillUnits(cmbUnit, {allUnitsInCombo_, showUnpopulatedUnits_});
    if (!allUnitsInCombo_)
        return;
    cmbUnit.SetListIndex(0);
    if (cmbUnit.listCount() == 2) {
        showUnitCombo_ = false;
        hideUnits();
    }
}

void SingleParamSelect::hideUnits()
{
    cmbUnit.SetVisible(false);
    cmbPID.move(cmbPID.place().Left, 0);
}

/// The item data of a picked unit is compared as a whole with the unit number of each row, which
/// it does not equal: the box comes up empty. Hosts know the control so.
void SingleParamSelect::fillParameters()
{
    if (rows_.Count() == 0)
        return;
    cmbPID.clear();
    const bool isFiltered = cmbUnit.Visible();
    const std::int32_t unit = isFiltered ? cmbUnit.ItemData() : kAllUnits;
    for (std::int32_t index = 0; index < rows_.Count(); ++index) {
        const ParamRow& row = rows_[index];
        const bool isWanted = unit == kAllUnits || PIDPart(row.pid, pidpart::kUnit) == unit;
        if (!row.isUnit && isWanted)
            cmbPID.addItem(entryOf(row, isFiltered && unit == kAllUnits), row.pid);
    }
}

std::string SingleParamSelect::entryOf(const ParamRow& row, bool withUnit) const
{
    std::string text = row.name;
    if (withUnit) {
        const auto statusCodes = present(server_).StatusCodes();
        text = present(statusCodes).UnitName(row.pid) + " " + text;
    }
    return showPIDNumber_ ? text + " " + PIDToText(row.pid) : text;
}

} // namespace k7deval
