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

using screen::EditField;

/// What goes before, an action, and all that is left of it on a box with the entries of above.
struct ComboCase {
    const char* what;
    EditField edit;
    void (*before)(screen::ComboBox& box);
    void (*act)(screen::ComboBox& box);
    const char* list;
    std::int32_t index;
    const char* text;
    int picks; ///< How often the pick rule ran.
    int typed; ///< How often the change rule ran.
};

constexpr const char* kBoth = "Unit 1 (101), Unit 2 (102)";

void pickFirst(screen::ComboBox& box)
{
    box.Pick(0);
}

void pickSecond(screen::ComboBox& box)
{
    box.Pick(1);
}

void typeFirst(screen::ComboBox& box)
{
    box.Type("Unit 1");
}

void nothing(screen::ComboBox& /*box*/) {}

constexpr EditField kNo = EditField::No;
constexpr EditField kYes = EditField::Yes;

constexpr ComboCase kCombos[] = {
    {"a pick", kNo, nothing, pickSecond, kBoth, 1, "Unit 2", 1, 0},
    {"a pick is no change of the edit field", kYes, nothing, pickSecond, kBoth, 1, "Unit 2", 1, 0},
    {"a pick of the selected entry", kNo, pickSecond, pickSecond, kBoth, 1, "Unit 2", 1, 0},
    {"the selected entry by code", kNo, pickSecond, [](auto& box) { box.SetListIndex(1); }, kBoth,
     1, "Unit 2", 1, 0},
    {"another entry by code", kYes, pickSecond, [](auto& box) { box.SetListIndex(0); }, kBoth, 0,
     "Unit 1", 1, 0},
    {"a pick behind the list", kNo, pickSecond, [](auto& box) { box.Pick(2); }, kBoth, 1, "Unit 2",
     0, 0},
    {"a pick ahead of the list", kNo, pickSecond, [](auto& box) { box.Pick(-1); }, kBoth, 1,
     "Unit 2", 0, 0},
    {"deselecting", kYes, pickSecond, [](auto& box) { box.SetListIndex(-1); }, kBoth, -1, "", 0, 0},
    {"clearing", kYes, pickSecond, [](auto& box) { box.clear(); }, "", -1, "", 0, 0},
    // Typing selects no entry, not even the one of that name.
    {"typing", kYes, pickFirst, [](auto& box) { box.Type("Unit 2"); }, kBoth, -1, "Unit 2", 0, 1},
    {"typing the same again", kYes, typeFirst, typeFirst, kBoth, -1, "Unit 1", 0, 0},
    {"typing the selected entry", kYes, pickFirst, typeFirst, kBoth, -1, "Unit 1", 0, 0},
    {"typing without an edit field", kNo, pickSecond, typeFirst, kBoth, 1, "Unit 2", 0, 0},
    {"a text by code", kYes, pickFirst, [](auto& box) { box.SetText("2024"); }, kBoth, -1, "2024",
     0, 1},
    // Entries that are rewritten or removed run nothing; the selection stays with its entry.
    {"another entry rewritten", kYes, pickFirst, [](auto& box) { box.setItemText(1, "[2]"); },
     "Unit 1 (101), [2] (102)", 0, "Unit 1", 0, 0},
    {"the selected entry rewritten", kYes, pickSecond,
     [](auto& box) { box.setItemText(1, "Second"); }, "Unit 1 (101), Second (102)", 1, "Second", 0,
     0},
    {"an entry rewritten behind a typed text", kYes, typeFirst,
     [](auto& box) { box.setItemText(0, "First"); }, "First (101), Unit 2 (102)", -1, "Unit 1", 0,
     0},
    {"an entry removed", kYes, nothing, [](auto& box) { box.removeItem(0); }, "Unit 2 (102)", -1,
     "", 0, 0},
    {"an entry removed ahead", kNo, pickSecond, [](auto& box) { box.removeItem(0); },
     "Unit 2 (102)", 0, "Unit 2", 0, 0},
    {"an entry removed behind", kNo, pickFirst, [](auto& box) { box.removeItem(1); },
     "Unit 1 (101)", 0, "Unit 1", 0, 0},
    {"the selected entry removed", kNo, pickSecond, [](auto& box) { box.removeItem(1); },
     "Unit 1 (101)", -1, "", 0, 0},
    {"an entry removed behind a typed text", kYes, typeFirst, [](auto& box) { box.removeItem(0); },
     "Unit 2 (102)", -1, "Unit 1", 0, 0},
};

std::string listText(const screen::ComboBox& box)
{
    std::string text;
    for (std::size_t i = 0; i < box.List().size(); ++i)
        text += (i == 0 ? "" : ", ") + box.List()[i] + " (" +
                std::to_string(box.itemDataList().at(i)) + ")";
    return text;
}

} // namespace

TEST_F(ComboBox, KeepsListSelectionAndTextAndRunsItsRules)
{
    for (const ComboCase& row : kCombos) {
        SCOPED_TRACE(row.what);
        TestScreen fresh;
        screen::ComboBox& box = row.edit == kYes ? fresh.page.combo : fresh.page.list;
        box.addItem("Unit 1", 101);
        box.addItem("Unit 2", 102);
        row.before(box);
        const Raised picked(box.Picked);
        const Raised typed(box.TextChanged);
        row.act(box);
        EXPECT_EQ(listText(box), row.list);
        EXPECT_EQ(box.itemDataList().size(), box.List().size());
        EXPECT_EQ(box.ListIndex(), row.index);
        EXPECT_EQ(box.Text(), row.text);
        EXPECT_EQ(picked.count, row.picks);
        EXPECT_EQ(typed.count, row.typed);
        if (row.index >= 0)
            EXPECT_EQ(box.ItemData(), box.itemDataList().at(static_cast<std::size_t>(row.index)));
        else
            EXPECT_EQ(errorOf([&] { return box.ItemData(); }), 381);
    }
}

TEST_F(ComboBox, TellsItsViewOfEntriesThatAreRewrittenOrRemoved)
{
    const Raised changed(combo.Changed);
    combo.setItemText(1, "[2] Unit 2");
    EXPECT_EQ(changed.count, 1);
    combo.removeItem(0);
    EXPECT_EQ(changed.count, 2);
}

TEST_F(ComboBox, FillingItSelectsNothing)
{
    EXPECT_EQ(list.listCount(), 2);
    EXPECT_EQ(list.List(), (std::vector<std::string>{"Unit 1", "Unit 2"}));
    EXPECT_EQ(list.itemDataList(), (std::vector<std::int32_t>{101, 102}));
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.Text(), "");
}

TEST_F(ComboBox, AnIndexOutsideTheListIsAnErrorForCode)
{
    for (const int index : {2, -2})
        EXPECT_EQ(errorOf([&] { return list.SetListIndex(index), 0; }), 381) << index;
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ComboBox, WhoFollowsItSeesEntryAndTextOfTypingTogether)
{
    combo.Pick(0);
    std::vector<std::pair<int, std::string>> seen;
    combo.Changed.Connect([&] { seen.emplace_back(combo.ListIndex(), combo.Text()); });
    combo.Type("x");
    EXPECT_EQ(seen, (std::vector<std::pair<int, std::string>>{{-1, "x"}}));
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

TEST_F(ComboBox, AnEntryOutsideTheListCannotBeRewritten)
{
    for (const int index : {-1, 2})
        EXPECT_EQ(errorOf([&] { return list.setItemText(index, "x"), 0; }), 381) << index;
    EXPECT_EQ(list.List(), (std::vector<std::string>{"Unit 1", "Unit 2"}));
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
