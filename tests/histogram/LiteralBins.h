#pragma once

#include <cstdint>

/// The bins written out step by step with exact integers, against which faster ways are held.
namespace k7deval::test
{

/// A single's decimal text of at most seven significant digits, rounded to six places with halves
/// away from zero, in millionths. For values under a thousand million in size.
std::int64_t millionthsOf(float value);

/// The bin of a value by its definition: as it comes, also outside 1 to 20.
std::int64_t literalBin(float value, float low, float range);

} // namespace k7deval::test
