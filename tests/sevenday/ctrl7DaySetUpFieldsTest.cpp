#include "foundation/ExpectError.h"
#include "sevenday/SetUpRig.h"

#include <gtest/gtest.h>

/// What is typed into the setup page, and the calendar.
namespace k7deval::test
{

struct TextCase {
    const char* what;
    const char* typed;
    const char* shown;
};

// The field takes six characters. Whole numbers are the nearest, halves to even.
constexpr TextCase kOrisCodes[] = {
    {"a plain number", "50292", "50292"},
    {"leading zeros", "00123", "123"},
    {"zero", "0", "0"},
    {"the largest", "999999", "999999"},
    {"longer than the field", "1234567", "123456"},
    {"decimals", "12.4", "12"},
    {"a half goes to even below", "12.5", "12"},
    {"a half goes to even above", "13.5", "14"},
    {"nearly zero", "-0.4", "0"},
    {"a half below zero", "-0.5", "0"},
    {"just above the largest", "1E6", ""},
    {"an exponent within", "1E5", "100000"},
    {"below zero", "-1", ""},
    {"text", "GT3", ""},
    {"nothing", "", ""},
    {"a blank", " ", ""},
    {"group marks", "50,292", "50292"},
    {"a currency mark", "$5", "5"},
    {"parentheses", "(5)", ""},
    {"far above any integer", "9E99", ""},
    {"far above any number", "9E9999", ""},
    {"no number", "inf", ""},
};

TEST(SetUpFields, TheOrisCodeBecomesAPlainNumberOrNothing)
{
    for (const TextCase& row : kOrisCodes) {
        SetUpRig rig;
        rig.setup();
        SetUpRig::enter(rig.page.txtORIS, row.typed);
        EXPECT_EQ(rig.page.txtORIS.Text(), row.shown) << row.what;
    }
}

TEST(SetUpFields, AnOrisCodeByCodeIsRefusedAboveSixDigitsWhenTheFieldIsLeft)
{
    SetUpRig rig;
    rig.setup();
    rig.page.SetOrisCode(1000000);
    EXPECT_EQ(rig.page.txtORIS.Text(), "1000000");
    rig.page.txtORIS.Leave();
    EXPECT_EQ(rig.page.txtORIS.Text(), "");
}

TEST(SetUpFields, TheOrisCodeIsNotTouchedBeforeTheFieldIsLeft)
{
    SetUpRig rig;
    rig.setup().page.txtORIS.Type("00x");
    EXPECT_EQ(rig.page.txtORIS.Text(), "00x");
}

struct LimitTextCase {
    const char* what;
    const char* typed;
    const char* shown; ///< An accepted text stays as it was typed.
    float limit;
};

constexpr LimitTextCase kLimitTexts[] = {
    {"a number", "4", "4", 4},
    {"zero", "0", "0", 0},
    {"below zero", "-2", "-2", -2},
    {"the largest single", "3.402823E+38", "3.402823E+38", 3.402823e38F},
    {"above the largest single", "3.5E38", "8", 8},
    {"above the largest double", "1E999", "8", 8},
    {"text", "a lot", "8", 8},
    {"nothing", "", "8", 8},
};

class SetUpLimitField : public ::testing::TestWithParam<LimitTextCase>
{
};

TEST_P(SetUpLimitField, TakesANumberOrReturnsToTheLastOneAndLeavesTheOtherLimit)
{
    for (const bool ofSpan : {true, false}) {
        SetUpRig rig;
        auto& page = rig.page;
        auto& field = ofSpan ? page.txtOtherSpanValue : page.txtOtherAbsoluteValue;
        (ofSpan ? page.optOtherSpan : page.optOtherAbsolute).Press();
        SetUpRig::enter(field, "8");
        SetUpRig::enter(field, GetParam().typed);
        EXPECT_EQ(field.Text(), GetParam().shown) << GetParam().what;
        EXPECT_EQ(page.PercentOfSpanLimit(), ofSpan ? GetParam().limit : 3) << GetParam().what;
        EXPECT_EQ(page.AbsoluteLimit(), ofSpan ? 5 : GetParam().limit) << GetParam().what;
    }
}

INSTANTIATE_TEST_SUITE_P(Texts, SetUpLimitField, ::testing::ValuesIn(kLimitTexts));

TEST(SetUpFields, ALimitThatIsTypedButNotLeftDoesNotCountYet)
{
    SetUpRig rig;
    rig.page.optOtherSpan.Press();
    rig.page.txtOtherSpanValue.Type("4");
    EXPECT_EQ(rig.page.PercentOfSpanLimit(), 3);
}

TEST(SetUpFields, LimitsAreReadAndShownWithTheRegionsMark)
{
    SetUpRig rig(siteOf({}), "de-DE");
    auto& page = rig.page;
    page.optOtherSpan.Press();
    SetUpRig::enter(page.txtOtherSpanValue, "2,5");
    EXPECT_EQ(page.PercentOfSpanLimit(), 2.5F);
    SetUpRig::enter(page.txtOtherSpanValue, "x");
    EXPECT_EQ(page.txtOtherSpanValue.Text(), "2,5");
}

struct TypedDate {
    const char* what = nullptr;
    const char* typed = nullptr;
    DateParts date;
    const char* shown = nullptr;
};

// On 10 March 2024, in the region en-US; the field holds 2/10/2024 before.
const TypedDate kDates[] = {
    {"a date", "3/1/2024", {2024, 3, 1}, "3/1/2024"},
    {"a date and a time", "3/1/2024 3:05 PM", {2024, 3, 1}, "3/1/2024"},
    {"the last second of a day", "3/1/2024 23:59:59", {2024, 3, 1}, "3/1/2024"},
    {"no year", "3/1", {2024, 3, 1}, "3/1/2024"},
    {"a time alone", "3:05 PM", {1899, 12, 30}, "12/30/1899"},
    {"29 February of another year", "2/29/2023", {2024, 2, 10}, "2/10/2024"},
    {"text", "yesterday", {2024, 2, 10}, "2/10/2024"},
    {"nothing", "", {2024, 2, 10}, "2/10/2024"},
};

TEST(SetUpFields, ADateIsTakenWithoutItsTimeAndRewrittenOrComesBack)
{
    for (const TypedDate& row : kDates) {
        SetUpRig rig;
        auto& page = rig.page;
        SetUpRig::enter(page.txtToDate, "12/31/2099");
        SetUpRig::enter(page.txtFromDate, row.typed);
        EXPECT_EQ(page.txtFromDate.Text(), row.shown) << row.what;
        EXPECT_EQ(dateParts(page.StartDate()), row.date) << row.what;
        EXPECT_EQ(page.StartDate(), dateOnly(page.StartDate())) << row.what;
    }
}

TEST(SetUpFields, TheToDateGoesByTheSameRules)
{
    SetUpRig rig;
    auto& page = rig.page;
    SetUpRig::enter(page.txtToDate, "3/12/2024 08:15");
    EXPECT_EQ(page.txtToDate.Text(), "3/12/2024");
    EXPECT_EQ(page.EndDate(), makeDate(2024, 3, 12));
    SetUpRig::enter(page.txtToDate, "soon");
    EXPECT_EQ(page.txtToDate.Text(), "3/12/2024");
    EXPECT_EQ(page.StartDate(), makeDate(2024, 2, 10)) << "the from date stays";
}

TEST(SetUpFields, AFromDateAfterTheToDateGivesTheSameInterval)
{
    SetUpRig rig;
    auto& page = rig.page;
    SetUpRig::enter(page.txtFromDate, "3/10/2024");
    SetUpRig::enter(page.txtToDate, "2/10/2024");
    EXPECT_EQ(page.StartDate(), makeDate(2024, 2, 10));
    EXPECT_EQ(page.EndDate(), makeDate(2024, 3, 10));
}

TEST(SetUpFields, ADateOfAnotherRegionIsReadInItsOrder)
{
    SetUpRig rig(siteOf({}), "de-DE");
    SetUpRig::enter(rig.page.txtFromDate, "1.3.2024");
    EXPECT_EQ(rig.page.StartDate(), makeDate(2024, 3, 1));
    EXPECT_EQ(rig.page.txtFromDate.Text(), "01.03.2024");
}

TEST(SetUpCalendar, IsShownAtTheDateAndItsAnswerTaken)
{
    SetUpRig rig;
    rig.services.dateAnswer = makeDate(2024, 1, 5);
    EXPECT_EQ(rig.changesBy([&] { rig.page.cmdFromDate.Press(); }),
              Lines{"txtFromDate.Text: \"2/10/2024\" -> \"1/5/2024\""});
    EXPECT_EQ(rig.page.StartDate(), makeDate(2024, 1, 5));
    rig.services.dateAnswer = makeDate(2024, 4, 6);
    EXPECT_EQ(rig.changesBy([&] { rig.page.cmdToDate.Press(); }),
              Lines{"txtToDate.Text: \"3/10/2024\" -> \"4/6/2024\""});
    EXPECT_EQ(rig.page.EndDate(), makeDate(2024, 4, 6));
    EXPECT_EQ(rig.services.dateRequests,
              (std::vector<std::pair<std::string, Date>>{{"7-Day Drift", makeDate(2024, 2, 10)},
                                                         {"7-Day Drift", makeDate(2024, 3, 10)}}));
}

TEST(SetUpCalendar, WithoutAnAnswerTheDateStays)
{
    SetUpRig rig;
    EXPECT_EQ(rig.changesBy([&] {
        rig.page.cmdFromDate.Press();
        rig.page.cmdToDate.Press();
    }),
              Lines());
    EXPECT_EQ(rig.page.StartDate(), makeDate(2024, 2, 10));
    EXPECT_EQ(rig.page.EndDate(), makeDate(2024, 3, 10));
}

TEST(SetUpCalendar, AFailingCalendarReachesTheHost)
{
    SetUpRig rig;
    rig.setup();
    rig.services.dateError = Error(errors::kAutomation);
    EXPECT_EQ(errorOf([&] { return rig.page.cmdFromDate.Press(), 0; }), 440);
    EXPECT_EQ(rig.messages->lines(), Lines());
    EXPECT_EQ(rig.page.StartDate(), makeDate(2024, 2, 10));
}

} // namespace k7deval::test
