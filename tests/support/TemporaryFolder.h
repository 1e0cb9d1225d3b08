#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace k7deval::test
{

/// An empty folder of a test's own that is gone with the end of the block.
class TemporaryFolder
{
public:
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    /// The full name of a file in the folder.
    [[nodiscard]] std::string file(const std::string& name) const
    {
        return (path_ / name).string();
    }
    /// The names in the folder, sorted.
    [[nodiscard]] std::vector<std::string> names() const;

private:
    std::filesystem::path path_;
};

/// The whole content of a file; std::runtime_error if it cannot be read.
std::string contentOf(const std::filesystem::path& path);

/// Writes a file; std::runtime_error if it cannot be written.
void writeFile(const std::filesystem::path& path, std::string_view content);

} // namespace k7deval::test
