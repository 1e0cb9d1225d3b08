#include "cli/ConsoleHost.h"

#include "foundation/TextFunctions.h"

#include <ostream>

namespace k7deval::cli
{

std::optional<screen::SaveAnswer> ConsoleServices::ShowSave(const std::string& /*filter*/,
                                                            const std::string& /*defaultExtension*/)
{
    return nextSave;
}

screen::MsgBoxAnswer ConsoleServices::MsgBox(const screen::MsgBoxRequest& request)
{
    const std::string prompt = replaceAll(request.prompt, "\r\n", " ");
    if (request.buttons != screen::MsgBoxButtons::YesNo) {
        told.push_back(prompt);
        return screen::MsgBoxAnswer::OK;
    }
    *notes_ << prompt << " Yes\n";
    return screen::MsgBoxAnswer::Yes;
}

std::optional<Date> ConsoleServices::PickDate(const std::string& /*title*/, Date /*date*/,
                                              std::int32_t /*a*/, std::int32_t /*b*/,
                                              std::int32_t /*c*/)
{
    return std::nullopt;
}

// There is no viewer to open a file in.
void ConsoleServices::OpenDocument(const std::string& /*path*/, std::int32_t /*a*/,
                                   std::int32_t /*ownerWindow*/, std::int32_t /*b*/,
                                   std::int32_t /*showCommand*/)
{
}

void PostedLines::Post(std::int32_t /*severity*/, const std::string& text)
{
    lines.push_back(text);
}

} // namespace k7deval::cli
