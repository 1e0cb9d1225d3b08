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

void setHours(DriftRig& rig, Date start, std::string_view letters)
{
    HourlyValues& hours = rig.site->parameter(kDriftUnitHours).hours;
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
    DriftRig rig;
    rig.setInterval(1);
    setHours(rig, onDay(0), GetParam().hours);
    rig.test.AnalyzeOperatingDays();
    EXPECT_THAT(statusOf(rig.test), ElementsAre(GetParam().status));
    EXPECT_THAT(rig.messages->lines(), IsEmpty());
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
    DriftRig rig;
    rig.test.dtStart = makeDate(2024, 2, 28);
    rig.test.dtEnd = makeDate(2024, 3, 1, 23, 59);
    setHours(rig, rig.test.dtStart, ofDay("1") + ofDay("0") + ofDay("-"));
    rig.test.AnalyzeOperatingDays();

    EXPECT_THAT(rig.test.dictDays.Keys(), ElementsAre("2024/02/28", "2024/02/29", "2024/03/01"));
    EXPECT_EQ(rig.test.dictDays.Item("2024/02/29")->TStamp, makeDate(2024, 2, 29));
    EXPECT_EQ(rig.test.dictDays.Item("2024/03/01")->TStamp, makeDate(2024, 3, 1));
    EXPECT_THAT(statusOf(rig.test), ElementsAre("operating", "idle", "idle?"));
}

TEST(OperatingDays, AreJudgedByTheirOwnHoursAlone)
{
    DriftRig rig;
    rig.setInterval(3);
    setHours(rig, onDay(0), ofDay("") + ofDay("00000000000000000000000-") + ofDay("1") + "1");
    rig.test.AnalyzeOperatingDays();
    EXPECT_THAT(statusOf(rig.test), ElementsAre("idle", "idle?", "operating"));
    DriftRig shorter;
    shorter.setInterval(2);
    setHours(shorter, onDay(0), ofDay("") + ofDay("") + "1");
    shorter.test.AnalyzeOperatingDays();
    EXPECT_THAT(statusOf(shorter.test), ElementsAre("idle", "idle")) << "an hour behind the end";
}

TEST(OperatingDays, MayBeginWithinADay)
{
    DriftRig rig;
    rig.test.dtStart = onDay(0, 22);
    rig.test.dtEnd = onDay(1, 23, 59);
    setHours(rig, rig.test.dtStart, "-1" + ofDay("0"));
    rig.test.AnalyzeOperatingDays();

    EXPECT_THAT(rig.test.dictDays.Keys(), ElementsAre("2024/03/10", "2024/03/11"));
    EXPECT_EQ(rig.test.dictDays.Item("2024/03/10")->TStamp, onDay(0));
    EXPECT_THAT(statusOf(rig.test), ElementsAre("operating?", "idle"));
}

TEST(OperatingDays, AddToTheDaysThatAreThere)
{
    DriftRig rig;
    rig.setInterval(2);
    setHours(rig, onDay(0), ofDay("1") + ofDay("-"));
    rig.test.AnalyzeOperatingDays();
    setHours(rig, onDay(0), ofDay("-") + ofDay("0"));
    rig.test.AnalyzeOperatingDays();
    EXPECT_THAT(statusOf(rig.test), ElementsAre("operating?", "idle?"));
}

TEST(OperatingDays, AreReadFromTheOperatingTimeThatWasFound)
{
    DriftRig rig;
    rig.setInterval(1);
    setHours(rig, onDay(0), ofDay("1"));
    HourlyValues& stackHours = rig.site->parameter(kDriftStackHours).hours;
    stackHours = {onDay(0), std::vector<std::optional<double>>(24, 0.0)};
    rig.test.lngOpTimePID = kDriftStackHours;
    rig.test.AnalyzeOperatingDays();
    EXPECT_THAT(statusOf(rig.test), ElementsAre("idle"));
}

TEST(OperatingDays, AreAllUndeterminedWithoutAnOperatingTime)
{
    for (const PID missing : {PID{0}, PID{kDriftUnitHours + 1}}) {
        DriftRig rig;
        rig.setInterval(3);
        rig.test.lngOpTimePID = missing;
        rig.test.AnalyzeOperatingDays();

        EXPECT_THAT(rig.test.dictDays.Keys(),
                    ElementsAre("2024/03/10", "2024/03/11", "2024/03/12"));
        EXPECT_THAT(statusOf(rig.test), ElementsAre("idle?", "idle?", "idle?"));
        EXPECT_EQ(rig.test.dictDays.Item("2024/03/12")->TStamp, onDay(2));
        EXPECT_EQ(rig.site->countCalls("DIParameters.Item"), 0U);
        EXPECT_THAT(rig.messages->lines(), IsEmpty());
    }
}

TEST(OperatingDays, WithoutAnOperatingTimeBecomeSoByAnOnlineRun)
{
    DriftRig rig;
    setDays(rig, daysOf("A+ a+"));
    rig.test.lngOpTimePID = 0;
    rig.test.EvaluateDriftTest();
    EXPECT_THAT(statusOf(rig.test), ElementsAre("operating?", "idle?"));
    EXPECT_EQ(rig.test.lngUndeterminedDays, 1);
}

TEST(OperatingDays, AreMadeAnewByEveryEvaluation)
{
    DriftRig rig;
    setDays(rig, daysOf("QQQ"));
    rig.test.EvaluateDriftTest();
    setDays(rig, daysOf("PN"));
    rig.test.EvaluateDriftTest();
    EXPECT_THAT(statusOf(rig.test), ElementsAre("operating", "idle"));
}

} // namespace k7deval::test
