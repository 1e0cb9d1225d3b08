#include "histogram/HistogramTool.h"
#include "python/Controls.h"

#include <memory>
#include <string>

namespace k7deval::python
{

namespace py = pybind11;
using histogram::HistogramTool;

namespace
{

using ToolClass = ControlClass<HistogramTool>;

void bindEntries(ToolClass& tool)
{
    widget(tool, "fraSetup", &HistogramTool::fraSetup);
    widget(tool, "lblUnit", &HistogramTool::lblUnit);
    widget(tool, "cmbUnit", &HistogramTool::cmbUnit);
    widget(tool, "lblParameter", &HistogramTool::lblParameter);
    widget(tool, "cmbParam", &HistogramTool::cmbParam);
    widget(tool, "chkShowPID", &HistogramTool::chkShowPID);
    widget(tool, "cmdCalculate", &HistogramTool::cmdCalculate);
    widget(tool, "cmdSave", &HistogramTool::cmdSave);
    widget(tool, "chkPreview", &HistogramTool::chkPreview);
    widget(tool, "cmdClose", &HistogramTool::cmdClose);
    widget(tool, "CommonDialog1", &HistogramTool::CommonDialog1);
}

py::list bars(const py::object& self)
{
    const auto& tool = self.cast<const HistogramTool&>();
    py::list labels;
    for (int bar = 0; bar < histogram::BarLabels::Count(); ++bar)
        labels.append(
            py::cast(&tool.lblBar[bar], py::return_value_policy::reference_internal, self));
    return labels;
}

void bindChart(ToolClass& tool)
{
    widget(tool, "fraResults", &HistogramTool::fraResults);
    widget(tool, "lblHeader", &HistogramTool::lblHeader);
    widget(tool, "lblLowOpPercent", &HistogramTool::lblLowOpPercent);
    widget(tool, "lblMidOpPercent", &HistogramTool::lblMidOpPercent);
    widget(tool, "lblHighOpPercent", &HistogramTool::lblHighOpPercent);
    widget(tool, "linMin", &HistogramTool::linMin);
    widget(tool, "linLow", &HistogramTool::linLow);
    widget(tool, "linMid", &HistogramTool::linMid);
    widget(tool, "linMax", &HistogramTool::linMax);
    widget(tool, "linBase", &HistogramTool::linBase);
    widget(tool, "lblMinSafe", &HistogramTool::lblMinSafe);
    widget(tool, "lblLow", &HistogramTool::lblLow);
    widget(tool, "lblMid", &HistogramTool::lblMid);
    widget(tool, "lblMax", &HistogramTool::lblMax);
    widget(tool, "lbl000", &HistogramTool::lbl000);
    widget(tool, "lbl100", &HistogramTool::lbl100);
    tool.def_property_readonly("lblBar", &bars,
                               "The bars, a list of 21 labels; index 0 is the hidden pattern.");
}

} // namespace

void bindHistogramTools(py::module_& module)
{
    ToolClass tool(
        module, "HistogramTool", collectedControl<HistogramTool>(),
        "What load and range evaluation have in common: unit and parameter on the left,\n"
        "twenty bars over three levels on the right, and the buttons.");
    bindEntries(tool);
    bindChart(tool);
    tool.def_property_readonly("NeedsEvaluation", &HistogramTool::NeedsEvaluation,
                               "What is entered has changed since the last finished evaluation.")
        .def_property_readonly(
            "CloseClicked",
            [](HistogramTool& self) {
                return EventPort{&self.CloseClicked, referencesOf(self)};
            },
            py::keep_alive<0, 1>(), "The user wants to close the screen.")
        .def("buildReport", &HistogramTool::buildReport,
             "The ReportDocument of what the screen shows now. Error 91 without data.");
}

} // namespace k7deval::python
