#pragma once

#include <cstdint>
#include <span>
#include <string_view>

/// The method of determination codes (MODC) that EPA gives each hour of a monitor, and the status
/// words that a site keeps them as.
namespace k7deval::sitedb
{

/// What an hour of a method is for the evaluations.
enum class ModcUse {
    Measured, ///< Quality-assured data of the monitor.
    LeftOut,  ///< Quality-assured, but nothing by which the range of an analyzer is judged.
    Missing,  ///< Substituted, missing or not used: not data of the monitor.
};

struct Modc {
    std::int32_t code;
    ModcUse use;
    std::string_view meaning;
};

/// All codes that an hour of a monitor can have.
std::span<const Modc> allModcs();
/// The code that one or two digits name, or nothing.
const Modc* findModc(std::string_view text);

/// The status word of an hour: 100 and the code, so that the code stays readable, but for the two
/// codes of 200 % replacement, which have the words that range evaluation counts.
std::int32_t statusWord(const Modc& modc);

} // namespace k7deval::sitedb
