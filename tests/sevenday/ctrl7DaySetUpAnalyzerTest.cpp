#include "foundation/ExpectError.h"
#include "sevenday/SetUpRig.h"

#include <gtest/gtest.h>

#include <limits>

/// What follows from the pick of an analyzer.
namespace k7deval::test
{

namespace
{

AnalyzerFacts withCode(std::int32_t code, std::int32_t program)
{
    AnalyzerFacts facts;
    facts.code = code;
    facts.program = program;
    return facts;
}

std::string selectedSpecification(const ctrl7DaySetUp& page)
{
    std::string selected;
    for (const screen::OptionButton* option :
         {&page.opt025Span, &page.opt05Span, &page.opt005Absolute, &page.optOtherSpan,
          &page.optOtherAbsolute, &page.optPS9GC})
        selected += option->isSelected() ? option->Name() : "";
    return selected;
}

} // namespace

struct CodeCase {
    const char* option;
    std::int32_t code;
    bool sixOfSeven;
    bool isPpm;
};

// By parameter code: the gases with a specification of their own, and the rest.
constexpr CodeCase kCodes[] = {
    {"optOtherSpan", 99, false, false},    {"opt025Span", 100, false, true},
    {"optOtherSpan", 101, false, false},   {"opt025Span", 110, false, true},
    {"opt025Span", 120, false, true},      {"optOtherSpan", 121, false, false},
    {"opt05Span", 140, true, false},       {"opt05Span", 145, true, false},
    {"optOtherSpan", 141, false, false},   {"optOtherSpan", 150, false, false},
    {"opt005Absolute", 220, false, false}, {"opt005Absolute", 240, false, false},
    {"opt005Absolute", 243, false, false}, {"optOtherSpan", 230, false, false},
    {"optOtherSpan", 233, false, false},   {"optOtherSpan", 241, false, false},
    {"optOtherSpan", 245, false, false},   {"optOtherSpan", 260, false, false},
    {"optOtherSpan", 680, false, false},
};

class SetUpAnalyzerOfCode : public ::testing::TestWithParam<CodeCase>
{
};

TEST_P(SetUpAnalyzerOfCode, GetsItsSpecification)
{
    for (const std::int32_t program : {75, 60}) {
        SetUpRig rig(siteOf(withCode(GetParam().code, program)));
        rig.setup();
        EXPECT_EQ(selectedSpecification(rig.page), GetParam().option);
        EXPECT_EQ(rig.page.SixOfSevenCals(), GetParam().sixOfSeven);
        EXPECT_EQ(rig.page.chkUseAPS.isChecked(), GetParam().isPpm && program == 75);
        EXPECT_EQ(rig.page.Is40CFR75(), program == 75);
        EXPECT_EQ(rig.page.fraTestInfo.Visible(), program == 75);
    }
}

INSTANTIATE_TEST_SUITE_P(Codes, SetUpAnalyzerOfCode, ::testing::ValuesIn(kCodes),
                         [](const auto& tested) { return std::to_string(tested.param.code); });

TEST(SetUpAnalyzer, APickTakesBackWhatTheUserChose)
{
    SetUpRig rig;
    auto& page = rig.setup().page;
    page.optOtherSpan.Press();
    page.chk6of7.Press();
    page.chkUseAPS.setChecked(false);
    page.cmbAnalyzer.Pick(0);
    EXPECT_EQ(selectedSpecification(page), "opt025Span");
    EXPECT_FALSE(page.chk6of7.isChecked());
    EXPECT_TRUE(page.chkUseAPS.isChecked());
    EXPECT_TRUE(page.chkUseAPS.Enabled());
}

TEST(SetUpAnalyzer, TheOptionRuleRunsWithThePick)
{
    SetUpRig rig(siteOf(withCode(230, 75)));
    auto& page = rig.setup().page;
    EXPECT_FALSE(page.chkUseAPS.Enabled());
    EXPECT_TRUE(page.txtOtherSpanValue.Enabled());
    EXPECT_EQ(page.txtOtherSpanValue.Text(), "3");
}

TEST(SetUpAnalyzer, ACheckedAPSIsClearedForAnAnalyzerThatHasNone)
{
    SetUpRig rig;
    AnalyzerFacts co = withCode(140, 75);
    co.name = "CO";
    addAnalyzer(*rig.site, co);
    auto& page = rig.setup().page;
    EXPECT_TRUE(page.chkUseAPS.isChecked());
    page.cmbAnalyzer.Pick(1);
    EXPECT_FALSE(page.chkUseAPS.isChecked());
    EXPECT_FALSE(page.chkUseAPS.Enabled());
}

struct TestNumberCase {
    const char* what;
    const char* base;
    const char* scale;
    const char* component;
    const char* expected;
};

constexpr TestNumberCase kTestNumbers[] = {
    {"high scale", "NOX", "HIGH", "101", "NOXH_101_7DAY"},
    {"mid scale", "NOX", "MID", "101", "NOXM_101_7DAY"},
    {"low scale", "NOX", "LOW", "101", "NOXL_101_7DAY"},
    {"single scale", "NOX", "SINGLE", "101", "NOX_101_7DAY"},
    {"a scale in lower case", "NOX", "high", "101", "NOX_101_7DAY"},
    {"dry oxygen", "O2DRY", "SINGLE", "102", "O2_102_7DAY"},
    {"dry oxygen on a scale", "O2DRY", "HIGH", "102", "O2H_102_7DAY"},
    {"every dry oxygen", "O2DRY-O2DRY", "SINGLE", "102", "O2-O2_102_7DAY"},
    {"lower case is not dry oxygen", "O2dry", "SINGLE", "102", "O2dry_102_7DAY"},
    {"no component", "NOX", "HIGH", "", "NOXH__7DAY"},
    {"no base", "", "HIGH", "101", "H_101_7DAY"},
    {"a component longer than the field", "NOX", "HIGH", "10123", "NOXH_10123_7DAY"},
};

TEST(SetUpAnalyzer, TheTestNumberIsBuiltOfGasScaleAndComponent)
{
    for (const TestNumberCase& row : kTestNumbers) {
        AnalyzerFacts facts;
        facts.testNumberBase = std::string(row.base);
        facts.scale = std::string(row.scale);
        facts.component = std::string(row.component);
        SetUpRig rig(siteOf(facts));
        rig.setup();
        EXPECT_EQ(rig.page.TestNumber(), row.expected) << row.what;
        EXPECT_EQ(rig.page.ComponentID(), row.component) << row.what;
    }
}

TEST(SetUpAnalyzer, WhatItIsIsReadFromTheCalibrationParameter)
{
    AnalyzerFacts facts;
    facts.scale = std::string("LOW");
    SetUpRig rig(siteOf(facts));
    auto& page = rig.setup().page;
    EXPECT_EQ(page.AnalyzedPID(), facts.measuredPID());
    EXPECT_EQ(page.AnalyzedScale(), "LOW");
    EXPECT_EQ(page.AnalyzerInfoText(), "GT3 NOX/L");
}

TEST(SetUpAnalyzer, WhatItIsIsReadWhenAsked)
{
    SetUpRig rig;
    auto& page = rig.setup().page;
    rig.site->parameter(AnalyzerFacts().calibrationPID()).attributes[attribute::kScale] =
        std::string("SINGLE");
    EXPECT_EQ(page.AnalyzedScale(), "SINGLE");
}

TEST(SetUpAnalyzer, OneThatIsGoneClearsTheFlagAndKeepsTheAnalyzerBefore)
{
    SetUpRig rig;
    AnalyzerFacts co = withCode(140, 75);
    co.name = "CO";
    addAnalyzer(*rig.site, co);
    auto& page = rig.setup().page;
    std::erase_if(rig.site->parameters,
                  [&](const auto& p) { return p.pid == co.calibrationPID(); });
    EXPECT_EQ(
        rig.changesBy([&] { page.cmbAnalyzer.Pick(1); }),
        (Lines{"chk6of7.Value: 0 -> 1", "chkUseAPS.Enabled: True -> False",
               "chkUseAPS.Value: 1 -> 0", "cmbAnalyzer.ListIndex: 0 -> 1",
               "cmbAnalyzer.Text: \"NOX/H\" -> \"CO/H\"", "fraTestInfo.Visible: True -> False",
               "opt025Span.Value: True -> False", "opt05Span.Value: False -> True"}));
    EXPECT_EQ(page.AnalyzedPID(), AnalyzerFacts().measuredPID());
    EXPECT_EQ(rig.messages->lines(), Lines());
}

struct PrecisionCase {
    std::int32_t decimals;
    const char* format;
};

TEST(SetUpAnalyzer, ThePrecisionIsAFormatOfItsDecimals)
{
    constexpr PrecisionCase kRows[] = {
        {-2, ""},        {-1, "0"},       {0, "0."},
        {1, "0.0"},      {2, "0.00"},     {3, "0.000"},
        {6, "0.000000"}, {7, "0.000000"}, {2147483647, "0.000000"},
    };
    for (const PrecisionCase& row : kRows) {
        AnalyzerFacts facts;
        facts.decimals = row.decimals;
        SetUpRig rig(siteOf(facts));
        EXPECT_EQ(rig.setup().page.AnalyzedPrecision(), row.format) << row.decimals;
    }
}

TEST(SetUpAnalyzer, APrecisionOfLessThanNoCharacterIsAnError)
{
    for (const std::int32_t decimals : {-3, std::numeric_limits<std::int32_t>::min()}) {
        AnalyzerFacts facts;
        facts.decimals = decimals;
        SetUpRig rig(siteOf(facts));
        EXPECT_EQ(errorOf([&] { return rig.setup().page.AnalyzedPrecision(); }), 5) << decimals;
    }
}

TEST(SetUpAnalyzer, ANullWhereAValueIsNeededIsAnErrorOfItsReader)
{
    AnalyzerFacts facts;
    SetUpRig rig(siteOf(facts));
    auto& page = rig.setup().page;
    auto& attributes = rig.site->parameter(facts.calibrationPID()).attributes;
    attributes[attribute::kMeasuredPID] = Null{};
    attributes[attribute::kScale] = Null{};
    attributes[attribute::kDecimals] = Null{};
    EXPECT_EQ(errorOf([&] { return page.AnalyzedPID(); }), 94);
    EXPECT_EQ(errorOf([&] { return page.AnalyzedScale(); }), 94);
    EXPECT_EQ(errorOf([&] { return page.AnalyzedPrecision(); }), 94);
}

} // namespace k7deval::test
