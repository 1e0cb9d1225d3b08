#pragma once

#include <string>

/// Where this checkout and its programs lie. Only Places.cpp is compiled with their paths, so that
/// the compiler's cache knows all other objects again in another folder.
namespace k7deval::test
{

/// A file or a folder of the project: "data/bethpage/spans.csv".
std::string projectFile(const std::string& name);

/// The command line's program.
std::string commandLineProgram();

} // namespace k7deval::test
