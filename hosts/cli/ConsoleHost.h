#pragma once

#include "foundation/DataInterface.h"
#include "screen/Services.h"

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace k7deval::cli
{

/// The dialogs of a program without a screen: the file to save was named on the command line, which
/// also answers the questions about it with yes. Each question is told with its answer.
class ConsoleServices final : public screen::Services
{
public:
    explicit ConsoleServices(std::ostream& notes) : notes_(&notes) {}

    /// What the next save dialog answers.
    std::optional<screen::SaveAnswer> nextSave;
    /// The texts of the message boxes that asked nothing, in one line each.
    std::vector<std::string> told;

    std::optional<screen::SaveAnswer> ShowSave(const std::string& filter,
                                               const std::string& defaultExtension) override;
    screen::MsgBoxAnswer MsgBox(const screen::MsgBoxRequest& request) override;
    std::optional<Date> PickDate(const std::string& title, Date date, std::int32_t, std::int32_t,
                                 std::int32_t) override;
    void OpenDocument(const std::string& path, std::int32_t, std::int32_t ownerWindow, std::int32_t,
                      std::int32_t showCommand) override;

private:
    std::ostream* notes_;
};

/// Keeps the lines that a tool posts.
class PostedLines final : public MessageSink
{
public:
    void Post(std::int32_t severity, const std::string& text) override;
    std::vector<std::string> lines;
};

} // namespace k7deval::cli
