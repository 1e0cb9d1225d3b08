#include "foundation/Error.h"
#include "foundation/UtilityFunctions.h"
#include "python/Binding.h"

#include <string>
#include <utility>
#include <variant>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;

namespace
{

void bindClock(py::module_& module, const HostStateHandle& state)
{
    module.def(
        "CurrentDateTime", [state] { return CurrentDateTime(state->clock); },
        "The present date and time, to the second.");
    module.def(
        "SetClock", [state](py::object clock) { state->clock.follow(std::move(clock)); },
        "clock"_a.none(true),
        "Takes the present time from a callable without arguments that gives a datetime, for all\n"
        "that asks for it; None brings the system clock back.");
}

/// An integer that is too large for the library is no double either.
py::object rounded(const py::object& value, Int32 digits, const HostState& state)
{
    if (PyLong_Check(value.ptr()) != 0 && PyBool_Check(value.ptr()) == 0 && !readInt32(value))
        throw Error(errors::kOverflow);
    const Variant result = RoundNumber(variantOf(value), digits, *state.regional);
    if (const auto* truth = std::get_if<bool>(&result))
        return py::int_(*truth ? -1 : 0);
    return pythonValue(result);
}

} // namespace

void bindUtilityFunctions(py::module_& module, const HostStateHandle& state)
{
    bindClock(module, state);
    module.def(
        "FormatTimeStamp",
        [state](Date value, Int32 style) {
            return FormatTimeStamp(value, style, *state->regional);
        },
        "value"_a, "style"_a,
        "A time of day in one of the region's forms; the styles 10, 11 and 12 put the date ahead.");
    module.def(
        "DateAddExact",
        [](const std::string& interval, double amount, Date value) {
            return DateAddExact(interval, amount, value);
        },
        "interval"_a, "amount"_a, "value"_a,
        "Adds months (\"m\"), days (\"d\"), hours (\"h\"), minutes (\"n\") or seconds (\"s\").\n"
        "Error 5 for another interval and outside the years 100 to 9999.");
    module.def(
        "IntervalStart",
        [](Date value, Int32 seconds, bool previous) {
            return IntervalStart(value, seconds, previous);
        },
        "value"_a, "seconds"_a, "previous"_a,
        "The beginning of the interval of so many seconds, counted from midnight, that a time "
        "lies\n"
        "in, or of the one before it. NoDate unless seconds is 1 to 86400.");
    module.def(
        "RoundNumber",
        [state](const py::object& value, Int32 digits) { return rounded(value, digits, *state); },
        "value"_a, "digits"_a,
        "Rounds half away from zero, in the value's own type: a Single gives a Single, an int or "
        "a\n"
        "bool (True counts as -1) an int, a float a float. Empty for what is not numeric. Error 6\n"
        "on overflow.");
    module.def("IsNoDate", &IsNoDate, "value"_a,
               "Whether the date is the zero date, which stands for a date that is not set.");
}

} // namespace k7deval::python
