#include "range/RangeRig.h"

#include <gtest/gtest.h>

#include <algorithm>

/// The click of the calculate button.
namespace k7deval::test
{

namespace
{

using screen::MousePointer;

/// The number of the error with which calculating ends; 0 for none.
int errorOfCalculating(RangeRig& rig)
{
    try {
        rig.calculate();
    } catch (const Error& error) {
        return error.number();
    }
    return 0;
}

/// A click that failed: hourglass, nothing to save, still to be evaluated.
void expectFailed(const RangeRig& rig)
{
    EXPECT_EQ(rig.tool.MousePointer(), MousePointer::Hourglass);
    EXPECT_FALSE(rig.tool.cmdSave.Enabled());
    EXPECT_TRUE(rig.tool.NeedsEvaluation());
}

} // namespace

TEST(RangeCalculate, DrawsTheChartAheadOfTheTextsAndAllowsSavingLast)
{
    RangeRig rig;
    rig.hours({50});
    Lines order;
    rig.tool.lblBar[10].Changed.Connect([&] { order.emplace_back("bar"); });
    rig.tool.lblHeader.Changed.Connect([&] { order.emplace_back("header"); });
    rig.tool.lblInvalid.Changed.Connect([&] { order.emplace_back("invalid"); });
    rig.tool.cmdSave.Changed.Connect([&] { order.emplace_back("save"); });
    rig.calculate();
    order.erase(std::unique(order.begin(), order.end()), order.end());
    EXPECT_EQ(order, (Lines{"bar", "header", "invalid", "save"}));
}

TEST(RangeCalculate, CountsAnewEachTime)
{
    RangeRig rig;
    rig.hours({10, 50, 90, 150}, 35).calculate();
    rig.hours({50}).range("100").calculate();
    EXPECT_EQ(countersOf(rig.results()), (Counters{.mid = 1, .aboveMEC = 1}));
    EXPECT_EQ(filledBins(rig.results()), "10: 1");
}

TEST(RangeCalculate, TakesTheRangeOfTheFieldAlsoWhileItIsBeingTyped)
{
    RangeRig rig;
    rig.tool.txtRange.Type("200");
    rig.hours({90, 150}).calculate();
    EXPECT_EQ(rig.results().RangeValue, 200);
    EXPECT_EQ(rig.results().MidHours, 2);
}

TEST(RangeCalculate, WorksOutTheThresholdsToSixDecimals)
{
    RangeRig rig;
    rig.calculate();
    EXPECT_EQ(rig.results().LowThreshold, 20);
    EXPECT_EQ(rig.results().HighThreshold, 80);
    rig.range("33.3").calculate();
    // 33.299999 as a single; a fifth is 6.66 and four fifths 26.639999 in six decimals.
    EXPECT_EQ(rig.results().LowThreshold, 6.66F);
    EXPECT_EQ(rig.results().HighThreshold, 26.639999F);
    rig.range("0.00001").calculate();
    EXPECT_EQ(rig.results().LowThreshold, 0.000002F);
    EXPECT_EQ(rig.results().HighThreshold, 0.000008F);
    rig.range("0.0000001").calculate();
    EXPECT_EQ(rig.results().LowThreshold, 0);
    EXPECT_EQ(rig.results().HighThreshold, 0);
}

TEST(RangeCalculate, ALimitTakesPartWithItsBoxCheckedAndANumber)
{
    RangeRig rig;
    rig.limits("30", "60").hours({50, 70}).calculate();
    EXPECT_EQ(rig.results().MECValue, 30);
    EXPECT_EQ(rig.results().MPCValue, 60);
    EXPECT_EQ(rig.results().AboveMECHours, 2);
    EXPECT_EQ(rig.results().AboveMPCHours, 1);
    rig.limits("10", "20");
    rig.tool.chkMEC.Press();
    rig.tool.chkMPC.Press();
    rig.calculate();
    EXPECT_EQ(rig.results().MECValue, 30) << "an old value is kept";
    EXPECT_EQ(rig.results().MPCValue, 60);
    EXPECT_EQ(rig.results().AboveMECHours, 0);
    EXPECT_EQ(rig.results().AboveMPCHours, 0);
}

TEST(RangeCalculate, ALimitThatIsNoNumberTakesNoPart)
{
    for (const char* text : {"N/A", "", "1 0", "ten"}) {
        RangeRig rig;
        rig.limits(text, text).hours({50}).calculate();
        EXPECT_TRUE(rig.tool.chkMEC.isChecked());
        EXPECT_EQ(rig.results().AboveMECHours, 0) << text;
        EXPECT_EQ(rig.results().AboveMPCHours, 0) << text;
    }
}

TEST(RangeCalculate, ALimitMayBeNegativeOrAboveTheRange)
{
    RangeRig rig;
    rig.limits("-1", "1000").hours({0, 50}).calculate();
    EXPECT_EQ(rig.results().AboveMECHours, 2);
    EXPECT_EQ(rig.results().AboveMPCHours, 0);
}

TEST(RangeCalculate, ReadsNumbersAsTheRegionWritesThem)
{
    RangeRig rig(siteOfNOx(), makeDate(2024, 5, 15), "de-DE");
    rig.tool.txtRange.Type("62,5");
    rig.limits("12,5", "50,5").hours({12.5, 12.6, 51}).calculate();
    EXPECT_EQ(rig.results().RangeValue, 62.5F);
    EXPECT_EQ(rig.results().MECValue, 12.5F);
    EXPECT_EQ(rig.results().AboveMECHours, 2);
    EXPECT_EQ(rig.results().AboveMPCHours, 1);
}

TEST(RangeCalculate, ARangeThatCannotBeReadFailsAndLeavesTheResultsBefore)
{
    for (const auto& [text, error] : {std::pair("abc", 13), {"", 13}, {"1E39", 6}}) {
        RangeRig rig;
        rig.hours({50}).calculate();
        rig.limits("1", "2");
        rig.tool.txtRange.Type(text);
        EXPECT_EQ(errorOfCalculating(rig), error) << text;
        expectFailed(rig);
        EXPECT_EQ(rig.results().MidHours, 1) << "the counters are zeroed later";
        EXPECT_EQ(rig.results().RangeValue, 100);
    }
}

TEST(RangeCalculate, WithARangeOfZeroTheFirstUsableHourUpToItFails)
{
    for (const auto& [value, error] : {std::pair(0.0, 6), {-1.0, 11}}) {
        RangeRig rig;
        rig.range("0").hours({std::nullopt, 5, value, 7}).limits("1", "2");
        EXPECT_EQ(errorOfCalculating(rig), error);
        expectFailed(rig);
        EXPECT_EQ(countersOf(rig.results()), Counters{.overRange = 1});
    }
    RangeRig rig;
    EXPECT_EQ(errorOfCalculating(rig.range("0").hours({5, 7})), 0);
    EXPECT_EQ(rig.results().OverRangeHours, 2);
}

TEST(RangeCalculate, AnHourTooFarBelowTheRangeFails)
{
    for (const double value : {-5.0, -6.0, -100.0}) {
        RangeRig rig;
        rig.hours({50, -4.9, value, 60}, 36);
        EXPECT_EQ(errorOfCalculating(rig), 9) << value;
        expectFailed(rig);
        EXPECT_EQ(countersOf(rig.results()),
                  (Counters{.low = 1, .mid = 1, .aboveMEC = 1, .replaced = 2}))
            << value;
        EXPECT_EQ(filledBins(rig.results()), "1: 1, 10: 1") << value;
    }
}

TEST(RangeCalculate, AFailedEvaluationIsTriedAgain)
{
    RangeRig rig;
    rig.hours({-50});
    EXPECT_EQ(errorOfCalculating(rig), 9);
    rig.hours({50}).calculate();
    EXPECT_EQ(countersOf(rig.results()), (Counters{.mid = 1, .aboveMEC = 1}));
    EXPECT_TRUE(rig.tool.cmdSave.Enabled());
}

} // namespace k7deval::test
