#include "cli/Region.h"

#include "cli/Texts.h"
#include "cli/UsageError.h"

#include <algorithm>
#include <array>

namespace k7deval::cli
{

RegionalSettings settingsOf(const std::string& region)
{
    const std::array<const char*, 4> regions{"en-US", "en-GB", "de-DE", "fr-FR"};
    if (std::find(regions.begin(), regions.end(), region) == regions.end())
        throw UsageError(inQuotes(region) + " is no region; it is one of: " +
                         listed({regions.begin(), regions.end()}) + ".");
    return regionalSettings(region);
}

} // namespace k7deval::cli
