#include "load/LoadReportRig.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>

/// The chart of the report for any hours.
namespace k7deval::test
{

namespace
{

constexpr double kColumn = 36;
constexpr double kNear = 0.01;

bool isNear(double a, double b)
{
    return std::abs(a - b) <= kNear;
}

/// A site whose load has so many hours in each bin, from the first on.
struct BarsRig : ReportRig {
    explicit BarsRig(const std::vector<int>& hoursOfBins) : counts(hoursOfBins)
    {
        for (std::size_t i = 0; i < counts.size(); ++i)
            inBin(static_cast<int>(i) + 1, static_cast<std::size_t>(counts[i]));
        specify("1/1/2024", "12/31/2024").calculate();
        page();
    }
    [[nodiscard]] const ReportPage& sheet() const { return *document->Pages().begin(); }
    [[nodiscard]] int peak() const { return *std::max_element(counts.begin(), counts.end()); }

    std::vector<int> counts;
};

std::vector<int> anyCounts()
{
    return *rc::gen::container<std::vector<int>>(
        20, rc::gen::oneOf(rc::gen::just(0), rc::gen::inRange(0, 12), rc::gen::inRange(0, 350)));
}

} // namespace

RC_GTEST_PROP(LoadReportProperties, EveryBinHasItsBarAndEveryBarWithHoursItsCount, ())
{
    const auto counts = anyCounts();
    RC_PRE(std::any_of(counts.begin(), counts.end(), [](int n) { return n > 0; }));
    const BarsRig rig(counts);
    const auto bars = rectanglesOf(rig.sheet());
    const auto texts = upwardTexts(rig.sheet());
    RC_ASSERT(bars.size() == 20U);
    auto text = texts.begin();
    for (std::size_t i = 0; i < 20; ++i) {
        const double height = double(counts[i]) / rig.peak() * (kChartTop - kChartBottom);
        RC_ASSERT(isNear(bars[i].X(), 36 + kColumn * double(i)));
        RC_ASSERT(isNear(bars[i].Height(), height));
        if (counts[i] == 0)
            continue;
        RC_ASSERT(text != texts.end());
        RC_ASSERT(text->Text() == std::to_string(counts[i]));
        RC_ASSERT(isNear(text->X(), 36 + kColumn * (double(i) + 0.5) + kBodyHeight / 2));
        ++text;
    }
    RC_ASSERT(text == texts.end());
}

RC_GTEST_PROP(LoadReportProperties, CountsStandOverTheirBarsOrEndUnderTheirTops, ())
{
    const auto counts = anyCounts();
    RC_PRE(std::any_of(counts.begin(), counts.end(), [](int n) { return n > 0; }));
    const BarsRig rig(counts);
    const auto bars = rectanglesOf(rig.sheet());
    for (const ReportTextItem& text : upwardTexts(rig.sheet())) {
        const auto bar = static_cast<std::size_t>((text.X() - 36) / kColumn);
        const double top = double(bars[bar].Y()) + double(bars[bar].Height());
        const double length = widthOf(text.Text());
        const bool isInside = isNear(text.Y() + length, top - 1);
        RC_ASSERT(isInside || isNear(text.Y(), top + 1));
        const double roomAbove = kChartTop - top - length;
        RC_ASSERT(roomAbove < kNear || !isInside);
        RC_ASSERT(roomAbove > -kNear || isInside);
    }
}

RC_GTEST_PROP(LoadReportProperties, TheHoursOfTheLevelsAreThoseOfTheBars, ())
{
    const auto counts = anyCounts();
    const BarsRig rig(counts);
    const auto sum = [&](int first, int last) {
        return std::to_string(std::accumulate(counts.begin() + first, counts.begin() + last, 0)) +
               " Hours";
    };
    RC_ASSERT(textsAt(rig.sheet(), kHoursY) == (Lines{sum(0, 6), sum(6, 12), sum(12, 20)}));
}

} // namespace k7deval::test
