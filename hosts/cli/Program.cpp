#include "cli/Commands.h"
#include "cli/UsageError.h"
#include "foundation/Error.h"
#include "sitedb/Import.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <ostream>

namespace k7deval::cli
{

namespace
{

/// The arguments of all commands, and the command that was chosen.
struct Arguments {
    ImportRequest import;
    std::string site;
    std::string unit;
    DriftRequest drift;
    RoundRequest round;
    std::function<Status(const Output&)> run;
};

void addSite(CLI::App& command, std::string& site)
{
    command.add_option("--site", site, "The site database, one file")->required();
}

/// A pair of flags such as --aps and --no-aps; neither leaves the screen's proposal.
void addChoice(CLI::App& command, const std::string& name, std::optional<bool>& choice,
               const std::string& help)
{
    command.add_flag_callback(
        "--" + name, [&choice] { choice = true; }, help);
    command.add_flag_callback("--no-" + name, [&choice] { choice = false; });
}

void addImport(CLI::App& app, Arguments& arguments)
{
    CLI::App& command =
        *app.add_subcommand("import", "Take EPA files into a site: QA files (JSON), span tables "
                                      "and hourly load (CSV, plain or gzip)");
    ImportRequest& request = arguments.import;
    addSite(command, request.site);
    command.add_option("--unit", request.unit, "The unit that hourly load belongs to");
    command.add_option("--facility", request.facility, "Name of the facility, for the reports");
    command.add_flag("--leave-out", request.leaveOutUnreadable,
                     "Leave out single injections that can't be read, and list them");
    command.add_option("files", request.files, "The files");
    command.callback([&arguments] {
        arguments.run = [&](const Output& output) { return runImport(arguments.import, output); };
    });
}

void addLists(CLI::App& app, Arguments& arguments)
{
    CLI::App& units = *app.add_subcommand("units", "List the units of a site");
    addSite(units, arguments.site);
    units.callback([&arguments] {
        arguments.run = [&](const Output& output) { return runUnits(arguments.site, output); };
    });
    CLI::App& analyzers =
        *app.add_subcommand("analyzers", "List the analyzers of a site, or of one unit");
    addSite(analyzers, arguments.site);
    analyzers.add_option("--unit", arguments.unit, "The unit");
    analyzers.callback([&arguments] {
        arguments.run = [&](const Output& output) {
            return runAnalyzers(arguments.site, arguments.unit, output);
        };
    });
}

void addDriftSetUp(CLI::App& command, DriftOptions& options)
{
    command.add_option("--unit", options.unit, "The unit; the first of the site if not given");
    command.add_option("--analyzer", options.analyzer,
                       "The analyzer; the unit's first if not given");
    command.add_option("--from", options.from,
                       "First day of the interval; a month ago if not given");
    command.add_option("--to", options.to, "Last day of the interval; today if not given");
    command.add_option("--specification", options.specification,
                       "2.5-span, 5-span, 0.5-absolute, other-span, other-absolute or ps9; "
                       "the analyzer's own if not given");
    command.add_option("--limit", options.limit,
                       "Limit of the specification other-span (%) or other-absolute");
    addChoice(command, "aps", options.aps, "Use APS of 5 if appropriate");
    addChoice(command, "six-of-seven", options.sixOfSeven, "6 of 7 calibration days passed");
    addChoice(command, "manual", options.manualCals, "Include manual cals");
    addChoice(command, "summary", options.summary, "Show the drift test summary");
    command.add_option("--show", options.show,
                       "Calibrations to show: interval, test-end or test-only");
}

void addTestInformation(CLI::App& command, DriftOptions& options)
{
    command.add_option("--oris", options.oris, "Test information: ORISPL code");
    command.add_option("--stack", options.stack, "Test information: unit or stack identifier");
    command.add_option("--component", options.component, "Test information: component identifier");
    command.add_option("--reason", options.reason,
                       "Test information: initial, recertification or diagnostic");
    command.add_option("--test-number", options.testNumber, "Test information: test number");
}

void addDrift(CLI::App& app, Arguments& arguments)
{
    CLI::App& command = *app.add_subcommand("drift", "Evaluate a 7-Day drift test");
    DriftRequest& request = arguments.drift;
    addSite(command, request.site);
    addDriftSetUp(command, request.options);
    addTestInformation(command, request.options);
    command.add_option("--region", request.region,
                       "Regional settings: en-US, en-GB, de-DE or fr-FR");
    command.add_option("--pdf", request.pdf, "Save the report to this file");
    command.add_option("--xml", request.xml, "Save the ECMPS export to this file");
    command.add_flag("--json", request.json,
                     "Print the whole screen and the state of the test as JSON");
    command.add_flag("--check", request.check, "End with status 1 when the test is not passed");
    command.callback([&arguments] {
        arguments.run = [&](const Output& output) { return runDrift(arguments.drift, output); };
    });
}

void addRound(CLI::App& app, Arguments& arguments)
{
    CLI::App& command = *app.add_subcommand(
        "round",
        "Evaluate all drift tests of a table, one line each, and save their reports and exports");
    RoundRequest& request = arguments.round;
    addSite(command, request.site);
    command.add_option("--tests", request.tests, "The table of tests (CSV)")->required();
    command.add_option("--out", request.out, "The folder for PDF and XML files")->required();
    command.callback([&arguments] {
        arguments.run = [&](const Output& output) { return runRound(arguments.round, output); };
    });
}

Status parseAndRun(CLI::App& app, Arguments& arguments, int argc, const char* const* argv,
                   const Output& output)
{
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error, output.out, output.notes) == 0 ? Status::Done : Status::BadInput;
    }
    return arguments.run(output);
}

} // namespace

Status runProgram(int argc, const char* const* argv, const Output& output)
{
    CLI::App app("Evaluation of continuous emissions monitoring data under 40 CFR 75 and 60",
                 "k7deval");
    app.require_subcommand(1);
    Arguments arguments;
    addImport(app, arguments);
    addLists(app, arguments);
    addDrift(app, arguments);
    addRound(app, arguments);
    try {
        return parseAndRun(app, arguments, argc, argv, output);
    } catch (const UsageError& error) {
        output.notes << error.what() << '\n';
    } catch (const Error& error) {
        output.notes << error.description() << '\n';
    }
    return Status::BadInput;
}

} // namespace k7deval::cli
