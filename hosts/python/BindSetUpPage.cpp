#include "python/Controls.h"
#include "python/Hosted.h"
#include "python/Members.h"
#include "sevenday/ctrl7DaySetUp.h"

#include <utility>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;

namespace
{

using Page = ctrl7DaySetUp;
using PageClass = ControlClass<Page>;

void bindAnalyzer(PageClass& page)
{
    page.def_property_readonly("AnalyzedUnitPID", &Page::AnalyzedUnitPID, "PID of the unit.")
        .def_property_readonly("AnalyzedPID", &Page::AnalyzedPID,
                               "PID of the analyzer. Error 91 before one was selected.")
        .def_property_readonly("AnalyzedScale", &Page::AnalyzedScale,
                               "Its scale. Error 91 before one was selected.")
        .def_property_readonly(
            "AnalyzedPrecision", &Page::AnalyzedPrecision,
            "A number format with its decimals, such as \"0.00\". Error 91 before\n"
            "one was selected.")
        .def_property_readonly("AnalyzerInfoText", &Page::AnalyzerInfoText, "Unit and analyzer.")
        .def_property_readonly("StartDate", &Page::StartDate, "The earlier of the two dates.")
        .def_property_readonly("EndDate", &Page::EndDate, "The later of the two dates.");
}

void bindChoices(PageClass& page)
{
    page.def_property_readonly("IncludeManualCals", &Page::IncludeManualCals,
                               "Runs started by hand count.")
        .def_property_readonly("SixOfSevenCals", &Page::SixOfSevenCals, "One failure is allowed.")
        .def_property_readonly("UseZeroCals", &Page::UseZeroCals, "Runs need a zero injection.")
        .def_property_readonly("ShowInterval", &Page::ShowInterval, "Show all of the interval.")
        .def_property_readonly("ShowAllCalsWithinDrift", &Page::ShowAllCalsWithinDrift,
                               "Show all up to the end of the test.")
        .def_property_readonly("ShowOnlyDriftCals", &Page::ShowOnlyDriftCals,
                               "Show what the test counted.")
        .def_property_readonly("ShowSummary", &Page::ShowSummary, "Put the outcome into words.")
        .def_property_readonly("LimitRules", &Page::LimitRules, "How the limit is set.")
        .def_property_readonly("AbsoluteLimit", &Page::AbsoluteLimit,
                               "In the analyzer's units; -999 where it does not apply.")
        .def_property_readonly("PercentOfSpanLimit", &Page::PercentOfSpanLimit,
                               "Percent; -999 where it does not apply.")
        .def_property_readonly("PercentOfRefLimit", &Page::PercentOfRefLimit,
                               "Percent; -999 where it does not apply.");
}

void bindTestRecord(PageClass& page)
{
    page.def_property("StackID", &Page::StackID, &Page::SetStackID, "Unit or stack identifier.")
        .def_property("ComponentID", &Page::ComponentID, &Page::SetComponentID,
                      "Component identifier.")
        .def_property_readonly("TestReason", &Page::TestReason, "The reason's code.")
        .def_property("TestNumber", &Page::TestNumber, &Page::SetTestNumber, "Test number.")
        .def_property("Is40CFR75", &Page::Is40CFR75, &Page::SetIs40CFR75,
                      "The analyzer's parameter is one under 40 CFR 75.")
        .def_property(
            "OrisCode", &Page::OrisCode, [](Page& self, Int32 value) { self.SetOrisCode(value); },
            "ORIS code. Error 13 while its field holds no number.");
}

} // namespace

void bindSetUpPage(py::module_& module, const HostStateHandle& state)
{
    PageClass page(module, "ctrl7DaySetUp", collectedControl<Page>(),
                   "The first page of the 7-Day tool: unit and analyzer, interval, performance\n"
                   "specification, what to show, and the test information of the export.");
    page.def(py::init([state](py::object services) {
                 return hostPage<Page>("ctrl7DaySetUp", std::move(services), state);
             }),
             "services"_a = py::none());
    page.def(
        "Setup",
        [state](Page& self, const py::object& irm, const py::object& objDI) {
            self.Setup(sinkOf(irm, self), serverOf(objDI, self, state));
        },
        "irm"_a, "objDI"_a, "Lists the units of the site and picks the first.");
    bindAnalyzer(page);
    bindChoices(page);
    bindTestRecord(page);
    bindLife(page);
    bindMembers(page, *hostPage<Page>("ctrl7DaySetUp", py::none(), state));
}

} // namespace k7deval::python
