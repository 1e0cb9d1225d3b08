#include "report/ReportDocument.h"
#include "report/TestFonts.h"

#include <gtest/gtest.h>

#include <string>

namespace k7deval
{
namespace
{

struct WidthCase {
    const char* what;
    const char* text;
    int font;
    float size;
    float width;
};

// Sums of the advance widths that Adobe publishes for the standard faces, in 1/1000 of the size.
constexpr WidthCase kWidthCases[] = {
    {"no text", "", 5, 10, 0},
    {"a blank, 278", " ", 5, 10, 2.78F},
    {"722 556 222 222 556", "Hello", 5, 10, 22.78F},
    {"778 556 333 556 222 556 556", "On-Line", 5, 10, 35.57F},
    {"ten figures of 556", "0123456789", 5, 10, 55.6F},
    {"bold: 722 389 278 333 333", "Drift", 6, 14, 28.77F},
    {"bold stands wider: 722 556 278 278 611", "Hello", 6, 10, 24.45F},
    {"oblique is as wide as upright", "Hello", 7, 10, 22.78F},
    {"667 556 556 556 278 556", "Page 1", 7, 8, 25.352F},
    {"the same at half the size", "Page 1", 7, 4, 12.676F},
    {"accents and the euro, 556 each", "\u00E9\u20AC", 5, 10, 11.12F},
    {"a no-break space, 278", "\u00A0", 5, 10, 2.78F},
    {"a soft hyphen is drawn, 333", "\u00AD", 5, 10, 3.33F},
    {"a soft hyphen in bold, 333", "\u00AD", 6, 10, 3.33F},
    {"a tab is one blank", "1\t1", 5, 10, 13.9F},
    {"a carriage return is one blank", "1\r1", 5, 10, 13.9F},
    {"a line feed is one blank", "1\n1", 5, 10, 13.9F},
    {"both together are one blank", "1\r\n1", 5, 10, 13.9F},
    {"the other way round they are two", "1\n\r1", 5, 10, 16.68F},
};

TEST(TextWidth, IsTheSumOfTheAdvances)
{
    for (const auto& row : kWidthCases) {
        ReportDocument document(test::sansOnly());
        ReportTextItem& item = document.Pages().Add().TextItems().Add(row.text);
        item.SetFont(row.font);
        item.SetSize(row.size);
        EXPECT_FLOAT_EQ(item.Width(), row.width) << row.what << ": \"" << row.text << '"';
    }
}

TEST(TextHeight, IsFromTheDescenderToTheAscender)
{
    ReportDocument document(test::sansOnly());
    ReportTextItem& item = document.Pages().Add().TextItems().Add("x");
    for (const int font : {5, 6, 7}) {
        item.SetFont(font);
        for (const float size : {8.0F, 10.0F, 12.0F, 14.0F}) {
            item.SetSize(size);
            EXPECT_FLOAT_EQ(item.Height(), size * (905 + 212) / 1000);
        }
    }
}

TEST(TextHeight, IsThatOfTheFaceThatDrawsTheText)
{
    ReportDocument document(test::sansOnly());
    ReportTextItem& item = document.Pages().Add().TextItems().Add("");
    EXPECT_FLOAT_EQ(item.Height(), 11.17F) << "an empty text has the standard face's";
    item.SetText("\u03A3");
    EXPECT_FLOAT_EQ(item.Height(), 11.64F) << "1901 and -483 of 2048 units";
}

TEST(TextMeasure, IsValidBeforeATextIsPlacedAndStaysWhenItIs)
{
    ReportDocument document;
    ReportTextItem& item = document.Pages().Add().TextItems().Add("");
    item.SetText("7-Day Drift Test");
    item.SetFont(6);
    item.SetSize(12);
    const float width = item.Width();
    const float height = item.Height();
    EXPECT_GT(width, 0);
    EXPECT_GT(height, 0);
    item.SetX(392 - width / 2);
    item.SetY(563.05F - height - 2);
    EXPECT_EQ(item.Width(), width);
    EXPECT_EQ(item.Height(), height);
    item.SetOrientation(2);
    EXPECT_EQ(item.Width(), width) << "the length along the text, whichever way it reads";
    EXPECT_EQ(item.Height(), height);
}

TEST(TextMeasure, FollowsTextFontAndSize)
{
    ReportDocument document;
    ReportTextItem& item = document.Pages().Add().TextItems().Add("Drift");
    const float body = item.Width();
    item.SetFont(6);
    EXPECT_GT(item.Width(), body);
    item.SetFont(5);
    item.SetSize(20);
    EXPECT_FLOAT_EQ(item.Width(), 2 * body);
    item.SetText("DriftDrift");
    EXPECT_FLOAT_EQ(item.Width(), 4 * body);
}

TEST(TextMeasure, HoldsForATextWithoutItsDocument)
{
    ReportTextItem item("Hello", std::make_shared<const FontSet>(FontFiles{}));
    EXPECT_FLOAT_EQ(item.Width(), 22.78F);
}

} // namespace
} // namespace k7deval
