#include "sevenday/SetUpRig.h"

#include <gtest/gtest.h>

/// The performance specifications: what an option leaves on the page, and the limits that the
/// evaluation reads.
namespace k7deval::test
{

namespace
{

using Option = screen::OptionButton ctrl7DaySetUp::*;

/// The limits as the evaluation reads them.
struct Limits {
    std::int32_t rule = 0;
    float absolute = 0;
    float percentOfSpan = 0;
    float percentOfRef = 0;
    bool useZeroCals = true;
    friend bool operator==(const Limits&, const Limits&) = default;
};

void PrintTo(const Limits& limits, std::ostream* out)
{
    *out << "rule " << limits.rule << ", absolute " << limits.absolute << ", % of span "
         << limits.percentOfSpan << ", % of reference " << limits.percentOfRef << ", zero cals "
         << limits.useZeroCals;
}

Limits limitsOf(const ctrl7DaySetUp& page)
{
    return {page.LimitRules(), page.AbsoluteLimit(), page.PercentOfSpanLimit(),
            page.PercentOfRefLimit(), page.UseZeroCals()};
}

/// A page whose other span limit is 7 and whose other absolute limit is 9.
struct LimitsRig : SetUpRig {
    LimitsRig()
    {
        page.optOtherSpan.Press();
        enter(page.txtOtherSpanValue, "7");
        page.optOtherAbsolute.Press();
        enter(page.txtOtherAbsoluteValue, "9");
    }
};

} // namespace

struct LimitCase {
    const char* option;
    Option member;
    bool useAPS;
    Limits expected;
};

// An APS left checked turns the other absolute limit into 5 under every option but the one of 0.5.
const LimitCase kLimits[] = {
    {"opt025Span", &ctrl7DaySetUp::opt025Span, true, {2, 5, 2.5F, -999, true}},
    {"opt025Span", &ctrl7DaySetUp::opt025Span, false, {1, 9, 2.5F, -999, true}},
    {"opt05Span", &ctrl7DaySetUp::opt05Span, true, {1, 5, 5, -999, true}},
    {"opt05Span", &ctrl7DaySetUp::opt05Span, false, {1, 9, 5, -999, true}},
    {"optOtherSpan", &ctrl7DaySetUp::optOtherSpan, true, {1, 5, 7, -999, true}},
    {"optOtherSpan", &ctrl7DaySetUp::optOtherSpan, false, {1, 9, 7, -999, true}},
    {"optPS9GC", &ctrl7DaySetUp::optPS9GC, true, {3, 5, -999, 10, false}},
    {"optPS9GC", &ctrl7DaySetUp::optPS9GC, false, {3, 9, -999, 10, false}},
    {"opt005Absolute", &ctrl7DaySetUp::opt005Absolute, true, {0, 0.5F, 7, -999, true}},
    {"opt005Absolute", &ctrl7DaySetUp::opt005Absolute, false, {0, 0.5F, 7, -999, true}},
    {"optOtherAbsolute", &ctrl7DaySetUp::optOtherAbsolute, true, {0, 5, 7, -999, true}},
    {"optOtherAbsolute", &ctrl7DaySetUp::optOtherAbsolute, false, {0, 9, 7, -999, true}},
};

class SetUpLimits : public ::testing::TestWithParam<LimitCase>
{
};

TEST_P(SetUpLimits, FollowTheOptionAndTheAPS)
{
    LimitsRig rig;
    rig.page.chkUseAPS.setChecked(GetParam().useAPS);
    (rig.page.*GetParam().member).setSelected(true);
    EXPECT_EQ(limitsOf(rig.page), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Options, SetUpLimits, ::testing::ValuesIn(kLimits),
                         [](const auto& tested) {
                             return std::string(tested.param.option) +
                                    (tested.param.useAPS ? "WithAPS" : "WithoutAPS");
                         });

TEST(SetUpLimits, StartAtThreePercentAndFive)
{
    SetUpRig rig;
    rig.page.optOtherSpan.Press();
    EXPECT_EQ(limitsOf(rig.page), (Limits{1, 5, 3, -999, true}));
    EXPECT_EQ(rig.page.txtOtherSpanValue.Text(), "3");
    rig.page.optOtherAbsolute.Press();
    EXPECT_EQ(limitsOf(rig.page), (Limits{0, 5, 3, -999, true}));
    EXPECT_EQ(rig.page.txtOtherAbsoluteValue.Text(), "5");
}

struct OptionCase {
    const char* option;
    Option member;
    bool apsEnabled;
    const char* otherSpan; ///< What the field shows when it is enabled; nothing when it is not.
    const char* otherAbsolute;
};

constexpr OptionCase kOptions[] = {
    {"opt025Span", &ctrl7DaySetUp::opt025Span, true, nullptr, nullptr},
    {"opt05Span", &ctrl7DaySetUp::opt05Span, false, nullptr, nullptr},
    {"opt005Absolute", &ctrl7DaySetUp::opt005Absolute, false, nullptr, nullptr},
    {"optPS9GC", &ctrl7DaySetUp::optPS9GC, false, nullptr, nullptr},
    {"optOtherSpan", &ctrl7DaySetUp::optOtherSpan, false, "7", nullptr},
    {"optOtherAbsolute", &ctrl7DaySetUp::optOtherAbsolute, false, nullptr, "9"},
};

class SetUpOption : public ::testing::TestWithParam<OptionCase>
{
protected:
    static void expectField(const screen::TextBox& field, const char* shown)
    {
        EXPECT_EQ(field.Enabled(), shown != nullptr) << field.Name();
        EXPECT_EQ(field.Text(), shown == nullptr ? "" : shown) << field.Name();
    }
};

TEST_P(SetUpOption, LeavesItsFieldsEnabledAndTheAPSAsItWas)
{
    for (const bool useAPS : {true, false}) {
        LimitsRig rig;
        // From an option with everything the other way round.
        (GetParam().apsEnabled ? rig.page.optOtherSpan : rig.page.opt025Span).Press();
        rig.page.chkUseAPS.setChecked(useAPS);
        (rig.page.*GetParam().member).Press();
        EXPECT_EQ(rig.page.chkUseAPS.Enabled(), GetParam().apsEnabled);
        EXPECT_EQ(rig.page.chkUseAPS.isChecked(), useAPS);
        expectField(rig.page.txtOtherSpanValue, GetParam().otherSpan);
        expectField(rig.page.txtOtherAbsoluteValue, GetParam().otherAbsolute);
    }
}

INSTANTIATE_TEST_SUITE_P(Options, SetUpOption, ::testing::ValuesIn(kOptions),
                         [](const auto& tested) { return tested.param.option; });

TEST(SetUpOption, APSStaysCheckedAndDisabledUnderFivePercentOfSpan)
{
    SetUpRig rig;
    rig.setup().page.opt05Span.Press();
    EXPECT_TRUE(rig.page.chkUseAPS.isChecked());
    EXPECT_FALSE(rig.page.chkUseAPS.Enabled());
    EXPECT_EQ(rig.page.AbsoluteLimit(), 5);
    EXPECT_EQ(rig.page.LimitRules(), 1);
}

TEST(SetUpOption, PressingTheSelectedOptionAgainLeavesTheTypedLimitAlone)
{
    SetUpRig rig;
    rig.page.optOtherSpan.Press();
    rig.page.txtOtherSpanValue.Type("4");
    rig.page.optOtherSpan.Press();
    EXPECT_EQ(rig.page.txtOtherSpanValue.Text(), "4");
}

TEST(SetUpOption, ALimitComesBackWithItsOption)
{
    LimitsRig rig;
    rig.page.opt05Span.Press();
    rig.page.optOtherSpan.Press();
    EXPECT_EQ(rig.page.txtOtherSpanValue.Text(), "7");
    EXPECT_EQ(rig.page.PercentOfSpanLimit(), 7);
}

TEST(SetUpOption, TheSixSpecificationsAreOneGroupAndTheThreeDisplaysAnother)
{
    LimitsRig rig;
    auto& page = rig.page;
    page.optShowInterval.Press();
    EXPECT_TRUE(page.optOtherAbsolute.isSelected());
    EXPECT_TRUE(page.ShowInterval());
    EXPECT_FALSE(page.ShowAllCalsWithinDrift());
    page.optShowDriftTestCals.Press();
    EXPECT_FALSE(page.ShowInterval());
    EXPECT_TRUE(page.ShowOnlyDriftCals());
}

TEST(SetUpOption, TheCheckBoxesAreReadAsTheyStand)
{
    SetUpRig rig;
    auto& page = rig.page;
    page.chkManualCals.Press();
    page.chkShowSummary.Press();
    page.chk6of7.Press();
    EXPECT_FALSE(page.IncludeManualCals());
    EXPECT_FALSE(page.ShowSummary());
    EXPECT_TRUE(page.SixOfSevenCals());
}

} // namespace k7deval::test
