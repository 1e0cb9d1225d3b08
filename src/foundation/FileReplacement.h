#pragma once

#include <string>
#include <string_view>
#include <system_error>

namespace k7deval
{

/// Writes a file, in place of one that is there. `path` is UTF-8. The content goes to a new file
/// beside the target first, which then takes its name, so a failure leaves what was there before
/// and nothing else. Errors: 76 the folder does not exist; 70 not permitted; 61 no room; 75
/// anything else, such as a folder or a device of that name.
void replaceFile(const std::string& path, std::string_view content);

/// The number of the error that a failure of the file system is passed on as: 61, 70, 75 or 76.
[[nodiscard]] int fileErrorNumber(const std::error_code& failure);

} // namespace k7deval
