#include "screen/Widget.h"

#include "screen/TestScreen.h"
#include "support/ScreenSnapshot.h"

#include <gtest/gtest.h>

#include <functional>
#include <ostream>

namespace k7deval::test
{

TEST(Widget, IsVisibleAndEnabledFromTheStart)
{
    const TestScreen screen;
    EXPECT_TRUE(screen.label.Visible());
    EXPECT_TRUE(screen.label.Enabled());
    EXPECT_TRUE(screen.label.isReachable());
}

TEST(Widget, ChangesAreToldOnlyWhenSomethingBecomesDifferent)
{
    TestScreen screen;
    const Raised changed(screen.label.Changed);
    screen.label.SetVisible(true);
    screen.label.SetEnabled(true);
    screen.label.setPlace({});
    EXPECT_EQ(changed.count, 0);
    screen.label.SetVisible(false);
    screen.label.SetEnabled(false);
    screen.label.setPlace({15, 30, 45, 60});
    EXPECT_EQ(changed.count, 3);
}

TEST(Widget, MovingKeepsTheSize)
{
    TestScreen screen;
    screen.label.setPlace({15, 30, 45, 60});
    screen.label.move(120, 240);
    EXPECT_EQ(screen.label.place(), (screen::Geometry{120, 240, 45, 60}));
}

/// What keeps a user from a widget, put on all of a page's widgets.
struct Obstacle {
    const char* what;
    std::function<void(TestScreen&)> put;
};

void PrintTo(const Obstacle& obstacle, std::ostream* out)
{
    *out << obstacle.what;
}

class AnUnreachableWidget : public ::testing::TestWithParam<Obstacle>
{
protected:
    AnUnreachableWidget()
    {
        auto& page = screen.page;
        page.list.addItem("entry");
        page.combo.addItem("entry");
        page.tree.addRoot({"key", "entry", {}, screen::color::kWindow, {}, {}});
        GetParam().put(screen);
    }

    TestScreen screen;
};

TEST_P(AnUnreachableWidget, TakesNoActionOfTheUser)
{
    auto& page = screen.page;
    const Raised events[] = {Raised(page.button.Clicked),      Raised(page.checkBox.Clicked),
                             Raised(page.firstOption.Clicked), Raised(page.textBox.TextChanged),
                             Raised(page.textBox.Validate),    Raised(page.list.Picked),
                             Raised(page.combo.Picked),        Raised(page.combo.TextChanged),
                             Raised(page.tree.NodeClicked)};
    const Snapshot before = snapshotOf(screen);
    page.button.Press();
    page.checkBox.Press();
    page.firstOption.Press();
    page.textBox.Type("abc");
    page.textBox.Leave();
    page.list.Pick(0);
    page.combo.Pick(0);
    page.combo.Type("typed");
    page.tree.Press("key");
    EXPECT_EQ(changesBetween(before, snapshotOf(screen)), std::vector<std::string>());
    for (const Raised& event : events)
        EXPECT_EQ(event.count, 0);
}

TEST_P(AnUnreachableWidget, IsStillSetByCode)
{
    auto& page = screen.page;
    const Raised checked(page.checkBox.Clicked);
    const Raised picked(page.list.Picked);
    page.checkBox.setChecked(true);
    page.list.SetListIndex(0);
    page.textBox.SetText("by code");
    EXPECT_TRUE(page.checkBox.isChecked());
    EXPECT_EQ(checked.count, 1);
    EXPECT_EQ(picked.count, 1);
    EXPECT_EQ(page.textBox.Text(), "by code");
}

void setEach(TestScreen& screen, void (screen::Widget::*set)(bool))
{
    for (screen::Widget* widget : screen.page.frame.Children())
        (widget->*set)(false);
}

INSTANTIATE_TEST_SUITE_P(
    Obstacles, AnUnreachableWidget,
    ::testing::Values(
        Obstacle{"Hidden", [](auto& screen) { setEach(screen, &screen::Widget::SetVisible); }},
        Obstacle{"Disabled", [](auto& screen) { setEach(screen, &screen::Widget::SetEnabled); }},
        Obstacle{"FrameHidden", [](auto& screen) { screen.page.frame.SetVisible(false); }},
        Obstacle{"FrameDisabled", [](auto& screen) { screen.page.frame.SetEnabled(false); }},
        Obstacle{"PageHidden", [](auto& screen) { screen.page.SetVisible(false); }},
        Obstacle{"PageDisabled", [](auto& screen) { screen.page.SetEnabled(false); }},
        Obstacle{"ScreenHidden", [](auto& screen) { screen.SetVisible(false); }},
        Obstacle{"ScreenDisabled", [](auto& screen) { screen.SetEnabled(false); }}),
    [](const auto& tested) { return tested.param.what; });

TEST(Widget, IsReachableAgainWhenTheObstacleIsGone)
{
    TestScreen screen;
    const Raised clicked(screen.page.button.Clicked);
    screen.page.SetVisible(false);
    screen.page.SetVisible(true);
    screen.page.button.Press();
    EXPECT_EQ(clicked.count, 1);
}

} // namespace k7deval::test
