#include "foundation/FileFunctions.h"

#include "foundation/Error.h"

#include <fstream>
#include <system_error>

namespace k7deval
{

namespace
{

namespace fs = std::filesystem;

Error fileError(const std::error_code& code)
{
    if (code == std::errc::no_such_file_or_directory)
        return Error(errors::kFileNotFound);
    if (code == std::errc::permission_denied || code == std::errc::operation_not_permitted ||
        code == std::errc::read_only_file_system)
        return Error(errors::kPermissionDenied);
    if (code == std::errc::no_space_on_device)
        return Error(errors::kDiskFull);
    return Error(errors::kPathAccess);
}

fs::path folderOf(const fs::path& target)
{
    return target.has_parent_path() ? target.parent_path() : fs::path(".");
}

/// A file beside the target that nobody else writes at the time.
fs::path temporaryBeside(const fs::path& target)
{
    fs::path candidate = target;
    for (int number = 0;; ++number) {
        candidate = target;
        candidate += "." + std::to_string(number) + ".tmp";
        std::error_code ignored;
        if (!fs::exists(candidate, ignored))
            return candidate;
    }
}

void writeTo(const fs::path& file, std::string_view bytes)
{
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    if (!stream)
        throw Error(errors::kPermissionDenied);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (stream)
        return;
    std::error_code code;
    const fs::space_info space = fs::space(folderOf(file), code);
    const bool full = !code && space.available < bytes.size();
    throw Error(full ? errors::kDiskFull : errors::kPathAccess);
}

} // namespace

fs::path filePath(const std::string& utf8)
{
    return {std::u8string(utf8.begin(), utf8.end())};
}

bool fileExists(const std::string& path)
{
    std::error_code ignored;
    return fs::is_regular_file(filePath(path), ignored);
}

void deleteFile(const std::string& path)
{
    const fs::path file = filePath(path);
    std::error_code code;
    const fs::file_status status = fs::status(file, code);
    if (!fs::exists(status))
        throw Error(errors::kFileNotFound);
    if ((status.permissions() & fs::perms::owner_write) == fs::perms::none)
        throw Error(errors::kPermissionDenied);
    if (!fs::remove(file, code))
        throw fileError(code);
}

void replaceFile(const std::string& path, std::string_view bytes)
{
    const fs::path target = filePath(path);
    std::error_code code;
    if (path.empty() || fs::is_directory(target, code))
        throw Error(errors::kPathAccess);
    if (!fs::is_directory(folderOf(target), code))
        throw Error(errors::kPathNotFound);
    const fs::path temporary = temporaryBeside(target);
    try {
        writeTo(temporary, bytes);
        fs::rename(temporary, target, code);
        if (code)
            throw fileError(code);
    } catch (const Error&) {
        fs::remove(temporary, code);
        throw;
    }
}

} // namespace k7deval
