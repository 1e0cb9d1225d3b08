#include "range/RangeRig.h"
#include "support/Approval.h"

#include <gtest/gtest.h>

/// The screen before the host has set any data.
namespace k7deval::test
{

TEST(RangeScreenApproved, AtTheStart)
{
    test::expectApproved("range-screen/start/widgets.txt", layoutOf(RangeTool().tool));
}

TEST(RangeStart, NothingIsCounted)
{
    const RangeTool rig;
    EXPECT_EQ(countersOf(rig.tool.evaluation()), Counters());
    EXPECT_TRUE(rig.tool.UnitCatalogue().isEmpty());
}

TEST(RangeStart, WithoutDataTheOtherActionsDoNoHarm)
{
    RangeTool rig;
    EXPECT_NO_THROW(rig.tool.chkShowPID.Press());
    EXPECT_NO_THROW(enter(rig.tool.txtRange, "50"));
    EXPECT_NO_THROW(rig.tool.Terminate());
    EXPECT_EQ(rig.tool.evaluation().RangeValue, 50);
}

} // namespace k7deval::test
