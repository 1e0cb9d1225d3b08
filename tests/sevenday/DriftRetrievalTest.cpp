#include "sevenday/RetrievalRig.h"

namespace k7deval::test
{

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kEight = "2024/03/10 08:15";

} // namespace

TEST_F(Retrieval, AsksOnceForTheRecordsOfTheAnalyzerAndTheInterval)
{
    rig_.site->siteKey = "PLANT";
    rig_.test.strAnalyzedScale = "LOW";
    retrieve();

    const RangeRecordQuery query{
        .siteKey = "PLANT",
        .argument2 = 0,
        .start = onDay(0),
        .end = onDay(2, 23, 59),
        .argument5 = "",
        .pid = kDriftAnalyzer,
        .argument7 = 0,
        .argument8 = "",
        .scale = "LOW",
        .argument10 = "",
        .tables = "K7CAL,K7PMCAL,K7PS9SINGLEINJCALCHK,K7PS9TRIPLEINJCALCHK",
        .argument12 = 0,
        .argument13 = 0,
        .argument14 = 1,
    };
    EXPECT_THAT(rig_.site->rangeQueries, ElementsAre(query));
}

TEST_F(Retrieval, OfNoRecordsGivesAnEmptyMap)
{
    retrieve();
    ASSERT_TRUE(rig_.test.dictCals);
    EXPECT_TRUE(rig_.test.dictCals->isEmpty());
}

TEST_F(Retrieval, PairsTheInjectionsOfAMinute)
{
    addZero(onDay(0, 8, 15, 10));
    addUpscale(onDay(0, 8, 15, 50));
    retrieve();

    EXPECT_THAT(rig_.runKeys(), ElementsAre(kEight));
    const cls7DayAnalyzerCal& run = rig_.run(kEight);
    EXPECT_TRUE(run.IsCompleteRun());
    EXPECT_EQ(run.CalTime, onDay(0, 8, 15, 10));
}

TEST_F(Retrieval, DoesNotPairInjectionsOfTwoMinutes)
{
    addZero(onDay(0, 8, 15, 50));
    addUpscale(onDay(0, 8, 16, 10));
    retrieve();

    EXPECT_THAT(rig_.runKeys(), ElementsAre(kEight, "2024/03/10 08:16"));
    EXPECT_TRUE(rig_.run(kEight).ZeroCal);
    EXPECT_FALSE(rig_.run(kEight).SpanCal);
    EXPECT_FALSE(rig_.run("2024/03/10 08:16").ZeroCal);
    EXPECT_TRUE(rig_.run("2024/03/10 08:16").SpanCal);
}

TEST_F(Retrieval, PairsAlsoWhenTheUpscaleRecordComesFirst)
{
    addUpscale(onDay(0, 8, 15, 50)).calStatus = 29;
    addZero(onDay(0, 8, 15, 10));
    retrieve();

    EXPECT_THAT(rig_.runKeys(), ElementsAre(kEight));
    EXPECT_TRUE(rig_.run(kEight).IsCompleteRun());
    EXPECT_TRUE(rig_.run(kEight).IsOnline);
}

TEST_F(Retrieval, KeepsTheFirstZeroRecordOfAMinute)
{
    addZero(onDay(0, 8, 15, 10)).measured = 1.0F;
    addZero(onDay(0, 8, 15, 5)).measured = 2.0F;
    retrieve();

    EXPECT_EQ(rig_.run(kEight).ZeroCal->MeasuredValue, 1);
    EXPECT_EQ(rig_.run(kEight).CalTime, onDay(0, 8, 15, 10));
}

TEST_F(Retrieval, KeepsTheFirstUpscaleRecordOfAMinuteWhateverItsLevel)
{
    for (const std::int32_t first : {1, 2}) {
        rig_.site->records.clear();
        addZero(onDay(0, 8, 15));
        addUpscale(onDay(0, 8, 15, 30)).gasLevelCode = first;
        addUpscale(onDay(0, 8, 15, 20)).gasLevelCode = 3 - first;
        rig_.site->records[1].measured = 1.0F;
        rig_.site->records[2].measured = 2.0F;
        retrieve();
        EXPECT_EQ(rig_.run(kEight).SpanCal->MeasuredValue, 1);
    }
}

TEST_F(Retrieval, KeepsTheFirstUpscaleRecordOfARunWithoutZeroGas)
{
    addUpscale(onDay(0, 8, 15, 30)).measured = 1.0F;
    addUpscale(onDay(0, 8, 15, 20)).measured = 2.0F;
    retrieve();

    EXPECT_EQ(rig_.run(kEight).SpanCal->MeasuredValue, 1);
    EXPECT_EQ(rig_.run(kEight).CalTime, onDay(0, 8, 15, 30));
}

TEST_F(Retrieval, DropsOtherGasLevels)
{
    for (const std::int32_t code : {-1, 3, 4, 100})
        addZero(onDay(0, 8, code + 2)).gasLevelCode = code;
    retrieve();
    EXPECT_THAT(rig_.runKeys(), IsEmpty());
}

TEST_F(Retrieval, DropsAnotherScaleBeforeAnythingElse)
{
    for (const char* scale : {"LOW", "high", "HIGH ", ""})
        addZero(onDay(0, 8, 15)).scale = scale;
    addUpscale(onDay(0, 8, 15)).scale = "LOW";
    addZero(onDay(0, 9));
    retrieve();

    EXPECT_THAT(rig_.runKeys(), ElementsAre("2024/03/10 09:00"));
    EXPECT_EQ(rig_.site->countCalls("DIRecord.Scale"), 6U);
    EXPECT_EQ(rig_.site->countCalls("DIRecord.GasLevelCode"), 1U);
}

TEST_F(Retrieval, TakesEveryStatusButOneForOnline)
{
    for (const std::int32_t status : {0, 28, 29, 30, -29}) {
        RecordData record = zeroRecord(onDay(0, 8, 15));
        record.calStatus = status;
        EXPECT_EQ(runOf(record).IsOnline, status != 29) << status;
        rig_.site->records.clear();
    }
}

TEST_F(Retrieval, ReadsWhetherARunWasStartedByHand)
{
    for (const Variant& manual : {Variant(true), Variant(std::int32_t{-1}), Variant("True")}) {
        RecordData record = zeroRecord(onDay(0, 8, 15));
        record.manual = manual;
        EXPECT_TRUE(runOf(record).ManualCal);
        rig_.site->records.clear();
    }
    EXPECT_FALSE(runOf(zeroRecord(onDay(0, 8, 15))).ManualCal);
}

TEST_F(Retrieval, ReadsTheValuesOfARunAndItsInjections)
{
    RecordData& zero = addZero(onDay(0, 8, 15));
    zero.span = 200.5;
    zero.measured = 0.1;
    zero.reference = std::string("0.2");
    zero.gasLevelText = "Zero";
    RecordData& upscale = addUpscale(onDay(0, 8, 15));
    upscale.measured = 99.9;
    upscale.reference = std::int16_t{101};
    upscale.gasLevelText = "high Gas";
    retrieve();

    const cls7DayAnalyzerCal& run = rig_.run(kEight);
    EXPECT_EQ(run.InstrumentSpan, 200.5F);
    EXPECT_EQ(run.ZeroCal->MeasuredValue, 0.1F);
    EXPECT_EQ(run.ZeroCal->ReferenceValue, 0.2F);
    EXPECT_EQ(run.ZeroCal->GasLevel, "ZERO");
    EXPECT_EQ(run.SpanCal->MeasuredValue, 99.9F);
    EXPECT_EQ(run.SpanCal->ReferenceValue, 101);
    EXPECT_EQ(run.SpanCal->GasLevel, "HIGH GAS");
    EXPECT_EQ(run.ZeroCal->DriftLimit, 0);
    EXPECT_FALSE(run.SpanCal->UsesAPS);
    EXPECT_FALSE(run.IsUsedIn7Day);
}

TEST_F(Retrieval, TakesTheFlagsOfTheZeroRecordOrElseOfTheUpscaleOne)
{
    for (const bool hasZero : {true, false}) {
        rig_.site->records.clear();
        if (hasZero)
            addZero(onDay(0, 8, 15));
        addUpscale(onDay(0, 8, 15, 20));
        RecordData& first = rig_.site->records.front();
        first.manual = true;
        first.calStatus = 29;
        first.span = 300.0F;
        retrieve();

        const cls7DayAnalyzerCal& run = rig_.run(kEight);
        EXPECT_TRUE(run.ManualCal);
        EXPECT_FALSE(run.IsOnline);
        EXPECT_EQ(run.InstrumentSpan, 300);
        EXPECT_EQ(run.CalTime, first.runTime);
        EXPECT_EQ(run.ZeroCal != nullptr, hasZero);
    }
}

TEST_F(Retrieval, TakesTheEndOfAnInjectionOrElseTheRunTime)
{
    addZero(onDay(0, 8, 15, 10));
    addUpscale(onDay(0, 8, 15, 50));
    retrieve();
    EXPECT_EQ(rig_.run(kEight).ZeroCal->InjectionEndTime, onDay(0, 8, 15, 10));
    EXPECT_EQ(rig_.run(kEight).SpanCal->InjectionEndTime, onDay(0, 8, 15, 50));
    rig_.site->records[0].injectionEnd = onDay(0, 8, 11);
    rig_.site->records[1].injectionEnd = onDay(0, 8, 20);
    retrieve();
    EXPECT_EQ(rig_.run(kEight).ZeroCal->InjectionEndTime, onDay(0, 8, 11));
    EXPECT_EQ(rig_.run(kEight).SpanCal->InjectionEndTime, onDay(0, 8, 20));
}

TEST_F(Retrieval, TellsOnlyRunsWithoutAZeroRecordWhetherTheyNeedOne)
{
    addZero(onDay(0, 8));
    addZero(onDay(0, 9));
    addUpscale(onDay(0, 9));
    addUpscale(onDay(0, 10));
    for (const bool useZeroCals : {false, true}) {
        rig_.test.blnUseZeroCals = useZeroCals;
        retrieve();
        EXPECT_TRUE(rig_.run("2024/03/10 08:00").UseZeroCal);
        EXPECT_TRUE(rig_.run("2024/03/10 09:00").UseZeroCal);
        EXPECT_EQ(rig_.run("2024/03/10 10:00").UseZeroCal, useZeroCals);
    }
}

TEST_F(Retrieval, ReplacesTheRunsOfAnEarlierOne)
{
    addZero(onDay(0, 8, 15));
    retrieve();
    rig_.test.dictCals->Item(kEight)->IsUsedIn7Day = true;
    retrieve();
    EXPECT_FALSE(rig_.run(kEight).IsUsedIn7Day);
}

} // namespace k7deval::test
