#pragma once

#include <string_view>

namespace k7deval
{

/// Reads a text from left to right. Cheap to copy, which is the way to look ahead.
class TextScanner
{
public:
    explicit TextScanner(std::string_view text) : rest_(text) {}

    [[nodiscard]] bool isAtEnd() const { return rest_.empty(); }
    /// The next character, or a zero character at the end.
    [[nodiscard]] char next() const { return rest_.empty() ? '\0' : rest_.front(); }

    /// Takes the character if it comes next.
    bool take(char character);
    /// Takes the mark if it comes next, in either case. An empty mark never does.
    bool takeIgnoringCase(std::string_view mark);
    /// Takes the next character if it is one of those; else gives a zero character.
    char takeOneOf(std::string_view characters);
    /// Takes the blanks ahead; whether there were any.
    bool takeBlanks();
    /// Takes the digits ahead, possibly none.
    std::string_view takeDigits();
    /// Takes the letters ahead, possibly none; any character outside ASCII counts as a letter.
    std::string_view takeLetters();

private:
    template <class Predicate> std::string_view takeWhile(Predicate belongs);

    std::string_view rest_;
};

} // namespace k7deval
