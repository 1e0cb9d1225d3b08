#include "foundation/Error.h"
#include "python/Binding.h"
#include "sevenday/clsDaySummary.h"

#include <memory>
#include <string>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;

namespace
{

void bindInjection(py::module_& module)
{
    using Record = clsStrippedCal;
    py::class_<Record, std::shared_ptr<Record>> injection(
        module, "clsStrippedCal", "One gas injection; values in the analyzer's units.");
    injection.def(py::init<>());
    field(injection, "ReferenceValue", &Record::ReferenceValue, "Value of the reference gas.");
    field(injection, "MeasuredValue", &Record::MeasuredValue, "What the analyzer read.");
    field(injection, "DriftLimit", &Record::DriftLimit, "The limit; -999 never passes.");
    field(injection, "UsesAPS", &Record::UsesAPS,
          "The alternative performance specification is in force.");
    field(injection, "InjectionEndTime", &Record::InjectionEndTime, "End of the injection.");
    field(injection, "GasLevel", &Record::GasLevel, "Level of the gas, in upper case.");
    injection.def_property_readonly("Drift", &Record::Drift,
                                    "Measured minus reference, kept to four decimals.");
}

void bindRun(py::module_& module)
{
    using Record = cls7DayAnalyzerCal;
    py::class_<Record, std::shared_ptr<Record>> run(
        module, "cls7DayAnalyzerCal", "One calibration run: a zero and an upscale injection.");
    run.def(py::init<>());
    field(run, "UseZeroCal", &Record::UseZeroCal, "A run without a zero injection has failed.");
    field(run, "CalTime", &Record::CalTime, "Time stamp of the run.");
    field(run, "InstrumentSpan", &Record::InstrumentSpan, "Span of the analyzer.");
    field(run, "IsOnline", &Record::IsOnline, "The run was made on-line.");
    field(run, "IsUsedIn7Day", &Record::IsUsedIn7Day, "The evaluation counted the run.");
    field(run, "ManualCal", &Record::ManualCal, "The run was started by hand.");
    field(run, "ZeroCal", &Record::ZeroCal, "The zero injection, or None.");
    field(run, "SpanCal", &Record::SpanCal, "The upscale injection, or None.");
    run.def_property_readonly("IsCompleteRun", &Record::IsCompleteRun, "Both injections are there.")
        .def_property_readonly("AnalyzerPassed", &Record::AnalyzerPassed,
                               "All injections that must be there are, within their limits.");
}

void addToDay(clsDaySummary& day, const std::shared_ptr<cls7DayAnalyzerCal>& cal)
{
    day.CalsInDay().Add(minuteKey(present(cal).CalTime), cal);
}

void bindDay(py::module_& module)
{
    using Record = clsDaySummary;
    py::class_<Record, std::shared_ptr<Record>> day(
        module, "clsDaySummary", "One calendar day: its runs and whether the unit operated.");
    day.def(py::init<>())
        .def_property_readonly(
            "CalsInDay", [](const Record& self) { return self.CalsInDay(); },
            "The runs by their time as \"yyyy/MM/dd HH:nn\": a copy whose runs are the live ones.")
        .def("AddCal", &addToDay, "cal"_a,
             "Adds a run under its time. Error 457 when there is one, 91 for None.")
        .def_property_readonly("DayIsUsedIn7Day", &Record::DayIsUsedIn7Day,
                               "The evaluation counted one of the runs.")
        .def_property_readonly("HasOnlineCals", &Record::HasOnlineCals, "A run was made on-line.")
        .def_property("IsOpDay", &Record::IsOpDay, &Record::SetIsOpDay,
                      "The unit operated, by its hours or because of an on-line run.");
    field(day, "DisplayedCals", &Record::DisplayedCals,
          "The runs to show, None before there are any; copied both ways.");
    field(day, "OpStatusIsUndetermined", &Record::OpStatusIsUndetermined,
          "An hour has no operating data, or none can be had.");
    field(day, "TStamp", &Record::TStamp, "Midnight at the beginning of the day.");
}

/// An IntEnum, made from the library's own values.
void bindLimitRules(py::module_& module)
{
    py::dict members;
    members["CalLimitRules_AbsoluteValue"] = static_cast<int>(CalLimitRules_AbsoluteValue);
    members["CalLimitRules_PercentOfSpan"] = static_cast<int>(CalLimitRules_PercentOfSpan);
    members["CalLimitRules_PercentOfSpanAndAbsoluteAPS"] =
        static_cast<int>(CalLimitRules_PercentOfSpanAndAbsoluteAPS);
    members["CalLimitRules_PercentOfRef"] = static_cast<int>(CalLimitRules_PercentOfRef);
    py::object rules = py::module_::import("enum").attr("IntEnum")("CalLimitRulesEnum", members,
                                                                   "module"_a = "k7deval");
    rules.attr("__doc__") = "How the limit of a drift is set.";
    module.attr("CalLimitRulesEnum") = rules;
}

} // namespace

void bindRecords(py::module_& module)
{
    bindLimitRules(module);
    bindInjection(module);
    bindRun(module);
    bindDay(module);
}

} // namespace k7deval::python
