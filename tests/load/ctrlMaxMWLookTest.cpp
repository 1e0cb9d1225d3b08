#include "load/LoadRig.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <variant>

/// Where the load tool's results stand, in twips, and what its fixed texts say.
namespace k7deval::test
{

namespace
{

using screen::Alignment;
using screen::Geometry;

struct LabelCase {
    const char* name;
    float left;
    float top;
    float width;
    Alignment alignment;
};

constexpr LabelCase kLabels[] = {
    {"lblHeader", 750, 75, 4500, Alignment::Centre},
    {"lblLowOpPercent", 60, 360, 1800, Alignment::Centre},
    {"lblMidOpPercent", 1800, 360, 1800, Alignment::Centre},
    {"lblHighOpPercent", 3840, 360, 1800, Alignment::Centre},
    {"lblMinSafe", 120, 2760, 1350, Alignment::Left},
    {"lblLow", 1170, 2760, 1350, Alignment::Centre},
    {"lblMid", 2895, 2760, 1350, Alignment::Centre},
    {"lblMax", 4530, 2760, 1350, Alignment::Right},
    {"lbl000", 120, 3000, 1350, Alignment::Left},
    {"lbl030", 1170, 3000, 1350, Alignment::Centre},
    {"lbl060", 2895, 3000, 1350, Alignment::Centre},
    {"lbl100", 4530, 3000, 1350, Alignment::Right},
    {"lblBelow", 120, 3300, 5655, Alignment::Left},
    {"lblAbove", 120, 3600, 5535, Alignment::Left},
};

struct MarkCase {
    const char* name;
    float x;
};

constexpr MarkCase kMarks[] = {
    {"linMin", 120}, {"linLow", 1845}, {"linMid", 3570}, {"linMax", 5880}};

/// An edge of the bars: a whole number of pixels, 15 twips each, from the left.
int edge(int bar)
{
    const auto place = static_cast<float>(bar / 20.0 * 5760 + 120);
    const int whole = static_cast<int>(std::nearbyint(place));
    return whole - whole % 15;
}

struct CaptionCase {
    const char* name;
    const char* caption;
};

constexpr CaptionCase kCaptions[] = {
    {"lblUnit", "Unit:"},
    {"lblParameter", "Parameter:"},
    {"chkShowPID", "Show PID"},
    {"lblMinSafeValue", "Minimum Safe Operating Value:"},
    {"lblCapacity", "Nameplate/Rated Capacity:"},
    {"lblTimeFrameHeading", " Use Data From:"},
    {"optTimeEnd", "4 operating quarters ending the last day of:"},
    {"optTimeSelect", "Specified Dates:"},
    {"cmdFrom", "..."},
    {"lblTo", "to"},
    {"cmdTo", "..."},
    {"cmdCalculate", "Calculate"},
    {"cmdSave", "Save"},
    {"chkPreview", "Preview Report After Saving"},
    {"cmdClose", "Close"},
    {"fraResults", ""},
    {"lbl000", "Minimum"},
    {"lbl030", "30%"},
    {"lbl060", "60%"},
    {"lbl100", "Maximum"},
};

template <class Kind> const Kind& found(const ctrlMaxMW& tool, const std::string& name)
{
    const auto* widget = dynamic_cast<const Kind*>(tool.Find(name));
    if (widget == nullptr)
        throw std::logic_error("there is no such " + name);
    return *widget;
}

bool liesIn(const screen::Container& container, const std::string& name)
{
    const auto& children = container.Children();
    return std::any_of(children.begin(), children.end(),
                       [&](const auto* child) { return child->Name() == name; });
}

} // namespace

TEST(LoadToolLook, TheToolHasAFixedSizeWithItsResultsOnTheRight)
{
    const LoadTool rig;
    EXPECT_EQ(rig.tool.place().Width, 12300);
    EXPECT_EQ(rig.tool.place().Height, 4830);
    EXPECT_EQ(rig.tool.fraResults.place(), (Geometry{6240, 120, 6000, 4020}));
}

TEST(LoadToolLook, EveryResultTextHasItsPlaceAndAlignment)
{
    const LoadTool rig;
    for (const LabelCase& expected : kLabels) {
        const auto& label = found<screen::Label>(rig.tool, expected.name);
        EXPECT_EQ(label.place().Left, expected.left) << expected.name;
        EXPECT_EQ(label.place().Top, expected.top) << expected.name;
        EXPECT_EQ(label.place().Width, expected.width) << expected.name;
        EXPECT_EQ(label.Alignment(), expected.alignment) << expected.name;
        EXPECT_TRUE(liesIn(rig.tool.fraResults, expected.name)) << expected.name;
    }
}

TEST(LoadToolLook, FourDottedMarksStandOnASolidBase)
{
    const LoadTool rig;
    for (const MarkCase& expected : kMarks) {
        const auto& line = found<screen::Line>(rig.tool, expected.name);
        EXPECT_EQ(line.X1(), expected.x) << expected.name;
        EXPECT_EQ(line.X2(), expected.x) << expected.name;
        EXPECT_EQ(std::min(line.Y1(), line.Y2()), 630) << expected.name;
        EXPECT_EQ(std::max(line.Y1(), line.Y2()), 2700) << expected.name;
        EXPECT_EQ(line.Style(), screen::LineStyle::Dotted) << expected.name;
        EXPECT_TRUE(liesIn(rig.tool.fraResults, expected.name)) << expected.name;
    }
    const screen::Line& base = rig.tool.linBase;
    EXPECT_EQ(base.X1(), 120);
    EXPECT_EQ(base.X2(), 5895);
    EXPECT_EQ(base.Y1(), 2700);
    EXPECT_EQ(base.Y2(), 2700);
    EXPECT_EQ(base.Style(), screen::LineStyle::Solid);
}

TEST(LoadToolLook, TwentyBarsStandSideBySideOnWholePixels)
{
    const LoadTool rig;
    for (int bar = 1; bar <= 20; ++bar) {
        const screen::Label& label = rig.tool.lblBar[bar];
        EXPECT_EQ(label.place(), (Geometry{static_cast<float>(edge(bar - 1)), 2700,
                                           static_cast<float>(edge(bar) - edge(bar - 1) + 15), 15}))
            << bar;
        EXPECT_TRUE(label.Visible()) << bar;
        EXPECT_EQ(label.Caption(), "") << bar;
        EXPECT_EQ(label.BackColor(), screen::color::kDesktop) << bar;
    }
}

TEST(LoadToolLook, TheBarsReachFromTheFirstMarkToTheLast)
{
    const LoadTool rig;
    EXPECT_EQ(rig.tool.lblBar[1].place().Left, 120);
    EXPECT_EQ(rig.tool.lblBar[1].place().Width, 300); // 120 + 288 is 408, on the grid 405.
    EXPECT_EQ(rig.tool.lblBar[2].place().Left, 405);
    EXPECT_EQ(rig.tool.lblBar[7].place().Left, 1845) << "the 30% mark";
    EXPECT_EQ(rig.tool.lblBar[13].place().Left, 3570) << "the 60% mark";
    const Geometry& last = rig.tool.lblBar[20].place();
    EXPECT_EQ(last.Left + last.Width, 5880 + 15);
}

TEST(LoadToolLook, TheBarsAreMadeFromAHiddenPattern)
{
    const LoadTool rig;
    const screen::Label& pattern = rig.tool.lblBar[0];
    EXPECT_FALSE(pattern.Visible());
    EXPECT_EQ(pattern.place(), (Geometry{315, 1725, 255, 405}));
    EXPECT_EQ(pattern.BackColor(), screen::color::kDesktop);
    EXPECT_EQ(pattern.Caption(), "");
}

TEST(LoadToolLook, ThereAreNoOtherBars)
{
    const LoadTool rig;
    EXPECT_EQ(rig.tool.lblBar.Count(), 21);
    EXPECT_EQ(errorOf([&] { static_cast<void>(rig.tool.lblBar[21]); }), 9);
    EXPECT_EQ(errorOf([&] { static_cast<void>(rig.tool.lblBar[-1]); }), 9);
}

TEST(LoadToolLook, FixedTextsSayWhatTheyAreFor)
{
    const LoadTool rig;
    for (const CaptionCase& expected : kCaptions) {
        const auto* widget = rig.tool.Find(expected.name);
        ASSERT_NE(widget, nullptr) << expected.name;
        std::string caption;
        for (const auto& property : widget->Properties()) {
            if (property.name == "Caption")
                caption = std::get<std::string>(property.content.value);
        }
        EXPECT_EQ(caption, expected.caption) << expected.name;
    }
}

TEST(LoadToolLook, WhatIsEnteredLiesInTheSetupFrameAndTheButtonsOutsideIt)
{
    const LoadTool rig;
    for (const char* name : {"cmbUnit", "cmbParam", "chkShowPID", "txtMinSafe", "txtCapacity",
                             "lblMinSafeValue", "lblCapacity", "fraTimeFrame"})
        EXPECT_TRUE(liesIn(rig.tool.fraSetup, name)) << name;
    for (const char* name : {"optTimeEnd", "cmbYear", "cmbQTR", "optTimeSelect", "txtFrom",
                             "cmdFrom", "lblTo", "txtTo", "cmdTo", "lblTimeFrameHeading"})
        EXPECT_TRUE(liesIn(rig.tool.fraTimeFrame, name)) << name;
    for (const char* name : {"cmdCalculate", "cmdSave", "chkPreview", "cmdClose"})
        EXPECT_TRUE(liesIn(rig.tool, name)) << name;
}

TEST(LoadToolLook, AYearCanBeTypedAndAQuarterCannot)
{
    LoadTool rig;
    rig.tool.cmbYear.Type("1999");
    EXPECT_EQ(rig.tool.cmbYear.Text(), "1999");
    EXPECT_EQ(rig.tool.cmbYear.ListIndex(), -1);
    rig.tool.cmbQTR.Type("Q9");
    EXPECT_EQ(rig.tool.cmbQTR.Text(), "Q1");
}

} // namespace k7deval::test
