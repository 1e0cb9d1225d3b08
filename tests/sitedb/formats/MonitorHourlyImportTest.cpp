#include "sitedb/EmissionsCase.h"
#include "sitedb/SiteQueries.h"
#include "sitedb/tables/SiteIds.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace k7deval::sitedb::test
{

namespace
{

using testing::ElementsAre;

constexpr PID kSo2 = 110'007'501;

constexpr const char* kHeader = "date,hour,parameter,unadjusted_hourly_value,adjusted_hourly_value,"
                                "modc,percent_available,bias_adj_factor\r\n";
constexpr const char* kMatsHeader = "date,hour,parameter,unadjusted_hourly_value_ugscm,modc\n";

ImportOptions forComponent(const std::string& unit, const std::string& component)
{
    ImportOptions options = forUnit(unit);
    options.component = component;
    return options;
}

using MonitorHourlyImport = ImportTest<SmallSite>;
using MonitorHourlyImportIntoANewSite = ImportTest<EmptySite>;

TEST_F(MonitorHourlyImport, TheUnadjustedValueIsTakenWithTheWordOfItsModc)
{
    take("hours.csv",
         std::string(kHeader) + "2021-10-01,0,NOXC,19.100,21.200,01,99.6,1.022\r\n"
                                "2021-10-01,1,NOXC,,40.000,06,99.5,\r\n"
                                "2021-10-01,3,NOXC,200,222,20,99.5,1.022\r\n",
         forUnit("U1"));
    EXPECT_THAT(hoursFrom(site, kNox, makeDate(2021, 10, 1), 4),
                ElementsAre("19.1/101", "-/106", "-/0", "200/36"));
}

TEST_F(MonitorHourlyImport, ReportsWhatItTookAndWhatItSteppedOver)
{
    const auto report = take("hours.csv",
                             std::string(kHeader) + "2021-10-01,0,NOXC,19.1,21.2,01,99.6,1.022\r\n"
                                                    "2021-10-01,1,NOXC,,40.0,06,99.5,\r\n",
                             forUnit("U1"));
    EXPECT_EQ(report.format, "hours of a monitor");
    EXPECT_THAT(report.counts, ElementsAre("2 hours", "1 measured hour"));
    EXPECT_THAT(report.steppedOver, ElementsAre(R"(The column "adjusted_hourly_value".)",
                                                R"(The column "percent_available".)",
                                                R"(The column "bias_adj_factor".)"));
}

TEST_F(MonitorHourlyImportIntoANewSite, MercuryStandsThereInExponentNotation)
{
    take("hours.csv",
         std::string(kMatsHeader) + "2021-07-01,0,HGC,2.43E-1,46\n"
                                    "2021-07-01,1,HGC,1.44E0,17\n",
         forUnit("4"));
    EXPECT_THAT(hoursFrom(site, kMercury, makeDate(2021, 7, 1), 2),
                ElementsAre("0.243/146", "1.44/117"));
    EXPECT_EQ(parameter(site, kMercury)->UnitsText(), "\xC2\xB5g/scm");
}

TEST_F(MonitorHourlyImportIntoANewSite, WithoutAnAnalyzerOneIsMadeThatRangeEvaluationOffers)
{
    take("hours.csv", std::string(kHeader) + "2021-10-01,0,SO2C,19.1,21.2,01,99.6,1.022\r\n",
         forUnit("1"));
    EXPECT_EQ(parameter(site, kSo2)->Name(0), "SO2");
    const PID calibration = 110'047'501;
    EXPECT_EQ(attributeOf(site, calibration, attribute::kScale), Variant(std::string("HIGH")));
    EXPECT_EQ(attributeOf(site, calibration, attribute::kRangeUse), Variant(0));
    const auto definitions = recordsOf(site, calibration, "K7CAL");
    ASSERT_EQ(definitions.size(), 1U);
    EXPECT_EQ(definitions[0]->Span(), Variant(Null{}));
}

TEST_F(MonitorHourlyImportIntoANewSite, ASecondFileGoesToTheSameAnalyzer)
{
    for (const char* hour : {"0", "1"})
        take("hours.csv",
             std::string(kHeader) + "2021-10-01," + hour + ",SO2C,19.1,21.2,01,99.6,1\r\n",
             forUnit("1"));
    EXPECT_THAT(hoursFrom(site, kSo2, makeDate(2021, 10, 1), 2),
                ElementsAre("19.1/101", "19.1/101"));
}

TEST_F(MonitorHourlyImport, OfSeveralAnalyzersOneHasToBeNamed)
{
    take("more.csv", kSpanColumns + "U1,011,NOX,H,100,PPM\n");
    const auto file = held.directory.write(
        "hours.csv", std::string(kHeader) + "2021-10-01,0,NOXC,19.1,21.2,01,99.6,1\r\n");
    EXPECT_EQ(
        refusal(held, file, forUnit("U1")),
        "hours.csv: line 2: parameter: of the components 010 and 011 of U1, which all measure "
        "NOX, one has to be named.");
    importFile(site, file, forComponent("U1", "011"));
    EXPECT_THAT(hoursFrom(site, kNox + 1, makeDate(2021, 10, 1), 1), ElementsAre("19.1/101"));
}

TEST_F(MonitorHourlyImportIntoANewSite, ANamedComponentThatTheUnitDoesNotHaveIsMade)
{
    take("hours.csv", std::string(kHeader) + "2021-10-01,0,SO2C,19.1,21.2,01,99.6,1\r\n",
         forComponent("1", "A07"));
    EXPECT_EQ(parameter(site, kSo2)->Name(0), "SO2 A07");
}

TEST_F(MonitorHourlyImport, TheHoursOfALeapDayAreKept)
{
    take("hours.csv",
         std::string(kHeader) + "2020-02-29,23,NOXC,1,1,01,99.6,1\r\n"
                                "2020-03-01,0,NOXC,2,2,01,99.6,1\r\n",
         forUnit("U1"));
    EXPECT_THAT(hoursFrom(site, kNox, makeDate(2020, 2, 29, 23), 2), ElementsAre("1/101", "2/101"));
}

constexpr TableFault kHourRefusals[] = {
    {"a day that does not exist", "2021-02-29,0,NOXC,1,1,01,9,1",
     R"(date: "2021-02-29" is no date.)"},
    {"hour 24", "2021-01-01,24,NOXC,1,1,01,9,1", "hour: 24 is no hour from 0 to 23."},
    {"an hour that is no number", "2021-01-01,x,NOXC,1,1,01,9,1",
     R"(hour: "x" is no whole number.)"},
    {"an unknown parameter", "2021-01-01,0,NOXR,1,1,01,9,1",
     R"(parameter: "NOXR" is no parameter that is kept.)"},
    {"a gas that is no parameter", "2021-01-01,0,NOX,1,1,01,9,1",
     R"(parameter: "NOX" is no parameter that is kept.)"},
    {"no parameter", "2021-01-01,0,,1,1,01,9,1", "parameter: the field is empty."},
    {"an unknown MODC", "2021-01-01,0,NOXC,1,1,98,9,1",
     R"(modc: "98" is no MODC of a monitor's hour.)"},
    {"no MODC", "2021-01-01,0,NOXC,1,1,,9,1", "modc: the field is empty."},
    {"a value that is no number", "2021-01-01,0,NOXC,1O,1,01,9,1",
     R"(unadjusted_hourly_value: "1O" is no number.)"},
    {"too high a value", "2021-01-01,0,NOXC,1E11,1,01,9,1",
     "unadjusted_hourly_value: 1E11 lies outside -10000000000 to 10000000000."},
};

using MonitorHourlyRefusal = ImportCases<SmallSite, TableFault>;
using MonitorHourlyRefusals = ImportTest<SmallSite>;
using MercuryTableRefusals = ImportTest<EmptySite>;

TEST_P(MonitorHourlyRefusal, NamesFileLineAndFieldAndLeavesTheSiteAsItWas)
{
    const auto& entry = GetParam();
    EXPECT_EQ(
        refused("hours.csv",
                std::string(kHeader) + "2020-12-31,23,NOXC,1,1,01,9,1\r\n" + entry.content + "\r\n",
                forUnit("U1")),
        std::string("hours.csv: line 3: ") + entry.sentence);
}

INSTANTIATE_TEST_SUITE_P(Hours, MonitorHourlyRefusal, testing::ValuesIn(kHourRefusals));

TEST_F(MonitorHourlyRefusals, HoursOfNobodyAndOfAnUnreadableComponent)
{
    const auto file = held.directory.write("hours.csv", std::string(kHeader) +
                                                            "2021-01-01,0,NOXC,1,1,01,9,1\r\n");
    EXPECT_EQ(refusal(held, file, {}),
              "hours.csv: unit: the unit that the hours belong to has to be named.");
    EXPECT_EQ(refusal(held, file, forComponent("U1", "0011")),
              "hours.csv: line 2: parameter: component: \"0011\" is no identifier of 1 to 3 "
              "characters.");
    EXPECT_EQ(refusal(held, file, forComponent("U1", "020")),
              "hours.csv: line 2: parameter: component 020 of U1 measures another gas.");
}

TEST_F(MonitorHourlyRefusals, HoursThatStandThereTwiceOrAreHeldAlready)
{
    const std::string row = "2021-01-01,5,NOXC,1,1,01,9,1\r\n";
    EXPECT_EQ(refused("twice.csv", kHeader + row + row, forUnit("U1")),
              "twice.csv: line 3: date and hour: hour 5 of 2021-01-01 stands in the file twice.");
    take("hours.csv", kHeader + row, forUnit("U1"));
    EXPECT_EQ(refused("b.csv", kHeader + std::string("2021-01-01,4,NOXC,1,1,01,9,1\r\n") + row,
                      forUnit("U1")),
              "b.csv: line 3: date and hour: the site already holds the unit's NOXC for hour 5 of "
              "2021-01-01.");
}

TEST_F(MercuryTableRefusals, ATableOfMercuryWithAnotherGas)
{
    EXPECT_EQ(refused("mats.csv", std::string(kMatsHeader) + "2021-07-01,0,NOXC,2.43E-1,01\n",
                      forUnit("4")),
              "mats.csv: line 2: parameter: NOXC is not measured in \xC2\xB5g/scm.");
}

TEST_F(MonitorHourlyRefusals, ATableWithoutValues)
{
    EXPECT_EQ(
        refused("hours.csv", "date,hour,parameter,modc\n2021-01-01,0,NOXC,01\n", forUnit("U1")),
        "hours.csv: line 1: the column unadjusted_hourly_value is missing.");
}

} // namespace

} // namespace k7deval::sitedb::test
