#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace k7deval
{

/// The text with the letters a to z as capitals; codes of the data interface know no others.
inline std::string upperCase(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    return result;
}

/// The text without the blanks at its end.
inline std::string trimRight(std::string_view text)
{
    const auto last = text.find_last_not_of(' ');
    return std::string(text.substr(0, last == std::string_view::npos ? 0 : last + 1));
}

/// The text with each occurrence of a piece replaced.
inline std::string replaceAll(std::string text, std::string_view piece, std::string_view by)
{
    for (auto at = text.find(piece); at != std::string::npos; at = text.find(piece, at + by.size()))
        text.replace(at, piece.size(), by);
    return text;
}

} // namespace k7deval
