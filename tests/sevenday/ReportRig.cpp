#include "sevenday/ReportRig.h"

#include <gtest/gtest.h>

#include <iterator>

namespace k7deval::test
{

ReportRig::ReportRig(const AnalyzerFacts& facts, const std::string& region)
    : SetUpRig(siteOf(facts), region)
{
    site->facilityName = "Bethpage";
    setup();
    test.irm = messages;
    test.DIServer = serve(site);
    test.dictCals = std::make_shared<RunMap>();
}

ReportRig& ReportRig::show(const std::vector<CalDay>& days)
{
    test.objDaysToDisplay = arrayOf(days);
    for (const CalDay& day : days) {
        for (const auto& [key, run] : day->CalsInDay())
            test.dictCals->Add(key, run);
    }
    return *this;
}

ReportDocument& ReportRig::build()
{
    document = report.build();
    EXPECT_NE(document, nullptr);
    EXPECT_EQ(messages->lines(), Lines());
    return *document;
}

ReportPage& ReportRig::sheet(std::size_t index)
{
    if (!document)
        build();
    return *std::next(document->Pages().begin(), static_cast<std::ptrdiff_t>(index));
}

std::vector<CalDay> daysOfOneRun(int count)
{
    std::vector<CalDay> days;
    days.reserve(static_cast<std::size_t>(count));
    for (int day = 1; day <= count; ++day)
        days.push_back(dayWith(makeDate(2024, 1, day), {runAt(makeDate(2024, 1, day, 8, 15))}));
    return days;
}

} // namespace k7deval::test
