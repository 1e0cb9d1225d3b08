#pragma once

#include "load/ctrlMaxMW.h"
#include "range/ctrlRangeEval.h"

#include <iosfwd>

namespace k7deval::cli
{

/// Prints what stands on the screen of the load tool: what was evaluated, the levels with their
/// hours, the bars with hours and percents, and the lines below.
void printScreen(const ctrlMaxMW& tool, std::ostream& out);
/// The same of the range tool.
void printScreen(const ctrlRangeEval& tool, std::ostream& out);

} // namespace k7deval::cli
