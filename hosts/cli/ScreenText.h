#pragma once

#include "sevenday/ctrl7Day.h"

#include <iosfwd>

namespace k7deval::cli
{

/// Prints what stands on the results page: analyzer, summary, and the tree with the details of each
/// calibration, for which its entry is pressed. What the screen shows by colour is marked: an entry
/// used in the drift test (white) with an asterisk, a drift above its limit (red) with an
/// exclamation mark.
void printResults(ctrl7DayResult& page, std::ostream& out);

} // namespace k7deval::cli
