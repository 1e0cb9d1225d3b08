#include "range/RangeBench.h"

#include <gtest/gtest.h>

/// The host hands over the data, another site's, or none.
namespace k7deval::test
{

namespace
{

/// The number of the error with which handing over a site ends; 0 for none.
int errorOfSetting(ctrlRangeEval& tool, const std::shared_ptr<SiteData>& site)
{
    try {
        tool.SetDIServer(serve(site));
    } catch (const Error& error) {
        return error.number();
    }
    return 0;
}

} // namespace

TEST(RangeServer, FillsTheListsAndPicksTheFirstOfEach)
{
    RangeBench bench(siteOfTwoUnits());
    const ctrlRangeEval& tool = bench.tool;
    EXPECT_EQ(tool.DIServer(), bench.server);
    EXPECT_EQ(tool.cmbUnit.List(), (Lines{"GT1", "GT2"}));
    EXPECT_EQ(tool.cmbUnit.ItemDataList(), (std::vector<std::int32_t>{kGT1, kGT2}));
    EXPECT_EQ(tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(tool.cmbParam.List(), (Lines{"NOX", "CO2"}));
    EXPECT_EQ(tool.cmbParam.ItemDataList(), (std::vector<std::int32_t>{kNOx, 123017500}));
    EXPECT_EQ(tool.cmbParam.ListIndex(), 0);
    EXPECT_EQ(tool.cmbScale.List(), (Lines{"LOW", "HIGH"}));
    EXPECT_EQ(tool.cmbScale.ItemDataList(), (std::vector<std::int32_t>{1, 3}));
    EXPECT_EQ(tool.cmbScale.ListIndex(), 0);
    EXPECT_EQ(tool.txtRange.Text(), "50");
}

TEST(RangeServer, TheListsAreNotSorted)
{
    auto site = siteOfTwoUnits();
    site->parameter(kGT1).name = "ZZ";
    const RangeBench bench(site);
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{"ZZ", "GT2"}));
}

TEST(RangeServer, LeavesTheScreenStale)
{
    const RangeBench bench;
    EXPECT_TRUE(bench.tool.NeedsEvaluation());
    EXPECT_FALSE(bench.tool.cmdSave.Enabled());
    EXPECT_TRUE(isCleared(bench.tool));
    EXPECT_EQ(bench.site->countCalls("DIParameter.ReadData"), 0U);
}

TEST(RangeServer, WithoutAnalyzersLeavesTheListsEmptyAndTheFieldsAsTheyWere)
{
    auto site = std::make_shared<SiteData>();
    site->parameters = {unitNamed(kGT1, "GT1")};
    const RangeBench bench(site);
    EXPECT_EQ(bench.tool.cmbUnit.ListCount(), 0);
    EXPECT_EQ(bench.tool.cmbParam.ListCount(), 0);
    EXPECT_EQ(bench.tool.cmbScale.ListCount(), 0);
    EXPECT_EQ(bench.tool.txtRange.Text(), "Text1");
    EXPECT_EQ(bench.tool.txtMEC.Text(), "Text3");
    EXPECT_EQ(bench.tool.txtMPC.Text(), "Text4");
    EXPECT_FALSE(bench.tool.chkMEC.isChecked());
}

TEST(RangeServer, SetToNothingEmptiesTheListsAndTakesTheResultsOffTheScreen)
{
    RangeBench bench;
    bench.hours({50}).calculate();
    bench.tool.SetDIServer(nullptr);
    EXPECT_EQ(bench.tool.DIServer(), nullptr);
    EXPECT_EQ(bench.tool.cmbUnit.ListCount(), 0);
    EXPECT_EQ(bench.tool.cmbParam.ListCount(), 0);
    EXPECT_EQ(bench.tool.cmbScale.ListCount(), 0);
    EXPECT_TRUE(isCleared(bench.tool));
    EXPECT_FALSE(bench.tool.cmdSave.Enabled());
    EXPECT_EQ(bench.results().MidHours, 1) << "only the screen is cleared";
    EXPECT_EQ(bench.tool.UnitCatalogue().Count(), 1U);
    EXPECT_EQ(bench.tool.txtRange.Text(), "100");
}

TEST(RangeServer, ASecondSiteAddsItsAnalyzers)
{
    RangeBench bench;
    bench.tool.cmbUnit.SetListIndex(-1);
    const auto second = siteOfTwoUnits();
    bench.tool.SetDIServer(serve(second));
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{"GT1", "GT2"}));
    EXPECT_EQ(bench.tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(bench.tool.cmbScale.List(), (Lines{"SINGLE", "LOW", "HIGH"}))
        << "behind the scale of the first site";
    EXPECT_EQ(bench.tool.txtRange.Text(), "100");
}

TEST(RangeServer, TheSameSiteAgainChangesNothing)
{
    RangeBench bench(siteOfTwoUnits());
    EXPECT_EQ(bench.changesBy([&] { bench.tool.SetDIServer(bench.server); }), Lines());
}

TEST(RangeServer, AfterNothingTheListsComeBackWithTheSite)
{
    RangeBench bench(siteOfTwoUnits());
    bench.tool.SetDIServer(nullptr);
    bench.tool.SetDIServer(bench.server);
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{"GT1", "GT2"}));
    EXPECT_EQ(bench.tool.txtRange.Text(), "50");
}

TEST(RangeServer, AFailureOfTheDataReachesTheHost)
{
    for (const char* call : {"DIServer.ParametersOfTypes", "DIServer.Units", "DIParameter.Name",
                             "DIRecordStore.ReadRecords"}) {
        auto site = siteOfNOx();
        failAt(*site, call);
        RangeTool bench;
        EXPECT_EQ(errorOfSetting(bench.tool, site), 440) << call;
        EXPECT_FALSE(bench.tool.cmdSave.Enabled());
    }
}

TEST(RangeServer, AFailedHandoverCanBeRepeated)
{
    auto site = siteOfTwoUnits();
    failAt(*site, "DIRecord.Span");
    RangeTool bench;
    EXPECT_EQ(errorOfSetting(bench.tool, site), 440);
    site->failure = nullptr;
    EXPECT_EQ(errorOfSetting(bench.tool, site), 0);
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{"GT1", "GT2"}));
    EXPECT_EQ(bench.tool.cmbScale.List(), (Lines{"LOW", "HIGH"}));
}

TEST(RangeServer, IsDroppedWithTheCatalogueAtTheEnd)
{
    RangeBench bench;
    const std::weak_ptr<DIServer> server = bench.server;
    bench.server.reset();
    EXPECT_FALSE(server.expired());
    bench.tool.Terminate();
    EXPECT_TRUE(server.expired());
    EXPECT_EQ(bench.tool.DIServer(), nullptr);
    EXPECT_TRUE(bench.tool.UnitCatalogue().isEmpty());
}

TEST(RangeServer, IsNotKeptByAToolThatIsGone)
{
    auto bench = std::make_unique<RangeBench>();
    const std::weak_ptr<DIServer> server = bench->server;
    bench.reset();
    EXPECT_TRUE(server.expired());
}

} // namespace k7deval::test
