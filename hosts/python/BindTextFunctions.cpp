#include "foundation/DateText.h"
#include "foundation/Error.h"
#include "foundation/NumberText.h"
#include "python/Binding.h"

#include <optional>
#include <string>
#include <variant>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;

namespace
{

/// A single as a single, any other number as a double. Error 94 for None.
template <class Write>
std::string numberText(const py::object& value, const RegionalSettings& regional, Write write)
{
    const Variant number = variantOf(value);
    if (const auto* single = std::get_if<float>(&number))
        return write(*single);
    return write(doubleIn(number, regional));
}

void bindNumberTexts(py::module_& module, const HostStateHandle& state)
{
    module.def(
        "FormatNumber",
        [state](const py::object& value, const std::string& format) {
            return numberText(value, *state->regional, [&](auto number) {
                return FormatNumber(number, format, *state->regional);
            });
        },
        "value"_a, "format"_a,
        "A number in a format such as \"0.0000\" or \"##0.0\", halves away from zero; a Single as "
        "a\n"
        "single (at most 7 significant digits), any other as a double (15). Error 5 for a format\n"
        "of another kind, 6 for a number that is not finite.");
    module.def(
        "GeneralNumber",
        [state](const py::object& value) {
            return numberText(value, *state->regional,
                              [&](auto number) { return GeneralNumber(number, *state->regional); });
        },
        "value"_a, "A number as plain text. Error 6 for one that is not finite.");
    module.def(
        "IsNumeric",
        [state](const py::object& text) { return IsNumeric(variantOf(text), *state->regional); },
        "text"_a, "Whether a text is a number as the region writes it.");
    module.def(
        "ToSingle",
        [state](const Text& text) { return pythonValue(ToSingle(text.value, *state->regional)); },
        "text"_a,
        "The number in a text as a Single. Error 13 for a text that is not numeric, 94 for\n"
        "None, 6 out of a single's range.");
}

void bindDateTexts(py::module_& module, const HostStateHandle& state)
{
    module.def(
        "IsDate",
        [state](const std::optional<std::string>& text) {
            return text && IsDate(*text, *state->regional, state->clock.now());
        },
        "text"_a, "Whether a text is a date, a time or both, as the region writes them.");
    module.def(
        "ToDate",
        [state](const Text& text) {
            return ToDate(text.value, *state->regional, state->clock.now());
        },
        "text"_a,
        "The date in a text. A missing year is the present one; a time alone lies on NoDate. "
        "Error\n"
        "13 for a text that is no date, 94 for None.");
    module.def(
        "ShortDate", [state](Date value) { return ShortDate(value, *state->regional); }, "value"_a,
        "The date as the region writes it, such as \"3/10/2024\".");
    module.def(
        "ShortTime", [state](Date value) { return ShortTime(value, *state->regional); }, "value"_a,
        "The time of day as the region writes it, such as \"15:05\".");
}

} // namespace

void bindTextFunctions(py::module_& module, const HostStateHandle& state)
{
    bindNumberTexts(module, state);
    bindDateTexts(module, state);
    module.def(
        "SetRegionalSettings",
        [state](const std::string& name) { *state->regional = regionalSettings(name); }, "name"_a,
        "Chooses the region for all controls and texts: \"en-US\" (at the start), \"en-GB\",\n"
        "\"de-DE\" or \"fr-FR\". Error 5 for another.");
}

} // namespace k7deval::python
