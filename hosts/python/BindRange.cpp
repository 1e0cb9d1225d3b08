#include "python/Controls.h"
#include "python/Hosted.h"
#include "range/ctrlRangeEval.h"

#include <utility>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;

namespace
{

using RangeClass = ControlClass<ctrlRangeEval, histogram::HistogramTool>;

void bindRangeResults(RangeClass& tool)
{
    using Results = RangeEvaluation;
    result(tool, "RangeValue", &Results::RangeValue, "The instrument range.");
    result(tool, "LowThreshold", &Results::LowThreshold, "20% of the range.");
    result(tool, "HighThreshold", &Results::HighThreshold, "80% of the range.");
    result(tool, "MECValue", &Results::MECValue, "Maximum expected concentration.");
    result(tool, "MPCValue", &Results::MPCValue, "Maximum potential concentration.");
    result(tool, "LowHours", &Results::LowHours, "Hours up to 20%.");
    result(tool, "MidHours", &Results::MidHours, "Hours between 20% and 80%.");
    result(tool, "HighHours", &Results::HighHours, "Hours from 80% up to the range.");
    result(tool, "OverRangeHours", &Results::OverRangeHours, "Hours above the range.");
    result(tool, "AboveMECHours", &Results::AboveMECHours, "In-range hours above the MEC.");
    result(tool, "AboveMPCHours", &Results::AboveMPCHours, "In-range hours above the MPC.");
    result(tool, "ReplacedHours", &Results::ReplacedHours, "In-range hours with 200% replacement.");
    result(tool, "InvalidHours", &Results::InvalidHours,
           "Unusable hours in which the unit was not off line.");
    result(tool, "Bins", &Results::Bins,
           "Hours by 5% of the range, 21 numbers; index 0 is never counted.");
    tool.def_property_readonly(
        "UnitCatalogue", [](const ctrlRangeEval& self) { return self.UnitCatalogue(); },
        "Units by PID, their hourly parameters by PID, the spans of those by scale: nested dicts,\n"
        "copies.");
}

void bindRangeParts(RangeClass& tool)
{
    widget(tool, "cmbScale", &ctrlRangeEval::cmbScale);
    widget(tool, "lblRange", &ctrlRangeEval::lblRange);
    widget(tool, "txtRange", &ctrlRangeEval::txtRange);
    widget(tool, "chkMEC", &ctrlRangeEval::chkMEC);
    widget(tool, "txtMEC", &ctrlRangeEval::txtMEC);
    widget(tool, "chkMPC", &ctrlRangeEval::chkMPC);
    widget(tool, "txtMPC", &ctrlRangeEval::txtMPC);
    widget(tool, "lblQuarter", &ctrlRangeEval::lblQuarter);
    widget(tool, "cmbYear", &ctrlRangeEval::cmbYear);
    widget(tool, "cmbQTR", &ctrlRangeEval::cmbQTR);
    widget(tool, "lbl020", &ctrlRangeEval::lbl020);
    widget(tool, "lbl080", &ctrlRangeEval::lbl080);
    widget(tool, "lblAboveMEC", &ctrlRangeEval::lblAboveMEC);
    widget(tool, "lblAboveMPC", &ctrlRangeEval::lblAboveMPC);
    widget(tool, "lblOverRange", &ctrlRangeEval::lblOverRange);
    widget(tool, "lblReplaced", &ctrlRangeEval::lblReplaced);
    widget(tool, "lblInvalid", &ctrlRangeEval::lblInvalid);
}

} // namespace

void bindRange(py::module_& module, const HostStateHandle& state)
{
    RangeClass tool(module, "ctrlRangeEval", collectedControl<ctrlRangeEval>(),
                    "The range tool: does this analyzer's range fit what it measured (40 CFR 75\n"
                    "App. A 2.1)?");
    tool.def(py::init([state](py::object services) {
                 return hostTool<ctrlRangeEval>(std::move(services), state);
             }),
             "services"_a = py::none());
    bindData(tool, state);
    bindRangeParts(tool);
    bindRangeResults(tool);
    bindLife(tool);
}

} // namespace k7deval::python
