#pragma once

#include "load/LoadRig.h"

#include <array>
#include <cstdint>
#include <string>

namespace k7deval::test
{

/// A load evaluation worked step by step, with every text that its definition goes through.
struct LoadModel {
    LoadModel(float minimum, float capacity);

    void take(double hour);
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

} // namespace k7deval::test
