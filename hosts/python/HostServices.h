#pragma once

#include "python/References.h"
#include "screen/Services.h"

#include <cstdint>
#include <optional>
#include <pybind11/pybind11.h>
#include <string>

namespace k7deval::python
{

/// The dialogs of a host, members of an object or of none. Each is looked up when it is needed; one
/// that is missing cancels or does nothing.
class HostServices final : public screen::Services
{
public:
    HostServices(pybind11::object dialogs, ReferencesHandle owner);

    /// Error 13 for an answer that is neither None nor a path and a filter index.
    std::optional<screen::SaveAnswer> ShowSave(const std::string& filter,
                                               const std::string& defaultExtension) override;
    /// Error 13 for an answer that is no button's name. None counts as the careful answer.
    screen::MsgBoxAnswer MsgBox(const screen::MsgBoxRequest& request) override;
    std::optional<Date> PickDate(const std::string& title, Date date, std::int32_t one,
                                 std::int32_t two, std::int32_t three) override;
    void OpenDocument(const std::string& path, std::int32_t one, std::int32_t ownerWindow,
                      std::int32_t two, std::int32_t showCommand) override;

private:
    /// None when the dialog is missing.
    template <class... Values>
    pybind11::object ask(const char* name, const Values&... values) const;

    Reference dialogs_;
};

} // namespace k7deval::python
