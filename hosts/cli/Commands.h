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

/// Where a command writes its output and, beside it, its notes; and the clock that it goes by.
struct Console {
    std::ostream& out;
    std::ostream& notes;
    const Clock& clock;
    bool notesAreTerminal = false; ///< Whether a line of notes can be overwritten.
};

struct ImportRequest {
    std::string site;
    std::vector<std::string> files;
    std::string unit;      ///< Of hourly values, or the one location of a table of spans.
    std::string component; ///< Of hourly values that name none.
    std::string facility;  ///< Name of the facility for the reports.
    std::vector<std::string> capacities; ///< "UNIT=MW"
    bool leaveOutUnreadable = false;
};

/// The options that all screens take.
struct ScreenRequest {
    std::string site;
    std::string region = "en-US";
    std::string pdf;
    bool json = false;
};

struct DriftRequest : ScreenRequest {
    DriftOptions options;
    std::string xml;
    bool check = false;
};

/// What load and range evaluation take alike. What is not given stays as the screen proposes it.
struct HistogramRequest : ScreenRequest {
    std::string unit;      ///< As the unit list shows it.
    std::string parameter; ///< As the parameter list shows it without PIDs.
    bool showPid = false;
    std::string year;
    std::string quarter; ///< "Q4", or with its year "2021Q4".
};

struct LoadRequest : HistogramRequest {
    std::string minimum;
    std::string capacity;
    std::string from; ///< A date text. With it or the next, dates take the place of quarters.
    std::string to;
};

struct RangeRequest : HistogramRequest {
    std::string scale; ///< As the scale list shows it.
    std::string range;
    std::string mec; ///< A number, or "none" to leave it out.
    std::string mpc;
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
/// Nothing is written before everything that can be refused was checked.
Status runDrift(const DriftRequest& request, const Console& console);
/// Lists what range evaluation offers of a unit, or of all units: unit, parameter, scale and span.
Status runRanges(const std::string& site, const std::string& unit, const Console& console);
/// Evaluates a unit's load with the load tool, prints its screen and saves the report.
Status runLoad(const LoadRequest& request, const Console& console);
/// Evaluates an analyzer's range with the range tool, prints its screen and saves the report.
Status runRange(const RangeRequest& request, const Console& console);
/// Evaluates all tests of a table, one line each, and saves report and export of each that has a
/// result.
Status runRound(const RoundRequest& request, const Console& console);

/// The program: reads the arguments, runs the command, tells a failure in one sentence.
Status runProgram(int argc, const char* const* argv, const Console& console);

} // namespace k7deval::cli
