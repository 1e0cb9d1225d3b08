#pragma once

#include "foundation/RegionalSettings.h"

#include <string>

namespace k7deval::cli
{

/// How dates and numbers are written in a region: "en-US", "en-GB", "de-DE" or "fr-FR". UsageError
/// for any other.
RegionalSettings settingsOf(const std::string& region);

} // namespace k7deval::cli
