#include "sitedb/ImportCase.h"
#include "sitedb/SiteQueries.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace k7deval::sitedb::test
{

namespace
{

using testing::ElementsAre;

/// The values of so many hours as text, "-" for an hour without one.
std::vector<std::string> hours(const SiteDatabase& site, PID pid, Date start, std::int32_t count)
{
    DIDataSet set;
    set.Init(start, count, "h", 1, 0);
    parameter(site, pid)->ReadData(set);
    std::vector<std::string> texts;
    for (std::int32_t index = 1; index <= count; ++index) {
        const auto value = set.ItemByIndex(index).Value();
        texts.push_back(isNull(value) ? "-" : std::to_string(std::get<double>(value)).substr(0, 4));
    }
    return texts;
}

using HourlyLoadImport = ImportTest<EmptySite>;
using HourlyLoadIntoASite = ImportTest<SmallSite>;

TEST_F(HourlyLoadImport, AnHourWithLoadIsAnHourOfOperation)
{
    take("load.csv",
         "date,hour,gross_load_mw\n2020-02-28,23,0\n2020-02-29,0,0.25\n2020-02-29,1,70\n",
         forUnit("U1"));
    EXPECT_THAT(hours(site, kLoad, makeDate(2020, 2, 28, 23), 3),
                ElementsAre("0.00", "0.25", "70.0"));
    EXPECT_THAT(hours(site, kOperatingTime, makeDate(2020, 2, 28, 23), 3),
                ElementsAre("0.00", "1.00", "1.00"));
}

TEST_F(HourlyLoadImport, AGapStaysAGapAndTheOrderOfTheRowsIsNoMatter)
{
    take("load.csv", "date,hour,gross_load_mw\n2020-01-01,5,50\n2020-01-01,1,10\n2020-01-01,2,20\n",
         forUnit("U1"));
    EXPECT_THAT(hours(site, kLoad, makeDate(2020, 1, 1), 7),
                ElementsAre("-", "10.0", "20.0", "-", "-", "50.0", "-"));
}

TEST_F(HourlyLoadIntoASite, AnUnknownUnitIsMadeAndAKnownOneIsUsed)
{
    take("load.csv", "date,hour,gross_load_mw\n2020-01-01,0,5\n", forUnit("U1"));
    take("b.csv", "date,hour,gross_load_mw\n2020-01-01,0,6\n", forUnit("U7"));
    EXPECT_THAT(pidsOf(site.server()->Units()), ElementsAre(100'100'000, 200'100'000));
    EXPECT_EQ(parameter(site, 200'100'000)->Name(0), "U7");
    EXPECT_EQ(parameter(site, 200'100'000)->GetAttribute(attribute::kUnitIdentifier),
              Variant(std::string("U7    ")));
    EXPECT_THAT(hours(site, 260'207'501, makeDate(2020, 1, 1), 1), ElementsAre("6.00"));
    EXPECT_THAT(hours(site, kLoad, makeDate(2020, 1, 1), 1), ElementsAre("5.00"));
}

TEST_F(HourlyLoadImport, ALaterFileGoesOnWhereTheFirstEnded)
{
    take("load.csv", "date,hour,gross_load_mw\n2020-01-01,0,5\n", forUnit("U1"));
    take("load.csv", "date,hour,gross_load_mw\n2020-01-01,1,6\n2019-12-31,23,4\n", forUnit("U1"));
    EXPECT_THAT(hours(site, kLoad, makeDate(2019, 12, 31, 23), 3),
                ElementsAre("4.00", "5.00", "6.00"));
    EXPECT_EQ(site.server()->ParametersOfInterval("h").size(), 2U);
}

TEST_F(HourlyLoadImport, ReportsWhatItTookAndWhatItSteppedOver)
{
    const auto report =
        take("load.csv",
             "date,hour,gross_load_mw,heat_input_mmbtu\n2020-01-01,0,5,50\n2020-01-01,1,0,0\n",
             forUnit("U1"));
    EXPECT_EQ(report.format, "hourly load");
    EXPECT_THAT(report.counts, ElementsAre("2 hours", "1 hour with load"));
    EXPECT_THAT(report.steppedOver, ElementsAre(R"(The column "heat_input_mmbtu".)"));
    EXPECT_TRUE(report.leftOut.empty());
}

TEST_F(HourlyLoadImport, AGzipFileOfTwoMembersIsOneTable)
{
    take("load.csv", gzip("date,hour,gross_load_mw\n2020-01-01,0,5\n2020-") + gzip("01-01,1,6\n"),
         forUnit("U1"));
    EXPECT_THAT(hours(site, kLoad, makeDate(2020, 1, 1), 2), ElementsAre("5.00", "6.00"));
}

TEST_F(HourlyLoadImport, AnOfflineHourIsNeitherUsableNorInvalid)
{
    take("load.csv", "date,hour,gross_load_mw\n2020-01-01,0,0\n2020-01-01,1,6\n", forUnit("U1"));
    DIDataSet set;
    set.Init(makeDate(2020, 1, 1), 2, "h", 1, 0);
    parameter(site, kLoad)->ReadData(set);
    const auto codes = site.server()->StatusCodes();
    EXPECT_FALSE(codes->IsValid(set.ItemByIndex(1).Status()));
    EXPECT_TRUE(codes->IsUnitOffline(set.ItemByIndex(1).Status()));
    EXPECT_TRUE(codes->IsValid(set.ItemByIndex(2).Status()));
    EXPECT_FALSE(codes->IsUnitOffline(set.ItemByIndex(2).Status()));
}

TEST_F(HourlyLoadImport, ASetThatBeginsWithinAnHourBeginsWithThatHour)
{
    take("load.csv", "date,hour,gross_load_mw\n2020-01-01,0,5\n2020-01-01,1,6\n", forUnit("U1"));
    EXPECT_THAT(hours(site, kLoad, makeDate(2020, 1, 1, 0, 30), 2), ElementsAre("5.00", "6.00"));
}

} // namespace

} // namespace k7deval::sitedb::test
