#pragma once

#include "foundation/Property.h"
#include "screen/Container.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace k7deval::cli
{

/// All that stands on a screen, what it worked out, and what it had to say.
PropertyList documentOf(const screen::Control& control, PropertyList results,
                        const std::vector<std::string>& messages);

/// Writes properties as a JSON object: names in their order, singles with their seven digits, dates
/// as "yyyy-mm-dd HH:MM", null for what is absent and for what JSON has no number for. Bytes that
/// are no UTF-8 become replacement characters.
void printJson(const PropertyList& document, std::ostream& out);

} // namespace k7deval::cli
