#include "python/Controls.h"
#include "python/Hosted.h"
#include "sevenday/ctrl7Day.h"

#include <utility>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;

namespace
{

using DriftClass = ControlClass<ctrl7Day>;

/// A field of the test, to be read.
template <class Value>
void state(DriftClass& tool, const char* name, Value DriftTest::*member, const char* doc)
{
    tool.def_property_readonly(
        name, [member](const ctrl7Day& self) { return self.test().*member; }, doc);
}

void bindWhatIsTested(DriftClass& tool)
{
    state(tool, "lngAnalyzedPID", &DriftTest::lngAnalyzedPID, "PID of the analyzer.");
    state(tool, "strAnalyzedScale", &DriftTest::strAnalyzedScale, "Scale under test.");
    state(tool, "dtStart", &DriftTest::dtStart, "First moment of the interval.");
    state(tool, "dtEnd", &DriftTest::dtEnd, "Last minute of the interval.");
    state(tool, "sngPercentOfSpanLimit", &DriftTest::sngPercentOfSpanLimit, "Percent.");
    state(tool, "sngPercentOfRefLimit", &DriftTest::sngPercentOfRefLimit, "Percent.");
    state(tool, "sngAbsoluteLimit", &DriftTest::sngAbsoluteLimit, "In the analyzer's units.");
    state(tool, "lngLimitRule", &DriftTest::lngLimitRule, "How the limit is set.");
    state(tool, "blnSixOfSeven", &DriftTest::blnSixOfSeven, "One failure is allowed.");
    state(tool, "blnIncludeManualCals", &DriftTest::blnIncludeManualCals,
          "Runs started by hand count.");
    state(tool, "blnUseZeroCals", &DriftTest::blnUseZeroCals, "Runs need a zero injection.");
    state(tool, "blnRetrieveCals", &DriftTest::blnRetrieveCals, "dictCals is out of date.");
    state(tool, "blnApplyLimits", &DriftTest::blnApplyLimits, "The limits are out of date.");
}

py::object runs(const ctrl7Day& tool)
{
    const auto& runs = tool.test().dictCals;
    return runs ? py::cast(*runs) : py::none();
}

void bindWhatWasFound(DriftClass& tool)
{
    tool.def_property_readonly("dictCals", &runs,
                               "All runs by their time, ascending: a copy whose runs are the live\n"
                               "ones. None before the first retrieval.");
    state(tool, "dictDays", &DriftTest::dictDays,
          "The days of the interval: a copy whose days are the live ones.");
    state(tool, "lngOpTimePID", &DriftTest::lngOpTimePID, "PID of the operating time.");
    state(tool, "lngGoodCals", &DriftTest::lngGoodCals, "Good runs counted in the test.");
    state(tool, "lngFailedCals", &DriftTest::lngFailedCals, "The allowed failure: 0 or 1.");
    state(tool, "lngLastFailDay", &DriftTest::lngLastFailDay, "Index of a day.");
    state(tool, "lngPrevFailDay", &DriftTest::lngPrevFailDay, "Index of a day.");
    state(tool, "lngUndeterminedDays", &DriftTest::lngUndeterminedDays,
          "Days of undetermined status before the end of the test.");
    state(tool, "objDaysToDisplay", &DriftTest::objDaysToDisplay,
          "The days that the results page shows; None before there are any.");
    state(tool, "strSummary", &DriftTest::strSummary, "The outcome in words.");
}

void bindDriftParts(DriftClass& tool)
{
    widget(tool, "ctrl7DaySetUp1", &ctrl7Day::ctrl7DaySetUp1, "The first page.");
    widget(tool, "ctrl7DayResult1", &ctrl7Day::ctrl7DayResult1, "The second page.");
    widget(tool, "cmdBack", &ctrl7Day::cmdBack);
    widget(tool, "cmdNext", &ctrl7Day::cmdNext);
    widget(tool, "cmdSave", &ctrl7Day::cmdSave);
    widget(tool, "chkPreview", &ctrl7Day::chkPreview);
    widget(tool, "CommonDialog1", &ctrl7Day::CommonDialog1);
}

} // namespace

void bindSevenDay(py::module_& module, const HostStateHandle& host)
{
    DriftClass tool(module, "ctrl7Day", collectedControl<ctrl7Day>(),
                    "The 7-Day tool: did this analyzer pass a 7-Day drift test, and from which\n"
                    "calibrations (40 CFR 75 App. A 6.3.1)? A wizard of two pages.");
    tool.def(py::init([host](py::object services) {
                 return hostTool<ctrl7Day>(std::move(services), host);
             }),
             "services"_a = py::none());
    tool.def(
        "Setup",
        [host](ctrl7Day& self, const py::object& irm, const py::object& objDI) {
            self.Setup(sinkOf(irm, self), serverOf(objDI, self, host));
        },
        "irm"_a, "objDI"_a,
        "Hands over the message sink (an object with Post(severity, text), or None) and the data,\n"
        "and shows the first page.");
    tool.def_property_readonly(
            "DIServer", [](const ctrl7Day& self) { return pythonServer(self.test().DIServer); },
            "The data of Setup.")
        .def_property_readonly(
            "irm", [](const ctrl7Day& self) { return pythonSink(self.test().irm); },
            "The message sink of Setup.");
    bindDriftParts(tool);
    bindWhatIsTested(tool);
    bindWhatWasFound(tool);
    bindLife(tool);
}

} // namespace k7deval::python
