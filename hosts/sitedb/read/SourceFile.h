#pragma once

#include "sitedb/PlainText.h"
#include "sitedb/read/ImportError.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace k7deval::sitedb
{

/// How many bytes of a file are held at once while it is gone through.
inline constexpr std::size_t kChunkOfFile = std::size_t{64} << 10U;

/// A file to import: where it lies and, where it was asked for, its content.
struct SourceFile {
    std::filesystem::path path;
    std::string name;                ///< Without directories, for sentences.
    std::int64_t size = 0;           ///< Of the file as it lies on the disk.
    std::string content;             ///< Text, unpacked, without a byte order mark.
    std::optional<std::int64_t> crc; ///< CRC-32 as on the disk, once all of it was read.

    /// The error "name: place: what." with a place such as a line or a JSON path; the place may be
    /// empty.
    [[nodiscard]] ImportError error(std::string_view place, std::string_view what,
                                    int number = errors::kInvalidCall) const;
};

/// Is told now and then, while a file is read, how many bytes of it, as it lies on the disk, were
/// read. It may throw to end the reading.
using OnBytesRead = std::function<void(std::int64_t)>;

/// Name and size alone. Raises ImportError for a file that is not there, is empty or can't be read.
SourceFile findSourceFile(const std::filesystem::path& path);

/// The check sum of a found file, without looking at its content.
std::int64_t checkSumOf(const SourceFile& file, const OnBytesRead& onBytesRead = {});

/// Reads the content of a found file and, where it is gzip, unpacks it, with the check sum on the
/// way. Raises ImportError for a file without content or with more than is held in memory, and for
/// a damaged or cut-off gzip file.
void readContent(SourceFile& file, const OnBytesRead& onBytesRead = {});

/// Reads and, where it is gzip, unpacks the first lines of a found file, of a small one all that it
/// has; raises ImportError as readContent does.
void readBeginning(SourceFile& file);

/// Finds a file and reads its content.
SourceFile readSourceFile(const std::filesystem::path& path);

} // namespace k7deval::sitedb
