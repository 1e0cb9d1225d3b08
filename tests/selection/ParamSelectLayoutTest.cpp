#include "screen/TestScreen.h"
#include "selection/SelectionRig.h"

#include <gtest/gtest.h>

/// Where filter and list lie in the control.
namespace k7deval::screen
{

void PrintTo(const Geometry& place, std::ostream* out)
{
    *out << place.Left << ", " << place.Top << ", " << place.Width << " x " << place.Height;
}

} // namespace k7deval::screen

namespace k7deval::test
{

namespace
{

using screen::Geometry;

/// The gap between filter and list.
constexpr float kGap = 45;

} // namespace

TEST(ParamSelectLayout, OfTheDesignGivesTheListTheWholeControl)
{
    const ParamSelect tool;
    EXPECT_EQ(tool.place().Width, 3855.0F);
    EXPECT_EQ(tool.place().Height, 3495.0F);
    EXPECT_EQ(tool.jgexGrid.place(), (Geometry{0, 0, 3855, 3495}));
    EXPECT_EQ(tool.cmbUnit.place().Width, 3855.0F);
}

TEST(ParamSelectLayout, WithTheFilterPutsTheListBelowIt)
{
    ParamSelect tool;
    tool.SetShowUnitCombo(true);
    EXPECT_TRUE(tool.ShowUnitCombo());
    EXPECT_TRUE(tool.cmbUnit.Visible());
    const float height = tool.cmbUnit.place().Height;
    ASSERT_GT(height, 0.0F);
    EXPECT_EQ(tool.cmbUnit.place().Top, 0.0F);
    EXPECT_EQ(tool.jgexGrid.place(), (Geometry{0, height + kGap, 3855, 3495 - height - kGap}));
}

TEST(ParamSelectLayout, WithTheFilterPutsThatBackToTheTop)
{
    ParamSelect tool;
    tool.cmbUnit.move(0, 1000);
    tool.SetShowUnitCombo(true);
    EXPECT_EQ(tool.cmbUnit.place().Top, 0.0F);
    EXPECT_EQ(tool.jgexGrid.place().Top, tool.cmbUnit.place().Height + kGap);
    tool.cmbUnit.move(0, 1000);
    tool.Resize(4000, 3000);
    EXPECT_EQ(tool.cmbUnit.place().Top, 0.0F);
}

TEST(ParamSelectLayout, WithoutTheFilterAgainGivesTheListTheWholeControl)
{
    ParamSelect tool;
    tool.SetShowUnitCombo(true);
    tool.SetShowUnitCombo(false);
    EXPECT_FALSE(tool.ShowUnitCombo());
    EXPECT_FALSE(tool.cmbUnit.Visible());
    EXPECT_EQ(tool.jgexGrid.place(), (Geometry{0, 0, 3855, 3495}));
}

TEST(ParamSelectResize, GivesTheListTheNewSize)
{
    ParamSelect tool;
    tool.Resize(5000, 2000);
    EXPECT_EQ(tool.place().Width, 5000.0F);
    EXPECT_EQ(tool.place().Height, 2000.0F);
    EXPECT_EQ(tool.jgexGrid.place(), (Geometry{0, 0, 5000, 2000}));
    EXPECT_EQ(tool.cmbUnit.place().Width, 5000.0F) << "hidden, but ready";
}

TEST(ParamSelectResize, WithTheFilterLeavesItItsHeight)
{
    ParamSelect tool;
    tool.SetShowUnitCombo(true);
    const float height = tool.cmbUnit.place().Height;
    tool.Resize(5000, 2000);
    EXPECT_EQ(tool.cmbUnit.place(), (Geometry{0, 0, 5000, height}));
    EXPECT_EQ(tool.jgexGrid.place(), (Geometry{0, height + kGap, 5000, 2000 - height - kGap}));
}

TEST(ParamSelectResize, IsRememberedWhenTheFilterComesAndGoes)
{
    ParamSelect tool;
    tool.Resize(5000, 2000);
    tool.SetShowUnitCombo(true);
    EXPECT_EQ(tool.jgexGrid.place().Height, 2000 - tool.jgexGrid.place().Top);
    tool.SetShowUnitCombo(false);
    EXPECT_EQ(tool.jgexGrid.place(), (Geometry{0, 0, 5000, 2000}));
}

TEST(ParamSelectResize, LetsTheGridReadAlsoAtTheSameSize)
{
    ParamSelect tool;
    const Raised changed(tool.jgexGrid.Changed);
    tool.Resize(3855, 3495);
    EXPECT_EQ(changed.count, 1);
}

TEST(ParamSelectColumns, AreThatOfTheTicksAndTheRestForTheNames)
{
    ParamSelect tool;
    tool.jgexGrid.ScrollBarWidth = 240;
    tool.Resize(5000, 2000);
    EXPECT_EQ(tool.jgexGrid.ColumnWidth(1), 20.0F);
    EXPECT_EQ(tool.jgexGrid.ColumnWidth(2), 5000.0F - 20 - 60 - 240);
}

TEST(ParamSelectColumns, LeaveRoomForAScrollBarOfAnyWidth)
{
    ParamSelect tool;
    tool.jgexGrid.ScrollBarWidth = 0;
    tool.Resize(5000, 2000);
    EXPECT_EQ(tool.jgexGrid.ColumnWidth(2), 4920.0F);
}

struct RoundingCase {
    float width;
    float column;
};

// The width of the control less 320, to a whole number, halves to the even one.
constexpr RoundingCase kRoundingCases[] = {
    {1000.25F, 680}, {1000.5F, 680}, {1000.75F, 681}, {1001.5F, 682}, {1002.0F, 682},
};

TEST(ParamSelectColumns, HaveAWholeNumberOfTwips)
{
    ParamSelect tool;
    tool.jgexGrid.ScrollBarWidth = 240;
    for (const auto& [width, column] : kRoundingCases) {
        tool.Resize(width, 2000);
        EXPECT_EQ(tool.jgexGrid.ColumnWidth(2), column) << width;
    }
}

} // namespace k7deval::test
