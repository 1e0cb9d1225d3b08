#pragma once

#include <optional>
#include <string>

namespace k7deval::cli
{

/// What the setup page of the 7-Day tool is to be filled with. What is not given stays as the page
/// proposes it.
struct DriftOptions {
    std::string unit;     ///< As the unit list shows it.
    std::string analyzer; ///< As the analyzer list shows it; the first one if empty.
    std::string from;     ///< A date text.
    std::string to;
    std::string specification; ///< "2.5-span", "5-span", "0.5-absolute", "other-span",
                               ///< "other-absolute", "ps9"
    std::string limit;         ///< Of one of the other specifications.
    std::optional<bool> aps;
    std::optional<bool> sixOfSeven;
    std::optional<bool> manualCals;
    std::optional<bool> summary;
    std::string show; ///< "interval", "test-end", "test-only"
    std::string oris;
    std::string stack;
    std::string component;
    std::string reason; ///< "initial", "recertification", "diagnostic"
    std::string testNumber;
};

} // namespace k7deval::cli
