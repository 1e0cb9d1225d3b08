#pragma once

#include <cstdint>

namespace k7deval
{

/// The codes of a report's fonts: for body text, for titles and what must stand out, for footers.
inline constexpr std::int32_t kBodyFont = 5;
inline constexpr std::int32_t kHeadingFont = 6;
inline constexpr std::int32_t kFooterFont = 7;

} // namespace k7deval
