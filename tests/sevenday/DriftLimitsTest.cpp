#include "sevenday/DriftTestData.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace k7deval::test
{

namespace
{

constexpr float kUnset = 0;

// A run of the rig and the limits it got.
class Limits : public testing::Test
{
protected:
    Limits()
    {
        run_->InstrumentSpan = 100;
        run_->ZeroCal = injection(0, 1, kUnset);
        run_->SpanCal = injection(50, 51, kUnset);
        rig_.add(run_);
    }

    void apply(CalLimitRulesEnum rule)
    {
        rig_.test.lngLimitRule = rule;
        rig_.test.ApplyLimits();
        EXPECT_THAT(rig_.messages->lines(), testing::IsEmpty());
    }

    void expectZero(float limit, bool usesAPS) const
    {
        EXPECT_EQ(run_->ZeroCal->DriftLimit, limit);
        EXPECT_EQ(run_->ZeroCal->UsesAPS, usesAPS);
    }
    void expectUpscale(float limit, bool usesAPS) const
    {
        EXPECT_EQ(run_->SpanCal->DriftLimit, limit);
        EXPECT_EQ(run_->SpanCal->UsesAPS, usesAPS);
    }

    DriftRig rig_;
    std::shared_ptr<cls7DayAnalyzerCal> run_ = std::make_shared<cls7DayAnalyzerCal>();
};

} // namespace

TEST_F(Limits, OfAnAbsoluteValueOrAPercentageOfSpanHoldBothInjectionsToIt)
{
    run_->ZeroCal->UsesAPS = true;
    run_->SpanCal->UsesAPS = true;
    rig_.test.sngPercentOfSpanLimit = 2.5F;
    rig_.test.sngAbsoluteLimit = 0.12345F;
    apply(CalLimitRules_AbsoluteValue);
    expectZero(0.12345F, false);
    expectUpscale(0.12345F, false);
    run_->ZeroCal->UsesAPS = true;
    run_->SpanCal->UsesAPS = true;
    apply(CalLimitRules_PercentOfSpan);
    expectZero(2.5F, false);
    expectUpscale(2.5F, false);
}

namespace
{

struct RoundedLimitCase {
    const char* name;
    float base; ///< The span, or the reference.
    float percent;
    float limit;
};

void PrintTo(const RoundedLimitCase& row, std::ostream* out)
{
    *out << row.percent << "% of " << row.base;
}

std::string nameOfLimit(const testing::TestParamInfo<RoundedLimitCase>& row)
{
    return row.param.name;
}

} // namespace

class LimitOfSpan : public testing::TestWithParam<RoundedLimitCase>
{
protected:
    // The limit of an upscale injection of that reference, read exactly, on that span.
    static float limitBy(CalLimitRulesEnum rule, float span, float reference)
    {
        DriftRig rig;
        const auto run = runAt(onDay(0, 8));
        run->InstrumentSpan = span;
        run->SpanCal = injection(reference, reference, kUnset);
        rig.add(run);
        rig.test.sngPercentOfSpanLimit = GetParam().percent;
        rig.test.sngPercentOfRefLimit = GetParam().percent;
        rig.test.lngLimitRule = rule;
        rig.test.ApplyLimits();
        return run->SpanCal->DriftLimit;
    }
};

class LimitOfReference : public LimitOfSpan
{
};

TEST_P(LimitOfSpan, IsRoundedToThreeDecimals)
{
    EXPECT_EQ(limitBy(CalLimitRules_PercentOfSpan, GetParam().base, 100), GetParam().limit);
}

TEST_P(LimitOfReference, IsRoundedToThreeDecimals)
{
    EXPECT_EQ(limitBy(CalLimitRules_PercentOfRef, 1, GetParam().base), GetParam().limit);
}

constexpr RoundedLimitCase kLimitsOfSpan[] = {
    {"AWholeNumber", 200, 2.5F, 5},
    {"NoSpan", 0, 2.5F, 0},
    // 1.2504, 1.2505 and 1.2506: halves go away from zero, also where the single lies below.
    {"UnderAHalf", 50.016F, 2.5F, 1.25F},
    {"AHalf", 50.02F, 2.5F, 1.251F},
    {"OverAHalf", 50.024F, 2.5F, 1.251F},
    {"AHalfOfATinySpan", 10.1F, 2.5F, 0.253F},
    {"AHalfOfALargeSpan", 333.3F, 2.5F, 8.333F},
    // 0.0705 in double; two roundings to single on the way would give 0.070.
    {"OneRoundingOfTheProduct", 1.41F, 5, 0.071F},
    {"ASecondOfThese", 1.49F, 5, 0.075F},
    {"ANegativeHalf", -50.02F, 2.5F, -1.251F},
};

INSTANTIATE_TEST_SUITE_P(Limits, LimitOfSpan, testing::ValuesIn(kLimitsOfSpan), nameOfLimit);

constexpr RoundedLimitCase kLimitsOfReference[] = {
    {"AWholeNumber", 50, 10, 5},
    {"UnderAHalf", 12.504F, 10, 1.25F},
    {"AHalf", 12.505F, 10, 1.251F},
    {"OverAHalf", 12.506F, 10, 1.251F},
    // 0.0885 less a little in double; singles on the way would give 0.089.
    {"OneRoundingOfTheProduct", 1.18F, 7.5F, 0.088F},
    {"ASecondOfThese", 1.93F, 5, 0.096F},
};

INSTANTIATE_TEST_SUITE_P(Limits, LimitOfReference, testing::ValuesIn(kLimitsOfReference),
                         nameOfLimit);

TEST_F(Limits, GoByTheSpanOfEachRun)
{
    const auto other = runAt(onDay(1, 8));
    other->InstrumentSpan = 400;
    rig_.add(other);
    rig_.test.sngPercentOfSpanLimit = 2.5F;
    apply(CalLimitRules_PercentOfSpan);
    expectUpscale(2.5F, false);
    EXPECT_EQ(other->SpanCal->DriftLimit, 10);
    EXPECT_EQ(other->ZeroCal->DriftLimit, 10);
}

// Span 100, 2.5% and an alternative of 5.
class Alternative : public Limits
{
protected:
    void apply(float zeroDrift, float upscaleDrift)
    {
        run_->ZeroCal->MeasuredValue = zeroDrift;
        run_->SpanCal->ReferenceValue = 0;
        run_->SpanCal->MeasuredValue = upscaleDrift;
        rig_.test.sngPercentOfSpanLimit = 2.5F;
        rig_.test.sngAbsoluteLimit = 5;
        Limits::apply(CalLimitRules_PercentOfSpanAndAbsoluteAPS);
    }
};

struct AlternativeCase {
    const char* what;
    float zeroDrift;
    float upscaleDrift;
    bool zeroUsesAPS; ///< Held to 5, else to 2.5.
    bool upscaleUsesAPS;
    bool passed;
};

TEST_F(Alternative, HoldsEachInjectionThatMissesThePercentage)
{
    constexpr AlternativeCase kRows[] = {
        {"on the percentage", 2.5F, -2.5F, false, false, true},
        {"just over it, and just under", 2.5001F, 2.49996F, true, false, true},
        {"over the percentage", 2.6F, -2.6F, true, true, true},
        {"zero gas alone", 2.6F, 1, true, false, true},
        {"upscale gas alone", 1, 2.6F, false, true, true},
        {"on the alternative", 5, -5, true, true, true},
        {"over the alternative", 0, 5.1F, false, true, false},
    };
    for (const AlternativeCase& row : kRows) {
        SCOPED_TRACE(row.what);
        apply(row.zeroDrift, row.upscaleDrift);
        expectZero(row.zeroUsesAPS ? 5 : 2.5F, row.zeroUsesAPS);
        expectUpscale(row.upscaleUsesAPS ? 5 : 2.5F, row.upscaleUsesAPS);
        EXPECT_EQ(run_->AnalyzerPassed(), row.passed);
    }
}

TEST_F(Alternative, MayBeTighterThanThePercentage)
{
    apply(2.6F, 2);
    rig_.test.sngAbsoluteLimit = 1;
    Limits::apply(CalLimitRules_PercentOfSpanAndAbsoluteAPS);
    expectZero(1, true);
    EXPECT_FALSE(run_->ZeroCal->isWithinLimit());
    expectUpscale(2.5F, false);
}

// Reference 50, 10%: a limit of 5.
class Reference : public Limits
{
protected:
    void apply(float upscaleMeasured)
    {
        run_->SpanCal->MeasuredValue = upscaleMeasured;
        rig_.test.sngPercentOfRefLimit = 10;
        Limits::apply(CalLimitRules_PercentOfRef);
    }
};

TEST_F(Reference, HoldsTheUpscaleInjectionToItsPercentage)
{
    run_->SpanCal->UsesAPS = true;
    apply(55);
    expectUpscale(5, false);
    EXPECT_TRUE(run_->SpanCal->isWithinLimit());
    apply(45);
    expectUpscale(5, false);
}

TEST_F(Reference, WritesNothingToAFreshInjectionThatMissesIt)
{
    apply(56);
    expectUpscale(kUnset, false);
    EXPECT_FALSE(run_->SpanCal->isWithinLimit());
}

TEST_F(Reference, LeavesTheLimitOfAnEarlierRuleToAnInjectionThatMissesIt)
{
    rig_.test.sngAbsoluteLimit = 7;
    Limits::apply(CalLimitRules_AbsoluteValue);
    apply(56);
    expectUpscale(7, false);
    EXPECT_TRUE(run_->SpanCal->isWithinLimit());
}

TEST_F(Reference, LeavesTheAlternativeOfAnEarlierRuleToAnInjectionThatMissesIt)
{
    run_->SpanCal->MeasuredValue = 56;
    rig_.test.sngPercentOfSpanLimit = 2.5F;
    rig_.test.sngAbsoluteLimit = 5.5F;
    Limits::apply(CalLimitRules_PercentOfSpanAndAbsoluteAPS);
    apply(56);
    expectUpscale(5.5F, true);
}

TEST_F(Reference, FailsEveryZeroInjection)
{
    run_->ZeroCal->MeasuredValue = 0;
    run_->ZeroCal->UsesAPS = true;
    apply(50);
    expectZero(-999, false);
    EXPECT_FALSE(run_->AnalyzerPassed());
}

TEST_F(Reference, FailsTheZeroInjectionOfARunWithoutAnUpscaleOne)
{
    run_->SpanCal = nullptr;
    rig_.test.sngPercentOfRefLimit = 10;
    Limits::apply(CalLimitRules_PercentOfRef);
    expectZero(-999, false);
}

TEST_F(Reference, PassesARunWithoutAZeroInjection)
{
    run_->ZeroCal = nullptr;
    run_->UseZeroCal = false;
    apply(55);
    EXPECT_TRUE(run_->AnalyzerPassed());
}

TEST_F(Limits, AreAppliedToTheInjectionsThatARunHas)
{
    run_->ZeroCal = nullptr;
    const auto zeroOnly = std::make_shared<cls7DayAnalyzerCal>();
    zeroOnly->CalTime = onDay(1, 8);
    zeroOnly->InstrumentSpan = 100;
    zeroOnly->ZeroCal = injection(0, 0, kUnset);
    rig_.add(zeroOnly);
    rig_.test.sngAbsoluteLimit = 3;
    rig_.test.sngPercentOfSpanLimit = 2.5F;

    apply(CalLimitRules_AbsoluteValue);
    expectUpscale(3, false);
    EXPECT_EQ(zeroOnly->ZeroCal->DriftLimit, 3);
    apply(CalLimitRules_PercentOfSpan);
    expectUpscale(2.5F, false);
    EXPECT_EQ(zeroOnly->ZeroCal->DriftLimit, 2.5F);
    zeroOnly->ZeroCal->MeasuredValue = 2.6F;
    apply(CalLimitRules_PercentOfSpanAndAbsoluteAPS);
    expectUpscale(2.5F, false);
    EXPECT_EQ(zeroOnly->ZeroCal->DriftLimit, 3);
}

TEST_F(Limits, OfAnUnknownRuleWriteNothing)
{
    run_->ZeroCal->DriftLimit = 11;
    run_->ZeroCal->UsesAPS = true;
    run_->SpanCal->DriftLimit = 12;
    rig_.test.sngAbsoluteLimit = 1;
    rig_.test.sngPercentOfSpanLimit = 1;
    rig_.test.sngPercentOfRefLimit = 1;
    for (const int rule : {-1, 4, 100}) {
        apply(static_cast<CalLimitRulesEnum>(rule));
        expectZero(11, true);
        expectUpscale(12, false);
    }
}

TEST_F(Limits, WithoutRunsAreNoError)
{
    rig_.test.dictCals = std::make_shared<RunMap>();
    apply(CalLimitRules_PercentOfSpan);
}

// A span that no analyzer has: the product does not fit, and the runs behind keep their limits.
TEST_F(Limits, OutOfRangeEndAtTheRun)
{
    const auto tooLarge = runAt(onDay(1, 8));
    tooLarge->InstrumentSpan = 3e38F;
    const auto behind = runAt(onDay(2, 8));
    behind->InstrumentSpan = 100;
    rig_.add(tooLarge);
    rig_.add(behind);
    rig_.test.sngPercentOfSpanLimit = 200;
    rig_.test.lngLimitRule = CalLimitRules_PercentOfSpan;

    rig_.test.ApplyLimits();

    EXPECT_THAT(rig_.messages->lines(), testing::ElementsAre("DEval-004: 6, Overflow"));
    expectUpscale(200, false);
    EXPECT_EQ(tooLarge->SpanCal->DriftLimit, 1);
    EXPECT_EQ(behind->SpanCal->DriftLimit, 1);
}

} // namespace k7deval::test
