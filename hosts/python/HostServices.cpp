#include "python/HostServices.h"

#include "foundation/Error.h"
#include "python/HostErrors.h"
#include "python/PythonObject.h"
#include "python/Values.h"

#include <utility>

namespace k7deval::python
{

namespace py = pybind11;

namespace
{

using screen::MsgBoxAnswer;
using screen::MsgBoxButtons;
using screen::MsgBoxIcon;
using screen::SaveAnswer;

const char* iconName(MsgBoxIcon icon)
{
    switch (icon) {
    case MsgBoxIcon::Information:
        return "Information";
    case MsgBoxIcon::Exclamation:
        return "Exclamation";
    case MsgBoxIcon::None:
        break;
    }
    return "";
}

SaveAnswer saveAnswer(const py::object& answer)
{
    if (!py::isinstance<py::sequence>(answer) || py::len(answer) != 2)
        throw Error(errors::kTypeMismatch);
    const auto index = readInt32(answer[py::int_(1)]);
    if (!index)
        throw Error(errors::kTypeMismatch);
    const py::object path = py::module_::import("os").attr("fspath")(answer[py::int_(0)]);
    return {path.cast<std::string>(), *index};
}

MsgBoxAnswer boxAnswer(const py::object& answer, MsgBoxButtons buttons)
{
    if (answer.is_none())
        return buttons == MsgBoxButtons::YesNo ? MsgBoxAnswer::No : MsgBoxAnswer::OK;
    for (const auto& [name, value] : {std::pair{"OK", MsgBoxAnswer::OK},
                                      {"Yes", MsgBoxAnswer::Yes},
                                      {"No", MsgBoxAnswer::No}}) {
        if (answer.equal(py::str(name)))
            return value;
    }
    throw Error(errors::kTypeMismatch);
}

} // namespace

HostServices::HostServices(py::object dialogs, ReferencesHandle owner)
    : dialogs_(std::move(dialogs), std::move(owner))
{
}

template <class... Values>
py::object HostServices::ask(const char* name, const Values&... values) const
{
    const py::object dialog = memberOf(dialogs_.get(), name);
    if (!dialog || dialog.is_none())
        return py::none();
    return dialog(values...);
}

std::optional<SaveAnswer> HostServices::ShowSave(const std::string& filter,
                                                 const std::string& defaultExtension)
{
    return raisingErrors([&]() -> std::optional<SaveAnswer> {
        const py::object answer = ask("ShowSave", filter, defaultExtension);
        if (answer.is_none())
            return std::nullopt;
        return saveAnswer(answer);
    });
}

MsgBoxAnswer HostServices::MsgBox(const screen::MsgBoxRequest& request)
{
    return raisingErrors([&] {
        const char* buttons = request.buttons == MsgBoxButtons::YesNo ? "YesNo" : "OK";
        return boxAnswer(
            ask("MsgBox", request.prompt, request.title, buttons, iconName(request.icon)),
            request.buttons);
    });
}

std::optional<Date> HostServices::PickDate(const std::string& title, Date date, std::int32_t one,
                                           std::int32_t two, std::int32_t three)
{
    return raisingErrors([&]() -> std::optional<Date> {
        const py::object answer = ask("PickDate", title, date, one, two, three);
        if (answer.is_none())
            return std::nullopt;
        return dateOf(answer);
    });
}

void HostServices::OpenDocument(const std::string& path, std::int32_t one, std::int32_t ownerWindow,
                                std::int32_t two, std::int32_t showCommand)
{
    raisingErrors([&] { ask("OpenDocument", path, one, ownerWindow, two, showCommand); });
}

} // namespace k7deval::python
