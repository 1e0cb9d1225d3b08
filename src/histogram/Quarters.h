#pragma once

#include "foundation/DataInterface.h"
#include "screen/ComboBox.h"
#include "screen/Services.h"

#include <functional>
#include <optional>

/// Calendar quarters, as an operator names them and as hours are read by them.
namespace k7deval::histogram
{

/// A calendar quarter, 1 to 4.
struct Quarter {
    int year = 0;
    int number = 1;
    friend bool operator==(const Quarter&, const Quarter&) = default;
};

Quarter quarterOf(Date time);
/// The newest quarter that is over at a time.
Quarter lastFinishedQuarter(Date today);
/// Midnight of the quarter's first day. Error 5 outside the years 100 to 9999.
Date firstDayOf(Quarter quarter);
/// Midnight of the quarter's last day.
Date lastDayOf(Quarter quarter);

/// Midnight of the first day of the calendar quarter that holds a time.
Date GetQuarterStart(Date time);

/// Fills the two lists with Q1 to Q4 and the present year and the two before it, and selects the
/// newest finished quarter.
void offerQuarters(screen::ComboBox& cmbQTR, screen::ComboBox& cmbYear, Date today);

/// The last hour of the quarter that the two lists name. A year that is no whole number from 100
/// to 9999 is replaced on the screen by the present one, and a missing quarter by Q1.
Date GetSelectedQuarterEnd(screen::ComboBox& cmbQTR, screen::ComboBox& cmbYear,
                           const screen::Surroundings& surroundings);

/// What is done with the hours of a chunk; false ends the walk.
using TakeChunk = std::function<bool(const DIDataSet& hours)>;

/// Reads a parameter's hours from the newest backward, a calendar quarter at a time, into one data
/// set. With a first day the walk ends there by itself, and its oldest chunk begins there.
void walkQuarters(DIParameter& parameter, Date lastHour, std::optional<Date> firstDay,
                  const TakeChunk& take);

/// The most quarters that are read when a walk looks for quarters with data.
inline constexpr int kMostQuarters = 12;

/// How many quarters of a walk had data.
struct QuarterCount {
    int withData = 0;
    int empty = 0;

    /// One valid hour is enough for a quarter to count as one with data.
    void count(std::int32_t validHours) { ++(validHours > 0 ? withData : empty); }
    [[nodiscard]] bool isAtLimit() const { return withData + empty >= kMostQuarters; }
};

} // namespace k7deval::histogram
