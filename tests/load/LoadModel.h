#pragma once

#include "load/LoadRig.h"

#include <array>
#include <cstdint>
#include <string>

namespace k7deval::test
{

/// A number with six decimals: as decimal text of 7 (single) or 15 (double) significant digits,
/// then rounded half away from zero.
std::string sixDecimals(float value);
std::string sixDecimals(double value);

/// A load evaluation worked step by step, with every text that its definition goes through.
struct LoadModel {
    LoadModel(float minimum, float capacity);

    void take(double hour);
    /// The bin of a value in the range.
    [[nodiscard]] int binOf(float value) const;

    float minSafe;
    float capacity;
    float range;
    float high;
    float low;
    HourCounts counts;
    std::array<std::int32_t, 21> bins{};
    float maxObserved = 0;
};

/// The single that a text of plain digits stands for.
float singleOf(const std::string& text);

/// A single so many neighbours up or down.
float neighbour(float value, int steps);

} // namespace k7deval::test
