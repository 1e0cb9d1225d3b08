#include "foundation/FileFunctions.h"

#include "foundation/Error.h"
#include "foundation/FileReplacement.h"

#include <system_error>

namespace k7deval
{

namespace fs = std::filesystem;

fs::path filePath(const std::string& utf8)
{
    if (utf8.empty() || utf8.find('\0') != std::string::npos)
        throw Error(errors::kPathAccess);
    try {
        return std::u8string(utf8.begin(), utf8.end());
    } catch (const std::system_error&) {
        // Bytes that the platform cannot take as a file name.
        throw Error(errors::kPathAccess);
    }
}

bool fileExists(const std::string& path)
{
    std::error_code ignored;
    return fs::is_regular_file(filePath(path), ignored);
}

void deleteFile(const std::string& path)
{
    const fs::path file = filePath(path);
    std::error_code failure;
    const fs::file_status status = fs::status(file, failure);
    if (!fs::exists(status))
        throw Error(errors::kFileNotFound);
    if (!fs::is_regular_file(status))
        throw Error(errors::kPathAccess);
    if ((status.permissions() & fs::perms::owner_write) == fs::perms::none)
        throw Error(errors::kPermissionDenied);
    if (!fs::remove(file, failure))
        throw Error(failure ? fileErrorNumber(failure) : errors::kFileNotFound);
}

} // namespace k7deval
