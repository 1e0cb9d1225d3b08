#pragma once

#include "screen/TextBox.h"
#include "support/FakeSite.h"

#include <cstddef>
#include <cstdint>
#include <string>

/// What the tests of the tools that read hours put together their sites and their actions from.
namespace k7deval::test
{

/// Units that sites have.
inline constexpr PID kGT1 = 100'100'000;
inline constexpr PID kGT2 = 200'100'000;

/// A type under which a site may keep hourly series.
inline constexpr std::int32_t kHourlyType = 8;

ParameterData unitNamed(PID pid, const std::string& name);
/// A series without any hour.
ParameterData hourlyNamed(PID pid, const std::string& name, std::int32_t type = kHourlyType);

/// Every call of that name fails from its n-th from now on with error 440, "the line is down".
void failAt(SiteData& site, const std::string& name, std::size_t number = 1);

/// A user types into a field and leaves it.
void enter(screen::TextBox& field, const std::string& text);

} // namespace k7deval::test
