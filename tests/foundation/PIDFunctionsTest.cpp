#include "foundation/PIDFunctions.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <limits>

namespace k7deval
{

namespace
{

const Variant kOffLimits[] = {
    // The digits 6 and 9 mark no variant, at either end of the range.
    std::int32_t{99999}, std::int32_t{2000000000}, std::int32_t{1999999999},
    std::int32_t{1234567890}, std::int32_t{100060000}, std::int32_t{100090000}, std::int32_t{0},
    std::int32_t{-500100000}, std::int16_t{32767},
    // Types that hold no PID.
    true, Currency{5001000000000}, Date{500100000}, Empty{}, Null{}, std::uint8_t{255},
    // Numbers beyond 32 bits, and none at all.
    3e9, -3e9, std::numeric_limits<double>::infinity(), std::nan(""), 1e30F, 99999.4,
    // Texts with a field missing or none that reads.
    std::string("12-34"), std::string(""), std::string("no PID"), std::string("12-345-6-78-90")};

const Variant kInUse[] = {std::int32_t{100000},
                          std::int32_t{1999989999},
                          std::int32_t{500100000},
                          100000.0,
                          99999.6,
                          500100000.25,
                          100000.0F,
                          std::string("5-001-0-00-00"),
                          std::string("12-345-7-78-90")};

struct PIDTextCase {
    const char* text;
    PID pid; ///< 0 for none.
};

constexpr PIDTextCase kTexts[] = {
    // Whatever separates the fields.
    {"5-001-0-75-01", 500107501},
    {"500107501", 500107501},
    {"5 / 001 . 0 _ 75 : 01 ;", 500107501},
    {"5·001·0·75·01", 500107501},
    {"5-1-0-0-1", 500100001},
    {"Stack 5-001-0-75-01", 500107501},
    // A missing unit is unit zero, also behind a separator ahead of the parameter code.
    {"123-4-56-78", 12345678},
    {"-12-4-56-78", 1245678},
    {"·12-4-56-78", 1245678},
    // Too few fields.
    {"", 0},
    {"-", 0},
    {"78", 0},
    {"4-56-78", 0},
    {"NOx-4-56-78", 0},
    // A unit that cannot be read, and one too large.
    {"U-123-4-56-78", 0},
    {"20-123-4-56-78", 0},
};

constexpr PIDTextCase kLabels[] = {
    {"[5-001-0-75-01] Stack NOx [ppm]", 500107501},
    {"  [  5-001-0-75-01  ]  ", 500107501},
    // An at sign opens the bracket.
    {"[@5-001-0-75-01]", 0},
    {"[ @5-001-0-75-01]", 0},
    // A bracket is missing, or does not come first, or holds nothing.
    {"[5-001-0-75-01", 0},
    {"5-001-0-75-01]", 0},
    {"NOx [5-001-0-75-01]", 0},
    {"[]", 0},
    {"", 0},
};

struct FieldCase {
    const char* what;
    const char* text;
    int mostDigits;
    std::int32_t field; ///< -1 for none.
    const char* rest;
};

constexpr FieldCase kFields[] = {
    {"the most digits, and the separator is left", "123-4-56-78", 2, 78, "123-4-56-"},
    {"a separator ahead of the field is skipped", "123-4-56-", 2, 56, "123-4-"},
    {"the separator behind a shorter field is consumed", "123-4", 2, 4, "123"},
    {"it ends with the text", "07", 3, 7, ""},
    {"no digit", "abc", 2, -1, ""},
    {"no text", "", 2, -1, ""},
    {"the largest of its type", "2147483647", 20, 2147483647, ""},
    {"one too large for its type", "2147483648", 20, -1, ""},
    {"far too large for its type", "10000000000000000000000000", 30, -1, ""},
    {"many digits of a small one", "00000000000000000000000012", 30, 12, ""},
};

constexpr int kDigitsInUse[] = {0, 1, 2, 3, 4, 5, 7, 8};

} // namespace

TEST(PIDPart, ReadsEachFieldUnderItsOddNumber)
{
    EXPECT_EQ(PIDPart(1234567890, 1), 12);
    EXPECT_EQ(PIDPart(1234567890, 2), 345);
    EXPECT_EQ(PIDPart(1234567890, 5), 6);
    EXPECT_EQ(PIDPart(1234567890, 4), 78);
    EXPECT_EQ(PIDPart(1234567890, 3), 90);
}

TEST(PIDPart, MinusFiveReadsAVariantDigitOfSevenAsEight)
{
    EXPECT_EQ(PIDPart(500170000, -5), 8);
    EXPECT_EQ(PIDPart(500170000, 5), 7);
    EXPECT_EQ(PIDPart(500180000, -5), 8);
    EXPECT_EQ(PIDPart(500130000, -5), 3);
}

TEST(PIDPart, AnyOtherNumberNamesNoField)
{
    for (const int part : {-6, -4, -3, -2, -1, 0, 6, 100})
        EXPECT_EQ(PIDPart(1234567890, part), 0) << part;
}

TEST(IsValidPID, RefusesWhatIsNoPIDInUse)
{
    for (const Variant& value : kOffLimits)
        EXPECT_FALSE(IsValidPID(value)) << "alternative " << value.index();
}

TEST(IsValidPID, AcceptsNumbersAndTextsOfAPIDInUse)
{
    for (const Variant& value : kInUse)
        EXPECT_TRUE(IsValidPID(value)) << "alternative " << value.index();
}

TEST(MakePID, PutsTheFieldsInTheirPlaces)
{
    EXPECT_EQ(MakePID(12, 345, 7, 78, 90), 1234577890);
    EXPECT_EQ(MakePID(19, 999, 8, 99, 99), 1999989999);
    EXPECT_EQ(MakePID(0, 1, 0, 0, 0), 100000);
}

TEST(MakePID, AFieldOutOfItsRangeGivesNoPID)
{
    EXPECT_EQ(MakePID(20, 1, 0, 0, 0), 0);
    EXPECT_EQ(MakePID(-1, 1, 0, 0, 0), 0);
    EXPECT_EQ(MakePID(5, 1000, 0, 0, 0), 0);
    EXPECT_EQ(MakePID(5, -1, 0, 0, 0), 0);
    EXPECT_EQ(MakePID(5, 1, 10, 0, 0), 0);
    EXPECT_EQ(MakePID(5, 1, -1, 0, 0), 0);
    EXPECT_EQ(MakePID(5, 1, 0, 100, 0), 0);
    EXPECT_EQ(MakePID(5, 1, 0, -1, 0), 0);
    EXPECT_EQ(MakePID(5, 1, 0, 0, 100), 0);
    EXPECT_EQ(MakePID(5, 1, 0, 0, -1), 0);
}

TEST(MakePID, ASumThatIsNoValidPIDGivesNoPID)
{
    EXPECT_EQ(MakePID(0, 0, 1, 75, 1), 0);
    EXPECT_EQ(MakePID(5, 1, 6, 0, 0), 0);
    EXPECT_EQ(MakePID(5, 1, 9, 0, 0), 0);
}

TEST(PIDToText, SeparatesTheFieldsByDashes)
{
    EXPECT_EQ(PIDToText(1234577890), "12-345-7-78-90");
    EXPECT_EQ(PIDToText(500107501), "5-001-0-75-01");
}

TEST(PIDToText, AUnitZeroPIDReadsWithALeadingZero)
{
    EXPECT_EQ(PIDToText(100000), "0-001-0-00-00");
}

TEST(PIDToText, APIDThatIsNotValidHasNoText)
{
    EXPECT_EQ(PIDToText(99999), "");
    EXPECT_EQ(PIDToText(1234567890), "");
    EXPECT_EQ(PIDToText(0), "");
    EXPECT_EQ(PIDToText(-500100000), "");
}

TEST(TextToPID, ReadsTheFieldsFromTheRight)
{
    for (const PIDTextCase& row : kTexts)
        EXPECT_EQ(TextToPID(row.text, false), row.pid) << row.text;
}

TEST(TextToPID, ReadsTheBracketsThatOpenALabel)
{
    for (const PIDTextCase& row : kLabels)
        EXPECT_EQ(TextToPID(row.text, true), row.pid) << row.text;
}

TEST(TakeFieldFromRight, TakesTheDigitsAndWhatEndsThem)
{
    for (const FieldCase& row : kFields) {
        const auto taken = TakeFieldFromRight(row.text, row.mostDigits);
        EXPECT_EQ(taken.field, row.field) << row.what;
        EXPECT_EQ(taken.rest, row.rest) << row.what;
    }
}

TEST(UnitPID, IsTheSameFromTheUnitAndFromAnyPIDOfIt)
{
    EXPECT_EQ(UnitPID(5), 500100000);
    EXPECT_EQ(UnitPID(500100000), 500100000);
    EXPECT_EQ(UnitPID(534567890), 500100000);
    EXPECT_EQ(UnitPID(0), 100000);
    EXPECT_EQ(UnitPID(19), 1900100000);
}

TEST(UnitPID, AValueAboveNineteenIsTakenForAPID)
{
    EXPECT_EQ(UnitPID(20), 100000);
    EXPECT_EQ(UnitPID(-1), 0);
}

TEST(IsPercentGasPID, GoesByTheParameterCode)
{
    for (const int code : {220, 230, 233, 240, 241, 243, 245})
        EXPECT_TRUE(IsPercentGasPID(MakePID(5, code, 0, 75, 1))) << code;
    for (const int code : {100, 140, 219, 221, 231, 232, 234, 242, 244, 246})
        EXPECT_FALSE(IsPercentGasPID(MakePID(5, code, 0, 75, 1))) << code;
}

RC_GTEST_PROP(PIDProperties, EveryPIDInUseReadsBackFromItsTextAndItsFields, ())
{
    const auto unit = *rc::gen::inRange(0, 20);
    const auto code = *rc::gen::inRange(1, 1000);
    const auto digit =
        *rc::gen::elementOf(std::vector<int>(std::begin(kDigitsInUse), std::end(kDigitsInUse)));
    const auto program = *rc::gen::inRange(0, 100);
    const auto suffix = *rc::gen::inRange(0, 100);
    const PID pid = MakePID(unit, code, digit, program, suffix);
    RC_ASSERT(IsValidPID(pid));
    RC_ASSERT(TextToPID(PIDToText(pid), false) == pid);
    RC_ASSERT(TextToPID("[" + PIDToText(pid) + "] NOx", true) == pid);
    RC_ASSERT(MakePID(PIDPart(pid, 1), PIDPart(pid, 2), PIDPart(pid, 5), PIDPart(pid, 4),
                      PIDPart(pid, 3)) == pid);
}

} // namespace k7deval
