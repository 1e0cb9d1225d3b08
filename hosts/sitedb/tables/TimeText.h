#pragma once

#include "foundation/Date.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Dates and times as a site keeps them: a day is the text 'YYYY-MM-DD', an hour a whole number
/// from 0 to 23 (the hour that begins then), a run's time the text 'YYYY-MM-DD HH:MM'. Text order
/// is time order.
namespace k7deval::sitedb
{

/// Days since 1899-12-30, or nothing for a text that is no date 'YYYY-MM-DD' of the years 1900 to
/// 2199.
std::optional<std::int64_t> dayNumber(std::string_view day);

std::string dayText(Date value);
/// Seconds are cut off.
std::string minuteText(Date value);
/// The first whole minute that is not before the value.
std::string minuteTextFrom(Date value);

/// 'YYYY-MM-DD HH:MM' of a day, an hour and a minute that are known to be good.
std::string minuteText(const std::string& day, int hour, int minute);

/// The date of a text 'YYYY-MM-DD HH:MM'. Error 13 for any other text.
Date dateOfMinute(std::string_view text);

} // namespace k7deval::sitedb
