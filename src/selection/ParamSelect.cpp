#include "selection/ParamSelect.h"

#include "foundation/Error.h"
#include "foundation/PIDFunctions.h"

#include <cmath>
#include <utility>

namespace k7deval
{

namespace
{

constexpr float kDesignWidth = 3855;
constexpr float kDesignHeight = 3495;
constexpr float kComboHeight = 315;
constexpr float kGapBelowCombo = 45;
constexpr float kGridBorder = 60;
constexpr std::int32_t kCheckColumn = 1;

} // namespace

ParamSelect::ParamSelect() : Control("ParamSelect")
{
    cmbUnit.SetVisible(false);
    cmbUnit.setPlace({0, 0, kDesignWidth, kComboHeight});
    connectRules();
    Resize(kDesignWidth, kDesignHeight);
}

void ParamSelect::connectRules()
{
    cmbUnit.Picked.Connect([this] { unitRule(); });
    jgexGrid.ReadRow = [this](std::int32_t row) { return cellsOf(row); };
    jgexGrid.WriteRow = [this](std::int32_t row, bool value) {
        rows_.select(visibleRows_.Item(row), value);
    };
    jgexGrid.Edited.Connect([this] { readGridKeepingRow(); });
    jgexGrid.CurrentCellChanged.Connect([this] {
        if (jgexGrid.Col() <= 0)
            jgexGrid.SetCol(kCheckColumn);
    });
    jgexGrid.MousePressed.Connect([this](std::int32_t row, std::int32_t column) {
        pressedRow_ = row;
        pressedColumn_ = column;
    });
    jgexGrid.DoubleClicked.Connect([this] { toggle(); });
}

void ParamSelect::SetDIServer(std::shared_ptr<k7deval::DIServer> server)
{
    if (server)
        server_ = std::move(server);
}

void ParamSelect::Terminate()
{
    visibleRows_ = {};
    server_.reset();
}

void ParamSelect::SetParamList(const ParamList& varParamList, bool blnUnitNamesInList)
{
    rows_.load(server_, varParamList, blnUnitNamesInList);
    fillUnits();
    rebuildVisibleRows();
    rows_.dropOld();
    readGrid();
}

void ParamSelect::fillUnits()
{
    if (!showUnitCombo_)
        return;
    rows_.fillUnits(cmbUnit, {allUnitsInCombo_, showUnpopulatedUnits_});
    // A filter of one unit has no use.
    const bool isOneUnit = cmbUnit.listCount() == (allUnitsInCombo_ ? 2 : 1);
    if (allUnitsInCombo_ || !isOneUnit)
        cmbUnit.SetListIndex(0);
    if (isOneUnit)
        SetShowUnitCombo(false);
}

void ParamSelect::unitRule()
{
    SetOffsetUnits(cmbUnit.ItemData() == kAllUnits);
    rebuildVisibleRows();
    readGrid();
}

/// Without rows the old map stays, and with it what is on view.
void ParamSelect::rebuildVisibleRows()
{
    if (rows_.Count() == 0)
        return;
    visibleRows_ = {};
    const bool isUnitPicked =
        showUnitCombo_ && cmbUnit.ListIndex() != -1 && cmbUnit.ItemData() != kAllUnits;
    if (!showUnitCombo_) {
        for (std::int32_t index = 0; index < rows_.Count(); ++index)
            show(index);
    } else if (isUnitPicked) {
        showRowsOf(cmbUnit.ItemData());
    } else {
        const auto& units = cmbUnit.itemDataList();
        for (std::size_t entry = 1; entry < units.size(); ++entry)
            showRowsOf(units[entry]);
    }
}

/// Units are on view only as header rows.
void ParamSelect::show(std::int32_t index)
{
    if (!rows_[index].isUnit || offsetUnits_)
        visibleRows_.Add(static_cast<std::int32_t>(visibleRows_.Count()) + 1, index);
}

void ParamSelect::showRowsOf(PID unit)
{
    for (std::int32_t index = 0; index < rows_.Count(); ++index) {
        if (PIDPart(rows_[index].pid, pidpart::kUnit) == PIDPart(unit, pidpart::kUnit))
            show(index);
    }
}

void ParamSelect::SetOffsetUnits(bool value)
{
    offsetUnits_ = value;
    if (rows_.Count() == 0)
        return;
    if (value) {
        rebuildVisibleRows();
    } else {
        const auto before = std::exchange(visibleRows_, {});
        for (const auto& entry : before)
            show(entry.second);
    }
    readGrid();
}

void ParamSelect::SetShowPIDNumber(bool value)
{
    showPIDNumber_ = value;
    if (rows_.Count() > 0)
        jgexGrid.readAgain();
}

void ParamSelect::SetMultiSelect(bool value)
{
    jgexGrid.SetMultiSelect(value);
    multiSelect_ = value;
}

void ParamSelect::SetShowUnpopulatedUnits(bool value)
{
    showUnpopulatedUnits_ = value;
    fillUnits();
    rebuildVisibleRows();
    readGrid();
}

void ParamSelect::SetShowUnitCombo(bool value)
{
    showUnitCombo_ = value;
    cmbUnit.SetVisible(value);
    placeGrid();
}

/// The grid takes what the filter leaves of the control's height.
void ParamSelect::placeGrid()
{
    if (cmbUnit.Visible())
        cmbUnit.move(cmbUnit.place().Left, 0);
    screen::Geometry grid = jgexGrid.place();
    grid.Top = cmbUnit.Visible() ? cmbUnit.place().Height + kGapBelowCombo : 0;
    grid.Height = place().Height - grid.Top;
    jgexGrid.setPlace(grid);
}

void ParamSelect::Resize(float width, float height)
{
    setPlace({place().Left, place().Top, width, height});
    cmbUnit.setPlace({0, cmbUnit.place().Top, width, cmbUnit.place().Height});
    jgexGrid.setPlace({0, jgexGrid.place().Top, width, jgexGrid.place().Height});
    placeGrid();
    jgexGrid.setSecondColumnWidth(std::nearbyint(width - jgexGrid.ColumnWidth(kCheckColumn) -
                                                 kGridBorder - jgexGrid.ScrollBarWidth));
    jgexGrid.readAgain();
}

void ParamSelect::readGrid()
{
    jgexGrid.SetRowCount(static_cast<std::int32_t>(visibleRows_.Count()));
    jgexGrid.readAgain();
}

void ParamSelect::readGridKeepingRow()
{
    const std::int32_t row = jgexGrid.Row();
    jgexGrid.readAgain();
    jgexGrid.SetRow(row);
}

std::string ParamSelect::GetUnitName() const
{
    return showUnitCombo_ && cmbUnit.ListIndex() != 0 ? cmbUnit.Text() : std::string();
}

void ParamSelect::selectVisible(bool selected)
{
    for (const auto& entry : visibleRows_)
        rows_.select(entry.second, selected);
    jgexGrid.readAgain();
}

std::optional<std::vector<PID>> ParamSelect::GetSelection() const
{
    std::vector<PID> selected;
    for (const auto& entry : visibleRows_) {
        const ParamRow& row = rows_[entry.second];
        if (row.isSelected)
            selected.push_back(row.pid);
    }
    if (selected.empty())
        return std::nullopt;
    return selected;
}

/// The check box deals with a click on itself.
void ParamSelect::toggle()
{
    if (pressedColumn_ == kCheckColumn)
        return;
    const std::int32_t index = visibleRows_.Item(pressedRow_);
    if (!rows_[index].isUnit)
        rows_.select(index, !rows_[index].isSelected);
    readGridKeepingRow();
}

screen::GridCells ParamSelect::cellsOf(std::int32_t gridRow) const
{
    if (!server_)
        return {};
    const ParamRow& row = rows_[visibleRows_.Item(gridRow)];
    if (!row.isUnit)
        return {row.isSelected, showPIDNumber_ ? nameWithPID(row.pid, row.name) : row.name};
    if (!offsetUnits_)
        return {};
    return {Empty{}, headerText(row.name)};
}

/// The unit's name centred in a line of dashes, as wide as the column takes.
std::string ParamSelect::headerText(const std::string& unit) const
{
    const float width = jgexGrid.ColumnWidth(2);
    std::string text = "-- " + unit + " --";
    // No dash is thinner than a twip; a measure that does not grow with the text would never end.
    for (float dashes = 0; dashes < width && jgexGrid.TextWidth(" --" + text + "-- ") < width;
         dashes += 4)
        text.insert(0, "--").append("--");
    return text;
}

} // namespace k7deval
