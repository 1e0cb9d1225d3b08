#include "screen/ComboBox.h"

#include "foundation/ExpectError.h"
#include "screen/TestScreen.h"

#include <gtest/gtest.h>

#include <utility>

namespace k7deval::test
{

namespace
{

/// A list and a list with an edit field, each with the entries "Unit 1" (101) and "Unit 2" (102).
class ComboBox : public ::testing::Test
{
protected:
    ComboBox()
    {
        for (screen::ComboBox* box : {&list, &combo}) {
            box->addItem("Unit 1", 101);
            box->addItem("Unit 2", 102);
        }
    }

    TestScreen screen;
    screen::ComboBox& list = screen.page.list;
    screen::ComboBox& combo = screen.page.combo;
};

} // namespace

TEST_F(ComboBox, FillingItSelectsNothing)
{
    EXPECT_EQ(list.listCount(), 2);
    EXPECT_EQ(list.List(), (std::vector<std::string>{"Unit 1", "Unit 2"}));
    EXPECT_EQ(list.itemDataList(), (std::vector<std::int32_t>{101, 102}));
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.Text(), "");
}

TEST_F(ComboBox, APickShowsTheEntryAndRunsThePickRule)
{
    const Raised picked(list.Picked);
    list.Pick(1);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(list.Text(), "Unit 2");
    EXPECT_EQ(list.ItemData(), 102);
    EXPECT_EQ(picked.count, 1);
}

TEST_F(ComboBox, APickOfTheSelectedEntryRunsThePickRuleAgain)
{
    list.Pick(1);
    const Raised picked(list.Picked);
    list.Pick(1);
    list.SetListIndex(1);
    EXPECT_EQ(picked.count, 2);
}

TEST_F(ComboBox, APickIsNoChangeOfTheEditField)
{
    const Raised changed(combo.TextChanged);
    combo.Pick(1);
    combo.SetListIndex(0);
    EXPECT_EQ(changed.count, 0);
}

TEST_F(ComboBox, APickOutsideTheListDoesNothing)
{
    list.Pick(1);
    const Raised picked(list.Picked);
    list.Pick(2);
    list.Pick(-1);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(picked.count, 0);
}

TEST_F(ComboBox, AnIndexOutsideTheListIsAnErrorForCode)
{
    for (const int index : {2, -2})
        EXPECT_EQ(errorOf([&] { return list.SetListIndex(index), 0; }), 381) << index;
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ComboBox, DeselectingEmptiesTheTextAndRunsNothing)
{
    combo.Pick(1);
    const Raised picked(combo.Picked);
    const Raised changed(combo.TextChanged);
    combo.SetListIndex(-1);
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(combo.Text(), "");
    EXPECT_EQ(picked.count + changed.count, 0);
}

TEST_F(ComboBox, ItemDataWithNoEntrySelectedIsAnError)
{
    EXPECT_EQ(errorOf([&] { return list.ItemData(); }), 381);
}

TEST_F(ComboBox, ClearingRunsNothingAndLeavesNoEntryAndNoText)
{
    combo.Pick(1);
    const Raised picked(combo.Picked);
    const Raised changed(combo.TextChanged);
    combo.clear();
    EXPECT_EQ(combo.listCount(), 0);
    EXPECT_TRUE(combo.itemDataList().empty());
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(combo.Text(), "");
    EXPECT_EQ(picked.count + changed.count, 0);
}

TEST_F(ComboBox, TypingSelectsNoEntryNotEvenTheOneOfThatName)
{
    combo.Pick(0);
    combo.Type("Unit 2");
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(combo.Text(), "Unit 2");
    EXPECT_EQ(errorOf([&] { return combo.ItemData(); }), 381);
}

TEST_F(ComboBox, TypingRunsTheChangeRuleAndNoPickRule)
{
    combo.Pick(0);
    const Raised picked(combo.Picked);
    const Raised changed(combo.TextChanged);
    combo.Type("Unit");
    EXPECT_EQ(changed.count, 1);
    combo.Type("Unit");
    EXPECT_EQ(changed.count, 1);
    EXPECT_EQ(picked.count, 0);
}

TEST_F(ComboBox, TypingTheTextOfTheSelectedEntryDeselectsItAndRunsNothing)
{
    combo.Pick(0);
    const Raised changed(combo.TextChanged);
    combo.Type("Unit 1");
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(combo.Text(), "Unit 1");
    EXPECT_EQ(changed.count, 0);
}

TEST_F(ComboBox, WhoFollowsItSeesEntryAndTextOfTypingTogether)
{
    combo.Pick(0);
    std::vector<std::pair<int, std::string>> seen;
    combo.Changed.Connect([&] { seen.emplace_back(combo.ListIndex(), combo.Text()); });
    combo.Type("x");
    EXPECT_EQ(seen, (std::vector<std::pair<int, std::string>>{{-1, "x"}}));
}

TEST_F(ComboBox, AListWithoutAnEditFieldIsNotTypedIn)
{
    list.Pick(0);
    list.Type("Unit 2");
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_EQ(list.Text(), "Unit 1");
}

TEST_F(ComboBox, SettingTheTextByCodeRunsTheChangeRuleAndSelectsNoEntry)
{
    combo.Pick(0);
    const Raised changed(combo.TextChanged);
    combo.SetText("2024");
    EXPECT_EQ(combo.Text(), "2024");
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(changed.count, 1);
}

TEST_F(ComboBox, AListWithoutAnEditFieldTakesNoTextByCode)
{
    EXPECT_EQ(errorOf([&] { return list.SetText("x"), 0; }), 438);
}

TEST_F(ComboBox, APickRuleMayPickAgainAndTheLastPickStands)
{
    bool answered = false;
    list.Picked.Connect([&] {
        if (!std::exchange(answered, true))
            list.SetListIndex(1);
    });
    list.Pick(0);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(list.Text(), "Unit 2");
}

TEST_F(ComboBox, APickRuleMayRefillTheList)
{
    list.Picked.Connect([&] {
        list.clear();
        list.addItem("N/A");
    });
    list.Pick(1);
    EXPECT_EQ(list.List(), std::vector<std::string>{"N/A"});
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ComboBox, RewritingAnEntryKeepsListSelectionAndItemDataAndRunsNothing)
{
    combo.Pick(0);
    const Raised picked(combo.Picked);
    const Raised textChanged(combo.TextChanged);
    const Raised changed(combo.Changed);
    combo.setItemText(1, "[2] Unit 2");
    EXPECT_EQ(combo.List(), (std::vector<std::string>{"Unit 1", "[2] Unit 2"}));
    EXPECT_EQ(combo.itemDataList(), (std::vector<std::int32_t>{101, 102}));
    EXPECT_EQ(combo.ListIndex(), 0);
    EXPECT_EQ(combo.Text(), "Unit 1");
    EXPECT_EQ(changed.count, 1) << "a view shows the new entry";
    EXPECT_EQ(picked.count + textChanged.count, 0);
}

TEST_F(ComboBox, TheTextFollowsTheSelectedEntryThatIsRewritten)
{
    combo.Pick(1);
    const Raised picked(combo.Picked);
    const Raised textChanged(combo.TextChanged);
    combo.setItemText(1, "Second");
    EXPECT_EQ(combo.Text(), "Second");
    EXPECT_EQ(combo.ListIndex(), 1);
    EXPECT_EQ(combo.ItemData(), 102);
    EXPECT_EQ(picked.count + textChanged.count, 0);
}

TEST_F(ComboBox, ATypedTextStaysWhenEntriesAreRewritten)
{
    combo.Type("Unit 1");
    combo.setItemText(0, "First");
    EXPECT_EQ(combo.Text(), "Unit 1");
    EXPECT_EQ(combo.ListIndex(), -1);
}

TEST_F(ComboBox, AnEntryOutsideTheListCannotBeRewritten)
{
    for (const int index : {-1, 2})
        EXPECT_EQ(errorOf([&] { return list.setItemText(index, "x"), 0; }), 381) << index;
    EXPECT_EQ(list.List(), (std::vector<std::string>{"Unit 1", "Unit 2"}));
}

TEST_F(ComboBox, RemovingAnEntryTakesItsItemDataAndRunsNothing)
{
    const Raised picked(combo.Picked);
    const Raised textChanged(combo.TextChanged);
    const Raised changed(combo.Changed);
    combo.removeItem(0);
    EXPECT_EQ(combo.List(), std::vector<std::string>{"Unit 2"});
    EXPECT_EQ(combo.itemDataList(), std::vector<std::int32_t>{102});
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(changed.count, 1) << "a view drops the entry";
    EXPECT_EQ(picked.count + textChanged.count, 0);
}

TEST_F(ComboBox, TheSelectionStaysWithItsEntryWhenAnotherIsRemoved)
{
    list.addItem("Unit 3", 103);
    list.Pick(1);
    list.removeItem(2);
    EXPECT_EQ(list.ListIndex(), 1);
    list.removeItem(0);
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_EQ(list.ItemData(), 102);
    EXPECT_EQ(list.Text(), "Unit 2");
}

TEST_F(ComboBox, TheSelectionGoesWithItsEntry)
{
    list.Pick(1);
    const Raised picked(list.Picked);
    list.removeItem(1);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.Text(), "");
    EXPECT_EQ(errorOf([&] { return list.ItemData(); }), 381);
    EXPECT_EQ(picked.count, 0);
}

TEST_F(ComboBox, ATypedTextStaysWhenAnEntryIsRemoved)
{
    combo.Type("Unit 1");
    combo.removeItem(0);
    EXPECT_EQ(combo.Text(), "Unit 1");
    EXPECT_EQ(combo.ListIndex(), -1);
}

TEST_F(ComboBox, AnEntryOutsideTheListCannotBeRemoved)
{
    for (const int index : {-1, 2})
        EXPECT_EQ(errorOf([&] { return list.removeItem(index), 0; }), 381) << index;
    EXPECT_EQ(list.listCount(), 2);
    list.removeItem(1);
    list.removeItem(0);
    EXPECT_EQ(errorOf([&] { return list.removeItem(0), 0; }), 381);
    EXPECT_EQ(list.listCount(), 0);
}

} // namespace k7deval::test
