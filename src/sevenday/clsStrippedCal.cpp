#include "sevenday/clsStrippedCal.h"

#include "foundation/NumberText.h"
#include "foundation/PropertyOf.h"

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

PropertyList clsStrippedCal::Properties() const
{
    return {
        {"ReferenceValue", {ReferenceValue}},
        {"MeasuredValue", {MeasuredValue}},
        {"Drift", workedOut([this] { return Drift(); })},
        {"DriftLimit", {DriftLimit}},
        {"UsesAPS", {UsesAPS}},
        {"InjectionEndTime", {InjectionEndTime}},
        {"GasLevel", {GasLevel}},
    };
}

} // namespace k7deval
