#pragma once

#include "cli/DriftOptions.h"
#include "foundation/Clock.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace k7deval::cli
{

/// Exit status of the program.
enum class Status { Done = 0, NotPassed = 1, BadInput = 2 };

/// Where a command writes, what was asked for and notes beside it, and the time it goes by.
struct Console {
    std::ostream& out;
    std::ostream& notes;
    const Clock& clock;
};

struct ImportRequest {
    std::string site;
    std::vector<std::string> files;
    std::string unit;     ///< Of hourly values, or the one location of a table of spans.
    std::string facility; ///< Name of the facility for the reports.
    std::vector<std::string> capacities; ///< "UNIT=MW"
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
    std::string tests; ///< A table as ReportedTests.h reads it.
    std::string out;   ///< The folder of the PDF and XML files.
};

// What can't be done is raised by each command as UsageError or Error.

/// Imports files into a site, which is made when it is not there. A site that was made for an
/// import that took nothing is not left behind.
Status runImport(const ImportRequest& request, const Console& console);
/// Lists the units of a site, one a line.
Status runUnits(const std::string& site, const Console& console);
/// Lists the analyzers of a unit, or of all units, as the 7-Day tool offers them.
Status runAnalyzers(const std::string& site, const std::string& unit, const Console& console);
/// Evaluates one drift test with the 7-Day tool, prints its screen and saves what was asked for.
/// Nothing is written before all that can be refused was looked at.
Status runDrift(const DriftRequest& request, const Console& console);
/// Evaluates all tests of a table, one line each, and saves report and export of each that has a
/// result.
Status runRound(const RoundRequest& request, const Console& console);

/// The program: reads the arguments, runs the command, tells a failure in one sentence.
Status runProgram(int argc, const char* const* argv, const Console& console);

} // namespace k7deval::cli
