#include "latebound/Records.h"

#include "foundation/ExpectError.h"
#include "latebound/FakeObject.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace k7deval::latebound
{
namespace
{

using testing::ElementsAre;

const Date kRun = makeDate(2018, 5, 16, 6, 30);

TEST(LateRecord, IsReadByTheNamesOfTheDataInterface)
{
    Record record(wrapped(fake({
        {"RunTime", Variant(kRun)},
        {"Scale", Variant(std::string("HIGH"))},
        {"GasLevelCode", Variant(std::int32_t{2})},
        {"GasLevelText", Variant(std::string("span"))},
        {"ReferenceValue", Variant(90.5F)},
        {"MeasuredValue", Variant(Null{})},
        {"InjectionEnd", Variant(Null{})},
        {"Manual", Variant(true)},
        {"CalStatus", Variant(std::int32_t{29})},
        {"Span", Variant(std::string("100"))},
        {"SourceTagID", Variant(std::int32_t{123})},
    })));

    EXPECT_EQ(record.RunTime(), kRun);
    EXPECT_EQ(record.Scale(), "HIGH");
    EXPECT_EQ(record.GasLevelCode(), 2);
    EXPECT_EQ(record.GasLevelText(), "span");
    EXPECT_EQ(record.ReferenceValue(), Variant(90.5F));
    EXPECT_EQ(record.MeasuredValue(), Variant(Null{}));
    EXPECT_EQ(record.InjectionEnd(), Date{}) << "not recorded";
    EXPECT_EQ(record.Manual(), Variant(true));
    EXPECT_EQ(record.CalStatus(), 29);
    EXPECT_EQ(record.Span(), Variant(std::string("100")));
    EXPECT_EQ(record.SourceTagID(), Variant(std::int32_t{123}));
}

TEST(LateRecord, TakesADateAsANumberOfDaysOrAsAText)
{
    Record days(wrapped(fake({{"RunTime", Variant(43236.0)}})));
    Record text(wrapped(fake({{"RunTime", Variant(std::string("5/16/2018 06:30"))}})));

    EXPECT_EQ(days.RunTime(), makeDate(2018, 5, 16));
    EXPECT_EQ(text.RunTime(), kRun);
}

TEST(LateRecordStore, PassesTheQueryInTheOrderOfTheDataInterface)
{
    const FakeHandle store = fake({
        {"ReadRangeRecords", fakeCollection({fake({{"Scale", Variant(std::string("LOW"))}})})},
        {"ReadRecords", fakeCollection({})},
    });
    RecordStore records(wrapped(store));

    RangeRecordQuery range;
    range.siteKey = "SITE";
    range.start = kRun;
    range.end = kRun;
    range.pid = 5;
    range.scale = "LOW";
    range.tables = "A,B";
    const DIRecordList found = records.ReadRangeRecords(range);
    RecordQuery table;
    table.siteKey = "SITE";
    table.pid = 5;
    table.table = "A";
    EXPECT_TRUE(records.ReadRecords(table).empty());

    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0]->Scale(), "LOW");
    EXPECT_THAT(store->calls,
                ElementsAre("ReadRangeRecords('SITE', 0, 5/16/2018 6:30:00 AM, 5/16/2018 6:30:00 "
                            "AM, '', 5, 0, '', 'LOW', '', 'A,B', 0, 0, 1)",
                            "ReadRecords('SITE', 0, 12/30/1899 12:00:00 AM, 12/30/1899 12:00:00 "
                            "AM, '', 0, 5, '', '', '', 'A')"));
}

TEST(LateRecordStore, HasNoRecordsWithoutACollection)
{
    RecordStore records(wrapped(fake({{"ReadRecords", ObjectHandle()}})));

    EXPECT_TRUE(records.ReadRecords({}).empty());
}

TEST(LateRecordStore, LeavesTheRecordsThatAreNothing)
{
    const FakeHandle record = fake({{"Scale", Variant(std::string("LOW"))}});
    RecordStore records(wrapped(fake({{"ReadRecords", fakeCollection({nullptr, record})}})));

    const DIRecordList found = records.ReadRecords({});
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0], nullptr);
    EXPECT_EQ(found[1]->Scale(), "LOW");
}

TEST(LateRecordStore, NeedsTheRecordsOfAnIntervalToBeThere)
{
    RecordStore none(wrapped(fake({{"ReadRangeRecords", ObjectHandle()}})));
    RecordStore nothing(wrapped(fake({{"ReadRangeRecords", fakeCollection({nullptr})}})));

    EXPECT_EQ(errorOf([&] { return none.ReadRangeRecords({}); }), errors::kObjectNotSet);
    EXPECT_EQ(errorOf([&] { return nothing.ReadRangeRecords({}); }), errors::kObjectNotSet);
}

} // namespace
} // namespace k7deval::latebound
