#include "cli/OperatorActions.h"

#include "foundation/DateText.h"
#include "foundation/Error.h"
#include "foundation/NumberText.h"
#include "foundation/TextFunctions.h"

#include <algorithm>
#include <cstdint>

namespace k7deval::cli
{

namespace
{

constexpr std::size_t kQuarterName = 2; ///< "Q4"

bool isSingle(const std::string& text, const RegionalSettings& regional)
{
    try {
        ToSingle(text, regional);
        return true;
    } catch (const Error&) {
        return false;
    }
}

/// A screen takes any other text for the present year.
bool isYear(const std::string& text)
{
    return (text.size() == 3 || text.size() == 4) && text.front() != '0' &&
           std::all_of(text.begin(), text.end(), isDigit);
}

void pickYear(screen::ComboBox& cmbYear, const std::string& year)
{
    if (year.empty())
        return;
    if (!isYear(year))
        throw UsageError(inQuotes(year) + " is no year, which is a whole number from 100 to 9999.");
    const auto& years = cmbYear.List();
    const auto found = std::find(years.begin(), years.end(), year);
    if (found == years.end())
        cmbYear.Type(year);
    else
        cmbYear.Pick(static_cast<std::int32_t>(found - years.begin()));
}

} // namespace

void pickEntry(screen::ComboBox& list, const std::string& entry, const std::string& sentence)
{
    const auto& entries = list.List();
    const auto found = std::find(entries.begin(), entries.end(), entry);
    if (found == entries.end())
        throw UsageError(sentence + "; the list holds: " + listed(entries) + ".");
    list.Pick(static_cast<std::int32_t>(found - entries.begin()));
}

void choose(screen::CheckBox& box, bool wanted)
{
    if (!box.isReachable())
        throw UsageError(inQuotes(box.Caption()) + " can't be chosen with this specification.");
    if (box.isChecked() != wanted)
        box.Press();
}

void typeText(screen::TextBox& field, const std::string& text, const std::string& what)
{
    field.Type(text);
    if (field.Text() != text)
        throw UsageError(inQuotes(text) + " is too long; the " + what + " has at most " +
                         std::to_string(field.MaxLength()) + " characters.");
    field.Leave();
}

void typeDate(screen::TextBox& field, const std::string& text, const RegionalSettings& regional,
              const Clock& clock)
{
    if (text.empty())
        return;
    // A screen puts its old date back silently, so what it would refuse is asked for first.
    if (!IsDate(text, regional, clock.now()))
        throw UsageError(inQuotes(text) + " is no date; one is written as 2024-05-31 or " +
                         ShortDate(makeDate(2024, 5, 31), regional) + ".");
    typeText(field, text, "date");
}

void typeNumber(screen::TextBox& field, const std::string& text, const std::string& what,
                const RegionalSettings& regional)
{
    if (text.empty())
        return;
    // Screens put their old number back silently as well.
    if (!isSingle(text, regional))
        throw UsageError(inQuotes(text) + " is no number that can be the " + what +
                         "; one is written as " + GeneralNumber(1234.5, regional) + ".");
    typeText(field, text, what);
}

void pickQuarter(screen::ComboBox& cmbYear, screen::ComboBox& cmbQTR, const std::string& year,
                 const std::string& quarter)
{
    const std::size_t yearEnd = quarter.size() > kQuarterName ? quarter.size() - kQuarterName : 0;
    const std::string ownYear = quarter.substr(0, yearEnd);
    if (!ownYear.empty() && !year.empty())
        throw UsageError("The quarter " + inQuotes(quarter) +
                         " has its year with it; --year is for one without.");
    pickYear(cmbYear, year + ownYear);
    if (!quarter.empty())
        pickEntry(cmbQTR, quarter.substr(yearEnd), "There is no quarter " + inQuotes(quarter));
}

} // namespace k7deval::cli
