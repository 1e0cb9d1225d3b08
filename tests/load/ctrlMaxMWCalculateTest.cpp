#include "load/LoadRig.h"

#include <gtest/gtest.h>

#include <algorithm>

/// What a press of the Calculate button does, in its order.
namespace k7deval::test
{

namespace
{

const screen::MsgBoxRequest kVerifyZero{
    "Verify a minimum safe operating load of zero from the Part 75 Monitoring Plan.",
    "Load Evaluation", screen::MsgBoxButtons::OK, screen::MsgBoxIcon::Information};

using Boxes = std::vector<screen::MsgBoxRequest>;

} // namespace

TEST(LoadCalculate, AMinimumOfZeroIsToBeVerified)
{
    LoadRig rig;
    rig.calculate();
    EXPECT_EQ(rig.services.boxes, Boxes{kVerifyZero});
    EXPECT_FALSE(rig.tool.NeedsEvaluation()) << "it is a reminder and stops nothing";
}

TEST(LoadCalculate, AnyOtherMinimumIsNot)
{
    for (const char* minimum : {"1", "-1", "0.0001", "1E-30"}) {
        LoadRig rig;
        enter(rig.tool.txtMinSafe, minimum);
        rig.calculate();
        EXPECT_EQ(rig.services.boxes, Boxes()) << minimum;
    }
}

TEST(LoadCalculate, AMinimumOfZeroIsToBeVerifiedEveryTime)
{
    LoadRig rig;
    rig.calculate().calculate();
    EXPECT_EQ(rig.services.boxes, (Boxes{kVerifyZero, kVerifyZero}));
}

TEST(LoadCalculate, ItIsTheStoredMinimumThatIsVerifiedNotTheTypedOne)
{
    LoadRig rig;
    rig.tool.txtMinSafe.Type("5");
    rig.calculate();
    EXPECT_EQ(rig.services.boxes, Boxes{kVerifyZero});
    rig.calculate();
    EXPECT_EQ(rig.services.boxes, Boxes{kVerifyZero}) << "the evaluation has stored 5";
}

TEST(LoadCalculate, VerifiesTheMinimumBeforeThePeriod)
{
    LoadRig rig;
    rig.specify("1/1/2024", "4/3/2025").calculate();
    ASSERT_EQ(rig.services.boxes.size(), 2U);
    EXPECT_EQ(rig.services.boxes[0], kVerifyZero);
    EXPECT_EQ(rig.services.boxes[1].title, "Resetting Evaluation Period");
}

TEST(LoadCalculate, VerifiesTheMinimumBeforeAnythingIsRead)
{
    LoadRig rig;
    rig.services.msgBoxError = Error(440);
    rig.site->calls.clear();
    EXPECT_EQ(errorOf([&] { rig.calculate(); }), 440);
    EXPECT_EQ(rig.site->calls, Lines());
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Hourglass);
    EXPECT_TRUE(rig.tool.NeedsEvaluation());
    EXPECT_FALSE(rig.tool.cmdSave.Enabled());
}

TEST(LoadCalculate, WithoutAParameterFailsOnTheEmptyList)
{
    LoadRig rig(siteOfParameters({}));
    enter(rig.tool.txtCapacity, "100");
    EXPECT_EQ(errorOf([&] { rig.calculate(); }), 381);
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Hourglass);
    EXPECT_TRUE(rig.tool.NeedsEvaluation());
    EXPECT_FALSE(rig.tool.cmdSave.Enabled());
}

TEST(LoadCalculate, WithAZeroRangeStillNeedsAParameter)
{
    LoadRig rig(siteOfParameters({}));
    EXPECT_EQ(errorOf([&] { rig.calculate(); }), 381) << "the capacity is 0 too";
}

} // namespace k7deval::test
