#include "histogram/HistogramPage.h"

#include "support/PlacedText.h"

#include <gtest/gtest.h>

/// The histogram of hours on paper, in points worked by hand: a digit of Helvetica at 10 points is
/// 5.56 wide.
namespace k7deval::test
{

namespace
{

using histogram::HourBins;

constexpr histogram::InnerMarks kMarks{180, 612};
constexpr float kBottom = 100;
constexpr float kTop = 400;
constexpr double kDigit = 5.56;

class HistogramPage : public ::testing::Test
{
protected:
    void draw(const HourBins& bins) { histogram::drawBarChart(page, kMarks, bins, kBottom, kTop); }

    [[nodiscard]] const ReportRectangle& bar(int number) const
    {
        return *std::next(page.Rectangles().begin(), number - 1);
    }
    [[nodiscard]] const ReportLine& line(int index) const
    {
        return *std::next(page.Lines().begin(), index);
    }

    ReportDocument document;
    ReportPage& page = layout::addPage(document);
};

HourBins hoursInBins(std::initializer_list<std::pair<int, std::int32_t>> hours)
{
    HourBins bins{};
    for (const auto& [bin, count] : hours)
        bins[static_cast<std::size_t>(bin)] = count;
    return bins;
}

void expectLine(const ReportLine& line, double x1, double y1, double x2, double y2)
{
    EXPECT_NEAR(line.X1(), x1, 1e-3);
    EXPECT_NEAR(line.Y1(), y1, 1e-3);
    EXPECT_NEAR(line.X2(), x2, 1e-3);
    EXPECT_NEAR(line.Y2(), y2, 1e-3);
}

} // namespace

TEST_F(HistogramPage, TheHeadIsFourCentredRowsOverAFooterThatNamesTheReport)
{
    const float y = histogram::drawHead(
        page,
        {.facility = "0000", .heading = "000", .period = "00", .analyzed = "0", .printed = "now"});
    EXPECT_NEAR(y, 563.05 - 3 * kHeadingRow, 1e-3);
    expectText(page, {"000 now", 7, 8, 36, kFooterY});
    expectText(page, {"0000", 6, 14, 392 - 2 * 0.556 * 14, 563.05});
    expectText(page, {"000", 6, 12, 392 - 1.5 * 0.556 * 12, 563.05 - kHeadingRow});
    expectText(page, {"00", 6, 12, 392 - 0.556 * 12, 563.05 - 2 * kHeadingRow});
    expectText(page, {"0", 6, 12, 392 - 0.5 * 0.556 * 12, y});
    EXPECT_EQ(countTexts(page), 5U);
    ASSERT_EQ(page.Lines().Count(), 1);
    expectLine(line(0), 36, 49.1, 756, 49.1);
}

TEST_F(HistogramPage, ThePercentsStandOverTheHoursOfTheirLevels)
{
    const float top = histogram::drawLevels(
        page, {{{108, "11", "1"}, {396, "2222", "2"}, {684, "3", "333"}}}, 520);
    const double percents = 520 - 2 * kBodyHeight - 2;
    const double hours = percents - kBodyRow;
    EXPECT_NEAR(top, hours - kBodyRow, 1e-3);
    expectText(page, {"11", 5, 10, 108 - kDigit, percents});
    expectText(page, {"2222", 5, 10, 396 - 2 * kDigit, percents});
    expectText(page, {"3", 5, 10, 684 - kDigit / 2, percents});
    expectText(page, {"1", 5, 10, 108 - kDigit / 2, hours});
    expectText(page, {"2", 5, 10, 396 - kDigit / 2, hours});
    expectText(page, {"333", 5, 10, 684 - 1.5 * kDigit, hours});
    EXPECT_EQ(countTexts(page), 6U);
}

TEST_F(HistogramPage, TheScaleClimbsInTwoRowsUnderItsMarks)
{
    const float bottom =
        histogram::drawScale(page, kMarks, {{{"0", "11", "222", "33"}, {"5", "6", "7", "8"}}}, 90);
    const double second = 90 + kBodyRow;
    EXPECT_NEAR(bottom, second + kBodyRow, 1e-3);
    expectText(page, {"0", 5, 10, 36, 90});
    expectText(page, {"11", 5, 10, 180 - kDigit, 90});
    expectText(page, {"222", 5, 10, 612 - 1.5 * kDigit, 90});
    expectText(page, {"33", 5, 10, 756 - 2 * kDigit, 90});
    expectText(page, {"5", 5, 10, 36, second});
    expectText(page, {"6", 5, 10, 180 - kDigit / 2, second});
    expectText(page, {"7", 5, 10, 612 - kDigit / 2, second});
    expectText(page, {"8", 5, 10, 756 - kDigit, second});
    EXPECT_EQ(countTexts(page), 8U);
}

TEST_F(HistogramPage, WithoutHoursTheGridStandsAlone)
{
    draw({});
    EXPECT_EQ(page.Rectangles().Count(), 0);
    EXPECT_EQ(countTexts(page), 0U);
    ASSERT_EQ(page.Lines().Count(), 5);
    expectLine(line(0), 36, kBottom, 756, kBottom);
    EXPECT_FALSE(line(0).isDashed());
    const double marks[] = {36, 180, 612, 756};
    for (int mark = 0; mark < 4; ++mark) {
        expectLine(line(mark + 1), marks[mark], kTop, marks[mark], kBottom);
        EXPECT_EQ(line(mark + 1).Style(), 3);
    }
}

TEST_F(HistogramPage, HoursAtIndexZeroAreNoBar)
{
    draw(hoursInBins({{0, 5}}));
    EXPECT_EQ(page.Rectangles().Count(), 0);
}

TEST_F(HistogramPage, EachOfTwentyBarsHasItsPlaceAlsoOneWithoutHours)
{
    draw(hoursInBins({{5, 30}, {20, 120}}));
    ASSERT_EQ(page.Rectangles().Count(), 20);
    EXPECT_EQ(page.Lines().Count(), 5);
    for (int number = 1; number <= 20; ++number) {
        const ReportRectangle& box = bar(number);
        EXPECT_NEAR(box.X(), number * 36, 1e-3);
        EXPECT_NEAR(box.Width(), 36, 1e-3);
        EXPECT_EQ(box.Y(), kBottom);
        EXPECT_EQ(box.FillColor(), 0xB4B4B4);
        EXPECT_EQ(box.LineColor(), 0xB4B4B4);
    }
    EXPECT_EQ(bar(1).Height(), 0);
    EXPECT_NEAR(bar(5).Height(), 75, 1e-3);
    EXPECT_NEAR(bar(20).Height(), 300, 1e-3);
}

TEST_F(HistogramPage, TheHoursStandUprightAboveTheirBarOrInsideWhereThereIsNoRoom)
{
    draw(hoursInBins({{5, 30}, {20, 120}}));
    ASSERT_EQ(countTexts(page), 2U);
    for (const ReportTextItem& item : page.TextItems())
        EXPECT_EQ(item.Orientation(), 2);
    expectText(page, {"30", 5, 10, 5 * 36 + 18 + kBodyHeight / 2, kBottom + 75 + 1});
    expectText(page, {"120", 5, 10, 20 * 36 + 18 + kBodyHeight / 2, kTop - 3 * kDigit - 1});
}

TEST_F(HistogramPage, HoursThatFitBelowTheTopStandAboveTheirBar)
{
    // 288 of 300 points are filled: two digits of 5.56 fit into the 12 left, three don't.
    draw(hoursInBins({{1, 96}, {2, 100}}));
    expectText(page, {"96", 5, 10, 36 + 18 + kBodyHeight / 2, kBottom + 288 + 1});
    ReportDocument other;
    ReportPage& fuller = layout::addPage(other);
    histogram::drawBarChart(fuller, kMarks, hoursInBins({{1, 960}, {2, 1000}}), kBottom, kTop);
    expectText(fuller, {"960", 5, 10, 36 + 18 + kBodyHeight / 2, kBottom + 288 - 3 * kDigit - 1});
}

TEST_F(HistogramPage, TheHoursAreTakenAsSingles)
{
    draw(hoursInBins({{1, 16'777'217}, {2, 2'000'000'000}}));
    EXPECT_NEAR(bar(1).Height(), 300.0 * 16'777'216 / 2'000'000'000, 1e-5);
    EXPECT_EQ(page.TextItems().begin()->Text(), "16777217");
}

} // namespace k7deval::test
