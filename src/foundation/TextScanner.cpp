#include "foundation/TextScanner.h"

#include "foundation/TextFunctions.h"

#include <algorithm>
#include <cstddef>

namespace k7deval
{

namespace
{

bool isBlank(char character)
{
    return character == ' ' || character == '\t';
}

bool isLetter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (static_cast<unsigned char>(character) & 0x80U) != 0;
}

} // namespace

template <class Predicate> std::string_view TextScanner::takeWhile(Predicate belongs)
{
    const auto end = std::find_if_not(rest_.begin(), rest_.end(), belongs);
    const std::string_view taken = rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
    rest_.remove_prefix(taken.size());
    return taken;
}

bool TextScanner::take(char character)
{
    return takeOneOf({&character, 1}) != '\0';
}

bool TextScanner::takeIgnoringCase(std::string_view mark)
{
    if (mark.empty() || lowerCase(rest_.substr(0, mark.size())) != lowerCase(mark))
        return false;
    rest_.remove_prefix(mark.size());
    return true;
}

char TextScanner::takeOneOf(std::string_view characters)
{
    if (rest_.empty() || characters.find(rest_.front()) == std::string_view::npos)
        return '\0';
    const char taken = rest_.front();
    rest_.remove_prefix(1);
    return taken;
}

bool TextScanner::takeBlanks()
{
    return !takeWhile(isBlank).empty();
}

std::string_view TextScanner::takeDigits()
{
    return takeWhile(isDigit);
}

std::string_view TextScanner::takeLetters()
{
    return takeWhile(isLetter);
}

} // namespace k7deval
