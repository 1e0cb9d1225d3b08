#include "sevenday/DriftTestData.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace k7deval::test
{

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using Line = std::pair<std::int32_t, std::string>;

constexpr std::int32_t kSeverity = 4;
constexpr const char* kAbsent = "91, Object variable or With block variable not set";

// Makes the call of that index fail, counted from now.
void failAt(SiteData& site, std::size_t index)
{
    site.calls.clear();
    site.failure = [index](const std::string&, std::size_t at) -> std::optional<Error> {
        if (at == index)
            return Error(4711, "the line is down");
        return std::nullopt;
    };
}

// Records of two runs, one of them without a zero injection, and a stack with its own operating
// time: every call that a retrieval can make is made.
void giveRecords(DriftBench& bench)
{
    bench.setInterval(2);
    bench.site->records = {zeroRecord(onDay(0, 8)), upscaleRecord(onDay(0, 8)),
                           upscaleRecord(onDay(1, 8))};
    bench.site->parameter(kDriftSource).links[attribute::kLinkedObjectPID] = kDriftStack;
    bench.site->parameter(kDriftStack).links[attribute::kOperatingTimePID] = kDriftStackHours;
}

std::vector<std::string> callsOfARetrieval()
{
    DriftBench bench;
    giveRecords(bench);
    bench.test.RetrieveCals();
    return bench.site->calls;
}

// The position behind the n-th call of that name.
std::size_t behind(const std::vector<std::string>& calls, const std::string& call, int n)
{
    for (std::size_t i = 0; i < calls.size(); ++i) {
        if (calls[i] == call && --n == 0)
            return i + 1;
    }
    throw std::invalid_argument(call);
}

} // namespace

TEST(FailingRetrieval, PostsItsLineAndKeepsTheRunsAtEveryCall)
{
    const auto calls = callsOfARetrieval();
    std::size_t index = 0;
    for (;; ++index) {
        DriftBench bench;
        giveRecords(bench);
        const auto before = std::make_shared<RunMap>();
        before->Add("earlier", runAt(onDay(0)));
        bench.test.dictCals = before;
        failAt(*bench.site, index);

        bench.test.RetrieveCals();

        if (bench.messages->posted.empty())
            break;
        SCOPED_TRACE(calls.at(index));
        EXPECT_THAT(bench.messages->posted,
                    ElementsAre(Line(kSeverity, "DEval-003: 4711, the line is down")));
        EXPECT_EQ(bench.test.dictCals, before);
        EXPECT_THAT(bench.runKeys(), ElementsAre("earlier"));
    }
    EXPECT_EQ(index, calls.size());
    EXPECT_GT(index, 40U);
}

TEST(FailingRetrieval, LeavesNoRunsWhereThereWereNone)
{
    const auto calls = callsOfARetrieval();
    for (std::size_t index = 0; index < calls.size(); ++index) {
        DriftBench bench;
        giveRecords(bench);
        failAt(*bench.site, index);
        bench.test.RetrieveCals();
        EXPECT_EQ(bench.test.dictCals, nullptr) << calls[index];
        EXPECT_EQ(bench.messages->posted.size(), 1U) << calls[index];
    }
}

// The unit's own operating time is written before the linked object is looked for.
TEST(FailingRetrieval, KeepsTheOperatingTimeFoundSoFar)
{
    const auto calls = callsOfARetrieval();
    const std::size_t unitFound = behind(calls, "DIParameter.GetLinkedPID(-60)", 1);
    const std::size_t stackFound = behind(calls, "DIParameters.Exists", 2);
    for (std::size_t index = 0; index < calls.size(); ++index) {
        DriftBench bench;
        giveRecords(bench);
        bench.test.lngOpTimePID = 7;
        failAt(*bench.site, index);
        bench.test.RetrieveCals();
        const PID linked = index < stackFound ? kDriftUnitHours : kDriftStackHours;
        EXPECT_EQ(bench.test.lngOpTimePID, index < unitFound ? 7 : linked) << calls[index];
    }
}

TEST(FailingRetrieval, LetsNothingEscapeWithoutASink)
{
    const auto calls = callsOfARetrieval();
    for (std::size_t index = 0; index < calls.size(); ++index) {
        DriftBench bench;
        giveRecords(bench);
        bench.test.irm = nullptr;
        failAt(*bench.site, index);
        EXPECT_NO_THROW(bench.test.RetrieveCals()) << calls[index];
        EXPECT_EQ(bench.test.dictCals, nullptr) << calls[index];
        EXPECT_THAT(bench.messages->posted, IsEmpty());
    }
}

TEST(FailingRetrieval, PostsAFailureWithoutANumberAsOneOfTheHost)
{
    DriftBench bench;
    giveRecords(bench);
    bench.site->failure = [](const std::string& call, std::size_t) -> std::optional<Error> {
        if (call == "DIRecordStore.ReadRangeRecords")
            throw std::runtime_error("the table is locked");
        return std::nullopt;
    };
    bench.test.RetrieveCals();
    EXPECT_THAT(bench.messages->posted,
                ElementsAre(Line(kSeverity, "DEval-003: 440, the table is locked")));
}

TEST(FailingRetrieval, NamesAnAbsentServer)
{
    DriftBench bench;
    giveRecords(bench);
    bench.test.DIServer = nullptr;
    bench.test.RetrieveCals();
    EXPECT_THAT(bench.messages->lines(), ElementsAre(std::string("DEval-003: ") + kAbsent));
}

TEST(FailingRetrieval, NamesASourceThatIsNoParameter)
{
    DriftBench bench;
    giveRecords(bench);
    bench.site->records[1].sourceTag = kDriftSource + 1;
    bench.test.RetrieveCals();
    EXPECT_THAT(bench.messages->lines(),
                ElementsAre("DEval-003: 5, Invalid procedure call or argument"));
}

TEST(FailingRetrieval, NamesAUnitThatIsNoParameter)
{
    DriftBench bench;
    giveRecords(bench);
    bench.test.lngAnalyzedPID = kDriftAnalyzer + 100000000;
    bench.test.RetrieveCals();
    EXPECT_THAT(bench.messages->lines(),
                ElementsAre("DEval-003: 5, Invalid procedure call or argument"));
}

TEST(FailingRetrieval, RefusesNullInAFieldThatItReads)
{
    using Field = Variant RecordData::*;
    for (const Field field : {&RecordData::span, &RecordData::manual, &RecordData::measured,
                              &RecordData::reference, &RecordData::sourceTag}) {
        DriftBench bench;
        giveRecords(bench);
        bench.site->records.erase(bench.site->records.begin());
        bench.site->records.front().*field = Null{};
        bench.test.RetrieveCals();
        EXPECT_THAT(bench.messages->lines(), ElementsAre("DEval-003: 94, Invalid use of Null"));
        EXPECT_EQ(bench.test.dictCals, nullptr);
    }
}

TEST(FailingRetrieval, DoesNotReadTheFlagsOfAnUpscaleRecordThatHasAZeroOne)
{
    DriftBench bench;
    giveRecords(bench);
    bench.site->records[1].span = Null{};
    bench.site->records[1].manual = Null{};
    bench.test.RetrieveCals();
    EXPECT_THAT(bench.messages->lines(), IsEmpty());
    EXPECT_EQ(bench.test.dictCals->Count(), 2U);
}

TEST(FailingRetrieval, RefusesATextThatIsNoNumber)
{
    DriftBench bench;
    giveRecords(bench);
    bench.site->records[0].measured = std::string("n/a");
    bench.test.RetrieveCals();
    EXPECT_THAT(bench.messages->lines(), ElementsAre("DEval-003: 13, Type mismatch"));
}

namespace
{

// Two good days and one with an off-line run only, which the hours call idle.
void giveThreeDays(DriftBench& bench)
{
    setDays(bench, daysOf("PP a+"));
}

std::vector<std::string> callsOfAnEvaluation()
{
    DriftBench bench;
    giveThreeDays(bench);
    bench.site->calls.clear();
    bench.test.EvaluateDriftTest();
    return bench.site->calls;
}

} // namespace

TEST(FailingDayAnalysis, LeavesTheEvaluationToTheDaysOfTheRunsAtEveryCall)
{
    const auto calls = callsOfAnEvaluation();
    std::size_t index = 0;
    for (;; ++index) {
        DriftBench bench;
        giveThreeDays(bench);
        failAt(*bench.site, index);

        bench.test.EvaluateDriftTest();

        if (bench.messages->posted.empty())
            break;
        SCOPED_TRACE(calls.at(index));
        EXPECT_THAT(bench.messages->posted,
                    ElementsAre(Line(kSeverity, "DEval-005: 4711, the line is down")));
        EXPECT_THAT(bench.test.dictDays.Keys(),
                    ElementsAre("2024/03/10", "2024/03/11", "2024/03/12"));
        for (const auto& [key, day] : bench.test.dictDays) {
            EXPECT_EQ(day->TStamp, Date{});
            EXPECT_TRUE(day->OpStatusIsUndetermined);
        }
        EXPECT_EQ(bench.test.lngGoodCals, 2);
        EXPECT_EQ(bench.test.lngUndeterminedDays, 1);
        EXPECT_EQ(bench.test.lngLastFailDay, 3);
    }
    EXPECT_EQ(index, calls.size());
    EXPECT_THAT(calls,
                ElementsAre("DIServer.Parameters", "DIParameters.Exists", "DIServer.Parameters",
                            "DIParameters.Item", "DIParameter.ReadData"));
}

TEST(FailingDayAnalysis, LeavesNoDaysOfItsOwn)
{
    const auto calls = callsOfAnEvaluation();
    for (std::size_t index = 0; index < calls.size(); ++index) {
        DriftBench bench;
        giveThreeDays(bench);
        failAt(*bench.site, index);
        bench.test.AnalyzeOperatingDays();
        EXPECT_TRUE(bench.test.dictDays.isEmpty()) << calls[index];
    }
}

TEST(FailingDayAnalysis, LetsNothingEscapeWithoutASink)
{
    const auto calls = callsOfAnEvaluation();
    for (std::size_t index = 0; index < calls.size(); ++index) {
        DriftBench bench;
        giveThreeDays(bench);
        bench.test.irm = nullptr;
        failAt(*bench.site, index);
        EXPECT_NO_THROW(bench.test.EvaluateDriftTest()) << calls[index];
        EXPECT_EQ(bench.test.lngGoodCals, 2) << calls[index];
        EXPECT_THAT(bench.messages->posted, IsEmpty());
    }
}

TEST(FailingDayAnalysis, PostsAFailureWithoutANumberAsOneOfTheHost)
{
    DriftBench bench;
    giveThreeDays(bench);
    bench.site->failure = [](const std::string& call, std::size_t) -> std::optional<Error> {
        if (call == "DIParameter.ReadData")
            throw std::runtime_error("the archive is closed");
        return std::nullopt;
    };
    bench.test.EvaluateDriftTest();
    EXPECT_THAT(bench.messages->posted,
                ElementsAre(Line(kSeverity, "DEval-005: 440, the archive is closed")));
}

TEST(FailingDayAnalysis, NamesAnAbsentServer)
{
    DriftBench bench;
    giveThreeDays(bench);
    bench.test.DIServer = nullptr;
    bench.test.EvaluateDriftTest();
    EXPECT_THAT(bench.messages->lines(), ElementsAre(std::string("DEval-005: ") + kAbsent));
    EXPECT_EQ(bench.test.lngGoodCals, 2);
}

// The hour behind the calendar's last one can not be formed; what was read up to it stands.
TEST(FailingDayAnalysis, KeepsTheDaysReadSoFar)
{
    DriftBench bench;
    bench.test.dtStart = makeDate(9999, 12, 30);
    bench.test.dtEnd = makeDate(9999, 12, 31, 23, 59);
    HourlyValues& hours = bench.site->parameter(kDriftUnitHours).hours;
    hours = {bench.test.dtStart, std::vector<std::optional<double>>(48, 1.0)};

    bench.test.AnalyzeOperatingDays();

    EXPECT_THAT(bench.messages->lines(),
                ElementsAre("DEval-005: 5, Invalid procedure call or argument"));
    EXPECT_THAT(bench.test.dictDays.Keys(), ElementsAre("9999/12/30", "9999/12/31"));
    EXPECT_TRUE(bench.test.dictDays.Item("9999/12/31")->IsOpDay());
}

// Before the first retrieval, and when that one failed.
TEST(WithoutRuns, LimitsCanNotBeApplied)
{
    DriftBench bench;
    bench.test.ApplyLimits();
    EXPECT_THAT(bench.messages->posted,
                ElementsAre(Line(kSeverity, std::string("DEval-004: ") + kAbsent)));
}

TEST(WithoutRuns, TheEvaluationEndsBehindTheDays)
{
    DriftBench bench;
    setDays(bench, daysOf("PPN"));
    bench.test.EvaluateDriftTest();
    bench.test.dictCals = nullptr;
    bench.setInterval(2);

    bench.test.EvaluateDriftTest();

    EXPECT_THAT(bench.messages->posted,
                ElementsAre(Line(kSeverity, std::string("DEval-006: ") + kAbsent)));
    EXPECT_THAT(bench.test.dictDays.Keys(), ElementsAre("2024/03/10", "2024/03/11"));
    // The counters are those of the evaluation before.
    EXPECT_EQ(bench.test.lngGoodCals, 2);
    EXPECT_EQ(bench.test.lngLastFailDay, 3);
}

TEST(WithoutRuns, TheSummaryKeepsItsText)
{
    DriftBench bench;
    bench.test.strSummary = "of the evaluation before";
    for (const bool showSummary : {false, true}) {
        bench.test.BuildSummary(showSummary);
        EXPECT_EQ(bench.test.strSummary, "of the evaluation before");
    }
    EXPECT_THAT(bench.messages->posted,
                ElementsAre(Line(kSeverity, std::string("DEval-010: ") + kAbsent),
                            Line(kSeverity, std::string("DEval-010: ") + kAbsent)));
}

TEST(WithoutRuns, NothingEscapesWithoutASink)
{
    DriftBench bench;
    bench.test.irm = nullptr;
    EXPECT_NO_THROW(bench.test.ApplyLimits());
    EXPECT_NO_THROW(bench.test.EvaluateDriftTest());
    EXPECT_NO_THROW(bench.test.BuildSummary(true));
    EXPECT_THAT(bench.messages->posted, IsEmpty());
}

// A drift that is out of range fails the evaluation on its day; what was counted up to it stands.
TEST(FailingEvaluation, KeepsWhatTheScanCameTo)
{
    DriftBench bench;
    setDays(bench, daysOf("PPP"));
    clsStrippedCal& upscale = *bench.test.dictCals->Item("2024/03/12 06:00")->SpanCal;
    upscale.MeasuredValue = 3e38F;
    upscale.ReferenceValue = -3e38F;

    bench.test.EvaluateDriftTest();

    EXPECT_THAT(bench.messages->posted, ElementsAre(Line(kSeverity, "DEval-006: 6, Overflow")));
    EXPECT_EQ(bench.test.lngGoodCals, 2);
    EXPECT_EQ(marksText(outcomeOf(bench.test), 3), "11.");
}

TEST(FailingEvaluation, LooksAtTheRunsBehindAFailedOne)
{
    DriftBench bench;
    setDays(bench, daysOf("P A-A+"));
    clsStrippedCal& upscale = *bench.test.dictCals->Item("2024/03/11 06:01")->SpanCal;
    upscale.MeasuredValue = 3e38F;
    upscale.ReferenceValue = -3e38F;

    bench.test.EvaluateDriftTest();

    EXPECT_THAT(bench.messages->lines(), ElementsAre("DEval-006: 6, Overflow"));
    EXPECT_EQ(bench.test.lngGoodCals, 1);
}

} // namespace k7deval::test
