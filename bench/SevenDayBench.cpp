#include "foundation/NumberText.h"
#include "sevenday/DriftTest.h"
#include "sitedb/Import.h"
#include "sitedb/SiteDatabase.h"

#include <benchmark/benchmark.h>

#include <array>
#include <filesystem>
#include <memory>

namespace k7deval
{

namespace
{

constexpr PID kNoxOfGT4Code = 110;

std::shared_ptr<DIServer> sampleSite()
{
    const std::filesystem::path data = std::filesystem::path(K7DEVAL_SOURCE_DIR) / "data/bethpage";
    const auto file = std::filesystem::temp_directory_path() / "k7deval-bench.site";
    std::filesystem::remove(file);
    auto site = sitedb::SiteDatabase::open(file, sitedb::OpenMode::ReadWrite);
    sitedb::ImportOptions options;
    options.leaveOutUnreadable = true;
    sitedb::importFile(site, data / "spans.csv", options);
    sitedb::importFile(site, data / "ecmps_qa_50292.json", options);
    options.unit = "GT4";
    sitedb::importFile(site, data / "hourly_load_GT4.csv.gz", options);
    return site.server();
}

/// The PID of an analyzer of unit GT4 that measures NOX.
PID analyzedPID(DIServer& server)
{
    const RegionalSettings regional;
    const PID unit = server.Units().back()->PID();
    for (const auto& parameter :
         server.ParametersOfUnit(PIDPart(unit, pidpart::kUnit), {kCalibrationType})) {
        if (PIDPart(parameter->PID(), pidpart::kParameterCode) == kNoxOfGT4Code)
            return integerIn(parameter->GetAttribute(attribute::kMeasuredPID), regional);
    }
    return 0;
}

/// Six years of hours and the tests in them: what one press of Next reads and decides.
void SixYearsOfOneAnalyzer(benchmark::State& state)
{
    const auto server = sampleSite();
    const RegionalSettings regional;
    DriftTest test(regional);
    test.DIServer = server;
    test.lngAnalyzedPID = analyzedPID(*server);
    test.strAnalyzedScale = "HIGH";
    test.dtStart = makeDate(2016, 1, 1);
    test.dtEnd = makeDate(2021, 12, 31, 23, 59);
    test.lngLimitRule = CalLimitRules_PercentOfSpan;
    test.sngPercentOfSpanLimit = 2.5F;
    for (auto _ : state) {
        test.RetrieveCals();
        test.ApplyLimits();
        test.EvaluateDriftTest();
        benchmark::DoNotOptimize(test.lngGoodCals);
    }
    if (!test.dictCals || test.dictCals->isEmpty())
        state.SkipWithError("the analyzer has no calibrations");
}
BENCHMARK(SixYearsOfOneAnalyzer)->Unit(benchmark::kMillisecond);

void RoundTripOfADrift(benchmark::State& state)
{
    const std::array<float, 4> drifts{0.12345F, -3.9300008F, 100.00004F, 5.00001F};
    std::size_t next = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(roundTrip(drifts[next++ % drifts.size()], 4));
}
BENCHMARK(RoundTripOfADrift);

} // namespace

} // namespace k7deval
