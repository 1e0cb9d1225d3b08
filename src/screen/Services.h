#pragma once

#include "foundation/Clock.h"
#include "foundation/Date.h"
#include "foundation/RegionalSettings.h"

#include <cstdint>
#include <optional>
#include <string>

namespace k7deval::screen
{

/// What a save dialog answers: the file, and which entry of the filter was chosen, from 1.
struct SaveAnswer {
    std::string path;
    std::int32_t filterIndex = 1;
};

enum class MsgBoxButtons { OK, YesNo };
enum class MsgBoxIcon { None, Information, Exclamation };
enum class MsgBoxAnswer { OK, Yes, No };

struct MsgBoxRequest {
    std::string prompt;
    std::string title;
    MsgBoxButtons buttons = MsgBoxButtons::OK;
    MsgBoxIcon icon = MsgBoxIcon::None;
    friend bool operator==(const MsgBoxRequest&, const MsgBoxRequest&) = default;
};

/// The dialogs that a host provides. Any of them may raise an Error.
class Services
{
public:
    virtual ~Services() = default;
    /// Asks for a file to save. filter: "name|pattern|name|pattern...". Gives no answer when the
    /// user cancels.
    virtual std::optional<SaveAnswer> ShowSave(const std::string& filter,
                                               const std::string& defaultExtension) = 0;
    virtual MsgBoxAnswer MsgBox(const MsgBoxRequest& request) = 0;
    /// Shows a calendar at a date. The last three arguments are always -1. Gives no date when the
    /// user picks none.
    virtual std::optional<Date> PickDate(const std::string& title, Date date, std::int32_t,
                                         std::int32_t, std::int32_t) = 0;
    /// Opens a saved file in the platform's viewer: path, 0, owner window, 0, show command 1.
    virtual void OpenDocument(const std::string& path, std::int32_t, std::int32_t ownerWindow,
                              std::int32_t, std::int32_t showCommand) = 0;
};

/// What a control needs of the world around it besides its data. All of it outlives the control.
struct Surroundings {
    Services& services;
    const Clock& clock;
    const RegionalSettings& regional;
};

} // namespace k7deval::screen
