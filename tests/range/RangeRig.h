#pragma once

#include "histogram/HistogramRig.h"
#include "range/ctrlRangeEval.h"

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace k7deval::test
{

/// The hourly NOx of GT1.
inline constexpr PID kNOx = 112'017'500;

/// The hourly NOx of GT2, where a site has it.
inline constexpr PID kGT2NOx = 212'017'500;

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

/// Whether no results stand on the screen: no texts, "N/A" in the lines of counts, flat bars.
bool isCleared(const ctrlRangeEval& tool);

using RangeTool = ToolAlone<ctrlRangeEval>;

/// The range tool on a site of plain data: if not said otherwise GT1's NOX with a range of
/// 100, an expected value of 20 and a potential one of 100, up to the first quarter of 2024.
struct RangeRig : HistogramRig<RangeRig, ctrlRangeEval> {
    static constexpr PID kSeries = kNOx;
    static constexpr PID kOtherSeries = kGT2NOx;
    static constexpr const char* kHeader = "GT1 NOX";
    static constexpr const char* kTitle = "Range Evaluation";
    static bool isEmpty(const ctrlRangeEval& tool) { return isCleared(tool); }
    static void makeStale(ctrlRangeEval& tool) { tool.txtRange.Leave(); }

    explicit RangeRig(std::shared_ptr<SiteData> data = siteOfNOx(), Date now = kAfternoonInMay,
                      const std::string& region = "en-US")
        : HistogramRig(std::move(data), now, region)
    {
    }

    RangeRig& range(const std::string& text)
    {
        enter(tool.txtRange, text);
        return *this;
    }
    RangeRig& limits(const std::string& mec, const std::string& mpc);
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

} // namespace k7deval::test
