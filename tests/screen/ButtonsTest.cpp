#include "screen/Buttons.h"

#include "screen/TestScreen.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace k7deval::test
{

TEST(Button, APressRunsItsRule)
{
    TestScreen screen;
    const Raised clicked(screen.page.button.Clicked);
    screen.page.button.Press();
    screen.page.button.Press();
    EXPECT_EQ(clicked.count, 2);
}

TEST(Button, BearsItsCaption)
{
    EXPECT_EQ(TestScreen().page.button.Caption(), "Press me");
}

TEST(CheckBox, IsNotCheckedFromTheStart)
{
    EXPECT_EQ(TestScreen().page.checkBox.Value(), 0);
}

TEST(CheckBox, APressTogglesItAndRunsItsRuleEachTime)
{
    TestScreen screen;
    auto& box = screen.page.checkBox;
    const Raised clicked(box.Clicked);
    box.Press();
    EXPECT_TRUE(box.isChecked());
    EXPECT_EQ(box.Value(), 1);
    box.Press();
    EXPECT_FALSE(box.isChecked());
    EXPECT_EQ(clicked.count, 2);
}

TEST(CheckBox, SetByCodeItRunsItsRuleOnlyWhenItsValueChanges)
{
    TestScreen screen;
    auto& box = screen.page.checkBox;
    const Raised clicked(box.Clicked);
    box.setChecked(false);
    EXPECT_EQ(clicked.count, 0);
    box.setChecked(true);
    box.setChecked(true);
    EXPECT_EQ(clicked.count, 1);
    box.setChecked(false);
    EXPECT_EQ(clicked.count, 2);
}

TEST(CheckBox, HasItsNewValueWhenItsRuleRuns)
{
    TestScreen screen;
    auto& box = screen.page.checkBox;
    bool seen = false;
    box.Clicked.Connect([&] { seen = box.isChecked(); });
    box.Press();
    EXPECT_TRUE(seen);
}

TEST(OptionButton, NoneOfAGroupIsSelectedFromTheStart)
{
    const TestScreen screen;
    EXPECT_FALSE(screen.page.firstOption.isSelected());
    EXPECT_FALSE(screen.page.secondOption.isSelected());
}

TEST(OptionButton, RunsItsRuleOnlyWhenItBecomesSelected)
{
    TestScreen screen;
    auto& first = screen.page.firstOption;
    auto& second = screen.page.secondOption;
    const Raised firstClicked(first.Clicked);
    const Raised secondClicked(second.Clicked);
    first.Press();
    first.Press();
    first.setSelected(true);
    EXPECT_EQ(firstClicked.count, 1);
    second.setSelected(true);
    EXPECT_EQ(secondClicked.count, 1);
    EXPECT_EQ(firstClicked.count, 1);
    first.Press();
    EXPECT_EQ(firstClicked.count, 2);
}

TEST(OptionButton, SelectingOneDeselectsTheOthersOfItsGroup)
{
    TestScreen screen;
    auto& page = screen.page;
    screen::OptionGroup otherGroup;
    screen::OptionButton stranger(screen, otherGroup, "stranger", "");
    stranger.Press();
    page.firstOption.Press();
    page.secondOption.Press();
    EXPECT_FALSE(page.firstOption.isSelected());
    EXPECT_TRUE(page.secondOption.isSelected());
    EXPECT_TRUE(stranger.isSelected());
}

TEST(OptionButton, DeselectingItRunsNothing)
{
    TestScreen screen;
    auto& page = screen.page;
    page.firstOption.Press();
    const Raised first(page.firstOption.Clicked);
    const Raised second(page.secondOption.Clicked);
    page.firstOption.setSelected(false);
    EXPECT_FALSE(page.firstOption.isSelected());
    EXPECT_FALSE(page.secondOption.isSelected());
    EXPECT_EQ(first.count + second.count, 0);
}

TEST(OptionButton, WhoFollowsAGroupNeverSeesTwoSelected)
{
    TestScreen screen;
    auto& page = screen.page;
    page.firstOption.Press();
    int most = 0;
    const auto look = [&] {
        const int selected = static_cast<int>(page.firstOption.isSelected()) +
                             static_cast<int>(page.secondOption.isSelected());
        most = std::max(most, selected);
    };
    page.firstOption.Changed.Connect(look);
    page.secondOption.Changed.Connect(look);
    page.secondOption.Clicked.Connect(look);
    page.secondOption.Press();
    EXPECT_EQ(most, 1);
}

} // namespace k7deval::test
