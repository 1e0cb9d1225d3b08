#include "foundation/DIDataSet.h"

#include "foundation/Error.h"

#include <cmath>
#include <limits>

namespace k7deval
{

namespace
{

constexpr double kNoValue = std::numeric_limits<double>::quiet_NaN();

} // namespace

Variant DIDataPoint::Value() const
{
    const double value = set_->values()[slot_];
    if (std::isnan(value))
        return Null{};
    return value;
}

std::int32_t DIDataPoint::Status() const
{
    return set_->statuses()[slot_];
}

void DIDataPoint::SetValue(double value)
{
    set_->values()[slot_] = value;
}

void DIDataPoint::setNull()
{
    set_->values()[slot_] = kNoValue;
}

void DIDataPoint::SetStatus(std::int32_t status)
{
    set_->statuses()[slot_] = status;
}

void DIDataSet::Init(Date start, std::int32_t count, const std::string& interval,
                     std::int32_t multiple, std::int32_t options)
{
    if (count < 0 || interval != "h" || multiple != 1 || options != 0)
        throw Error(errors::kInvalidCall);
    start_ = start;
    values_.assign(static_cast<std::size_t>(count), kNoValue);
    statuses_.assign(static_cast<std::size_t>(count), 0);
}

std::int32_t DIDataSet::Count() const
{
    return static_cast<std::int32_t>(values_.size());
}

Date DIDataSet::EndTime() const
{
    return dateFromSeconds(wholeSeconds(start_) + Count() * kSecondsPerHour);
}

DIDataPoint DIDataSet::ItemByIndex(std::int32_t index)
{
    if (index < 1 || index > Count())
        throw Error(errors::kSubscript);
    return {*this, static_cast<std::size_t>(index) - 1};
}

DIDataPoint DIDataSet::ItemByTime(Date time)
{
    const std::int64_t seconds = wholeSeconds(time) - wholeSeconds(start_);
    if (seconds < 0 || seconds >= Count() * kSecondsPerHour)
        throw Error(errors::kSubscript);
    return {*this, static_cast<std::size_t>(seconds / kSecondsPerHour)};
}

} // namespace k7deval
