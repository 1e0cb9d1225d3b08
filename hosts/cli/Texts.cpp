#include "cli/Texts.h"

#include <algorithm>

namespace k7deval::cli
{

std::string listed(const std::vector<std::string>& entries)
{
    std::string text;
    for (const auto& entry : entries)
        text += (text.empty() ? "" : ", ") + entry;
    return text;
}

std::string inQuotes(const std::string& text)
{
    return "\"" + text + "\"";
}

std::size_t characters(std::string_view text)
{
    // All bytes of a character but its first have the bits 10 on top.
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
    }));
}

std::string padded(const std::string& text, std::size_t width, Align align)
{
    const std::size_t length = characters(text);
    const std::string blanks(width > length ? width - length : 0, ' ');
    return align == Align::Left ? text + blanks : blanks + text;
}

} // namespace k7deval::cli
