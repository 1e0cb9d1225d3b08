#include "range/RangeRig.h"
#include "support/PlacedText.h"

#include <gtest/gtest.h>

/// What stands on the page of the report, at positions worked by hand: a text is as wide as
/// the advances of its characters together.
namespace k7deval::test
{

namespace
{

constexpr double kDigit = 5.56;

constexpr double kHeading = 563.05 - kHeadingRow;
constexpr double kPeriod = kHeading - kHeadingRow;
constexpr double kHeader = kPeriod - kHeadingRow;
constexpr double kPercents = kHeader - 2 * kBodyHeight - 2;
constexpr double kHours = kPercents - kBodyRow;
constexpr double kChartTop = kHours - kBodyRow;

constexpr double kOverRange = 49.2 + kBodyHeight;
constexpr double kAboveMPC = kOverRange + kBodyRow;
constexpr double kAboveMEC = kAboveMPC + kBodyRow;
constexpr double kMarks = kAboveMEC + kBodyHeight + 5;
constexpr double kValues = kMarks + kBodyRow;
constexpr double kChartBottom = kValues + kBodyRow;

/// The report of an evaluation with one low, two middle and three high hours.
struct PageRig : RangeRig {
    PageRig() { hours({10, 30, 30, 90, 90, 90}).limits("20", "N/A").calculate(); }

    ReportDocument& build()
    {
        document = tool.buildReport();
        return *document;
    }
    ReportPage& page()
    {
        if (!document)
            build();
        return *document->Pages().begin();
    }
    const ReportLine& line(int index) { return *std::next(page().Lines().begin(), index); }
    const ReportRectangle& bar(int number)
    {
        return *std::next(page().Rectangles().begin(), number - 1);
    }

    std::unique_ptr<ReportDocument> document;
};

void expectLine(const ReportLine& line, double x1, double y1, double x2, double y2)
{
    EXPECT_NEAR(line.X1(), x1, 1e-3);
    EXPECT_NEAR(line.Y1(), y1, 1e-3);
    EXPECT_NEAR(line.X2(), x2, 1e-3);
    EXPECT_NEAR(line.Y2(), y2, 1e-3);
}

} // namespace

TEST(RangeReport, TellsWhoMadeItAndWhatItIs)
{
    PageRig rig;
    const ReportDocument& document = rig.build();
    EXPECT_EQ(document.Author(), "Kelvo Range Evaluation");
    EXPECT_EQ(document.Creator(), "Kelvo Range Evaluation");
    EXPECT_EQ(document.Title(), "Range Evaluation");
    EXPECT_EQ(document.Subject(), "Range Evaluation");
}

TEST(RangeReport, IsOneLandscapePage)
{
    PageRig rig;
    EXPECT_EQ(rig.build().Pages().Count(), 1);
    EXPECT_EQ(rig.page().Height(), 612);
    EXPECT_EQ(rig.page().Width(), 792);
}

TEST(RangeReport, TheFooterBearsTheTimeOfTheReport)
{
    PageRig rig;
    expectText(rig.page(), {"Range Evaluation Summary 5/15/2024 2:30 PM", 7, 8, 36, kFooterY});
    expectLine(rig.line(0), 36, 49.1, 756, 49.1);
    EXPECT_FALSE(rig.line(0).isDashed());
    rig.clock.set(makeDate(2024, 12, 31, 9, 5));
    rig.build();
    expectText(rig.page(), {"Range Evaluation Summary 12/31/2024 9:05 AM", 7, 8, 36, kFooterY});
}

TEST(RangeReport, TheTopRowsAreCentredOnTheirLine)
{
    PageRig rig;
    expectText(rig.page(), {"Bethpage", 6, 14, 392 - 63.784 / 2, 563.05});
    expectText(rig.page(), {"Range Evaluation Summary", 6, 12, 392 - 158.712 / 2, kHeading});
    expectText(rig.page(),
               {"Range summary ending the last day of 2024 Q1", 6, 12, 392 - 269.424 / 2, kPeriod});
    expectText(rig.page(), {"GT1 NOX", 6, 12, 392 - 52.68 / 2, kHeader});
}

TEST(RangeReport, ALongerNameShiftsItsOwnRowAlone)
{
    PageRig rig;
    rig.site->facilityName = "BethpageBethpage";
    expectText(rig.page(), {"BethpageBethpage", 6, 14, 392 - 63.784, 563.05});
    expectText(rig.page(), {"GT1 NOX", 6, 12, 392 - 52.68 / 2, kHeader});
    expectText(rig.page(), {"16.7%", 5, 10, 108 - 28.35 / 2, kPercents});
}

TEST(RangeReport, AFacilityWithoutANameHasAStandIn)
{
    PageRig rig;
    rig.site->facilityName.reset();
    expectText(rig.page(), {"<Facility Name>", 6, 14, 392 - 106.61 / 2, 563.05});
}

TEST(RangeReport, PercentsAndHoursStandOverTheirLevels)
{
    PageRig rig;
    expectText(rig.page(), {"16.7%", 5, 10, 108 - 28.35 / 2, kPercents});
    expectText(rig.page(), {"33.3%", 5, 10, 396 - 28.35 / 2, kPercents});
    expectText(rig.page(), {"50.0%", 5, 10, 684 - 28.35 / 2, kPercents});
    expectText(rig.page(), {"1 Hours", 5, 10, 108 - 35.01 / 2, kHours});
    expectText(rig.page(), {"2 Hours", 5, 10, 396 - 35.01 / 2, kHours});
    expectText(rig.page(), {"3 Hours", 5, 10, 684 - 35.01 / 2, kHours});
}

TEST(RangeReport, TheCountsStandAtTheBottomInTwoColumns)
{
    PageRig rig;
    expectText(rig.page(), {"Hours over Range:  0", 5, 10, 36, kOverRange});
    expectText(rig.page(), {"Hours above MPC:  N/A", 5, 10, 36, kAboveMPC});
    expectText(rig.page(), {"Invalid Hours:  0", 5, 10, 396, kAboveMPC});
    expectText(rig.page(), {"Hours above MEC:  5", 5, 10, 36, kAboveMEC});
    expectText(rig.page(), {"Hours with 200% replacement:  0", 5, 10, 396, kAboveMEC});
}

TEST(RangeReport, TheScaleStandsInTwoRowsUnderTheChart)
{
    PageRig rig;
    expectText(rig.page(), {"Minimum", 5, 10, 36, kMarks});
    expectText(rig.page(), {"20%", 5, 10, 180 - 20.01 / 2, kMarks});
    expectText(rig.page(), {"80%", 5, 10, 612 - 20.01 / 2, kMarks});
    expectText(rig.page(), {"Maximum", 5, 10, 756 - 43.33, kMarks});
    expectText(rig.page(), {"0", 5, 10, 36, kValues});
    expectText(rig.page(), {"20", 5, 10, 180 - kDigit, kValues});
    expectText(rig.page(), {"80", 5, 10, 612 - kDigit, kValues});
    expectText(rig.page(), {"100", 5, 10, 756 - 3 * kDigit, kValues});
}

TEST(RangeReport, HasNothingElseThanItsTextsAndTheHoursOfItsBars)
{
    PageRig rig;
    EXPECT_EQ(countTexts(rig.page()), 1U + 4 + 6 + 5 + 8 + 3);
    EXPECT_EQ(rig.page().Lines().Count(), 6);
    EXPECT_EQ(rig.page().Rectangles().Count(), 20);
}

TEST(RangeReport, TheGridStandsOnASolidBase)
{
    PageRig rig;
    expectLine(rig.line(1), 36, kChartBottom, 756, kChartBottom);
    EXPECT_FALSE(rig.line(1).isDashed());
    const double marks[] = {36, 180, 612, 756};
    for (int mark = 0; mark < 4; ++mark) {
        expectLine(rig.line(mark + 2), marks[mark], kChartTop, marks[mark], kChartBottom);
        EXPECT_EQ(rig.line(mark + 2).Style(), 3) << mark;
    }
}

TEST(RangeReport, TheBarsStandInTheScaleOfTheFullest)
{
    PageRig rig;
    for (int number = 1; number <= 20; ++number) {
        const ReportRectangle& bar = rig.bar(number);
        EXPECT_NEAR(bar.X(), 36 * number, 1e-3);
        EXPECT_NEAR(bar.Width(), 36, 1e-3);
        EXPECT_NEAR(bar.Y(), kChartBottom, 1e-3);
        EXPECT_EQ(bar.FillColor(), 0xB4B4B4);
        EXPECT_EQ(bar.LineColor(), 0xB4B4B4);
    }
    EXPECT_NEAR(rig.bar(1).Height(), 0, 1e-6);
    EXPECT_NEAR(rig.bar(2).Height(), (kChartTop - kChartBottom) / 3, 1e-3);
    EXPECT_NEAR(rig.bar(6).Height(), (kChartTop - kChartBottom) * 2 / 3, 1e-3);
    EXPECT_NEAR(rig.bar(18).Height(), kChartTop - kChartBottom, 1e-3);
}

TEST(RangeReport, TheHoursStandUprightAtTheirBars)
{
    PageRig rig;
    const double middle = 18 + kBodyHeight / 2;
    const double full = kChartTop - kChartBottom;
    expectText(rig.page(), {"1", 5, 10, 2 * 36 + middle, kChartBottom + full / 3 + 1});
    expectText(rig.page(), {"2", 5, 10, 6 * 36 + middle, kChartBottom + full * 2 / 3 + 1});
    expectText(rig.page(), {"3", 5, 10, 18 * 36 + middle, kChartTop - kDigit - 1});
    int upright = 0;
    for (const ReportTextItem& item : rig.page().TextItems())
        upright += item.readsUpward() ? 1 : 0;
    EXPECT_EQ(upright, 3);
}

TEST(RangeReport, WithoutHoursInTheRangeTheGridStandsAlone)
{
    PageRig rig;
    rig.hours({150}).range("100").calculate();
    EXPECT_EQ(rig.page().Rectangles().Count(), 0);
    EXPECT_EQ(rig.page().Lines().Count(), 6);
    EXPECT_EQ(countTexts(rig.page()), 24U);
    // Hyphens are 333 wide: five of them are 16.65.
    expectText(rig.page(), {"-----", 5, 10, 108 - 16.65 / 2, kPercents});
    expectText(rig.page(), {"0 Hours", 5, 10, 108 - 35.01 / 2, kHours});
    expectText(rig.page(), {"Hours over Range:  1", 5, 10, 36, kOverRange});
}

TEST(RangeReport, NamesTheQuarterOfTheListsAlsoOneThatWasNotEvaluated)
{
    PageRig rig;
    rig.tool.cmbQTR.Pick(3);
    rig.tool.cmbYear.Pick(2);
    const auto row = textsAt(rig.page(), kPeriod);
    EXPECT_EQ(row, Lines{"Range summary ending the last day of 2022 Q4"});
    expectText(rig.page(), {"1 Hours", 5, 10, 108 - 35.01 / 2, kHours});
}

TEST(RangeReport, TakesTheTextsOfTheScreenAsTheyStand)
{
    PageRig rig;
    rig.tool.chkMEC.Press();
    rig.tool.chkShowPID.Press();
    EXPECT_EQ(textsAt(rig.page(), kAboveMEC),
              (Lines{"Hours above MEC:  5", "Hours with 200% replacement:  0"}));
    EXPECT_EQ(textsAt(rig.page(), kHeader), Lines{"GT1 NOX"});
}

TEST(RangeReport, IsWrittenAsTheRegionDoes)
{
    RangeRig rig(siteOfNOx(), makeDate(2024, 5, 15, 14, 30), "de-DE");
    rig.range("12,5").hours({1, 5, 12}).calculate();
    const auto document = rig.tool.buildReport();
    const ReportPage& page = *document->Pages().begin();
    EXPECT_EQ(textsAt(page, kValues), (Lines{"0", "2,5", "10", "12,5"}));
    EXPECT_EQ(textsAt(page, kPercents), (Lines{"33,3%", "33,3%", "33,3%"}));
    expectText(page, {"Range Evaluation Summary 15.05.2024 14:30", 7, 8, 36, kFooterY});
}

TEST(RangeReport, NeedsTheDataOfItsSite)
{
    PageRig rig;
    failAt(*rig.site, "DILookups.Find");
    EXPECT_THROW(rig.build(), Error);
    rig.site->failure = nullptr;
    rig.tool.Terminate();
    EXPECT_THROW(rig.build(), Error);
}

} // namespace k7deval::test
