#pragma once

#include "foundation/Date.h"
#include "foundation/RegionalSettings.h"

#include <optional>
#include <string_view>

namespace k7deval
{

/// The date, time or both that a text holds, in the forms that ToDate names; nothing for any other
/// text. presentYear is the year of a date without one.
std::optional<Date> readDateText(std::string_view text, const RegionalSettings& settings,
                                 int presentYear);

} // namespace k7deval
