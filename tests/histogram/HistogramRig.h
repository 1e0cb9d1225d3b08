#pragma once

#include "foundation/ExpectError.h"
#include "histogram/BarLabels.h"
#include "support/FakeServices.h"
#include "support/FakeSite.h"
#include "support/HourlySite.h"
#include "support/ScreenSnapshot.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// What the tests of load and range evaluation drive their tools with.
namespace k7deval::test
{

using Lines = std::vector<std::string>;
using Hours = std::vector<std::optional<double>>;
using Reads = std::vector<ReadRequest>;

/// The day on which a tool is used if a test does not say otherwise: the first quarter is over.
inline const Date kAfternoonInMay = makeDate(2024, 5, 15, 14, 30);

/// A tool in its surroundings. It has no data yet.
template <class Kind> struct ToolAlone {
    using Tool = Kind;

    explicit ToolAlone(Date now = kAfternoonInMay, const std::string& region = "en-US")
        : clock(now), regional(regionalSettings(region))
    {
    }
    ToolAlone(const ToolAlone&) = delete;
    ToolAlone& operator=(const ToolAlone&) = delete;
    ~ToolAlone() = default;

    template <class Action> Lines changesBy(Action action) { return changesOn(tool, action); }

    FakeServices services;
    FixedClock clock;
    RegionalSettings regional;
    Tool tool{{services, clock, regional}};
};

/// A tool on a site of plain data. `Rig` is the tool's own rig, which names the series that its
/// tool has picked: `kSeries`.
template <class Rig, class Kind> struct HistogramRig : ToolAlone<Kind> {
    HistogramRig(std::shared_ptr<SiteData> data, Date now, const std::string& region)
        : ToolAlone<Kind>(now, region), site(std::move(data)), server(serve(site))
    {
        this->tool.SetDIServer(server);
    }

    Rig& calculate()
    {
        this->tool.cmdCalculate.Press();
        return self();
    }
    /// Values from the first hour of 2024 on, in place of the hours that were there.
    Rig& hours(const Hours& values, std::int32_t status = 0)
    {
        series() = {};
        for (std::size_t hour = 0; hour < values.size(); ++hour)
            series().set(makeDate(2024, 1, 1, static_cast<int>(hour)), values[hour], status);
        return self();
    }
    /// As many hours of a value behind those that are there.
    Rig& addHours(std::size_t count, double value)
    {
        if (series().values.empty())
            series().start = makeDate(2024, 1, 1);
        series().values.insert(series().values.end(), count, value);
        return self();
    }
    /// One hour of a value in the middle of a quarter.
    Rig& hourOf(int year, int quarter, double value = 50)
    {
        series().set(makeDate(year, 3 * quarter - 1, 15, 12), value);
        return self();
    }
    /// The site has that parameter no more.
    Rig& without(PID pid)
    {
        std::erase_if(site->parameters, [pid](const auto& one) { return one.pid == pid; });
        return self();
    }

    [[nodiscard]] HourlyValues& series() const { return site->parameter(Rig::kSeries).hours; }
    [[nodiscard]] const auto& results() const { return this->tool.evaluation(); }
    /// What was read so far; forgets it.
    Reads takeReads() { return std::exchange(site->reads, {}); }

    std::shared_ptr<SiteData> site;
    std::shared_ptr<DIServer> server;

private:
    Rig& self() { return static_cast<Rig&>(*this); }
};

/// Hours of a whole quarter, and of so many quarters from one backward.
ReadRequest quarterOfHours(PID pid, int year, int quarter);
Reads quartersBackFrom(PID pid, int year, int quarter, int count);

/// Whether the twenty bars lie flat and tell nothing.
bool barsLieFlat(const histogram::BarLabels& bars);

/// What stands in the three percents, and at the four marks of the scale.
template <class Tool> Lines percentsOf(const Tool& tool)
{
    return {tool.lblLowOpPercent.Caption(), tool.lblMidOpPercent.Caption(),
            tool.lblHighOpPercent.Caption()};
}
template <class Tool> Lines scaleOf(const Tool& tool)
{
    return {tool.lblMinSafe.Caption(), tool.lblLow.Caption(), tool.lblMid.Caption(),
            tool.lblMax.Caption()};
}

} // namespace k7deval::test
