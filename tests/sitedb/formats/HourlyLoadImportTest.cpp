#include "sitedb/ImportCase.h"
#include "sitedb/SiteQueries.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace k7deval::sitedb::test
{

namespace
{

using testing::ElementsAre;

ImportReport importLoad(EmptySite& held, const std::string& table, const std::string& unit)
{
    return importFile(held.site, held.directory.write("load.csv", table), forUnit(unit));
}

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

TEST(HourlyLoadImport, AnHourWithLoadIsAnHourOfOperation)
{
    EmptySite held;
    importLoad(held,
               "date,hour,gross_load_mw\n2020-02-28,23,0\n2020-02-29,0,0.25\n2020-02-29,1,70\n",
               "U1");
    EXPECT_THAT(hours(held.site, kLoad, makeDate(2020, 2, 28, 23), 3),
                ElementsAre("0.00", "0.25", "70.0"));
    EXPECT_THAT(hours(held.site, kOperatingTime, makeDate(2020, 2, 28, 23), 3),
                ElementsAre("0.00", "1.00", "1.00"));
}

TEST(HourlyLoadImport, AGapStaysAGapAndTheOrderOfTheRowsIsNoMatter)
{
    EmptySite held;
    importLoad(held, "date,hour,gross_load_mw\n2020-01-01,5,50\n2020-01-01,1,10\n2020-01-01,2,20\n",
               "U1");
    EXPECT_THAT(hours(held.site, kLoad, makeDate(2020, 1, 1), 7),
                ElementsAre("-", "10.0", "20.0", "-", "-", "50.0", "-"));
}

TEST(HourlyLoadImport, AnUnknownUnitIsMadeAndAKnownOneIsUsed)
{
    SmallSite held;
    importLoad(held, "date,hour,gross_load_mw\n2020-01-01,0,5\n", "U1");
    importFile(held.site,
               held.directory.write("b.csv", "date,hour,gross_load_mw\n2020-01-01,0,6\n"),
               forUnit("U7"));
    EXPECT_THAT(pidsOf(held.site.server()->Units()), ElementsAre(100'100'000, 200'100'000));
    EXPECT_EQ(parameter(held.site, 200'100'000)->Name(0), "U7");
    EXPECT_EQ(parameter(held.site, 200'100'000)->GetAttribute(attribute::kUnitIdentifier),
              Variant(std::string("U7    ")));
    EXPECT_THAT(hours(held.site, 260'207'501, makeDate(2020, 1, 1), 1), ElementsAre("6.00"));
    EXPECT_THAT(hours(held.site, kLoad, makeDate(2020, 1, 1), 1), ElementsAre("5.00"));
}

TEST(HourlyLoadImport, ALaterFileGoesOnWhereTheFirstEnded)
{
    EmptySite held;
    importLoad(held, "date,hour,gross_load_mw\n2020-01-01,0,5\n", "U1");
    importLoad(held, "date,hour,gross_load_mw\n2020-01-01,1,6\n2019-12-31,23,4\n", "U1");
    EXPECT_THAT(hours(held.site, kLoad, makeDate(2019, 12, 31, 23), 3),
                ElementsAre("4.00", "5.00", "6.00"));
    EXPECT_EQ(held.site.server()->ParametersOfInterval("h").size(), 2U);
}

TEST(HourlyLoadImport, ReportsWhatItTookAndWhatItSteppedOver)
{
    EmptySite held;
    const auto report = importLoad(
        held, "date,hour,gross_load_mw,heat_input_mmbtu\n2020-01-01,0,5,50\n2020-01-01,1,0,0\n",
        "U1");
    EXPECT_EQ(report.format, "hourly load");
    EXPECT_THAT(report.counts, ElementsAre("2 hours", "1 hour with load"));
    EXPECT_THAT(report.steppedOver, ElementsAre(R"(The column "heat_input_mmbtu".)"));
    EXPECT_TRUE(report.leftOut.empty());
}

TEST(HourlyLoadImport, AGzipFileOfTwoMembersIsOneTable)
{
    EmptySite held;
    importLoad(held, gzip("date,hour,gross_load_mw\n2020-01-01,0,5\n2020-") + gzip("01-01,1,6\n"),
               "U1");
    EXPECT_THAT(hours(held.site, kLoad, makeDate(2020, 1, 1), 2), ElementsAre("5.00", "6.00"));
}

TEST(HourlyLoadImport, AnOfflineHourIsNeitherUsableNorInvalid)
{
    EmptySite held;
    importLoad(held, "date,hour,gross_load_mw\n2020-01-01,0,0\n2020-01-01,1,6\n", "U1");
    DIDataSet set;
    set.Init(makeDate(2020, 1, 1), 2, "h", 1, 0);
    parameter(held.site, kLoad)->ReadData(set);
    const auto codes = held.site.server()->StatusCodes();
    EXPECT_FALSE(codes->IsValid(set.ItemByIndex(1).Status()));
    EXPECT_TRUE(codes->IsUnitOffline(set.ItemByIndex(1).Status()));
    EXPECT_TRUE(codes->IsValid(set.ItemByIndex(2).Status()));
    EXPECT_FALSE(codes->IsUnitOffline(set.ItemByIndex(2).Status()));
}

TEST(HourlyLoadImport, ASetThatBeginsWithinAnHourBeginsWithThatHour)
{
    EmptySite held;
    importLoad(held, "date,hour,gross_load_mw\n2020-01-01,0,5\n2020-01-01,1,6\n", "U1");
    EXPECT_THAT(hours(held.site, kLoad, makeDate(2020, 1, 1, 0, 30), 2),
                ElementsAre("5.00", "6.00"));
}

} // namespace

} // namespace k7deval::sitedb::test
