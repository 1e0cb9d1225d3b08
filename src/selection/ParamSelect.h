#pragma once

#include "foundation/DataInterface.h"
#include "foundation/OrderedMap.h"
#include "screen/ComboBox.h"
#include "screen/Container.h"
#include "screen/Grid.h"
#include "selection/ParamRows.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace k7deval
{

/// Lets a user tick several parameters of a list that the host supplies, under an optional filter
/// of units. Failures of the data pass on to the host.
class ParamSelect : public screen::Control
{
public:
    ParamSelect();

    [[nodiscard]] bool AllUnitsInCombo() const { return allUnitsInCombo_; }
    /// Takes effect the next time the filter is filled.
    void SetAllUnitsInCombo(bool value) { allUnitsInCombo_ = value; }
    [[nodiscard]] bool OffsetUnits() const { return offsetUnits_; }
    /// Shows units as header rows. The next pick of a unit sets it anew.
    void SetOffsetUnits(bool value);
    [[nodiscard]] bool ShowPIDNumber() const { return showPIDNumber_; }
    void SetShowPIDNumber(bool value);
    [[nodiscard]] bool MultiSelect() const { return multiSelect_; }
    void SetMultiSelect(bool value);
    [[nodiscard]] bool ShowUnpopulatedUnits() const { return showUnpopulatedUnits_; }
    void SetShowUnpopulatedUnits(bool value);
    [[nodiscard]] bool ShowUnitCombo() const { return showUnitCombo_; }
    void SetShowUnitCombo(bool value);
    [[nodiscard]] std::shared_ptr<k7deval::DIServer> DIServer() const { return server_; }
    /// Handing over nothing keeps the data that was there.
    void SetDIServer(std::shared_ptr<k7deval::DIServer> server);

    /// The unit that the filter is set to; empty without a filter and for its first entry.
    [[nodiscard]] std::string GetUnitName() const;
    /// Ticks all rows that are shown, units as well.
    void SelectAll() { selectVisible(true); }
    void DeselectAll() { selectVisible(false); }
    /// Loads the rows; see ParamRows.
    void SetParamList(const ParamList& varParamList, bool blnUnitNamesInList = false);
    /// The ticked rows that are shown, in their order; no list when there are none.
    [[nodiscard]] std::optional<std::vector<PID>> GetSelection() const;

    /// Ends the control's life: drops the data and the rows that are shown.
    void Terminate();
    /// Gives the control a new size in twips.
    void Resize(float width, float height);

    [[nodiscard]] const ParamRows& rows() const { return rows_; }
    /// Index into the rows by row of the grid, from 1.
    [[nodiscard]] const OrderedMap<std::int32_t, std::int32_t>& VisibleRows() const
    {
        return visibleRows_;
    }

    screen::ComboBox cmbUnit{*this, "cmbUnit"};
    screen::Grid jgexGrid{*this, "jgexGrid"};

private:
    void connectRules();
    void fillUnits();
    void unitRule();
    void rebuildVisibleRows();
    void show(std::int32_t index);
    void showRowsOf(PID unit);
    void readGrid();
    void readGridKeepingRow();
    void placeGrid();
    void selectVisible(bool selected);
    void toggle();

    [[nodiscard]] screen::GridCells cellsOf(std::int32_t gridRow) const;
    [[nodiscard]] std::string headerText(const std::string& unit) const;

    std::shared_ptr<k7deval::DIServer> server_;
    ParamRows rows_;
    OrderedMap<std::int32_t, std::int32_t> visibleRows_;
    bool allUnitsInCombo_ = true;
    bool offsetUnits_ = true;
    bool showPIDNumber_ = false;
    bool multiSelect_ = false;
    bool showUnpopulatedUnits_ = false;
    bool showUnitCombo_ = false;
    std::int32_t pressedRow_ = 0;
    std::int32_t pressedColumn_ = 0;
};

} // namespace k7deval
