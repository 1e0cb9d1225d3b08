#pragma once

#include "sitedb/read/SourceFile.h"
#include "sitedb/tables/CalibrationWriter.h"
#include "sitedb/tables/SiteIds.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace k7deval::sitedb
{

/// One gas injection of a QA file.
struct QaInjection : Injection {
    std::string path; ///< Where it stands in the file.
};

/// A test with calibration injections. The paths are those of its fields, for a sentence.
struct QaTest {
    std::string unit;
    std::string unitPath;
    std::string component;
    std::string componentPath;
    Scale scale = Scale::High;
    std::string scalePath;
    std::vector<QaInjection> injections;
    std::int32_t decimals = 0; ///< The most that a value of the injections carries.
};

/// What a site takes from an ECMPS QA file.
struct QaContent {
    std::int32_t orisCode = 0;
    std::vector<QaTest> tests;
    std::vector<std::string> steppedOver;
    std::size_t leftOutCount = 0;     ///< Injections.
    std::vector<std::string> leftOut; ///< Their sentences.
};

/// Reads an ECMPS 2.0 QA file. Raises ImportError for the first thing in it that can't be read;
/// with leaveOutUnreadable an injection that can't be read is left out instead, and its sentence
/// listed.
QaContent readEcmpsQa(const SourceFile& file, bool leaveOutUnreadable);

} // namespace k7deval::sitedb
