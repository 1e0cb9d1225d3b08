#pragma once

#include "screen/Services.h"

#include <QStringList>

namespace k7deval::qt
{

/// The dialogs of the desktop, over the window that is active.
class QtServices final : public screen::Services
{
public:
    std::optional<screen::SaveAnswer> ShowSave(const std::string& filter,
                                               const std::string& defaultExtension) override;
    screen::MsgBoxAnswer MsgBox(const screen::MsgBoxRequest& request) override;
    std::optional<Date> PickDate(const std::string& title, Date date, std::int32_t, std::int32_t,
                                 std::int32_t) override;
    /// Error 53 for a file that is not there, 440 when nothing opens it.
    void OpenDocument(const std::string& path, std::int32_t, std::int32_t ownerWindow, std::int32_t,
                      std::int32_t showCommand) override;
};

/// The entries "name|pattern|name|pattern..." as a file dialog takes them: "name (pattern)". A name
/// that ends in its pattern is not given it twice.
QStringList nameFilters(const std::string& filter);

} // namespace k7deval::qt
