#pragma once

#include "foundation/Date.h"

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace k7deval::cli::test
{

using Arguments = std::vector<std::string>;

/// The words of a line, as a shell takes them apart: at blanks, but not within '...'.
Arguments argumentsOf(const std::string& line);

/// What a run of the program left behind.
struct CommandRun {
    int status = -1;
    std::string out;   ///< Standard output.
    std::string notes; ///< Standard error.
};

/// Runs the program in this process, at noon of 2021-05-20.
CommandRun run(const Arguments& arguments);

/// The clock of these runs.
Date timeOfRuns();

/// Runs a command with --json and reads what it printed; fails the test when it is no JSON.
nlohmann::json printedAsJson(const std::string& command, const Arguments& arguments);

/// Runs a `drift` with --json and reads what it printed; fails the test when it is no JSON.
nlohmann::json driftAsJson(const Arguments& arguments);

/// The arguments of one behind the other.
Arguments operator+(Arguments first, const Arguments& second);

} // namespace k7deval::cli::test
