#pragma once

#include "sevenday/DriftTestData.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace k7deval::test
{

/// A bench with an interval of three days, and its records.
class Retrieval : public testing::Test
{
protected:
    Retrieval() { bench_.setInterval(3); }

    RecordData& add(const RecordData& record)
    {
        bench_.site->records.push_back(record);
        return bench_.site->records.back();
    }
    RecordData& addZero(Date runTime) { return add(zeroRecord(runTime)); }
    RecordData& addUpscale(Date runTime) { return add(upscaleRecord(runTime)); }

    void retrieve()
    {
        bench_.test.RetrieveCals();
        EXPECT_THAT(bench_.messages->lines(), testing::IsEmpty());
    }

    // Retrieves with this one zero record and gives its run.
    const cls7DayAnalyzerCal& runOf(const RecordData& zero)
    {
        add(zero);
        retrieve();
        return bench_.run(minuteKey(zero.runTime));
    }

    DriftBench bench_;
};

} // namespace k7deval::test
