#include "sevenday/RetrievalRig.h"

#include <utility>

namespace k7deval::test
{

// The operating time of the unit, and of what the analyzer is linked to.
class OperatingTime : public Retrieval
{
protected:
    void link(PID source, PID object)
    {
        rig_.site->parameter(source).links[attribute::kLinkedObjectPID] = object;
    }
    void giveStackItsOwn(PID hours)
    {
        rig_.site->parameter(kDriftStack).links[attribute::kOperatingTimePID] = hours;
    }
    PID found()
    {
        rig_.test.lngOpTimePID = 1;
        retrieve();
        return rig_.test.lngOpTimePID;
    }
};

// What the site has: whether the unit has an operating time, what the analyzer of an upscale record
// is linked to, and the operating time of the stack; 0 for none.
struct OperatingTimeCase {
    const char* name;
    bool unitHasOne;
    PID linked;
    PID ofStack;
    PID found;
};

void PrintTo(const OperatingTimeCase& row, std::ostream* out)
{
    *out << row.name;
}

class OperatingTimeOf : public OperatingTime, public testing::WithParamInterface<OperatingTimeCase>
{
};

TEST_P(OperatingTimeOf, IsThatOfTheLinkedObjectWhereItHasOne)
{
    const OperatingTimeCase& row = GetParam();
    if (!row.unitHasOne)
        rig_.site->parameter(kDriftUnit).links.clear();
    if (row.linked != 0)
        link(kDriftSource, row.linked);
    if (row.ofStack != 0)
        giveStackItsOwn(row.ofStack);
    addUpscale(onDay(0, 8));
    EXPECT_EQ(found(), row.found);
}

constexpr OperatingTimeCase kOperatingTimes[] = {
    {"WithoutALink", true, 0, 0, kDriftUnitHours},
    {"OfAUnitWithoutOne", false, 0, 0, 0},
    {"OfTheStack", true, kDriftStack, kDriftStackHours, kDriftStackHours},
    {"OfTheStackForAUnitWithoutOne", false, kDriftStack, kDriftStackHours, kDriftStackHours},
    {"OfAStackWithoutOne", true, kDriftStack, 0, kDriftUnitHours},
    {"OfAStackWhoseOwnDoesNotExist", true, kDriftStack, kDriftStackHours + 1, kDriftUnitHours},
    {"OfAStackThatDoesNotExist", true, kDriftStack + 1, 0, kDriftUnitHours},
};

INSTANTIATE_TEST_SUITE_P(, OperatingTimeOf, testing::ValuesIn(kOperatingTimes),
                         [](const auto& row) { return row.param.name; });

TEST_F(OperatingTime, OfTheUnitIsTakenWithoutRecords)
{
    EXPECT_EQ(found(), kDriftUnitHours);
    EXPECT_EQ(rig_.site->countCalls("DIRecord.SourceTagID"), 0U);
}

TEST_F(OperatingTime, WithPidZeroNeverWins)
{
    ParameterData zero;
    zero.pid = 0;
    rig_.site->parameters.push_back(zero);
    addUpscale(onDay(0, 8));
    EXPECT_EQ(found(), kDriftUnitHours);
}

// Without records the linked object is that of PID 0, which a site may have.
TEST_F(OperatingTime, OfAParameterWithPidZeroWinsWithoutRecords)
{
    ParameterData zero;
    zero.pid = 0;
    zero.links[attribute::kOperatingTimePID] = kDriftStackHours;
    rig_.site->parameters.push_back(zero);
    EXPECT_EQ(found(), kDriftStackHours);
}

TEST_F(OperatingTime, GoesByTheFirstUpscaleRecord)
{
    link(kDriftSource, kDriftStack);
    giveStackItsOwn(kDriftStackHours);
    addZero(onDay(0, 8)).sourceTag = kDriftAnalyzer;
    addUpscale(onDay(0, 8));
    addUpscale(onDay(0, 9)).sourceTag = kDriftAnalyzer;
    EXPECT_EQ(found(), kDriftStackHours);

    std::swap(rig_.site->records[1], rig_.site->records[2]);
    EXPECT_EQ(found(), kDriftUnitHours);
}

TEST_F(OperatingTime, GoesByTheFirstZeroRecordWithoutUpscaleOnes)
{
    link(kDriftSource, kDriftStack);
    giveStackItsOwn(kDriftStackHours);
    addZero(onDay(0, 8));
    addZero(onDay(0, 9)).sourceTag = kDriftAnalyzer;
    EXPECT_EQ(found(), kDriftStackHours);

    std::swap(rig_.site->records[0].sourceTag, rig_.site->records[1].sourceTag);
    EXPECT_EQ(found(), kDriftUnitHours);
}

TEST_F(OperatingTime, DoesNotGoByRecordsOfAnotherScale)
{
    link(kDriftSource, kDriftStack);
    giveStackItsOwn(kDriftStackHours);
    addUpscale(onDay(0, 8)).scale = "LOW";
    EXPECT_EQ(found(), kDriftUnitHours);
}

} // namespace k7deval::test
