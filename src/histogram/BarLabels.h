#pragma once

#include "histogram/HourBins.h"
#include "screen/Label.h"
#include "screen/Line.h"

#include <array>
#include <memory>
#include <string>

namespace k7deval::histogram
{

/// What a bar stands for, as texts; all empty when there is nothing to show.
struct BarTexts {
    std::string from;    ///< The value at which its bin begins.
    std::string to;      ///< The value at which its bin ends.
    std::string hours;   ///< The hours of its bin.
    std::string percent; ///< Those as a share of the hours of all bins, such as "33.3%".
    friend bool operator==(const BarTexts&, const BarTexts&) = default;
};

/// The twenty bars of a chart and, at index 0, the hidden pattern they are made from. Every edge
/// lies on a grid of 15 twips, one pixel.
class BarLabels
{
public:
    /// linMin's length sets the scale, linBase carries the bars.
    BarLabels(screen::Frame& frame, const screen::Line& linMin, const screen::Line& linBase);
    BarLabels(const BarLabels&) = delete;
    BarLabels& operator=(const BarLabels&) = delete;
    ~BarLabels();

    /// Error 9 outside 0 to 20.
    [[nodiscard]] screen::Label& operator[](int index) const;
    /// What a bar stands for; the tool tip is made of it. Error 9 outside 0 to 20.
    [[nodiscard]] const BarTexts& texts(int index) const;
    [[nodiscard]] static constexpr int Count() { return kBinCount + 1; }

    /// Flat bars without tool tips.
    void ResetBars();
    /// Bars relative to the fullest bin. A bin with any hour stays visible. Flat bars when there
    /// are no hours.
    void DrawChart(const HourBins& bins, float low, float range, const RegionalSettings& regional);

private:
    void place(int bar);
    void draw(int bar, std::int32_t hours, std::int32_t peak);

    const screen::Line* linMin_;
    const screen::Line* linBase_;
    std::array<BarTexts, kBinCount + 1> texts_;
    std::array<std::unique_ptr<screen::Label>, kBinCount + 1> labels_;
};

} // namespace k7deval::histogram
