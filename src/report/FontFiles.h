#pragma once

#include <filesystem>
#include <vector>

namespace k7deval
{

/// A TrueType face on disk: a font file, or one face of a font collection.
struct FontFile {
    std::filesystem::path path;
    unsigned index = 0; ///< Which face of a collection (.ttc); 0 for a plain font file.

    bool operator==(const FontFile&) const = default;
};

/// Where a report looks for the faces of texts beyond Windows-1252: candidates for each font code,
/// the preferred ones first. A file that is not there is passed over.
struct FontFiles {
    std::vector<FontFile> body;   ///< Font code 5.
    std::vector<FontFile> title;  ///< Font code 6.
    std::vector<FontFile> footer; ///< Font code 7.

    bool operator==(const FontFiles&) const = default;
};

/// Where Debian and Windows keep suitable faces.
[[nodiscard]] FontFiles defaultFontFiles();

} // namespace k7deval
