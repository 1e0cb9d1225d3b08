#include "histogram/BarLabels.h"

#include "foundation/Error.h"
#include "foundation/NumberText.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numeric>
#include <string>

namespace k7deval::histogram
{

namespace
{

constexpr int kGrid = 15;
constexpr screen::Geometry kPatternPlace{315, 1725, 255, 405};

/// A place rounded, halves to even, and moved back onto the grid.
float onGrid(float twips)
{
    const auto whole = static_cast<int>(std::nearbyint(twips));
    return static_cast<float>(whole - whole % kGrid);
}

/// The hours of all bins, as far as a whole number of 32 bits goes.
std::int32_t totalOf(const HourBins& bins)
{
    const auto total = std::accumulate(bins.begin() + 1, bins.end(), std::int64_t{0});
    constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::min(total, kMost));
}

} // namespace

BarLabels::BarLabels(screen::Frame& frame, const screen::Line& linMin, const screen::Line& linBase)
    : linMin_(&linMin), linBase_(&linBase)
{
    for (int bar = 0; bar <= kBinCount; ++bar) {
        auto& label = labels_[static_cast<std::size_t>(bar)];
        label = std::make_unique<screen::Label>(frame, "lblBar(" + std::to_string(bar) + ")", "",
                                                kPatternPlace);
        label->SetBackColor(screen::color::kDesktop);
        if (bar > 0)
            place(bar);
    }
    labels_[0]->SetVisible(false);
}

/// Bars go from the twentieth to the first, the pattern last.
BarLabels::~BarLabels()
{
    std::for_each(labels_.rbegin(), labels_.rend(), [](auto& label) { label.reset(); });
}

screen::Label& BarLabels::operator[](int index) const
{
    if (index < 0 || index > kBinCount)
        throw Error(errors::kSubscript);
    return *labels_[static_cast<std::size_t>(index)];
}

const BarTexts& BarLabels::texts(int index) const
{
    if (index < 0 || index > kBinCount)
        throw Error(errors::kSubscript);
    return texts_[static_cast<std::size_t>(index)];
}

void BarLabels::place(int bar)
{
    const double begin = linBase_->X1();
    const double width = linBase_->X2() - begin - kGrid;
    const auto edge = [&](int bars) {
        return onGrid(static_cast<float>(static_cast<double>(bars) / kBinCount * width + begin));
    };
    screen::Geometry place = (*this)[bar].place();
    place.Left = edge(bar - 1);
    // Neighbouring bars share one pixel of border.
    place.Width = edge(bar) - place.Left + kGrid;
    (*this)[bar].setPlace(place);
}

void BarLabels::ResetBars()
{
    texts_.fill({});
    for (int bar = 1; bar <= kBinCount; ++bar) {
        screen::Label& label = (*this)[bar];
        label.setPlace({label.place().Left, linBase_->Y1(), label.place().Width, kGrid});
        label.SetToolTipText("");
    }
}

void BarLabels::DrawChart(const HourBins& bins, float low, float range,
                          const RegionalSettings& regional)
{
    const std::int32_t peak = peakOf(bins);
    if (peak == 0)
        return ResetBars();
    const std::int32_t total = totalOf(bins);
    for (int bar = 1; bar <= kBinCount; ++bar) {
        const std::int32_t hours = bins[static_cast<std::size_t>(bar)];
        draw(bar, hours, peak);
        BarTexts& texts = texts_[static_cast<std::size_t>(bar)];
        texts = {GeneralNumber(binEdge(bar - 1, low, range), regional),
                 GeneralNumber(binEdge(bar, low, range), regional), std::to_string(hours),
                 percentText(hours, total, "%", regional)};
        (*this)[bar].SetToolTipText(texts.from + " - " + texts.to + "   Op Hours: " + texts.hours);
    }
}

void BarLabels::draw(int bar, std::int32_t hours, std::int32_t peak)
{
    const double scale = linMin_->Y2() - linMin_->Y1() - kGrid;
    const float base = linBase_->Y1();
    float top = onGrid(static_cast<float>(base - shareOfPeak(hours, peak) * scale));
    if (hours > 0 && top == base)
        top = base - kGrid;
    screen::Label& label = (*this)[bar];
    label.setPlace({label.place().Left, top, label.place().Width, base - top});
}

} // namespace k7deval::histogram
