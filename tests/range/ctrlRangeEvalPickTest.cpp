#include "range/RangeRig.h"

#include <gtest/gtest.h>

/// What follows when a unit, a parameter or a scale is picked.
namespace k7deval::test
{

namespace
{

struct PickedLimit {
    std::int32_t code;
    const char* scale;
    const char* mec;
    const char* mpc;
};

// A span of 500.
constexpr PickedLimit kPickedLimits[] = {
    {120, "SINGLE", "100", "500"}, {120, "LOW", "100", "500"},    {120, "other", "100", "500"},
    {120, "MID", "N/A", "500"},    {120, "HIGH", "N/A", "500"},   {140, "SINGLE", "100", "500"},
    {220, "SINGLE", "N/A", "N/A"}, {230, "SINGLE", "N/A", "N/A"}, {230, "LOW", "N/A", "N/A"},
    {230, "MID", "N/A", "N/A"},    {230, "HIGH", "N/A", "N/A"},   {233, "LOW", "N/A", "N/A"},
    {240, "LOW", "N/A", "N/A"},    {241, "LOW", "N/A", "N/A"},    {243, "LOW", "N/A", "N/A"},
    {245, "LOW", "N/A", "N/A"},    {219, "LOW", "100", "500"},    {221, "LOW", "100", "500"},
    {229, "LOW", "100", "500"},    {231, "LOW", "100", "500"},    {232, "LOW", "100", "500"},
    {234, "LOW", "100", "500"},    {239, "LOW", "100", "500"},    {242, "LOW", "100", "500"},
    {244, "LOW", "100", "500"},    {246, "LOW", "100", "500"},
};

std::shared_ptr<SiteData> siteOfCode(std::int32_t code, const char* scale, Variant span)
{
    auto site = std::make_shared<SiteData>();
    site->parameters = {unitNamed(kGT1, "GT1"), hourlyNamed(MakePID(1, code, 1, 75, 0), "GAS")};
    addScale(*site, {.code = code, .scale = std::string(scale), .span = std::move(span)});
    return site;
}

struct SpanTextCase {
    Variant span;
    const char* range;
    const char* mec;
};

// The range is a single, a fifth of it a double.
const SpanTextCase kSpanTexts[] = {
    {33.3F, "33.3", "6.65999984741211"},
    {0.1F, "0.1", "0.0200000002980232"},
    {12.5F, "12.5", "2.5"},
    {2500.0F, "2500", "500"},
    {1e8F, "1E+08", "20000000"},
    {0.0F, "0", "0"},
    {-10.0F, "-10", "-2"},
};

} // namespace

TEST(RangePick, AUnitBringsItsParametersAndTheirFirstScale)
{
    RangeRig rig(siteOfTwoUnits());
    rig.tool.cmbUnit.Pick(1);
    EXPECT_EQ(rig.tool.cmbParam.List(), Lines{"NOX"});
    EXPECT_EQ(rig.tool.cmbParam.ItemData(), 212017500);
    EXPECT_EQ(rig.tool.cmbScale.List(), Lines{"MID"});
    EXPECT_EQ(rig.tool.cmbScale.ItemData(), 2);
    EXPECT_EQ(rig.tool.txtRange.Text(), "250");
    EXPECT_EQ(rig.results().RangeValue, 250);
    rig.tool.cmbUnit.Pick(0);
    EXPECT_EQ(rig.tool.cmbParam.List(), (Lines{"NOX", "CO2"}));
    EXPECT_EQ(rig.tool.txtRange.Text(), "50");
}

TEST(RangePick, AParameterBringsItsScales)
{
    RangeRig rig(siteOfTwoUnits());
    rig.tool.cmbParam.Pick(1);
    EXPECT_EQ(rig.tool.cmbScale.List(), Lines{"SINGLE"});
    EXPECT_EQ(rig.tool.txtRange.Text(), "20");
    EXPECT_EQ(rig.tool.txtMEC.Text(), "N/A");
    EXPECT_EQ(rig.tool.cmbUnit.Text(), "GT1");
}

TEST(RangePick, AScaleBringsItsSpan)
{
    RangeRig rig(siteOfTwoUnits());
    rig.tool.cmbScale.Pick(1);
    EXPECT_EQ(rig.tool.txtRange.Text(), "500");
    EXPECT_EQ(rig.results().RangeValue, 500);
    EXPECT_EQ(rig.tool.txtMEC.Text(), "N/A");
    EXPECT_EQ(rig.tool.txtMPC.Text(), "500");
}

TEST(RangePick, ProposesTheLimitsOfParameterAndScale)
{
    for (const PickedLimit& row : kPickedLimits) {
        const RangeRig rig(siteOfCode(row.code, row.scale, 500.0F));
        EXPECT_EQ(rig.tool.txtMEC.Text(), row.mec) << row.code << " " << row.scale;
        EXPECT_EQ(rig.tool.txtMPC.Text(), row.mpc) << row.code << " " << row.scale;
        EXPECT_EQ(rig.tool.chkMEC.isChecked(), std::string(row.mec) != "N/A") << row.code;
        EXPECT_EQ(rig.tool.chkMPC.isChecked(), std::string(row.mpc) != "N/A") << row.code;
    }
}

TEST(RangePick, ShowsTheRangeAsASingleAndAFifthOfItAsADouble)
{
    for (const SpanTextCase& row : kSpanTexts) {
        const RangeRig rig(siteOfCode(120, "LOW", row.span));
        EXPECT_EQ(rig.tool.txtRange.Text(), row.range);
        EXPECT_EQ(rig.tool.txtMEC.Text(), row.mec) << row.range;
        EXPECT_EQ(rig.tool.txtMPC.Text(), row.range);
    }
}

TEST(RangePick, WritesNumbersAsTheRegionDoes)
{
    const RangeRig rig(siteOfCode(120, "LOW", 12.5F), makeDate(2024, 5, 15), "de-DE");
    EXPECT_EQ(rig.tool.txtRange.Text(), "12,5");
    EXPECT_EQ(rig.tool.txtMEC.Text(), "2,5");
    EXPECT_EQ(rig.tool.txtMPC.Text(), "12,5");
}

TEST(RangePick, OfTheScaleThatIsPickedAlreadyBringsItsProposalsBack)
{
    RangeRig rig;
    rig.range("7").limits("1", "2");
    rig.tool.chkMEC.Press();
    rig.tool.cmbScale.Pick(0);
    EXPECT_EQ(rig.tool.txtRange.Text(), "100");
    EXPECT_EQ(rig.tool.txtMEC.Text(), "20");
    EXPECT_EQ(rig.tool.txtMPC.Text(), "100");
    EXPECT_TRUE(rig.tool.chkMEC.isChecked());
    EXPECT_EQ(rig.results().RangeValue, 100);
}

TEST(RangePick, OfAPercentGasTakesTheLimitsOfTheGasBeforeAway)
{
    RangeRig rig(siteOfTwoUnits());
    rig.tool.cmbParam.Pick(1);
    EXPECT_FALSE(rig.tool.chkMEC.isChecked());
    EXPECT_FALSE(rig.tool.chkMPC.isChecked());
    rig.tool.cmbParam.Pick(0);
    EXPECT_TRUE(rig.tool.chkMEC.isChecked());
    EXPECT_TRUE(rig.tool.chkMPC.isChecked());
    EXPECT_EQ(rig.tool.txtMEC.Text(), "10");
}

TEST(RangeValidation, ANumberIsTheNewRange)
{
    RangeRig rig;
    rig.range("62.5");
    EXPECT_EQ(rig.results().RangeValue, 62.5F);
    EXPECT_EQ(rig.tool.txtRange.Text(), "62.5");
    rig.range(" -1E2 ");
    EXPECT_EQ(rig.results().RangeValue, -100);
    EXPECT_EQ(rig.tool.txtRange.Text(), " -1E2 ") << "the text stays as it was typed";
}

TEST(RangeValidation, TheRangeIsASingle)
{
    RangeRig rig;
    rig.range("33.30000001");
    EXPECT_EQ(rig.results().RangeValue, 33.3F);
}

TEST(RangeValidation, AnyOtherTextIsReplacedByTheLastGoodValue)
{
    RangeRig rig;
    rig.range("62.5");
    for (const char* text : {"abc", "", "12 5", "1..2", "&H10"}) {
        rig.range(text);
        EXPECT_EQ(rig.tool.txtRange.Text(), "62.5") << text;
        EXPECT_EQ(rig.results().RangeValue, 62.5F) << text;
    }
}

TEST(RangeValidation, DoesNotTouchTheProposedLimits)
{
    RangeRig rig;
    rig.range("62.5");
    EXPECT_EQ(rig.tool.txtMEC.Text(), "20");
    EXPECT_EQ(rig.tool.txtMPC.Text(), "100");
}

} // namespace k7deval::test
