#include "sevenday/ResultRig.h"
#include "support/Approval.h"

#include <gtest/gtest.h>

/// The results page as it is created, and the details of a run.
namespace k7deval::test
{

namespace
{

constexpr const char* kLegend[] = {"OnlinePass", "OfflinePass", "OnlineFail", "OfflineFail",
                                   "OpDayNoCals"};

std::string quoted(const std::string& text)
{
    return '"' + text + '"';
}

} // namespace

TEST(ResultPageApproved, AtTheStart)
{
    test::expectApproved("drift-result/start/widgets.txt", layoutOf(ResultRig().page));
}

TEST(ResultStart, TheTreeHasNoEntryAtAll)
{
    const ResultRig rig;
    EXPECT_TRUE(rig.page.tvwCalTimes.Nodes().empty());
    EXPECT_EQ(rig.page.tvwCalTimes.SelectedItem(), nullptr);
}

TEST(ResultStart, TheLegendIsBlendedWithThePageAndTheTreesImagesWithItsWindow)
{
    const ResultRig rig;
    const Snapshot all = snapshotOf(rig.page);
    for (const char* key : kLegend) {
        const std::string image = std::string("img") + key;
        EXPECT_EQ(all.at(image + ".Picture"), quoted(key));
        EXPECT_EQ(all.at(image + ".BackColor"), "\"0x8000000F\"");
    }
    EXPECT_EQ(rig.page.imgOnOffLine.Keys(),
              (Lines{"OnlinePass", "OfflinePass", "OnlineFail", "OfflineFail", "OpDayNoCals"}));
    EXPECT_EQ(rig.page.imgOnOffLine.BackColor(), 0x80000005U);
}

TEST(ResultTexts, AreTakenAsTheyStand)
{
    ResultRig rig;
    const std::string text = "first\r\nsecond  \r\nthird";
    EXPECT_EQ(rig.changesBy([&] {
        rig.page.SetSummaryText(text);
        rig.page.SetAnalyzerText("GT3 NOX/H ");
    }),
              (Lines{"lblAnalyzerLabel.Caption: \"\" -> \"GT3 NOX/H \"",
                     "lblSummary.Caption: \"\" -> \"" + text + "\""}));
}

TEST(ResultPageApproved, OfAPassedAndOfAFailedRun)
{
    CalRun passed = runAt(kMorning);
    passed->ZeroCal = injection(0.25F, 0.5F, 2.5F);
    passed->SpanCal = injection(160, 158.75F, 5, true);
    const std::pair<const char*, CalRun> runs[] = {{"passed-run", passed},
                                                   {"failed-run", offline(failedRunAt(kMorning))}};
    for (const auto& [name, run] : runs) {
        ResultRig rig;
        rig.show({dayWith(kDay, {run})});
        test::expectApproved("drift-result/" + std::string(name) + "/widgets.txt",
                             layoutOf(rig.page));
    }
}

TEST(ResultPageApproved, OfADayPressedBehindAFailedRunWhoseColoursStay)
{
    ResultRig rig;
    auto& page = rig.show({dayWith(kDay, {failedRunAt(kMorning), runAt(kEvening)})});
    page.tvwCalTimes.Press("3/10/2024 08:15");
    ASSERT_TRUE(page.lblCalResultLabel.Bold());
    page.tvwCalTimes.Press("3/10/2024");
    test::expectApproved("drift-result/day-behind-failed-run/widgets.txt", layoutOf(page));
}

TEST(ResultDetails, APassedRunBehindAFailedOneIsBlackAgain)
{
    ResultRig rig;
    auto& page = rig.show({dayWith(kDay, {failedRunAt(kMorning), runAt(kEvening)})});
    page.tvwCalTimes.Press("3/10/2024 08:15");
    ASSERT_TRUE(page.lblCalResultLabel.Bold());
    page.tvwCalTimes.Press("3/10/2024 20:15");
    EXPECT_EQ(page.lblCalResultLabel.Caption(), "Passed");
    EXPECT_EQ(page.lblCalResultLabel.ForeColor(), 0U);
    EXPECT_FALSE(page.lblCalResultLabel.Bold());
    EXPECT_EQ(page.span.driftData.ForeColor(), 0U);
}

struct DriftColourCase {
    const char* what;
    float measured; ///< Of a reference of 100.
    float limit;
    screen::Color expected;
};

constexpr DriftColourCase kDriftColours[] = {
    {"below the limit", 102.25F, 2.5F, 0},
    {"at the limit", 102.5F, 2.5F, 0},
    {"at the limit, below the reference", 97.5F, 2.5F, 0},
    {"above the limit", 102.5625F, 2.5F, 255},
    {"above the limit, below the reference", 97.4375F, 2.5F, 255},
    {"no drift and no limit", 100, 0, 0},
    {"a limit that never passes", 100, -999, 255},
};

TEST(ResultDetails, OnlyADriftAboveItsLimitIsRed)
{
    for (const DriftColourCase& row : kDriftColours) {
        ResultRig rig;
        CalRun run = runAt(kMorning);
        run->ZeroCal = injection(100, row.measured, row.limit);
        run->SpanCal = injection(100, row.measured, row.limit);
        auto& page = rig.show({dayWith(kDay, {run})});
        EXPECT_EQ(page.zero.driftData.ForeColor(), row.expected) << row.what;
        EXPECT_EQ(page.span.driftData.ForeColor(), row.expected) << row.what;
    }
}

struct FigureCase {
    float value;
    const char* text;
};

// General number form: at most seven significant digits, no fixed decimals.
constexpr FigureCase kFigures[] = {
    {10, "10"},
    {12.5F, "12.5"},
    {0.05F, "0.05"},
    {0, "0"},
    {12345678, "1.234568E+07"},
    {1234567, "1234567"},
    {-0.125F, "-0.125"},
    {33.3333333F, "33.33333"},
};

TEST(ResultDetails, FiguresAreInPlainNumberForm)
{
    for (const FigureCase& row : kFigures) {
        ResultRig rig;
        CalRun run = runAt(kMorning);
        run->InstrumentSpan = row.value;
        run->ZeroCal = injection(row.value, 0, row.value);
        run->SpanCal = injection(0, row.value, row.value);
        auto& page = rig.show({dayWith(kDay, {run})});
        EXPECT_EQ(page.lblInstSpanData.Caption(), row.text);
        EXPECT_EQ(page.zero.refData.Caption(), row.text);
        EXPECT_EQ(page.zero.limitData.Caption(), row.text);
        EXPECT_EQ(page.span.measData.Caption(), row.text);
        EXPECT_EQ(page.span.limitData.Caption(), row.text);
    }
}

TEST(ResultDetails, TheDriftIsTheOneKeptToFourDecimals)
{
    ResultRig rig;
    CalRun run = runAt(kMorning);
    run->SpanCal = injection(0, 0.12345678F, 1);
    EXPECT_EQ(rig.show({dayWith(kDay, {run})}).span.driftData.Caption(), "0.1235");
}

TEST(ResultDetails, DatesAndFiguresAreWrittenAsTheRegionDoes)
{
    ResultRig rig("de-DE");
    CalRun run = runAt(kEvening);
    run->InstrumentSpan = 12.5F;
    auto& page = rig.show({dayWith(kDay, {run})});
    EXPECT_EQ(page.lblCalTimeData.Caption(), "10.03.2024 20:15");
    EXPECT_EQ(page.lblInstSpanData.Caption(), "12,5");
}

TEST(ResultDetails, AnAbsentInjectionLeavesItsFiveFieldsEmpty)
{
    ResultRig rig;
    CalRun whole = runAt(kMorning);
    whole->ZeroCal->UsesAPS = true;
    whole->SpanCal->UsesAPS = true;
    CalRun withoutZero = runAt(kEvening);
    withoutZero->ZeroCal = nullptr;
    CalRun withoutSpan = runAt(makeDate(2024, 3, 10, 22, 15));
    withoutSpan->SpanCal = nullptr;
    auto& page = rig.show({dayWith(kDay, {whole, withoutZero, withoutSpan})});

    page.tvwCalTimes.Press("3/10/2024 08:15");
    EXPECT_EQ(page.zero.apsLabel.Caption() + page.span.apsLabel.Caption(), "APSAPS");
    page.tvwCalTimes.Press("3/10/2024 20:15");
    for (const auto* label : {&page.zero.refData, &page.zero.measData, &page.zero.driftData,
                              &page.zero.limitData, &page.zero.apsLabel})
        EXPECT_EQ(label->Caption(), "") << label->Name();
    EXPECT_EQ(page.span.refData.Caption(), "160");
    EXPECT_EQ(page.lblCalResultLabel.Caption(), "Failed");
    page.tvwCalTimes.Press("3/10/2024 22:15");
    for (const auto* label : {&page.span.refData, &page.span.measData, &page.span.driftData,
                              &page.span.limitData, &page.span.apsLabel})
        EXPECT_EQ(label->Caption(), "") << label->Name();
    EXPECT_EQ(page.zero.refData.Caption(), "0");
}

TEST(ResultDetails, AShownRunStaysWithItsTreeEntry)
{
    ResultRig rig;
    CalRun run = runAt(kMorning);
    const std::weak_ptr<cls7DayAnalyzerCal> held = run;
    rig.show({dayWith(kDay, {std::exchange(run, nullptr)})});
    EXPECT_FALSE(held.expired());
    rig.page.tvwCalTimes.Press("3/10/2024 08:15");
    EXPECT_EQ(rig.page.lblCalResultLabel.Caption(), "Passed");
    rig.page.ClearTreeView();
    EXPECT_TRUE(held.expired());
}

} // namespace k7deval::test
