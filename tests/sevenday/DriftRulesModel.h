#pragma once

#include <cstddef>
#include <iosfwd>
#include <set>
#include <tuple>
#include <vector>

/// A second reading of the rules of a 7-day drift test (40 CFR 75 App. A 6.3.1), to check the
/// library's own against. It asks whole days for their facts where the library walks their runs,
/// and it knows no keys, no operating hours and no limits.
namespace k7deval::test::model
{

struct Run {
    bool online = true;
    bool manual = false;
    bool passes = true;
};

struct Day {
    int date = 0;              ///< Counted from any day; the days may stand in any order.
    bool operated = false;     ///< By its hours, whatever its runs say.
    bool undetermined = false; ///< By its hours.
    std::vector<Run> runs;     ///< In order of time.
};

struct Options {
    bool sixOfSeven = false;
    bool includeManual = false;
};

/// Where a run stands: the index of its day and its place among the day's runs.
struct Place {
    std::size_t day = 0;
    std::size_t run = 0;
    friend bool operator==(const Place&, const Place&) = default;
    friend bool operator<(const Place& one, const Place& other)
    {
        return std::tie(one.day, one.run) < std::tie(other.day, other.run);
    }
};

struct Outcome {
    int goodCals = 0;
    int failedCals = 0;
    int lastFailDay = 0; ///< The number of days when there is none.
    int prevFailDay = 0; ///< The number of days when there is none.
    int undeterminedDays = 0;
    std::set<Place> marks;
    friend bool operator==(const Outcome&, const Outcome&) = default;
};

/// The outcome of the test over the days, in the order in which they stand.
Outcome outcomeOf(const std::vector<Day>& days, Options options);

void PrintTo(const Outcome& outcome, std::ostream* out);

} // namespace k7deval::test::model
