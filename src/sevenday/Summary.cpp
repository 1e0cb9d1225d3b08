#include "foundation/DateText.h"
#include "sevenday/DriftTest.h"
#include "sevenday/NumberedLine.h"

#include <iterator>

namespace k7deval
{

namespace
{

constexpr const char* kLineBreak = "\r\n";

} // namespace

void DriftTest::BuildSummary(bool showSummary)
{
    runPosting(irm, NumberedLine::BuildSummary, [&] {
        if (present(dictCals).isEmpty()) {
            strSummary = "There are no calibrations in selected time range.";
            return;
        }
        strSummary = showSummary ? outcomeSentence() + undeterminedSentence() : std::string();
    });
}

/// The time of the earliest marked run; with none marked, that of the last run of all.
Date DriftTest::firstDayOfTest() const
{
    const RunMap& runs = present(dictCals);
    Date dtFirst = std::prev(runs.end())->second->CalTime;
    for (auto entry = runs.end(); entry != runs.begin();) {
        --entry;
        if (entry->second->IsUsedIn7Day)
            dtFirst = entry->second->CalTime;
    }
    return dtFirst;
}

std::string DriftTest::outcomeSentence() const
{
    return isPassed() ? "The 7-Day Drift Test has been passed." : progressSentence();
}

std::string DriftTest::progressSentence() const
{
    std::string text = "Starting on " + ShortDate(firstDayOfTest(), *regional_) + " there are " +
                       std::to_string(lngGoodCals) + " on-line cal(s)";
    if (lngFailedCals > 0)
        text += " and 1 on-line failed cal";
    text += " counted in the 7-Day Drift Test.";
    text += kLineBreak;
    const std::int32_t allowed = blnSixOfSeven ? lngFailedCals : 0;
    text += std::to_string(kRunsOfATest - lngGoodCals - allowed);
    text += " more on-line daily cal(s) are needed to pass the Drift Test";
    text += blnSixOfSeven && lngFailedCals <= 0 ? " where 1 of remaining cals is allowed to fail."
                                                : ".";
    return text;
}

std::string DriftTest::undeterminedSentence() const
{
    if (lngUndeterminedDays <= 0)
        return {};
    return kLineBreak + std::string("Unit operating status cannot be determined for ") +
           std::to_string(lngUndeterminedDays) + (lngUndeterminedDays == 1 ? " day" : " days") +
           " in selected timeframe prior to completion of the test. Test results may be "
           "inaccurate.";
}

} // namespace k7deval
