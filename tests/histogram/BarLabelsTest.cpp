#include "histogram/BarLabels.h"

#include "foundation/ExpectError.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>

/// The twenty bars of a chart, in twips worked by hand.
namespace k7deval::test
{

namespace
{

using histogram::HourBins;
using screen::Geometry;

/// A frame with the lines of the tools' charts and the bars between them.
struct Chart : screen::Control {
    explicit Chart(const screen::LineEnds& base = {120, 2700, 5895, 2700})
        : Control("chart"), linBase(frame, "linBase", base)
    {
    }

    Chart& draw(const HourBins& bins, float low = 0, float range = 100)
    {
        bars.DrawChart(bins, low, range, regional);
        return *this;
    }

    RegionalSettings regional;
    screen::Frame frame{*this, "frame", ""};
    screen::Line linMin{frame, "linMin", {120, 630, 120, 2700}};
    screen::Line linBase;
    histogram::BarLabels bars{frame, linMin, linBase};
};

// 5760 twips for twenty bars are 288 for each, moved back to the grid of 15.
constexpr std::array<float, 20> kLefts = {120,  405,  690,  975,  1260, 1560, 1845,
                                          2130, 2415, 2700, 3000, 3285, 3570, 3855,
                                          4140, 4440, 4725, 5010, 5295, 5580};

float widthOf(int bar)
{
    return bar % 5 == 0 ? 315.0F : 300.0F;
}

HourBins binsOf(std::initializer_list<std::pair<int, std::int32_t>> hours)
{
    HourBins bins{};
    for (const auto& [bin, count] : hours)
        bins[static_cast<std::size_t>(bin)] = count;
    return bins;
}

void expectFlat(const Chart& chart)
{
    for (int bar = 1; bar <= 20; ++bar) {
        EXPECT_EQ(chart.bars[bar].place().Top, 2700) << bar;
        EXPECT_EQ(chart.bars[bar].place().Height, 15) << bar;
        EXPECT_EQ(chart.bars[bar].ToolTipText(), "") << bar;
    }
}

} // namespace

TEST(BarLabels, AreTwentyAndTheirHiddenPattern)
{
    const Chart chart;
    EXPECT_EQ(histogram::BarLabels::Count(), 21);
    EXPECT_FALSE(chart.bars[0].Visible());
    EXPECT_EQ(chart.bars[0].place(), (Geometry{315, 1725, 255, 405}));
    for (int bar = 0; bar <= 20; ++bar) {
        const screen::Label& label = chart.bars[bar];
        EXPECT_EQ(chart.Find("lblBar(" + std::to_string(bar) + ")"), &label);
        EXPECT_EQ(label.Caption(), "");
        EXPECT_EQ(label.BackColor(), screen::color::kDesktop);
        EXPECT_EQ(label.Visible(), bar > 0) << bar;
    }
}

TEST(BarLabels, StandSideBySideOnTheGridAndShareAPixelOfBorder)
{
    const Chart chart;
    for (int bar = 1; bar <= 20; ++bar) {
        const Geometry& place = chart.bars[bar].place();
        EXPECT_EQ(place.Left, kLefts[static_cast<std::size_t>(bar) - 1]) << bar;
        EXPECT_EQ(place.Width, widthOf(bar)) << bar;
    }
    EXPECT_EQ(chart.bars[20].place().Left + chart.bars[20].place().Width, 5895);
}

TEST(BarLabels, FollowABaseOfAnotherWidth)
{
    // 2000 - 10 - 15 = 1975 twips: 98.75 for a bar, from 10 on.
    const Chart chart({10, 2700, 2000, 2700});
    EXPECT_EQ(chart.bars[1].place().Left, 0) << "10 is moved back to 0";
    EXPECT_EQ(chart.bars[2].place().Left, 105) << "108.75 is 109";
    EXPECT_EQ(chart.bars[1].place().Width, 120);
    EXPECT_EQ(chart.bars[3].place().Left, 195) << "207.5 is 208";
    EXPECT_EQ(chart.bars[20].place().Left, 1875) << "1886.25 is 1886";
    EXPECT_EQ(chart.bars[20].place().Width, 1980 - 1875 + 15) << "1985 is moved back to 1980";
}

TEST(BarLabels, ThereIsNoOtherOne)
{
    const Chart chart;
    EXPECT_EQ(errorOf([&] { return chart.bars[21].Caption(); }), 9);
    EXPECT_EQ(errorOf([&] { return chart.bars[-1].Caption(); }), 9);
}

TEST(BarLabels, ResetLieFlatOnTheBaseWithoutToolTips)
{
    Chart chart;
    chart.draw(binsOf({{3, 12}})).bars.ResetBars();
    expectFlat(chart);
    EXPECT_EQ(chart.bars[1].place().Left, 120) << "only height and top change";
    EXPECT_EQ(chart.bars[1].place().Width, 300);
    EXPECT_EQ(chart.bars[0].place(), (Geometry{315, 1725, 255, 405})) << "the pattern stays";
}

TEST(BarLabels, WithoutHoursLieFlat)
{
    Chart chart;
    chart.draw(binsOf({{3, 12}})).draw({});
    expectFlat(chart);
    chart.draw(binsOf({{0, 7}}));
    expectFlat(chart);
}

struct HeightCase {
    const char* what;
    std::int32_t hours;
    std::int32_t peak;
    float top;
};

// 2055 twips stand for the fullest bin above the base at 2700.
constexpr HeightCase kHeights[] = {
    {"the fullest bin", 4, 4, 645},
    {"a half, 1672.5, moved back to the grid", 1, 2, 1665},
    {"a third, 2015", 1, 3, 2010},
    {"on the grid itself, 2700 - 15", 1, 137, 2685},
    {"nearly nothing, 2699.6", 1, 5000, 2685},
    {"nothing at all", 0, 5000, 2700},
    {"2685.3 is moved back to 2685", 1, 140, 2685},
    {"2684.4 is moved back to 2670", 1, 132, 2670},
    {"1664.5 is 1664, half to even", 2071, 4110, 1650},
    {"1665.5 is 1666, half to even", 2069, 4110, 1665},
    {"a bin of millions", 1'000'000'000, 2'000'000'000, 1665},
};

TEST(BarLabels, AreAsHighAsTheirShareOfTheFullestBin)
{
    for (const HeightCase& row : kHeights) {
        Chart chart;
        chart.draw(binsOf({{7, row.hours}, {20, row.peak}}));
        const Geometry& place = chart.bars[7].place();
        EXPECT_EQ(place.Top, row.top) << row.what;
        EXPECT_EQ(place.Height, 2700 - row.top) << row.what;
        EXPECT_EQ(place.Left, 1845) << row.what;
        EXPECT_EQ(place.Width, 300) << row.what;
        EXPECT_EQ(chart.bars[20].place().Top, 645) << row.what;
        EXPECT_EQ(chart.bars[20].place().Height, 2055) << row.what;
    }
}

TEST(BarLabels, TellTheirValuesAndHours)
{
    Chart chart;
    chart.draw(binsOf({{3, 12}}));
    EXPECT_EQ(chart.bars[3].ToolTipText(), "10 - 15   Op Hours: 12");
    EXPECT_EQ(chart.bars[1].ToolTipText(), "0 - 5   Op Hours: 0");
    EXPECT_EQ(chart.bars[20].ToolTipText(), "95 - 100   Op Hours: 0");
    EXPECT_EQ(chart.bars[0].ToolTipText(), "");
}

TEST(BarLabels, TellTheirValuesAsSingles)
{
    Chart chart;
    chart.draw(binsOf({{1, 1}}), 0, 33.3F);
    EXPECT_EQ(chart.bars[1].ToolTipText(), "0 - 1.665   Op Hours: 1");
    EXPECT_EQ(chart.bars[3].ToolTipText(), "3.33 - 4.995   Op Hours: 0");
    EXPECT_EQ(chart.bars[20].ToolTipText(), "31.635 - 33.3   Op Hours: 0");
    chart.draw(binsOf({{1, 1}}), 0, 1e9F);
    EXPECT_EQ(chart.bars[1].ToolTipText(), "0 - 5E+07   Op Hours: 1");
}

TEST(BarLabels, TellValuesAboveAMinimumAndAsTheRegionWritesThem)
{
    Chart chart;
    chart.regional = regionalSettings("de-DE");
    chart.draw(binsOf({{1, 9}}), 12.5F, 32.5F);
    EXPECT_EQ(chart.bars[1].ToolTipText(), "12,5 - 14,125   Op Hours: 9");
}

TEST(BarLabels, HaveTheTextsOfATable)
{
    Chart chart;
    chart.regional = regionalSettings("de-DE");
    chart.draw(binsOf({{1, 1}, {4, 2}}), 12.5F, 32.5F);
    EXPECT_EQ(chart.bars.texts(1), (histogram::BarTexts{"12,5", "14,125", "1", "33,3%"}));
    EXPECT_EQ(chart.bars.texts(4), (histogram::BarTexts{"17,375", "19", "2", "66,7%"}));
    EXPECT_EQ(chart.bars.texts(20), (histogram::BarTexts{"43,375", "45", "0", "0,0%"}));
    EXPECT_EQ(errorOf([&] { return chart.bars.texts(21).from; }), 9);
    chart.bars.ResetBars();
    EXPECT_EQ(chart.bars.texts(4), histogram::BarTexts());
}

TEST(BarLabels, AgainWithoutHoursHaveNoHeightWhileOthersStand)
{
    Chart chart;
    chart.draw(binsOf({{1, 1}}));
    EXPECT_EQ(chart.bars[2].place().Height, 0);
    EXPECT_EQ(chart.bars[2].place().Top, 2700);
}

RC_GTEST_PROP(BarLabelsProperties, StandOnTheBaseOnTheGridAndRiseWithTheirHours, ())
{
    HourBins bins{};
    for (std::size_t bin = 1; bin < bins.size(); ++bin)
        bins[bin] = *rc::gen::inRange(0, 3000);
    RC_PRE(*std::max_element(bins.begin(), bins.end()) > 0);
    Chart chart;
    chart.draw(bins);
    for (int one = 1; one <= 20; ++one) {
        const Geometry& place = chart.bars[one].place();
        const std::int32_t hours = bins[static_cast<std::size_t>(one)];
        RC_ASSERT(place.Top + place.Height == 2700);
        RC_ASSERT(static_cast<int>(place.Top) % 15 == 0);
        RC_ASSERT((place.Height >= 15) == (hours > 0));
        for (int other = 1; other <= 20; ++other) {
            if (hours <= bins[static_cast<std::size_t>(other)])
                RC_ASSERT(place.Height <= chart.bars[other].place().Height);
        }
    }
}

} // namespace k7deval::test
