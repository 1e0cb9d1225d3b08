#pragma once

#include "report/FontFiles.h"

#include <cstdint>
#include <vector>

namespace k7deval
{

/// The codes by which a text names its face, and the sizes that the reports use it in.
inline constexpr std::int32_t kBodyFont = 5; ///< Figures, column heads, sentences.
inline constexpr float kBodySize = 10;
inline constexpr std::int32_t kHeadingFont = 6; ///< Titles, and a figure that must stand out.
inline constexpr float kHeadingSize = 12;
inline constexpr float kFacilitySize = 14;
inline constexpr std::int32_t kFooterFont = 7; ///< Footers and page numbers.
inline constexpr float kFooterSize = 8;

/// A face that reports are set in.
struct ReportFace {
    std::int32_t code;
    /// The face that every PDF reader has for it, as a PDF file names it.
    const char* standardName;
    /// The faces that draw a text beyond Windows-1252 in its place.
    std::vector<FontFile> FontFiles::*fontFiles;
    bool isBold;
    bool isSlanted;

    /// The face behind a font code (5, 6 or 7). Any other code: error 5.
    static const ReportFace& ofCode(std::int32_t code);
};

} // namespace k7deval
