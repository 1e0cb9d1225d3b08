#include "foundation/ExpectError.h"
#include "sevenday/NumberedLine.h"
#include "sevenday/ReportRig.h"
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
struct WritingRig : ReportRig {
    WritingRig() { show(daysOfOneRun(3)); }

    std::optional<Error> write() { return report.WriteDriftReport(folder.file("7Day.pdf")); }
    [[nodiscard]] cls7DayAnalyzerCal& run(std::int32_t day)
    {
        return *test.objDaysToDisplay[day]->DisplayedCals[0];
    }

    test::TemporaryFolder folder;
};

const Lines kWritten = {"7Day.pdf"};

} // namespace

TEST(ReportFailure, AWrittenReportPostsNothing)
{
    WritingRig rig;
    EXPECT_EQ(rig.write(), std::nullopt);
    EXPECT_EQ(rig.folder.names(), kWritten);
    EXPECT_EQ(rig.messages->lines(), Lines());
}

struct ReportFailureCase {
    const char* what;
    void (*spoil)(WritingRig& rig);
    const char* file;
    int number;
    const char* line;
};

TEST(ReportFailure, LeavesNoFileAndIsSilentWithoutASink)
{
    const ReportFailureCase rows[] = {
        {"days never sized", [](auto& rig) { rig.test.objDaysToDisplay = DayArray(); }, "7Day.pdf",
         9, "DEval-011: 9, Subscript out of range"},
        {"no calibrations", [](auto& rig) { rig.test.dictCals = nullptr; }, "7Day.pdf", 91,
         "DEval-011: 91, Object variable or With block variable not set"},
        {"no such folder", [](auto&) {}, "nowhere/7Day.pdf", 76, "DEval-011: 76, Path not found"},
    };
    for (const ReportFailureCase& row : rows) {
        WritingRig rig;
        row.spoil(rig);
        const auto failure = rig.report.WriteDriftReport(rig.folder.file(row.file));
        ASSERT_TRUE(failure.has_value()) << row.what;
        EXPECT_EQ(failure->number(), row.number) << row.what;
        const std::vector<std::pair<std::int32_t, std::string>> posted = {{4, row.line}};
        EXPECT_EQ(rig.messages->posted, posted) << row.what;
        EXPECT_EQ(rig.folder.names(), Lines()) << row.what;
        rig.test.irm = nullptr;
        EXPECT_TRUE(rig.report.WriteDriftReport(rig.folder.file(row.file)).has_value());
        EXPECT_EQ(rig.messages->posted, posted) << row.what;
    }
}

TEST(ReportFailure, AtAnyCallOfTheDataLeavesNoFile)
{
    WritingRig undisturbed;
    undisturbed.site->calls.clear();
    undisturbed.write();
    const auto calls = undisturbed.site->calls;
    ASSERT_GE(calls.size(), 6U) << "the facility's name, and the decimals of the analyzer";
    for (std::size_t i = 0; i < calls.size(); ++i) {
        WritingRig rig;
        rig.site->calls.clear();
        rig.site->failure = [i](const std::string&, std::size_t at) {
            return at == i ? std::optional(Error(440, "the line is down")) : std::nullopt;
        };
        EXPECT_TRUE(rig.write().has_value()) << calls[i];
        EXPECT_EQ(rig.messages->lines(), Lines{"DEval-011: 440, the line is down"}) << calls[i];
        EXPECT_EQ(rig.folder.names(), Lines()) << calls[i];
    }
}

TEST(ReportFailure, OfAHeadEndsTheHeadAndTheRowsGoOn)
{
    ReportRig rig;
    rig.show(daysOfOneRun(2));
    BreakingClock clock;
    DriftReport report(rig.test, rig.page, {rig.services, clock, rig.regional});
    clock.broken = true;
    const test::TemporaryFolder folder;
    EXPECT_EQ(report.WriteDriftReport(folder.file("7Day.pdf")), std::nullopt);
    EXPECT_EQ(rig.messages->lines(), Lines{"DEval-012: 440, the clock stopped"});
    EXPECT_EQ(folder.names(), kWritten);
    const auto document = report.build();
    const ReportPage& page = *document->Pages().begin();
    EXPECT_EQ(page.Lines().Count(), 1) << "the rule over the footer";
    EXPECT_EQ(countTexts(page), 22U) << "two rows";
}

TEST(ReportFailure, OfARowLeavesAGapAndTheReportIsSaved)
{
    WritingRig rig;
    rig.run(1).InstrumentSpan = kNoNumber;
    EXPECT_EQ(rig.write(), std::nullopt);
    EXPECT_EQ(rig.messages->lines(), Lines{"DEval-013: 6, Overflow"});
    EXPECT_EQ(rig.folder.names(), kWritten);
    const auto document = rig.report.build();
    const ReportPage& page = *document->Pages().begin();
    EXPECT_EQ(textsAt(page, rowY(1)).size(), 11U);
    EXPECT_EQ(textsAt(page, rowY(2)), Lines{"1/2/2024 08:15"});
    EXPECT_EQ(textsAt(page, rowY(3)).size(), 11U);
}

TEST(ReportFailure, OfAFigureKeepsWhatStoodBeforeIt)
{
    WritingRig rig;
    rig.run(1).SpanCal->MeasuredValue = kNoNumber;
    EXPECT_EQ(rig.write(), std::nullopt);
    EXPECT_EQ(rig.messages->lines(), Lines{"DEval-013: 6, Overflow"});
    const auto document = rig.report.build();
    const Lines row = textsAt(*document->Pages().begin(), rowY(2));
    ASSERT_GE(row.size(), 7U);
    EXPECT_EQ(row[6], "160.0") << "the reference of the span gas";
}

TEST(ReportFailure, OfEachRowIsPostedByItself)
{
    WritingRig rig;
    for (const std::int32_t day : {0, 1, 2})
        rig.run(day).InstrumentSpan = kNoNumber;
    EXPECT_EQ(rig.write(), std::nullopt);
    EXPECT_EQ(rig.messages->lines(), Lines(3, "DEval-013: 6, Overflow"));
    EXPECT_EQ(rig.folder.names(), kWritten);
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
