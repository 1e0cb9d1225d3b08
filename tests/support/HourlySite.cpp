#include "support/HourlySite.h"

#include "foundation/Error.h"

#include <optional>

namespace k7deval::test
{

ParameterData unitNamed(PID pid, const std::string& name)
{
    ParameterData unit;
    unit.pid = pid;
    unit.name = name;
    unit.type = kUnitType;
    return unit;
}

ParameterData hourlyNamed(PID pid, const std::string& name, std::int32_t type)
{
    ParameterData hourly;
    hourly.pid = pid;
    hourly.name = name;
    hourly.type = type;
    hourly.intervalLetter = "h";
    return hourly;
}

void failAt(SiteData& site, const std::string& name, std::size_t number)
{
    const std::size_t before = site.countCalls(name);
    site.failure = [&site, name, before, number](const std::string& call, std::size_t) {
        const bool isReached = call == name && site.countCalls(name) >= before + number;
        return isReached ? std::optional(Error(440, "the line is down")) : std::nullopt;
    };
}

void enter(screen::TextBox& field, const std::string& text)
{
    field.Type(text);
    field.Leave();
}

} // namespace k7deval::test
