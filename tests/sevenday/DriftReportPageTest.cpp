#include "sevenday/ReportRig.h"

#include <gtest/gtest.h>

/// What stands on a page of the report, at positions worked by hand: a text is as wide as
/// the advances of its characters together.
namespace k7deval::test
{

namespace
{

/// The footer, three title lines, nine upper and eleven lower head texts.
constexpr std::size_t kHeadTexts = 24;
constexpr std::size_t kRowTexts = 11;

/// A text centred on a column.
struct CentredText {
    const char* text;
    double centre;
    double width; ///< In Helvetica at 10 points: "Time" is T 611, i 222, m 833 and e 556.
};

constexpr CentredText kUpperHeads[] = {
    {"Instrument", 166, 47.24}, {"Zero", 226, 20.56}, {"Zero", 286, 20.56},
    {"Zero", 346, 20.56},       {"Zero", 406, 20.56}, {"Span", 466, 23.35},
    {"Span", 526, 23.35},       {"Span", 586, 23.35}, {"Span", 646, 23.35},
};

constexpr CentredText kLowerHeads[] = {
    {"Time", 86, 22.22},         {"Span", 166, 23.35},     {"Reference", 226, 46.13},
    {"Measured", 286, 44.46},    {"Drift", 346, 18.33},    {"Drift Limit", 406, 42.22},
    {"Reference", 466, 46.13},   {"Measured", 526, 44.46}, {"Drift", 586, 18.33},
    {"Drift Limit", 646, 42.22}, {"Status", 716, 28.35},
};

void expectCentred(const ReportPage& page, const CentredText& text, double y, int font = 5)
{
    expectText(page, {text.text, font, 10, text.centre - text.width / 2, y});
}

/// A report of one run.
struct RowRig : ReportRig {
    explicit RowRig(const CalRun& run, const AnalyzerFacts& facts = {},
                    const std::string& region = "en-US")
        : ReportRig(facts, region)
    {
        show({dayWith(kDay, {run})});
    }
    [[nodiscard]] Lines row() { return textsAt(sheet(0), rowY(1)); }
};

/// The font of a text of the first row; 0 when it isn't there.
int fontOf(ReportRig& rig, const std::string& text)
{
    for (const ReportTextItem& item : rig.sheet(0).TextItems()) {
        if (item.Text() == text)
            return item.Font();
    }
    return 0;
}

} // namespace

TEST(ReportDocumentOfDrift, TellsWhoMadeItAndWhatItIs)
{
    ReportRig rig;
    const ReportDocument& document = rig.build();
    EXPECT_EQ(document.Author(), "Kelvo Data Evaluation");
    EXPECT_EQ(document.Creator(), "Kelvo Data Evaluation");
    EXPECT_EQ(document.Subject(), "7-Day Drift Testing");
    EXPECT_EQ(document.Title(), "7-Day Drift Testing");
}

TEST(ReportHead, IsALandscapePage)
{
    ReportRig rig;
    EXPECT_EQ(rig.sheet(0).Height(), 612);
    EXPECT_EQ(rig.sheet(0).Width(), 792);
}

TEST(ReportHead, HasTheFacilityTheToolAndTheAnalyzerOnTheCentreLine)
{
    ReportRig rig;
    const ReportPage& page = rig.sheet(0);
    expectText(page, {"Bethpage", 6, 14, 392 - 63.784 / 2, 563.05});
    expectText(page, {"7-Day Drift Test", 6, 12, 392 - 88.68 / 2, 563.05 - kHeadingRow});
    expectText(page, {"GT3 NOX/H", 5, 10, 392 - 53.9 / 2, 547.646 - kBodyRow});
    EXPECT_EQ(countTexts(page), kHeadTexts);
}

TEST(ReportHead, HasTwoLinesOfColumnHeads)
{
    ReportRig rig;
    for (const CentredText& head : kUpperHeads)
        expectCentred(rig.sheet(0), head, 534.476 - kBodyRow);
    for (const CentredText& head : kLowerHeads)
        expectCentred(rig.sheet(0), head, 521.306 - kBodyRow);
}

TEST(ReportHead, HasARuleUnderItAndOneOverTheFooter)
{
    ReportRig rig;
    const auto& lines = rig.sheet(0).Lines();
    ASSERT_EQ(lines.Count(), 2);
    const double expected[] = {49.1, 506.136};
    for (int i = 0; i < 2; ++i) {
        const ReportLine& line = *std::next(lines.begin(), i);
        EXPECT_EQ(line.X1(), 36);
        EXPECT_EQ(line.X2(), 756);
        EXPECT_NEAR(line.Y1(), expected[i], 0.001);
        EXPECT_EQ(line.Y2(), line.Y1());
        EXPECT_FALSE(line.isDashed());
    }
    EXPECT_NEAR(kHeadRule, 506.136, 1e-9);
}

TEST(ReportHead, TheFooterHangsBelowItsRuleWithTheTimeOfTheReport)
{
    ReportRig rig;
    expectText(rig.sheet(0), {"7-Day Drift Summary 3/10/2024 2:30 PM", 7, 8, 36, kFooterY});
}

TEST(ReportHead, TheFooterIsWrittenAsTheRegionDoes)
{
    ReportRig rig({}, "de-DE");
    expectText(rig.sheet(0), {"7-Day Drift Summary 10.03.2024 14:30", 7, 8, 36, kFooterY});
}

TEST(ReportHead, AFacilityWithoutANameHasAStandIn)
{
    for (const std::optional<std::string>& name : {std::optional<std::string>(), {""}}) {
        ReportRig rig;
        rig.site->facilityName = name;
        expectText(rig.sheet(0), {"<Facility Name>", 6, 14, 392 - 106.61 / 2, 563.05});
        EXPECT_EQ(rig.report.strFacilityName, "<Facility Name>");
    }
}

TEST(ReportHead, NameAndPrecisionAreTakenAnewForEachReport)
{
    ReportRig rig;
    rig.build();
    EXPECT_EQ(rig.report.strPrecision, "0.0");
    rig.site->facilityName = "Barrett";
    rig.site->parameter(AnalyzerFacts().calibrationPID()).attributes[attribute::kDecimals] =
        std::int32_t{2};
    rig.build();
    EXPECT_EQ(rig.report.strPrecision, "0.00");
    EXPECT_EQ(rig.report.strFacilityName, "Barrett");
}

TEST(ReportRow, HasElevenTextsCentredOnTheColumns)
{
    CalRun run = failedRunAt(kMorning);
    run->ZeroCal->MeasuredValue = 1.5F;
    RowRig rig(run);
    const ReportPage& page = rig.sheet(0);
    const CentredText texts[] = {
        {"3/10/2024 08:15", 86, 72.28},
        {"200", 166, 16.68},
        {"0.0", 226, 13.9},
        {"1.5", 286, 13.9},
        {"1.5", 346, 13.9},
        {"5.0", 406, 13.9},
        {"160.0", 466, 25.02},
        {"166.0", 526, 25.02},
        {"5.0", 646, 13.9},
        {"On-Line", 716, 35.57},
    };
    for (const CentredText& text : texts)
        expectCentred(page, text, 506.136 - kBodyRow);
    expectCentred(page, {"6.0", 586, 13.9}, 492.966, 6);
    EXPECT_EQ(countTexts(page), kHeadTexts + kRowTexts);
}

TEST(ReportRow, TellsAnOfflineRun)
{
    RowRig rig(offline(runAt(kMorning)));
    expectCentred(rig.sheet(0), {"Off-Line", 716, 35.57}, 492.966);
}

TEST(ReportRow, LeavesTheColumnsOfAnAbsentInjectionEmpty)
{
    CalRun withoutZero = runAt(kMorning);
    withoutZero->ZeroCal = nullptr;
    EXPECT_EQ(RowRig(withoutZero).row(),
              (Lines{"3/10/2024 08:15", "200", "160.0", "160.0", "0.0", "5.0", "On-Line"}));
    CalRun withoutSpan = runAt(kMorning);
    withoutSpan->SpanCal = nullptr;
    EXPECT_EQ(RowRig(withoutSpan).row(),
              (Lines{"3/10/2024 08:15", "200", "0.0", "0.0", "0.0", "5.0", "On-Line"}));
}

TEST(ReportRow, FiguresHaveTheDecimalsOfTheAnalyzerAndTheSpanNone)
{
    CalRun run = runAt(kMorning);
    run->InstrumentSpan = 12.345F;
    run->ZeroCal = injection(0.25F, 0.375F, 2.5F);
    AnalyzerFacts facts;
    facts.decimals = std::int32_t{2};
    // 0.375 - 0.25 is 0.125, halves away from zero.
    EXPECT_EQ(RowRig(run, facts).row(),
              (Lines{"3/10/2024 08:15", "12.345", "0.25", "0.38", "0.13", "2.50", "160.00",
                     "160.00", "0.00", "5.00", "On-Line"}));
    facts.decimals = std::int32_t{0};
    EXPECT_EQ(RowRig(run, facts).row()[6], "160.");
}

TEST(ReportRow, FiguresAndDatesAreWrittenAsTheRegionDoes)
{
    CalRun run = runAt(makeDate(2024, 3, 10, 20, 15));
    run->InstrumentSpan = 12.5F;
    const Lines row = RowRig(run, {}, "de-DE").row();
    EXPECT_EQ(row[0], "10.03.2024 20:15");
    EXPECT_EQ(row[1], "12,5");
    EXPECT_EQ(row[6], "160,0");
}

TEST(ReportRow, ADriftKeepsItsSign)
{
    CalRun run = runAt(kMorning);
    run->SpanCal->MeasuredValue = 157;
    EXPECT_EQ(RowRig(run).row()[8], "-3.0");
}

struct DriftFontCase {
    const char* what;
    const char* text;
    float measured; ///< Of a reference of 100 and a limit of 2.5.
    int font;
};

TEST(ReportRow, OnlyADriftAboveItsLimitStandsOut)
{
    constexpr DriftFontCase kRows[] = {
        {"below", "2.25", 102.25F, 5},
        {"at the limit", "2.50", 102.5F, 5},
        {"at the limit, below the reference", "-2.50", 97.5F, 5},
        {"above", "2.75", 102.75F, 6},
        {"above, below the reference", "-2.75", 97.25F, 6},
    };
    for (const DriftFontCase& row : kRows) {
        AnalyzerFacts facts;
        facts.decimals = std::int32_t{2};
        CalRun zero = runAt(kMorning);
        zero->ZeroCal = injection(100, row.measured, 2.5F);
        RowRig zeroRig(zero, facts);
        EXPECT_EQ(fontOf(zeroRig, row.text), row.font) << row.what;
        CalRun span = runAt(kMorning);
        span->SpanCal = injection(100, row.measured, 2.5F);
        RowRig spanRig(span, facts);
        EXPECT_EQ(fontOf(spanRig, row.text), row.font) << row.what;
    }
}

TEST(ReportRow, ARunThatIsNotUsedHasABandAcrossTheWholeWidth)
{
    CalRun run = unused(runAt(kMorning));
    run->ZeroCal = nullptr;
    RowRig rig(run);
    const auto& bands = rig.sheet(0).Rectangles();
    ASSERT_EQ(bands.Count(), 1);
    const ReportRectangle& band = *bands.begin();
    EXPECT_EQ(band.X(), 36);
    EXPECT_EQ(band.Width(), 720);
    EXPECT_NEAR(band.Y(), 492.966 - 1, 0.001);
    EXPECT_NEAR(band.Height(), 506.136 - 1 - 491.966 - 3, 0.001);
    EXPECT_EQ(band.FillColor(), 0xF0F0F0);
    EXPECT_EQ(band.LineColor(), 0xF0F0F0);
}

TEST(ReportRow, AUsedRunHasNoBand)
{
    EXPECT_EQ(RowRig(failedRunAt(kMorning)).sheet(0).Rectangles().Count(), 0);
}

} // namespace k7deval::test
