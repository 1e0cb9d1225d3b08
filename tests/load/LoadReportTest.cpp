#include "load/LoadReportRig.h"
#include "support/Approval.h"

#include <gtest/gtest.h>

/// The load report: its placed items as approved texts, and what these don't explain.
namespace k7deval::test
{

namespace
{

/// 3 low hours, 2 mid, 1 high, 4 under the minimum and 1 over the capacity.
struct SixHoursRig : ReportRig {
    explicit SixHoursRig(const std::string& region = "en-US") : ReportRig(region)
    {
        hours({10, 20, 30, 50, 70, 110, 1, 2, 3, 4, 150.5});
        calculate();
    }
};

/// The report as it would be saved now is the one approved for that case.
void expectReport(const LoadRig& rig, const std::string& name)
{
    test::expectApproved("load-report/" + name + "/items.txt", itemsOf(*rig.tool.buildReport()));
}

} // namespace

TEST(LoadReportApproved, OfSixHours)
{
    expectReport(SixHoursRig(), "six-hours");
}

TEST(LoadReportApproved, IsWrittenAsTheRegionDoes)
{
    expectReport(SixHoursRig("de-DE"), "german-region");
}

TEST(LoadReportApproved, OfSpecifiedDatesNamesWhatStandsInTheBoxesAndCountsInsideOrAboveTheBars)
{
    // At 1000 hours to the top, three digits have room above 956 hours and none above 957.
    ReportRig rig;
    rig.specify("1/1/2024", "12/31/2024");
    rig.inBin(1, 1).inBin(4, 956).inBin(5, 957).inBin(6, 1000).calculate();
    rig.tool.txtTo.Type("the end");
    expectReport(rig, "given-dates");
}

TEST(LoadReportApproved, WithoutHoursInTheRangeHasDashesAndTheGridAlone)
{
    ReportRig rig;
    rig.hours({1, 2, 150, 160}).calculate();
    expectReport(rig, "no-hours-in-range");
}

TEST(LoadReportApproved, BeforeAnyEvaluationHasNoHours)
{
    expectReport(ReportRig(), "before-evaluation");
}

TEST(LoadReportApproved, FromAClearedScreenHasTheHoursOfTheLastEvaluationAndNoCaptions)
{
    SixHoursRig rig;
    rig.tool.txtCapacity.Leave();
    ASSERT_TRUE(rig.tool.cmdSave.Enabled());
    expectReport(rig, "cleared-screen");
}

TEST(LoadReportApproved, NamesAQuarterThatWasPickedAfterTheCalculation)
{
    SixHoursRig rig;
    rig.tool.cmbQTR.Pick(2);
    rig.tool.cmbYear.Pick(1);
    expectReport(rig, "quarter-picked-later");
}

TEST(LoadReportApproved, LongTextsKeepTheirMiddleAndTheColumnsTheirPlaces)
{
    SixHoursRig rig;
    rig.site->facilityName = std::string(70, 'M');
    rig.site->parameter(kGT1Load).name = std::string(60, 'W');
    rig.calculate();
    expectReport(rig, "long-texts");
}

TEST(LoadReport, TheRowsStandWhereTheirHeightsPutThem)
{
    SixHoursRig rig;
    const ReportPage& page = rig.page();
    expectText(page, centred("Bethpage", 392, kFacilityY, 6, 14));
    expectText(page, centred("GT1 GT1 Load", 392, kHeaderY, 6, 12));
    expectText(page, centred("33.3% Mid Op Load", 360, kPercentsY));
    expectText(page, centred("3 Hours", 144, kHoursY));
    expectText(page, {"4 hour(s) under 10", 5, 10, 36, kBeyondY});
    expectText(page, centred("30%", 252, kNamesY));
    expectText(page, rightAligned("110", 756, kValuesY));
    expectText(page, {"Load Evaluation Summary 5/15/2024 2:30 PM", 7, 8, 36, kFooterY});
}

TEST(LoadReport, AFacilityWithoutANameHasAStandIn)
{
    for (const std::optional<std::string>& name : {std::optional<std::string>(), {""}}) {
        SixHoursRig rig;
        rig.site->facilityName = name;
        expectText(rig.page(), centred("<Facility Name>", 392, kFacilityY, 6, 14));
    }
}

TEST(LoadReport, LooksTheFacilityUpInTheSitesTable)
{
    SixHoursRig rig;
    rig.site->calls.clear();
    rig.page();
    EXPECT_EQ(rig.site->countCalls("DIServer.LookupService"), 1U);
    EXPECT_EQ(rig.site->countCalls("DILookups.Find"), 1U);
    EXPECT_EQ(rig.site->countCalls("DIParameter.ReadData"), 0U);
}

TEST(LoadReport, LeavesTheScreenAsItIs)
{
    SixHoursRig rig;
    EXPECT_EQ(rig.changesBy([&] { rig.page(); }), Lines());
}

} // namespace k7deval::test
