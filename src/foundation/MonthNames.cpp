#include "foundation/MonthNames.h"

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

std::string lowerCase(std::string_view text)
{
    // The accented capitals are two bytes: this one, and one that is 32 below the small letter's.
    constexpr unsigned kAccentLead = 0xC3;
    constexpr unsigned kFirstAccented = 0x80;
    constexpr unsigned kLastAccented = 0x9E;
    constexpr unsigned kMultiplicationSign = 0x97;
    std::string lower(text);
    unsigned previous = 0;
    for (char& character : lower) {
        const unsigned byte = static_cast<unsigned char>(character);
        const bool capital = byte >= 'A' && byte <= 'Z';
        const bool accented = previous == kAccentLead && byte >= kFirstAccented &&
                              byte <= kLastAccented && byte != kMultiplicationSign;
        if (capital || accented)
            character = static_cast<char>(byte + ('a' - 'A'));
        previous = byte;
    }
    return lower;
}

std::optional<int> monthNamed(std::string_view word, const RegionalSettings& settings)
{
    const std::string lower = lowerCase(word);
    const auto month = monthAmong(settings.monthNames, lower);
    return month ? month : monthAmong(RegionalSettings().monthNames, lower);
}

} // namespace k7deval
