#include "load/LoadBench.h"

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
    LoadBench bench(siteOfUnits({"GT9", "Boiler 2", "GT1"}));
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{"GT9", "Boiler 2", "GT1"}));
    EXPECT_EQ(bench.tool.cmbUnit.ItemDataList(),
              (std::vector<std::int32_t>{100'100'000, 200'100'000, 300'100'000}));
    EXPECT_EQ(bench.tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(bench.tool.cmbUnit.Text(), "GT9");
}

TEST(LoadData, PickingTheFirstUnitListsItsParametersAndItsCapacity)
{
    const LoadBench bench;
    EXPECT_EQ(bench.tool.cmbParam.List(), Lines{"GT1 Load"});
    EXPECT_EQ(bench.tool.cmbParam.ItemDataList(), std::vector<std::int32_t>{kGT1Load});
    EXPECT_EQ(bench.tool.cmbParam.Text(), "GT1 Load");
    EXPECT_EQ(bench.tool.txtCapacity.Text(), "100");
}

TEST(LoadData, IsKept)
{
    LoadTool bench;
    const auto server = serve(siteOfLoads());
    bench.tool.SetDIServer(server);
    EXPECT_EQ(bench.tool.DIServer(), server);
}

TEST(LoadData, UnitsAreReadBeforeTheParametersOfTheFirstAndThoseBeforeItsConstants)
{
    const LoadBench bench;
    Lines asked;
    for (const std::string& call : bench.site->calls) {
        if (call.starts_with("DIServer."))
            asked.push_back(call);
    }
    EXPECT_EQ(asked, (Lines{"DIServer.Units", "DIServer.ParametersOfUnitTypes",
                            "DIServer.ConstantsOfUnitTypes"}));
}

TEST(LoadData, NothingEmptiesTheListsOfAToolThatHadNone)
{
    LoadTool bench;
    bench.tool.SetDIServer(nullptr);
    EXPECT_EQ(bench.tool.cmbUnit.ListCount(), 0);
    EXPECT_EQ(bench.tool.cmbParam.ListCount(), 0);
    EXPECT_FALSE(bench.tool.cmdSave.Enabled());
    EXPECT_TRUE(bench.tool.NeedsEvaluation());
    EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Default);
}

TEST(LoadData, TakenAwayLeavesNoUnitNoParameterNoResultsAndNothingToSave)
{
    LoadBench bench;
    bench.hours({10, 50, 90}).calculate();
    bench.tool.SetDIServer(nullptr);
    EXPECT_EQ(bench.tool.DIServer(), nullptr);
    EXPECT_EQ(bench.tool.cmbUnit.ListCount(), 0);
    EXPECT_EQ(bench.tool.cmbUnit.Text(), "");
    EXPECT_EQ(bench.tool.cmbParam.ListCount(), 0);
    EXPECT_EQ(bench.tool.cmbParam.Text(), "");
    EXPECT_TRUE(isCleared(bench.tool));
    EXPECT_FALSE(bench.tool.cmdSave.Enabled());
}

TEST(LoadData, TakenAwayLeavesTheNumbersAndTheEvaluationAsTheyAre)
{
    LoadBench bench;
    bench.range("12.5", "80").hours({10, 50, 90}).calculate();
    bench.tool.SetDIServer(nullptr);
    EXPECT_EQ(bench.tool.txtMinSafe.Text(), "12.5");
    EXPECT_EQ(bench.tool.txtCapacity.Text(), "80");
    EXPECT_EQ(countsOf(bench.results()), (HourCounts{.mid = 1, .over = 1, .under = 1}));
    EXPECT_FALSE(bench.tool.NeedsEvaluation()) << "only a unit's pick sets it";
}

TEST(LoadData, WithoutUnitsCannotBePickedFrom)
{
    LoadTool bench;
    EXPECT_EQ(errorOf([&] { bench.tool.SetDIServer(serve(siteOfUnits({}))); }), 381);
    EXPECT_NE(bench.tool.DIServer(), nullptr);
    EXPECT_EQ(bench.tool.cmbUnit.ListCount(), 0);
}

TEST(LoadData, WithoutUnitsLeavesWhatComesAfterThePickAsItWas)
{
    LoadBench bench;
    bench.hours({50}).calculate();
    EXPECT_EQ(errorOf([&] { bench.tool.SetDIServer(serve(siteOfUnits({}))); }), 381);
    EXPECT_EQ(bench.tool.cmbUnit.ListCount(), 0);
    EXPECT_EQ(bench.tool.cmbParam.List(), Lines{"GT1 Load"});
    EXPECT_FALSE(isCleared(bench.tool));
    EXPECT_TRUE(bench.tool.cmdSave.Enabled());
}

TEST(LoadData, SetASecondTimeReplacesTheUnits)
{
    LoadBench bench;
    bench.hours({50}).calculate();
    bench.tool.SetDIServer(serve(siteOfUnits({"Boiler"})));
    EXPECT_EQ(bench.tool.cmbUnit.List(), Lines{"Boiler"});
    EXPECT_EQ(bench.tool.cmbParam.List(), Lines());
    EXPECT_EQ(bench.tool.txtCapacity.Text(), "100") << "the new unit has none of its own";
    EXPECT_TRUE(isCleared(bench.tool));
    EXPECT_TRUE(bench.tool.NeedsEvaluation());
    EXPECT_FALSE(bench.tool.cmdSave.Enabled());
}

TEST(LoadData, TheSameDataAgainPicksTheFirstUnitAgain)
{
    LoadBench bench;
    bench.tool.cmbUnit.Pick(1);
    bench.hours({50}).calculate();
    bench.tool.SetDIServer(bench.tool.DIServer());
    EXPECT_EQ(bench.tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(bench.tool.cmbParam.Text(), "GT1 Load");
    EXPECT_TRUE(bench.tool.NeedsEvaluation());
    EXPECT_FALSE(bench.tool.cmdSave.Enabled());
}

TEST(LoadData, AFailureOfTheUnitsReachesTheHost)
{
    LoadTool bench;
    const auto site = siteOfLoads();
    failAt(*site, "DIServer.Units");
    EXPECT_EQ(errorOf([&] { bench.tool.SetDIServer(serve(site)); }), 440);
    EXPECT_NE(bench.tool.DIServer(), nullptr);
    EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Default);
}

TEST(LoadData, AFailureOfTheFirstUnitsParametersReachesTheHostUnderTheHourglass)
{
    LoadTool bench;
    const auto site = siteOfLoads();
    failAt(*site, "DIServer.ParametersOfUnitTypes");
    EXPECT_EQ(errorOf([&] { bench.tool.SetDIServer(serve(site)); }), 440);
    EXPECT_EQ(bench.tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Hourglass);
}

TEST(LoadData, IsReleasedWhenTheToolEnds)
{
    LoadTool bench;
    std::weak_ptr<DIServer> server;
    {
        const auto held = serve(siteOfLoads());
        server = held;
        bench.tool.SetDIServer(held);
    }
    EXPECT_FALSE(server.expired());
    bench.tool.Terminate();
    EXPECT_TRUE(server.expired());
    EXPECT_EQ(bench.tool.DIServer(), nullptr);
}

TEST(LoadData, IsReleasedWhenTheToolIsDestroyed)
{
    FakeServices services;
    const FixedClock clock(makeDate(2024, 5, 10));
    const RegionalSettings regional;
    std::weak_ptr<DIServer> server;
    {
        ctrlMaxMW tool({services, clock, regional});
        const auto held = serve(siteOfLoads());
        server = held;
        tool.SetDIServer(held);
    }
    EXPECT_TRUE(server.expired());
}

} // namespace k7deval::test
