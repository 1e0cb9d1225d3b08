#include "cli/Region.h"

#include "cli/Texts.h"
#include "cli/UsageError.h"

#include <algorithm>

namespace k7deval::cli
{

RegionalSettings settingsOf(const std::string& region)
{
    if (std::find(kRegionNames.begin(), kRegionNames.end(), region) == kRegionNames.end())
        throw UsageError(inQuotes(region) + " is no region; it is one of: " +
                         listed({kRegionNames.begin(), kRegionNames.end()}) + ".");
    return regionalSettings(region);
}

} // namespace k7deval::cli
