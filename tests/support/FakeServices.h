#pragma once

#include "foundation/Error.h"
#include "screen/Services.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace k7deval::test
{

/// Dialogs that answer what a test told them, and note what they were asked.
class FakeServices final : public screen::Services
{
public:
    std::optional<screen::SaveAnswer> ShowSave(const std::string& filter,
                                               const std::string& defaultExtension) override;
    screen::MsgBoxAnswer MsgBox(const screen::MsgBoxRequest& request) override;
    std::optional<Date> PickDate(const std::string& title, Date date, std::int32_t, std::int32_t,
                                 std::int32_t) override;
    void OpenDocument(const std::string& path, std::int32_t, std::int32_t ownerWindow, std::int32_t,
                      std::int32_t showCommand) override;

    std::optional<screen::SaveAnswer> saveAnswer; ///< Nothing: the user cancels.
    std::optional<Error> saveError;               ///< The save dialog fails.
    std::vector<screen::MsgBoxAnswer>
        answers; ///< To message boxes, in turn; OK when there is none left.
    std::optional<Error> msgBoxError;
    std::optional<Date> dateAnswer;
    std::optional<Error> dateError;
    std::optional<Error> openError;

    std::vector<std::string> filters;
    std::vector<std::string> extensions;
    std::vector<screen::MsgBoxRequest> boxes;
    std::vector<std::pair<std::string, Date>> dateRequests;
    std::vector<std::string> opened;
};

} // namespace k7deval::test
