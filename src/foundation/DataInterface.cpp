#include "foundation/DataInterface.h"

namespace k7deval
{

namespace
{

constexpr std::int32_t kLookupArgument2 = 1;
constexpr const char* kNoFacilityName = "<Facility Name>";

} // namespace

bool definesCalibrations(DIParameter& parameter)
{
    const Variant table = parameter.GetAttribute(attribute::kRecordTable);
    const auto* name = std::get_if<std::string>(&table);
    return name != nullptr && *name == kCalibrationTable;
}

std::optional<bool> isLeftOutOfLists(DIParameter& parameter, const RegionalSettings& settings)
{
    const Variant leftOut = parameter.GetAttribute(attribute::kLeftOutOfLists);
    if (isNull(leftOut))
        return std::nullopt;
    return booleanIn(leftOut, settings);
}

std::string facilityName(DIServer& server)
{
    const auto service = server.LookupService();
    const auto lookups = present(service).Lookups();
    const auto siteInfo = server.SiteInfo();
    const auto entry = present(lookups).Find(present(siteInfo).SiteKey(), kLookupArgument2,
                                             kLookupTable, kFacilityNameEntry, "");
    const std::string name = entry ? entry->Value() : std::string();
    return name.empty() ? kNoFacilityName : name;
}

} // namespace k7deval
