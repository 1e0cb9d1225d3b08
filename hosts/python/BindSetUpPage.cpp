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

using SetUpPage = ctrl7DaySetUp;
using PageClass = ControlClass<SetUpPage>;

void bindAnalyzer(PageClass& page)
{
    page.def_property_readonly("AnalyzedUnitPID", &SetUpPage::AnalyzedUnitPID, "PID of the unit.")
        .def_property_readonly("AnalyzedPID", &SetUpPage::AnalyzedPID,
                               "PID of the analyzer. Error 91 before one was selected.")
        .def_property_readonly("AnalyzedScale", &SetUpPage::AnalyzedScale,
                               "Its scale. Error 91 before one was selected.")
        .def_property_readonly(
            "AnalyzedPrecision", &SetUpPage::AnalyzedPrecision,
            "A number format with its decimals, such as \"0.00\". Error 91 before\n"
            "one was selected.")
        .def_property_readonly("AnalyzerInfoText", &SetUpPage::AnalyzerInfoText,
                               "Unit and analyzer.")
        .def_property_readonly("StartDate", &SetUpPage::StartDate, "The earlier of the two dates.")
        .def_property_readonly("EndDate", &SetUpPage::EndDate, "The later of the two dates.");
}

void bindChoices(PageClass& page)
{
    page.def_property_readonly("IncludeManualCals", &SetUpPage::IncludeManualCals,
                               "Runs started by hand count.")
        .def_property_readonly("SixOfSevenCals", &SetUpPage::SixOfSevenCals,
                               "One failure is allowed.")
        .def_property_readonly("UseZeroCals", &SetUpPage::UseZeroCals,
                               "Runs need a zero injection.")
        .def_property_readonly("ShowInterval", &SetUpPage::ShowInterval,
                               "Show all of the interval.")
        .def_property_readonly("ShowAllCalsWithinDrift", &SetUpPage::ShowAllCalsWithinDrift,
                               "Show all up to the end of the test.")
        .def_property_readonly("ShowOnlyDriftCals", &SetUpPage::ShowOnlyDriftCals,
                               "Show what the test counted.")
        .def_property_readonly("ShowSummary", &SetUpPage::ShowSummary,
                               "Put the outcome into words.")
        .def_property_readonly("LimitRules", &SetUpPage::LimitRules, "How the limit is set.")
        .def_property_readonly("AbsoluteLimit", &SetUpPage::AbsoluteLimit,
                               "In the analyzer's units; -999 where it does not apply.")
        .def_property_readonly("PercentOfSpanLimit", &SetUpPage::PercentOfSpanLimit,
                               "Percent; -999 where it does not apply.")
        .def_property_readonly("PercentOfRefLimit", &SetUpPage::PercentOfRefLimit,
                               "Percent; -999 where it does not apply.");
}

void bindTestRecord(PageClass& page)
{
    page.def_property("StackID", &SetUpPage::StackID, &SetUpPage::SetStackID,
                      "Unit or stack identifier.")
        .def_property("ComponentID", &SetUpPage::ComponentID, &SetUpPage::SetComponentID,
                      "Component identifier.")
        .def_property_readonly("TestReason", &SetUpPage::TestReason, "The reason's code.")
        .def_property("TestNumber", &SetUpPage::TestNumber, &SetUpPage::SetTestNumber,
                      "Test number.")
        .def_property("Is40CFR75", &SetUpPage::Is40CFR75, &SetUpPage::SetIs40CFR75,
                      "The analyzer's parameter is one under 40 CFR 75.")
        .def_property(
            "OrisCode", &SetUpPage::OrisCode,
            [](SetUpPage& self, Int32 value) { self.SetOrisCode(value); },
            "ORIS code. Error 13 while its field holds no number.");
}

} // namespace

void bindSetUpPage(py::module_& module, const HostStateHandle& state)
{
    PageClass page(module, "ctrl7DaySetUp", collectedControl<SetUpPage>(),
                   "The first page of the 7-Day tool: unit and analyzer, interval, performance\n"
                   "specification, what to show, and the test information of the export.");
    page.def(py::init([state](py::object services) {
                 return hostPage<SetUpPage>("ctrl7DaySetUp", std::move(services), state);
             }),
             "services"_a = py::none());
    page.def(
        "Setup",
        [state](SetUpPage& self, const py::object& irm, const py::object& objDI) {
            self.Setup(sinkOf(irm, self), serverOf(objDI, self, state));
        },
        "irm"_a, "objDI"_a, "Lists the units of the site and picks the first.");
    bindAnalyzer(page);
    bindChoices(page);
    bindTestRecord(page);
    bindLife(page);
    bindMembers(page, *hostPage<SetUpPage>("ctrl7DaySetUp", py::none(), state));
}

} // namespace k7deval::python
