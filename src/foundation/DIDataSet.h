#pragma once

#include "foundation/Date.h"
#include "foundation/Variant.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace k7deval
{

class DIDataSet;

/// One hourly slot: a value, Null when the hour has none, and a status word. A light view into its
/// set.
class DIDataPoint
{
public:
    DIDataPoint(DIDataSet& set, std::size_t slot) : set_(&set), slot_(slot) {}

    /// Its position in the set, from 1.
    [[nodiscard]] std::int32_t index() const { return static_cast<std::int32_t>(slot_) + 1; }
    [[nodiscard]] Variant Value() const;
    [[nodiscard]] std::int32_t Status() const;
    void SetValue(double value);
    void setNull();
    void SetStatus(std::int32_t status);

private:
    DIDataSet* set_;
    std::size_t slot_;
};

/// A fixed run of hourly slots in two contiguous arrays: values (NaN marks an hour without one) and
/// status words. A tool prepares it with Init and hands it to DIParameter::ReadData to be filled.
class DIDataSet
{
public:
    /// Prepares count empty slots (Null, status 0) from start; may be called again for another
    /// stretch. interval is "h", and the two last arguments are 1 and 0. Error 5 for another
    /// interval or a negative count.
    void Init(Date start, std::int32_t count, const std::string& interval, std::int32_t multiple,
              std::int32_t options);

    [[nodiscard]] std::int32_t Count() const;
    [[nodiscard]] Date StartTime() const { return start_; }
    /// The end of the last slot.
    [[nodiscard]] Date EndTime() const;

    /// The slot by position, from 1. Error 9 outside the set.
    [[nodiscard]] DIDataPoint ItemByIndex(std::int32_t index);
    /// The slot of the hour that a time lies in. Error 9 outside the set.
    [[nodiscard]] DIDataPoint ItemByTime(Date time);

    /// The slots as arrays, for a host that fills them in one go and an engine that scans them.
    [[nodiscard]] std::span<double> values() { return values_; }
    [[nodiscard]] std::span<const double> values() const { return values_; }
    [[nodiscard]] std::span<std::int32_t> statuses() { return statuses_; }
    [[nodiscard]] std::span<const std::int32_t> statuses() const { return statuses_; }

private:
    Date start_;
    std::vector<double> values_;
    std::vector<std::int32_t> statuses_;
};

} // namespace k7deval
