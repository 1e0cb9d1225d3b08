#pragma once

#include "report/BigEndian.h"
#include "report/FontFiles.h"
#include "support/TemporaryFolder.h"

#include <cstddef>
#include <stdexcept>
#include <string>

namespace k7deval::test
{

inline const FontFile kSans{"/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf"};
inline const FontFile kSansBold{"/usr/share/fonts/truetype/dejavu/DejaVuSans-Bold.ttf"};

/// The same face for all font codes, whatever is installed beside it.
inline FontFiles sansOnly()
{
    return {{kSans}, {kSansBold}, {kSans}};
}

inline constexpr std::size_t kDirectory = 12;
inline constexpr std::size_t kDirectoryEntry = 16;

/// Where a font file's entry for a table lies.
inline std::size_t tableEntry(const std::string& font, const std::string& tag)
{
    for (std::size_t entry = kDirectory; entry < kDirectory + kDirectoryEntry * wordAt(font, 4);
         entry += kDirectoryEntry) {
        if (font.compare(entry, tag.size(), tag) == 0)
            return entry;
    }
    throw std::runtime_error("the font has no table " + tag);
}

/// Where a table of a font file begins.
inline std::size_t tableStart(const std::string& font, const std::string& tag)
{
    return longAt(font, tableEntry(font, tag) + 8);
}

inline void replaceWord(std::string& font, std::size_t offset, unsigned value)
{
    font.at(offset) = static_cast<char>(value >> 8U);
    font.at(offset + 1) = static_cast<char>(value & 0xFFU);
}

} // namespace k7deval::test
