#include "load/ctrlMaxMW.h"
#include "python/Controls.h"
#include "python/Hosted.h"

#include <utility>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;

namespace
{

using LoadClass = ControlClass<ctrlMaxMW, histogram::HistogramTool>;

void bindLoadResults(LoadClass& tool)
{
    result(tool, "HighThreshold", &LoadEvaluation::HighThreshold, "Value at 60% of the range.");
    result(tool, "LowThreshold", &LoadEvaluation::LowThreshold, "Value at 30% of the range.");
    result(tool, "MinSafeValue", &LoadEvaluation::MinSafeValue, "Minimum safe operating value.");
    result(tool, "CapacityValue", &LoadEvaluation::CapacityValue, "Nameplate or rated capacity.");
    result(tool, "HighHours", &LoadEvaluation::HighHours, "Hours at the high level.");
    result(tool, "MidHours", &LoadEvaluation::MidHours, "Hours at the mid level.");
    result(tool, "LowHours", &LoadEvaluation::LowHours, "Hours at the low level.");
    result(tool, "OverHours", &LoadEvaluation::OverHours, "Hours above the capacity.");
    result(tool, "MaxObserved", &LoadEvaluation::MaxObserved,
           "Highest value above the capacity of all evaluations so far.");
    result(tool, "UnderHours", &LoadEvaluation::UnderHours, "Hours under the minimum.");
    result(tool, "Bins", &LoadEvaluation::Bins,
           "Hours by 5% of the range, 21 numbers; index 0 is never counted.");
    tool.def_property_readonly("StartDate", &ctrlMaxMW::StartDate,
                               "First day of the option \"Specified Dates:\".")
        .def_property_readonly("EndDate", &ctrlMaxMW::EndDate,
                               "Last day of the option \"Specified Dates:\".");
}

void bindLoadParts(LoadClass& tool)
{
    widget(tool, "lblMinSafeValue", &ctrlMaxMW::lblMinSafeValue);
    widget(tool, "txtMinSafe", &ctrlMaxMW::txtMinSafe);
    widget(tool, "lblCapacity", &ctrlMaxMW::lblCapacity);
    widget(tool, "txtCapacity", &ctrlMaxMW::txtCapacity);
    widget(tool, "fraTimeFrame", &ctrlMaxMW::fraTimeFrame);
    widget(tool, "lblTimeFrameHeading", &ctrlMaxMW::lblTimeFrameHeading);
    widget(tool, "optTimeEnd", &ctrlMaxMW::optTimeEnd);
    widget(tool, "cmbYear", &ctrlMaxMW::cmbYear);
    widget(tool, "cmbQTR", &ctrlMaxMW::cmbQTR);
    widget(tool, "optTimeSelect", &ctrlMaxMW::optTimeSelect);
    widget(tool, "txtFrom", &ctrlMaxMW::txtFrom);
    widget(tool, "cmdFrom", &ctrlMaxMW::cmdFrom);
    widget(tool, "lblTo", &ctrlMaxMW::lblTo);
    widget(tool, "txtTo", &ctrlMaxMW::txtTo);
    widget(tool, "cmdTo", &ctrlMaxMW::cmdTo);
    widget(tool, "lbl030", &ctrlMaxMW::lbl030);
    widget(tool, "lbl060", &ctrlMaxMW::lbl060);
    widget(tool, "lblBelow", &ctrlMaxMW::lblBelow);
    widget(tool, "lblAbove", &ctrlMaxMW::lblAbove);
}

} // namespace

void bindLoad(py::module_& module, const HostStateHandle& state)
{
    LoadClass tool(module, "ctrlMaxMW", collectedControl<ctrlMaxMW>(),
                   "The load tool: how does this unit's load spread over its range of operation\n"
                   "(40 CFR 75 App. A 6.5.2.1)?");
    tool.def(py::init([state](py::object services) {
                 return hostTool<ctrlMaxMW>(std::move(services), state);
             }),
             "services"_a = py::none());
    bindData(tool, state);
    bindLoadParts(tool);
    bindLoadResults(tool);
    bindLife(tool);
}

} // namespace k7deval::python
