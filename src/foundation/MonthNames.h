#pragma once

#include "foundation/RegionalSettings.h"

#include <optional>
#include <string>
#include <string_view>

namespace k7deval
{

/// The month, from 1, of a name or its first three letters, in the region's language or in English,
/// in either case. Nothing for any other word and for letters that several months begin with.
std::optional<int> monthNamed(std::string_view word, const RegionalSettings& settings);

} // namespace k7deval
