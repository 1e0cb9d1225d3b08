#pragma once

#include <string>
#include <vector>

namespace k7deval::test
{

/// Runs a program found on the PATH and returns what it printed. A program that is missing or that
/// fails: std::runtime_error with the command line.
std::string runTool(const std::vector<std::string>& commandLine);

/// Runs a program as `runTool` does and returns what it printed to its error stream alone.
std::string complaintsOfTool(const std::vector<std::string>& commandLine);

} // namespace k7deval::test
