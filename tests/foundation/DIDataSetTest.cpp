#include "foundation/DIDataSet.h"

#include "foundation/ExpectError.h"
#include "foundation/RegionalSettings.h"

#include <gtest/gtest.h>

#include <cmath>

namespace k7deval
{

namespace
{

DIDataSet hoursFrom(Date start, std::int32_t count)
{
    DIDataSet set;
    set.Init(start, count, "h", 1, 0);
    return set;
}

const Date kMarchTenth = makeDate(2024, 3, 10);

} // namespace

TEST(DIDataSet, AFreshSlotHasNoValueAndStatusZero)
{
    auto set = hoursFrom(kMarchTenth, 3);
    EXPECT_EQ(set.ItemByIndex(2).Value(), Variant(Null{}));
    EXPECT_EQ(set.ItemByIndex(2).Status(), 0);
}

TEST(DIDataSet, AnHourWithoutDataIsNeitherZeroNorNumeric)
{
    auto set = hoursFrom(kMarchTenth, 1);
    const Variant value = set.ItemByIndex(1).Value();
    EXPECT_FALSE(IsNumeric(value, RegionalSettings()));
    EXPECT_NE(value, Variant(0.0));
}

TEST(DIDataSet, ASlotKeepsItsValueAndStatus)
{
    auto set = hoursFrom(kMarchTenth, 3);
    set.ItemByIndex(3).SetValue(12.5);
    set.ItemByIndex(3).SetStatus(35);
    EXPECT_EQ(set.ItemByIndex(3).Value(), Variant(12.5));
    EXPECT_EQ(set.ItemByIndex(3).Status(), 35);
    set.ItemByIndex(3).setNull();
    EXPECT_TRUE(isNull(set.ItemByIndex(3).Value()));
}

TEST(DIDataSet, SlotsCountFromOne)
{
    auto set = hoursFrom(kMarchTenth, 3);
    EXPECT_EQ(errorOf([&] { return set.ItemByIndex(0); }), errors::kSubscript);
    EXPECT_EQ(errorOf([&] { return set.ItemByIndex(4); }), errors::kSubscript);
    EXPECT_EQ(errorOf([&] { return set.ItemByIndex(3); }), 0);
}

TEST(DIDataSet, ATimeFindsTheSlotOfItsHour)
{
    auto set = hoursFrom(kMarchTenth, 24);
    for (int hour = 0; hour < 24; ++hour)
        set.values()[static_cast<std::size_t>(hour)] = hour;
    for (int hour = 0; hour < 24; ++hour) {
        const Variant expected(static_cast<double>(hour));
        EXPECT_EQ(set.ItemByTime(makeDate(2024, 3, 10, hour)).Value(), expected);
        EXPECT_EQ(set.ItemByTime(makeDate(2024, 3, 10, hour, 59, 59)).Value(), expected);
    }
}

TEST(DIDataSet, ATimeAHairBelowTheHourBelongsToTheHour)
{
    auto set = hoursFrom(kMarchTenth, 24);
    set.ItemByIndex(8).SetValue(7);
    const double sevenOClock = makeDate(2024, 3, 10, 7).days;
    EXPECT_EQ(set.ItemByTime(Date{std::nextafter(sevenOClock, 0.0)}).Value(), Variant(7.0));
}

TEST(DIDataSet, ATimeOutsideTheSetIsAnError)
{
    auto set = hoursFrom(kMarchTenth, 24);
    EXPECT_EQ(errorOf([&] { return set.ItemByTime(makeDate(2024, 3, 9, 23, 59, 59)); }),
              errors::kSubscript);
    EXPECT_EQ(errorOf([&] { return set.ItemByTime(makeDate(2024, 3, 11)); }), errors::kSubscript);
}

TEST(DIDataSet, TheEndLiesBehindTheLastSlot)
{
    const auto set = hoursFrom(kMarchTenth, 24);
    EXPECT_EQ(set.StartTime(), kMarchTenth);
    EXPECT_EQ(set.EndTime(), makeDate(2024, 3, 11));
    EXPECT_EQ(set.Count(), 24);
}

TEST(DIDataSet, ASetThatIsPreparedAgainForgetsItsData)
{
    auto set = hoursFrom(kMarchTenth, 24);
    set.ItemByIndex(1).SetValue(5);
    set.ItemByIndex(1).SetStatus(36);
    set.Init(makeDate(2024, 4, 1), 2, "h", 1, 0);
    EXPECT_EQ(set.Count(), 2);
    EXPECT_EQ(set.StartTime(), makeDate(2024, 4, 1));
    EXPECT_TRUE(isNull(set.ItemByIndex(1).Value()));
    EXPECT_EQ(set.ItemByIndex(1).Status(), 0);
}

TEST(DIDataSet, AnEmptySetEndsWhereItStarts)
{
    auto set = hoursFrom(kMarchTenth, 0);
    EXPECT_EQ(set.EndTime(), kMarchTenth);
    EXPECT_EQ(errorOf([&] { return set.ItemByTime(kMarchTenth); }), errors::kSubscript);
}

TEST(DIDataSet, OnlyHourlySlotsCanBePrepared)
{
    DIDataSet set;
    const auto init = [&](int count, const char* interval, int multiple, int options) {
        return errorOf(
            [&] { return set.Init(kMarchTenth, count, interval, multiple, options), 0; });
    };
    EXPECT_EQ(init(24, "h", 1, 0), 0);
    EXPECT_EQ(init(24, "n", 1, 0), errors::kInvalidCall);
    EXPECT_EQ(init(-1, "h", 1, 0), errors::kInvalidCall);
    EXPECT_EQ(init(24, "h", 2, 0), errors::kInvalidCall);
    EXPECT_EQ(init(24, "h", 1, 1), errors::kInvalidCall);
}

} // namespace k7deval
