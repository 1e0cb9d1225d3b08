#include "cli/CommandLine.h"

#include "cli/Texts.h"
#include "cli/UsageError.h"

#include <CLI/CLI.hpp>

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace k7deval::cli
{

namespace
{

/// What a command line asks for.
using Action = std::function<Status(const Console&)>;

/// What keeps a text from being one, or nothing. An option in its place would be taken for it.
std::string faultOf(const std::string& text)
{
    if (text.empty())
        return "the text is empty";
    return text.starts_with("--") ? "a text is missing ahead of " + text : std::string();
}

CLI::Option* addText(CLI::App& command, const std::string& name, std::string& text,
                     const std::string& help)
{
    return command.add_option(name, text, help)->check(faultOf);
}

void addSite(CLI::App& command, std::string& site)
{
    addText(command, "--site", site, "The site database, one file")->required();
}

/// A pair of flags such as --aps and --no-aps; neither leaves the screen's proposal.
void addChoice(CLI::App& command, const std::string& name, std::optional<bool>& choice,
               const std::string& help)
{
    command.add_flag_callback(
        "--" + name, [&choice] { choice = true; }, help);
    command.add_flag_callback(
        "--no-" + name, [&choice] { choice = false; }, "The opposite of --" + name);
}

/// What all screens take.
void addScreen(CLI::App& command, ScreenRequest& request, const std::string& jsonHelp)
{
    addSite(command, request.site);
    addText(command, "--region", request.region,
            "How dates and numbers are written: en-US, en-GB, de-DE or fr-FR");
    addText(command, "--pdf", request.pdf, "Save the report to this file, in place of one there");
    command.add_flag("--json", request.json, jsonHelp);
}

/// What load and range evaluation take.
void addHistogram(CLI::App& command, HistogramRequest& request, const std::string& proposed)
{
    addScreen(command, request, "Print the whole screen and the state of the evaluation as JSON");
    addText(command, "--unit", request.unit, "The unit; the first of the list if not given");
    addText(command, "--parameter", request.parameter, "The parameter; " + proposed);
    command.add_flag("--show-pid", request.showPid, "Show the PIDs of parameters");
    addText(command, "--quarter", request.quarter,
            "Last quarter of the evaluation, with its year (2021Q4) or without (Q4); the last "
            "finished one if not given");
    addText(command, "--year", request.year, "Year of the quarter");
}

/// An option with no value or with several of them.
std::string mismatchOf(const std::string& text)
{
    const std::string option = text.substr(0, text.find(':'));
    return option + (text.ends_with("missing") ? " needs a text behind it" : " is given twice");
}

/// The command that was named on the command line, or nothing.
const CLI::App* namedCommand(const CLI::App& app)
{
    const auto named = app.get_subcommands();
    return named.empty() ? nullptr : named.front();
}

void addSetUp(CLI::App& command, DriftOptions& options)
{
    addText(command, "--unit", options.unit, "The unit; the first of the site if not given");
    addText(command, "--analyzer", options.analyzer, "The analyzer; the unit's first if not given");
    addText(command, "--from", options.from, "First day of the interval; a month ago if not given");
    addText(command, "--to", options.to, "Last day of the interval; today if not given");
    addText(command, "--specification", options.specification,
            "2.5-span, 5-span, 0.5-absolute, other-span, other-absolute or ps9; "
            "the analyzer's own if not given");
    addText(command, "--limit", options.limit,
            "Limit of the specification other-span (%) or other-absolute, which takes 5 instead "
            "while the analyzer has APS of 5 checked (see --no-aps)");
    addChoice(command, "aps", options.aps, "Use APS of 5 if appropriate");
    addChoice(command, "six-of-seven", options.sixOfSeven, "6 of 7 calibration days passed");
    addChoice(command, "manual", options.manualCals, "Include manual cals");
    addChoice(command, "summary", options.summary, "Show the drift test summary");
    addText(command, "--show", options.show,
            "Calibrations to show: interval, test-end or test-only");
}

void addTestInformation(CLI::App& command, DriftOptions& options)
{
    addText(command, "--oris", options.oris, "Test information: ORISPL code");
    addText(command, "--stack", options.stack, "Test information: unit or stack identifier");
    addText(command, "--component", options.component, "Test information: component identifier");
    addText(command, "--reason", options.reason,
            "Test information: initial, recertification or diagnostic");
    addText(command, "--test-number", options.testNumber, "Test information: test number");
}

void addImport(CLI::App& app, Action& chosen)
{
    const auto request = std::make_shared<ImportRequest>();
    CLI::App& command = *app.add_subcommand(
        "import",
        "Take EPA files into a site: monitoring plans, QA and emissions files (JSON), tables "
        "of spans, hourly load and monitor hours (CSV), plain or gzip");
    addSite(command, request->site);
    addText(
        command, "--unit", request->unit,
        "The unit that the hours of a table belong to, or the one location to take from a table "
        "of spans of locations");
    addText(command, "--component", request->component,
            "The component that measured the hours of a table, where the unit has several");
    addText(command, "--facility", request->facility, "Name of the facility, for the reports");
    command
        .add_option(
            "--capacity", request->capacities,
            "Capacity of a unit in MW, written UNIT=MW, in place of the one of its plan; can "
            "be given for several units")
        ->allow_extra_args(false)
        ->check(faultOf);
    command.add_flag(
        "--leave-out", request->leaveOutUnreadable,
        "Leave out single injections that can't be read, and daily calibrations that the "
        "site has already, and list them");
    command.add_option("files", request->files, "The files");
    command.callback([request, &chosen] {
        chosen = [request](const Console& console) { return runImport(*request, console); };
    });
}

void addUnits(CLI::App& app, Action& chosen)
{
    const auto site = std::make_shared<std::string>();
    CLI::App& command = *app.add_subcommand("units", "List the units of a site");
    addSite(command, *site);
    command.callback([site, &chosen] {
        chosen = [site](const Console& console) { return runUnits(*site, console); };
    });
}

void addAnalyzers(CLI::App& app, Action& chosen)
{
    const auto site = std::make_shared<std::string>();
    const auto unit = std::make_shared<std::string>();
    CLI::App& command =
        *app.add_subcommand("analyzers", "List the analyzers of a site, or of one unit");
    addSite(command, *site);
    addText(command, "--unit", *unit, "The unit");
    command.callback([site, unit, &chosen] {
        chosen = [site, unit](const Console& console) {
            return runAnalyzers(*site, *unit, console);
        };
    });
}

void addDrift(CLI::App& app, Action& chosen)
{
    const auto request = std::make_shared<DriftRequest>();
    CLI::App& command = *app.add_subcommand("drift", "Evaluate a 7-Day drift test");
    addScreen(command, *request, "Print the whole screen and the state of the test as JSON");
    addSetUp(command, request->options);
    addTestInformation(command, request->options);
    addText(command, "--xml", request->xml,
            "Save the ECMPS export to this file, in place of one there");
    command.add_flag("--check", request->check, "End with status 1 when the test is not passed");
    command.callback([request, &chosen] {
        chosen = [request](const Console& console) { return runDrift(*request, console); };
    });
}

void addLoad(CLI::App& app, Action& chosen)
{
    const auto request = std::make_shared<LoadRequest>();
    CLI::App& command = *app.add_subcommand(
        "load", "Evaluate how a unit's load spreads over its range of operation");
    addHistogram(command, *request, "the unit's load if not given");
    addText(command, "--minimum", request->minimum, "Minimum safe operating value; 0 if not given");
    addText(command, "--capacity", request->capacity,
            "Nameplate or rated capacity; that of the site if not given");
    addText(command, "--from", request->from,
            "First day of specified dates, in place of four operating quarters");
    addText(command, "--to", request->to, "Last day of specified dates");
    command.callback([request, &chosen] {
        chosen = [request](const Console& console) { return runLoad(*request, console); };
    });
}

void addRanges(CLI::App& app, Action& chosen)
{
    const auto site = std::make_shared<std::string>();
    const auto unit = std::make_shared<std::string>();
    CLI::App& command = *app.add_subcommand(
        "ranges", "List the parameters and scales of a site, or of one unit, with their spans");
    addSite(command, *site);
    addText(command, "--unit", *unit, "The unit");
    command.callback([site, unit, &chosen] {
        chosen = [site, unit](const Console& console) { return runRanges(*site, *unit, console); };
    });
}

void addRange(CLI::App& app, Action& chosen)
{
    const auto request = std::make_shared<RangeRequest>();
    CLI::App& command =
        *app.add_subcommand("range", "Evaluate how an analyzer's range fits what it measured");
    addHistogram(command, *request, "the unit's first if not given");
    addText(command, "--scale", request->scale,
            "SINGLE, LOW, MID or HIGH; the parameter's first if not given");
    addText(command, "--range", request->range,
            "Instrument range; the span of the scale if not given");
    addText(command, "--mec", request->mec,
            "Maximum expected concentration, or none; the screen's proposal if not given");
    addText(command, "--mpc", request->mpc,
            "Maximum potential concentration, or none; the screen's proposal if not given");
    command.callback([request, &chosen] {
        chosen = [request](const Console& console) { return runRange(*request, console); };
    });
}

void addRound(CLI::App& app, Action& chosen)
{
    const auto request = std::make_shared<RoundRequest>();
    CLI::App& command = *app.add_subcommand(
        "round",
        "Evaluate all drift tests of a table, one line each, and save their reports and exports");
    addSite(command, request->site);
    addText(command, "--tests", request->tests, "The table of tests (CSV)")->required();
    addText(command, "--out", request->out, "The folder for PDF and XML files")->required();
    command.callback([request, &chosen] {
        chosen = [request](const Console& console) { return runRound(*request, console); };
    });
}

/// Adds a command with its options. What it does is chosen when the arguments name it.
using Adder = void (*)(CLI::App& app, Action& chosen);
constexpr std::array<Adder, 8> kCommands{&addImport, &addUnits,  &addAnalyzers, &addDrift,
                                         &addLoad,   &addRanges, &addRange,     &addRound};

/// A sentence for arguments that can't be read.
std::string sentenceOf(const CLI::ParseError& error, const CLI::App& app)
{
    const CLI::App* command = namedCommand(app);
    const std::string help =
        "; see k7deval " + (command == nullptr ? "" : command->get_name() + " ") + "--help.";
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr)
        return mismatchOf(error.what()) + help;
    if (dynamic_cast<const CLI::ExtrasError*>(&error) == nullptr)
        return error.what() + help;
    const std::string extra = inQuotes(app.remaining(true).front());
    if (command == nullptr)
        return "There is no command " + extra + help;
    return "k7deval " + command->get_name() + " does not take " + extra + help;
}

} // namespace

Status runCommandLine(int argc, const char* const* argv, const Console& console)
{
    CLI::App app("Evaluation of continuous emissions monitoring data under 40 CFR 75 and 60",
                 "k7deval");
    app.require_subcommand(0, 1);
    Action chosen;
    for (const Adder add : kCommands)
        add(app, chosen);
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& help) {
        app.exit(help, console.out, console.notes);
        return Status::Done;
    } catch (const CLI::ParseError& error) {
        throw UsageError(sentenceOf(error, app));
    }
    if (!chosen)
        throw UsageError("A command is missing; see k7deval --help.");
    return chosen(console);
}

} // namespace k7deval::cli
