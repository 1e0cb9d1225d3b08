#pragma once

#include "range/ctrlRangeEval.h"
#include "support/FakeServices.h"
#include "support/FakeSite.h"
#include "support/HourlySite.h"
#include "support/ScreenSnapshot.h"

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace k7deval::test
{

using Lines = std::vector<std::string>;

inline constexpr PID kGT1 = 100'100'000;
inline constexpr PID kGT2 = 200'100'000;
/// The hourly NOx of GT1.
inline constexpr PID kNOx = 112'017'500;

/// A calibration definition: as it stands, of GT1's NOx analyzer on its only scale.
struct ScaleFacts {
    std::int32_t unit = 1;
    std::int32_t code = 120;
    std::int32_t program = 75;
    std::int32_t suffix = 1;
    Variant scale = std::string("SINGLE");
    std::optional<Variant> span = 100.0F; ///< Of its definition; nothing for no definition.
    std::int32_t type = kCalibrationType;
    Variant leftOut = false;
    Variant rangeUse = std::int32_t{0};
    Variant table = std::string("K7CAL");

    [[nodiscard]] PID pid() const { return MakePID(unit, code, 0, program, suffix); }
};

void addScale(SiteData& site, const ScaleFacts& facts);

/// GT1 with NOX, which has these scales. It has no hours, and all of them are off-line.
std::shared_ptr<SiteData> siteOfNOx(const std::vector<ScaleFacts>& scales = {ScaleFacts()});
/// GT1 with NOX on "LOW" (50) and "HIGH" (500) and with CO2 on "SINGLE" (20), and GT2 with NOX on
/// "MID" (250).
std::shared_ptr<SiteData> siteOfTwoUnits();

/// The range tool, on 15 May 2024 at 14:30 if not said otherwise. It has no data yet.
struct RangeTool {
    explicit RangeTool(Date now = makeDate(2024, 5, 15, 14, 30),
                       const std::string& region = "en-US")
        : clock(now), regional(regionalSettings(region))
    {
    }
    RangeTool(const RangeTool&) = delete;
    RangeTool& operator=(const RangeTool&) = delete;
    ~RangeTool() = default;

    template <class Action> Lines changesBy(Action action) { return changesOn(tool, action); }

    FakeServices services;
    FixedClock clock;
    RegionalSettings regional;
    ctrlRangeEval tool{{services, clock, regional}};
};

/// The range tool on a site of plain data: if not said otherwise GT1's NOX with a range of 100, an
/// expected value of 20 and a potential one of 100, up to the first quarter of 2024.
struct RangeRig : RangeTool {
    explicit RangeRig(std::shared_ptr<SiteData> data = siteOfNOx(),
                      Date now = makeDate(2024, 5, 15, 14, 30), const std::string& region = "en-US")
        : RangeTool(now, region), site(std::move(data)), server(serve(site))
    {
        tool.SetDIServer(server);
    }

    RangeRig& calculate()
    {
        tool.cmdCalculate.Press();
        return *this;
    }
    RangeRig& range(const std::string& text)
    {
        enter(tool.txtRange, text);
        return *this;
    }
    /// Values from the first hour of 2024 on, in place of the hours that were there.
    RangeRig& hours(const std::vector<std::optional<double>>& values, std::int32_t status = 0);
    RangeRig& limits(const std::string& mec, const std::string& mpc);

    [[nodiscard]] HourlyValues& series() const { return site->parameter(kNOx).hours; }
    [[nodiscard]] const RangeEvaluation& results() const { return tool.evaluation(); }
    /// What was read so far; forgets it.
    std::vector<ReadRequest> takeReads();

    std::shared_ptr<SiteData> site;
    std::shared_ptr<DIServer> server;
};

/// The counters of an evaluation.
struct Counters {
    std::int32_t low = 0;
    std::int32_t mid = 0;
    std::int32_t high = 0;
    std::int32_t overRange = 0;
    std::int32_t aboveMEC = 0;
    std::int32_t aboveMPC = 0;
    std::int32_t replaced = 0;
    std::int32_t invalid = 0;
    friend bool operator==(const Counters&, const Counters&) = default;
};
Counters countersOf(const RangeEvaluation& evaluation);
std::ostream& operator<<(std::ostream& out, const Counters& counters);

/// Bins by their numbers, without the empty ones.
std::string filledBins(const RangeEvaluation& evaluation);

/// Whether no results stand on the screen: no texts, "N/A" in the lines of counts, flat bars.
bool isCleared(const ctrlRangeEval& tool);

} // namespace k7deval::test
