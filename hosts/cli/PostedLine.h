#pragma once

#include <string>

namespace k7deval::cli
{

/// A line that the 7-Day tool posted, as the reason in a sentence: what a user can do
/// about it, as far as that is known, else the words given for it, and the line itself in
/// parentheses.
std::string asReason(const std::string& line, const std::string& otherwise);

} // namespace k7deval::cli
