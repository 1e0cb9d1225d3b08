#include "load/LoadBench.h"

#include <gtest/gtest.h>

#include <functional>
#include <numeric>

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

/// The load tool on specified dates, with a minimum that needs no verification.
struct DatesBench : LoadBench {
    DatesBench(const std::string& from, const std::string& to)
    {
        enter(tool.txtMinSafe, "1");
        specify(from, to);
    }
    [[nodiscard]] Lines dates() const { return {tool.txtFrom.Text(), tool.txtTo.Text()}; }
    std::int64_t hoursRead()
    {
        const auto reads = takeReads();
        return std::accumulate(
            reads.begin(), reads.end(), std::int64_t{0},
            [](std::int64_t sum, const ReadRequest& read) { return sum + read.count; });
    }
};

using Action = std::function<void(LoadBench&)>;

struct StaleCase {
    const char* what;
    Action action;
};

/// Set, cleared, nothing to save.
const StaleCase kMarkStale[] = {
    {"a unit", [](auto& bench) { bench.tool.cmbUnit.Pick(1); }},
    {"the same unit", [](auto& bench) { bench.tool.cmbUnit.Pick(0); }},
    {"a unit by code", [](auto& bench) { bench.tool.cmbUnit.SetListIndex(0); }},
    {"the same parameter", [](auto& bench) { bench.tool.cmbParam.Pick(0); }},
    {"a parameter by code", [](auto& bench) { bench.tool.cmbParam.SetListIndex(0); }},
    {"a typed year", [](auto& bench) { bench.tool.cmbYear.Type("2021"); }},
    {"a typed text that is no year", [](auto& bench) { bench.tool.cmbYear.Type("x"); }},
    {"a year's text by code", [](auto& bench) { bench.tool.cmbYear.SetText("2021"); }},
    {"specified dates", [](auto& bench) { bench.tool.optTimeSelect.Press(); }},
    {"specified dates by code", [](auto& bench) { bench.tool.optTimeSelect.SetSelected(true); }},
    {"the data", [](auto& bench) { bench.tool.SetDIServer(bench.tool.DIServer()); }},
};

const StaleCase kLeaveResults[] = {
    {"a year of the list", [](auto& bench) { bench.tool.cmbYear.Pick(1); }},
    {"a quarter", [](auto& bench) { bench.tool.cmbQTR.Pick(2); }},
    {"the same year", [](auto& bench) { bench.tool.cmbYear.Pick(0); }},
    {"the year typed as it is", [](auto& bench) { bench.tool.cmbYear.Type("2024"); }},
    {"the option that is selected", [](auto& bench) { bench.tool.optTimeEnd.Press(); }},
    {"PIDs", [](auto& bench) { bench.tool.chkShowPID.Press(); }},
    {"the preview", [](auto& bench) { bench.tool.chkPreview.Press(); }},
    {"closing", [](auto& bench) { bench.tool.cmdClose.Press(); }},
    {"a cancelled save", [](auto& bench) { bench.tool.cmdSave.Press(); }},
    {"dates out of reach", [](auto& bench) { bench.tool.txtFrom.Type("1/1/2020"); }},
};

} // namespace

TEST(LoadStaleness, WhatMakesResultsStaleLeavesNothingToSave)
{
    for (const StaleCase& change : kMarkStale) {
        LoadBench bench;
        bench.hours({10, 50, 90}).calculate();
        ASSERT_FALSE(bench.tool.NeedsEvaluation());
        change.action(bench);
        EXPECT_TRUE(bench.tool.NeedsEvaluation()) << change.what;
        EXPECT_TRUE(isCleared(bench.tool)) << change.what;
        EXPECT_FALSE(bench.tool.cmdSave.Enabled()) << change.what;
    }
}

TEST(LoadStaleness, OtherActionsLeaveTheResults)
{
    for (const StaleCase& change : kLeaveResults) {
        LoadBench bench;
        bench.hours({10, 50, 90}).calculate();
        change.action(bench);
        EXPECT_FALSE(bench.tool.NeedsEvaluation()) << change.what;
        EXPECT_EQ(bench.tool.lblHeader.Caption(), "GT1 GT1 Load") << change.what;
        EXPECT_NE(bench.tool.lblBar[2].ToolTipText(), "") << change.what;
        EXPECT_TRUE(bench.tool.cmdSave.Enabled()) << change.what;
    }
}

TEST(LoadStaleness, AQuarterPickedFromTheListIsNotReadByTheNextCalculation)
{
    LoadBench bench;
    bench.hours({10, 50, 90}).calculate();
    bench.takeReads();
    bench.tool.cmbQTR.Pick(3);
    bench.tool.cmbYear.Pick(2);
    EXPECT_EQ(bench.changesBy([&] { bench.calculate(); }), Lines());
    EXPECT_TRUE(bench.takeReads().empty());
}

TEST(LoadStaleness, ATypedYearIsReadByTheNextCalculation)
{
    LoadBench bench;
    bench.hours({10, 50, 90}).calculate();
    bench.takeReads();
    bench.tool.cmbQTR.Pick(3);
    bench.tool.cmbYear.Type("2022");
    bench.calculate();
    EXPECT_EQ(bench.takeReads().front(), (ReadRequest{kGT1Load, makeDate(2022, 10, 1), 92 * 24}));
}

TEST(LoadPeriodOption, SpecifiedDatesTakeTheirFieldsInAndTheQuartersOut)
{
    LoadBench bench;
    bench.tool.optTimeSelect.Press();
    EXPECT_TRUE(bench.tool.optTimeSelect.isSelected());
    EXPECT_FALSE(bench.tool.optTimeEnd.isSelected());
    EXPECT_FALSE(bench.tool.cmbYear.Enabled());
    EXPECT_FALSE(bench.tool.cmbQTR.Enabled());
    for (const screen::Widget* widget : std::initializer_list<const screen::Widget*>{
             &bench.tool.txtFrom, &bench.tool.cmdFrom, &bench.tool.txtTo, &bench.tool.cmdTo})
        EXPECT_TRUE(widget->Enabled()) << widget->Name();
}

TEST(LoadPeriodOption, FourQuartersTakeThemBack)
{
    LoadBench bench;
    bench.tool.optTimeSelect.Press();
    bench.hours({50}).calculate();
    bench.tool.optTimeEnd.Press();
    EXPECT_TRUE(bench.tool.cmbYear.Enabled());
    EXPECT_TRUE(bench.tool.cmbQTR.Enabled());
    for (const screen::Widget* widget : std::initializer_list<const screen::Widget*>{
             &bench.tool.txtFrom, &bench.tool.cmdFrom, &bench.tool.txtTo, &bench.tool.cmdTo})
        EXPECT_FALSE(widget->Enabled()) << widget->Name();
    EXPECT_TRUE(bench.tool.NeedsEvaluation());
    EXPECT_TRUE(isCleared(bench.tool));
    EXPECT_FALSE(bench.tool.cmdSave.Enabled());
}

TEST(LoadPeriodOption, WhatWasEnteredStays)
{
    LoadBench bench;
    bench.tool.cmbYear.Type("2020");
    bench.specify("2/5/2024", "2/9/2024");
    bench.tool.optTimeEnd.Press();
    EXPECT_EQ(bench.tool.cmbYear.Text(), "2020");
    EXPECT_EQ(bench.tool.txtFrom.Text(), "2/5/2024");
    EXPECT_EQ(bench.tool.txtTo.Text(), "2/9/2024");
}

TEST(LoadDatesLimit, UpTo457DaysApartPassInSilence)
{
    DatesBench bench("1/1/2024", "4/2/2025");
    bench.calculate();
    EXPECT_TRUE(bench.services.boxes.empty());
    EXPECT_EQ(bench.dates(), (Lines{"1/1/2024", "4/2/2025"}));
    EXPECT_EQ(bench.hoursRead(), 458 * 24);
}

TEST(LoadDatesLimit, At458DaysApartTheStartMovesADay)
{
    DatesBench bench("1/1/2024", "4/3/2025");
    bench.calculate();
    EXPECT_EQ(bench.services.boxes, std::vector{resettingTo("01/02/24")});
    EXPECT_EQ(bench.dates(), (Lines{"1/2/2024", "4/3/2025"}));
    EXPECT_EQ(bench.tool.StartDate(), makeDate(2024, 1, 2));
    EXPECT_EQ(bench.tool.EndDate(), makeDate(2025, 4, 3));
    EXPECT_EQ(bench.hoursRead(), 458 * 24);
}

TEST(LoadDatesLimit, AStartOfYearsAgoMovesTo457DaysBeforeTheEnd)
{
    DatesBench bench("1/1/1999", "3/31/2024");
    bench.calculate();
    EXPECT_EQ(bench.services.boxes, std::vector{resettingTo("12/30/22")});
    EXPECT_EQ(bench.dates(), (Lines{"12/30/2022", "3/31/2024"}));
    EXPECT_FALSE(bench.tool.NeedsEvaluation());
}

TEST(LoadDatesLimit, IsSaidOnce)
{
    DatesBench bench("1/1/2024", "4/3/2025");
    bench.calculate().calculate();
    EXPECT_EQ(bench.services.boxes.size(), 1U);
}

TEST(LoadDatesLimit, DatesInReverseOrderAreSwapped)
{
    DatesBench bench("2/9/2024", "2/5/2024");
    bench.calculate();
    EXPECT_TRUE(bench.services.boxes.empty());
    EXPECT_EQ(bench.dates(), (Lines{"2/5/2024", "2/9/2024"}));
    EXPECT_EQ(bench.tool.StartDate(), makeDate(2024, 2, 5));
    EXPECT_EQ(bench.tool.EndDate(), makeDate(2024, 2, 9));
    EXPECT_EQ(bench.takeReads(),
              (std::vector<ReadRequest>{{kGT1Load, makeDate(2024, 2, 5), 5 * 24}}));
}

TEST(LoadDatesLimit, DatesInReverseOrderPassHoweverFarApart)
{
    DatesBench bench("8/23/2025", "1/1/2024");
    bench.calculate();
    EXPECT_TRUE(bench.services.boxes.empty());
    EXPECT_EQ(bench.dates(), (Lines{"1/1/2024", "8/23/2025"}));
    EXPECT_EQ(bench.hoursRead(), 601 * 24);
}

TEST(LoadDatesLimit, SwappedDatesAreHeldToTheLimitByTheNextCalculation)
{
    DatesBench bench("8/23/2025", "1/1/2024");
    bench.calculate().calculate();
    EXPECT_EQ(bench.services.boxes, std::vector{resettingTo("05/23/24")});
    EXPECT_FALSE(bench.tool.NeedsEvaluation()) << "the dates alone do not make results stale";
}

TEST(LoadDatesLimit, OneDayIsAPeriod)
{
    DatesBench bench("2/5/2024", "2/5/2024");
    bench.calculate();
    EXPECT_TRUE(bench.services.boxes.empty());
    EXPECT_EQ(bench.takeReads(), (std::vector<ReadRequest>{{kGT1Load, makeDate(2024, 2, 5), 24}}));
}

TEST(LoadDatesLimit, DoesNotHoldWhileFourQuartersAreLookedFor)
{
    DatesBench bench("1/1/2020", "4/3/2025");
    bench.tool.optTimeEnd.Press();
    bench.calculate();
    EXPECT_TRUE(bench.services.boxes.empty());
    EXPECT_EQ(bench.dates(), (Lines{"1/1/2020", "4/3/2025"}));
}

TEST(LoadDatesLimit, AFailingBoxLeavesTheDates)
{
    DatesBench bench("1/1/2024", "4/3/2025");
    bench.services.msgBoxError = Error(440);
    EXPECT_EQ(errorOf([&] { bench.calculate(); }), 440);
    EXPECT_EQ(bench.dates(), (Lines{"1/1/2024", "4/3/2025"}));
    EXPECT_EQ(bench.tool.StartDate(), makeDate(2024, 1, 1));
    EXPECT_TRUE(bench.takeReads().empty());
    EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Hourglass);
}

TEST(LoadDatesLimit, WritesTheDatesAsTheRegionDoes)
{
    LoadBench bench(siteOfLoads(), makeDate(2024, 5, 10), "en-GB");
    bench.range("1", "100").specify("3/4/2025", "1/1/2024").calculate();
    EXPECT_EQ(bench.tool.txtFrom.Text(), "01/01/2024");
    EXPECT_EQ(bench.tool.txtTo.Text(), "03/04/2025");
}

} // namespace k7deval::test
