#include "foundation/RegionalSettings.h"

#include "foundation/Error.h"

namespace k7deval
{

namespace
{

constexpr const char* kNoBreakSpace = "\u00A0";
constexpr const char* kNarrowNoBreakSpace = "\u202F";

RegionalSettings britishSettings()
{
    RegionalSettings settings;
    settings.name = "en-GB";
    settings.currencyMark = "£";
    settings.dateOrder = DateOrder::DayMonthYear;
    settings.twoDigitDayAndMonth = true;
    settings.twelveHourLongTime = false;
    settings.twoDigitHour = true;
    return settings;
}

// What the regions of the mainland have in common: no AM and PM, and the comma as decimal mark.
RegionalSettings mainlandSettings()
{
    RegionalSettings settings = britishSettings();
    settings.decimalMark = ",";
    settings.currencyMark = "€";
    settings.amMark.clear();
    settings.pmMark.clear();
    return settings;
}

RegionalSettings germanSettings()
{
    RegionalSettings settings = mainlandSettings();
    settings.name = "de-DE";
    settings.groupMarks = {"."};
    settings.dateSeparator = ".";
    settings.monthNames = {"Januar", "Februar", "März",      "April",   "Mai",      "Juni",
                           "Juli",   "August",  "September", "Oktober", "November", "Dezember"};
    return settings;
}

RegionalSettings frenchSettings()
{
    RegionalSettings settings = mainlandSettings();
    settings.name = "fr-FR";
    settings.groupMarks = {kNoBreakSpace, kNarrowNoBreakSpace};
    settings.monthNames = {"janvier", "février", "mars",      "avril",   "mai",      "juin",
                           "juillet", "août",    "septembre", "octobre", "novembre", "décembre"};
    return settings;
}

} // namespace

RegionalSettings regionalSettings(std::string_view name)
{
    if (name == "en-US")
        return {};
    if (name == "en-GB")
        return britishSettings();
    if (name == "de-DE")
        return germanSettings();
    if (name == "fr-FR")
        return frenchSettings();
    throw Error(errors::kInvalidCall);
}

} // namespace k7deval
