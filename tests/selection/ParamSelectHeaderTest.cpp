#include "selection/SelectionRig.h"

#include <gtest/gtest.h>

/// The line of dashes that a unit's name stands in.
namespace k7deval::test
{

namespace
{

constexpr float kLetter = 10;
/// Left of the second column, and right of it.
constexpr float kBeside = 20 + 60 + 255;

float measured(const std::string& text)
{
    return kLetter * static_cast<float>(text.size());
}

/// The list of GT1 with a second column of that width, in a font with letters of ten twips.
struct HeaderRig : ParamSelectRig {
    explicit HeaderRig(float width)
    {
        tool.jgexGrid.TextWidth = measured;
        tool.Resize(kBeside + width, 3000);
        list({kNox});
    }
};

std::string headerOf(const ParamSelect& tool)
{
    return view(tool).front();
}

} // namespace

struct HeaderCase {
    const char* what;
    float width;
    std::string header;
};

void PrintTo(const HeaderCase& row, std::ostream* out)
{
    *out << row.what;
}

// "-- GT1 --" has 9 letters, and three more on either side are measured with it: 150 twips. Each
// step adds four letters, or 40 twips.
const HeaderCase kHeaderCases[] = {
    {"TooNarrowForTheName", 10, "-- GT1 --"},
    {"JustTheFirstMeasure", 150, "-- GT1 --"},
    {"ATwipMore", 151, "---- GT1 ----"},
    {"JustTheSecondMeasure", 190, "---- GT1 ----"},
    {"ATwipMoreThanTheSecond", 191, "------ GT1 ------"},
    {"Wide", 400, "---------------- GT1 ----------------"},
};

class ParamSelectHeader : public ::testing::TestWithParam<HeaderCase>
{
};

TEST_P(ParamSelectHeader, IsAsWideAsTheColumnTakes)
{
    const HeaderRig rig(GetParam().width);
    ASSERT_EQ(rig.tool.jgexGrid.ColumnWidth(2), GetParam().width);
    EXPECT_EQ(headerOf(rig.tool), GetParam().header);
}

INSTANTIATE_TEST_SUITE_P(, ParamSelectHeader, ::testing::ValuesIn(kHeaderCases),
                         [](const auto& test) { return std::string(test.param.what); });

TEST(ParamSelectHeaderMeasure, IsThatOfTheTextWithADashAndABlankMoreOnEitherSide)
{
    HeaderRig rig(160);
    Lines texts;
    rig.tool.jgexGrid.TextWidth = [&](const std::string& text) {
        texts.push_back(text);
        return measured(text);
    };
    EXPECT_EQ(headerOf(rig.tool), "---- GT1 ----");
    EXPECT_EQ(texts, (Lines{" ---- GT1 ---- ", " ------ GT1 ------ "}));
}

TEST(ParamSelectHeaderMeasure, ThatDoesNotGrowWithTheTextStillEndsTheLine)
{
    HeaderRig rig(160);
    rig.tool.jgexGrid.TextWidth = [](const std::string&) { return 0.0F; };
    EXPECT_NE(headerOf(rig.tool).find("- GT1 -"), std::string::npos);
}

TEST(ParamSelectHeaderMeasure, OfOneTwipALetterFillsTheColumn)
{
    HeaderRig rig(400);
    rig.tool.jgexGrid.TextWidth = [](const std::string& text) {
        return static_cast<float>(text.size());
    };
    // 9 letters and 97 steps of four; with the six of the measure it is 403, and 399 a step before.
    EXPECT_EQ(headerOf(rig.tool).size(), 397U);
}

TEST(ParamSelectHeaderWidth, FollowsTheControl)
{
    HeaderRig rig(150);
    rig.tool.Resize(kBeside + 191, 3000);
    EXPECT_EQ(headerOf(rig.tool), "------ GT1 ------");
    rig.tool.Resize(kBeside + 151, 3000);
    EXPECT_EQ(headerOf(rig.tool), "---- GT1 ----");
}

TEST(ParamSelectHeaderWidth, IsNotThatOfPIDs)
{
    HeaderRig rig(150);
    rig.tool.SetShowPIDNumber(true);
    EXPECT_EQ(headerOf(rig.tool), "-- GT1 --");
}

} // namespace k7deval::test
