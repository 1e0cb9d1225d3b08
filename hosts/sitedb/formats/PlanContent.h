#pragma once

#include "sitedb/read/SourceFile.h"
#include "sitedb/tables/Gases.h"
#include "sitedb/tables/SiteWriter.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What a site takes from a monitoring plan, in whichever layout it came. A place says where
/// something stands in the file, for a sentence.
namespace k7deval::sitedb
{

/// When a record of a plan holds: its first and its last hour, 'YYYY-MM-DD HH:MM'. Without a last
/// hour the record is still in force.
struct PlanPeriod {
    std::string begin;
    std::string end;
};

/// A time at which only a record without an end is in force.
inline constexpr std::string_view kPresent = "9999-12-31 23:00";

/// Which of some records to go by at a time: the one in force then, else the latest that had begun;
/// of several the one that began last. Nothing when none had begun.
std::optional<std::size_t> recordAt(const std::vector<PlanPeriod>& periods, std::string_view time);

struct PlanSpan {
    std::string place;
    AnalyzerSpan span;
    std::string begin;               ///< 'YYYY-MM-DD HH:MM'
    std::optional<double> fullScale; ///< In the units of the span, as the next two.
    std::optional<double> maximumPotential;
    std::optional<double> maximumExpected;
    std::optional<double> maximumFlow; ///< Of flow, in scfh, as the next two.
    std::optional<double> flowSpan;
    std::optional<double> flowFullScale;
};

/// An analyzer with the spans that are joined to it.
struct PlanComponent {
    std::string place;
    std::string id; ///< Empty where the file names no components.
    const Gas* gas = nullptr;
    std::vector<PlanSpan> spans;
    bool isInForce = true; ///< Not when all its ranges have ended.
};

/// Load in MW.
struct PlanLoad {
    std::string place;
    std::optional<double> maximum;
    std::optional<double> lowerBoundary;
    std::optional<double> upperBoundary;
};

/// A unit, stack or pipe.
struct PlanLocation {
    std::string place;
    std::string name;
    std::vector<PlanComponent> components;
    PlanLoad load;
};

struct PlanContent {
    std::string orisPlace;
    std::int32_t orisCode = 0;
    std::string facility; ///< Empty where the file does not name it.
    std::vector<PlanLocation> locations;
    std::vector<std::string> steppedOver;
};

/// Reads a monitoring plan in the layout of the ECMPS import or of EPA's API. Raises ImportError
/// for the first thing in it that can't be read.
PlanContent readMonitoringPlan(const SourceFile& file);

/// Reads a table of the spans of locations, of one location where it is named. Raises ImportError
/// for the first thing in it that can't be read.
PlanContent readLocationSpans(const SourceFile& file, const std::string& location);

} // namespace k7deval::sitedb
