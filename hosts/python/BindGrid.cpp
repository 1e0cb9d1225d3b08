#include "python/Binding.h"
#include "python/GarbageCollection.h"
#include "python/HostErrors.h"
#include "screen/Grid.h"

#include <memory>
#include <string>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;
using screen::Grid;

namespace
{

/// A measure of texts that the host handed over.
struct HostMeasure {
    std::shared_ptr<Reference> callable;

    float operator()(const std::string& text) const
    {
        return raisingErrors([&] { return callable->get()(text).cast<Float32>().value; });
    }
};

void setTextWidth(Grid& grid, const py::function& measure)
{
    grid.TextWidth = HostMeasure{std::make_shared<Reference>(measure, referencesOf(grid))};
}

py::object textWidth(const Grid& grid)
{
    if (const auto* measure = grid.TextWidth.target<HostMeasure>())
        return py::reinterpret_borrow<py::object>(measure->callable->get());
    return py::cpp_function(
        [measure = grid.TextWidth](const std::string& text) { return measure(text); });
}

py::tuple cells(const Grid& grid, Int32 row)
{
    const screen::GridCells read = grid.Cells(row);
    return py::make_tuple(read.first, read.second);
}

using GridClass = py::class_<Grid, screen::Widget, std::shared_ptr<Grid>>;

void bindActions(GridClass& grid)
{
    grid.def(
            "Edit", [](Grid& self, Int32 r, bool value) { self.Edit(r, value); }, "r"_a, "value"_a,
            "The user ticks or unticks column 1 of a row.")
        .def(
            "MoveTo", [](Grid& self, Int32 r, Int32 c) { self.MoveTo(r, c); }, "r"_a, "c"_a,
            "The user moves to a cell.")
        .def(
            "MouseDown", [](Grid& self, Int32 r, Int32 c) { self.MouseDown(r, c); }, "r"_a, "c"_a,
            "The user presses the mouse over a cell, or beside all with row or column 0.")
        .def("DoubleClick", &Grid::DoubleClick,
             "The user's double click, where the mouse was last\n"
             "pressed.");
}

} // namespace

void bindGrid(py::module_& module)
{
    GridClass grid(module, "Grid", collectedPart(),
                   "A list of two columns, a check mark and a text. Rows count from 1.");
    grid.def_property_readonly("RowCount", &Grid::RowCount, "How many rows.")
        .def_property(
            "Row", &Grid::Row, [](Grid& self, Int32 row) { self.SetRow(row); },
            "The current row; 0 before there is one.")
        .def_property(
            "Col", &Grid::Col, [](Grid& self, Int32 column) { self.SetCol(column); },
            "The current column; 0 before there is one.")
        .def_property("MultiSelect", &Grid::MultiSelect, &Grid::SetMultiSelect,
                      "Several rows can be marked.")
        .def(
            "ColumnWidth", [](const Grid& self, Int32 c) { return self.ColumnWidth(c); }, "c"_a,
            "Width of column 1 or 2 in twips. Error 381 for another.")
        .def("Cells", &cells, "r"_a,
             "The two cells of a row; Empty for an unset one. Error 381 outside the list.")
        .def_property("TextWidth", &textWidth, &setTextWidth,
                      "A callable from a text to its width in twips, to be replaced by a view.")
        .def_property(
            "ScrollBarWidth", [](const Grid& self) { return self.ScrollBarWidth; },
            [](Grid& self, Float32 width) { self.ScrollBarWidth = width; }, "In twips.");
    bindActions(grid);
}

} // namespace k7deval::python
