#include "foundation/DateText.h"
#include "load/LoadRig.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <utility>

/// The period of a load evaluation, and what makes its results stale.
namespace k7deval::test
{

namespace
{

screen::MsgBoxRequest resettingTo(const std::string& day)
{
    return {"A custom evaluation period greater than 5 quarters\r\nis not supported.\r\n"
            "Setting evaluation start time to " +
                day + ".",
            "Resetting Evaluation Period", screen::MsgBoxButtons::OK, screen::MsgBoxIcon::None};
}

/// The first hour that was read, and how many.
using HoursRead = std::pair<Date, std::int64_t>;
const Date kLastDate = makeDate(9999, 12, 31);

/// The load tool on specified dates, with a minimum that needs no verification.
struct DatesRig : LoadRig {
    DatesRig(const std::string& from, const std::string& to)
    {
        enter(tool.txtMinSafe, "1");
        specify(from, to);
    }
    [[nodiscard]] Lines dates() const { return {tool.txtFrom.Text(), tool.txtTo.Text()}; }
    HoursRead hoursRead()
    {
        HoursRead all{kLastDate, 0};
        for (const ReadRequest& read : takeReads())
            all = {std::min(all.first, read.start), all.second + read.count};
        return all;
    }
};

struct LimitCase {
    const char* what;
    const char* from;
    const char* to;
    int calculations;
    const char* said; ///< The new start, as the box writes it; empty without a box.
    const char* start;
    const char* end;
    const char* firstDayRead; ///< By the first calculation; another one reads nothing.
    std::int64_t daysRead;
};

constexpr LimitCase kLimits[] = {
    {"one day", "2/5/2024", "2/5/2024", 1, "", "2/5/2024", "2/5/2024", "2/5/2024", 1},
    {"457 days apart pass in silence", "1/1/2024", "4/2/2025", 1, "", "1/1/2024", "4/2/2025",
     "1/1/2024", 458},
    {"at 458 days apart the start moves a day", "1/1/2024", "4/3/2025", 1, "01/02/24", "1/2/2024",
     "4/3/2025", "1/2/2024", 458},
    {"which is said once", "1/1/2024", "4/3/2025", 2, "01/02/24", "1/2/2024", "4/3/2025",
     "1/2/2024", 458},
    {"a start of years ago", "1/1/1999", "3/31/2024", 1, "12/30/22", "12/30/2022", "3/31/2024",
     "12/30/2022", 458},
    {"in reverse order they are swapped", "2/9/2024", "2/5/2024", 1, "", "2/5/2024", "2/9/2024",
     "2/5/2024", 5},
    {"and pass however far apart", "8/23/2025", "1/1/2024", 1, "", "1/1/2024", "8/23/2025",
     "1/1/2024", 601},
    {"until the next calculation", "8/23/2025", "1/1/2024", 2, "05/23/24", "5/23/2024", "8/23/2025",
     "1/1/2024", 601},
};

std::vector<screen::MsgBoxRequest> boxesOf(const LimitCase& row)
{
    if (*row.said == '\0')
        return {};
    return {resettingTo(row.said)};
}

using Action = std::function<void(LoadRig&)>;

struct StaleCase {
    const char* what;
    Action action;
};

/// Set, cleared, nothing to save.
const StaleCase kMarkStale[] = {
    {"a unit", [](auto& rig) { rig.tool.cmbUnit.Pick(1); }},
    {"the same unit", [](auto& rig) { rig.tool.cmbUnit.Pick(0); }},
    {"a unit by code", [](auto& rig) { rig.tool.cmbUnit.SetListIndex(0); }},
    {"the same parameter", [](auto& rig) { rig.tool.cmbParam.Pick(0); }},
    {"a parameter by code", [](auto& rig) { rig.tool.cmbParam.SetListIndex(0); }},
    {"a typed year", [](auto& rig) { rig.tool.cmbYear.Type("2021"); }},
    {"a typed text that is no year", [](auto& rig) { rig.tool.cmbYear.Type("x"); }},
    {"a year's text by code", [](auto& rig) { rig.tool.cmbYear.SetText("2021"); }},
    {"specified dates", [](auto& rig) { rig.tool.optTimeSelect.Press(); }},
    {"specified dates by code", [](auto& rig) { rig.tool.optTimeSelect.setSelected(true); }},
    {"the data", [](auto& rig) { rig.tool.SetDIServer(rig.tool.DIServer()); }},
};

const StaleCase kLeaveResults[] = {
    {"a year of the list", [](auto& rig) { rig.tool.cmbYear.Pick(1); }},
    {"a quarter", [](auto& rig) { rig.tool.cmbQTR.Pick(2); }},
    {"the same year", [](auto& rig) { rig.tool.cmbYear.Pick(0); }},
    {"the year typed as it is", [](auto& rig) { rig.tool.cmbYear.Type("2024"); }},
    {"the option that is selected", [](auto& rig) { rig.tool.optTimeEnd.Press(); }},
    {"PIDs", [](auto& rig) { rig.tool.chkShowPID.Press(); }},
    {"the preview", [](auto& rig) { rig.tool.chkPreview.Press(); }},
    {"closing", [](auto& rig) { rig.tool.cmdClose.Press(); }},
    {"a cancelled save", [](auto& rig) { rig.tool.cmdSave.Press(); }},
    {"dates out of reach", [](auto& rig) { rig.tool.txtFrom.Type("1/1/2020"); }},
};

} // namespace

TEST(LoadStaleness, WhatMakesResultsStaleLeavesNothingToSave)
{
    for (const StaleCase& change : kMarkStale) {
        LoadRig rig;
        rig.hours({10, 50, 90}).calculate();
        ASSERT_FALSE(rig.tool.NeedsEvaluation());
        change.action(rig);
        EXPECT_TRUE(rig.tool.NeedsEvaluation()) << change.what;
        EXPECT_TRUE(isCleared(rig.tool)) << change.what;
        EXPECT_FALSE(rig.tool.cmdSave.Enabled()) << change.what;
    }
}

TEST(LoadStaleness, OtherActionsLeaveTheResults)
{
    for (const StaleCase& change : kLeaveResults) {
        LoadRig rig;
        rig.hours({10, 50, 90}).calculate();
        change.action(rig);
        EXPECT_FALSE(rig.tool.NeedsEvaluation()) << change.what;
        EXPECT_EQ(rig.tool.lblHeader.Caption(), "GT1 GT1 Load") << change.what;
        EXPECT_NE(rig.tool.lblBar[2].ToolTipText(), "") << change.what;
        EXPECT_TRUE(rig.tool.cmdSave.Enabled()) << change.what;
    }
}

TEST(LoadStaleness, ATypedYearIsReadByTheNextCalculation)
{
    LoadRig rig;
    rig.hours({10, 50, 90}).calculate();
    rig.takeReads();
    rig.tool.cmbQTR.Pick(3);
    rig.tool.cmbYear.Type("2022");
    rig.calculate();
    EXPECT_EQ(rig.takeReads().front(), (ReadRequest{kGT1Load, makeDate(2022, 10, 1), 92 * 24}));
}

TEST(LoadPeriodOption, SpecifiedDatesTakeTheirFieldsInAndTheQuartersOut)
{
    LoadRig rig;
    rig.tool.optTimeSelect.Press();
    EXPECT_TRUE(rig.tool.optTimeSelect.isSelected());
    EXPECT_FALSE(rig.tool.optTimeEnd.isSelected());
    EXPECT_FALSE(rig.tool.cmbYear.Enabled());
    EXPECT_FALSE(rig.tool.cmbQTR.Enabled());
    for (const screen::Widget* widget : std::initializer_list<const screen::Widget*>{
             &rig.tool.txtFrom, &rig.tool.cmdFrom, &rig.tool.txtTo, &rig.tool.cmdTo})
        EXPECT_TRUE(widget->Enabled()) << widget->Name();
}

TEST(LoadPeriodOption, FourQuartersTakeThemBack)
{
    LoadRig rig;
    rig.tool.optTimeSelect.Press();
    rig.hours({50}).calculate();
    rig.tool.optTimeEnd.Press();
    EXPECT_TRUE(rig.tool.cmbYear.Enabled());
    EXPECT_TRUE(rig.tool.cmbQTR.Enabled());
    for (const screen::Widget* widget : std::initializer_list<const screen::Widget*>{
             &rig.tool.txtFrom, &rig.tool.cmdFrom, &rig.tool.txtTo, &rig.tool.cmdTo})
        EXPECT_FALSE(widget->Enabled()) << widget->Name();
    EXPECT_TRUE(rig.tool.NeedsEvaluation());
    EXPECT_TRUE(isCleared(rig.tool));
    EXPECT_FALSE(rig.tool.cmdSave.Enabled());
}

TEST(LoadPeriodOption, WhatWasEnteredStays)
{
    LoadRig rig;
    rig.tool.cmbYear.Type("2020");
    rig.specify("2/5/2024", "2/9/2024");
    rig.tool.optTimeEnd.Press();
    EXPECT_EQ(rig.tool.cmbYear.Text(), "2020");
    EXPECT_EQ(rig.tool.txtFrom.Text(), "2/5/2024");
    EXPECT_EQ(rig.tool.txtTo.Text(), "2/9/2024");
}

TEST(LoadDatesLimit, MovesAStartMoreThan457DaysBeforeTheEnd)
{
    for (const LimitCase& row : kLimits) {
        SCOPED_TRACE(row.what);
        DatesRig rig(row.from, row.to);
        for (int time = 0; time < row.calculations; ++time)
            rig.calculate();
        const auto dateOf = [&](const char* text) { return ToDate(text, rig.regional, {}); };
        EXPECT_EQ(rig.services.boxes, boxesOf(row));
        EXPECT_EQ(rig.dates(), (Lines{row.start, row.end}));
        EXPECT_EQ(rig.tool.StartDate(), dateOf(row.start));
        EXPECT_EQ(rig.tool.EndDate(), dateOf(row.end));
        EXPECT_EQ(rig.hoursRead(), (HoursRead{dateOf(row.firstDayRead), row.daysRead * 24}));
        EXPECT_FALSE(rig.tool.NeedsEvaluation());
    }
}

TEST(LoadDatesLimit, DoesNotHoldWhileFourQuartersAreLookedFor)
{
    DatesRig rig("1/1/2020", "4/3/2025");
    rig.tool.optTimeEnd.Press();
    rig.calculate();
    EXPECT_TRUE(rig.services.boxes.empty());
    EXPECT_EQ(rig.dates(), (Lines{"1/1/2020", "4/3/2025"}));
}

TEST(LoadDatesLimit, AFailingBoxLeavesTheDates)
{
    DatesRig rig("1/1/2024", "4/3/2025");
    rig.services.msgBoxError = Error(440);
    EXPECT_EQ(errorOf([&] { rig.calculate(); }), 440);
    EXPECT_EQ(rig.dates(), (Lines{"1/1/2024", "4/3/2025"}));
    EXPECT_EQ(rig.tool.StartDate(), makeDate(2024, 1, 1));
    EXPECT_TRUE(rig.takeReads().empty());
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Hourglass);
}

TEST(LoadDatesLimit, WritesTheDatesAsTheRegionDoes)
{
    LoadRig rig(siteOfLoads(), makeDate(2024, 5, 10), "en-GB");
    rig.range("1", "100").specify("3/4/2025", "1/1/2024").calculate();
    EXPECT_EQ(rig.tool.txtFrom.Text(), "01/01/2024");
    EXPECT_EQ(rig.tool.txtTo.Text(), "03/04/2025");
}

} // namespace k7deval::test
