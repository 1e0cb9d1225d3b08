#include "screen/TextBox.h"

#include "screen/TestScreen.h"

#include <gtest/gtest.h>

namespace k7deval::test
{

TEST(TextBox, TypingTakesThePlaceOfTheTextAndRunsTheChangeRule)
{
    TestScreen screen;
    auto& box = screen.page.textBox;
    const Raised changed(box.TextChanged);
    box.Type("ab");
    EXPECT_EQ(box.Text(), "ab");
    box.Type("c");
    EXPECT_EQ(box.Text(), "c");
    EXPECT_EQ(changed.count, 2);
}

TEST(TextBox, TheSameTextAgainRunsNothing)
{
    TestScreen screen;
    auto& box = screen.page.textBox;
    box.SetText("ab");
    const Raised changed(box.TextChanged);
    box.Type("ab");
    box.SetText("ab");
    EXPECT_EQ(changed.count, 0);
}

TEST(TextBox, AChangeByCodeRunsTheChangeRuleToo)
{
    TestScreen screen;
    const Raised changed(screen.page.textBox.TextChanged);
    screen.page.textBox.SetText("x");
    EXPECT_EQ(changed.count, 1);
}

TEST(TextBox, ValidationRunsWhenTheUserLeavesItWhetherOrNotTheTextChanged)
{
    TestScreen screen;
    auto& box = screen.page.textBox;
    const Raised validated(box.Validate);
    box.Type("ab");
    EXPECT_EQ(validated.count, 0);
    box.Leave();
    box.Leave();
    EXPECT_EQ(validated.count, 2);
}

TEST(TextBox, TheLengthLimitCutsWhatIsTyped)
{
    TestScreen screen;
    screen.page.textBox.Type("12345");
    EXPECT_EQ(screen.page.textBox.Text(), "123");
}

TEST(TextBox, TheLengthLimitDoesNotHoldForCode)
{
    TestScreen screen;
    screen.page.textBox.SetText("12345");
    EXPECT_EQ(screen.page.textBox.Text(), "12345");
}

TEST(TextBox, WithoutALengthLimitAllIsTaken)
{
    TestScreen screen;
    screen::TextBox box(screen, "free");
    box.Type(std::string(5000, 'x'));
    EXPECT_EQ(box.Text().size(), 5000U);
}

struct CutCase {
    const char* what;
    const char* text;
    int maxLength;
    const char* expected;
};

// A limit counts characters: those of two, three and four bytes are one each.
constexpr CutCase kCutCases[] = {
    {"shorter than the limit", "ab", 3, "ab"},
    {"as long as the limit", "abc", 3, "abc"},
    {"one too long", "abcd", 3, "abc"},
    {"no limit", "abcd", 0, "abcd"},
    {"empty", "", 3, ""},
    {"two bytes each", "äöüß", 3, "äöü"},
    {"three bytes each", "€€€€", 3, "€€€"},
    {"four bytes each", "🏭🏭🏭🏭", 3, "🏭🏭🏭"},
    {"mixed, the cut behind a long character", "a€🏭b", 3, "a€🏭"},
    {"mixed, the cut ahead of a long character", "abc€", 3, "abc"},
};

TEST(CutToLength, CountsCharactersAndNotBytes)
{
    for (const CutCase& row : kCutCases)
        EXPECT_EQ(screen::cutToLength(row.text, row.maxLength), row.expected) << row.what;
}

} // namespace k7deval::test
