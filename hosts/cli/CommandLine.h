#pragma once

#include "cli/Commands.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <string>

namespace k7deval::cli
{

/// The commands of the program with their options.
class CommandLine
{
public:
    CommandLine();
    CommandLine(const CommandLine&) = delete;
    CommandLine& operator=(const CommandLine&) = delete;

    /// Reads the arguments and runs the command that they name, or prints the help that they ask
    /// for. UsageError for arguments that name none or don't fit it.
    Status run(int argc, const char* const* argv, const Console& console);

private:
    void addImport();
    void addUnits();
    void addAnalyzers();
    void addDrift();
    void addLoad();
    void addRanges();
    void addRange();
    void addSetUp(CLI::App& command);
    void addTestInformation(CLI::App& command);
    void addRound();
    [[nodiscard]] std::string sentenceOf(const CLI::ParseError& error) const;

    CLI::App app_;
    ImportRequest import_;
    std::string site_;
    std::string unit_;
    DriftRequest drift_;
    LoadRequest load_;
    RangeRequest range_;
    RoundRequest round_;
    std::function<Status(const Console&)> command_;
};

} // namespace k7deval::cli
