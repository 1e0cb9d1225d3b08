#pragma once

#include "foundation/Variant.h"
#include "screen/Container.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace k7deval::screen
{

/// The two cells of a row: a check mark that the user can edit, and a text. Empty is an unset cell.
struct GridCells {
    Variant first;
    Variant second;
    friend bool operator==(const GridCells&, const GridCells&) = default;
};

/// A list of two columns that does not hold its rows: it asks the control for them by number, from
/// 1. What depends on the toolkit, the widths of texts and of the scroll bar, is handed in by the
/// view.
class Grid final : public Widget
{
public:
    Grid(Container& parent, std::string name);

    /// Answers when the list asks for a row.
    std::function<GridCells(std::int32_t row)> ReadRow;
    /// Takes the new value of column 1 of a row.
    std::function<void(std::int32_t row, bool value)> WriteRow;

    /// The rendered width of a text in twips.
    std::function<float(const std::string&)> TextWidth;
    float ScrollBarWidth = 255; ///< Twips.

    [[nodiscard]] std::int32_t RowCount() const { return rowCount_; }
    void SetRowCount(std::int32_t count) { update(rowCount_, count); }
    /// Makes the list ask for its rows again.
    void readAgain() { Changed.raise(); }
    /// The cells of a row, as the control answers for them. Error 381 outside the list.
    [[nodiscard]] GridCells Cells(std::int32_t row) const;

    /// The current cell; row and column 0 before there is one.
    [[nodiscard]] std::int32_t Row() const { return row_; }
    void SetRow(std::int32_t row) { update(row_, row); }
    [[nodiscard]] std::int32_t Col() const { return column_; }
    void SetCol(std::int32_t column) { update(column_, column); }
    [[nodiscard]] bool MultiSelect() const { return multiSelect_; }
    void SetMultiSelect(bool multiSelect) { update(multiSelect_, multiSelect); }
    /// Of column 1 or 2, in twips. Error 381 for another.
    [[nodiscard]] float ColumnWidth(std::int32_t column) const;
    void setSecondColumnWidth(float width) { update(secondWidth_, width); }

    /// The user ticks or unticks column 1 of a row.
    void Edit(std::int32_t row, bool value);
    /// The user moves to a cell.
    void MoveTo(std::int32_t row, std::int32_t column);
    /// The user presses the mouse over a cell, or beside all of them with row or column 0.
    void MouseDown(std::int32_t row, std::int32_t column);
    void DoubleClick();

    Event<> Edited;
    Event<> CurrentCellChanged;
    Event<std::int32_t, std::int32_t> MousePressed;
    Event<> DoubleClicked;

    [[nodiscard]] std::string_view kind() const override { return "Grid"; }
    [[nodiscard]] PropertyList Properties() const override;

private:
    std::int32_t rowCount_ = 0;
    std::int32_t row_ = 0;
    std::int32_t column_ = 0;
    bool multiSelect_ = false;
    float firstWidth_ = 20;
    float secondWidth_ = 100;
};

} // namespace k7deval::screen
