#pragma once

#include <cstdint>

/// The numbers and names under which the data interface keeps what it holds.
namespace k7deval
{

/// Configuration attributes by the ids under which the data interface keeps them.
namespace attribute
{
inline constexpr std::int32_t kDecimals = -16;       ///< i4: decimals of the analyzer
inline constexpr std::int32_t kMeasuredPID = -21;    ///< i4: measured parameter of a calibration
inline constexpr std::int32_t kLeftOutOfLists = -25; ///< Boolean
inline constexpr std::int32_t kScale = -56;          ///< "SINGLE", "LOW", "MID", "HIGH", ...
inline constexpr std::int32_t kRangeUse = -57;       ///< i4: only 0 qualifies for range evaluation
inline constexpr std::int32_t kOrisCode = -95;       ///< i4, of a unit
inline constexpr std::int32_t kSeveralStacks = -96;  ///< Boolean, of a unit
inline constexpr std::int32_t kUnitIdentifier = -97; ///< text padded with blanks, of a unit
inline constexpr std::int32_t kStackIdentifiers = -98; ///< texts separated by ";", of a unit
inline constexpr std::int32_t kComponentId = -115;     ///< text
inline constexpr std::int32_t kRecordTable = -300;     ///< "K7CAL" marks a calibration parameter
inline constexpr std::int32_t kTestNumberBase = -367;  ///< a gas name such as "O2DRY"
inline constexpr std::int32_t kOperatingTimePID = -60; ///< linked PID, of a unit or linked object
inline constexpr std::int32_t kLinkedObjectPID = -66;  ///< linked PID, of a measured parameter
} // namespace attribute

/// Parameter type of a unit, and of a calibration definition.
inline constexpr std::int32_t kUnitType = 25;
inline constexpr std::int32_t kCalibrationType = 3;

/// Words that stand with an hour or a calibration.
namespace status
{
/// CalStatus of a calibration that was made off-line.
inline constexpr std::int32_t kOfflineCalibration = 29;
/// An hour whose value is twice the maximum potential concentration, or twice the full scale.
inline constexpr std::int32_t kReplacedByTwiceMpc = 35;
inline constexpr std::int32_t kReplacedByTwiceRange = 36;
} // namespace status

/// The record table that marks a calibration parameter.
inline constexpr const char* kCalibrationTable = "K7CAL";
/// The record tables that hold injections of calibrations, as a query names them.
inline constexpr const char* kCalibrationTables =
    "K7CAL,K7PMCAL,K7PS9SINGLEINJCALCHK,K7PS9TRIPLEINJCALCHK";

/// The lookup table of the site, and the entry that names the facility.
inline constexpr const char* kLookupTable = "K7LOOKUP";
inline constexpr const char* kFacilityNameEntry = "FacilityName";

} // namespace k7deval
