#include "sevenday/clsStrippedCal.h"

#include "foundation/NumberText.h"

#include <cmath>

namespace k7deval
{

namespace
{

constexpr int kDriftPlaces = 4;

} // namespace

float clsStrippedCal::Drift() const
{
    return roundTrip(MeasuredValue - ReferenceValue, kDriftPlaces);
}

bool clsStrippedCal::isWithinLimit() const
{
    return std::abs(Drift()) <= DriftLimit;
}

} // namespace k7deval
