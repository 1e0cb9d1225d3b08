#include "report/ReportDocument.h"

#include "foundation/Error.h"
#include "foundation/ExpectError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iterator>
#include <limits>
#include <type_traits>

namespace k7deval
{
namespace
{

using ::testing::ElementsAre;

constexpr float kNoNumber = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinite = std::numeric_limits<float>::infinity();

TEST(ReportDocument, HasNoPagesAndNoInformationWhenNew)
{
    const ReportDocument document;
    EXPECT_EQ(document.Pages().Count(), 0);
    EXPECT_EQ(document.Title() + document.Subject() + document.Author() + document.Creator(), "");
}

TEST(ReportDocument, KeepsItsInformation)
{
    ReportDocument document;
    document.SetTitle("7-Day Drift Testing");
    document.SetSubject("Subject");
    document.SetAuthor("Author");
    document.SetCreator("Creator");
    EXPECT_EQ(document.Title(), "7-Day Drift Testing");
    EXPECT_EQ(document.Subject(), "Subject");
    EXPECT_EQ(document.Author(), "Author");
    EXPECT_EQ(document.Creator(), "Creator");
}

TEST(ReportPages, CountThePagesSoFarAndKeepTheirOrder)
{
    ReportDocument document;
    for (const float height : {100.0F, 200.0F, 300.0F})
        document.Pages().Add().SetHeight(height);
    EXPECT_EQ(document.Pages().Count(), 3);
    std::vector<float> heights;
    for (const ReportPage& page : document.Pages())
        heights.push_back(page.Height());
    EXPECT_THAT(heights, ElementsAre(100.0F, 200.0F, 300.0F));
}

TEST(ReportPage, HasNoSizeAndNoItemsWhenNew)
{
    ReportDocument document;
    const ReportPage& page = document.Pages().Add();
    EXPECT_EQ(page.Width(), 0);
    EXPECT_EQ(page.Height(), 0);
    EXPECT_EQ(page.TextItems().Count(), 0);
    EXPECT_EQ(page.Lines().Count(), 0);
    EXPECT_EQ(page.Rectangles().Count(), 0);
}

TEST(ReportPage, TakesTheSizesThatAPdfPageCanHave)
{
    ReportDocument document;
    ReportPage& page = document.Pages().Add();
    for (const float points : {3.0F, 612.0F, 14400.0F}) {
        page.SetWidth(points);
        page.SetHeight(points);
        EXPECT_EQ(page.Width(), points);
        EXPECT_EQ(page.Height(), points);
    }
    for (const float points : {0.0F, 2.9F, -612.0F, 14401.0F, kNoNumber, kInfinite}) {
        EXPECT_EQ(errorOf([&] { return page.SetWidth(points), 0; }), errors::kInvalidCall);
        EXPECT_EQ(errorOf([&] { return page.SetHeight(points), 0; }), errors::kInvalidCall);
    }
    EXPECT_EQ(page.Width(), 14400.0F) << "a refused size changes nothing";
}

TEST(ReportPage, KeepsItsItemsInPlaceAsItGrows)
{
    ReportDocument document;
    ReportPage& page = document.Pages().Add();
    ReportTextItem& text = page.TextItems().Add("first");
    ReportLine& line = page.Lines().Add();
    ReportRectangle& rectangle = page.Rectangles().Add();
    for (int i = 0; i < 1000; ++i) {
        document.Pages().Add();
        page.TextItems().Add("more");
        page.Lines().Add();
        page.Rectangles().Add();
    }
    text.SetY(1);
    line.SetY1(2);
    rectangle.SetY(3);
    const ReportPage& first = *document.Pages().begin();
    EXPECT_EQ(first.TextItems().begin()->Y(), 1);
    EXPECT_EQ(first.Lines().begin()->Y1(), 2);
    EXPECT_EQ(first.Rectangles().begin()->Y(), 3);
    EXPECT_EQ(first.TextItems().Count(), 1001);
    EXPECT_EQ(std::next(first.TextItems().begin())->Text(), "more");
}

TEST(ReportTextItem, StartsAsHorizontalBodyText)
{
    ReportDocument document;
    const ReportTextItem& item = document.Pages().Add().TextItems().Add();
    EXPECT_EQ(item.Text(), "");
    EXPECT_EQ(item.Font(), 5);
    EXPECT_EQ(item.Size(), 10);
    EXPECT_EQ(item.X(), 0);
    EXPECT_EQ(item.Y(), 0);
    EXPECT_FALSE(item.readsUpward());
}

TEST(ReportTextItem, ReadsBackWhatWasSet)
{
    ReportDocument document;
    ReportTextItem& item = document.Pages().Add().TextItems().Add("");
    item.SetText("line\r\nbreak");
    item.SetFont(6);
    item.SetSize(14);
    item.SetX(392.5F);
    item.SetY(563.05F);
    item.SetOrientation(2);
    EXPECT_EQ(item.Text(), "line\r\nbreak");
    EXPECT_EQ(item.Font(), 6);
    EXPECT_EQ(item.Size(), 14);
    EXPECT_EQ(item.X(), 392.5F);
    EXPECT_EQ(item.Y(), 563.05F);
    EXPECT_EQ(item.Orientation(), 2);
    EXPECT_TRUE(item.readsUpward());
}

TEST(ReportTextItem, StacksRowsOnTheValueReadBack)
{
    ReportDocument document;
    ReportTextItems& items = document.Pages().Add().TextItems();
    float y = 563.05F;
    for (int row = 0; row < 3; ++row) {
        ReportTextItem& item = items.Add("row");
        item.SetY(y - item.Height() - 2);
        y = item.Y();
    }
    EXPECT_FLOAT_EQ(y, 563.05F - 3 * 13.17F);
}

TEST(ReportTextItem, RefusesAFontASizeAndAPlaceThatIsNone)
{
    ReportDocument document;
    ReportTextItem& item = document.Pages().Add().TextItems().Add("text");
    for (const int code : {4, 8, 0, -1})
        EXPECT_EQ(errorOf([&] { return item.SetFont(code), 0; }), errors::kInvalidCall) << code;
    EXPECT_EQ(item.Font(), 5);
    for (const float size : {0.0F, -10.0F, kNoNumber, kInfinite})
        EXPECT_EQ(errorOf([&] { return item.SetSize(size), 0; }), errors::kInvalidCall) << size;
    EXPECT_EQ(item.Size(), 10);
    EXPECT_EQ(errorOf([&] { return item.SetX(kNoNumber), 0; }), errors::kInvalidCall);
    EXPECT_EQ(errorOf([&] { return item.SetY(kInfinite), 0; }), errors::kInvalidCall);
}

/// A coordinate reads back as it was set, and refuses what is no number.
template <class Item>
void expectCoordinate(Item& item, float (Item::*get)() const, void (Item::*set)(float), float value)
{
    (item.*set)(value);
    EXPECT_EQ((item.*get)(), value);
    EXPECT_EQ(errorOf([&] { return (item.*set)(kNoNumber), 0; }), errors::kInvalidCall);
    EXPECT_EQ((item.*get)(), value);
}

TEST(ReportLine, HasTwoEndsAndIsDashedInStyle3)
{
    ReportDocument document;
    ReportLine& line = document.Pages().Add().Lines().Add();
    expectCoordinate(line, &ReportLine::X1, &ReportLine::SetX1, 36);
    expectCoordinate(line, &ReportLine::Y1, &ReportLine::SetY1, 49.1F);
    expectCoordinate(line, &ReportLine::X2, &ReportLine::SetX2, 756);
    expectCoordinate(line, &ReportLine::Y2, &ReportLine::SetY2, 50);
    EXPECT_FALSE(line.isDashed());
    line.SetStyle(3);
    EXPECT_EQ(line.Style(), 3);
    EXPECT_TRUE(line.isDashed());
}

TEST(ReportRectangle, HasAPlaceASizeAndColours)
{
    ReportDocument document;
    ReportRectangle& rectangle = document.Pages().Add().Rectangles().Add();
    expectCoordinate(rectangle, &ReportRectangle::X, &ReportRectangle::SetX, 36);
    expectCoordinate(rectangle, &ReportRectangle::Y, &ReportRectangle::SetY, 400.5F);
    expectCoordinate(rectangle, &ReportRectangle::Width, &ReportRectangle::SetWidth, 720);
    expectCoordinate(rectangle, &ReportRectangle::Height, &ReportRectangle::SetHeight, 11.25F);
    rectangle.SetFillColor(0xF0F0F0);
    rectangle.SetLineColor(0xB4B4B4);
    EXPECT_EQ(rectangle.FillColor(), 0xF0F0F0);
    EXPECT_EQ(rectangle.LineColor(), 0xB4B4B4);
}

static_assert(!std::is_copy_constructible_v<ReportDocument>, "items know their document's fonts");

} // namespace
} // namespace k7deval
