#pragma once

#include <filesystem>
#include <string>

namespace k7deval
{

/// The path that a UTF-8 text names. Error 75 for a text that can be no path, such as the empty
/// one.
std::filesystem::path filePath(const std::string& utf8);

/// Whether there is a file (not a folder) of that name.
bool fileExists(const std::string& path);

/// Deletes a file. Error 53 when it is not there, 70 when it is write-protected or may not be
/// deleted, 75 for any other failure.
void deleteFile(const std::string& path);

} // namespace k7deval
