#include "sevenday/RetrievalRig.h"

#include <rapidcheck/gtest.h>

#include <algorithm>
#include <utility>

namespace k7deval::test
{

using testing::ElementsAre;

// What the order of the runs comes from: zero runs first, then the runs of upscale records alone.
class Order : public Retrieval
{
};

TEST_F(Order, IsThatOfTime)
{
    addZero(onDay(0, 8));
    addZero(onDay(2, 8));
    addZero(onDay(1, 8));
    addUpscale(onDay(1, 7));
    addUpscale(onDay(2, 9));
    retrieve();
    EXPECT_THAT(rig_.runKeys(),
                ElementsAre("2024/03/10 08:00", "2024/03/11 07:00", "2024/03/11 08:00",
                            "2024/03/12 08:00", "2024/03/12 09:00"));
    EXPECT_TRUE(rig_.run("2024/03/11 07:00").SpanCal);
    EXPECT_TRUE(rig_.run("2024/03/11 08:00").ZeroCal);
}

TEST_F(Order, OfOneRunNeedsNone)
{
    addUpscale(onDay(0, 8));
    retrieve();
    EXPECT_THAT(rig_.runKeys(), ElementsAre("2024/03/10 08:00"));
}

TEST_F(Order, TakesASmallestRunFromTheThirdOn)
{
    addZero(onDay(1, 8));
    addZero(onDay(2, 8));
    addUpscale(onDay(0, 8));
    retrieve();
    EXPECT_THAT(rig_.runKeys(),
                ElementsAre("2024/03/10 08:00", "2024/03/11 08:00", "2024/03/12 08:00"));
}

TEST_F(Order, CanNotTakeASecondRunAheadOfTheFirst)
{
    addZero(onDay(1, 8));
    retrieve();
    const auto before = rig_.test.dictCals;

    addUpscale(onDay(0, 8));
    rig_.test.RetrieveCals();

    EXPECT_THAT(rig_.messages->lines(), ElementsAre("DEval-003: 9, Subscript out of range"));
    EXPECT_EQ(rig_.test.dictCals, before);
    EXPECT_THAT(rig_.runKeys(), ElementsAre("2024/03/11 08:00"));
}

TEST_F(Order, CanNotTakeASecondRunAheadOfTheFirstAmongMany)
{
    addZero(onDay(1, 8));
    addZero(onDay(0, 8));
    addZero(onDay(2, 8));
    rig_.test.RetrieveCals();
    EXPECT_THAT(rig_.messages->lines(), ElementsAre("DEval-003: 9, Subscript out of range"));
    EXPECT_EQ(rig_.test.dictCals, nullptr);
}

namespace
{

// Two to twelve different minutes of the interval, in any order.
std::vector<int> anyMinutes()
{
    const auto count = *rc::gen::inRange<std::size_t>(2, 13);
    return *rc::gen::unique<std::vector<int>>(count, rc::gen::inRange(0, 3 * 1440));
}

void addZeroRecords(DriftRig& rig, const std::vector<int>& minutes)
{
    rig.setInterval(3);
    for (const int minute : minutes)
        rig.site->records.push_back(zeroRecord(onDay(0, 0, minute)));
}

} // namespace

RC_GTEST_PROP(AnyOrder, WithTheSecondRunBehindTheFirstIsSorted, ())
{
    auto minutes = anyMinutes();
    if (minutes[1] < minutes[0])
        std::swap(minutes[0], minutes[1]);
    DriftRig rig;
    addZeroRecords(rig, minutes);

    rig.test.RetrieveCals();

    RC_ASSERT(rig.messages->posted.empty());
    std::sort(minutes.begin(), minutes.end());
    RC_ASSERT(rig.test.dictCals->Count() == minutes.size());
    std::size_t next = 0;
    for (const auto& [key, run] : *rig.test.dictCals) {
        RC_ASSERT(run->CalTime == onDay(0, 0, minutes[next++]));
        RC_ASSERT(key == minuteKey(run->CalTime));
    }
}

RC_GTEST_PROP(AnyOrder, WithTheSecondRunAheadOfTheFirstFails, ())
{
    auto minutes = anyMinutes();
    if (minutes[1] > minutes[0])
        std::swap(minutes[0], minutes[1]);
    DriftRig rig;
    addZeroRecords(rig, minutes);

    rig.test.RetrieveCals();

    const std::vector<std::string> line{"DEval-003: 9, Subscript out of range"};
    RC_ASSERT(rig.messages->lines() == line);
    RC_ASSERT(rig.test.dictCals == nullptr);
}

} // namespace k7deval::test
