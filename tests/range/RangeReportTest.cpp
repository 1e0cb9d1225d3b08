#include "range/RangeRig.h"
#include "support/Approval.h"
#include "support/PlacedText.h"

#include <gtest/gtest.h>

/// The range report: its placed items as approved texts, and what these don't explain.
namespace k7deval::test
{

namespace
{

/// The report of an evaluation with one low, two middle and three high hours.
struct SixHoursRig : RangeRig {
    explicit SixHoursRig(const std::string& region = "en-US")
        : RangeRig(siteOfNOx(), kAfternoonInMay, region)
    {
        hours({10, 30, 30, 90, 90, 90}).limits("20", "N/A").calculate();
    }
    ReportPage& page()
    {
        document = tool.buildReport();
        return *document->Pages().begin();
    }
    std::unique_ptr<ReportDocument> document;
};

/// The report as it would be saved now is the one approved for that case.
void expectReport(const RangeRig& rig, const std::string& name)
{
    test::expectApproved("range-report/" + name + "/items.txt", itemsOf(*rig.tool.buildReport()));
}

} // namespace

TEST(RangeReportApproved, OfSixHours)
{
    expectReport(SixHoursRig(), "six-hours");
}

TEST(RangeReportApproved, IsWrittenAsTheRegionDoes)
{
    SixHoursRig rig("de-DE");
    rig.range("12,5").hours({1, 5, 12}).calculate();
    expectReport(rig, "german-region");
}

TEST(RangeReportApproved, WithoutHoursInTheRangeHasDashesAndTheGridAlone)
{
    SixHoursRig rig;
    rig.hours({150}).range("100").calculate();
    expectReport(rig, "no-hours-in-range");
}

TEST(RangeReportApproved, TakesTheScreenAsItStands)
{
    SixHoursRig rig;
    rig.tool.cmbQTR.Pick(3);
    rig.tool.cmbYear.Pick(2);
    rig.tool.chkMEC.Press();
    rig.tool.chkShowPID.Press();
    rig.site->facilityName.reset();
    expectReport(rig, "changed-later");
}

// The rows at the top come down from 563.05 as those of the other reports do; the five lines of
// counts climb in three rows from the footer's rule.
TEST(RangeReport, TheRowsStandWhereTheirHeightsPutThem)
{
    SixHoursRig rig;
    const ReportPage& page = rig.page();
    const double header = 563.05 - 3 * kHeadingRow;
    const double percents = header - 2 * kBodyHeight - 2;
    const double lowest = 49.2 + kBodyHeight;
    const double marks = lowest + 2 * kBodyRow + kBodyHeight + 5;
    EXPECT_EQ(textsAt(page, header), Lines{"GT1 NOX"});
    EXPECT_EQ(textsAt(page, percents), (Lines{"16.7%", "33.3%", "50.0%"}));
    EXPECT_EQ(textsAt(page, percents - kBodyRow), (Lines{"1 Hours", "2 Hours", "3 Hours"}));
    EXPECT_EQ(textsAt(page, lowest), Lines{"Hours over Range:  0"});
    EXPECT_EQ(textsAt(page, lowest + kBodyRow),
              (Lines{"Hours above MPC:  N/A", "Invalid Hours:  0"}));
    EXPECT_EQ(textsAt(page, lowest + 2 * kBodyRow),
              (Lines{"Hours above MEC:  5", "Hours with 200% replacement:  0"}));
    EXPECT_EQ(textsAt(page, marks), (Lines{"Minimum", "20%", "80%", "Maximum"}));
    EXPECT_EQ(textsAt(page, marks + kBodyRow), (Lines{"0", "20", "80", "100"}));
}

TEST(RangeReport, BearsTheTimeAtWhichItIsMade)
{
    SixHoursRig rig;
    rig.clock.set(makeDate(2024, 12, 31, 9, 5));
    expectText(rig.page(), {"Range Evaluation Summary 12/31/2024 9:05 AM", 7, 8, 36, kFooterY});
}

} // namespace k7deval::test
