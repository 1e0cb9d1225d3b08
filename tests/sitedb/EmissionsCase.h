#pragma once

#include "sitedb/ImportCase.h"

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace k7deval::sitedb::test
{

/// An emissions file of the unit U1 of SmallSite, from 2020-02-29 22:00 to 2020-03-01 00:00, when
/// it went off line, and of one hour of the stack CS1.
std::string smallEmissions();
/// smallEmissions with one field patched.
std::string patchedEmissions(const std::string& path, const std::string& value);

/// An hour of the unit U1 in which the NOX component 010 measured; others can be made of it.
nlohmann::json emissionsHour(const std::string& day, int hour, double value);
/// An emissions file of these hours.
std::string emissionsOf(const std::vector<nlohmann::json>& hours);

/// A file of so many hours from 2021-01-01 on of each of several units, "U1" and so on.
std::string emissionsOfUnits(int units, int hours);

/// The hours of a parameter from a time on, as value and status word: "12.5/101", "-/2".
std::vector<std::string> hoursFrom(const SiteDatabase& site, PID pid, Date start,
                                   std::int32_t count);
/// One number that a query gives.
std::int64_t count(const SiteDatabase& site, const std::string& query);

} // namespace k7deval::sitedb::test
