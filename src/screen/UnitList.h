#pragma once

#include "foundation/DataInterface.h"
#include "screen/ComboBox.h"

namespace k7deval::screen
{

/// Fills an emptied list with the units of a site, names with their PIDs as item data, and picks
/// the first. Error 381 for a site without units.
void offerUnits(ComboBox& list, DIServer& server);

} // namespace k7deval::screen
