#pragma once

#include "foundation/DataCodes.h"
#include "foundation/PIDFunctions.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The numbers and names that a site gives to what it holds.
namespace k7deval::sitedb
{

/// Status words of hours and calibrations, besides those that the tools look for; the table
/// status_word says what each means.
namespace status
{
using namespace k7deval::status;
inline constexpr std::int32_t kNoData = 0;
inline constexpr std::int32_t kMeasured = 1;
inline constexpr std::int32_t kUnitOffline = 2;
inline constexpr std::int32_t kExcluded = 3;
inline constexpr std::int32_t kOnlineCalibration = 28;
} // namespace status

/// Types of the parameters that are neither units nor calibrations. All are among the types that
/// the load tool lists (8, 11) or reads its capacity from (4).
namespace paramtype
{
inline constexpr std::int32_t kConstant = 4;
inline constexpr std::int32_t kMeasuredSeries = 8;
inline constexpr std::int32_t kOperationSeries = 11;
} // namespace paramtype

/// Configuration attributes of our own, of a calibration: what a monitoring plan says of its span.
/// No tool asks for them. Their values are texts, numbers without needless zeros.
namespace planattribute
{
inline constexpr std::int32_t kFullScaleRange = -1001;   ///< In the units of the span.
inline constexpr std::int32_t kMaximumPotential = -1002; ///< MPC; of flow MPF, in scfh.
inline constexpr std::int32_t kMaximumExpected = -1003;  ///< MEC
inline constexpr std::int32_t kFlowSpan = -1004;         ///< Of flow, in scfh.
inline constexpr std::int32_t kFlowFullScale = -1005;    ///< Of flow, in scfh.
inline constexpr std::int32_t kSpanBegin = -1006; ///< 'YYYY-MM-DD HH:MM': in force from then.
} // namespace planattribute

/// How the table of attributes says what an attribute's text is to be read as.
namespace attributekind
{
inline constexpr const char* kWhole = "i4";
inline constexpr const char* kBoolean = "Boolean";
inline constexpr const char* kText = "text";
} // namespace attributekind
inline constexpr const char* kTrueText = "True";
inline constexpr const char* kFalseText = "False";

/// The subset of constants that belongs to a unit itself.
inline constexpr std::int32_t kUnitConstants = 0;

inline constexpr int kHighestOrisCode = 999'999;
/// In MW: no unit reports more than six digits.
inline constexpr double kHighestLoad = 999'999;
inline constexpr std::int32_t kHighestComponent = 99;
/// EPA's own identifiers are no longer than this.
inline constexpr std::size_t kUnitIdentifierLength = 6;
inline constexpr std::size_t kComponentIdLength = 3;

inline constexpr const char* kSiteTable = "K7SITE";
inline constexpr const char* kSiteKeyEntry = "SiteKey";

/// The scales of an analyzer, under the names that the calibrations carry.
enum class Scale { Single, Low, Mid, High };
inline constexpr std::array kScales{Scale::Single, Scale::Low, Scale::Mid, Scale::High};
/// "SINGLE", "LOW", "MID" or "HIGH".
std::string scaleText(Scale scale);
/// The scale of EPA's span scale code: "H", "L", or empty for an analyzer with one scale.
std::optional<Scale> scaleOfCode(std::string_view code);

PID loadPID(std::int32_t unit);
PID operatingTimePID(std::int32_t unit);
/// The capacity that was set for a unit; load evaluation prefers it to the maximum load of a plan.
PID capacityPID(std::int32_t unit);
PID maximumLoadPID(std::int32_t unit);
/// The bounds of the range of operation by a plan.
PID lowerBoundaryPID(std::int32_t unit);
PID upperBoundaryPID(std::int32_t unit);
/// component: the running number of the component among the unit's components for the gas, from 1.
PID measuredPID(std::int32_t unit, std::int32_t parameterCode, std::int32_t component);
/// The calibration of a measured parameter on one scale.
PID calibrationPID(PID measured, Scale scale);

} // namespace k7deval::sitedb
