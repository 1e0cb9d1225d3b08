#include "load/LoadRig.h"

#include <gtest/gtest.h>

#include <algorithm>

/// Picking a unit: which parameters are offered, and which of them is proposed.
namespace k7deval::test
{

namespace
{

constexpr std::int32_t kLoadCode = 602;

struct Row {
    std::int32_t code;
    std::int32_t program;
    const char* name;
};

struct ProposalCase {
    const char* what;
    std::vector<Row> rows;
    std::int32_t proposed;
};

const Row kTheLoad{kLoadCode, 75, "Load"};
const Row kOtherLoad{kLoadCode, 60, "Gross output"};
const Row kPlainLoad{kLoadCode, 0, "Output"};
const Row kSteam{310, 75, "Steam"};
const Row kFuel{310, 60, "Fuel"};

const ProposalCase kProposals[] = {
    {"one load", {kTheLoad}, 0},
    {"a load behind others", {kSteam, kFuel, kTheLoad}, 2},
    {"of two under program 75, the later", {kTheLoad, kTheLoad}, 1},
    {"of three under program 75, the last",
     {kTheLoad, kSteam, kTheLoad, kFuel, kTheLoad, kFuel},
     4},
    {"program 75 before 60", {kOtherLoad, kTheLoad}, 1},
    {"program 75 before 60 in the other order", {kTheLoad, kOtherLoad}, 0},
    {"program 75 before 0", {kPlainLoad, kTheLoad, kPlainLoad}, 1},
    {"without program 75, the first of 60 and 0", {kSteam, kOtherLoad, kPlainLoad}, 1},
    {"the same in the other order", {kSteam, kPlainLoad, kOtherLoad}, 1},
    {"of two under program 60, the earlier", {kSteam, kOtherLoad, kOtherLoad}, 1},
    {"another program is none", {kSteam, {kLoadCode, 61, "Load"}}, 0},
    {"another code is none", {kFuel, {601, 75, "Load"}, {603, 60, "Load"}}, 0},
    {"no load at all", {kSteam, kFuel}, 0},
    {"a bin is passed over", {{kLoadCode, 75, "Load bin"}, kOtherLoad}, 1},
    {"a bin in capitals too", {kOtherLoad, {kLoadCode, 75, "LOAD BIN"}}, 0},
    {"a bin within a word too", {kSteam, {kLoadCode, 75, "Turbine Load"}, kPlainLoad}, 2},
    {"a bin in mixed case too", {kSteam, {kLoadCode, 0, "bIn 4"}, kOtherLoad}, 2},
    {"a bin replaces no load", {kTheLoad, {kLoadCode, 75, "Bin of load"}}, 0},
    {"a bin is no second choice", {kSteam, {kLoadCode, 60, "Bin"}, kPlainLoad}, 2},
    {"a bin as the first row stays", {{kLoadCode, 75, "Load Bin"}, kSteam}, 0},
    {"a bin alone", {{kLoadCode, 60, "Bin"}}, 0},
};

std::shared_ptr<SiteData> siteOfRows(const std::vector<Row>& rows)
{
    std::vector<ParameterData> parameters;
    for (const Row& row : rows) {
        const auto suffix = static_cast<std::int32_t>(parameters.size()) + 1;
        parameters.push_back(hourlyNamed(MakePID(1, row.code, 0, row.program, suffix), row.name));
    }
    return siteOfParameters(parameters);
}

/// What the pointer was at each call of the data interface.
struct PointerWatch {
    explicit PointerWatch(LoadRig& rig)
    {
        rig.site->failure = [&](const std::string&, std::size_t) {
            seen.push_back(rig.tool.MousePointer());
            return std::optional<Error>();
        };
    }
    [[nodiscard]] bool sawOnlyTheHourglass() const
    {
        return !seen.empty() && std::all_of(seen.begin(), seen.end(), [](auto pointer) {
            return pointer == screen::MousePointer::Hourglass;
        });
    }
    std::vector<screen::MousePointer> seen;
};

} // namespace

TEST(LoadUnit, ProposesTheLoadUnderPart75AboveAll)
{
    for (const ProposalCase& proposal : kProposals) {
        const LoadRig rig(siteOfRows(proposal.rows));
        EXPECT_EQ(rig.tool.cmbParam.ListIndex(), proposal.proposed) << proposal.what;
    }
}

TEST(LoadUnit, ProposesTheSameWhenPIDsAreShown)
{
    for (const ProposalCase& proposal : kProposals) {
        LoadRig rig(siteOfRows(proposal.rows));
        rig.tool.chkShowPID.Press();
        rig.tool.cmbUnit.Pick(0);
        EXPECT_EQ(rig.tool.cmbParam.ListIndex(), proposal.proposed) << proposal.what;
    }
}

TEST(LoadUnit, VariantDigitAndSuffixDoNotMatter)
{
    const LoadRig rig(siteOfParameters({hourlyNamed(MakePID(1, 310, 0, 75, 1), "Steam"),
                                        hourlyNamed(MakePID(1, 602, 5, 75, 99), "Load")}));
    EXPECT_EQ(rig.tool.cmbParam.ListIndex(), 1);
}

TEST(LoadUnit, AsksForTheHourlyParametersOfTheTypesThatHoldLoads)
{
    LoadRig rig;
    rig.tool.cmbUnit.Pick(1);
    const ParamTypes types{8, 11, 28, 35, 38, 39, 40, 41, 49, 52};
    EXPECT_EQ(rig.site->parameterQueries,
              (std::vector<UnitQuery>{{types, 1, "h", {}}, {types, 2, "h", {}}}));
}

TEST(LoadUnit, AsksForTheConstantsOfTheTypesThatHoldCapacities)
{
    LoadRig rig;
    rig.tool.cmbUnit.Pick(1);
    EXPECT_EQ(rig.site->constantQueries,
              (std::vector<UnitQuery>{{{4, 34}, 1, "", {0, 3}}, {{4, 34}, 2, "", {0, 3}}}));
}

TEST(LoadUnit, TheUnitsNumberIsThatOfItsPID)
{
    auto site = siteOfParameters({});
    site->parameters.push_back(unitNamed(1'900'100'000, "GT19"));
    LoadRig rig(site);
    rig.tool.cmbUnit.Pick(1);
    EXPECT_EQ(site->parameterQueries.back().unit, 19);
    EXPECT_EQ(site->constantQueries.back().unit, 19);
}

TEST(LoadUnit, ReplacesTheParametersOfTheOneBefore)
{
    LoadRig rig;
    rig.tool.cmbUnit.Pick(1);
    EXPECT_EQ(rig.tool.cmbParam.List(), Lines{"GT2 Load"});
    EXPECT_EQ(rig.tool.cmbParam.ItemData(), kGT2Load);
}

TEST(LoadUnit, WithoutParametersSelectsNone)
{
    auto site = siteOfLoads();
    site->parameters.push_back(unitNamed(300'100'000, "GT3"));
    LoadRig rig(site);
    rig.tool.cmbUnit.Pick(2);
    EXPECT_EQ(rig.tool.cmbParam.listCount(), 0);
    EXPECT_EQ(rig.tool.cmbParam.ListIndex(), -1);
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Default);
}

TEST(LoadUnit, LeavesTheMinimumToTheUser)
{
    LoadRig rig;
    enter(rig.tool.txtMinSafe, "20");
    rig.tool.cmbUnit.Pick(1);
    EXPECT_EQ(rig.tool.txtMinSafe.Text(), "20");
    EXPECT_EQ(rig.results().MinSafeValue, 20);
    rig.tool.cmbUnit.Pick(0);
    EXPECT_EQ(rig.tool.txtMinSafe.Text(), "20");
}

TEST(LoadUnit, WithoutParametersMakesTheResultsStaleToo)
{
    auto site = siteOfLoads();
    site->parameters.push_back(unitNamed(300'100'000, "GT3"));
    LoadRig rig(site);
    rig.hours({50}).calculate();
    rig.tool.cmbUnit.Pick(2);
    EXPECT_TRUE(rig.tool.NeedsEvaluation());
    EXPECT_TRUE(isCleared(rig.tool));
    EXPECT_FALSE(rig.tool.cmdSave.Enabled());
}

TEST(LoadUnit, ReadsUnderTheHourglass)
{
    LoadRig rig;
    const PointerWatch watch(rig);
    rig.tool.cmbUnit.Pick(0);
    EXPECT_TRUE(watch.sawOnlyTheHourglass());
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Default);
}

TEST(LoadUnit, AFailureOfItsParametersLeavesTheListAndTheHourglass)
{
    LoadRig rig;
    rig.hours({50}).calculate();
    failAt(*rig.site, "DIServer.ParametersOfUnitTypes");
    EXPECT_EQ(errorOf([&] { rig.tool.cmbUnit.Pick(1); }), 440);
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Hourglass);
    EXPECT_EQ(rig.tool.cmbUnit.Text(), "GT2");
    EXPECT_EQ(rig.tool.cmbParam.List(), Lines{"GT1 Load"});
    EXPECT_FALSE(rig.tool.NeedsEvaluation());
    EXPECT_FALSE(isCleared(rig.tool));
    EXPECT_TRUE(rig.tool.cmdSave.Enabled());
}

TEST(LoadUnit, AFailureOfItsConstantsComesAfterItsParametersWereListed)
{
    LoadRig rig;
    rig.hours({50}).calculate();
    failAt(*rig.site, "DIServer.ConstantsOfUnitTypes");
    EXPECT_EQ(errorOf([&] { rig.tool.cmbUnit.Pick(1); }), 440);
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Hourglass);
    EXPECT_EQ(rig.tool.cmbParam.List(), Lines{"GT2 Load"});
    EXPECT_TRUE(rig.tool.NeedsEvaluation()) << "the parameter's pick has set it";
    EXPECT_FALSE(rig.tool.cmdSave.Enabled());
}

TEST(LoadUnit, TheNextPickEndsAHourglassThatAFailureLeft)
{
    LoadRig rig;
    failAt(*rig.site, "DIServer.ConstantsOfUnitTypes");
    EXPECT_EQ(errorOf([&] { rig.tool.cmbUnit.Pick(1); }), 440);
    rig.site->failure = nullptr;
    rig.tool.cmbUnit.Pick(1);
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Default);
}

} // namespace k7deval::test
