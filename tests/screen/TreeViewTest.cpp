#include "screen/TreeView.h"

#include "foundation/ExpectError.h"
#include "screen/TestScreen.h"

#include <gtest/gtest.h>

namespace k7deval::test
{

namespace
{

screen::TreeNode entry(const std::string& key)
{
    return {key, key, {}, screen::color::kWindow, {}, {}};
}

/// The entries "day" with the child "run", and "other day".
class TreeView : public ::testing::Test
{
protected:
    TreeView()
    {
        tree.addRoot(entry("day"));
        tree.addChild("day", entry("run"));
        tree.addRoot(entry("other day"));
    }

    TestScreen screen;
    screen::TreeView& tree = screen.page.tree;
};

} // namespace

TEST_F(TreeView, EntriesStandInTheOrderInWhichTheyWereAdded)
{
    ASSERT_EQ(tree.Nodes().size(), 2U);
    EXPECT_EQ(tree.Nodes()[0]->Key, "day");
    EXPECT_EQ(tree.Nodes()[1]->Key, "other day");
    ASSERT_EQ(tree.Nodes()[0]->Children.size(), 1U);
    EXPECT_EQ(tree.Nodes()[0]->Children[0]->Key, "run");
}

TEST_F(TreeView, KeysAreUniqueInTheWholeTree)
{
    EXPECT_EQ(errorOf([&] { return tree.addRoot(entry("day")), 0; }), 457);
    EXPECT_EQ(errorOf([&] { return tree.addRoot(entry("run")), 0; }), 457);
    EXPECT_EQ(errorOf([&] { return tree.addChild("other day", entry("run")), 0; }), 457);
    EXPECT_EQ(errorOf([&] { return tree.addChild("day", entry("day")), 0; }), 457);
    EXPECT_EQ(tree.Nodes().size(), 2U);
    EXPECT_EQ(tree.Find("other day")->Children.size(), 0U);
}

TEST_F(TreeView, AnEntryNeedsItsParent)
{
    EXPECT_EQ(errorOf([&] { return tree.addChild("no such day", entry("new")), 0; }), 5);
    EXPECT_EQ(tree.Find("new"), nullptr);
}

TEST_F(TreeView, EntriesAreFoundAtAnyDepth)
{
    EXPECT_EQ(tree.Find("run"), tree.Nodes()[0]->Children[0].get());
    EXPECT_EQ(tree.Find("other day"), tree.Nodes()[1].get());
    EXPECT_EQ(tree.Find("nothing"), nullptr);
}

TEST_F(TreeView, AnAddedEntryStaysWhereItIsAsMoreAreAdded)
{
    const screen::TreeNode& first = *tree.Find("day");
    for (int i = 0; i < 1000; ++i)
        tree.addRoot(entry(std::to_string(i)));
    EXPECT_EQ(tree.Find("day"), &first);
    EXPECT_EQ(first.Key, "day");
}

TEST_F(TreeView, AddingSelectsNothing)
{
    EXPECT_EQ(tree.SelectedItem(), nullptr);
}

TEST_F(TreeView, APressSelectsTheEntryAndRunsTheClickRuleWithIt)
{
    const screen::TreeNode* clicked = nullptr;
    tree.NodeClicked.Connect([&](const screen::TreeNode& node) { clicked = &node; });
    tree.Press("run");
    EXPECT_EQ(clicked, tree.Find("run"));
    EXPECT_EQ(tree.SelectedItem(), tree.Find("run"));
}

TEST_F(TreeView, APressOfTheSelectedEntryRunsTheClickRuleAgain)
{
    const Raised clicked(tree.NodeClicked);
    tree.Press("run");
    tree.Press("run");
    EXPECT_EQ(clicked.count, 2);
}

TEST_F(TreeView, APressOfAnUnknownEntryDoesNothing)
{
    const Raised clicked(tree.NodeClicked);
    tree.Press("run");
    tree.Press("nothing");
    EXPECT_EQ(clicked.count, 1);
    EXPECT_EQ(tree.SelectedItem(), tree.Find("run"));
}

TEST_F(TreeView, SelectingByCodeRunsNothing)
{
    const Raised clicked(tree.NodeClicked);
    tree.SetSelectedItem(*tree.Find("day"));
    EXPECT_EQ(tree.SelectedItem(), tree.Find("day"));
    EXPECT_EQ(clicked.count, 0);
}

TEST_F(TreeView, ClearingLeavesNoEntryAndNoSelectionAndItsKeysMayComeBack)
{
    tree.Press("run");
    const Raised clicked(tree.NodeClicked);
    tree.clear();
    EXPECT_TRUE(tree.Nodes().empty());
    EXPECT_EQ(tree.SelectedItem(), nullptr);
    EXPECT_EQ(tree.Find("run"), nullptr);
    EXPECT_EQ(clicked.count, 0);
    tree.addRoot(entry("run"));
    EXPECT_EQ(tree.Find("run"), tree.Nodes()[0].get());
}

} // namespace k7deval::test
