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
constexpr const char* kNotSet = "91, Object variable or With block variable not set";
constexpr const char* kNullUsed = "94, Invalid use of Null";

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
void giveRecords(DriftRig& rig)
{
    rig.setInterval(2);
    rig.site->records = {zeroRecord(onDay(0, 8)), upscaleRecord(onDay(0, 8)),
                         upscaleRecord(onDay(1, 8))};
    rig.site->parameter(kDriftSource).links[attribute::kLinkedObjectPID] = kDriftStack;
    rig.site->parameter(kDriftStack).links[attribute::kOperatingTimePID] = kDriftStackHours;
}

std::vector<std::string> callsOfARetrieval()
{
    DriftRig rig;
    giveRecords(rig);
    rig.test.RetrieveCals();
    return rig.site->calls;
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
        DriftRig rig;
        giveRecords(rig);
        const auto before = std::make_shared<RunMap>();
        before->Add("earlier", runAt(onDay(0)));
        rig.test.dictCals = before;
        failAt(*rig.site, index);

        rig.test.RetrieveCals();

        if (rig.messages->posted.empty())
            break;
        SCOPED_TRACE(calls.at(index));
        EXPECT_THAT(rig.messages->posted,
                    ElementsAre(Line(kSeverity, "DEval-003: 4711, the line is down")));
        EXPECT_EQ(rig.test.dictCals, before);
        EXPECT_THAT(rig.runKeys(), ElementsAre("earlier"));
    }
    EXPECT_EQ(index, calls.size());
    EXPECT_GT(index, 40U);
}

TEST(FailingRetrieval, LeavesNoRunsWhereThereWereNoneAndIsSilentWithoutASink)
{
    const auto calls = callsOfARetrieval();
    for (std::size_t index = 0; index < calls.size(); ++index) {
        for (const bool hasSink : {true, false}) {
            DriftRig rig;
            giveRecords(rig);
            if (!hasSink)
                rig.test.irm = nullptr;
            failAt(*rig.site, index);
            EXPECT_NO_THROW(rig.test.RetrieveCals()) << calls[index];
            EXPECT_EQ(rig.test.dictCals, nullptr) << calls[index];
            EXPECT_EQ(rig.messages->posted.size(), hasSink ? 1U : 0U) << calls[index];
        }
    }
}

// The unit's own operating time is written before the linked object is looked for.
TEST(FailingRetrieval, KeepsTheOperatingTimeFoundSoFar)
{
    const auto calls = callsOfARetrieval();
    const std::size_t unitFound = behind(calls, "DIParameter.GetLinkedPID(-60)", 1);
    const std::size_t stackFound = behind(calls, "DIParameters.Exists", 2);
    for (std::size_t index = 0; index < calls.size(); ++index) {
        DriftRig rig;
        giveRecords(rig);
        rig.test.lngOpTimePID = 7;
        failAt(*rig.site, index);
        rig.test.RetrieveCals();
        const PID linked = index < stackFound ? kDriftUnitHours : kDriftStackHours;
        EXPECT_EQ(rig.test.lngOpTimePID, index < unitFound ? 7 : linked) << calls[index];
    }
}

TEST(FailingRetrieval, PostsAFailureWithoutANumberAsOneOfTheHost)
{
    DriftRig rig;
    giveRecords(rig);
    rig.site->failure = [](const std::string& call, std::size_t) -> std::optional<Error> {
        if (call == "DIRecordStore.ReadRangeRecords")
            throw std::runtime_error("the table is locked");
        return std::nullopt;
    };
    rig.test.RetrieveCals();
    EXPECT_THAT(rig.messages->posted,
                ElementsAre(Line(kSeverity, "DEval-003: 440, the table is locked")));
}

struct RetrievalFailureCase {
    const char* what;
    void (*spoil)(DriftRig& rig);
    const char* error;
};

// Of the three records the first is a zero injection, the second its upscale one, and the third an
// upscale one that stands alone: its flags are read.
TEST(FailingRetrieval, NamesWhatIsWrong)
{
    constexpr RetrievalFailureCase kRows[] = {
        {"no server", [](auto& rig) { rig.test.DIServer = nullptr; }, kNotSet},
        {"a source that is no parameter",
         [](auto& rig) { rig.site->records[1].sourceTag = kDriftSource + 1; },
         "5, Invalid procedure call or argument"},
        {"a unit that is no parameter",
         [](auto& rig) { rig.test.lngAnalyzedPID = kDriftAnalyzer + 100000000; },
         "5, Invalid procedure call or argument"},
        {"a text that is no number",
         [](auto& rig) { rig.site->records[0].measured = std::string("n/a"); },
         "13, Type mismatch"},
        {"Null span", [](auto& rig) { rig.site->records[2].span = Null{}; }, kNullUsed},
        {"Null manual", [](auto& rig) { rig.site->records[2].manual = Null{}; }, kNullUsed},
        {"Null measured", [](auto& rig) { rig.site->records[2].measured = Null{}; }, kNullUsed},
        {"Null reference", [](auto& rig) { rig.site->records[2].reference = Null{}; }, kNullUsed},
        {"Null source", [](auto& rig) { rig.site->records[1].sourceTag = Null{}; }, kNullUsed},
    };
    for (const RetrievalFailureCase& row : kRows) {
        DriftRig rig;
        giveRecords(rig);
        row.spoil(rig);
        rig.test.RetrieveCals();
        EXPECT_THAT(rig.messages->lines(), ElementsAre(std::string("DEval-003: ") + row.error))
            << row.what;
        EXPECT_EQ(rig.test.dictCals, nullptr) << row.what;
    }
}

TEST(FailingRetrieval, DoesNotReadTheFlagsOfAnUpscaleRecordThatHasAZeroOne)
{
    DriftRig rig;
    giveRecords(rig);
    rig.site->records[1].span = Null{};
    rig.site->records[1].manual = Null{};
    rig.test.RetrieveCals();
    EXPECT_THAT(rig.messages->lines(), IsEmpty());
    EXPECT_EQ(rig.test.dictCals->Count(), 2U);
}

namespace
{

// Two good days and one with an off-line run only, which the hours call idle.
void giveThreeDays(DriftRig& rig)
{
    setDays(rig, daysOf("PP a+"));
}

std::vector<std::string> callsOfAnEvaluation()
{
    DriftRig rig;
    giveThreeDays(rig);
    rig.site->calls.clear();
    rig.test.EvaluateDriftTest();
    return rig.site->calls;
}

} // namespace

TEST(FailingDayAnalysis, LeavesTheEvaluationToTheDaysOfTheRunsAtEveryCall)
{
    const auto calls = callsOfAnEvaluation();
    std::size_t index = 0;
    for (;; ++index) {
        DriftRig rig;
        giveThreeDays(rig);
        failAt(*rig.site, index);

        rig.test.EvaluateDriftTest();

        if (rig.messages->posted.empty())
            break;
        SCOPED_TRACE(calls.at(index));
        EXPECT_THAT(rig.messages->posted,
                    ElementsAre(Line(kSeverity, "DEval-005: 4711, the line is down")));
        EXPECT_THAT(rig.test.dictDays.Keys(),
                    ElementsAre("2024/03/10", "2024/03/11", "2024/03/12"));
        for (const auto& [key, day] : rig.test.dictDays) {
            EXPECT_EQ(day->TStamp, Date{});
            EXPECT_TRUE(day->OpStatusIsUndetermined);
        }
        EXPECT_EQ(rig.test.lngGoodCals, 2);
        EXPECT_EQ(rig.test.lngUndeterminedDays, 1);
        EXPECT_EQ(rig.test.lngLastFailDay, 3);
    }
    EXPECT_EQ(index, calls.size());
    EXPECT_THAT(calls,
                ElementsAre("DIServer.Parameters", "DIParameters.Exists", "DIServer.Parameters",
                            "DIParameters.Item", "DIParameter.ReadData"));
}

TEST(FailingDayAnalysis, LeavesNoDaysOfItsOwnAndIsSilentWithoutASink)
{
    const auto calls = callsOfAnEvaluation();
    for (std::size_t index = 0; index < calls.size(); ++index) {
        DriftRig rig;
        giveThreeDays(rig);
        failAt(*rig.site, index);
        rig.test.AnalyzeOperatingDays();
        EXPECT_TRUE(rig.test.dictDays.isEmpty()) << calls[index];
        DriftRig silent;
        giveThreeDays(silent);
        silent.test.irm = nullptr;
        failAt(*silent.site, index);
        EXPECT_NO_THROW(silent.test.EvaluateDriftTest()) << calls[index];
        EXPECT_EQ(silent.test.lngGoodCals, 2) << calls[index];
        EXPECT_THAT(silent.messages->posted, IsEmpty());
    }
}

TEST(FailingDayAnalysis, NamesAFailureOfTheHostAndAnAbsentServer)
{
    for (const bool hasServer : {true, false}) {
        DriftRig rig;
        giveThreeDays(rig);
        if (!hasServer)
            rig.test.DIServer = nullptr;
        rig.site->failure = [](const std::string& call, std::size_t) -> std::optional<Error> {
            if (call == "DIParameter.ReadData")
                throw std::runtime_error("the archive is closed");
            return std::nullopt;
        };
        rig.test.EvaluateDriftTest();
        const std::string error = hasServer ? "440, the archive is closed" : kNotSet;
        EXPECT_THAT(rig.messages->posted, ElementsAre(Line(kSeverity, "DEval-005: " + error)));
        EXPECT_EQ(rig.test.lngGoodCals, 2);
    }
}

// The hour behind the calendar's last one can not be formed; what was read up to it stands.
TEST(FailingDayAnalysis, KeepsTheDaysReadSoFar)
{
    DriftRig rig;
    rig.test.dtStart = makeDate(9999, 12, 30);
    rig.test.dtEnd = makeDate(9999, 12, 31, 23, 59);
    HourlyValues& hours = rig.site->parameter(kDriftUnitHours).hours;
    hours = {rig.test.dtStart, std::vector<std::optional<double>>(48, 1.0)};

    rig.test.AnalyzeOperatingDays();

    EXPECT_THAT(rig.messages->lines(),
                ElementsAre("DEval-005: 5, Invalid procedure call or argument"));
    EXPECT_THAT(rig.test.dictDays.Keys(), ElementsAre("9999/12/30", "9999/12/31"));
    EXPECT_TRUE(rig.test.dictDays.Item("9999/12/31")->IsOpDay());
}

// Before the first retrieval, and when that one failed.
TEST(WithoutRuns, LimitsCanNotBeApplied)
{
    DriftRig rig;
    rig.test.ApplyLimits();
    EXPECT_THAT(rig.messages->posted,
                ElementsAre(Line(kSeverity, std::string("DEval-004: ") + kNotSet)));
}

TEST(WithoutRuns, TheEvaluationEndsBehindTheDays)
{
    DriftRig rig;
    setDays(rig, daysOf("PPN"));
    rig.test.EvaluateDriftTest();
    rig.test.dictCals = nullptr;
    rig.setInterval(2);

    rig.test.EvaluateDriftTest();

    EXPECT_THAT(rig.messages->posted,
                ElementsAre(Line(kSeverity, std::string("DEval-006: ") + kNotSet)));
    EXPECT_THAT(rig.test.dictDays.Keys(), ElementsAre("2024/03/10", "2024/03/11"));
    // The counters are those of the evaluation before.
    EXPECT_EQ(rig.test.lngGoodCals, 2);
    EXPECT_EQ(rig.test.lngLastFailDay, 3);
}

TEST(WithoutRuns, TheSummaryKeepsItsText)
{
    DriftRig rig;
    rig.test.strSummary = "of the evaluation before";
    for (const bool showSummary : {false, true}) {
        rig.test.BuildSummary(showSummary);
        EXPECT_EQ(rig.test.strSummary, "of the evaluation before");
    }
    EXPECT_THAT(rig.messages->posted,
                ElementsAre(Line(kSeverity, std::string("DEval-010: ") + kNotSet),
                            Line(kSeverity, std::string("DEval-010: ") + kNotSet)));
}

TEST(WithoutRuns, NothingEscapesWithoutASink)
{
    DriftRig rig;
    rig.test.irm = nullptr;
    EXPECT_NO_THROW(rig.test.ApplyLimits());
    EXPECT_NO_THROW(rig.test.EvaluateDriftTest());
    EXPECT_NO_THROW(rig.test.BuildSummary(true));
    EXPECT_THAT(rig.messages->posted, IsEmpty());
}

TEST(FailingEvaluation, LooksAtTheRunsBehindAFailedOneAndKeepsWhatTheScanCameTo)
{
    // A drift that is out of range fails the evaluation on its day; what was counted stands.
    struct OverflowCase {
        const char* days;
        const char* run;
        const char* marks;
    };
    for (const OverflowCase& row : {OverflowCase{"PPP", "2024/03/12 06:00", "11."},
                                    OverflowCase{"P A-A+", "2024/03/11 06:01", "1."}}) {
        DriftRig rig;
        const std::vector<model::Day> days = daysOf(row.days);
        setDays(rig, days);
        clsStrippedCal& upscale = *rig.test.dictCals->Item(row.run)->SpanCal;
        upscale.MeasuredValue = 3e38F;
        upscale.ReferenceValue = -3e38F;

        rig.test.EvaluateDriftTest();

        EXPECT_THAT(rig.messages->posted, ElementsAre(Line(kSeverity, "DEval-006: 6, Overflow")));
        EXPECT_EQ(marksText(outcomeOf(rig.test), days.size()), row.marks);
        EXPECT_EQ(rig.test.lngGoodCals, static_cast<std::int32_t>(days.size()) - 1);
    }
}

} // namespace k7deval::test
