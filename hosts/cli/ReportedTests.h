#pragma once

#include <string>
#include <vector>

namespace k7deval::cli
{

/// A test that a plant reported.
struct ReportedTest {
    std::string unit;
    std::string analyzer;   ///< As the 7-Day tool lists it: "NOX 012/H".
    std::string testNumber; ///< Fit to be part of a file name.
    std::string from;       ///< "yyyy-mm-dd"
    std::string to;
    std::string result; ///< "PASSED", ...; empty when it is not known.
};

/// Reads a table of tests: a CSV file with the columns unit_id, component_type, component_id,
/// span_scale ("H", "L" or empty), test_number, begin and end (dates, a time may follow) and
/// reported_result. Error with file, line and column for a row that can't be read.
std::vector<ReportedTest> readReportedTests(const std::string& path);

} // namespace k7deval::cli
