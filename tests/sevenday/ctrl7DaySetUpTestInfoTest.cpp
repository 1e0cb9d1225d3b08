#include "foundation/ExpectError.h"
#include "sevenday/SetUpRig.h"

#include <gtest/gtest.h>

#include <utility>

/// The test information of a parameter under 40 CFR 75.
namespace k7deval::test
{

struct StackCase {
    const char* what;
    const char* value;
    Lines listed; ///< Empty: the text field takes the value.
};

TEST(SetUpTestInfo, AStackIDWithASemicolonBecomesAList)
{
    const StackCase rows[] = {
        {"one", "CS1", {}},
        {"one with blanks", "CS1  ", {}},
        {"empty", "", {}},
        {"two", "CS1;CS2", {"CS1", "CS2"}},
        {"trailing blanks go, leading ones stay", " CS1  ; CS2 ", {" CS1", " CS2"}},
        {"a semicolon at the end", "CS1;", {"CS1", ""}},
        {"a semicolon alone", ";", {"", ""}},
        {"an empty one in between", "CS1;;CS3", {"CS1", "", "CS3"}},
    };
    for (const StackCase& row : rows) {
        SetUpRig rig;
        auto& page = rig.setup().page;
        page.SetStackID(row.value);
        EXPECT_EQ(page.cmbStackID.List(), row.listed) << row.what;
        EXPECT_EQ(page.cmbStackID.Visible(), !row.listed.empty()) << row.what;
        EXPECT_EQ(page.txtStackID.Visible(), row.listed.empty()) << row.what;
        EXPECT_EQ(page.StackID(), row.listed.empty() ? row.value : row.listed.front()) << row.what;
        EXPECT_EQ(page.txtStackID.Text(), row.listed.empty() ? row.value : "GT3") << row.what;
    }
}

TEST(SetUpTestInfo, TheStackIDIsTheOneSelectedOrTypedLast)
{
    SetUpRig rig;
    auto& page = rig.setup().page;
    page.txtStackID.Type("CS12345");
    EXPECT_EQ(page.StackID(), "CS1234");
    page.SetStackID("CS1;CS2");
    page.cmbStackID.Pick(1);
    EXPECT_EQ(page.StackID(), "CS2");
    page.cmbStackID.Type("MS9");
    EXPECT_EQ(page.StackID(), "MS9");
    page.SetStackID("MS1;MS2;MS3");
    EXPECT_EQ(page.cmbStackID.List(), (Lines{"MS1", "MS2", "MS3"})) << "a new list";
    EXPECT_EQ(page.StackID(), "MS1");
    page.SetStackID("CS3");
    EXPECT_EQ(page.StackID(), "CS3");
    EXPECT_TRUE(page.txtStackID.Visible()) << "a single stack";
    EXPECT_FALSE(page.cmbStackID.Visible());
}

struct ReasonCase {
    const char* text;
    const char* code;
};

TEST(SetUpTestInfo, RecertificationAndDiagnosticGoOutCrossed)
{
    constexpr ReasonCase kReasons[] = {
        {"Initial Certification", "INITIAL"},
        {"Recertification", "DIAG"},
        {"Diagnostic", "RECERT"},
    };
    SetUpRig rig;
    auto& page = rig.setup().page;
    for (int i = 0; i < 3; ++i) {
        page.cmbTestReason.Pick(i);
        EXPECT_EQ(page.cmbTestReason.Text(), kReasons[i].text);
        EXPECT_EQ(page.TestReason(), kReasons[i].code);
    }
}

TEST(SetUpTestInfo, AnotherReasonIsAnInitialCertificationAndATypedOneAnError)
{
    SetUpRig rig;
    auto& page = rig.setup().page;
    page.cmbTestReason.addItem("Quality Assurance", 4);
    page.cmbTestReason.Pick(3);
    EXPECT_EQ(page.TestReason(), "INITIAL");
    page.cmbTestReason.Type("Diagnostic");
    EXPECT_EQ(errorOf([&] { return page.TestReason(); }), 381);
}

TEST(SetUpTestInfo, ComponentAndTestNumberAreTheirFields)
{
    SetUpRig rig;
    auto& page = rig.setup().page;
    page.txtComponentID.Type("2024");
    EXPECT_EQ(page.ComponentID(), "202");
    page.SetComponentID("2024");
    EXPECT_EQ(page.txtComponentID.Text(), "2024");
    page.txtTestNumber.Type("7DAY-Q42015-213-1");
    EXPECT_EQ(page.TestNumber(), "7DAY-Q42015-213-1");
    page.SetTestNumber("T1");
    EXPECT_EQ(page.txtTestNumber.Text(), "T1");
}

TEST(SetUpTestInfo, TheOrisCodeIsTheNumberOfItsField)
{
    SetUpRig rig;
    auto& page = rig.setup().page;
    page.SetOrisCode(54);
    EXPECT_EQ(page.txtORIS.Text(), "54");
    EXPECT_EQ(page.OrisCode(), 54);
    page.txtORIS.Type("00123");
    EXPECT_EQ(page.OrisCode(), 123);
    for (const auto& [text, error] : {std::pair("", 13), {"GT3", 13}, {"9999999999", 6}}) {
        page.txtORIS.SetText(text);
        EXPECT_EQ(errorOf([&] { return page.OrisCode(); }), error) << text;
    }
}

TEST(SetUpTestInfo, TheFlagShowsAndHidesTheFrame)
{
    SetUpRig rig;
    auto& page = rig.page;
    EXPECT_EQ(rig.changesBy([&] { page.SetIs40CFR75(true); }),
              Lines{"fraTestInfo.Visible: False -> True"});
    EXPECT_TRUE(page.Is40CFR75());
    page.SetIs40CFR75(false);
    EXPECT_FALSE(page.Is40CFR75());
    EXPECT_FALSE(page.fraTestInfo.Visible());
}

TEST(SetUpTestInfo, HiddenFieldsTakeNoTyping)
{
    AnalyzerFacts facts;
    facts.program = 60;
    SetUpRig rig(siteOf(facts));
    rig.setup();
    SetUpRig::enter(rig.page.txtORIS, "54");
    EXPECT_EQ(rig.page.txtORIS.Text(), "50292");
}

} // namespace k7deval::test
