#pragma once

#include "histogram/HistogramRig.h"
#include "load/ctrlMaxMW.h"

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace k7deval::test
{

/// The load of GT1, and a constant that holds its capacity.
inline constexpr PID kGT1Load = 160'207'501;
inline constexpr PID kGT1Capacity = 160'200'000;
/// The load of GT2, which has no constant.
inline constexpr PID kGT2Load = 260'207'501;

/// A type under which a site may keep constants.
inline constexpr std::int32_t kConstantType = 4;

ParameterData constantOf(PID pid, std::optional<double> value, std::int32_t type = kConstantType,
                         std::int32_t subset = 0);

/// GT1 with its load and a capacity of 100, and GT2 with its load. No load has hours.
std::shared_ptr<SiteData> siteOfLoads();
/// A site of GT1 alone, with these parameters.
std::shared_ptr<SiteData> siteOfParameters(const std::vector<ParameterData>& parameters);

/// Whether the results of an evaluation are off the screen: no texts, flat bars, no tool tips.
bool isCleared(const ctrlMaxMW& tool);

using LoadTool = ToolAlone<ctrlMaxMW>;

/// The load tool on a site of plain data, with GT1 and its load picked: minimum 0, capacity 100,
/// four quarters ending with the first of 2024.
struct LoadRig : HistogramRig<LoadRig, ctrlMaxMW> {
    static constexpr PID kSeries = kGT1Load;
    static constexpr PID kOtherSeries = kGT2Load;
    static constexpr const char* kHeader = "GT1 GT1 Load";
    static constexpr const char* kTitle = "Load Evaluation";
    static bool isEmpty(const ctrlMaxMW& tool) { return isCleared(tool); }
    static void makeStale(ctrlMaxMW& tool) { tool.cmbParam.Pick(0); }

    explicit LoadRig(std::shared_ptr<SiteData> data = siteOfLoads(), Date now = kAfternoonInMay,
                     const std::string& region = "en-US")
        : HistogramRig(std::move(data), now, region)
    {
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
};

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
