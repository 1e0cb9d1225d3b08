#include "sevenday/ReportRig.h"
#include "support/Approval.h"

#include <gtest/gtest.h>

/// The 7-Day report: its placed items as approved texts.
namespace k7deval::test
{

namespace
{

void expectReport(ReportRig& rig, const std::string& name)
{
    test::expectApproved("drift-report/" + name + "/items.txt", itemsOf(rig.build()));
}

/// A run of each kind on seven days: used, failed, off-line and not used, without zero and without
/// span gas, and two with a drift below the reference.
std::vector<CalDay> daysOfEveryKind()
{
    std::vector<CalDay> days = daysOfOneRun(7);
    const auto run = [&](std::size_t day) -> CalRun& { return days[day]->DisplayedCals[0]; };
    run(1) = failedRunAt(run(1)->CalTime);
    run(2) = unused(offline(run(2)));
    run(3)->ZeroCal = nullptr;
    run(4)->SpanCal = nullptr;
    run(5)->SpanCal->MeasuredValue = 157;
    run(6) = unused(failedRunAt(run(6)->CalTime));
    run(6)->ZeroCal->MeasuredValue = -12.345F;
    return days;
}

} // namespace

TEST(DriftReportApproved, OfSevenDaysWithARunOfEveryKind)
{
    ReportRig rig;
    rig.test.strSummary = "Starting on 1/1/2024 there are 4 on-line cal(s).\r\n3 more are needed.";
    rig.show(daysOfEveryKind());
    expectReport(rig, "seven-days");
}

TEST(DriftReportApproved, IsWrittenAsTheRegionAndTheDecimalsOfTheAnalyzerWantIt)
{
    AnalyzerFacts facts;
    facts.decimals = std::int32_t{2};
    ReportRig rig(facts, "de-DE");
    rig.site->facilityName.reset();
    rig.show(daysOfEveryKind());
    expectReport(rig, "german-region");
}

TEST(DriftReportApproved, OfTwoPagesHasHeadsAndNumbersOnBoth)
{
    ReportRig rig;
    rig.test.strSummary = "The 7-Day Drift Test has been passed.";
    rig.show(daysOfOneRun(40));
    expectReport(rig, "two-pages");
}

TEST(DriftReportApproved, WithoutRunsIsTheOutcomeAlone)
{
    ReportRig rig;
    rig.test.objDaysToDisplay = arrayOf(daysOfOneRun(2));
    rig.test.strSummary = "There are no calibrations in selected time range.";
    expectReport(rig, "no-runs");
}

} // namespace k7deval::test
