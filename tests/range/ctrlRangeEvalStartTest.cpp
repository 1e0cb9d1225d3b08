#include "range/RangeRig.h"

#include <gtest/gtest.h>

#include <vector>

/// The screen before the host has set any data.
namespace k7deval::test
{

namespace
{

using screen::Alignment;

struct LabelPlace {
    const screen::Label& label;
    float left;
    float top;
    float width; ///< 0 where it is the view's.
    Alignment alignment = Alignment::Left;
};

std::vector<LabelPlace> labelPlaces(const ctrlRangeEval& tool)
{
    return {
        {tool.lblHeader, 750, 75, 4500, Alignment::Centre},
        {tool.lblLowOpPercent, 60, 360, 1800, Alignment::Centre},
        {tool.lblMidOpPercent, 2040, 360, 1800, Alignment::Centre},
        {tool.lblHighOpPercent, 4080, 360, 1800, Alignment::Centre},
        {tool.lblMinSafe, 120, 2760, 0},
        {tool.lblLow, 1320, 2760, 0},
        {tool.lblMid, 3360, 2760, 1350, Alignment::Right},
        {tool.lblMax, 4530, 2760, 1350, Alignment::Right},
        {tool.lbl000, 120, 3000, 0},
        {tool.lbl020, 1320, 3000, 0},
        {tool.lbl080, 3960, 3000, 750, Alignment::Right},
        {tool.lbl100, 4530, 3000, 1350, Alignment::Right},
        {tool.lblAboveMEC, 120, 3285, 0},
        {tool.lblAboveMPC, 120, 3510, 0},
        {tool.lblOverRange, 120, 3720, 0},
        {tool.lblReplaced, 120, 3945, 0},
        {tool.lblInvalid, 120, 4185, 0},
    };
}

void expectMark(const screen::Line& line, float x)
{
    EXPECT_EQ(line.X1(), x) << line.Name();
    EXPECT_EQ(line.X2(), x) << line.Name();
    EXPECT_EQ(line.Y1(), 630) << line.Name();
    EXPECT_EQ(line.Y2(), 2700) << line.Name();
    EXPECT_EQ(line.Style(), screen::LineStyle::Solid) << line.Name();
}

struct QuarterCase {
    int month;
    const char* quarter;
    const char* year;
};

constexpr QuarterCase kQuarters[] = {
    {1, "Q4", "2023"}, {2, "Q4", "2023"},  {3, "Q4", "2023"},  {4, "Q1", "2024"},
    {5, "Q1", "2024"}, {6, "Q1", "2024"},  {7, "Q2", "2024"},  {8, "Q2", "2024"},
    {9, "Q2", "2024"}, {10, "Q3", "2024"}, {11, "Q3", "2024"}, {12, "Q3", "2024"},
};

} // namespace

TEST(RangeStart, TheFieldsHaveTheirStartingTexts)
{
    const RangeTool rig;
    EXPECT_EQ(rig.tool.txtRange.Text(), "Text1");
    EXPECT_EQ(rig.tool.txtMEC.Text(), "Text3");
    EXPECT_EQ(rig.tool.txtMPC.Text(), "Text4");
    for (const screen::ComboBox* list :
         {&rig.tool.cmbUnit, &rig.tool.cmbParam, &rig.tool.cmbScale}) {
        EXPECT_EQ(list->listCount(), 0) << list->Name();
        EXPECT_EQ(list->Text(), "") << list->Name();
    }
}

TEST(RangeStart, TheCaptionsAreThoseOfTheScreen)
{
    const RangeTool rig;
    const ctrlRangeEval& tool = rig.tool;
    EXPECT_EQ(tool.lblUnit.Caption(), "Unit:");
    EXPECT_EQ(tool.lblParameter.Caption(), "Parameter:");
    EXPECT_EQ(tool.lblRange.Caption(), "Instrument Range:");
    EXPECT_EQ(tool.lblQuarter.Caption(), "Range evaluation summary ending the last day of :");
    EXPECT_EQ(tool.chkShowPID.Caption(), "Show PID");
    EXPECT_EQ(tool.chkMEC.Caption(), "Maximum Expected:");
    EXPECT_EQ(tool.chkMPC.Caption(), "Maximum Potential:");
    EXPECT_EQ(tool.cmdCalculate.Caption(), "Calculate");
    EXPECT_EQ(tool.cmdSave.Caption(), "Save");
    EXPECT_EQ(tool.cmdClose.Caption(), "Close");
    EXPECT_EQ(tool.chkPreview.Caption(), "Preview Report After Saving");
    EXPECT_EQ(tool.fraResults.Caption(), "");
    EXPECT_EQ(tool.lbl000.Caption(), "Minimum");
    EXPECT_EQ(tool.lbl020.Caption(), "20%");
    EXPECT_EQ(tool.lbl080.Caption(), "80%");
    EXPECT_EQ(tool.lbl100.Caption(), "Maximum");
}

TEST(RangeStart, ScreenAndResultsHaveTheirSize)
{
    const RangeTool rig;
    EXPECT_EQ(rig.tool.place().Width, 12540);
    EXPECT_EQ(rig.tool.place().Height, 5295);
    EXPECT_EQ(rig.tool.fraResults.place(), (screen::Geometry{6480, 120, 6000, 4500}));
}

TEST(RangeStart, TheLabelsOfTheResultsStandInTheirPlaces)
{
    const RangeTool rig;
    for (const LabelPlace& row : labelPlaces(rig.tool)) {
        EXPECT_EQ(row.label.place().Left, row.left) << row.label.Name();
        EXPECT_EQ(row.label.place().Top, row.top) << row.label.Name();
        EXPECT_EQ(row.label.place().Width, row.width) << row.label.Name();
        EXPECT_EQ(row.label.Alignment(), row.alignment) << row.label.Name();
    }
}

TEST(RangeStart, TheMarksStandAt0And20And80And100Percent)
{
    const RangeTool rig;
    expectMark(rig.tool.linMin, 120);
    expectMark(rig.tool.linLow, 1260);
    expectMark(rig.tool.linMid, 4725);
    expectMark(rig.tool.linMax, 5880);
    const screen::Line& base = rig.tool.linBase;
    EXPECT_EQ(base.X1(), 120);
    EXPECT_EQ(base.X2(), 5895);
    EXPECT_EQ(base.Y1(), 2700);
    EXPECT_EQ(base.Y2(), 2700);
}

TEST(RangeStart, EachWidgetLiesInItsFrame)
{
    RangeTool rig;
    rig.tool.fraSetup.SetVisible(false);
    rig.tool.fraResults.SetVisible(false);
    for (const char* name :
         {"cmbUnit", "cmbParam", "chkShowPID", "cmbScale", "txtRange", "chkMEC", "txtMEC", "chkMPC",
          "txtMPC", "cmbYear", "cmbQTR", "lblHeader", "lblBar(1)", "linBase", "lblInvalid"})
        EXPECT_FALSE(rig.tool.Find(name)->isReachable()) << name;
    for (const char* name : {"cmdCalculate", "cmdClose", "chkPreview"})
        EXPECT_TRUE(rig.tool.Find(name)->isReachable()) << name;
}

TEST(RangeStart, WithoutDataTheOtherActionsDoNoHarm)
{
    RangeTool rig;
    EXPECT_NO_THROW(rig.tool.chkShowPID.Press());
    EXPECT_NO_THROW(enter(rig.tool.txtRange, "50"));
    EXPECT_NO_THROW(rig.tool.Terminate());
    EXPECT_EQ(rig.tool.evaluation().RangeValue, 50);
}

} // namespace k7deval::test
