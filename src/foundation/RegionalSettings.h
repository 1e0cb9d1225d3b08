#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace k7deval
{

enum class DateOrder { MonthDayYear, DayMonthYear, YearMonthDay };

/// How a user's region writes numbers, dates and times. A plain value; the library starts with
/// en-US.
struct RegionalSettings {
    std::string name = "en-US";
    std::string decimalMark = ".";
    std::vector<std::string> groupMarks = {","}; ///< Any of them is read.
    std::string currencyMark = "$";
    DateOrder dateOrder = DateOrder::MonthDayYear;
    std::string dateSeparator = "/";
    bool twoDigitDayAndMonth = false; ///< "10/03/2024" rather than "3/10/2024".
    bool twelveHourLongTime = true;   ///< The long time is "3:05:09 PM" rather than "15:05:09".
    bool twoDigitHour = false;        ///< The long time is "03:05:09" rather than "3:05:09".
    std::string amMark = "AM";        ///< Empty in a region without AM and PM.
    std::string pmMark = "PM";
    /// The names from January on; a date text may also use the English ones.
    std::array<std::string, 12> monthNames = {"January",   "February", "March",    "April",
                                              "May",       "June",     "July",     "August",
                                              "September", "October",  "November", "December"};

    friend bool operator==(const RegionalSettings&, const RegionalSettings&) = default;
};

/// The regions that are known by name.
inline constexpr std::array<const char*, 4> kRegionNames{"en-US", "en-GB", "de-DE", "fr-FR"};

/// The settings of a region by one of those names. Error 5 for another.
RegionalSettings regionalSettings(std::string_view name);

} // namespace k7deval
