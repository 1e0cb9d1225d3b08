#include "histogram/HourBins.h"
#include "load/LoadEvaluation.h"
#include "range/RangeEvaluation.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

/// What load and range evaluation do with the hours of twelve quarters, without the time that a
/// host takes to bring them.
namespace k7deval
{

namespace
{

constexpr std::int32_t kMeasured = 1;
constexpr float kLow = 45;
constexpr float kTop = 195;

/// Readings with one decimal, spread over the range and a little beyond both of its ends.
double reading(std::size_t number)
{
    constexpr std::size_t kStep = 7919; // a prime, so that neighbours lie far apart
    constexpr std::size_t kReadings = 1600;
    return 40 + static_cast<double>(number * kStep % kReadings) / 10;
}

/// Hourly values that are there without being read from anywhere.
class Hours final : public DIParameter
{
public:
    /// From a first hour on there are values; earlier hours have none.
    explicit Hours(Date first = Date()) : first_(first) {}

    k7deval::PID PID() override { return 0; }
    std::string Name(std::int32_t /*form*/) override { return {}; }
    std::int32_t ParamType() override { return 0; }
    std::string UnitsText() override { return {}; }
    DIInterval Interval() override { return {}; }
    DIDataSet CurrentPoint(std::int32_t, std::int32_t, std::int32_t) override { return {}; }
    Variant GetAttribute(std::int32_t /*id*/) override { return Null{}; }
    Variant GetLinkedPID(std::int32_t /*id*/) override { return Null{}; }

    void ReadData(DIDataSet& set) override
    {
        const bool hasValues = set.StartTime() >= first_;
        std::fill(set.statuses().begin(), set.statuses().end(), hasValues ? kMeasured : 0);
        std::size_t number = 0;
        for (double& value : set.values())
            value = hasValues ? reading(number++) : std::numeric_limits<double>::quiet_NaN();
    }

private:
    Date first_;
};

class Words final : public DIStatusCodes
{
public:
    bool IsValid(std::int32_t status) override { return status == kMeasured; }
    bool IsExcluded(std::int32_t /*status*/) override { return false; }
    bool IsUnitOffline(std::int32_t /*status*/) override { return false; }
    std::string UnitName(k7deval::PID /*pid*/) override { return {}; }
};

/// Three years of specified dates, all 26,304 hours of them valid.
void LoadOfTwelveQuarters(benchmark::State& state)
{
    Hours hours;
    Words words;
    LoadEvaluation evaluation;
    evaluation.MinSafeValue = kLow;
    evaluation.CapacityValue = kTop;
    evaluation.setThresholds({});
    for (auto _ : state) {
        evaluation.reset();
        evaluation.run(hours, words, {makeDate(2021, 12, 31, 23), makeDate(2019, 1, 1)});
        benchmark::DoNotOptimize(evaluation.Bins);
    }
}
BENCHMARK(LoadOfTwelveQuarters)->Unit(benchmark::kMicrosecond);

/// Valid hours in the newest three quarters alone, so that all twelve are read.
void RangeOfTwelveQuarters(benchmark::State& state)
{
    Hours hours(makeDate(2021, 4, 1));
    Words words;
    RangeEvaluation evaluation;
    evaluation.RangeValue = kTop;
    evaluation.MECValue = kLow;
    evaluation.MPCValue = kTop;
    evaluation.setThresholds({});
    for (auto _ : state) {
        evaluation.reset();
        evaluation.run(hours, words, makeDate(2021, 12, 31, 23), {true, true});
        benchmark::DoNotOptimize(evaluation.Bins);
    }
}
BENCHMARK(RangeOfTwelveQuarters)->Unit(benchmark::kMicrosecond);

constexpr std::size_t kValues = 1024;

std::array<float, kValues> valuesInRange()
{
    std::array<float, kValues> values{};
    for (std::size_t number = 0; number < kValues; ++number)
        values[number] = std::clamp(static_cast<float>(reading(number)), kLow, kTop);
    return values;
}

void BinOfAValue(benchmark::State& state)
{
    const auto values = valuesInRange();
    const histogram::BinScale scale(kLow, kTop);
    std::size_t next = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(scale.binOf(values[next++ % kValues]));
}
BENCHMARK(BinOfAValue);

void BinOfAValueByDefinition(benchmark::State& state)
{
    const auto values = valuesInRange();
    std::size_t next = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            histogram::binByDefinition(values[next++ % kValues], kLow, kTop - kLow));
}
BENCHMARK(BinOfAValueByDefinition);

/// What a scale costs before the first value.
void ScaleOfARange(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(histogram::BinScale(kLow, kTop));
}
BENCHMARK(ScaleOfARange)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace k7deval
