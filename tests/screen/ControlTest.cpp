#include "screen/TestScreen.h"
#include "support/ScreenSnapshot.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace k7deval::test
{

namespace
{

std::vector<std::string> namesOf(const std::vector<screen::Widget*>& widgets)
{
    std::vector<std::string> names;
    names.reserve(widgets.size());
    for (const screen::Widget* widget : widgets)
        names.push_back(widget->Name());
    return names;
}

std::vector<std::string> namesOf(const PropertyList& properties)
{
    std::vector<std::string> names;
    for (const auto& property : properties)
        names.push_back(property.name);
    return names;
}

/// The properties that every widget has.
const std::vector<std::string> kCommon = {"Visible", "Enabled", "Left", "Top", "Width", "Height"};

std::vector<std::string> ownOf(const screen::Widget& widget)
{
    std::vector<std::string> names = namesOf(widget.Properties());
    EXPECT_TRUE(std::equal(kCommon.begin(), kCommon.end(), names.begin())) << widget.Name();
    names.erase(names.begin(), names.begin() + static_cast<std::ptrdiff_t>(kCommon.size()));
    return names;
}

using Names = std::vector<std::string>;

} // namespace

TEST(Control, ListsAPageAsOneWidget)
{
    EXPECT_EQ(namesOf(TestScreen().widgets()), (Names{"page", "label"}));
}

TEST(Control, ListsTheWidgetsOfAFrameBehindTheFrame)
{
    EXPECT_EQ(namesOf(TestScreen().page.widgets()),
              (Names{"frame", "button", "checkBox", "firstOption", "secondOption", "textBox",
                     "list", "combo", "tree"}));
}

TEST(Control, FindsAWidgetByItsNameInFramesButNotInPages)
{
    const TestScreen screen;
    EXPECT_EQ(screen.Find("label"), &screen.label);
    EXPECT_EQ(screen.Find("page"), &screen.page);
    EXPECT_EQ(screen.Find("combo"), nullptr);
    EXPECT_EQ(screen.page.Find("combo"), &screen.page.combo);
    EXPECT_EQ(screen.page.Find("Combo"), nullptr);
    EXPECT_EQ(screen.page.Find(""), nullptr);
}

TEST(Control, EachKindOfWidgetListsAllThatStandsInIt)
{
    const TestScreen screen;
    const auto& page = screen.page;
    EXPECT_EQ(ownOf(page.frame), (Names{"Caption"}));
    EXPECT_EQ(ownOf(page.button), (Names{"Caption"}));
    EXPECT_EQ(ownOf(page.checkBox), (Names{"Caption", "Value"}));
    EXPECT_EQ(ownOf(page.firstOption), (Names{"Caption", "Value"}));
    EXPECT_EQ(ownOf(page.textBox), (Names{"Text", "MaxLength"}));
    EXPECT_EQ(ownOf(page.combo), (Names{"List", "ItemData", "ListIndex", "Text"}));
    EXPECT_EQ(ownOf(page.tree), (Names{"BackColor", "Nodes", "SelectedItem"}));
    EXPECT_EQ(ownOf(screen.label),
              (Names{"Caption", "ForeColor", "BackColor", "Bold", "ToolTipText", "Alignment"}));
    EXPECT_EQ(ownOf(screen), (Names{"MousePointer", "Widgets"}));
}

TEST(Control, TheListingOfAScreenReachesTheWidgetsOfItsPages)
{
    TestScreen screen;
    screen.SetMousePointer(screen::MousePointer::Hourglass);
    screen.label.SetForeColor(screen::color::kRed);
    screen.page.SetVisible(false);
    screen.page.move(120, 240);
    screen.page.checkBox.setChecked(true);
    screen.page.combo.addItem("Unit 1", 101);
    screen.page.combo.SetListIndex(0);
    screen.page.tree.addRoot({"k", "t", "Pass", screen::color::kWhite, {}, {}});
    screen.page.tree.SetSelectedItem(*screen.page.tree.Find("k"));
    const Snapshot all = snapshotOf(screen);
    EXPECT_EQ(all.at("MousePointer"), "11");
    EXPECT_EQ(all.at("label.Kind"), "\"Label\"");
    EXPECT_EQ(all.at("label.ForeColor"), "\"0x000000FF\"");
    EXPECT_EQ(all.at("page.Kind"), "\"Control\"");
    EXPECT_EQ(all.at("page.Visible"), "False");
    EXPECT_EQ(all.at("page.Left"), "120");
    EXPECT_EQ(all.at("page.Top"), "240");
    EXPECT_EQ(all.at("page.frame.Caption"), "\"Group\"");
    EXPECT_EQ(all.at("page.checkBox.Value"), "1");
    EXPECT_EQ(all.at("page.combo.List"), "[\"Unit 1\"]");
    EXPECT_EQ(all.at("page.combo.ItemData"), "[101]");
    EXPECT_EQ(all.at("page.combo.Text"), "\"Unit 1\"");
    EXPECT_EQ(all.at("page.tree.Nodes"),
              "[[Key=\"k\", Text=\"t\", Image=\"Pass\", BackColor=\"0x00FFFFFF\", Children=[]]]");
    EXPECT_EQ(all.at("page.tree.SelectedItem"), "\"k\"");
}

TEST(Control, TheMousePointerIsToldWhenItChanges)
{
    TestScreen screen;
    EXPECT_EQ(screen.MousePointer(), screen::MousePointer::Default);
    const Raised changed(screen.Changed);
    screen.SetMousePointer(screen::MousePointer::Hourglass);
    screen.SetMousePointer(screen::MousePointer::Hourglass);
    EXPECT_EQ(changed.count, 1);
}

} // namespace k7deval::test
