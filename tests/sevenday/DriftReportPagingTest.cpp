#include "sevenday/ReportRig.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <utility>

/// Which rows the report has, where its pages break, and where the outcome stands.
///
/// Under the head at 506.136 a row takes 13.17. With an outcome the rows keep 4 of them free, so
/// the break comes behind the row that gets below 48 + 52.68 = 100.68: the 31st at 97.866. Without
/// one it comes behind the 35th at 45.186.
namespace k7deval::test
{

namespace
{

constexpr int kRowsAboveAnOutcome = 31;
constexpr int kRowsAlone = 35;
constexpr const char* kOutcome = "The 7-Day Drift Test has been passed.";

/// A report of so many rows.
struct PagingRig : ReportRig {
    explicit PagingRig(int rows, const std::string& summary = kOutcome)
    {
        test.strSummary = summary;
        show(daysOfOneRun(rows));
        build();
    }

    /// The number that a page bears; empty for none.
    std::string numberOf(std::size_t index)
    {
        for (const std::string& text : textsAt(sheet(index), kFooterY)) {
            if (text.starts_with("Page"))
                return text;
        }
        return "";
    }

    [[nodiscard]] std::size_t rowsOn(std::size_t index)
    {
        std::size_t rows = 0;
        for (const ReportTextItem& item : sheet(index).TextItems())
            rows += item.Text() == "On-Line" ? 1U : 0U;
        return rows;
    }
};

Lines firstTextsOfRows(ReportRig& rig, int rows)
{
    Lines texts;
    for (int n = 1; n <= rows; ++n) {
        const Lines row = textsAt(rig.sheet(0), rowY(n));
        texts.push_back(row.empty() ? "nothing" : row.front());
    }
    return texts;
}

} // namespace

struct PagesCase {
    const char* what;
    int rows;
    const char* summary;
    std::vector<std::size_t> rowsOnPages;
};

TEST(ReportPaging, BreaksBehindTheRowThatCrossesTheLimit)
{
    const PagesCase rows[] = {
        {"a single row", 1, kOutcome, {1}},
        {"a few rows", 7, kOutcome, {7}},
        {"a row less than a page", kRowsAboveAnOutcome - 1, kOutcome, {30}},
        {"a page of rows", kRowsAboveAnOutcome, kOutcome, {31, 0}},
        {"two pages and a row", 2 * kRowsAboveAnOutcome + 1, kOutcome, {31, 31, 1}},
        {"a row less than a page without an outcome", kRowsAlone - 1, "", {34}},
        {"a row more than a page without an outcome", kRowsAlone + 1, "", {35, 1}},
    };
    for (const PagesCase& row : rows) {
        SCOPED_TRACE(row.what);
        PagingRig rig(row.rows, row.summary);
        ASSERT_EQ(rig.countPages(), row.rowsOnPages.size());
        for (std::size_t page = 0; page < row.rowsOnPages.size(); ++page) {
            EXPECT_EQ(rig.rowsOn(page), row.rowsOnPages[page]);
            EXPECT_EQ(rig.numberOf(page),
                      rig.countPages() == 1 ? "" : "Page " + std::to_string(page + 1));
        }
    }
}

TEST(ReportPaging, TheRowBeforeTheLimitLeavesTheReportOnOnePage)
{
    PagingRig rig(kRowsAboveAnOutcome - 1);
    EXPECT_EQ(rig.countPages(), 1U);
    // The 30th row is at 111.036; one row is left free, and the outcome hangs below it.
    expectText(rig.sheet(0), {kOutcome, 5, 10, 36, 111.036 - 2 * kBodyRow});
}

TEST(ReportPaging, TheRowThatCrossesTheLimitStaysAndThePageBreaksBehindIt)
{
    PagingRig rig(kRowsAboveAnOutcome);
    ASSERT_EQ(rig.countPages(), 2U);
    EXPECT_EQ(rig.rowsOn(0), 31U);
    EXPECT_EQ(textsAt(rig.sheet(0), 97.866).front(), "1/31/2024 08:15");
    EXPECT_EQ(rig.rowsOn(1), 0U);
    expectText(rig.sheet(1), {kOutcome, 5, 10, 36, kHeadRule - 2 * kBodyRow});
}

TEST(ReportPaging, ANumberStandsAtTheRightMargin)
{
    // "Page 1" is 3169 thousandths wide: P 667, a 556, g 556, e 556, blank 278, 1 556.
    PagingRig rig(kRowsAboveAnOutcome);
    expectText(rig.sheet(0), {"Page 1", 7, 8, 756 - 25.352, kFooterY});
    expectText(rig.sheet(1), {"Page 2", 7, 8, 756 - 25.352, kFooterY});
}

TEST(ReportPaging, WithoutAnOutcomeTheRowsRunDownToTheFooter)
{
    PagingRig rig(kRowsAlone + 1, "");
    ASSERT_EQ(rig.countPages(), 2U);
    EXPECT_EQ(rig.rowsOn(0), 35U);
    EXPECT_EQ(textsAt(rig.sheet(0), 45.186).front(), "2/4/2024 08:15");
    EXPECT_EQ(rig.rowsOn(1), 1U);
    EXPECT_EQ(countTexts(rig.sheet(1)), 24U + 11U + 1U) << "no outcome";
}

TEST(ReportRows, TheFirstDayShowsOneOfItsRunsAndLaterDaysAll)
{
    ReportRig rig;
    const auto day = [](int number) {
        const Date date = makeDate(2024, 3, number);
        return dayWith(date, {runAt(makeDate(2024, 3, number, 6, 0)),
                              runAt(makeDate(2024, 3, number, 12, 0)),
                              runAt(makeDate(2024, 3, number, 18, 0))});
    };
    rig.show({day(1), day(2)});
    EXPECT_EQ(firstTextsOfRows(rig, 5), (Lines{"3/1/2024 06:00", "3/2/2024 06:00", "3/2/2024 12:00",
                                               "3/2/2024 18:00", "nothing"}));
}

TEST(ReportRows, DaysWithoutDisplayedRunsTakeNoRow)
{
    ReportRig rig;
    rig.show({dayWith(makeDate(2024, 3, 1), {}),
              dayWith(makeDate(2024, 3, 2), {runAt(makeDate(2024, 3, 2, 8, 15))}),
              dayWith(makeDate(2024, 3, 3), {}),
              dayWith(makeDate(2024, 3, 4), {runAt(makeDate(2024, 3, 4, 8, 15))})});
    EXPECT_EQ(firstTextsOfRows(rig, 3), (Lines{"3/2/2024 08:15", "3/4/2024 08:15", "nothing"}));
}

TEST(ReportRows, EachRowIsShadedByItself)
{
    ReportRig rig;
    std::vector<CalDay> days = daysOfOneRun(4);
    days[0]->DisplayedCals[0]->IsUsedIn7Day = false;
    days[2]->DisplayedCals[0]->IsUsedIn7Day = false;
    rig.show(days);
    const auto& bands = rig.sheet(0).Rectangles();
    ASSERT_EQ(bands.Count(), 2);
    EXPECT_NEAR(bands.begin()->Y(), rowY(1) - 1, 0.01);
    EXPECT_NEAR(std::next(bands.begin())->Y(), rowY(3) - 1, 0.01);
    EXPECT_NEAR(std::next(bands.begin())->Height(), 10.17, 0.01);
}

TEST(ReportRows, WithNothingCountedTheDisplayOfDriftCalsHasNoRows)
{
    ReportRig rig;
    rig.show(daysOfOneRun(2));
    rig.page.optShowDriftTestCals.Press();
    EXPECT_EQ(countTexts(rig.sheet(0)), 24U);
    rig.test.lngFailedCals = 1;
    rig.build();
    EXPECT_EQ(countTexts(rig.sheet(0)), 24U + 22U);
    rig.test.lngFailedCals = 0;
    rig.page.optShowInterval.Press();
    rig.build();
    EXPECT_EQ(countTexts(rig.sheet(0)), 24U + 22U) << "the other displays show them";
}

TEST(ReportRows, WithoutADisplayedRunTheOutcomeStandsAQuarterOfTheWayDown)
{
    ReportRig rig;
    rig.show({dayWith(makeDate(2024, 3, 1), {}), dayWith(makeDate(2024, 3, 2), {})});
    const CalRun hidden = runAt(makeDate(2024, 3, 2, 8, 15));
    rig.test.dictCals->Add(minuteKey(hidden->CalTime), hidden);
    rig.test.strSummary = kOutcome;
    expectText(rig.sheet(0), {kOutcome, 5, 10, 36, kHeadRule - kHeadRule / 4 - kBodyRow});
    EXPECT_EQ(countTexts(rig.sheet(0)), 25U);
}

TEST(ReportRows, AnEmptyListOfDaysWritesNoFileAndPostsNothing)
{
    ReportRig rig;
    rig.show(daysOfOneRun(1));
    rig.test.objDaysToDisplay.resizeKeeping(-1);
    const test::TemporaryFolder folder;
    EXPECT_EQ(rig.report.WriteDriftReport(folder.file("7Day.pdf")), std::nullopt);
    EXPECT_EQ(folder.names(), Lines());
    EXPECT_EQ(rig.messages->lines(), Lines());
}

struct OutcomeCase {
    const char* what;
    std::string summary;
    std::vector<std::pair<std::string, double>> texts; ///< Each with its place, the first 492.966.
};

TEST(ReportOutcome, IsSplitByItsFirstLineBreakWithAnEmptyLineBetween)
{
    const double first = 492.966;
    const double second = first - 2 * kBodyRow;
    const OutcomeCase rows[] = {
        {"a line break", "first\r\nsecond", {{"first", first}, {"second", second}}},
        {"two line breaks",
         "first\r\nsecond\r\nthird",
         {{"first", first}, {"second\r\nthird", second}}},
        {"a line feed alone", "first\nsecond\r", {{"first\nsecond\r", first}}},
        {"wider than the page", std::string(400, 'W'), {{std::string(400, 'W'), first}}},
    };
    for (const OutcomeCase& row : rows) {
        SCOPED_TRACE(row.what);
        ReportRig rig;
        rig.test.strSummary = row.summary;
        for (const auto& [text, y] : row.texts)
            expectText(rig.sheet(0), {text, 5, 10, 36, y});
        EXPECT_EQ(countTexts(rig.sheet(0)), 24U + row.texts.size());
    }
}

} // namespace k7deval::test
