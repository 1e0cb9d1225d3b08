#include "load/LoadBench.h"

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
struct LevelsBench : LoadBench {
    LevelsBench(std::size_t low, std::size_t mid, std::size_t high,
                const std::string& region = "en-US")
        : LoadBench(siteOfLoads(), makeDate(2024, 5, 10), region)
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
        if (label.Place().Top != 2700 || label.Place().Height != 15 || !label.ToolTipText().empty())
            return false;
    }
    return true;
}

/// So many hours in a bin of 0 to 100.
void addToBin(LoadBench& bench, int bin, std::size_t hours)
{
    bench.addHours(hours, bin * 5 - 2.5);
}

void expectTop(const LoadBench& bench, int bar, float top)
{
    const screen::Geometry& place = bench.tool.lblBar[bar].Place();
    EXPECT_EQ(place.Top, top) << bar;
    EXPECT_EQ(place.Height, 2700 - top) << bar;
}

} // namespace

TEST(LoadResults, NameUnitAndParameter)
{
    LoadBench bench;
    bench.calculate();
    EXPECT_EQ(bench.tool.lblHeader.Caption(), "GT1 GT1 Load");
}

TEST(LoadResults, NameTheParameterWithoutItsPID)
{
    LoadBench bench;
    bench.tool.chkShowPID.Press();
    bench.calculate();
    EXPECT_EQ(bench.tool.lblHeader.Caption(), "GT1 GT1 Load");
}

TEST(LoadResults, NameTheParameterAsItIsNow)
{
    LoadBench bench;
    bench.site->parameter(kGT1Load).name = "Gross Load";
    bench.calculate();
    EXPECT_EQ(bench.tool.lblHeader.Caption(), "GT1 Gross Load");
}

TEST(LoadResults, OfAParameterThatIsGoneHaveNoHeader)
{
    LoadBench bench;
    std::erase_if(bench.site->parameters, [](const auto& p) { return p.pid == kGT1Load; });
    bench.calculate();
    EXPECT_EQ(bench.tool.lblHeader.Caption(), "");
    EXPECT_EQ(percentsOf(bench.tool), kDashes);
    EXPECT_EQ(scaleOf(bench.tool), (Lines{"0", "30", "60", "100"}));
    EXPECT_EQ(bench.tool.lblBelow.Caption(), "0 hour(s) under 0");
    EXPECT_EQ(bench.tool.lblAbove.Caption(), "0 hours(s) over 100");
    EXPECT_TRUE(hasFlatBars(bench.tool));
}

TEST(LoadResults, OfAParameterThatGoesLaterKeepTheirHeader)
{
    LoadBench bench;
    bench.hours({10}).calculate();
    std::erase_if(bench.site->parameters, [](const auto& p) { return p.pid == kGT1Load; });
    EXPECT_EQ(bench.changesBy([&] { bench.calculate(); }), Lines());
    EXPECT_EQ(bench.tool.lblHeader.Caption(), "GT1 GT1 Load");
}

TEST(LoadResults, ShowTheValuesAtTheFourMarks)
{
    LoadBench bench;
    bench.calculate();
    EXPECT_EQ(scaleOf(bench.tool), (Lines{"0", "30", "60", "100"}));
    bench.range("12.5", "187.3").calculate();
    EXPECT_EQ(scaleOf(bench.tool), (Lines{"12.5", "64.94", "117.38", "187.3"}));
    bench.range("-10", "12345678").calculate();
    EXPECT_EQ(scaleOf(bench.tool), (Lines{"-10", "3703696", "7407403", "1.234568E+07"}));
}

TEST(LoadResults, AreWrittenAsTheRegionDoes)
{
    LevelsBench bench(1, 0, 2, "de-DE");
    EXPECT_EQ(percentsOf(bench.tool),
              (Lines{"33,3% Low Op Load", "0,0% Mid Op Load", "66,7% High Op Load"}));
    bench.range("12,5", "20,1").hours({13, 30.25}).calculate();
    EXPECT_EQ(scaleOf(bench.tool), (Lines{"12,5", "14,78", "17,06", "20,1"}));
    EXPECT_EQ(bench.tool.lblBelow.Caption(), "0 hour(s) under 12,5");
    EXPECT_EQ(bench.tool.lblAbove.Caption(), "1 hour(s) over 20,1 - Maximum 30,25");
    EXPECT_EQ(bench.tool.lblBar[2].ToolTipText(), "12,88 - 13,26   Op Hours: 1");
}

TEST(LoadResults, ShowTheShareOfEveryLevel)
{
    for (const PercentCase& expected : kPercents) {
        const LevelsBench bench(expected.low, expected.mid, expected.high);
        EXPECT_EQ(percentsOf(bench.tool),
                  (Lines{std::string(expected.percents[0]) + "% Low Op Load",
                         std::string(expected.percents[1]) + "% Mid Op Load",
                         std::string(expected.percents[2]) + "% High Op Load"}));
    }
}

TEST(LoadResults, TheSharesAreOfTheHoursInTheRangeAlone)
{
    LoadBench bench;
    bench.hours({10, 90, -1, -1, -1, 150, 150}).calculate();
    EXPECT_EQ(percentsOf(bench.tool),
              (Lines{"50.0% Low Op Load", "0.0% Mid Op Load", "50.0% High Op Load"}));
}

TEST(LoadResults, CountTheHoursUnderTheMinimum)
{
    LoadBench bench;
    bench.range("12.5", "100").hours({1, 12.4, 12.5}).calculate();
    EXPECT_EQ(bench.tool.lblBelow.Caption(), "2 hour(s) under 12.5");
}

TEST(LoadResults, CountTheHoursOverTheCapacityWithTheirMaximum)
{
    LoadBench bench;
    bench.hours({100.1, 250.25, 101}).calculate();
    EXPECT_EQ(bench.tool.lblAbove.Caption(), "3 hour(s) over 100 - Maximum 250.25");
}

TEST(LoadResults, WithoutHoursOverTheCapacityNoMaximumIsShown)
{
    LoadBench bench;
    bench.hours({250}).calculate();
    bench.hours({50}).range("1", "100").calculate();
    EXPECT_EQ(bench.results().MaxObserved, 250);
    EXPECT_EQ(bench.tool.lblAbove.Caption(), "0 hours(s) over 100");
}

TEST(LoadResults, ShowTheMaximumOfAnEarlierEvaluation)
{
    LoadBench bench;
    bench.hours({250}).calculate();
    bench.hours({120, 110}).range("1", "100").calculate();
    EXPECT_EQ(bench.tool.lblAbove.Caption(), "2 hour(s) over 100 - Maximum 250");
}

TEST(LoadResults, WithoutAnyHourAreDashesAndFlatBars)
{
    LoadBench bench;
    bench.calculate();
    EXPECT_EQ(percentsOf(bench.tool), kDashes);
    EXPECT_EQ(bench.tool.lblBelow.Caption(), "0 hour(s) under 0");
    EXPECT_EQ(bench.tool.lblAbove.Caption(), "0 hours(s) over 100");
    EXPECT_TRUE(hasFlatBars(bench.tool));
}

TEST(LoadResults, OfHoursOverTheCapacityAloneAreDashesAndFlatBars)
{
    LoadBench bench;
    bench.hours({120, 130}).calculate();
    EXPECT_EQ(percentsOf(bench.tool), kDashes);
    EXPECT_EQ(bench.tool.lblAbove.Caption(), "2 hour(s) over 100 - Maximum 130");
    EXPECT_TRUE(hasFlatBars(bench.tool));
}

TEST(LoadResults, OfHoursUnderTheMinimumAloneAreDashesAndFlatBars)
{
    LoadBench bench;
    bench.hours({-1, -2, -3}).calculate();
    EXPECT_EQ(percentsOf(bench.tool), kDashes);
    EXPECT_EQ(bench.tool.lblBelow.Caption(), "3 hour(s) under 0");
    EXPECT_TRUE(hasFlatBars(bench.tool));
}

TEST(LoadResults, OfNoRangeAreDashesAndFlatBars)
{
    LoadBench bench;
    bench.range("100", "100").hours({100}).calculate();
    EXPECT_EQ(percentsOf(bench.tool), kDashes);
    EXPECT_EQ(bench.tool.lblHeader.Caption(), "GT1 GT1 Load");
    EXPECT_EQ(scaleOf(bench.tool), (Lines{"100", "100", "100", "100"}));
    EXPECT_TRUE(hasFlatBars(bench.tool));
}

TEST(LoadResults, LeaveTheFixedTexts)
{
    LoadBench bench;
    bench.hours({10}).calculate();
    EXPECT_EQ(bench.tool.lbl000.Caption(), "Minimum");
    EXPECT_EQ(bench.tool.lbl030.Caption(), "30%");
    EXPECT_EQ(bench.tool.lbl060.Caption(), "60%");
    EXPECT_EQ(bench.tool.lbl100.Caption(), "Maximum");
}

TEST(LoadBars, TheFullestReachesUpToTheMarks)
{
    LoadBench bench;
    addToBin(bench, 3, 12);
    bench.calculate();
    expectTop(bench, 3, 645);
}

TEST(LoadBars, OthersAreRelativeToTheFullest)
{
    LoadBench bench;
    addToBin(bench, 1, 10);
    addToBin(bench, 2, 5);  // 2700 - 1027.5 is 1672.5, to the even 1672, on the grid 1665.
    addToBin(bench, 20, 1); // 2700 - 205.5 is 2494.5, to the even 2494, on the grid 2490.
    bench.calculate();
    expectTop(bench, 1, 645);
    expectTop(bench, 2, 1665);
    expectTop(bench, 20, 2490);
}

TEST(LoadBars, ABinWithoutHoursHasNoHeightOnceAnyOtherHas)
{
    LoadBench bench;
    addToBin(bench, 7, 4);
    bench.calculate();
    for (int bar = 1; bar <= 20; ++bar)
        expectTop(bench, bar, bar == 7 ? 645 : 2700);
}

TEST(LoadBars, ABinWithAnyHourIsAPixelHigh)
{
    LoadBench bench;
    addToBin(bench, 4, 1600);
    addToBin(bench, 9, 1);
    bench.calculate();
    expectTop(bench, 9, 2685);
}

TEST(LoadBars, OfAnyHoursStandOnTheGrid)
{
    LoadBench bench;
    const std::int32_t peak = 20 * 20 + 3;
    for (int bin = 1; bin <= 20; ++bin)
        addToBin(bench, bin, static_cast<std::size_t>(bin * bin + 3));
    bench.specify("1/1/2024", "12/31/2024").calculate();
    for (int bar = 1; bar <= 20; ++bar)
        expectTop(bench, bar, topOf(bar * bar + 3, peak));
}

TEST(LoadBars, KeepTheirPlaceAndWidth)
{
    LoadBench bench;
    const screen::Geometry before = bench.tool.lblBar[5].Place();
    addToBin(bench, 5, 3);
    bench.calculate();
    EXPECT_EQ(bench.tool.lblBar[5].Place().Left, before.Left);
    EXPECT_EQ(bench.tool.lblBar[5].Place().Width, before.Width);
}

TEST(LoadBars, TellTheirRangeAndHours)
{
    LoadBench bench;
    addToBin(bench, 3, 12);
    bench.calculate();
    EXPECT_EQ(bench.tool.lblBar[3].ToolTipText(), "10 - 15   Op Hours: 12");
    EXPECT_EQ(bench.tool.lblBar[1].ToolTipText(), "0 - 5   Op Hours: 0");
    EXPECT_EQ(bench.tool.lblBar[20].ToolTipText(), "95 - 100   Op Hours: 0");
    EXPECT_EQ(bench.tool.lblBar[0].ToolTipText(), "");
}

TEST(LoadBars, TellTheirRangeAboveTheMinimum)
{
    LoadBench bench;
    bench.range("12.5", "187.3").hours({12.5}).calculate();
    EXPECT_EQ(bench.tool.lblBar[1].ToolTipText(), "12.5 - 21.24   Op Hours: 1");
    EXPECT_EQ(bench.tool.lblBar[2].ToolTipText(), "21.24 - 29.98   Op Hours: 0");
    EXPECT_EQ(bench.tool.lblBar[20].ToolTipText(), "178.56 - 187.3   Op Hours: 0");
}

TEST(LoadBars, OfTheNextEvaluationReplaceThem)
{
    LoadBench bench;
    addToBin(bench, 3, 12);
    bench.calculate();
    bench.hours({}).range("1", "100").calculate();
    EXPECT_TRUE(hasFlatBars(bench.tool));
}

TEST(LoadResultsCleared, KeepTheEvaluation)
{
    LoadBench bench;
    bench.hours({-1, 10, 50, 90, 150}).calculate();
    const auto bins = bench.results().Bins;
    bench.tool.cmbParam.Pick(0);
    EXPECT_TRUE(isCleared(bench.tool));
    EXPECT_EQ(countsOf(bench.results()),
              (HourCounts{.low = 1, .mid = 1, .high = 1, .over = 1, .under = 1}));
    EXPECT_EQ(bench.results().Bins, bins);
    EXPECT_EQ(bench.results().MaxObserved, 150);
}

TEST(LoadResultsCleared, LeaveTheFixedTexts)
{
    LoadBench bench;
    bench.calculate();
    bench.tool.cmbParam.Pick(0);
    EXPECT_EQ(bench.tool.lbl000.Caption(), "Minimum");
    EXPECT_EQ(bench.tool.lbl100.Caption(), "Maximum");
}

} // namespace k7deval::test
