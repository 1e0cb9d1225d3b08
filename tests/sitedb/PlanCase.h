#pragma once

#include "sitedb/ImportCase.h"

#include <string>
#include <vector>

namespace k7deval::sitedb::test
{

/// A plan in the layout of the ECMPS import, ORIS code 54, "Small Plant": unit U1 with the NOX
/// component 010 on both scales, the retired NOX component 011, the CO2 component 020 and the flow
/// monitor 030, with loads in MW; common stack CS1 with the SO2 component 100; pipe CP1 without
/// analyzers. Spans and loads of former times stand beside those in force.
std::string smallPlan();
/// smallPlan with one field patched.
std::string patchedPlan(const std::string& path, const std::string& value);

/// "1-110-0-75-01 NOX 010" of every parameter of a type, in order.
std::vector<std::string> parametersOfType(const SiteDatabase& site, std::int32_t type);
/// "NOX 010/H Calibration: 200" of every calibration, with the span of its definition.
std::vector<std::string> spansOf(const SiteDatabase& site);
/// The value of a constant as the load tool reads it: "602 75 0: 150", in order.
std::vector<std::string> constantsOf(const SiteDatabase& site, std::int32_t unit);

inline constexpr std::int32_t kMeasuredType = 8;

} // namespace k7deval::sitedb::test
