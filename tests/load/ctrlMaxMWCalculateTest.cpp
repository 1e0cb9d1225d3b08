#include "load/LoadBench.h"

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
    LoadBench bench;
    bench.calculate();
    EXPECT_EQ(bench.services.boxes, Boxes{kVerifyZero});
    EXPECT_FALSE(bench.tool.NeedsEvaluation()) << "it is a reminder and stops nothing";
}

TEST(LoadCalculate, AnyOtherMinimumIsNot)
{
    for (const char* minimum : {"1", "-1", "0.0001", "1E-30"}) {
        LoadBench bench;
        enter(bench.tool.txtMinSafe, minimum);
        bench.calculate();
        EXPECT_EQ(bench.services.boxes, Boxes()) << minimum;
    }
}

TEST(LoadCalculate, AMinimumOfZeroIsToBeVerifiedEveryTime)
{
    LoadBench bench;
    bench.calculate().calculate();
    EXPECT_EQ(bench.services.boxes, (Boxes{kVerifyZero, kVerifyZero}));
}

TEST(LoadCalculate, ItIsTheStoredMinimumThatIsVerifiedNotTheTypedOne)
{
    LoadBench bench;
    bench.tool.txtMinSafe.Type("5");
    bench.calculate();
    EXPECT_EQ(bench.services.boxes, Boxes{kVerifyZero});
    bench.calculate();
    EXPECT_EQ(bench.services.boxes, Boxes{kVerifyZero}) << "the evaluation has stored 5";
}

TEST(LoadCalculate, VerifiesTheMinimumBeforeThePeriod)
{
    LoadBench bench;
    bench.specify("1/1/2024", "4/3/2025").calculate();
    ASSERT_EQ(bench.services.boxes.size(), 2U);
    EXPECT_EQ(bench.services.boxes[0], kVerifyZero);
    EXPECT_EQ(bench.services.boxes[1].title, "Resetting Evaluation Period");
}

TEST(LoadCalculate, VerifiesTheMinimumBeforeAnythingIsRead)
{
    LoadBench bench;
    bench.services.msgBoxError = Error(440);
    bench.site->calls.clear();
    EXPECT_EQ(errorOf([&] { bench.calculate(); }), 440);
    EXPECT_EQ(bench.site->calls, Lines());
    EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Hourglass);
    EXPECT_TRUE(bench.tool.NeedsEvaluation());
    EXPECT_FALSE(bench.tool.cmdSave.Enabled());
}

TEST(LoadCalculate, WorksUnderTheHourglass)
{
    LoadBench bench;
    std::vector<screen::MousePointer> seen;
    bench.site->failure = [&](const std::string&, std::size_t) {
        seen.push_back(bench.tool.MousePointer());
        return std::optional<Error>();
    };
    bench.hours({50}).calculate();
    EXPECT_FALSE(seen.empty());
    EXPECT_TRUE(std::all_of(seen.begin(), seen.end(),
                            [](auto p) { return p == screen::MousePointer::Hourglass; }));
    EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Default);
}

TEST(LoadCalculate, HasSomethingToSaveAfterwards)
{
    LoadBench bench;
    EXPECT_FALSE(bench.tool.cmdSave.Enabled());
    bench.calculate();
    EXPECT_TRUE(bench.tool.cmdSave.Enabled());
}

TEST(LoadCalculate, ReadsNothingWhenNothingHasChanged)
{
    LoadBench bench;
    bench.hours({10, 50, 90}).calculate();
    bench.takeReads();
    bench.hours({10, 10, 10});
    EXPECT_EQ(bench.changesBy([&] { bench.calculate(); }), Lines());
    EXPECT_TRUE(bench.takeReads().empty());
    EXPECT_EQ(countsOf(bench.results()), (HourCounts{.low = 1, .mid = 1, .high = 1}));
}

TEST(LoadCalculate, ReadsAgainAfterANumberWasLeftUnchanged)
{
    LoadBench bench;
    bench.hours({10, 50, 90}).calculate();
    bench.hours({10, 10, 10});
    bench.tool.txtMinSafe.Leave();
    bench.calculate();
    EXPECT_EQ(countsOf(bench.results()), (HourCounts{.low = 3}));
}

TEST(LoadCalculate, WithoutAParameterFailsOnTheEmptyList)
{
    LoadBench bench(siteOfParameters({}));
    enter(bench.tool.txtCapacity, "100");
    EXPECT_EQ(errorOf([&] { bench.calculate(); }), 381);
    EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Hourglass);
    EXPECT_TRUE(bench.tool.NeedsEvaluation());
    EXPECT_FALSE(bench.tool.cmdSave.Enabled());
}

TEST(LoadCalculate, WithoutDataFailsOnTheEmptyList)
{
    LoadTool bench;
    EXPECT_EQ(errorOf([&] { bench.tool.cmdCalculate.Press(); }), 381);
    EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Hourglass);
}

TEST(LoadCalculate, WithAZeroRangeStillNeedsAParameter)
{
    LoadBench bench(siteOfParameters({}));
    EXPECT_EQ(errorOf([&] { bench.calculate(); }), 381) << "the capacity is 0 too";
}

} // namespace k7deval::test
