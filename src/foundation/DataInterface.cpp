#include "foundation/DataInterface.h"

namespace k7deval
{

namespace
{

constexpr std::int32_t kLookupArgument2 = 1;
constexpr const char* kLookupTable = "K7LOOKUP";
constexpr const char* kFacilityNameKey = "FacilityName";
constexpr const char* kNoFacilityName = "<Facility Name>";

} // namespace

std::string facilityName(DIServer& server)
{
    const auto service = server.LookupService();
    const auto lookups = present(service).Lookups();
    const auto siteInfo = server.SiteInfo();
    const auto entry = present(lookups).Find(present(siteInfo).SiteKey(), kLookupArgument2,
                                             kLookupTable, kFacilityNameKey, "");
    const std::string name = entry ? entry->Value() : std::string();
    return name.empty() ? kNoFacilityName : name;
}

} // namespace k7deval
