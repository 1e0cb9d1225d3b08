#include "screen/Line.h"

#include "screen/TestScreen.h"
#include "support/ScreenSnapshot.h"

#include <gtest/gtest.h>

namespace k7deval::test
{

TEST(Line, KeepsItsEndsAndIsSolidUnlessItIsDotted)
{
    TestScreen screen;
    const screen::Line solid(screen.page.frame, "solid", {120, 630, 121, 2700});
    const screen::Line dotted(screen.page.frame, "dotted", {120, 630, 121, 2700},
                              screen::LineStyle::Dotted);
    EXPECT_EQ(solid.X1(), 120);
    EXPECT_EQ(solid.Y1(), 630);
    EXPECT_EQ(solid.X2(), 121);
    EXPECT_EQ(solid.Y2(), 2700);
    EXPECT_EQ(solid.Style(), screen::LineStyle::Solid);
    EXPECT_EQ(dotted.Style(), screen::LineStyle::Dotted);
}

TEST(Line, ItsPlaceIsTheBoxBetweenItsEnds)
{
    TestScreen screen;
    const screen::Line across(screen, "across", {120, 2700, 5895, 2700});
    EXPECT_EQ(across.place(), (screen::Geometry{120, 2700, 5775, 0}));
    const screen::Line upward(screen, "upward", {500, 2700, 120, 630});
    EXPECT_EQ(upward.place(), (screen::Geometry{120, 630, 380, 2070}));
    EXPECT_EQ(upward.X1(), 500) << "the ends stay in their order";
    EXPECT_EQ(upward.Y1(), 2700);
}

TEST(Line, ListsAllThatAViewNeedsToDrawIt)
{
    TestScreen screen;
    const screen::Line line(screen.page.frame, "line", {1, 2, 3, 4}, screen::LineStyle::Dotted);
    EXPECT_EQ(line.kind(), "Line");
    const Snapshot texts = snapshotOf(screen.page);
    EXPECT_EQ(texts.at("line.X1"), "1");
    EXPECT_EQ(texts.at("line.Y1"), "2");
    EXPECT_EQ(texts.at("line.X2"), "3");
    EXPECT_EQ(texts.at("line.Y2"), "4");
    EXPECT_EQ(texts.at("line.Style"), "\"Dotted\"");
}

TEST(Line, BelongsToTheFrameItWasMadeIn)
{
    TestScreen screen;
    screen::Line line(screen.page.frame, "line", {0, 0, 1, 1});
    EXPECT_EQ(screen.page.Find("line"), &line);
    screen.page.frame.SetVisible(false);
    EXPECT_FALSE(line.isReachable());
}

} // namespace k7deval::test
