#include "histogram/HourBins.h"

#include "foundation/ExpectError.h"
#include "histogram/LiteralBins.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <string>

/// Bins by comparison against bins by definition, for every value near an edge and for all values
/// of whole ranges.
namespace k7deval::test
{

namespace
{

using histogram::BinScale;

struct Range {
    float low;
    float top;
};

constexpr int kSteps = 2000;
constexpr float kInfinity = std::numeric_limits<float>::infinity();

float nextUp(float value)
{
    return std::nextafter(value, kInfinity);
}

float steppedDown(float value, int steps)
{
    for (int i = 0; i < steps; ++i)
        value = std::nextafter(value, -kInfinity);
    return value;
}

std::string described(const Range& range, float value, std::int64_t literal)
{
    return std::to_string(value) + " in " + std::to_string(range.low) + " to " +
           std::to_string(range.top) + " belongs to " + std::to_string(literal);
}

/// Whether both ways give the literal bin, or the error where there is none.
bool agrees(const BinScale& scale, const Range& range, float value, std::int64_t literal)
{
    if (histogram::binByDefinition(value, range.low, scale.range()) != literal)
        return false;
    if (literal >= 1 && literal <= histogram::kBinCount)
        return scale.binOf(value) == literal;
    return errorOf([&] { return scale.binOf(value); }) == 9;
}

/// The first of the singles from one to another that has another bin than by definition, or
/// whose bin is lower than that of the one before; empty for none.
std::string firstOffence(const Range& range, float first, float last)
{
    const BinScale scale(range.low, range.top);
    std::int64_t before = std::numeric_limits<std::int64_t>::min();
    for (float value = first; value <= last; value = nextUp(value)) {
        const std::int64_t literal = literalBin(value, range.low, scale.range());
        if (!agrees(scale, range, value, literal) || literal < before)
            return described(range, value, literal);
        before = literal;
    }
    return {};
}

/// The same for all singles within so many steps of the edge below a bin, up to the top.
std::string firstOffenceAt(const Range& range, int bin)
{
    const float edge = histogram::binEdge(bin, range.low, range.top - range.low);
    float last = edge;
    for (int i = 0; i < kSteps; ++i)
        last = nextUp(last);
    return firstOffence(range, steppedDown(edge, kSteps), std::min(last, range.top));
}

constexpr Range kRanges[] = {
    {0, 100},       {0, 2500},    {0, 5000},       {0, 0.5F},       {0, 10},     {0, 33.3F},
    {0, 21},        {0, 25},      {0, 0.1F},       {0, 1e-6F},      {0, 1e-38F}, {0, 3e38F},
    {0, 123456.7F}, {30, 84},     {45, 195},       {12.5F, 47.25F}, {-20, 100},  {-100, -50},
    {0.1F, 0.7F},   {1000, 1064}, {99999, 100000},
};

// Few enough singles lie in these for each to be tried.
constexpr Range kSmallRanges[] = {
    {100, 102}, {1000, 1012}, {30, 30.3F}, {16384, 16500}, {-3, -2.9F}, {1e6F, 1000800},
};

/// A single between two others, which have the same sign, evenly by their bits.
rc::Gen<float> singleBetween(float low, float high)
{
    return rc::gen::map(
        rc::gen::inRange(std::bit_cast<std::int32_t>(low), std::bit_cast<std::int32_t>(high)),
        [](std::int32_t bits) { return std::bit_cast<float>(bits); });
}

rc::Gen<float> share()
{
    return rc::gen::map(rc::gen::inRange(0, 1 << 20),
                        [](int part) { return static_cast<float>(part) / (1 << 20); });
}

/// A value in a range: anywhere, or a few singles from an edge.
float valueIn(const Range& range)
{
    const float width = range.top - range.low;
    const bool nearEdge = *rc::gen::arbitrary<bool>();
    const float start = nearEdge ? histogram::binEdge(*rc::gen::inRange(0, 21), range.low, width)
                                 : range.low + *share() * width;
    float value = steppedDown(start, 10);
    for (int i = *rc::gen::inRange(0, 20); i > 0; --i)
        value = nextUp(value);
    return std::min(value, range.top);
}

} // namespace

TEST(BinProperties, EverySingleNearAnEdgeHasItsBinByDefinition)
{
    for (const Range& range : kRanges) {
        for (int bin = 0; bin <= histogram::kBinCount; ++bin)
            EXPECT_EQ(firstOffenceAt(range, bin), "");
    }
}

TEST(BinProperties, EverySingleNearFivePercentBelowTheRangeHasItsBinOrNone)
{
    for (const Range& range : kRanges)
        EXPECT_EQ(firstOffenceAt(range, -1), "");
}

TEST(BinProperties, EverySingleOfASmallRangeHasItsBinByDefinition)
{
    for (const Range& range : kSmallRanges)
        EXPECT_EQ(firstOffence(range, range.low, range.top), "");
}

RC_GTEST_PROP(BinProperties, AnyValueOfAnyRangeHasItsBinByDefinition, ())
{
    const float top = *singleBetween(1e-3F, 1e6F);
    const Range range{*rc::gen::arbitrary<bool>() ? 0 : *share() * top * 0.9F, top};
    const BinScale scale(range.low, range.top);
    for (int i = 0; i < 50; ++i) {
        const float value = valueIn(range);
        const std::int64_t literal = literalBin(value, range.low, scale.range());
        if (!agrees(scale, range, value, literal))
            RC_FAIL(described(range, value, literal));
    }
}

RC_GTEST_PROP(BinProperties, AHigherValueIsNeverInALowerBin, ())
{
    const float top = *singleBetween(1e-3F, 1e6F);
    const Range range{*share() * top * 0.9F, top};
    const BinScale scale(range.low, range.top);
    const float one = valueIn(range);
    const float other = valueIn(range);
    RC_ASSERT(scale.binOf(std::min(one, other)) <= scale.binOf(std::max(one, other)));
}

RC_GTEST_PROP(BinProperties, ANegativeRangeHasTheBinsOfTheDefinitionToo, ())
{
    const float top = -*singleBetween(1e-3F, 1e6F);
    const float value = top * (1 + *share() * *share());
    RC_PRE(value <= top);
    const BinScale scale(0, top);
    RC_ASSERT(agrees(scale, {0, top}, value, literalBin(value, 0, top)));
}

} // namespace k7deval::test
