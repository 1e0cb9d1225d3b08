#pragma once

#include "cli/ConsoleHost.h"
#include "screen/Buttons.h"
#include "screen/Services.h"

#include <cstdint>
#include <string>

/// How the files of a screen are saved.
namespace k7deval::cli
{

/// The entries of a save dialog's filter.
inline constexpr std::int32_t kPdfEntry = 1;
inline constexpr std::int32_t kEcmpsEntry = 2;

/// Whether two names mean one file.
bool isSameFile(const std::string& one, const std::string& other);

/// A save takes the place of what is there, so it must not be the site. UsageError for that and for
/// a folder. Nothing is wrong with a path that is not given.
void checkTarget(const std::string& option, const std::string& path, const std::string& site);

/// Presses a save button while the dialog answers with a file; no preview is asked for. Returns
/// what the screen told of a failure, or nothing.
std::string pressSave(screen::Button& cmdSave, screen::CheckBox& chkPreview,
                      ConsoleServices& services, const screen::SaveAnswer& answer);

} // namespace k7deval::cli
