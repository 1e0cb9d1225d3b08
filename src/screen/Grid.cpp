#include "screen/Grid.h"

#include "foundation/Error.h"

#include <utility>

namespace k7deval::screen
{

namespace
{

/// About what a letter of a screen font takes, until a view measures it.
constexpr float kLetterWidth = 90;

float roughWidth(const std::string& text)
{
    return kLetterWidth * static_cast<float>(text.size());
}

PropertyValue valueOf(const Variant& cell)
{
    if (const auto* mark = std::get_if<bool>(&cell))
        return {*mark};
    const auto* text = std::get_if<std::string>(&cell);
    return {text == nullptr ? std::string() : *text};
}

} // namespace

Grid::Grid(Container& parent, std::string name)
    : Widget(&parent, std::move(name)), TextWidth(roughWidth)
{
}

GridCells Grid::Cells(std::int32_t row) const
{
    if (row < 1 || row > rowCount_)
        throw Error(errors::kInvalidArrayIndex);
    return ReadRow ? ReadRow(row) : GridCells{};
}

float Grid::ColumnWidth(std::int32_t column) const
{
    if (column != 1 && column != 2)
        throw Error(errors::kInvalidArrayIndex);
    return column == 1 ? firstWidth_ : secondWidth_;
}

void Grid::Edit(std::int32_t row, bool value)
{
    if (!isReachable() || row < 1 || row > rowCount_)
        return;
    MoveTo(row, 1);
    if (WriteRow)
        WriteRow(row, value);
    Edited.raise();
}

void Grid::MoveTo(std::int32_t row, std::int32_t column)
{
    if (!isReachable())
        return;
    const bool isOtherRow = update(row_, row);
    const bool isOtherColumn = update(column_, column);
    if (isOtherRow || isOtherColumn)
        CurrentCellChanged.raise();
}

void Grid::MouseDown(std::int32_t row, std::int32_t column)
{
    if (isReachable())
        MousePressed.raise(row, column);
}

void Grid::DoubleClick()
{
    if (isReachable())
        DoubleClicked.raise();
}

PropertyList Grid::Properties() const
{
    PropertyList properties = Widget::Properties();
    properties.push_back({"RowCount", {rowCount_}});
    properties.push_back({"Row", {row_}});
    properties.push_back({"Col", {column_}});
    properties.push_back({"MultiSelect", {multiSelect_}});
    PropertyValues rows;
    for (std::int32_t row = 1; row <= rowCount_; ++row) {
        const GridCells cells = Cells(row);
        rows.push_back({PropertyValues{valueOf(cells.first), valueOf(cells.second)}});
    }
    properties.push_back({"Cells", {std::move(rows)}});
    return properties;
}

} // namespace k7deval::screen
