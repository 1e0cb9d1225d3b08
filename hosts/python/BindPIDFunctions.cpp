#include "foundation/Error.h"
#include "foundation/PIDFunctions.h"
#include "python/Binding.h"

#include <string>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;

namespace
{

/// Whatever is no plain value is no PID either.
bool isValid(py::handle value)
{
    try {
        return IsValidPID(variantOf(value));
    } catch (const Error&) {
        return false;
    }
}

} // namespace

void bindPIDFunctions(py::module_& module)
{
    module.def(
        "MakePID",
        [](Int32 unit, Int32 code, Int32 variant, Int32 program, Int32 suffix) {
            return MakePID(unit, code, variant, program, suffix);
        },
        "unit"_a, "code"_a, "variant"_a, "program"_a, "suffix"_a,
        "The PID of the five fields, or 0 when one is out of its range or the PID is not valid.");
    module.def(
        "PIDPart", [](Int32 pid, Int32 part) { return PIDPart(pid, part); }, "pid"_a, "part"_a,
        "A field of a PID: 1 unit, 2 parameter code, 3 suffix, 4 program code, 5 variant digit, "
        "-5\n"
        "the same with 7 as 8. 0 for any other part.");
    module.def("IsValidPID", &isValid, "value"_a,
               "Whether a number or a text is a PID in use. Raises nothing.");
    module.def(
        "PIDToText", [](Int32 pid) { return PIDToText(pid); }, "pid"_a,
        "The PID as \"12-345-6-78-90\"; empty for one that is not valid.");
    module.def(
        "TextToPID",
        [](const Text& text, bool bracketed) { return TextToPID(text.value, bracketed); }, "text"_a,
        "bracketed"_a,
        "The PID at the end of a text, or in the square brackets that open it; else 0.");
    module.def(
        "TakeFieldFromRight",
        [](const Text& text, Int32 maxDigits) {
            FieldFromRight taken = TakeFieldFromRight(text.value, maxDigits);
            return py::make_tuple(taken.field, taken.rest);
        },
        "text"_a, "maxDigits"_a,
        "The number at the right end of a text and the text that is left of it: (field, rest). "
        "The\n"
        "field is -1 when no digit was found.");
    module.def(
        "UnitPID", [](Int32 unitOrPid) { return UnitPID(unitOrPid); }, "unitOrPid"_a,
        "The PID of a unit, from its number (up to 19) or from any PID of it.");
    module.def(
        "IsPercentGasPID", [](Int32 pid) { return IsPercentGasPID(pid); }, "pid"_a,
        "Whether the parameter is a gas measured in percent, O2 or CO2.");
}

} // namespace k7deval::python
