#include "sevenday/ReportRig.h"

#include <gtest/gtest.h>

/// What stands on a page of the report, at positions worked by hand: a text is as wide as
/// the advances of its characters together.
namespace k7deval::test
{

namespace
{

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

void expectCentred(const ReportPage& page, const CentredText& text, double y)
{
    expectText(page, {text.text, 5, 10, text.centre - text.width / 2, y});
}

/// A report of one run.
struct RowRig : ReportRig {
    RowRig(const CalRun& run, const AnalyzerFacts& facts) : ReportRig(facts)
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

TEST(ReportHead, HasTwoLinesOfColumnHeads)
{
    ReportRig rig;
    for (const CentredText& head : kUpperHeads)
        expectCentred(rig.sheet(0), head, 534.476 - kBodyRow);
    for (const CentredText& head : kLowerHeads)
        expectCentred(rig.sheet(0), head, 521.306 - kBodyRow);
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

} // namespace k7deval::test
