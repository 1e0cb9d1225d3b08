#pragma once

#include "sitedb/PlainText.h"
#include "sitedb/read/ImportError.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace k7deval::sitedb
{

/// A file to import: what identifies it and, where it was asked for, its content.
struct SourceFile {
    std::string name;      ///< Without directories, for sentences.
    std::string content;   ///< Text, unpacked if the file is gzip, without a byte order mark.
    std::int64_t size = 0; ///< Of the file as it lies on the disk.
    std::int64_t crc = 0;  ///< CRC-32 of the same.

    /// The error "name: place: what." with a place such as a line or a JSON path; the place may be
    /// empty.
    [[nodiscard]] ImportError error(std::string_view place, std::string_view what,
                                    int number = errors::kInvalidCall) const;
};

/// The name alone. Raises ImportError for a file that is not there or can't be read.
SourceFile findSourceFile(const std::filesystem::path& path);

/// What identifies a file of any size; its content is left empty. Raises ImportError for a file
/// that is not there, is empty or can't be read.
SourceFile identifySourceFile(const std::filesystem::path& path);

/// Reads and, where it is gzip, unpacks the content of a found file. Raises ImportError for a
/// file without content or with more than is held in memory, and for a damaged or cut-off gzip
/// file.
void readContent(const std::filesystem::path& path, SourceFile& file);

/// Reads and, where it is gzip, unpacks the first lines of a found file, of a small one all that it
/// has; raises ImportError as readContent does.
void readBeginning(const std::filesystem::path& path, SourceFile& file);

/// Both steps at once.
SourceFile readSourceFile(const std::filesystem::path& path);

} // namespace k7deval::sitedb
