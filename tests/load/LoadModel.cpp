#include "load/LoadModel.h"

#include "foundation/NumberText.h"
#include "histogram/LiteralBins.h"

#include <algorithm>
#include <cstdlib>

namespace k7deval::test
{

namespace
{

/// A threshold: worked out in double, written with six places and read back.
float threshold(float range, double share, float minimum)
{
    return singleOf(FormatNumber(double(range) * share + double(minimum), "0.000000", {}));
}

} // namespace

float singleOf(const std::string& text)
{
    return static_cast<float>(std::strtod(text.c_str(), nullptr));
}

LoadModel::LoadModel(float minimum, float capacityValue)
    : minSafe(minimum), capacity(capacityValue),
      range(static_cast<float>(double(capacityValue) - double(minimum))),
      high(threshold(range, 0.6, minimum)), low(threshold(range, 0.3, minimum))
{
}

void LoadModel::take(double hour)
{
    const auto v = static_cast<float>(hour);
    if (v < minSafe) {
        ++counts.under;
        return;
    }
    if (v > capacity) {
        ++counts.over;
        maxObserved = std::max(maxObserved, v);
        return;
    }
    ++bins.at(static_cast<std::size_t>(literalBin(v, minSafe, range)));
    ++(v > high ? counts.high : v > low ? counts.mid : counts.low);
}

} // namespace k7deval::test
