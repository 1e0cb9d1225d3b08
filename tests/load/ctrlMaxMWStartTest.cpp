#include "load/LoadRig.h"

#include <gtest/gtest.h>

/// The load tool before it has data.
namespace k7deval::test
{

namespace
{

struct QuarterCase {
    int month;
    const char* quarter;
    int quarterRow;
    const char* year;
    int yearRow;
    const char* from;
    const char* to;
};

// In 2024: the newest quarter that is over.
constexpr QuarterCase kQuarters[] = {
    {1, "Q4", 3, "2023", 1, "10/1/2023", "12/31/2023"},
    {2, "Q4", 3, "2023", 1, "10/1/2023", "12/31/2023"},
    {3, "Q4", 3, "2023", 1, "10/1/2023", "12/31/2023"},
    {4, "Q1", 0, "2024", 0, "1/1/2024", "3/31/2024"},
    {5, "Q1", 0, "2024", 0, "1/1/2024", "3/31/2024"},
    {6, "Q1", 0, "2024", 0, "1/1/2024", "3/31/2024"},
    {7, "Q2", 1, "2024", 0, "4/1/2024", "6/30/2024"},
    {8, "Q2", 1, "2024", 0, "4/1/2024", "6/30/2024"},
    {9, "Q2", 1, "2024", 0, "4/1/2024", "6/30/2024"},
    {10, "Q3", 2, "2024", 0, "7/1/2024", "9/30/2024"},
    {11, "Q3", 2, "2024", 0, "7/1/2024", "9/30/2024"},
    {12, "Q3", 2, "2024", 0, "7/1/2024", "9/30/2024"},
};

void expectPreselected(const ctrlMaxMW& tool, const QuarterCase& expected, const std::string& when)
{
    EXPECT_EQ(tool.cmbQTR.Text(), expected.quarter) << when;
    EXPECT_EQ(tool.cmbQTR.ListIndex(), expected.quarterRow) << when;
    EXPECT_EQ(tool.cmbYear.Text(), expected.year) << when;
    EXPECT_EQ(tool.cmbYear.ListIndex(), expected.yearRow) << when;
    EXPECT_EQ(tool.txtFrom.Text(), expected.from) << when;
    EXPECT_EQ(tool.txtTo.Text(), expected.to) << when;
}

/// The last moment of a month of 2024.
Date endOf(int month)
{
    return makeDate(2024, month + 1, 1, 0, 0, -1);
}

} // namespace

TEST(LoadToolStart, PreselectsTheNewestFinishedQuarterOfAnyMonth)
{
    for (const QuarterCase& expected : kQuarters) {
        for (const Date now : {makeDate(2024, expected.month, 1), endOf(expected.month)}) {
            const LoadTool rig(now);
            expectPreselected(rig.tool, expected, "month " + std::to_string(expected.month));
        }
    }
}

TEST(LoadToolStart, InJanuaryTheYearIsTheLastOneButTheListBeginsWithThePresentOne)
{
    const LoadTool rig(makeDate(2025, 1, 15, 9));
    EXPECT_EQ(rig.tool.cmbYear.List(), (Lines{"2025", "2024", "2023"}));
    EXPECT_EQ(rig.tool.cmbYear.Text(), "2024");
    EXPECT_EQ(rig.tool.cmbQTR.Text(), "Q4");
    EXPECT_EQ(rig.tool.txtFrom.Text(), "10/1/2024");
    EXPECT_EQ(rig.tool.txtTo.Text(), "12/31/2024");
}

TEST(LoadToolStart, OffersFourQuartersAndThreeYears)
{
    const LoadTool rig;
    EXPECT_EQ(rig.tool.cmbQTR.List(), (Lines{"Q1", "Q2", "Q3", "Q4"}));
    EXPECT_EQ(rig.tool.cmbYear.List(), (Lines{"2024", "2023", "2022"}));
}

TEST(LoadToolStart, WritesTheDatesAsTheRegionDoes)
{
    const LoadTool rig(makeDate(2024, 8, 3), "de-DE");
    EXPECT_EQ(rig.tool.txtFrom.Text(), "01.04.2024");
    EXPECT_EQ(rig.tool.txtTo.Text(), "30.06.2024");
    EXPECT_EQ(rig.tool.cmbYear.Text(), "2024");
}

TEST(LoadToolStart, TakesTheSpecifiedDatesFromTheirBoxes)
{
    for (const char* region : {"en-US", "en-GB", "de-DE", "fr-FR"}) {
        const LoadTool rig(makeDate(2024, 8, 3, 17, 5), region);
        EXPECT_EQ(rig.tool.StartDate(), makeDate(2024, 4, 1)) << region;
        EXPECT_EQ(rig.tool.EndDate(), makeDate(2024, 6, 30)) << region;
    }
}

TEST(LoadToolStart, HasNoUnitAndNoParameter)
{
    const LoadTool rig;
    EXPECT_EQ(rig.tool.DIServer(), nullptr);
    for (const auto* list : {&rig.tool.cmbUnit, &rig.tool.cmbParam}) {
        EXPECT_EQ(list->listCount(), 0);
        EXPECT_EQ(list->ListIndex(), -1);
        EXPECT_EQ(list->Text(), "");
        EXPECT_TRUE(list->Enabled());
    }
}

TEST(LoadToolStart, MinimumAndCapacityAreZero)
{
    const LoadTool rig;
    EXPECT_EQ(rig.tool.txtMinSafe.Text(), "0");
    EXPECT_EQ(rig.tool.txtCapacity.Text(), "0");
    EXPECT_EQ(rig.tool.evaluation().MinSafeValue, 0);
    EXPECT_EQ(rig.tool.evaluation().CapacityValue, 0);
    EXPECT_TRUE(rig.tool.txtMinSafe.Enabled());
    EXPECT_TRUE(rig.tool.txtCapacity.Enabled());
    EXPECT_TRUE(rig.tool.lblCapacity.Enabled());
}

TEST(LoadToolStart, LooksForFourQuartersAndNotForDates)
{
    const LoadTool rig;
    EXPECT_TRUE(rig.tool.optTimeEnd.isSelected());
    EXPECT_FALSE(rig.tool.optTimeSelect.isSelected());
    EXPECT_TRUE(rig.tool.cmbYear.Enabled());
    EXPECT_TRUE(rig.tool.cmbQTR.Enabled());
    EXPECT_FALSE(rig.tool.txtFrom.Enabled());
    EXPECT_FALSE(rig.tool.cmdFrom.Enabled());
    EXPECT_FALSE(rig.tool.txtTo.Enabled());
    EXPECT_FALSE(rig.tool.cmdTo.Enabled());
}

TEST(LoadToolStart, HasNothingToSaveAndEverythingToEvaluate)
{
    const LoadTool rig;
    EXPECT_FALSE(rig.tool.cmdSave.Enabled());
    EXPECT_TRUE(rig.tool.NeedsEvaluation());
    EXPECT_FALSE(rig.tool.chkShowPID.isChecked());
    EXPECT_FALSE(rig.tool.chkPreview.isChecked());
    EXPECT_TRUE(rig.tool.cmdCalculate.Enabled());
    EXPECT_TRUE(rig.tool.cmdClose.Enabled());
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Default);
}

TEST(LoadToolStart, ShowsNoResults)
{
    const LoadTool rig;
    EXPECT_TRUE(isCleared(rig.tool));
    EXPECT_EQ(countsOf(rig.tool.evaluation()), HourCounts());
    EXPECT_EQ(rig.tool.evaluation().Bins, histogram::HourBins());
    EXPECT_EQ(rig.tool.evaluation().MaxObserved, 0);
}

TEST(LoadToolStart, AsksForNothing)
{
    const LoadTool rig;
    EXPECT_TRUE(rig.services.boxes.empty());
    EXPECT_TRUE(rig.services.filters.empty());
    EXPECT_TRUE(rig.services.dateRequests.empty());
}

TEST(LoadToolStart, ClosingIsLeftToTheHost)
{
    LoadRig rig;
    int closed = 0;
    rig.tool.CloseClicked.Connect([&] { ++closed; });
    EXPECT_EQ(rig.changesBy([&] { rig.tool.cmdClose.Press(); }), Lines());
    EXPECT_EQ(closed, 1);
    EXPECT_NE(rig.tool.DIServer(), nullptr);
}

} // namespace k7deval::test
