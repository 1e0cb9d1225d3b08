#include "sitedb/ImportCase.h"
#include "sitedb/SiteQueries.h"

#include "sitedb/sql/Connection.h"

#include <gtest/gtest.h>

namespace k7deval::sitedb::test
{

namespace
{

/// A site with records of two tables, put in out of their order.
struct SiteWithRecords : SmallSite {
    SiteWithRecords()
    {
        add("K7CAL", "HIGH", "2020-03-02 07:15", 2);
        add("K7CAL", "HIGH", "2020-03-01 06:10", 1);
        add("K7CAL", "HIGH", "2020-03-01 06:10", 0);
        add("K7PMCAL", "HIGH", "2020-03-01 12:00", 0);
        add("OTHER", "HIGH", "2020-03-01 12:30", 0);
        add("K7CAL", "LOW", "2020-03-01 06:10", 0);
    }

    void add(const std::string& table, const std::string& scale, const std::string& time,
             std::int64_t level) const
    {
        site.connection().execute(
            "INSERT INTO calibration_record (record_table, pid, scale, run_time, gas_level_code,"
            " gas_level_text, cal_status) VALUES ($1, $2, $3, $4, $5, '', 28)",
            table, std::int64_t{kNox}, scale, time, level);
    }
};

std::vector<std::string> shown(const DIRecordList& records)
{
    std::vector<std::string> texts;
    texts.reserve(records.size());
    for (const auto& record : records)
        texts.push_back(minuteKey(record->RunTime()) + " " +
                        std::to_string(record->GasLevelCode()));
    return texts;
}

using Texts = std::vector<std::string>;

using SiteRecords = ImportTest<SiteWithRecords>;

TEST_F(SiteRecords, ComeInTheOrderOfTimeZeroGasFirst)
{
    EXPECT_EQ(shown(allRecords(site, kNox, "HIGH")),
              (Texts{"2020/03/01 06:10 0", "2020/03/01 06:10 1", "2020/03/01 12:00 0",
                     "2020/03/02 07:15 2"}));
}

struct PeriodCase {
    const char* what = "";
    Date start;
    Date end;
    std::size_t count = 0;
};

TEST_F(SiteRecords, BothEndsOfARangeBelongToIt)
{
    const PeriodCase cases[] = {
        {"the minute itself", makeDate(2020, 3, 1, 6, 10), makeDate(2020, 3, 1, 6, 10), 2},
        {"up to a second before", makeDate(2020, 3, 1), makeDate(2020, 3, 1, 6, 9, 59), 0},
        {"from a second after", makeDate(2020, 3, 1, 6, 10, 1), makeDate(2020, 3, 2), 1},
        {"a second into the minute at the end", makeDate(2020, 3, 1),
         makeDate(2020, 3, 1, 6, 10, 1), 2},
        {"the whole two days", makeDate(2020, 3, 1), makeDate(2020, 3, 2, 23, 59), 4},
        {"turned around", makeDate(2020, 3, 2, 23, 59), makeDate(2020, 3, 1), 0},
        {"before all", makeDate(2019, 1, 1), makeDate(2019, 12, 31), 0},
    };
    for (const auto& range : cases)
        EXPECT_EQ(recordsBetween(site, kNox, "HIGH", range.start, range.end).size(), range.count)
            << range.what;
}

TEST_F(SiteRecords, AreToldApartByScaleAndParameter)
{
    EXPECT_EQ(allRecords(site, kNox, "LOW").size(), 1U);
    EXPECT_TRUE(allRecords(site, kNox, "").empty());
    EXPECT_TRUE(allRecords(site, kNox + 1, "HIGH").empty());
}

TEST_F(SiteRecords, OnlyTheNamedTablesAreRead)
{
    const auto store = site.server()->RecordStore();
    RangeRecordQuery query;
    query.siteKey = "site";
    query.start = makeDate(2020, 1, 1);
    query.end = makeDate(2021, 1, 1);
    query.pid = kNox;
    query.scale = "HIGH";
    for (const auto& [tables, count] :
         std::vector<std::pair<std::string, std::size_t>>{{"K7CAL", 3},
                                                          {"OTHER", 1},
                                                          {"K7PMCAL, OTHER", 2},
                                                          {"K7CAL,", 3},
                                                          {"", 0},
                                                          {"K7", 0}}) {
        query.tables = tables;
        EXPECT_EQ(store->ReadRangeRecords(query).size(), count) << tables;
    }
}

TEST_F(SiteRecords, ReadRecordsGivesAllOfATableForOneParameter)
{
    EXPECT_EQ(recordsOf(site, kNox, "K7CAL").size(), 4U);
    EXPECT_EQ(recordsOf(site, kNox, "K7PMCAL").size(), 1U);
    EXPECT_TRUE(recordsOf(site, kNox, "NONE").empty());
}

TEST_F(SiteRecords, WhatWasNotRecordedIsNullOrTheZeroDate)
{
    const auto records = recordsOf(site, kNox, "K7PMCAL");
    EXPECT_EQ(records[0]->InjectionEnd(), Date{});
    for (const auto& value : {records[0]->ReferenceValue(), records[0]->MeasuredValue(),
                              records[0]->Manual(), records[0]->Span(), records[0]->SourceTagID()})
        EXPECT_EQ(value, Variant(Null{}));
}

TEST_F(SiteRecords, TheKeyOfAnotherSiteIsAnError)
{
    const auto server = site.server();
    const std::string sentence = R"(The site's key is "site", not "other".)";
    const auto expectRefused = [&](const auto& call) {
        try {
            call();
            ADD_FAILURE();
        } catch (const Error& error) {
            EXPECT_EQ(error.number(), errors::kInvalidCall);
            EXPECT_EQ(error.description(), sentence);
        }
    };
    RangeRecordQuery range;
    range.siteKey = "other";
    RecordQuery query;
    query.siteKey = "other";
    expectRefused([&] { static_cast<void>(server->RecordStore()->ReadRangeRecords(range)); });
    expectRefused([&] { static_cast<void>(server->RecordStore()->ReadRecords(query)); });
    expectRefused([&] {
        static_cast<void>(
            server->LookupService()->Lookups()->Find("other", 1, "K7LOOKUP", "FacilityName", ""));
    });
}

} // namespace

} // namespace k7deval::sitedb::test
