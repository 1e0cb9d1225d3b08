#include "load/LoadReportRig.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

/// The chart of the load report.
namespace k7deval::test
{

namespace
{

constexpr double kLeft = 36;
constexpr double kBarWidth = 36; // 720 points in twenty.
constexpr double kHeight = kChartTop - kChartBottom;
constexpr double kTolerance = 0.002;
constexpr std::int32_t kGrey = 0xB4B4B4;

struct PlainLine {
    double x1;
    double y1;
    double x2;
    double y2;
    bool isDashed;
};

/// Whether the page has the line, drawn in either direction.
bool hasLine(const ReportPage& page, const PlainLine& line)
{
    const auto isNear = [](double a, double b) { return std::abs(a - b) < kTolerance; };
    return std::any_of(page.Lines().begin(), page.Lines().end(), [&](const ReportLine& drawn) {
        const bool isForward = isNear(drawn.X1(), line.x1) && isNear(drawn.Y1(), line.y1) &&
                               isNear(drawn.X2(), line.x2) && isNear(drawn.Y2(), line.y2);
        const bool isBackward = isNear(drawn.X1(), line.x2) && isNear(drawn.Y1(), line.y2) &&
                                isNear(drawn.X2(), line.x1) && isNear(drawn.Y2(), line.y1);
        return (isForward || isBackward) && (drawn.Style() == 3) == line.isDashed;
    });
}

void expectLinesOfAChart(const ReportPage& page)
{
    EXPECT_EQ(page.Lines().Count(), 6);
    EXPECT_TRUE(hasLine(page, {36, 49.1, 756, 49.1, false})) << "the rule of the footer";
    EXPECT_TRUE(hasLine(page, {36, kChartBottom, 756, kChartBottom, false})) << "the base";
    for (const double x : {36.0, 252.0, 468.0, 756.0})
        EXPECT_TRUE(hasLine(page, {x, kChartTop, x, kChartBottom, true})) << x;
}

void expectBar(const ReportRectangle& bar, int number, double height)
{
    EXPECT_NEAR(bar.X(), kLeft + (number - 1) * kBarWidth, kTolerance) << number;
    EXPECT_NEAR(bar.Width(), kBarWidth, kTolerance) << number;
    EXPECT_NEAR(bar.Y(), kChartBottom, kTolerance) << number;
    EXPECT_NEAR(bar.Height(), height, kTolerance) << number;
    EXPECT_EQ(bar.FillColor(), kGrey) << number;
    EXPECT_EQ(bar.LineColor(), kGrey) << number;
}

/// A count inside the top of its bar, or on top of it.
enum class At { Inside, Above };

void expectCount(const ReportTextItem& text, const std::string& count, int bar, double barHeight,
                 At place)
{
    EXPECT_EQ(text.Text(), count);
    EXPECT_EQ(text.Font(), 5);
    EXPECT_EQ(text.Size(), 10);
    EXPECT_EQ(text.Orientation(), 2);
    const double middle = kLeft + (bar - 0.5) * kBarWidth;
    EXPECT_NEAR(text.X(), middle + kBodyHeight / 2, kTolerance) << count;
    const double top = kChartBottom + barHeight;
    const double y = place == At::Inside ? top - widthOf(count) - 1 : top + 1;
    EXPECT_NEAR(text.Y(), y, kTolerance) << count;
}

} // namespace

TEST(LoadReportChart, StandsBetweenDashedMarks)
{
    ReportRig rig;
    rig.inBin(3, 12).calculate();
    expectLinesOfAChart(rig.page());
}

TEST(LoadReportChart, HasItsLinesWithoutAnyBar)
{
    ReportRig rig;
    rig.calculate();
    const ReportPage& page = rig.page();
    expectLinesOfAChart(page);
    EXPECT_TRUE(rectanglesOf(page).empty());
    EXPECT_TRUE(upwardTexts(page).empty());
}

TEST(LoadReportChart, HoursBeyondTheRangeMakeNoBar)
{
    ReportRig rig;
    rig.hours({1, 2, 150, 160}).calculate();
    const ReportPage& page = rig.page();
    expectLinesOfAChart(page);
    EXPECT_TRUE(rectanglesOf(page).empty());
}

TEST(LoadReportChart, HasABarForEveryBinRelativeToTheFullest)
{
    ReportRig rig;
    rig.inBin(1, 10).inBin(2, 5).inBin(12, 7).inBin(20, 1).calculate();
    const auto bars = rectanglesOf(rig.page());
    ASSERT_EQ(bars.size(), 20U);
    for (int number = 1; number <= 20; ++number) {
        const auto hours = rig.results().Bins.at(static_cast<std::size_t>(number));
        expectBar(bars[static_cast<std::size_t>(number) - 1], number, hours / 10.0 * kHeight);
    }
}

TEST(LoadReportChart, CountsTheHoursOfEveryBarThatHasAny)
{
    ReportRig rig;
    rig.inBin(1, 10).inBin(2, 5).inBin(12, 7).inBin(20, 1).calculate();
    const auto texts = upwardTexts(rig.page());
    ASSERT_EQ(texts.size(), 4U);
    expectCount(texts[0], "10", 1, kHeight, At::Inside);
    expectCount(texts[1], "5", 2, 0.5 * kHeight, At::Above);
    expectCount(texts[2], "7", 12, 0.7 * kHeight, At::Above);
    expectCount(texts[3], "1", 20, 0.1 * kHeight, At::Above);
}

TEST(LoadReportChart, ACountThatWouldReachOverTheChartStandsInItsBar)
{
    // Three digits are 16.68 points long; at 1000 hours to the top an hour is 0.363278 points.
    ReportRig rig;
    rig.specify("1/1/2024", "12/31/2024");
    rig.inBin(4, 954).inBin(5, 955).inBin(6, 1000).calculate();
    const auto texts = upwardTexts(rig.page());
    ASSERT_EQ(texts.size(), 3U);
    expectCount(texts[0], "954", 4, 0.954 * kHeight, At::Above);
    expectCount(texts[1], "955", 5, 0.955 * kHeight, At::Inside);
    expectCount(texts[2], "1000", 6, kHeight, At::Inside);
}

TEST(LoadReportChart, OneHourAmongThousandsIsCountedToo)
{
    ReportRig rig;
    rig.inBin(10, 1).inBin(11, 2000).calculate();
    const ReportPage& page = rig.page();
    expectBar(rectanglesOf(page)[9], 10, kHeight / 2000);
    expectCount(upwardTexts(page)[0], "1", 10, kHeight / 2000, At::Above);
}

} // namespace k7deval::test
