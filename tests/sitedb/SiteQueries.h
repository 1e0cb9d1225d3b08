#pragma once

#include "foundation/DataInterface.h"
#include "sitedb/SiteDatabase.h"

#include <string>
#include <vector>

namespace k7deval::sitedb::test
{

/// What the first unit of a site has.
inline constexpr PID kNox = 111'007'501;
inline constexpr PID kNoxHigh = 111'047'501;
inline constexpr PID kMercury = 115'007'501;
inline constexpr PID kOperatingTime = 160'107'501;
inline constexpr PID kLoad = 160'207'501;

/// All calibration events of a measured parameter on a scale.
DIRecordList allRecords(const SiteDatabase& site, PID measured, const std::string& scale);
/// The events from one time to another, of the tables that the 7-Day tool names.
DIRecordList recordsBetween(const SiteDatabase& site, PID measured, const std::string& scale,
                            Date start, Date end);
/// The records of a table for a PID.
DIRecordList recordsOf(const SiteDatabase& site, PID pid, const std::string& table);

/// The parameter; a failure of the test when the site doesn't have it.
std::shared_ptr<DIParameter> parameter(const SiteDatabase& site, PID pid);
Variant attributeOf(const SiteDatabase& site, PID pid, std::int32_t id);

std::vector<PID> pidsOf(const DIParameterList& list);

} // namespace k7deval::sitedb::test
