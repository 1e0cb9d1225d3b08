#pragma once

#include "report/TrueTypeFace.h"

#include <cstdint>
#include <set>
#include <string>

namespace k7deval
{

/// A font file with no outlines but those of `glyphs`, of the glyphs they are put together from,
/// and of the one for a missing character. Every glyph keeps its number. It has the tables that a
/// PDF file needs of an embedded TrueType font.
[[nodiscard]] std::string trueTypeSubset(const TrueTypeFace& face,
                                         const std::set<std::uint16_t>& glyphs);

} // namespace k7deval
