#include "sevenday/DriftTestData.h"

#include "foundation/UtilityFunctions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace k7deval::test
{

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

// Hours from a text: "-" has no data, "0" and "1" are that value, "q" is a quarter of an hour, "s"
// the smallest fraction, "n" a negative value.
std::optional<double> hourOf(char letter)
{
    switch (letter) {
    case '-':
        return std::nullopt;
    case '1':
        return 1.0;
    case 'q':
        return 0.25;
    case 's':
        return 1e-9;
    case 'n':
        return -1.0;
    default:
        return 0.0;
    }
}

void setHours(DriftBench& bench, Date start, std::string_view letters)
{
    HourlyValues& hours = bench.site->parameter(kDriftUnitHours).hours;
    hours = {start, {}};
    for (const char letter : letters)
        hours.values.push_back(hourOf(letter));
}

std::string ofDay(std::string_view letters)
{
    std::string day(letters);
    day.resize(24, '0');
    return day;
}

// "operating", "idle", each with "?" behind it when undetermined.
std::vector<std::string> statusOf(const DriftTest& test)
{
    std::vector<std::string> status;
    for (const auto& [key, day] : test.dictDays) {
        status.push_back(std::string(day->IsOpDay() ? "operating" : "idle") +
                         (day->OpStatusIsUndetermined ? "?" : ""));
    }
    return status;
}

struct DayCase {
    const char* name;
    const char* hours;
    const char* status;
};

void PrintTo(const DayCase& row, std::ostream* out)
{
    *out << row.hours;
}

} // namespace

class OperatingDay : public testing::TestWithParam<DayCase>
{
};

TEST_P(OperatingDay, IsJudgedByItsHours)
{
    DriftBench bench;
    bench.setInterval(1);
    setHours(bench, onDay(0), GetParam().hours);
    bench.test.AnalyzeOperatingDays();
    EXPECT_THAT(statusOf(bench.test), ElementsAre(GetParam().status));
    EXPECT_THAT(bench.messages->lines(), IsEmpty());
}

constexpr DayCase kDays[] = {
    // Any fraction of an hour operates, nothing else does.
    {"OfZeroHours", "000000000000000000000000", "idle"},
    {"OfFullHours", "111111111111111111111111", "operating"},
    {"OfOneHour", "000000000000100000000000", "operating"},
    {"OfAFractionOfAnHour", "00000q000000000000000000", "operating"},
    {"OfTheSmallestFraction", "00000s000000000000000000", "operating"},
    {"OfNegativeHours", "nnnnnnnnnnnnnnnnnnnnnnnn", "idle"},
    {"OfItsFirstHour", "100000000000000000000000", "operating"},
    {"OfItsLastHour", "000000000000000000000001", "operating"},
    // An hour without data leaves the status undetermined, whatever the other hours say.
    {"OfNoData", "------------------------", "idle?"},
    {"OfNoDataButAQuarterOfAnHour", "------------q-----------", "operating?"},
    {"OfNoDataInItsFirstHour", "-00000000000000000000000", "idle?"},
    {"OfNoDataInItsLastHour", "00000000000000000000000-", "idle?"},
    {"OfNoDataInAnHourOfOperation", "11111111-111111111111111", "operating?"},
    // The host fills what it has.
    {"OfFewerHoursThanItHas", "000000000000", "idle?"},
};

INSTANTIATE_TEST_SUITE_P(Analysis, OperatingDay, testing::ValuesIn(kDays),
                         [](const auto& row) { return row.param.name; });

TEST(OperatingDays, StandInOrderUnderTheirDates)
{
    DriftBench bench;
    bench.test.dtStart = makeDate(2024, 2, 28);
    bench.test.dtEnd = makeDate(2024, 3, 1, 23, 59);
    setHours(bench, bench.test.dtStart, ofDay("1") + ofDay("0") + ofDay("-"));
    bench.test.AnalyzeOperatingDays();

    EXPECT_THAT(bench.test.dictDays.Keys(), ElementsAre("2024/02/28", "2024/02/29", "2024/03/01"));
    EXPECT_EQ(bench.test.dictDays.Item("2024/02/29")->TStamp, makeDate(2024, 2, 29));
    EXPECT_EQ(bench.test.dictDays.Item("2024/03/01")->TStamp, makeDate(2024, 3, 1));
    EXPECT_THAT(statusOf(bench.test), ElementsAre("operating", "idle", "idle?"));
}

TEST(OperatingDays, EndWithTheLastHourOfTheInterval)
{
    DriftBench bench;
    bench.setInterval(2);
    setHours(bench, onDay(0), ofDay("") + ofDay("") + "1");
    bench.test.AnalyzeOperatingDays();
    EXPECT_THAT(statusOf(bench.test), ElementsAre("idle", "idle"));
}

TEST(OperatingDays, AreNotTouchedByAnHourWithoutDataOfTheDayBefore)
{
    DriftBench bench;
    bench.setInterval(3);
    setHours(bench, onDay(0), ofDay("") + ofDay("00000000000000000000000-") + ofDay("1"));
    bench.test.AnalyzeOperatingDays();
    EXPECT_THAT(statusOf(bench.test), ElementsAre("idle", "idle?", "operating"));
}

TEST(OperatingDays, MayBeginWithinADay)
{
    DriftBench bench;
    bench.test.dtStart = onDay(0, 22);
    bench.test.dtEnd = onDay(1, 23, 59);
    setHours(bench, bench.test.dtStart, "-1" + ofDay("0"));
    bench.test.AnalyzeOperatingDays();

    EXPECT_THAT(bench.test.dictDays.Keys(), ElementsAre("2024/03/10", "2024/03/11"));
    EXPECT_EQ(bench.test.dictDays.Item("2024/03/10")->TStamp, onDay(0));
    EXPECT_THAT(statusOf(bench.test), ElementsAre("operating?", "idle"));
}

TEST(OperatingDays, AddToTheDaysThatAreThere)
{
    DriftBench bench;
    bench.setInterval(2);
    setHours(bench, onDay(0), ofDay("1") + ofDay("-"));
    bench.test.AnalyzeOperatingDays();
    setHours(bench, onDay(0), ofDay("-") + ofDay("0"));
    bench.test.AnalyzeOperatingDays();
    EXPECT_THAT(statusOf(bench.test), ElementsAre("operating?", "idle?"));
}

TEST(OperatingDays, AreReadFromTheOperatingTimeThatWasFound)
{
    DriftBench bench;
    bench.setInterval(1);
    setHours(bench, onDay(0), ofDay("1"));
    HourlyValues& stackHours = bench.site->parameter(kDriftStackHours).hours;
    stackHours = {onDay(0), std::vector<std::optional<double>>(24, 0.0)};
    bench.test.lngOpTimePID = kDriftStackHours;
    bench.test.AnalyzeOperatingDays();
    EXPECT_THAT(statusOf(bench.test), ElementsAre("idle"));
}

TEST(OperatingDays, AreAllUndeterminedWithoutAnOperatingTime)
{
    for (const PID missing : {PID{0}, PID{kDriftUnitHours + 1}}) {
        DriftBench bench;
        bench.setInterval(3);
        bench.test.lngOpTimePID = missing;
        bench.test.AnalyzeOperatingDays();

        EXPECT_THAT(bench.test.dictDays.Keys(),
                    ElementsAre("2024/03/10", "2024/03/11", "2024/03/12"));
        EXPECT_THAT(statusOf(bench.test), ElementsAre("idle?", "idle?", "idle?"));
        EXPECT_EQ(bench.test.dictDays.Item("2024/03/12")->TStamp, onDay(2));
        EXPECT_EQ(bench.site->countCalls("DIParameters.Item"), 0U);
        EXPECT_THAT(bench.messages->lines(), IsEmpty());
    }
}

TEST(OperatingDays, WithoutAnOperatingTimeBecomeSoByAnOnlineRun)
{
    DriftBench bench;
    setDays(bench, daysOf("A+ a+"));
    bench.test.lngOpTimePID = 0;
    bench.test.EvaluateDriftTest();
    EXPECT_THAT(statusOf(bench.test), ElementsAre("operating?", "idle?"));
    EXPECT_EQ(bench.test.lngUndeterminedDays, 1);
}

TEST(OperatingDays, AreMadeAnewByEveryEvaluation)
{
    DriftBench bench;
    setDays(bench, daysOf("QQQ"));
    bench.test.EvaluateDriftTest();
    setDays(bench, daysOf("PN"));
    bench.test.EvaluateDriftTest();
    EXPECT_THAT(statusOf(bench.test), ElementsAre("operating", "idle"));
}

} // namespace k7deval::test
