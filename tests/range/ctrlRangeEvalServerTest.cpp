#include "range/RangeRig.h"

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
    RangeRig rig(siteOfTwoUnits());
    const ctrlRangeEval& tool = rig.tool;
    EXPECT_EQ(tool.DIServer(), rig.server);
    EXPECT_EQ(tool.cmbUnit.List(), (Lines{"GT1", "GT2"}));
    EXPECT_EQ(tool.cmbUnit.itemDataList(), (std::vector<std::int32_t>{kGT1, kGT2}));
    EXPECT_EQ(tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(tool.cmbParam.List(), (Lines{"NOX", "CO2"}));
    EXPECT_EQ(tool.cmbParam.itemDataList(), (std::vector<std::int32_t>{kNOx, 123017500}));
    EXPECT_EQ(tool.cmbParam.ListIndex(), 0);
    EXPECT_EQ(tool.cmbScale.List(), (Lines{"LOW", "HIGH"}));
    EXPECT_EQ(tool.cmbScale.itemDataList(), (std::vector<std::int32_t>{1, 3}));
    EXPECT_EQ(tool.cmbScale.ListIndex(), 0);
    EXPECT_EQ(tool.txtRange.Text(), "50");
}

TEST(RangeServer, TheListsAreNotSorted)
{
    auto site = siteOfTwoUnits();
    site->parameter(kGT1).name = "ZZ";
    const RangeRig rig(site);
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{"ZZ", "GT2"}));
}

TEST(RangeServer, LeavesTheScreenStale)
{
    const RangeRig rig;
    EXPECT_TRUE(rig.tool.NeedsEvaluation());
    EXPECT_FALSE(rig.tool.cmdSave.Enabled());
    EXPECT_TRUE(isCleared(rig.tool));
    EXPECT_EQ(rig.site->countCalls("DIParameter.ReadData"), 0U);
}

TEST(RangeServer, WithoutAnalyzersLeavesTheListsEmptyAndTheFieldsAsTheyWere)
{
    auto site = std::make_shared<SiteData>();
    site->parameters = {unitNamed(kGT1, "GT1")};
    const RangeRig rig(site);
    EXPECT_EQ(rig.tool.cmbUnit.listCount(), 0);
    EXPECT_EQ(rig.tool.cmbParam.listCount(), 0);
    EXPECT_EQ(rig.tool.cmbScale.listCount(), 0);
    EXPECT_EQ(rig.tool.txtRange.Text(), "Text1");
    EXPECT_EQ(rig.tool.txtMEC.Text(), "Text3");
    EXPECT_EQ(rig.tool.txtMPC.Text(), "Text4");
    EXPECT_FALSE(rig.tool.chkMEC.isChecked());
}

TEST(RangeServer, SetToNothingEmptiesTheListsAndTakesTheResultsOffTheScreen)
{
    RangeRig rig;
    rig.hours({50}).calculate();
    rig.tool.SetDIServer(nullptr);
    EXPECT_EQ(rig.tool.DIServer(), nullptr);
    EXPECT_EQ(rig.tool.cmbUnit.listCount(), 0);
    EXPECT_EQ(rig.tool.cmbParam.listCount(), 0);
    EXPECT_EQ(rig.tool.cmbScale.listCount(), 0);
    EXPECT_TRUE(isCleared(rig.tool));
    EXPECT_FALSE(rig.tool.cmdSave.Enabled());
    EXPECT_EQ(rig.results().MidHours, 1) << "only the screen is cleared";
    EXPECT_EQ(rig.tool.UnitCatalogue().Count(), 1U);
    EXPECT_EQ(rig.tool.txtRange.Text(), "100");
}

TEST(RangeServer, ASecondSiteAddsItsAnalyzers)
{
    RangeRig rig;
    rig.tool.cmbUnit.SetListIndex(-1);
    const auto second = siteOfTwoUnits();
    rig.tool.SetDIServer(serve(second));
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{"GT1", "GT2"}));
    EXPECT_EQ(rig.tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(rig.tool.cmbScale.List(), (Lines{"SINGLE", "LOW", "HIGH"}))
        << "behind the scale of the first site";
    EXPECT_EQ(rig.tool.txtRange.Text(), "100");
}

TEST(RangeServer, TheSameSiteAgainChangesNothing)
{
    RangeRig rig(siteOfTwoUnits());
    EXPECT_EQ(rig.changesBy([&] { rig.tool.SetDIServer(rig.server); }), Lines());
}

TEST(RangeServer, AfterNothingTheListsComeBackWithTheSite)
{
    RangeRig rig(siteOfTwoUnits());
    rig.tool.SetDIServer(nullptr);
    rig.tool.SetDIServer(rig.server);
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{"GT1", "GT2"}));
    EXPECT_EQ(rig.tool.txtRange.Text(), "50");
}

TEST(RangeServer, AFailureOfTheDataReachesTheHost)
{
    for (const char* call : {"DIServer.ParametersOfTypes", "DIServer.Units", "DIParameter.Name",
                             "DIRecordStore.ReadRecords"}) {
        auto site = siteOfNOx();
        failAt(*site, call);
        RangeTool rig;
        EXPECT_EQ(errorOfSetting(rig.tool, site), 440) << call;
        EXPECT_FALSE(rig.tool.cmdSave.Enabled());
    }
}

TEST(RangeServer, AFailedHandoverCanBeRepeated)
{
    auto site = siteOfTwoUnits();
    failAt(*site, "DIRecord.Span");
    RangeTool rig;
    EXPECT_EQ(errorOfSetting(rig.tool, site), 440);
    site->failure = nullptr;
    EXPECT_EQ(errorOfSetting(rig.tool, site), 0);
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{"GT1", "GT2"}));
    EXPECT_EQ(rig.tool.cmbScale.List(), (Lines{"LOW", "HIGH"}));
}

} // namespace k7deval::test
