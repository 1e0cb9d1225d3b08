#pragma once

#include "sevenday/DriftTestData.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace k7deval::test
{

/// A rig with an interval of three days, and its records.
class Retrieval : public testing::Test
{
protected:
    Retrieval() { rig_.setInterval(3); }

    RecordData& add(const RecordData& record)
    {
        rig_.site->records.push_back(record);
        return rig_.site->records.back();
    }
    RecordData& addZero(Date runTime) { return add(zeroRecord(runTime)); }
    RecordData& addUpscale(Date runTime) { return add(upscaleRecord(runTime)); }

    void retrieve()
    {
        rig_.test.RetrieveCals();
        EXPECT_THAT(rig_.messages->lines(), testing::IsEmpty());
    }

    // Retrieves with this one zero record and gives its run.
    const cls7DayAnalyzerCal& runOf(const RecordData& zero)
    {
        add(zero);
        retrieve();
        return rig_.run(minuteKey(zero.runTime));
    }

    DriftRig rig_;
};

} // namespace k7deval::test
