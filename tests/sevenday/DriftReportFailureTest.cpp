#include "foundation/ExpectError.h"
#include "sevenday/NumberedLine.h"
#include "sevenday/ReportBench.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <limits>

/// Failures of the report: a procedure posts its line and ends, and its caller goes on.
namespace k7deval::test
{

namespace
{

constexpr float kNoNumber = std::numeric_limits<float>::infinity();

/// A clock that breaks.
class BreakingClock final : public Clock
{
public:
    [[nodiscard]] Date now() const override
    {
        if (broken)
            throw Error(440, "the clock stopped");
        return makeDate(2024, 3, 10, 14, 30);
    }
    bool broken = false;
};

/// A report on its way into a folder.
struct WritingBench : ReportBench {
    WritingBench() { show(daysOfOneRun(3)); }

    std::optional<Error> write() { return report.WriteDriftReport(folder.file("7Day.pdf")); }
    [[nodiscard]] cls7DayAnalyzerCal& run(std::int32_t day)
    {
        return *test.objDaysToDisplay[day]->DisplayedCals[0];
    }

    testing::TemporaryFolder folder;
};

const Lines kWritten = {"7Day.pdf"};

} // namespace

TEST(ReportFailure, AWrittenReportPostsNothing)
{
    WritingBench bench;
    EXPECT_EQ(bench.write(), std::nullopt);
    EXPECT_EQ(bench.folder.names(), kWritten);
    EXPECT_EQ(bench.messages->lines(), Lines());
}

TEST(ReportFailure, DaysNeverSizedLeaveNoFile)
{
    WritingBench bench;
    bench.test.objDaysToDisplay = DayArray();
    const auto failure = bench.write();
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->number(), 9);
    EXPECT_EQ(bench.messages->posted, (std::vector<std::pair<std::int32_t, std::string>>{
                                          {4, "DEval-011: 9, Subscript out of range"}}));
    EXPECT_EQ(bench.folder.names(), Lines());
}

TEST(ReportFailure, AbsentCalibrationsLeaveNoFile)
{
    WritingBench bench;
    bench.test.dictCals = nullptr;
    EXPECT_TRUE(bench.write().has_value());
    EXPECT_EQ(bench.messages->lines(),
              Lines{"DEval-011: 91, Object variable or With block variable not set"});
    EXPECT_EQ(bench.folder.names(), Lines());
}

TEST(ReportFailure, AtAnyCallOfTheDataLeavesNoFile)
{
    WritingBench undisturbed;
    undisturbed.site->calls.clear();
    undisturbed.write();
    const auto calls = undisturbed.site->calls;
    ASSERT_GE(calls.size(), 6U) << "the facility's name, and the decimals of the analyzer";
    for (std::size_t i = 0; i < calls.size(); ++i) {
        WritingBench bench;
        bench.site->calls.clear();
        bench.site->failure = [i](const std::string&, std::size_t at) {
            return at == i ? std::optional(Error(440, "the line is down")) : std::nullopt;
        };
        EXPECT_TRUE(bench.write().has_value()) << calls[i];
        EXPECT_EQ(bench.messages->lines(), Lines{"DEval-011: 440, the line is down"}) << calls[i];
        EXPECT_EQ(bench.folder.names(), Lines()) << calls[i];
    }
}

TEST(ReportFailure, AFileThatCannotBeWrittenIsTheReportsFailure)
{
    WritingBench bench;
    const auto failure = bench.report.WriteDriftReport(bench.folder.file("nowhere/7Day.pdf"));
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->number(), 76);
    EXPECT_EQ(bench.messages->lines(), Lines{"DEval-011: 76, Path not found"});
}

TEST(ReportFailure, WithoutAMessageSinkItIsSilent)
{
    WritingBench bench;
    bench.test.irm = nullptr;
    bench.test.objDaysToDisplay = DayArray();
    EXPECT_TRUE(bench.write().has_value());
    EXPECT_EQ(bench.messages->lines(), Lines());
}

TEST(ReportFailure, OfAHeadEndsTheHeadAndTheRowsGoOn)
{
    ReportBench bench;
    bench.show(daysOfOneRun(2));
    BreakingClock clock;
    DriftReport report(bench.test, bench.page, {bench.services, clock, bench.regional});
    clock.broken = true;
    const testing::TemporaryFolder folder;
    EXPECT_EQ(report.WriteDriftReport(folder.file("7Day.pdf")), std::nullopt);
    EXPECT_EQ(bench.messages->lines(), Lines{"DEval-012: 440, the clock stopped"});
    EXPECT_EQ(folder.names(), kWritten);
    const auto document = report.build();
    const ReportPage& page = *document->Pages().begin();
    EXPECT_EQ(page.Lines().Count(), 1) << "the rule over the footer";
    EXPECT_EQ(countTexts(page), 22U) << "two rows";
}

TEST(ReportFailure, OfARowLeavesAGapAndTheReportIsSaved)
{
    WritingBench bench;
    bench.run(1).InstrumentSpan = kNoNumber;
    EXPECT_EQ(bench.write(), std::nullopt);
    EXPECT_EQ(bench.messages->lines(), Lines{"DEval-013: 6, Overflow"});
    EXPECT_EQ(bench.folder.names(), kWritten);
    const auto document = bench.report.build();
    const ReportPage& page = *document->Pages().begin();
    EXPECT_EQ(textsAt(page, rowY(1)).size(), 11U);
    EXPECT_EQ(textsAt(page, rowY(2)), Lines{"1/2/2024 08:15"});
    EXPECT_EQ(textsAt(page, rowY(3)).size(), 11U);
}

TEST(ReportFailure, OfAFigureKeepsWhatStoodBeforeIt)
{
    WritingBench bench;
    bench.run(1).SpanCal->MeasuredValue = kNoNumber;
    EXPECT_EQ(bench.write(), std::nullopt);
    EXPECT_EQ(bench.messages->lines(), Lines{"DEval-013: 6, Overflow"});
    const auto document = bench.report.build();
    const Lines row = textsAt(*document->Pages().begin(), rowY(2));
    ASSERT_GE(row.size(), 7U);
    EXPECT_EQ(row[6], "160.0") << "the reference of the span gas";
}

TEST(ReportFailure, OfEachRowIsPostedByItself)
{
    WritingBench bench;
    for (const std::int32_t day : {0, 1, 2})
        bench.run(day).InstrumentSpan = kNoNumber;
    EXPECT_EQ(bench.write(), std::nullopt);
    EXPECT_EQ(bench.messages->lines(), Lines(3, "DEval-013: 6, Overflow"));
    EXPECT_EQ(bench.folder.names(), kWritten);
}

TEST(NumberedLines, BearThreeDigitsTheErrorAndSeverityFour)
{
    const auto messages = std::make_shared<Messages>();
    postLine(messages, NumberedLine::DrawSummaryText, Error(5));
    postLine(messages, NumberedLine::SwitchPage, Error(1234, "told otherwise"));
    EXPECT_EQ(messages->posted, (std::vector<std::pair<std::int32_t, std::string>>{
                                    {4, "DEval-014: 5, Invalid procedure call or argument"},
                                    {4, "DEval-001: 1234, told otherwise"}}));
}

} // namespace k7deval::test
