#include "foundation/FileReplacement.h"

#include "foundation/Error.h"
#include "foundation/FileFunctions.h"

#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <random>

namespace k7deval
{

namespace
{

namespace fs = std::filesystem;

/// A file that is gone with the end of the block, unless it got another name.
class TemporaryFile
{
public:
    explicit TemporaryFile(fs::path path) : path_(std::move(path)) {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile()
    {
        std::error_code ignored;
        fs::remove(path_, ignored);
    }

    void write(std::string_view content) const;
    void renameTo(const fs::path& target) const;

private:
    fs::path path_;
};

void requireNoFailure(const std::error_code& failure)
{
    if (failure)
        throw Error(fileErrorNumber(failure));
}

// Streams say that they failed but not why; the C library's error number does, on every platform in
// use.
std::error_code lastFailure()
{
    return {errno != 0 ? errno : EIO, std::generic_category()};
}

void TemporaryFile::write(std::string_view content) const
{
    errno = 0;
    std::ofstream stream(path_, std::ios::binary | std::ios::trunc);
    if (!stream)
        requireNoFailure(lastFailure());
    stream.write(content.data(), static_cast<std::streamsize>(content.size()));
    stream.close();
    if (!stream)
        requireNoFailure(lastFailure());
}

void TemporaryFile::renameTo(const fs::path& target) const
{
    std::error_code failure;
    fs::rename(path_, target, failure);
    requireNoFailure(failure);
}

// The standard has no name for it, and not every platform has the thing.
bool isQuotaExceeded([[maybe_unused]] const std::error_code& failure)
{
#ifdef EDQUOT
    return failure == std::error_condition(EDQUOT, std::generic_category());
#else
    return false;
#endif
}

// A link keeps being one: the file that it leads to is replaced.
fs::path behindLinks(const fs::path& path)
{
    std::error_code failure;
    const fs::path file = fs::canonical(path, failure);
    return failure ? path : file;
}

void requireReplaceable(const fs::path& target)
{
    std::error_code failure;
    const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
    if (!fs::is_directory(folder, failure))
        throw Error(failure ? fileErrorNumber(failure) : errors::kPathNotFound);
    if (fs::exists(target, failure) && !fs::is_regular_file(target, failure))
        throw Error(errors::kPathAccess);
}

fs::path newNameBeside(const fs::path& target)
{
    std::random_device random;
    fs::path name;
    std::error_code ignored;
    do {
        name = target.parent_path() / ("save-" + std::to_string(std::uint32_t{random()}) + ".tmp");
    } while (fs::exists(name, ignored));
    return name;
}

} // namespace

void replaceFile(const std::string& path, std::string_view content)
{
    const fs::path target = behindLinks(filePath(path));
    requireReplaceable(target);
    const TemporaryFile file(newNameBeside(target));
    file.write(content);
    file.renameTo(target);
}

int fileErrorNumber(const std::error_code& failure)
{
    using std::errc;
    if (failure == errc::no_space_on_device || failure == errc::file_too_large ||
        isQuotaExceeded(failure))
        return errors::kDiskFull;
    if (failure == errc::permission_denied || failure == errc::operation_not_permitted ||
        failure == errc::read_only_file_system)
        return errors::kPermissionDenied;
    if (failure == errc::no_such_file_or_directory || failure == errc::not_a_directory)
        return errors::kPathNotFound;
    return errors::kPathAccess;
}

} // namespace k7deval
