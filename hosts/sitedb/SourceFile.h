#pragma once

#include "sitedb/Import.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace k7deval::sitedb
{

/// The text of a path as UTF-8, whatever the platform keeps paths in.
std::string utf8Text(const std::filesystem::path& path);

/// Whether a byte is a printable ASCII character or a blank.
bool isPrintable(char letter);
/// A text in quotes for a sentence: cut if it is long, with "?" for what is not printable ASCII.
std::string inQuotes(std::string_view text);

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
