#include "sitedb/PlainText.h"

#include <array>
#include <charconv>
#include <cmath>

namespace k7deval::sitedb
{

namespace
{

constexpr std::size_t kLongestQuote = 40;

template <class Number> std::optional<Number> numberIn(std::string_view text)
{
    Number value{};
    const char* end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, value);
    const bool isAllOfIt = read.ec == std::errc() && read.ptr == end;
    return isAllOfIt && !text.empty() ? std::optional(value) : std::nullopt;
}

} // namespace

std::string inQuotes(std::string_view text)
{
    std::string shown = "\"";
    for (const char letter : text.substr(0, kLongestQuote))
        shown += isPrintable(letter) ? letter : '?';
    if (text.size() > kLongestQuote)
        shown += "...";
    return shown + "\"";
}

bool isPrintable(char letter)
{
    return letter >= ' ' && letter <= '~';
}

std::string utf8Text(const std::filesystem::path& path)
{
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::optional<double> plainNumber(std::string_view text)
{
    const auto value = numberIn<double>(text);
    return value && std::isfinite(*value) ? value : std::nullopt;
}

std::optional<std::int32_t> plainWhole(std::string_view text)
{
    return numberIn<std::int32_t>(text);
}

std::string numberText(double value)
{
    // The smallest numbers have more than 300 zeros behind the point.
    std::array<char, 400> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
    return {text.data(), end.ptr};
}

} // namespace k7deval::sitedb
