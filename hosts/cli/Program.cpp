#include "cli/CommandLine.h"
#include "cli/UsageError.h"
#include "foundation/Error.h"

#include <exception>
#include <ostream>

namespace k7deval::cli
{

namespace
{

/// Most errors bear a sentence of their own; the standing description of a number tells a user
/// nothing by itself.
std::string sentenceOf(const Error& error)
{
    std::string description = error.description();
    if (description != errorDescription(error.number()))
        return description;
    return "The site's data could not be worked with (error " + std::to_string(error.number()) +
           ", " + description + ").";
}

Status runCommand(int argc, const char* const* argv, const Console& console)
{
    const Status status = runCommandLine(argc, argv, console);
    console.out.flush();
    if (!console.out)
        throw UsageError("The result could not be printed completely.");
    return status;
}

} // namespace

Status runProgram(int argc, const char* const* argv, const Console& console)
{
    try {
        return runCommand(argc, argv, console);
    } catch (const Error& error) {
        console.notes << sentenceOf(error) << '\n';
    } catch (const std::exception& failure) {
        console.notes << failure.what() << '\n';
    }
    return Status::BadInput;
}

} // namespace k7deval::cli
