#include "load/LoadRig.h"

#include <gtest/gtest.h>

/// The capacity that a unit's constants propose.
namespace k7deval::test
{

namespace
{

using Value = std::optional<double>;

struct Constant {
    PID pid;
    Value value;
};

constexpr PID kPlain = 160'200'000;        // Program 0, suffix 0.
constexpr PID kPlainVariant = 160'210'000; // The same with another variant digit.
constexpr PID kPart60 = 160'206'000;
constexpr PID kPart75 = 160'207'500;

struct CapacityCase {
    const char* what;
    std::vector<Constant> constants;
    const char* capacity; ///< The box said 250 before.
};

const CapacityCase kCapacities[] = {
    {"none", {}, "250"},
    {"the plain one", {{kPlain, 100}}, "100"},
    {"one under program 60", {{kPart60, 70}}, "70"},
    {"one under program 75", {{kPart75, 80}}, "80"},
    {"the later of 60 and 75", {{kPart60, 70}, {kPart75, 80}}, "80"},
    {"the later of 75 and 60", {{kPart75, 80}, {kPart60, 70}}, "70"},
    {"the later of two under 75", {{kPart75, 80}, {kPart75 + 10'000, 90}}, "90"},
    {"the plain one first", {{kPlain, 100}, {kPart75, 80}}, "100"},
    {"the plain one first, before 60", {{kPlain, 100}, {kPart60, 80}, {kPart75, 70}}, "100"},
    {"the plain one last", {{kPart75, 80}, {kPlain, 100}}, "100"},
    {"the plain one between", {{kPart75, 80}, {kPlain, 100}, {kPart60, 70}}, "100"},
    {"the later of two plain ones", {{kPlain, 100}, {kPlainVariant, 120}}, "120"},
    {"two plain ones with another between",
     {{kPlain, 100}, {kPart75, 80}, {kPlainVariant, 120}, {kPart60, 70}},
     "120"},
    {"a plain one without a value", {{kPlain, {}}}, "250"},
    {"a plain one without a value lets others count", {{kPlain, {}}, {kPart75, 80}}, "80"},
    {"a plain one without a value keeps what was found", {{kPart75, 80}, {kPlain, {}}}, "80"},
    {"a second plain one without a value", {{kPlain, 100}, {kPlainVariant, {}}}, "100"},
    {"a second one without a value", {{kPart60, 70}, {kPart75, {}}}, "70"},
    {"zero is a capacity", {{kPlain, 0}, {kPart75, 80}}, "0"},
    {"a negative one too", {{kPlain, -5.5}}, "-5.5"},
    {"a plain one with a suffix is none", {{kPlain + 1, 100}}, "250"},
    {"one under 60 with a suffix is none", {{kPart60 + 3, 100}}, "250"},
    {"one under 75 with a suffix is none", {{kPart75 + 1, 100}, {kPart60, 70}}, "70"},
    {"one under another program is none", {{160'201'000, 100}}, "250"},
    {"one of another code is none", {{160'100'000, 100}, {160'307'500, 90}}, "250"},
    {"as a single, in general number form", {{kPlain, 1234567.89}}, "1234568"},
    {"a large one", {{kPlain, 123456789}}, "1.234568E+08"},
    {"one with decimals", {{kPlain, 0.1}}, "0.1"},
};

std::shared_ptr<SiteData> siteOfConstants(const std::vector<Constant>& constants)
{
    std::vector<ParameterData> parameters;
    for (const Constant& constant : constants)
        parameters.push_back(constantOf(constant.pid, constant.value));
    return siteOfParameters(parameters);
}

} // namespace

TEST(LoadCapacity, APlainConstantCountsMoreThanOneOfAProgram)
{
    for (const CapacityCase& expected : kCapacities) {
        LoadTool rig;
        enter(rig.tool.txtCapacity, "250");
        rig.tool.SetDIServer(serve(siteOfConstants(expected.constants)));
        EXPECT_EQ(rig.tool.txtCapacity.Text(), expected.capacity) << expected.what;
    }
}

TEST(LoadCapacity, IsASingle)
{
    for (const double value : {0.1, 100.0, 1234567.89}) {
        const LoadRig rig(siteOfConstants({{kPlain, value}}));
        EXPECT_EQ(rig.results().CapacityValue, static_cast<float>(value));
    }
}

TEST(LoadCapacity, IsWrittenAsTheRegionDoes)
{
    const LoadRig rig(siteOfConstants({{kPlain, 187.5}}), makeDate(2024, 5, 10), "de-DE");
    EXPECT_EQ(rig.tool.txtCapacity.Text(), "187,5");
}

TEST(LoadCapacity, StaysFromAnotherUnitThatHadOne)
{
    LoadRig rig;
    rig.tool.cmbUnit.Pick(1);
    EXPECT_EQ(rig.tool.txtCapacity.Text(), "100");
    EXPECT_EQ(rig.results().CapacityValue, 100);
}

TEST(LoadCapacity, OfTheUserStaysForAUnitWithoutOneAndGoesForAUnitWithOne)
{
    LoadRig rig;
    enter(rig.tool.txtCapacity, "250");
    rig.tool.cmbUnit.Pick(1);
    EXPECT_EQ(rig.tool.txtCapacity.Text(), "250");
    EXPECT_EQ(rig.results().CapacityValue, 250);
    rig.tool.cmbUnit.Pick(0);
    EXPECT_EQ(rig.tool.txtCapacity.Text(), "100");
    EXPECT_EQ(rig.results().CapacityValue, 100);
}

TEST(LoadCapacity, CanBeEnteredAtAnyTime)
{
    LoadRig rig;
    EXPECT_TRUE(rig.tool.txtCapacity.isReachable());
    rig.tool.cmbUnit.Pick(1);
    EXPECT_TRUE(rig.tool.txtCapacity.isReachable());
}

TEST(LoadCapacity, OutOfASinglesRangeIsAnOverflow)
{
    LoadTool rig;
    EXPECT_EQ(errorOf([&] { rig.tool.SetDIServer(serve(siteOfConstants({{kPlain, 1e39}}))); }), 6);
    EXPECT_EQ(rig.tool.txtCapacity.Text(), "0");
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Hourglass);
}

TEST(LoadCapacity, AFailureOfAConstantReachesTheHostUnderTheHourglass)
{
    LoadRig rig;
    failAt(*rig.site, "DIParameter.CurrentPoint");
    EXPECT_EQ(errorOf([&] { rig.tool.cmbUnit.Pick(0); }), 440);
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Hourglass);
    EXPECT_EQ(rig.tool.txtCapacity.Text(), "100");
}

} // namespace k7deval::test
