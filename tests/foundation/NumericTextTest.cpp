#include "foundation/NumberText.h"

#include "foundation/ExpectError.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <ostream>

namespace k7deval
{

namespace
{

struct NumericCase {
    const char* region;
    const char* text;
    double value;
};

void PrintTo(const NumericCase& row, std::ostream* out)
{
    *out << row.region << " \"" << row.text << '"';
}

struct NotNumericCase {
    const char* region;
    const char* text;
};

void PrintTo(const NotNumericCase& row, std::ostream* out)
{
    *out << row.region << " \"" << row.text << '"';
}

class NumericTexts : public testing::TestWithParam<NumericCase>
{
};

class TextsThatAreNotNumeric : public testing::TestWithParam<NotNumericCase>
{
};

const NumericCase kNumeric[] = {
    {"en-US", "12.5", 12.5},
    {"en-US", "  12.5\t", 12.5},
    {"en-US", "5.", 5},
    {"en-US", ".5", 0.5},
    {"en-US", "007", 7},
    // One sign, or a pair of parentheses.
    {"en-US", "+5", 5},
    {"en-US", "-5", -5},
    {"en-US", "5-", -5},
    {"en-US", "5+", 5},
    {"en-US", "(5)", -5},
    {"en-US", "-0", 0},
    // The currency mark at either end, inside or outside of the sign.
    {"en-US", "$5", 5},
    {"en-US", "5$", 5},
    {"en-US", "-$5", -5},
    {"en-US", "$-5", -5},
    {"en-US", "$5-", -5},
    {"en-US", "($5)", -5},
    {"en-US", "$(5)", -5},
    {"en-GB", "£5.25", 5.25},
    {"de-DE", "5,25€", 5.25},
    {"fr-FR", "€5,25", 5.25},
    // Group marks anywhere ahead of the decimal mark.
    {"en-US", "1,234.5", 1234.5},
    {"en-US", "1,2,3", 123},
    {"en-US", ",12", 12},
    {"en-US", "12,", 12},
    {"en-US", "12,.5", 12.5},
    {"de-DE", "1.234,5", 1234.5},
    {"de-DE", "1.5", 15},
    {"fr-FR", "1\u00A0234,5", 1234.5},
    {"fr-FR", "1\u202F234,5", 1234.5},
    {"fr-FR", "1\u00A0234\u202F567", 1234567},
    // An exponent with E or D.
    {"en-US", "1E5", 1e5},
    {"en-US", "1e+5", 1e5},
    {"en-US", "1D5", 1e5},
    {"en-US", "1.5d-3", 1.5e-3},
    {"en-US", "-1E-2", -0.01},
    {"en-US", "1E5-", -1e5},
    {"en-US", "5.E1", 50},
    {"de-DE", "1,5E2", 150},
    // Too small for a double.
    {"en-US", "1E-400", 0},
    {"en-US", "-1E-400", 0},
    {"en-US", "0E99999999999999999999", 0},
    {"en-US", "1E-99999999999999999999", 0},
};

const NotNumericCase kNotNumeric[] = {
    {"en-US", ""},
    {"en-US", "   "},
    {"en-US", "."},
    {"en-US", "-"},
    {"en-US", "$"},
    {"en-US", "()"},
    {"en-US", ","},
    // Two signs, or one that is half.
    {"en-US", "--5"},
    {"en-US", "-5-"},
    {"en-US", "(-5)"},
    {"en-US", "-(5)"},
    {"en-US", "((5))"},
    {"en-US", "(5"},
    {"en-US", "5)"},
    {"en-US", "$5$"},
    // Blanks inside.
    {"en-US", "1 2"},
    {"en-US", "- 5"},
    {"en-US", "5 $"},
    {"en-US", "( 5 )"},
    {"en-US", "1 E5"},
    {"fr-FR", "1 234,5"},
    // Other number forms.
    {"en-US", "0x1F"},
    {"en-US", "&H1F"},
    {"en-US", "1F"},
    {"en-US", "inf"},
    {"en-US", "nan"},
    {"en-US", "INFINITY"},
    {"en-US", "1.2.3"},
    {"en-US", "1.2,3"},
    {"en-US", "1E"},
    {"en-US", "1E+"},
    {"en-US", "E5"},
    {"en-US", "1E5.5"},
    {"en-US", "1E1,0"},
    {"en-US", "1E5E5"},
    {"en-US", "1/2"},
    {"en-US", "50%"},
    {"en-US", "True"},
    {"en-US", "3/10/2024"},
    // The marks of another region.
    {"de-DE", "1,2,3"},
    {"fr-FR", "1.5"},
    {"en-US", "1\u00A0234"},
    {"en-US", "€5"},
    {"de-DE", "$5"},
    {"en-US", "٥"},
};

} // namespace

TEST_P(NumericTexts, AreReadAsTheRegionWritesThem)
{
    const NumericCase& row = GetParam();
    const RegionalSettings settings = regionalSettings(row.region);
    ASSERT_TRUE(IsNumeric(row.text, settings));
    EXPECT_EQ(toDouble(row.text, settings), row.value);
    EXPECT_FALSE(row.value == 0 && std::signbit(toDouble(row.text, settings)));
}

INSTANTIATE_TEST_SUITE_P(Forms, NumericTexts, testing::ValuesIn(kNumeric));

TEST_P(TextsThatAreNotNumeric, AreRefused)
{
    const NotNumericCase& row = GetParam();
    const RegionalSettings settings = regionalSettings(row.region);
    EXPECT_FALSE(IsNumeric(row.text, settings));
    EXPECT_EQ(errorOf([&] { return toDouble(row.text, settings); }), errors::kTypeMismatch);
}

INSTANTIATE_TEST_SUITE_P(Forms, TextsThatAreNotNumeric, testing::ValuesIn(kNotNumeric));

TEST(NumericText, ANumberTooLargeForADoubleIsNumericButOverflows)
{
    for (const char* text : {"1E309", "-1E309", "1E99999999999999999999", "0.001E312"}) {
        EXPECT_TRUE(IsNumeric(text, RegionalSettings())) << text;
        EXPECT_EQ(errorOf([&] { return toDouble(text, RegionalSettings()); }), errors::kOverflow)
            << text;
    }
}

TEST(NumericText, ManyDigitsAreReadToTheNearestDouble)
{
    EXPECT_EQ(
        toDouble("0.1000000000000000055511151231257827021181583404541015625", RegionalSettings()),
        0.1);
    EXPECT_EQ(toDouble(std::string(400, '0') + "1" + "." + std::string(400, '0') + "1",
                       RegionalSettings()),
              1);
    EXPECT_EQ(toDouble("0." + std::string(400, '0') + "1E401", RegionalSettings()), 1);
}

RC_GTEST_PROP(NumericTextProperties, AnyTextIsANumberOrRefusedButNeverAnythingElse, ())
{
    const auto region = *rc::gen::element<std::string>("en-US", "en-GB", "de-DE", "fr-FR");
    const RegionalSettings settings = regionalSettings(region);
    const auto text =
        *rc::gen::container<std::string>(rc::gen::elementOf(std::string("0123456789.,+-()$€ED ")));
    const int number = errorOf([&] { return toDouble(text, settings); });
    if (IsNumeric(text, settings))
        RC_ASSERT(number == 0 || number == errors::kOverflow);
    else
        RC_ASSERT(number == errors::kTypeMismatch);
}

} // namespace k7deval
