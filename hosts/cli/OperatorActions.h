#pragma once

#include "cli/Texts.h"
#include "cli/UsageError.h"
#include "foundation/Clock.h"
#include "foundation/RegionalSettings.h"
#include "screen/Buttons.h"
#include "screen/ComboBox.h"
#include "screen/TextBox.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

/// What an operator does at a widget, with a sentence for what the widget does not take.
namespace k7deval::cli
{

/// Picks the entry of a list. UsageError with the sentence and the entries when there is none.
void pickEntry(screen::ComboBox& list, const std::string& entry, const std::string& sentence);

/// Brings a check box into a state. UsageError when it can't be reached.
void choose(screen::CheckBox& box, bool wanted);

/// Types a text into a field and leaves it, upon which the screen may write it another way.
/// UsageError when the field is too short for it. what: "ORIS code", ...
void typeText(screen::TextBox& field, const std::string& text, const std::string& what);

/// Types a date and leaves the field; nothing for an empty text. UsageError for what is no date.
void typeDate(screen::TextBox& field, const std::string& text, const RegionalSettings& regional,
              const Clock& clock);

/// Types a number and leaves the field; nothing for an empty text. UsageError for what is no number
/// that a single can hold. what: "minimum", ...
void typeNumber(screen::TextBox& field, const std::string& text, const std::string& what,
                const RegionalSettings& regional);

/// Picks a year and a quarter: "2021" and "Q4", or "2021Q4" in one text; what is empty stays. A
/// year that the list does not hold is typed. UsageError for what is no year or no quarter.
void pickQuarter(screen::ComboBox& cmbYear, screen::ComboBox& cmbQTR, const std::string& year,
                 const std::string& quarter);

/// An option by the word that names it on the command line.
struct NamedOption {
    const char* word;
    screen::OptionButton* button;
};

/// Presses the option of a word. UsageError with all words when there is none.
template <std::size_t n>
void pressOption(const std::array<NamedOption, n>& options, const std::string& word,
                 const std::string& what)
{
    std::vector<std::string> words;
    for (const auto& option : options) {
        words.emplace_back(option.word);
        if (word == option.word)
            return option.button->Press();
    }
    throw UsageError(inQuotes(word) + " is no " + what + "; it is one of: " + listed(words) + ".");
}

} // namespace k7deval::cli
