#pragma once

#include "foundation/Variant.h"

#include <cstdint>
#include <string>

namespace k7deval
{

/// A parameter identifier: its decimal digits hold unit, parameter code, variant digit, program
/// code and suffix ("#0-000-0-00-00").
using PID = std::int32_t;

/// The fields of a PID under the numbers that PIDPart takes.
namespace pidpart
{
inline constexpr int kUnit = 1;
inline constexpr int kParameterCode = 2;
inline constexpr int kSuffix = 3;
inline constexpr int kProgramCode = 4;
inline constexpr int kVariantDigit = 5;
inline constexpr int kVariantDigitSevenAsEight = -5;
} // namespace pidpart

/// Program codes: of a parameter under 40 CFR 60 or 75, and of one under none.
inline constexpr std::int32_t kProgram40CFR60 = 60;
inline constexpr std::int32_t kProgram40CFR75 = 75;
inline constexpr std::int32_t kNoProgram = 0;
/// Parameter code of a unit's load.
inline constexpr std::int32_t kLoadCode = 602;

/// The highest number of a unit.
inline constexpr std::int32_t kHighestUnit = 19;
/// What one unit is in a PID.
inline constexpr std::int32_t kUnitFactor = 100'000'000;

/// The PID of the fields, or 0 when one is out of its range or the PID is not valid.
PID MakePID(std::int32_t unit, std::int32_t parameterCode, std::int32_t variantDigit,
            std::int32_t programCode, std::int32_t suffix);
/// A field of a PID; 0 for a part number that names none.
std::int32_t PIDPart(PID pid, std::int32_t part);
/// Whether the value is a PID in use: an integer from 100000 to 1999999999 with a variant digit
/// other than 6 and 9, a number that rounds to one, or a text that reads as one. Raises nothing.
bool IsValidPID(const Variant& value);
/// "#0-000-0-00-00", or the empty text for a PID that is not valid.
std::string PIDToText(PID pid);
/// "[#0-000-0-00-00] name", as lists show a parameter with its PID.
std::string nameWithPID(PID pid, const std::string& name);
/// The PID that a text holds, at its end or (bracketed) in the square brackets that open it; else
/// 0.
PID TextToPID(std::string text, bool bracketed);

/// A field eaten from the right end of a text, and what is left of the text.
struct FieldFromRight {
    std::int32_t field = -1; ///< -1 when no digit was found.
    std::string rest;
};
FieldFromRight TakeFieldFromRight(std::string text, std::int32_t maxDigits);

/// The PID of a unit, from its number (up to 19) or from any PID of it.
PID UnitPID(std::int32_t unitOrPid);
/// Whether the parameter is a gas measured in percent (O2, CO2), judged by its parameter code.
bool IsPercentGasPID(PID pid);

} // namespace k7deval
