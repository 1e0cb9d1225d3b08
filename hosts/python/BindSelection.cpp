#include "latebound/Server.h"
#include "python/Controls.h"
#include "python/HostErrors.h"
#include "python/Hosted.h"
#include "python/Members.h"
#include "python/PythonObject.h"
#include "selection/ParamSelect.h"
#include "selection/SingleParamSelect.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;

namespace
{

/// A list, a tuple or a vector of integers; a parameter collection; or any other form.
ParamList paramList(const py::object& list, screen::Control& control, const HostStateHandle& state)
{
    const latebound::ObjectHandle object = namedObject(list, referencesOf(control));
    if (object && object->typeName() == latebound::kParameterCollection)
        return latebound::parametersIn(object, state->regional);
    if (auto pids = raisingErrors([&] { return readIntegers(list); }))
        return *std::move(pids);
    return {};
}

/// What both controls let the host set and load.
template <class Class> void bindChoice(Class& control, const HostStateHandle& state)
{
    using Control = typename Class::type;
    control
        .def_property("AllUnitsInCombo", &Control::AllUnitsInCombo, &Control::SetAllUnitsInCombo,
                      "The filter offers all units as one entry.")
        .def_property("ShowPIDNumber", &Control::ShowPIDNumber, &Control::SetShowPIDNumber,
                      "Names are shown with their PID.")
        .def_property("ShowUnpopulatedUnits", &Control::ShowUnpopulatedUnits,
                      &Control::SetShowUnpopulatedUnits,
                      "Units without a parameter stay in the filter.")
        .def_property("ShowUnitCombo", &Control::ShowUnitCombo, &Control::SetShowUnitCombo,
                      "The filter of units is shown.")
        .def(
            "SetParamList",
            [state](Control& self, const py::object& list, bool unitNames) {
                self.SetParamList(paramList(list, self, state), unitNames);
            },
            "varParamList"_a, "blnUnitNamesInList"_a = false,
            "Loads the rows: from a list, a tuple or a vector of PIDs, or from a collection of\n"
            "parameters, an object of a class named DI1Params. Any other form gives no rows.");
}

/// One column of the rows; None before there are any.
template <class Class, class Value>
void column(Class& control, const char* name, Value ParamRow::*member, const char* doc)
{
    using Control = typename Class::type;
    control.def_property_readonly(
        name,
        [member](const Control& self) -> std::optional<std::vector<Value>> {
            const Array<ParamRow>& rows = self.rows().all();
            if (!rows.isSized())
                return std::nullopt;
            std::vector<Value> values;
            for (const ParamRow& row : rows.items())
                values.push_back(row.*member);
            return values;
        },
        doc);
}

template <class Class> void bindRows(Class& control)
{
    using Control = typename Class::type;
    column(control, "RowPIDs", &ParamRow::pid, "The PID of each row; None before there are any.");
    column(control, "RowNames", &ParamRow::name, "The name of each row.");
    column(control, "RowIsUnit", &ParamRow::isUnit, "The row stands for a unit.");
    control.def_property_readonly(
        "RowCount", [](const Control& self) { return self.rows().Count(); },
        "How many rows count.");
}

py::object selection(const ParamSelect& control)
{
    const auto pids = control.GetSelection();
    return pids ? py::cast(*pids) : pythonValue(Empty{});
}

void bindParamSelect(py::module_& module, const HostStateHandle& state)
{
    using Control = ParamSelect;
    ControlClass<Control> control(module, "ParamSelect", collectedControl<Control>(),
                                  "Lets a user tick several parameters of a list that the host\n"
                                  "supplies, under an optional filter of units.");
    control.def(py::init([state](py::object services) {
                    return hostList<Control>(std::move(services), state);
                }),
                "services"_a = py::none());
    bindChoice(control, state);
    bindRows(control);
    column(control, "RowSelected", &ParamRow::isSelected, "The row is ticked.");
    control
        .def_property("OffsetUnits", &Control::OffsetUnits, &Control::SetOffsetUnits,
                      "Units are shown as header rows.")
        .def_property("MultiSelect", &Control::MultiSelect, &Control::SetMultiSelect,
                      "Several rows can be marked.")
        .def("GetUnitName", &Control::GetUnitName,
             "The unit that the filter is set to; empty without a filter and for its first entry.")
        .def("SelectAll", &Control::SelectAll, "Ticks all rows on view.")
        .def("DeselectAll", &Control::DeselectAll, "Unticks all rows on view.")
        .def("GetSelection", &selection,
             "The PIDs of the ticked rows on view, a list; Empty when there are none.")
        .def_property_readonly(
            "VisibleRows", [](const Control& self) { return self.VisibleRows(); },
            "Row of the list by row of the grid, which counts from 1: a copy.");
    bindData(control, state);
    bindLife(control);
    bindMembers(control, *hostList<Control>(py::none(), state));
}

void bindSingleParamSelect(py::module_& module, const HostStateHandle& state)
{
    using Control = SingleParamSelect;
    ControlClass<Control> control(
        module, "SingleParamSelect", collectedControl<Control>(),
        "Lets a user pick one parameter of a list that the host supplies,\n"
        "with an optional filter of units.");
    control.def(py::init([state](py::object services) {
                    return hostList<Control>(std::move(services), state);
                }),
                "services"_a = py::none());
    bindChoice(control, state);
    bindRows(control);
    control.def("GetSelection", &Control::GetSelection,
                "The PID of the selected entry. Error 381 with none selected.");
    bindData(control, state);
    bindLife(control);
    bindMembers(control, *hostList<Control>(py::none(), state));
}

} // namespace

void bindSelection(py::module_& module, const HostStateHandle& state)
{
    bindParamSelect(module, state);
    bindSingleParamSelect(module, state);
}

} // namespace k7deval::python
