#include "sitedb/PlainText.h"

namespace k7deval::sitedb
{

namespace
{

constexpr std::size_t kLongestQuote = 40;

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

} // namespace k7deval::sitedb
