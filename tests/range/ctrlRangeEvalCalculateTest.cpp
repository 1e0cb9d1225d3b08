#include "range/RangeBench.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

/// The click of the calculate button.
namespace k7deval::test
{

namespace
{

using screen::MousePointer;

/// The number of the error with which calculating ends; 0 for none.
int errorOfCalculating(RangeBench& bench)
{
    try {
        bench.calculate();
    } catch (const Error& error) {
        return error.number();
    }
    return 0;
}

/// A click that failed: hourglass, nothing to save, still to be evaluated.
void expectFailed(const RangeBench& bench)
{
    EXPECT_EQ(bench.tool.MousePointer(), MousePointer::Hourglass);
    EXPECT_FALSE(bench.tool.cmdSave.Enabled());
    EXPECT_TRUE(bench.tool.NeedsEvaluation());
}

/// The n-th call of that name fails, from 1.
void failAtCall(SiteData& site, const std::string& name, std::size_t number)
{
    site.calls.clear();
    site.failure = [&site, name, number](const std::string& call, std::size_t) {
        return call == name && site.countCalls(name) == number
                   ? std::optional(Error(440, "the line is down"))
                   : std::nullopt;
    };
}

} // namespace

TEST(RangeCalculate, EvaluatesShowsAndAllowsSaving)
{
    RangeBench bench;
    bench.hours({10, 50, 90}).calculate();
    EXPECT_EQ(countersOf(bench.results()),
              (Counters{.low = 1, .mid = 1, .high = 1, .aboveMEC = 2}));
    EXPECT_EQ(filledBins(bench.results()), "2: 1, 10: 1, 18: 1");
    EXPECT_FALSE(bench.tool.NeedsEvaluation());
    EXPECT_TRUE(bench.tool.cmdSave.Enabled());
    EXPECT_FALSE(isCleared(bench.tool));
    EXPECT_EQ(bench.tool.MousePointer(), MousePointer::Default);
}

TEST(RangeCalculate, ShowsTheHourglassWhileItReadsAndPaints)
{
    RangeBench bench;
    std::set<std::string> underHourglass;
    bench.site->failure = [&](const std::string& call, std::size_t) {
        if (bench.tool.MousePointer() == MousePointer::Hourglass)
            underHourglass.insert(call);
        return std::optional<Error>();
    };
    bool painted = false;
    bench.tool.lblHeader.Changed.Connect(
        [&] { painted = bench.tool.MousePointer() == MousePointer::Hourglass; });
    bench.calculate();
    EXPECT_TRUE(underHourglass.contains("DIParameter.ReadData"));
    EXPECT_TRUE(painted);
    EXPECT_EQ(bench.tool.MousePointer(), MousePointer::Default);
}

TEST(RangeCalculate, DrawsTheChartAheadOfTheTextsAndAllowsSavingLast)
{
    RangeBench bench;
    bench.hours({50});
    Lines order;
    bench.tool.lblBar[10].Changed.Connect([&] { order.emplace_back("bar"); });
    bench.tool.lblHeader.Changed.Connect([&] { order.emplace_back("header"); });
    bench.tool.lblInvalid.Changed.Connect([&] { order.emplace_back("invalid"); });
    bench.tool.cmdSave.Changed.Connect([&] { order.emplace_back("save"); });
    bench.calculate();
    order.erase(std::unique(order.begin(), order.end()), order.end());
    EXPECT_EQ(order, (Lines{"bar", "header", "invalid", "save"}));
}

TEST(RangeCalculate, PressedAgainReadsNothingAndShowsTheSame)
{
    RangeBench bench;
    bench.hours({10, 50, 90}).calculate();
    bench.hours({1, 2, 3});
    bench.site->calls.clear();
    EXPECT_EQ(bench.changesBy([&] { bench.calculate(); }), Lines());
    EXPECT_EQ(bench.site->countCalls("DIParameter.ReadData"), 0U);
    EXPECT_EQ(bench.results().HighHours, 1);
}

TEST(RangeCalculate, CountsAnewEachTime)
{
    RangeBench bench;
    bench.hours({10, 50, 90, 150}, 35).calculate();
    bench.hours({50}).range("100").calculate();
    EXPECT_EQ(countersOf(bench.results()), (Counters{.mid = 1, .aboveMEC = 1}));
    EXPECT_EQ(filledBins(bench.results()), "10: 1");
}

TEST(RangeCalculate, TakesTheRangeOfTheFieldAlsoWhileItIsBeingTyped)
{
    RangeBench bench;
    bench.tool.txtRange.Type("200");
    bench.hours({90, 150}).calculate();
    EXPECT_EQ(bench.results().RangeValue, 200);
    EXPECT_EQ(bench.results().MidHours, 2);
}

TEST(RangeCalculate, WorksOutTheThresholdsToSixDecimals)
{
    RangeBench bench;
    bench.calculate();
    EXPECT_EQ(bench.results().LowThreshold, 20);
    EXPECT_EQ(bench.results().HighThreshold, 80);
    bench.range("33.3").calculate();
    // 33.299999 as a single; a fifth is 6.66 and four fifths 26.639999 in six decimals.
    EXPECT_EQ(bench.results().LowThreshold, 6.66F);
    EXPECT_EQ(bench.results().HighThreshold, 26.639999F);
    bench.range("0.00001").calculate();
    EXPECT_EQ(bench.results().LowThreshold, 0.000002F);
    EXPECT_EQ(bench.results().HighThreshold, 0.000008F);
    bench.range("0.0000001").calculate();
    EXPECT_EQ(bench.results().LowThreshold, 0);
    EXPECT_EQ(bench.results().HighThreshold, 0);
}

TEST(RangeCalculate, ALimitTakesPartWithItsBoxCheckedAndANumber)
{
    RangeBench bench;
    bench.limits("30", "60").hours({50, 70}).calculate();
    EXPECT_EQ(bench.results().MECValue, 30);
    EXPECT_EQ(bench.results().MPCValue, 60);
    EXPECT_EQ(bench.results().AboveMECHours, 2);
    EXPECT_EQ(bench.results().AboveMPCHours, 1);
    bench.limits("10", "20");
    bench.tool.chkMEC.Press();
    bench.tool.chkMPC.Press();
    bench.calculate();
    EXPECT_EQ(bench.results().MECValue, 30) << "an old value is kept";
    EXPECT_EQ(bench.results().MPCValue, 60);
    EXPECT_EQ(bench.results().AboveMECHours, 0);
    EXPECT_EQ(bench.results().AboveMPCHours, 0);
}

TEST(RangeCalculate, ALimitThatIsNoNumberTakesNoPart)
{
    for (const char* text : {"N/A", "", "1 0", "ten"}) {
        RangeBench bench;
        bench.limits(text, text).hours({50}).calculate();
        EXPECT_TRUE(bench.tool.chkMEC.isChecked());
        EXPECT_EQ(bench.results().AboveMECHours, 0) << text;
        EXPECT_EQ(bench.results().AboveMPCHours, 0) << text;
    }
}

TEST(RangeCalculate, ALimitMayBeNegativeOrAboveTheRange)
{
    RangeBench bench;
    bench.limits("-1", "1000").hours({0, 50}).calculate();
    EXPECT_EQ(bench.results().AboveMECHours, 2);
    EXPECT_EQ(bench.results().AboveMPCHours, 0);
}

TEST(RangeCalculate, ReadsNumbersAsTheRegionWritesThem)
{
    RangeBench bench(siteOfNOx(), makeDate(2024, 5, 15), "de-DE");
    bench.tool.txtRange.Type("62,5");
    bench.limits("12,5", "50,5").hours({12.5, 12.6, 51}).calculate();
    EXPECT_EQ(bench.results().RangeValue, 62.5F);
    EXPECT_EQ(bench.results().MECValue, 12.5F);
    EXPECT_EQ(bench.results().AboveMECHours, 2);
    EXPECT_EQ(bench.results().AboveMPCHours, 1);
}

TEST(RangeCalculate, WithoutASelectedParameterFails)
{
    RangeBench bench(std::make_shared<SiteData>());
    EXPECT_EQ(errorOfCalculating(bench), 381);
    expectFailed(bench);
    EXPECT_TRUE(isCleared(bench.tool));
}

TEST(RangeCalculate, ARangeThatCannotBeReadFailsAndLeavesTheResultsBefore)
{
    for (const auto& [text, error] : {std::pair("abc", 13), {"", 13}, {"1E39", 6}}) {
        RangeBench bench;
        bench.hours({50}).calculate();
        bench.limits("1", "2");
        bench.tool.txtRange.Type(text);
        EXPECT_EQ(errorOfCalculating(bench), error) << text;
        expectFailed(bench);
        EXPECT_EQ(bench.results().MidHours, 1) << "the counters are zeroed later";
        EXPECT_EQ(bench.results().RangeValue, 100);
    }
}

TEST(RangeCalculate, AYearWithoutADateFailsWithTheResultsGone)
{
    RangeBench bench;
    bench.hours({50}, 35).calculate();
    bench.tool.cmbYear.Type("9999");
    bench.tool.cmbQTR.Pick(3);
    EXPECT_EQ(errorOfCalculating(bench), 5);
    expectFailed(bench);
    EXPECT_EQ(countersOf(bench.results()), Counters());
    EXPECT_EQ(filledBins(bench.results()), "");
}

TEST(RangeCalculate, AParameterThatIsGoneShowsZerosAndStaysToBeEvaluated)
{
    RangeBench bench;
    bench.hours({50}, 35).calculate();
    bench.range("100");
    std::erase_if(bench.site->parameters, [](const auto& p) { return p.pid == kNOx; });
    bench.takeReads();
    bench.calculate();
    EXPECT_EQ(bench.takeReads(), std::vector<ReadRequest>());
    EXPECT_EQ(countersOf(bench.results()), Counters());
    EXPECT_TRUE(bench.tool.NeedsEvaluation());
    EXPECT_TRUE(bench.tool.cmdSave.Enabled());
    EXPECT_EQ(bench.tool.MousePointer(), MousePointer::Default);
    EXPECT_EQ(bench.tool.lblHeader.Caption(), "") << "it keeps its text";
    EXPECT_EQ(bench.tool.lblMidOpPercent.Caption(), "-----");
    EXPECT_EQ(bench.tool.lblOverRange.Caption(), "Hours over Range:  0");
    EXPECT_EQ(bench.tool.lblMax.Caption(), "100");
}

TEST(RangeCalculate, AParameterThatIsGoneStillSetsTheYearRight)
{
    RangeBench bench;
    std::erase_if(bench.site->parameters, [](const auto& p) { return p.pid == kNOx; });
    bench.tool.cmbYear.Type("abc");
    bench.calculate();
    EXPECT_EQ(bench.tool.cmbYear.Text(), "2024");
}

TEST(RangeCalculate, AFailureOfTheDataLeavesTheCountersAsFarAsTheyCame)
{
    RangeBench bench;
    bench.series().fill(makeDate(2023, 10, 1), makeDate(2024, 3, 31, 23), 50);
    failAtCall(*bench.site, "DIParameter.ReadData", 2);
    EXPECT_EQ(errorOfCalculating(bench), 440);
    expectFailed(bench);
    EXPECT_EQ(bench.results().MidHours, 91 * 24);
    EXPECT_EQ(filledBins(bench.results()), "10: 2184");
    EXPECT_TRUE(isCleared(bench.tool));
    bench.site->failure = nullptr;
    bench.calculate();
    EXPECT_EQ(bench.results().MidHours, (91 + 92) * 24);
    EXPECT_EQ(bench.tool.MousePointer(), MousePointer::Default);
}

TEST(RangeCalculate, AnyFailureOfTheDataReachesTheHost)
{
    for (const char* call : {"DIServer.Parameters", "DIParameters.Exists", "DIParameters.Item",
                             "DIServer.StatusCodes", "DIParameter.ReadData", "DIParameter.Name"}) {
        RangeBench bench;
        failAt(*bench.site, call);
        EXPECT_EQ(errorOfCalculating(bench), 440) << call;
        EXPECT_EQ(bench.tool.MousePointer(), MousePointer::Hourglass) << call;
        EXPECT_FALSE(bench.tool.cmdSave.Enabled()) << call;
    }
}

TEST(RangeCalculate, WithARangeOfZeroTheFirstUsableHourUpToItFails)
{
    for (const auto& [value, error] : {std::pair(0.0, 6), {-1.0, 11}}) {
        RangeBench bench;
        bench.range("0").hours({std::nullopt, 5, value, 7}).limits("1", "2");
        EXPECT_EQ(errorOfCalculating(bench), error);
        expectFailed(bench);
        EXPECT_EQ(countersOf(bench.results()), Counters{.overRange = 1});
    }
    RangeBench bench;
    EXPECT_EQ(errorOfCalculating(bench.range("0").hours({5, 7})), 0);
    EXPECT_EQ(bench.results().OverRangeHours, 2);
}

TEST(RangeCalculate, AnHourTooFarBelowTheRangeFails)
{
    for (const double value : {-5.0, -6.0, -100.0}) {
        RangeBench bench;
        bench.hours({50, -4.9, value, 60}, 36);
        EXPECT_EQ(errorOfCalculating(bench), 9) << value;
        expectFailed(bench);
        EXPECT_EQ(countersOf(bench.results()),
                  (Counters{.low = 1, .mid = 1, .aboveMEC = 1, .replaced = 2}))
            << value;
        EXPECT_EQ(filledBins(bench.results()), "1: 1, 10: 1") << value;
    }
}

TEST(RangeCalculate, AFailedEvaluationIsTriedAgain)
{
    RangeBench bench;
    bench.hours({-50});
    EXPECT_EQ(errorOfCalculating(bench), 9);
    bench.hours({50}).calculate();
    EXPECT_EQ(countersOf(bench.results()), (Counters{.mid = 1, .aboveMEC = 1}));
    EXPECT_TRUE(bench.tool.cmdSave.Enabled());
}

} // namespace k7deval::test
