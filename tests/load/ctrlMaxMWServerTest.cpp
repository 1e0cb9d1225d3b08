#include "load/LoadRig.h"

#include <gtest/gtest.h>

/// Handing data to the load tool, once, twice, or taking it away.
namespace k7deval::test
{

namespace
{

/// A site with units of these names, numbered from 1, none of which has a parameter.
std::shared_ptr<SiteData> siteOfUnits(const Lines& names)
{
    auto site = std::make_shared<SiteData>();
    for (std::size_t i = 0; i < names.size(); ++i) {
        const PID pid = MakePID(static_cast<std::int32_t>(i) + 1, 1, 0, 0, 0);
        site->parameters.push_back(unitNamed(pid, names[i]));
    }
    return site;
}

} // namespace

TEST(LoadData, ListsTheUnitsInTheirOrderAndPicksTheFirst)
{
    LoadRig rig(siteOfUnits({"GT9", "Boiler 2", "GT1"}));
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{"GT9", "Boiler 2", "GT1"}));
    EXPECT_EQ(rig.tool.cmbUnit.itemDataList(),
              (std::vector<std::int32_t>{100'100'000, 200'100'000, 300'100'000}));
    EXPECT_EQ(rig.tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(rig.tool.cmbUnit.Text(), "GT9");
}

TEST(LoadData, UnitsAreReadBeforeTheParametersOfTheFirstAndThoseBeforeItsConstants)
{
    const LoadRig rig;
    Lines asked;
    for (const std::string& call : rig.site->calls) {
        if (call.starts_with("DIServer."))
            asked.push_back(call);
    }
    EXPECT_EQ(asked, (Lines{"DIServer.Units", "DIServer.ParametersOfUnitTypes",
                            "DIServer.ConstantsOfUnitTypes"}));
}

TEST(LoadData, TakenAwayLeavesTheNumbersAndTheEvaluationAsTheyAre)
{
    LoadRig rig;
    rig.range("12.5", "80").hours({10, 50, 90}).calculate();
    rig.tool.SetDIServer(nullptr);
    EXPECT_EQ(rig.tool.txtMinSafe.Text(), "12.5");
    EXPECT_EQ(rig.tool.txtCapacity.Text(), "80");
    EXPECT_EQ(countsOf(rig.results()), (HourCounts{.mid = 1, .over = 1, .under = 1}));
    EXPECT_FALSE(rig.tool.NeedsEvaluation()) << "only a unit's pick sets it";
}

TEST(LoadData, WithoutUnitsCannotBePickedFrom)
{
    LoadTool rig;
    EXPECT_EQ(errorOf([&] { rig.tool.SetDIServer(serve(siteOfUnits({}))); }), 381);
    EXPECT_NE(rig.tool.DIServer(), nullptr);
    EXPECT_EQ(rig.tool.cmbUnit.listCount(), 0);
}

TEST(LoadData, WithoutUnitsLeavesWhatComesAfterThePickAsItWas)
{
    LoadRig rig;
    rig.hours({50}).calculate();
    EXPECT_EQ(errorOf([&] { rig.tool.SetDIServer(serve(siteOfUnits({}))); }), 381);
    EXPECT_EQ(rig.tool.cmbUnit.listCount(), 0);
    EXPECT_EQ(rig.tool.cmbParam.List(), Lines{"GT1 Load"});
    EXPECT_FALSE(isCleared(rig.tool));
    EXPECT_TRUE(rig.tool.cmdSave.Enabled());
}

TEST(LoadData, SetASecondTimeReplacesTheUnits)
{
    LoadRig rig;
    rig.hours({50}).calculate();
    rig.tool.SetDIServer(serve(siteOfUnits({"Boiler"})));
    EXPECT_EQ(rig.tool.cmbUnit.List(), Lines{"Boiler"});
    EXPECT_EQ(rig.tool.cmbParam.List(), Lines());
    EXPECT_EQ(rig.tool.txtCapacity.Text(), "100") << "the new unit has none of its own";
    EXPECT_TRUE(isCleared(rig.tool));
    EXPECT_TRUE(rig.tool.NeedsEvaluation());
    EXPECT_FALSE(rig.tool.cmdSave.Enabled());
}

TEST(LoadData, TheSameDataAgainPicksTheFirstUnitAgain)
{
    LoadRig rig;
    rig.tool.cmbUnit.Pick(1);
    rig.hours({50}).calculate();
    rig.tool.SetDIServer(rig.tool.DIServer());
    EXPECT_EQ(rig.tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(rig.tool.cmbParam.Text(), "GT1 Load");
    EXPECT_TRUE(rig.tool.NeedsEvaluation());
    EXPECT_FALSE(rig.tool.cmdSave.Enabled());
}

TEST(LoadData, AFailureOfTheUnitsReachesTheHost)
{
    LoadTool rig;
    const auto site = siteOfLoads();
    failAt(*site, "DIServer.Units");
    EXPECT_EQ(errorOf([&] { rig.tool.SetDIServer(serve(site)); }), 440);
    EXPECT_NE(rig.tool.DIServer(), nullptr);
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Default);
}

} // namespace k7deval::test
