#include "load/LoadRig.h"

#include <gtest/gtest.h>

/// What a load evaluation keeps, what it starts from, and where it ends early.
namespace k7deval::test
{

namespace
{

/// The first day of 2024, with a minimum that needs no verification.
struct DayRig : LoadRig {
    DayRig() { specify("1/1/2024", "1/1/2024"); }
    DayRig& hour(std::optional<double> value, std::int32_t status)
    {
        series().set(makeDate(2024, 1, 1, hours_++), value, status);
        return *this;
    }

private:
    int hours_ = 0;
};

struct StatusCase {
    const char* what;
    StatusMeaning meaning;
    bool isUsed;
};

constexpr StatusCase kStatuses[] = {
    {"valid", {.valid = true, .excluded = false}, true},
    {"valid but excluded", {.valid = true, .excluded = true}, false},
    {"not valid", {.valid = false, .excluded = false}, false},
    {"not valid and excluded", {.valid = false, .excluded = true}, false},
    {"valid in an off-line unit", {.valid = true, .excluded = false, .offline = true}, true},
};

constexpr std::int32_t kWords[] = {7, 0, 35, 36, -1, 0x40000000};

} // namespace

TEST(LoadHourStatus, AnHourIsUsedWhenItsStatusIsValidAndNotExcluded)
{
    for (const StatusCase& status : kStatuses) {
        for (const std::int32_t word : kWords) {
            DayRig rig;
            rig.site->statusMeanings[word] = status.meaning;
            rig.hour(50, word).calculate();
            EXPECT_EQ(countsOf(rig.results()), (HourCounts{.mid = status.isUsed ? 1 : 0}))
                << status.what << ", word " << word;
        }
    }
}

TEST(LoadHourStatus, IsTestedOnEveryHour)
{
    DayRig rig;
    rig.hour(10, 0).hour(10, 1).hour(50, 0).hour(50, 2).hour(50, 0).hour(90, 1).hour(150, 2);
    rig.hour(-1, 1).hour(-1, 0).hour(150, 0).hour(90, 0).calculate();
    EXPECT_EQ(countsOf(rig.results()),
              (HourCounts{.low = 1, .mid = 2, .high = 1, .over = 1, .under = 1}));
    EXPECT_EQ(rig.results().MaxObserved, 150);
}

TEST(LoadHourStatus, AnHourWithoutAValueIsNeverUsed)
{
    DayRig rig;
    rig.hour(std::nullopt, 0).hour(std::nullopt, 1).hour(0, 0).calculate();
    EXPECT_EQ(countsOf(rig.results()), (HourCounts{.low = 1}));
}

TEST(LoadHourStatus, AValueOutOfASinglesRangeIsAnOverflowInAnHourThatIsUsed)
{
    DayRig rig;
    rig.hour(50, 0).hour(1e39, 0);
    EXPECT_EQ(errorOf([&] { rig.calculate(); }), 6);
    EXPECT_TRUE(rig.tool.NeedsEvaluation());
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Hourglass);
    EXPECT_FALSE(rig.tool.cmdSave.Enabled());
}

TEST(LoadHourStatus, AValueOutOfASinglesRangeIsNothingInAnHourThatIsNot)
{
    DayRig rig;
    rig.hour(50, 0).hour(1e39, 1).calculate();
    EXPECT_EQ(countsOf(rig.results()), (HourCounts{.mid = 1}));
}

TEST(LoadYear, WithSpecifiedDatesIsNotLookedAt)
{
    LoadRig rig;
    rig.tool.cmbYear.Type("abc");
    rig.specify("1/1/2024", "1/1/2024").calculate();
    EXPECT_EQ(rig.tool.cmbYear.Text(), "abc");
}

TEST(LoadInputs, AreReadFromTheirBoxesAlsoWhenTheseWereNotLeft)
{
    LoadRig rig;
    rig.hours({10, 50, 90, 150, 250});
    rig.tool.txtMinSafe.Type("20");
    rig.tool.txtCapacity.Type("200");
    rig.calculate();
    EXPECT_EQ(rig.results().MinSafeValue, 20);
    EXPECT_EQ(rig.results().CapacityValue, 200);
    EXPECT_EQ(rig.results().LowThreshold, 74);
    EXPECT_EQ(rig.results().HighThreshold, 128);
    EXPECT_EQ(countsOf(rig.results()),
              (HourCounts{.low = 1, .mid = 1, .high = 1, .over = 1, .under = 1}));
}

TEST(LoadInputs, ThatAreNoNumbersEndTheCalculation)
{
    for (auto box : {&ctrlMaxMW::txtMinSafe, &ctrlMaxMW::txtCapacity}) {
        LoadRig rig;
        (rig.tool.*box).Type("abc");
        EXPECT_EQ(errorOf([&] { rig.calculate(); }), 13);
        EXPECT_TRUE(rig.tool.NeedsEvaluation());
        EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Hourglass);
        EXPECT_FALSE(rig.tool.cmdSave.Enabled());
        EXPECT_TRUE(rig.site->reads.empty());
    }
}

TEST(LoadInputs, AreReadAsTheRegionWritesThem)
{
    LoadRig rig(siteOfLoads(), makeDate(2024, 5, 10), "de-DE");
    rig.range("0,5", "100,5").hours({0.4, 0.5, 100.5, 100.6}).calculate();
    EXPECT_EQ(rig.results().MinSafeValue, 0.5F);
    EXPECT_EQ(rig.results().LowThreshold, 30.5F);
    EXPECT_EQ(rig.results().HighThreshold, 60.5F);
    EXPECT_EQ(countsOf(rig.results()), (HourCounts{.low = 1, .high = 1, .over = 1, .under = 1}));
}

TEST(LoadEarlyEnd, CapacityAtTheMinimumReadsNothing)
{
    LoadRig rig;
    rig.range("100", "200").hours({150, 250}).calculate();
    rig.takeReads();
    rig.range("100", "100").calculate();
    EXPECT_TRUE(rig.takeReads().empty());
    EXPECT_EQ(countsOf(rig.results()), HourCounts());
    EXPECT_EQ(rig.results().Bins, histogram::HourBins());
    EXPECT_EQ(rig.results().MaxObserved, 250);
    EXPECT_EQ(rig.results().LowThreshold, 100);
    EXPECT_EQ(rig.results().HighThreshold, 100);
    EXPECT_TRUE(rig.tool.NeedsEvaluation());
    EXPECT_TRUE(rig.tool.cmdSave.Enabled());
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Default);
}

TEST(LoadEarlyEnd, CapacityAtTheMinimumEndsBeforeThePeriodIsWorkedOut)
{
    LoadRig rig;
    rig.range("100", "100");
    rig.tool.cmbYear.Type("abc");
    rig.calculate();
    EXPECT_EQ(rig.tool.cmbYear.Text(), "abc");
}

TEST(LoadEarlyEnd, IsTriedAgainByTheNextCalculation)
{
    LoadRig rig;
    rig.range("100", "100").hours({150}).calculate();
    rig.tool.txtCapacity.Type("200");
    rig.calculate();
    EXPECT_EQ(countsOf(rig.results()), (HourCounts{.mid = 1}));
    EXPECT_FALSE(rig.tool.NeedsEvaluation());
}

TEST(LoadCapacityBelowMinimum, LeavesNoHourInTheRange)
{
    LoadRig rig;
    rig.range("100", "50").hours({20, 50, 75, 99.9, 100, 120}).calculate();
    EXPECT_EQ(countsOf(rig.results()), (HourCounts{.over = 2, .under = 4}));
    EXPECT_EQ(rig.results().Bins, histogram::HourBins());
    EXPECT_EQ(rig.results().MaxObserved, 120);
    EXPECT_EQ(rig.results().LowThreshold, 85);
    EXPECT_EQ(rig.results().HighThreshold, 70);
    EXPECT_FALSE(rig.tool.NeedsEvaluation());
}

TEST(LoadMaximum, IsThatOfAllEvaluationsSoFar)
{
    LoadRig rig;
    rig.hours({150, 120}).calculate();
    EXPECT_EQ(rig.results().MaxObserved, 150);
    rig.hours({110}).range("1", "100").calculate();
    EXPECT_EQ(rig.results().MaxObserved, 150);
    EXPECT_EQ(countsOf(rig.results()), (HourCounts{.over = 1}));
    rig.hours({160}).range("1", "100").calculate();
    EXPECT_EQ(rig.results().MaxObserved, 160);
}

TEST(LoadMaximum, StaysForAnotherUnitAndOtherData)
{
    LoadRig rig;
    rig.hours({150}).calculate();
    rig.tool.cmbUnit.Pick(1);
    rig.calculate();
    EXPECT_EQ(rig.results().MaxObserved, 150);
    rig.tool.SetDIServer(serve(siteOfLoads()));
    rig.calculate();
    EXPECT_EQ(rig.results().MaxObserved, 150);
}

TEST(LoadMaximum, OfNegativeLoadsIsZero)
{
    LoadRig rig;
    rig.range("-50", "-10").hours({-5, -20}).calculate();
    EXPECT_EQ(countsOf(rig.results()), (HourCounts{.high = 1, .over = 1}));
    EXPECT_EQ(rig.results().MaxObserved, 0);
}

} // namespace k7deval::test
