#include "report/PageLayout.h"

#include "support/PlacedText.h"

#include <gtest/gtest.h>

/// What the pages of all reports have in common, at positions worked by hand: a text of Helvetica
/// is 1.117 of its size high and as wide as the advances of its characters together.
namespace k7deval::test
{

namespace
{

class PageLayout : public ::testing::Test
{
protected:
    ReportTextItem& text(const std::string& text, int font = 5, float size = 10)
    {
        return layout::addText(page, text, font, size);
    }

    ReportDocument document;
    ReportPage& page = layout::addPage(document);
};

/// "Time" in Helvetica at 10 points: T 611, i 222, m 833 and e 556.
constexpr double kTimeWidth = 22.22;

} // namespace

TEST_F(PageLayout, APageIsALandscapeLetter)
{
    EXPECT_EQ(document.Pages().Count(), 1);
    EXPECT_EQ(page.Width(), 792);
    EXPECT_EQ(page.Height(), 612);
}

TEST_F(PageLayout, ATextHasItsFontAndSize)
{
    const ReportTextItem& item = text("Bethpage", 6, 14);
    EXPECT_EQ(page.TextItems().Count(), 1);
    EXPECT_EQ(item.Text(), "Bethpage");
    EXPECT_EQ(item.Font(), 6);
    EXPECT_EQ(item.Size(), 14);
    EXPECT_FALSE(item.readsUpward());
}

TEST_F(PageLayout, ATextIsCentredOrPutToEitherSideOfAnX)
{
    layout::centre(text("Time"), 100, 300);
    layout::alignLeft(text("Time"), 100, 310);
    layout::alignRight(text("Time"), 100, 320);
    expectText(page, {"Time", 5, 10, 100 - kTimeWidth / 2, 300});
    expectText(page, {"Time", 5, 10, 100, 310});
    expectText(page, {"Time", 5, 10, 100 - kTimeWidth, 320});
}

TEST_F(PageLayout, ARowHangsTwoPointsBelowTheOneAboveIt)
{
    const float y = layout::centreBelow(text("Time"), 100, 300);
    EXPECT_NEAR(y, 300 - 11.17 - 2, 1e-4);
    expectText(page, {"Time", 5, 10, 100 - kTimeWidth / 2, y});
    const float next = layout::centreBelow(text("Time", 6, 12), 100, y);
    EXPECT_NEAR(next, 286.83 - 13.404 - 2, 1e-4);
}

TEST_F(PageLayout, ARuleRunsFromTheLeftToTheRightEdge)
{
    layout::drawRule(page, 250.5F);
    ASSERT_EQ(page.Lines().Count(), 1);
    const ReportLine& rule = *page.Lines().begin();
    EXPECT_EQ(rule.X1(), 36);
    EXPECT_EQ(rule.X2(), 756);
    EXPECT_EQ(rule.Y1(), 250.5F);
    EXPECT_EQ(rule.Y2(), 250.5F);
    EXPECT_FALSE(rule.isDashed());
}

TEST_F(PageLayout, TheTextOfTheFooterHangsBelowItsRule)
{
    layout::drawFooterText(page, "Time");
    expectText(page, {"Time", 7, 8, 36, 49.1 - 8.936});
}

TEST_F(PageLayout, FacilityAndHeadingAreCentredAtTheTop)
{
    const float y = layout::drawTitle(page, "Time", "Time");
    EXPECT_NEAR(y, 563.05 - 13.404 - 2, 1e-4);
    // Bold: T 611, i 278, m 889 and e 556.
    expectText(page, {"Time", 6, 14, 392 - 2.334 * 14 / 2, 563.05});
    expectText(page, {"Time", 6, 12, 392 - 2.334 * 12 / 2, y});
    EXPECT_EQ(countTexts(page), 2U);
}

} // namespace k7deval::test
