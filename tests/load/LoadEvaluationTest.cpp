#include "load/LoadBench.h"

#include <gtest/gtest.h>

/// What a load evaluation keeps, what it starts from, and where it ends early.
namespace k7deval::test
{

namespace
{

/// The first day of 2024, with a minimum that needs no verification.
struct DayBench : LoadBench {
    DayBench() { specify("1/1/2024", "1/1/2024"); }
    DayBench& hour(std::optional<double> value, std::int32_t status)
    {
        load().set(makeDate(2024, 1, 1, hours_++), value, status);
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

struct YearCase {
    const char* typed;
    const char* shown;
    int year;
};

// On 10 May 2024.
constexpr YearCase kYears[] = {
    {"2019", "2019", 2019},  {"1950", "1950", 1950},  {"2031", "2031", 2031},
    {"9998", "9998", 9998},  {"abc", "2024", 2024},   {"", "2024", 2024},
    {"20x4", "2024", 2024},  {"99", "2024", 2024},    {"0", "2024", 2024},
    {"-2023", "2024", 2024}, {"10000", "2024", 2024}, {"2023.5", "2024", 2024},
    {"1E9", "2024", 2024},
};

} // namespace

TEST(LoadHourStatus, AnHourIsUsedWhenItsStatusIsValidAndNotExcluded)
{
    for (const StatusCase& status : kStatuses) {
        for (const std::int32_t word : kWords) {
            DayBench bench;
            bench.site->statusMeanings[word] = status.meaning;
            bench.hour(50, word).calculate();
            EXPECT_EQ(countsOf(bench.results()), (HourCounts{.mid = status.isUsed ? 1 : 0}))
                << status.what << ", word " << word;
        }
    }
}

TEST(LoadHourStatus, IsTestedOnEveryHour)
{
    DayBench bench;
    bench.hour(10, 0).hour(10, 1).hour(50, 0).hour(50, 2).hour(50, 0).hour(90, 1).hour(150, 2);
    bench.hour(-1, 1).hour(-1, 0).hour(150, 0).hour(90, 0).calculate();
    EXPECT_EQ(countsOf(bench.results()),
              (HourCounts{.low = 1, .mid = 2, .high = 1, .over = 1, .under = 1}));
    EXPECT_EQ(bench.results().MaxObserved, 150);
}

TEST(LoadHourStatus, AnHourWithoutAValueIsNeverUsed)
{
    DayBench bench;
    bench.hour(std::nullopt, 0).hour(std::nullopt, 1).hour(0, 0).calculate();
    EXPECT_EQ(countsOf(bench.results()), (HourCounts{.low = 1}));
}

TEST(LoadHourStatus, AValueOutOfASinglesRangeIsAnOverflowInAnHourThatIsUsed)
{
    DayBench bench;
    bench.hour(50, 0).hour(1e39, 0);
    EXPECT_EQ(errorOf([&] { bench.calculate(); }), 6);
    EXPECT_TRUE(bench.tool.NeedsEvaluation());
    EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Hourglass);
    EXPECT_FALSE(bench.tool.cmdSave.Enabled());
}

TEST(LoadHourStatus, AValueOutOfASinglesRangeIsNothingInAnHourThatIsNot)
{
    DayBench bench;
    bench.hour(50, 0).hour(1e39, 1).calculate();
    EXPECT_EQ(countsOf(bench.results()), (HourCounts{.mid = 1}));
}

TEST(LoadYear, OfFourDigitsIsReadAndAnyOtherTextGivesWayToThePresentOne)
{
    for (const YearCase& year : kYears) {
        LoadBench bench;
        bench.tool.cmbYear.Type(year.typed);
        bench.calculate();
        EXPECT_EQ(bench.tool.cmbYear.Text(), year.shown) << year.typed;
        ASSERT_FALSE(bench.site->reads.empty()) << year.typed;
        EXPECT_EQ(bench.site->reads.front().start, makeDate(year.year, 1, 1)) << year.typed;
        EXPECT_FALSE(bench.tool.NeedsEvaluation()) << year.typed;
        EXPECT_TRUE(bench.tool.cmdSave.Enabled()) << year.typed;
    }
}

TEST(LoadYear, ThePresentOneIsThatOfTheClock)
{
    LoadBench bench;
    bench.tool.cmbYear.Type("?");
    bench.clock.set(makeDate(2026, 1, 1));
    bench.calculate();
    EXPECT_EQ(bench.tool.cmbYear.Text(), "2026");
    EXPECT_EQ(bench.site->reads.front().start, makeDate(2026, 1, 1));
}

TEST(LoadYear, OfTheFourthQuarterIsFollowedByTheNext)
{
    LoadBench bench;
    bench.tool.cmbQTR.Pick(3);
    bench.tool.cmbYear.Type("2019");
    bench.calculate();
    EXPECT_EQ(bench.site->reads.front(), (ReadRequest{kGT1Load, makeDate(2019, 10, 1), 92 * 24}));
}

TEST(LoadYear, WithSpecifiedDatesIsNotLookedAt)
{
    LoadBench bench;
    bench.tool.cmbYear.Type("abc");
    bench.specify("1/1/2024", "1/1/2024").calculate();
    EXPECT_EQ(bench.tool.cmbYear.Text(), "abc");
}

TEST(LoadQuarter, NoneIsTheFirst)
{
    LoadBench bench(siteOfLoads(), makeDate(2024, 11, 10));
    bench.tool.cmbQTR.SetListIndex(-1);
    bench.calculate();
    EXPECT_EQ(bench.tool.cmbQTR.Text(), "Q1");
    EXPECT_EQ(bench.site->reads.front().start, makeDate(2024, 1, 1));
    EXPECT_FALSE(bench.tool.NeedsEvaluation());
}

TEST(LoadInputs, AreReadFromTheirBoxesAlsoWhenTheseWereNotLeft)
{
    LoadBench bench;
    bench.hours({10, 50, 90, 150, 250});
    bench.tool.txtMinSafe.Type("20");
    bench.tool.txtCapacity.Type("200");
    bench.calculate();
    EXPECT_EQ(bench.results().MinSafeValue, 20);
    EXPECT_EQ(bench.results().CapacityValue, 200);
    EXPECT_EQ(bench.results().LowThreshold, 74);
    EXPECT_EQ(bench.results().HighThreshold, 128);
    EXPECT_EQ(countsOf(bench.results()),
              (HourCounts{.low = 1, .mid = 1, .high = 1, .over = 1, .under = 1}));
}

TEST(LoadInputs, ThatAreNoNumbersEndTheCalculation)
{
    for (auto box : {&ctrlMaxMW::txtMinSafe, &ctrlMaxMW::txtCapacity}) {
        LoadBench bench;
        (bench.tool.*box).Type("abc");
        EXPECT_EQ(errorOf([&] { bench.calculate(); }), 13);
        EXPECT_TRUE(bench.tool.NeedsEvaluation());
        EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Hourglass);
        EXPECT_FALSE(bench.tool.cmdSave.Enabled());
        EXPECT_TRUE(bench.site->reads.empty());
    }
}

TEST(LoadInputs, AreReadAsTheRegionWritesThem)
{
    LoadBench bench(siteOfLoads(), makeDate(2024, 5, 10), "de-DE");
    bench.range("0,5", "100,5").hours({0.4, 0.5, 100.5, 100.6}).calculate();
    EXPECT_EQ(bench.results().MinSafeValue, 0.5F);
    EXPECT_EQ(bench.results().LowThreshold, 30.5F);
    EXPECT_EQ(bench.results().HighThreshold, 60.5F);
    EXPECT_EQ(countsOf(bench.results()), (HourCounts{.low = 1, .high = 1, .over = 1, .under = 1}));
}

TEST(LoadEarlyEnd, CapacityAtTheMinimumReadsNothing)
{
    LoadBench bench;
    bench.range("100", "200").hours({150, 250}).calculate();
    bench.takeReads();
    bench.range("100", "100").calculate();
    EXPECT_TRUE(bench.takeReads().empty());
    EXPECT_EQ(countsOf(bench.results()), HourCounts());
    EXPECT_EQ(bench.results().Bins, histogram::HourBins());
    EXPECT_EQ(bench.results().MaxObserved, 250);
    EXPECT_EQ(bench.results().LowThreshold, 100);
    EXPECT_EQ(bench.results().HighThreshold, 100);
    EXPECT_TRUE(bench.tool.NeedsEvaluation());
    EXPECT_TRUE(bench.tool.cmdSave.Enabled());
    EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Default);
}

TEST(LoadEarlyEnd, CapacityAtTheMinimumEndsBeforeThePeriodIsWorkedOut)
{
    LoadBench bench;
    bench.range("100", "100");
    bench.tool.cmbYear.Type("abc");
    bench.calculate();
    EXPECT_EQ(bench.tool.cmbYear.Text(), "abc");
}

TEST(LoadEarlyEnd, IsTriedAgainByTheNextCalculation)
{
    LoadBench bench;
    bench.range("100", "100").hours({150}).calculate();
    bench.tool.txtCapacity.Type("200");
    bench.calculate();
    EXPECT_EQ(countsOf(bench.results()), (HourCounts{.mid = 1}));
    EXPECT_FALSE(bench.tool.NeedsEvaluation());
}

TEST(LoadEarlyEnd, AParameterThatIsGoneReadsNothing)
{
    LoadBench bench;
    bench.hours({10, 50, 90}).calculate();
    bench.tool.cmbParam.Pick(0);
    bench.takeReads();
    std::erase_if(bench.site->parameters, [](const auto& p) { return p.pid == kGT1Load; });
    bench.calculate();
    EXPECT_TRUE(bench.takeReads().empty());
    EXPECT_EQ(countsOf(bench.results()), HourCounts());
    EXPECT_EQ(bench.results().Bins, histogram::HourBins());
    EXPECT_TRUE(bench.tool.NeedsEvaluation());
    EXPECT_TRUE(bench.tool.cmdSave.Enabled());
    EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Default);
    EXPECT_EQ(bench.results().LowThreshold, 30);
}

TEST(LoadEarlyEnd, AParameterThatIsGoneIsMissedAfterThePeriodWasWorkedOut)
{
    LoadBench bench;
    bench.tool.cmbYear.Type("abc");
    std::erase_if(bench.site->parameters, [](const auto& p) { return p.pid == kGT1Load; });
    bench.calculate();
    EXPECT_EQ(bench.tool.cmbYear.Text(), "2024");
    EXPECT_TRUE(bench.tool.NeedsEvaluation());
}

TEST(LoadCapacityBelowMinimum, LeavesNoHourInTheRange)
{
    LoadBench bench;
    bench.range("100", "50").hours({20, 50, 75, 99.9, 100, 120}).calculate();
    EXPECT_EQ(countsOf(bench.results()), (HourCounts{.over = 2, .under = 4}));
    EXPECT_EQ(bench.results().Bins, histogram::HourBins());
    EXPECT_EQ(bench.results().MaxObserved, 120);
    EXPECT_EQ(bench.results().LowThreshold, 85);
    EXPECT_EQ(bench.results().HighThreshold, 70);
    EXPECT_FALSE(bench.tool.NeedsEvaluation());
}

TEST(LoadMaximum, IsThatOfAllEvaluationsSoFar)
{
    LoadBench bench;
    bench.hours({150, 120}).calculate();
    EXPECT_EQ(bench.results().MaxObserved, 150);
    bench.hours({110}).range("1", "100").calculate();
    EXPECT_EQ(bench.results().MaxObserved, 150);
    EXPECT_EQ(countsOf(bench.results()), (HourCounts{.over = 1}));
    bench.hours({160}).range("1", "100").calculate();
    EXPECT_EQ(bench.results().MaxObserved, 160);
}

TEST(LoadMaximum, StaysForAnotherUnitAndOtherData)
{
    LoadBench bench;
    bench.hours({150}).calculate();
    bench.tool.cmbUnit.Pick(1);
    bench.calculate();
    EXPECT_EQ(bench.results().MaxObserved, 150);
    bench.tool.SetDIServer(serve(siteOfLoads()));
    bench.calculate();
    EXPECT_EQ(bench.results().MaxObserved, 150);
}

TEST(LoadMaximum, OfNegativeLoadsIsZero)
{
    LoadBench bench;
    bench.range("-50", "-10").hours({-5, -20}).calculate();
    EXPECT_EQ(countsOf(bench.results()), (HourCounts{.high = 1, .over = 1}));
    EXPECT_EQ(bench.results().MaxObserved, 0);
}

TEST(LoadEvaluationAgain, CountsFromZero)
{
    LoadBench bench;
    bench.hours({-1, 10, 50, 90, 150}).calculate();
    const auto bins = bench.results().Bins;
    const HourCounts once{.low = 1, .mid = 1, .high = 1, .over = 1, .under = 1};
    EXPECT_EQ(countsOf(bench.results()), once);
    bench.tool.cmbParam.Pick(0);
    bench.calculate();
    EXPECT_EQ(countsOf(bench.results()), once);
    EXPECT_EQ(bench.results().Bins, bins);
}

TEST(LoadEvaluationFailure, InTheMiddleLeavesTheHourglassAndTheEvaluationToBeDone)
{
    LoadBench bench;
    bench.load().fill(makeDate(2023, 1, 1), makeDate(2024, 3, 31, 23), 50);
    bench.site->failure = [&](const std::string& call, std::size_t) {
        const bool isSecond = bench.site->countCalls("DIParameter.ReadData") == 2;
        return call == "DIParameter.ReadData" && isSecond ? std::optional(Error(440))
                                                          : std::nullopt;
    };
    EXPECT_EQ(errorOf([&] { bench.calculate(); }), 440);
    EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Hourglass);
    EXPECT_TRUE(bench.tool.NeedsEvaluation());
    EXPECT_FALSE(bench.tool.cmdSave.Enabled());
    EXPECT_TRUE(isCleared(bench.tool));
}

TEST(LoadEvaluationFailure, IsMadeGoodByTheNextCalculation)
{
    LoadBench bench;
    bench.hours({10, 50, 90});
    failAt(*bench.site, "DIParameter.ReadData");
    EXPECT_EQ(errorOf([&] { bench.calculate(); }), 440);
    bench.site->failure = nullptr;
    bench.calculate();
    EXPECT_EQ(countsOf(bench.results()), (HourCounts{.low = 1, .mid = 1, .high = 1}));
    EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Default);
    EXPECT_TRUE(bench.tool.cmdSave.Enabled());
}

TEST(LoadEvaluationFailure, AnywhereOnItsWayReachesTheHost)
{
    for (const char* call : {"DIServer.Parameters", "DIParameters.Exists", "DIParameters.Item",
                             "DIServer.StatusCodes", "DIParameter.ReadData"}) {
        LoadBench bench;
        bench.hours({10, 50, 90});
        failAt(*bench.site, call);
        EXPECT_EQ(errorOf([&] { bench.calculate(); }), 440) << call;
        EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Hourglass) << call;
        EXPECT_TRUE(bench.tool.NeedsEvaluation()) << call;
        EXPECT_FALSE(bench.tool.cmdSave.Enabled()) << call;
    }
}

} // namespace k7deval::test
