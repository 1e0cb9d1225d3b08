#include "sitedb/SampleSite.h"

#include "foundation/DataInterface.h"

#include <gtest/gtest.h>

namespace k7deval::sitedb::test
{

namespace
{

TEST(SampleImport, ReportsWhatItTook)
{
    TemporaryDirectory directory;
    auto site = makeSite(directory / "s.k7site");
    const auto spans = importFile(site, sampleFile("spans.csv"), {});
    EXPECT_EQ(spans.counts, (std::vector<std::string>{"4 units", "16 analyzers", "17 spans"}));
    const auto tests = importFile(site, sampleFile("ecmps_qa_50292.json"), leavingOut());
    EXPECT_EQ(tests.counts,
              (std::vector<std::string>{"19 tests", "131 zero injections", "132 upscale injections",
                                        "1 injection left out"}));
    EXPECT_EQ(tests.leftOut,
              (std::vector<std::string>{
                  "ecmps_qa_50292.json: testSummaryData[1].calibrationInjectionData[0]"
                  ".zeroInjectionHour: 24 is no hour from 0 to 23."}));
    const auto load = importFile(site, sampleFile("hourly_load_GT3.csv.gz"), forUnit("GT3"));
    EXPECT_EQ(load.counts.front(), "52608 hours");
}

TEST(SampleImport, RefusesTheWholeQaFileUnlessToldOtherwise)
{
    TemporaryDirectory directory;
    auto site = makeSite(directory / "s.k7site");
    importFile(site, sampleFile("spans.csv"), {});
    const std::string before = dump(site);
    try {
        importFile(site, sampleFile("ecmps_qa_50292.json"), {});
        FAIL();
    } catch (const ImportError& error) {
        EXPECT_EQ(error.description(),
                  "ecmps_qa_50292.json: testSummaryData[1].calibrationInjectionData[0]"
                  ".zeroInjectionHour: 24 is no hour from 0 to 23.");
    }
    EXPECT_EQ(dump(site), before);
}

} // namespace

} // namespace k7deval::sitedb::test
