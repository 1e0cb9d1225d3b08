#pragma once

namespace k7deval
{

/// The record tables that hold injections of calibrations, as a query names them.
inline constexpr const char* kCalibrationTables =
    "K7CAL,K7PMCAL,K7PS9SINGLEINJCALCHK,K7PS9TRIPLEINJCALCHK";

} // namespace k7deval
