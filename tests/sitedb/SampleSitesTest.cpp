#include "sitedb/PlanCase.h"
#include "sitedb/SiteQueries.h"
#include "sitedb/tables/SiteIds.h"
#include "support/Places.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace k7deval::sitedb::test
{

namespace
{

using testing::ElementsAre;

std::filesystem::path dataFile(const std::string& name)
{
    return k7deval::test::projectFile("data/" + name);
}

/// Parameters, attributes, links, constants and hours of a site.
std::string content(const SiteDatabase& site)
{
    const std::string all = dump(site);
    return all.substr(0, all.find("SELECT * FROM calibration_record"));
}

struct SampleOrder {
    const char* what;
    const char* unit;
    const char* spans;
    const char* hours;
};

void PrintTo(const SampleOrder& order, std::ostream* stream)
{
    *stream << order.what;
}

class HoursAndSpans : public testing::TestWithParam<SampleOrder>
{
};

/// The hours of a stretch that have a value.
std::vector<double> hoursOf(const SiteDatabase& site, PID measured, Date start, std::int32_t count)
{
    DIDataSet set;
    set.Init(start, count, "h", 1, 0);
    parameter(site, measured)->ReadData(set);
    std::vector<double> values;
    std::ranges::copy_if(set.values(), std::back_inserter(values),
                         [](double value) { return value == value; });
    return values;
}

TEST_P(HoursAndSpans, MayComeInAnyOrder)
{
    const auto& order = GetParam();
    EmptySite spansFirst;
    importFile(spansFirst.site, dataFile(order.spans), forUnit(order.unit));
    importFile(spansFirst.site, dataFile(order.hours), forUnit(order.unit));
    EmptySite hoursFirst;
    importFile(hoursFirst.site, dataFile(order.hours), forUnit(order.unit));
    importFile(hoursFirst.site, dataFile(order.spans), forUnit(order.unit));
    EXPECT_EQ(spansOf(hoursFirst.site), spansOf(spansFirst.site));
    EXPECT_TRUE(content(hoursFirst.site) == content(spansFirst.site));
}

INSTANTIATE_TEST_SUITE_P(
    Samples, HoursAndSpans,
    testing::Values(SampleOrder{"Crystal River", "4", "crystal-river/spans.csv",
                                "crystal-river/mats_hourly_4_HGC_2021Q3.csv"},
                    SampleOrder{"Flint Creek", "1", "flint-creek/assumed_spans.csv",
                                "flint-creek/monitor_hourly_1_SO2C_2021Q4.csv"}));

TEST(SampleSites, CrystalRiverHasMercuryHoursBelowTwoOfItsFullScaleOfTen)
{
    EmptySite held;
    importFile(held.site, dataFile("crystal-river/spans.csv"), forUnit("4"));
    importFile(held.site, dataFile("crystal-river/mats_hourly_4_HGC_2021Q3.csv"), forUnit("4"));
    const auto hours = hoursOf(held.site, 115'007'501, makeDate(2021, 7, 1), 92 * 24);
    EXPECT_EQ(hours.size(), 736U);
    EXPECT_EQ(*std::ranges::max_element(hours), 1.54);
}

TEST(SampleSites, FlintCreekHasUnadjustedSulfurDioxideWithinItsAssumedRange)
{
    EmptySite held;
    importFile(held.site, dataFile("flint-creek/monitor_hourly_1_SO2C_2021Q4.csv"), forUnit("1"));
    importFile(held.site, dataFile("flint-creek/assumed_spans.csv"), {});
    EXPECT_THAT(spansOf(held.site), ElementsAre("SO2/H Calibration: 100"));
    const auto hours = hoursOf(held.site, 110'007'501, makeDate(2021, 10, 1), 92 * 24);
    EXPECT_EQ(hours.size(), 1314U);
    EXPECT_EQ(hours.front(), 19.1);
    EXPECT_EQ(*std::ranges::max_element(hours), 85.1);
}

TEST(SampleSites, BarrettHasLoadAndTheCapacityThatWasSetByHand)
{
    EmptySite held;
    for (const char* unit : {"10", "20"})
        importFile(held.site, dataFile("barrett/hourly_load_" + std::string(unit) + ".csv.gz"),
                   forUnit(unit));
    held.site.setCapacity("10", 195);
    EXPECT_THAT(constantsOf(held.site, 1), ElementsAre("602 0 0: 195"));
    EXPECT_EQ(hoursOf(held.site, loadPID(1), makeDate(2020, 10, 1), 92 * 24),
              std::vector<double>(92 * 24, 0.0));
    EXPECT_EQ(hoursOf(held.site, loadPID(2), makeDate(2019, 1, 1), 365 * 24).size(), 8760U);
}

} // namespace

} // namespace k7deval::sitedb::test
