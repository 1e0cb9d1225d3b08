#include "load/LoadReportRig.h"

#include <gtest/gtest.h>

/// The texts of the load report, at positions worked by hand.
namespace k7deval::test
{

namespace
{

/// All texts but the counts of the bars.
constexpr std::size_t kTexts = 21;

/// 3 low hours, 2 mid, 1 high, 4 under the minimum and 1 over the capacity.
struct SixHoursRig : ReportRig {
    explicit SixHoursRig(const std::string& region = "en-US") : ReportRig(region)
    {
        hours({10, 20, 30, 50, 70, 110, 1, 2, 3, 4, 150.5});
        calculate();
    }
};

/// The texts with these y, but those without a character.
Lines writtenAt(const ReportPage& page, double y)
{
    Lines texts = textsAt(page, y);
    std::erase(texts, "");
    return texts;
}

} // namespace

TEST(LoadReport, TellsWhoMadeItAndWhatItIs)
{
    SixHoursRig rig;
    rig.document = rig.tool.buildReport();
    EXPECT_EQ(rig.document->Author(), "Kelvo Load Evaluation");
    EXPECT_EQ(rig.document->Creator(), "Kelvo Load Evaluation");
    EXPECT_EQ(rig.document->Subject(), "Load Evaluation");
    EXPECT_EQ(rig.document->Title(), "Load Evalution");
}

TEST(LoadReport, IsOneLandscapePage)
{
    SixHoursRig rig;
    const ReportPage& page = rig.page();
    EXPECT_EQ(rig.document->Pages().Count(), 1);
    EXPECT_EQ(page.Height(), 612);
    EXPECT_EQ(page.Width(), 792);
}

TEST(LoadReport, TheRowsStandWhereTheirHeightsPutThem)
{
    EXPECT_NEAR(kTitleY, 547.646, 1e-9);
    EXPECT_NEAR(kPeriodY, 532.242, 1e-9);
    EXPECT_NEAR(kHeaderY, 516.838, 1e-9);
    EXPECT_NEAR(kPercentsY, 492.498, 1e-9);
    EXPECT_NEAR(kHoursY, 479.328, 1e-9);
    EXPECT_NEAR(kChartTop, 466.158, 1e-9);
    EXPECT_NEAR(kBeyondY, 60.37, 1e-9);
    EXPECT_NEAR(kNamesY, 76.54, 1e-9);
    EXPECT_NEAR(kValuesY, 89.71, 1e-9);
    EXPECT_NEAR(kChartBottom, 102.88, 1e-9);
    EXPECT_NEAR(widthOf("Bethpage", 6, 14), 63.784, 0.001);
    EXPECT_NEAR(widthOf("30%"), 5.56 * 2 + 8.89, 0.001);
}

TEST(LoadReport, HasFacilityTitlePeriodAndParameterOnTheCentreLine)
{
    SixHoursRig rig;
    const ReportPage& page = rig.page();
    expectText(page, centred("Bethpage", 392, kFacilityY, 6, 14));
    expectText(page, centred("Load Evaluation Summary", 392, kTitleY, 6, 12));
    expectText(page, centred("Load summary ending the last day of 2024 Q1", 392, kPeriodY, 6, 12));
    expectText(page, centred("GT1 GT1 Load", 392, kHeaderY, 6, 12));
}

TEST(LoadReport, HasTheLevelsOverTheirThirdsOfTheChart)
{
    SixHoursRig rig;
    const ReportPage& page = rig.page();
    expectText(page, centred("50.0% Low Op Load", 144, kPercentsY));
    expectText(page, centred("33.3% Mid Op Load", 360, kPercentsY));
    expectText(page, centred("16.7% High Op Load", 612, kPercentsY));
    expectText(page, centred("3 Hours", 144, kHoursY));
    expectText(page, centred("2 Hours", 360, kHoursY));
    expectText(page, centred("1 Hours", 612, kHoursY));
}

TEST(LoadReport, HasTheScaleUnderTheChart)
{
    SixHoursRig rig;
    const ReportPage& page = rig.page();
    expectText(page, {"10", 5, 10, 36, kValuesY});
    expectText(page, centred("40", 252, kValuesY));
    expectText(page, centred("70", 468, kValuesY));
    expectText(page, rightAligned("110", 756, kValuesY));
    expectText(page, {"Minimum", 5, 10, 36, kNamesY});
    expectText(page, centred("30%", 252, kNamesY));
    expectText(page, centred("60%", 468, kNamesY));
    expectText(page, rightAligned("Maximum", 756, kNamesY));
}

TEST(LoadReport, HasTheHoursBeyondTheRangeAtItsFoot)
{
    SixHoursRig rig;
    const ReportPage& page = rig.page();
    expectText(page, {"4 hour(s) under 10", 5, 10, 36, kBeyondY});
    expectText(page, rightAligned("1 hour(s) over 110 - Maximum 150.5", 756, kBeyondY));
}

TEST(LoadReport, TheFooterHangsBelowItsRuleWithTheTimeOfTheReport)
{
    SixHoursRig rig;
    rig.clock.set(makeDate(2024, 5, 11, 9, 5));
    expectText(rig.page(), {"Load Evaluation Summary 5/11/2024 9:05 AM", 7, 8, 36, kFooterY});
}

TEST(LoadReport, HasNoOtherTexts)
{
    SixHoursRig rig;
    const ReportPage& page = rig.page();
    EXPECT_EQ(countTexts(page), kTexts + upwardTexts(page).size());
    EXPECT_EQ(upwardTexts(page).size(), 6U) << "each hour has a bin of its own";
}

TEST(LoadReport, IsWrittenAsTheRegionDoes)
{
    SixHoursRig rig("de-DE");
    const ReportPage& page = rig.page();
    expectText(page, {"Load Evaluation Summary 10.05.2024 14:30", 7, 8, 36, kFooterY});
    expectText(page, centred("33,3% Mid Op Load", 360, kPercentsY));
    expectText(page, rightAligned("1 hour(s) over 110 - Maximum 150,5", 756, kBeyondY));
}

TEST(LoadReport, AFacilityWithoutANameHasAStandIn)
{
    for (const std::optional<std::string>& name : {std::optional<std::string>(), {""}}) {
        SixHoursRig rig;
        rig.site->facilityName = name;
        expectText(rig.page(), centred("<Facility Name>", 392, kFacilityY, 6, 14));
    }
}

TEST(LoadReport, OfSpecifiedDatesNamesThem)
{
    ReportRig rig;
    rig.specify("1/15/2024", "2/20/2024").calculate();
    expectText(rig.page(),
               centred("Load summary from 1/15/2024 to 2/20/2024", 392, kPeriodY, 6, 12));
}

TEST(LoadReport, OfSpecifiedDatesNamesWhatStandsInTheBoxes)
{
    ReportRig rig;
    rig.specify("1/15/2024", "2/20/2024").calculate();
    rig.tool.txtTo.Type("the end");
    expectText(rig.page(), centred("Load summary from 1/15/2024 to the end", 392, kPeriodY, 6, 12));
}

TEST(LoadReport, NamesAQuarterThatWasPickedAfterTheCalculation)
{
    SixHoursRig rig;
    rig.tool.cmbQTR.Pick(2);
    rig.tool.cmbYear.Pick(1);
    const ReportPage& page = rig.page();
    expectText(page, centred("Load summary ending the last day of 2023 Q3", 392, kPeriodY, 6, 12));
    expectText(page, centred("3 Hours", 144, kHoursY));
    expectText(page, centred("GT1 GT1 Load", 392, kHeaderY, 6, 12));
}

TEST(LoadReport, FromAClearedScreenHasTheHoursOfTheLastEvaluationAndNoCaptions)
{
    SixHoursRig rig;
    const std::size_t counts = upwardTexts(rig.page()).size();
    rig.tool.txtCapacity.Leave();
    ASSERT_TRUE(rig.tool.cmdSave.Enabled());
    const ReportPage& page = rig.page();
    EXPECT_EQ(writtenAt(page, kHeaderY), Lines());
    EXPECT_EQ(writtenAt(page, kPercentsY), Lines());
    EXPECT_EQ(writtenAt(page, kHoursY), (Lines{"3 Hours", "2 Hours", "1 Hours"}));
    EXPECT_EQ(writtenAt(page, kValuesY), Lines());
    EXPECT_EQ(writtenAt(page, kNamesY), (Lines{"Minimum", "30%", "60%", "Maximum"}));
    expectText(page, {"0 hour(s) under minimum", 5, 10, 36, kBeyondY});
    expectText(page, rightAligned("0 hour(s) over maximum", 756, kBeyondY));
    EXPECT_EQ(rectanglesOf(page).size(), 20U);
    EXPECT_EQ(upwardTexts(page).size(), counts);
}

TEST(LoadReport, BeforeAnyEvaluationHasNoHours)
{
    ReportRig rig;
    const ReportPage& page = rig.page();
    expectText(page, centred("0 Hours", 144, kHoursY));
    expectText(page, centred("0 Hours", 360, kHoursY));
    expectText(page, centred("0 Hours", 612, kHoursY));
    EXPECT_TRUE(rectanglesOf(page).empty());
}

TEST(LoadReport, WithoutHoursInTheRangeHasDashes)
{
    ReportRig rig;
    rig.calculate();
    const ReportPage& page = rig.page();
    EXPECT_EQ(writtenAt(page, kPercentsY), (Lines{"-----", "-----", "-----"}));
    expectText(page, rightAligned("0 hours(s) over 110", 756, kBeyondY));
}

TEST(LoadReport, LongTextsKeepTheirMiddleAndTheColumnsTheirPlaces)
{
    ReportRig rig;
    const std::string unit(60, 'W');
    rig.site->parameter(kGT1).name = unit;
    rig.site->facilityName = std::string(70, 'M');
    rig.tool.SetDIServer(serve(rig.site));
    rig.hours({20});
    enter(rig.tool.txtCapacity, "110");
    rig.calculate();
    const ReportPage& page = rig.page();
    expectText(page, centred(std::string(70, 'M'), 392, kFacilityY, 6, 14));
    expectText(page, centred(unit + " GT1 Load", 392, kHeaderY, 6, 12));
    expectText(page, centred("100.0% Low Op Load", 144, kPercentsY));
    EXPECT_LT(392 - widthOf(unit + " GT1 Load", 6, 12) / 2, 36);
}

TEST(LoadReport, ManyHoursAreInGeneralForm)
{
    ReportRig rig;
    rig.specify("1/1/2023", "12/31/2023");
    rig.series().fill(makeDate(2023, 1, 1), makeDate(2023, 12, 31, 23), 20);
    rig.calculate();
    expectText(rig.page(), centred("8760 Hours", 144, kHoursY));
}

TEST(LoadReport, WithoutDataCannotBeMade)
{
    LoadTool rig;
    EXPECT_EQ(errorOf([&] { static_cast<void>(rig.tool.buildReport()); }), 91);
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
