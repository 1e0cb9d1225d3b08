#include "foundation/MonthNames.h"

#include "foundation/TextFunctions.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace k7deval
{

namespace
{

// The first three letters, which may be more than three bytes.
std::string_view shortForm(std::string_view name)
{
    constexpr int kLetters = 3;
    constexpr unsigned kContinuationMask = 0xC0;
    constexpr unsigned kContinuation = 0x80;
    int letters = 0;
    for (std::size_t i = 0; i < name.size(); ++i) {
        if ((static_cast<unsigned char>(name[i]) & kContinuationMask) != kContinuation &&
            ++letters > kLetters)
            return name.substr(0, i);
    }
    return name;
}

using Names = decltype(RegionalSettings::monthNames);

template <class Matches> std::optional<int> onlyMonth(const Names& names, Matches matches)
{
    const auto found = std::find_if(names.begin(), names.end(), matches);
    if (found == names.end() || std::any_of(found + 1, names.end(), matches))
        return std::nullopt;
    return static_cast<int>(found - names.begin()) + 1;
}

std::optional<int> monthAmong(const Names& names, const std::string& word)
{
    const auto full = onlyMonth(names, [&](const auto& name) { return lowerCase(name) == word; });
    if (full)
        return full;
    return onlyMonth(names, [&](const auto& name) { return shortForm(lowerCase(name)) == word; });
}

} // namespace

std::optional<int> monthNamed(std::string_view word, const RegionalSettings& settings)
{
    const std::string lower = lowerCase(word);
    const auto month = monthAmong(settings.monthNames, lower);
    return month ? month : monthAmong(RegionalSettings().monthNames, lower);
}

} // namespace k7deval
