#pragma once

#include "cli/Commands.h"

namespace k7deval::cli
{

/// Reads the arguments and runs the command that they name, or prints the help that they ask for.
/// UsageError for arguments that name none or don't fit it.
Status runCommandLine(int argc, const char* const* argv, const Console& console);

} // namespace k7deval::cli
