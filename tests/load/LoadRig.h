#pragma once

#include "foundation/ExpectError.h"
#include "load/ctrlMaxMW.h"
#include "support/FakeServices.h"
#include "support/FakeSite.h"
#include "support/HourlySite.h"
#include "support/ScreenSnapshot.h"

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace k7deval::test
{

using Lines = std::vector<std::string>;

/// GT1, its load, and a constant that holds its capacity.
inline constexpr PID kGT1 = 100'100'000;
inline constexpr PID kGT1Load = 160'207'501;
inline constexpr PID kGT1Capacity = 160'200'000;
/// GT2 and its load; it has no constant.
inline constexpr PID kGT2 = 200'100'000;
inline constexpr PID kGT2Load = 260'207'501;

/// A type under which a site may keep constants.
inline constexpr std::int32_t kConstantType = 4;

ParameterData constantOf(PID pid, std::optional<double> value, std::int32_t type = kConstantType,
                         std::int32_t subset = 0);

/// GT1 with its load and a capacity of 100, and GT2 with its load. No load has hours.
std::shared_ptr<SiteData> siteOfLoads();
/// A site of GT1 alone, with these parameters.
std::shared_ptr<SiteData> siteOfParameters(const std::vector<ParameterData>& parameters);

/// The load tool, on 10 May 2024 at 14:30 if not said otherwise. It has no data yet.
struct LoadTool {
    explicit LoadTool(Date now = makeDate(2024, 5, 10, 14, 30), const std::string& region = "en-US")
        : clock(now), regional(regionalSettings(region))
    {
    }
    LoadTool(const LoadTool&) = delete;
    LoadTool& operator=(const LoadTool&) = delete;
    ~LoadTool() = default;

    FakeServices services;
    FixedClock clock;
    RegionalSettings regional;
    ctrlMaxMW tool{{services, clock, regional}};
};

/// The load tool on a site of plain data, with GT1 and its load picked: minimum 0, capacity 100,
/// four quarters ending with the first of 2024.
struct LoadRig : LoadTool {
    explicit LoadRig(std::shared_ptr<SiteData> data = siteOfLoads(),
                     Date now = makeDate(2024, 5, 10, 14, 30), const std::string& region = "en-US")
        : LoadTool(now, region), site(std::move(data))
    {
        tool.SetDIServer(serve(site));
    }

    LoadRig& calculate()
    {
        tool.cmdCalculate.Press();
        return *this;
    }
    LoadRig& range(const std::string& minimum, const std::string& capacity)
    {
        enter(tool.txtMinSafe, minimum);
        enter(tool.txtCapacity, capacity);
        return *this;
    }
    LoadRig& specify(const std::string& from, const std::string& to)
    {
        tool.optTimeSelect.Press();
        enter(tool.txtFrom, from);
        enter(tool.txtTo, to);
        return *this;
    }
    /// One hour a value, from the first of January 2024 on. These are all hours of the load.
    LoadRig& hours(const std::vector<double>& values, std::int32_t status = 0);
    /// Gives the load as many hours of a value, behind those it has.
    LoadRig& addHours(std::size_t count, double value);

    [[nodiscard]] HourlyValues& load() const { return site->parameter(kGT1Load).hours; }
    [[nodiscard]] const LoadEvaluation& results() const { return tool.evaluation(); }
    /// What was read so far; forgets it.
    std::vector<ReadRequest> takeReads();

    template <class Action> Lines changesBy(Action action) { return changesOn(tool, action); }

    std::shared_ptr<SiteData> site;
};

/// Whether the results of an evaluation are off the screen: no texts, flat bars, no tool tips.
bool isCleared(const ctrlMaxMW& tool);

/// Hours per counter and bin of an evaluation, for comparison.
struct HourCounts {
    std::int32_t low = 0;
    std::int32_t mid = 0;
    std::int32_t high = 0;
    std::int32_t over = 0;
    std::int32_t under = 0;
    friend bool operator==(const HourCounts&, const HourCounts&) = default;
};
HourCounts countsOf(const LoadEvaluation& evaluation);
std::ostream& operator<<(std::ostream& out, const HourCounts& counts);

} // namespace k7deval::test
