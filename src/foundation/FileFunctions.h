#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace k7deval
{

/// The path that a UTF-8 text names.
std::filesystem::path filePath(const std::string& utf8);

/// Whether there is a file (not a folder) of that name.
bool fileExists(const std::string& path);

/// Deletes a file. Error 53 when it is not there, 70 when it is write-protected or may not be
/// deleted, 75 for any other failure.
void deleteFile(const std::string& path);

/// Puts bytes into a file, in place of what is there. They are written to a temporary file beside
/// it that is then renamed, so a failure leaves what was there before. Error 76 when the folder is
/// not there, 70 when it may not be written, 61 when the disk is full, 75 for any other failure.
void replaceFile(const std::string& path, std::string_view bytes);

} // namespace k7deval
