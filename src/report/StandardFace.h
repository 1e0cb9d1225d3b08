#pragma once

#include <array>
#include <cstdint>

namespace k7deval
{

/// The measures of one of the standard faces that every PDF reader has, in 1/1000 of the font size.
/// Ascender and descender are those of a line of text.
struct StandardFace {
    int ascender = 0;
    int descender = 0;              ///< Below the base line, so a negative number.
    std::array<int, 256> advance{}; ///< By Windows-1252 byte; 0 for a byte that stands for nothing.

    /// The face behind a font code (5, 6 or 7). Any other code: error 5.
    static StandardFace ofCode(std::int32_t fontCode);
};

} // namespace k7deval
