#include "screen/Label.h"

#include "foundation/ExpectError.h"
#include "screen/TestScreen.h"
#include "support/ScreenSnapshot.h"

#include <gtest/gtest.h>

namespace k7deval::test
{

TEST(ColorText, IsEightHexadecimalDigits)
{
    EXPECT_EQ(screen::colorText(screen::color::kBlack), "0x00000000");
    EXPECT_EQ(screen::colorText(screen::color::kRed), "0x000000FF");
    EXPECT_EQ(screen::colorText(screen::color::kWhite), "0x00FFFFFF");
    EXPECT_EQ(screen::colorText(screen::color::kLight3D), "0x80000016");
    EXPECT_EQ(screen::colorText(0xABCDEF01), "0xABCDEF01");
}

TEST(Label, TellsEachChangeOfItsLook)
{
    TestScreen screen;
    auto& label = screen.label;
    const Raised changed(label.Changed);
    label.SetCaption("Failed");
    label.SetForeColor(screen::color::kRed);
    label.SetBackColor(screen::color::kWhite);
    label.SetBold(true);
    label.SetToolTipText("why");
    EXPECT_EQ(changed.count, 5);
    label.SetCaption("Failed");
    label.SetBold(true);
    EXPECT_EQ(changed.count, 5);
    EXPECT_EQ(label.Caption(), "Failed");
    EXPECT_EQ(label.ForeColor(), 0x0000FFU);
    EXPECT_EQ(label.BackColor(), 0xFFFFFFU);
    EXPECT_TRUE(label.Bold());
    EXPECT_EQ(label.ToolTipText(), "why");
}

TEST(Label, StandsOnTheLeftAndIsPlacedByItsViewUnlessTheControlSaysOtherwise)
{
    TestScreen screen;
    EXPECT_EQ(screen.label.Alignment(), screen::Alignment::Left);
    EXPECT_EQ(screen.label.place(), screen::Geometry());
}

TEST(Label, PlacedByItsControlItKeepsPlaceAndAlignment)
{
    TestScreen screen;
    const screen::Geometry place{3360, 2760, 1350, 195};
    const screen::Label left(screen, "left", "20%", place);
    const screen::Label right(screen, "right", "80%", place, screen::Alignment::Right);
    const screen::Label centre(screen, "centre", "50%", place, screen::Alignment::Centre);
    EXPECT_EQ(left.Alignment(), screen::Alignment::Left);
    EXPECT_EQ(right.Alignment(), screen::Alignment::Right);
    EXPECT_EQ(centre.Alignment(), screen::Alignment::Centre);
    EXPECT_EQ(right.place(), place);
    EXPECT_EQ(right.Caption(), "80%");
}

TEST(Label, ListsItsAlignmentByName)
{
    TestScreen screen;
    const screen::Label right(screen, "right", "", {}, screen::Alignment::Right);
    const screen::Label centre(screen, "centre", "", {}, screen::Alignment::Centre);
    const Snapshot texts = snapshotOf(screen);
    EXPECT_EQ(texts.at("label.Alignment"), "\"Left\"");
    EXPECT_EQ(texts.at("right.Alignment"), "\"Right\"");
    EXPECT_EQ(texts.at("centre.Alignment"), "\"Centre\"");
}

TEST(Image, IsBlendedWithTheBackgroundThatTheListHadWhenItWasTaken)
{
    TestScreen screen;
    screen::ImageList list(screen, "list", {"Pass", "Fail"});
    screen::Image image(screen, "image");
    list.SetBackColor(screen::color::kButtonFace);
    image.SetPicture(list, "Fail");
    list.SetBackColor(screen::color::kWindow);
    EXPECT_EQ(image.Picture(), "Fail");
    EXPECT_EQ(image.BackColor(), 0x8000000FU);
    EXPECT_EQ(list.BackColor(), 0x80000005U);
}

TEST(Image, APictureThatTheListDoesNotHaveIsAnErrorAndTheOldOneStays)
{
    TestScreen screen;
    const screen::ImageList list(screen, "list", {"Pass"});
    screen::Image image(screen, "image");
    image.SetPicture(list, "Pass");
    EXPECT_EQ(errorOf([&] { return image.SetPicture(list, "Fail"), 0; }), 5);
    EXPECT_EQ(image.Picture(), "Pass");
}

} // namespace k7deval::test
