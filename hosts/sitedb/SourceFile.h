#pragma once

#include "sitedb/Import.h"
#include "sitedb/PlainText.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace k7deval::sitedb
{

/// A file to import: its content, unpacked if it is gzip, and what identifies it.
struct SourceFile {
    std::string name;      ///< Without directories, for sentences.
    std::string content;   ///< Text, without a byte order mark.
    std::int64_t size = 0; ///< Of the file as it lies on the disk.
    std::int64_t crc = 0;  ///< CRC-32 of the same.

    /// The error "name: place: what." with a place such as a line or a JSON path; the place may be
    /// empty.
    [[nodiscard]] ImportError error(std::string_view place, std::string_view what,
                                    int number = errors::kInvalidCall) const;
};

/// Reads and, where it is gzip, unpacks a file. Raises ImportError for a file that is not there, is
/// empty, can't be read, or is a damaged or cut-off gzip file.
SourceFile readSourceFile(const std::filesystem::path& path);

} // namespace k7deval::sitedb
