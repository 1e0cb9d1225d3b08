#pragma once

#include "cli/DriftOptions.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace k7deval::cli
{

/// Exit status of the program.
enum class Status { Done = 0, NotPassed = 1, BadInput = 2 };

/// Where a command writes: what was asked for, and notes beside it.
struct Output {
    std::ostream& out;
    std::ostream& notes;
};

struct ImportRequest {
    std::string site;
    std::vector<std::string> files;
    std::string unit;     ///< Of hourly load.
    std::string facility; ///< Name of the facility for the reports.
    bool leaveOutUnreadable = false;
};

struct DriftRequest {
    std::string site;
    std::string region = "en-US";
    DriftOptions options;
    std::string pdf;
    std::string xml;
    bool json = false;
    bool check = false;
};

struct RoundRequest {
    std::string site;
    std::string
        tests;       ///< A table of tests: unit_id, test_number, component_id, component_type, ...
    std::string out; ///< The folder of the PDF and XML files.
};

/// Imports files into a site, which is made when it is not there.
Status runImport(const ImportRequest& request, const Output& output);
/// Lists the units of a site, one a line.
Status runUnits(const std::string& site, const Output& output);
/// Lists the analyzers of a unit, or of all units, as the 7-Day tool offers them.
Status runAnalyzers(const std::string& site, const std::string& unit, const Output& output);
/// Evaluates one drift test with the 7-Day tool and prints its screen.
Status runDrift(const DriftRequest& request, const Output& output);
/// Evaluates all tests of a table, one line each, and saves report and export of each.
Status runRound(const RoundRequest& request, const Output& output);

/// The program: reads the arguments, runs the command, tells a failure in one sentence.
Status runProgram(int argc, const char* const* argv, const Output& output);

} // namespace k7deval::cli
