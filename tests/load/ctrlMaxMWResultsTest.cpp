#include "load/LoadRig.h"

#include <gtest/gtest.h>

#include <cmath>

/// What the load tool shows of its results.
namespace k7deval::test
{

namespace
{

Lines percentsOf(const ctrlMaxMW& tool)
{
    return {tool.lblLowOpPercent.Caption(), tool.lblMidOpPercent.Caption(),
            tool.lblHighOpPercent.Caption()};
}

Lines scaleOf(const ctrlMaxMW& tool)
{
    return {tool.lblMinSafe.Caption(), tool.lblLow.Caption(), tool.lblMid.Caption(),
            tool.lblMax.Caption()};
}

const Lines kDashes{"-----", "-----", "-----"};

/// Hours in each of the levels of 0 to 100.
struct LevelsRig : LoadRig {
    LevelsRig(std::size_t low, std::size_t mid, std::size_t high,
              const std::string& region = "en-US")
        : LoadRig(siteOfLoads(), makeDate(2024, 5, 10), region)
    {
        addHours(low, 10).addHours(mid, 50).addHours(high, 90).calculate();
    }
};

struct PercentCase {
    std::size_t low;
    std::size_t mid;
    std::size_t high;
    const char* percents[3];
};

constexpr PercentCase kPercents[] = {
    {1, 0, 2, {"33.3", "0.0", "66.7"}},    {1, 1, 1, {"33.3", "33.3", "33.3"}},
    {1, 0, 0, {"100.0", "0.0", "0.0"}},    {1, 3, 12, {"6.3", "18.8", "75.0"}},
    {1, 1, 6, {"12.5", "12.5", "75.0"}},   {1, 1998, 1, {"0.1", "99.9", "0.1"}},
    {1, 2000, 0, {"0.0", "100.0", "0.0"}}, {7, 200, 1, {"3.4", "96.2", "0.5"}},
};

/// A bar's top as its hours and those of the fullest bin make it.
float topOf(std::int32_t hours, std::int32_t peak)
{
    const auto top = static_cast<float>(2700 - double(hours) / double(peak) * 2055);
    const auto whole = static_cast<std::int32_t>(std::nearbyint(top));
    const std::int32_t snapped = whole - whole % 15;
    return static_cast<float>(hours > 0 && snapped == 2700 ? 2685 : snapped);
}

bool hasFlatBars(const ctrlMaxMW& tool)
{
    for (int bar = 1; bar <= 20; ++bar) {
        const screen::Label& label = tool.lblBar[bar];
        if (label.place().Top != 2700 || label.place().Height != 15 || !label.ToolTipText().empty())
            return false;
    }
    return true;
}

/// So many hours in a bin of 0 to 100.
void addToBin(LoadRig& rig, int bin, std::size_t hours)
{
    rig.addHours(hours, bin * 5 - 2.5);
}

void expectTop(const LoadRig& rig, int bar, float top)
{
    const screen::Geometry& place = rig.tool.lblBar[bar].place();
    EXPECT_EQ(place.Top, top) << bar;
    EXPECT_EQ(place.Height, 2700 - top) << bar;
}

} // namespace

TEST(LoadResults, NameUnitAndParameter)
{
    LoadRig rig;
    rig.calculate();
    EXPECT_EQ(rig.tool.lblHeader.Caption(), "GT1 GT1 Load");
}

TEST(LoadResults, NameTheParameterWithoutItsPID)
{
    LoadRig rig;
    rig.tool.chkShowPID.Press();
    rig.calculate();
    EXPECT_EQ(rig.tool.lblHeader.Caption(), "GT1 GT1 Load");
}

TEST(LoadResults, NameTheParameterAsItIsNow)
{
    LoadRig rig;
    rig.site->parameter(kGT1Load).name = "Gross Load";
    rig.calculate();
    EXPECT_EQ(rig.tool.lblHeader.Caption(), "GT1 Gross Load");
}

TEST(LoadResults, OfAParameterThatIsGoneHaveNoHeader)
{
    LoadRig rig;
    std::erase_if(rig.site->parameters, [](const auto& p) { return p.pid == kGT1Load; });
    rig.calculate();
    EXPECT_EQ(rig.tool.lblHeader.Caption(), "");
    EXPECT_EQ(percentsOf(rig.tool), kDashes);
    EXPECT_EQ(scaleOf(rig.tool), (Lines{"0", "30", "60", "100"}));
    EXPECT_EQ(rig.tool.lblBelow.Caption(), "0 hour(s) under 0");
    EXPECT_EQ(rig.tool.lblAbove.Caption(), "0 hours(s) over 100");
    EXPECT_TRUE(hasFlatBars(rig.tool));
}

TEST(LoadResults, OfAParameterThatGoesLaterKeepTheirHeader)
{
    LoadRig rig;
    rig.hours({10}).calculate();
    std::erase_if(rig.site->parameters, [](const auto& p) { return p.pid == kGT1Load; });
    EXPECT_EQ(rig.changesBy([&] { rig.calculate(); }), Lines());
    EXPECT_EQ(rig.tool.lblHeader.Caption(), "GT1 GT1 Load");
}

TEST(LoadResults, ShowTheValuesAtTheFourMarks)
{
    LoadRig rig;
    rig.calculate();
    EXPECT_EQ(scaleOf(rig.tool), (Lines{"0", "30", "60", "100"}));
    rig.range("12.5", "187.3").calculate();
    EXPECT_EQ(scaleOf(rig.tool), (Lines{"12.5", "64.94", "117.38", "187.3"}));
    rig.range("-10", "12345678").calculate();
    EXPECT_EQ(scaleOf(rig.tool), (Lines{"-10", "3703696", "7407403", "1.234568E+07"}));
}

TEST(LoadResults, AreWrittenAsTheRegionDoes)
{
    LevelsRig rig(1, 0, 2, "de-DE");
    EXPECT_EQ(percentsOf(rig.tool),
              (Lines{"33,3% Low Op Load", "0,0% Mid Op Load", "66,7% High Op Load"}));
    rig.range("12,5", "20,1").hours({13, 30.25}).calculate();
    EXPECT_EQ(scaleOf(rig.tool), (Lines{"12,5", "14,78", "17,06", "20,1"}));
    EXPECT_EQ(rig.tool.lblBelow.Caption(), "0 hour(s) under 12,5");
    EXPECT_EQ(rig.tool.lblAbove.Caption(), "1 hour(s) over 20,1 - Maximum 30,25");
    EXPECT_EQ(rig.tool.lblBar[2].ToolTipText(), "12,88 - 13,26   Op Hours: 1");
}

TEST(LoadResults, ShowTheShareOfEveryLevel)
{
    for (const PercentCase& expected : kPercents) {
        const LevelsRig rig(expected.low, expected.mid, expected.high);
        EXPECT_EQ(percentsOf(rig.tool),
                  (Lines{std::string(expected.percents[0]) + "% Low Op Load",
                         std::string(expected.percents[1]) + "% Mid Op Load",
                         std::string(expected.percents[2]) + "% High Op Load"}));
    }
}

TEST(LoadResults, TheSharesAreOfTheHoursInTheRangeAlone)
{
    LoadRig rig;
    rig.hours({10, 90, -1, -1, -1, 150, 150}).calculate();
    EXPECT_EQ(percentsOf(rig.tool),
              (Lines{"50.0% Low Op Load", "0.0% Mid Op Load", "50.0% High Op Load"}));
}

TEST(LoadResults, CountTheHoursUnderTheMinimum)
{
    LoadRig rig;
    rig.range("12.5", "100").hours({1, 12.4, 12.5}).calculate();
    EXPECT_EQ(rig.tool.lblBelow.Caption(), "2 hour(s) under 12.5");
}

TEST(LoadResults, CountTheHoursOverTheCapacityWithTheirMaximum)
{
    LoadRig rig;
    rig.hours({100.1, 250.25, 101}).calculate();
    EXPECT_EQ(rig.tool.lblAbove.Caption(), "3 hour(s) over 100 - Maximum 250.25");
}

TEST(LoadResults, WithoutHoursOverTheCapacityNoMaximumIsShown)
{
    LoadRig rig;
    rig.hours({250}).calculate();
    rig.hours({50}).range("1", "100").calculate();
    EXPECT_EQ(rig.results().MaxObserved, 250);
    EXPECT_EQ(rig.tool.lblAbove.Caption(), "0 hours(s) over 100");
}

TEST(LoadResults, ShowTheMaximumOfAnEarlierEvaluation)
{
    LoadRig rig;
    rig.hours({250}).calculate();
    rig.hours({120, 110}).range("1", "100").calculate();
    EXPECT_EQ(rig.tool.lblAbove.Caption(), "2 hour(s) over 100 - Maximum 250");
}

TEST(LoadResults, WithoutAnyHourAreDashesAndFlatBars)
{
    LoadRig rig;
    rig.calculate();
    EXPECT_EQ(percentsOf(rig.tool), kDashes);
    EXPECT_EQ(rig.tool.lblBelow.Caption(), "0 hour(s) under 0");
    EXPECT_EQ(rig.tool.lblAbove.Caption(), "0 hours(s) over 100");
    EXPECT_TRUE(hasFlatBars(rig.tool));
}

TEST(LoadResults, OfHoursOverTheCapacityAloneAreDashesAndFlatBars)
{
    LoadRig rig;
    rig.hours({120, 130}).calculate();
    EXPECT_EQ(percentsOf(rig.tool), kDashes);
    EXPECT_EQ(rig.tool.lblAbove.Caption(), "2 hour(s) over 100 - Maximum 130");
    EXPECT_TRUE(hasFlatBars(rig.tool));
}

TEST(LoadResults, OfHoursUnderTheMinimumAloneAreDashesAndFlatBars)
{
    LoadRig rig;
    rig.hours({-1, -2, -3}).calculate();
    EXPECT_EQ(percentsOf(rig.tool), kDashes);
    EXPECT_EQ(rig.tool.lblBelow.Caption(), "3 hour(s) under 0");
    EXPECT_TRUE(hasFlatBars(rig.tool));
}

TEST(LoadResults, OfNoRangeAreDashesAndFlatBars)
{
    LoadRig rig;
    rig.range("100", "100").hours({100}).calculate();
    EXPECT_EQ(percentsOf(rig.tool), kDashes);
    EXPECT_EQ(rig.tool.lblHeader.Caption(), "GT1 GT1 Load");
    EXPECT_EQ(scaleOf(rig.tool), (Lines{"100", "100", "100", "100"}));
    EXPECT_TRUE(hasFlatBars(rig.tool));
}

TEST(LoadResults, LeaveTheFixedTexts)
{
    LoadRig rig;
    rig.hours({10}).calculate();
    EXPECT_EQ(rig.tool.lbl000.Caption(), "Minimum");
    EXPECT_EQ(rig.tool.lbl030.Caption(), "30%");
    EXPECT_EQ(rig.tool.lbl060.Caption(), "60%");
    EXPECT_EQ(rig.tool.lbl100.Caption(), "Maximum");
}

TEST(LoadBars, TheFullestReachesUpToTheMarks)
{
    LoadRig rig;
    addToBin(rig, 3, 12);
    rig.calculate();
    expectTop(rig, 3, 645);
}

TEST(LoadBars, OthersAreRelativeToTheFullest)
{
    LoadRig rig;
    addToBin(rig, 1, 10);
    addToBin(rig, 2, 5);  // 2700 - 1027.5 is 1672.5, to the even 1672, on the grid 1665.
    addToBin(rig, 20, 1); // 2700 - 205.5 is 2494.5, to the even 2494, on the grid 2490.
    rig.calculate();
    expectTop(rig, 1, 645);
    expectTop(rig, 2, 1665);
    expectTop(rig, 20, 2490);
}

TEST(LoadBars, ABinWithoutHoursHasNoHeightOnceAnyOtherHas)
{
    LoadRig rig;
    addToBin(rig, 7, 4);
    rig.calculate();
    for (int bar = 1; bar <= 20; ++bar)
        expectTop(rig, bar, bar == 7 ? 645 : 2700);
}

TEST(LoadBars, ABinWithAnyHourIsAPixelHigh)
{
    LoadRig rig;
    addToBin(rig, 4, 1600);
    addToBin(rig, 9, 1);
    rig.calculate();
    expectTop(rig, 9, 2685);
}

TEST(LoadBars, OfAnyHoursStandOnTheGrid)
{
    LoadRig rig;
    const std::int32_t peak = 20 * 20 + 3;
    for (int bin = 1; bin <= 20; ++bin)
        addToBin(rig, bin, static_cast<std::size_t>(bin * bin + 3));
    rig.specify("1/1/2024", "12/31/2024").calculate();
    for (int bar = 1; bar <= 20; ++bar)
        expectTop(rig, bar, topOf(bar * bar + 3, peak));
}

TEST(LoadBars, KeepTheirPlaceAndWidth)
{
    LoadRig rig;
    const screen::Geometry before = rig.tool.lblBar[5].place();
    addToBin(rig, 5, 3);
    rig.calculate();
    EXPECT_EQ(rig.tool.lblBar[5].place().Left, before.Left);
    EXPECT_EQ(rig.tool.lblBar[5].place().Width, before.Width);
}

TEST(LoadBars, TellTheirRangeAndHours)
{
    LoadRig rig;
    addToBin(rig, 3, 12);
    rig.calculate();
    EXPECT_EQ(rig.tool.lblBar[3].ToolTipText(), "10 - 15   Op Hours: 12");
    EXPECT_EQ(rig.tool.lblBar[1].ToolTipText(), "0 - 5   Op Hours: 0");
    EXPECT_EQ(rig.tool.lblBar[20].ToolTipText(), "95 - 100   Op Hours: 0");
    EXPECT_EQ(rig.tool.lblBar[0].ToolTipText(), "");
}

TEST(LoadBars, TellTheirRangeAboveTheMinimum)
{
    LoadRig rig;
    rig.range("12.5", "187.3").hours({12.5}).calculate();
    EXPECT_EQ(rig.tool.lblBar[1].ToolTipText(), "12.5 - 21.24   Op Hours: 1");
    EXPECT_EQ(rig.tool.lblBar[2].ToolTipText(), "21.24 - 29.98   Op Hours: 0");
    EXPECT_EQ(rig.tool.lblBar[20].ToolTipText(), "178.56 - 187.3   Op Hours: 0");
}

TEST(LoadBars, OfTheNextEvaluationReplaceThem)
{
    LoadRig rig;
    addToBin(rig, 3, 12);
    rig.calculate();
    rig.hours({}).range("1", "100").calculate();
    EXPECT_TRUE(hasFlatBars(rig.tool));
}

TEST(LoadResultsCleared, KeepTheEvaluation)
{
    LoadRig rig;
    rig.hours({-1, 10, 50, 90, 150}).calculate();
    const auto bins = rig.results().Bins;
    rig.tool.cmbParam.Pick(0);
    EXPECT_TRUE(isCleared(rig.tool));
    EXPECT_EQ(countsOf(rig.results()),
              (HourCounts{.low = 1, .mid = 1, .high = 1, .over = 1, .under = 1}));
    EXPECT_EQ(rig.results().Bins, bins);
    EXPECT_EQ(rig.results().MaxObserved, 150);
}

TEST(LoadResultsCleared, LeaveTheFixedTexts)
{
    LoadRig rig;
    rig.calculate();
    rig.tool.cmbParam.Pick(0);
    EXPECT_EQ(rig.tool.lbl000.Caption(), "Minimum");
    EXPECT_EQ(rig.tool.lbl100.Caption(), "Maximum");
}

} // namespace k7deval::test
