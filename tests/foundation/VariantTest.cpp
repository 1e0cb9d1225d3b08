#include "foundation/Variant.h"

#include "foundation/ExpectError.h"
#include "foundation/RegionalSettings.h"

#include <gtest/gtest.h>

#include <cmath>

namespace k7deval
{

namespace
{

const RegionalSettings kUs;
const RegionalSettings kGerman = regionalSettings("de-DE");
const std::string kText = "1.5";

} // namespace

TEST(Variant, NumbersBooleansAndEmptyAreNumeric)
{
    for (const Variant& value : {Variant(Empty{}), Variant(true), Variant(std::uint8_t{1}),
                                 Variant(std::int16_t{1}), Variant(std::int32_t{1}), Variant(1.5F),
                                 Variant(1.5), Variant(Currency{15000}), Variant(kText)})
        EXPECT_TRUE(IsNumeric(value, kUs)) << value.index();
}

TEST(Variant, NullDatesAndOtherTextsAreNotNumeric)
{
    for (const Variant& value : {Variant(Null{}), Variant(Date{45361}), Variant(std::string()),
                                 Variant(std::string("abc")), Variant(std::string("True"))})
        EXPECT_FALSE(IsNumeric(value, kUs)) << value.index();
}

TEST(Variant, ATextIsReadUnderTheRegion)
{
    EXPECT_EQ(doubleIn(kText, kUs), 1.5);
    EXPECT_EQ(doubleIn(kText, kGerman), 15);
    EXPECT_FALSE(IsNumeric(Variant(std::string("1,2,3")), kGerman));
}

TEST(Variant, EveryTypeHasItsNumber)
{
    EXPECT_EQ(doubleIn(Empty{}, kUs), 0);
    EXPECT_EQ(doubleIn(true, kUs), -1);
    EXPECT_EQ(doubleIn(false, kUs), 0);
    EXPECT_EQ(doubleIn(std::uint8_t{200}, kUs), 200);
    EXPECT_EQ(doubleIn(std::int16_t{-5}, kUs), -5);
    EXPECT_EQ(doubleIn(0.1F, kUs), static_cast<double>(0.1F));
    EXPECT_EQ(doubleIn(Currency{-12345}, kUs), -1.2345);
    EXPECT_EQ(doubleIn(Date{45361.5}, kUs), 45361.5);
}

TEST(Variant, NullHasNoValueToUse)
{
    EXPECT_EQ(errorOf([] { return singleIn(Null{}, kUs); }), errors::kInvalidUseOfNull);
    EXPECT_EQ(errorOf([] { return doubleIn(Null{}, kUs); }), errors::kInvalidUseOfNull);
    EXPECT_EQ(errorOf([] { return integerIn(Null{}, kUs); }), errors::kInvalidUseOfNull);
    EXPECT_EQ(errorOf([] { return booleanIn(Null{}, kUs); }), errors::kInvalidUseOfNull);
    EXPECT_EQ(errorOf([] { return toText(Null{}, kUs); }), errors::kInvalidUseOfNull);
}

TEST(Variant, ATextThatIsNoNumberDoesNotFit)
{
    const Variant text(std::string("abc"));
    EXPECT_EQ(errorOf([&] { return singleIn(text, kUs); }), errors::kTypeMismatch);
    EXPECT_EQ(errorOf([&] { return integerIn(text, kUs); }), errors::kTypeMismatch);
    EXPECT_EQ(errorOf([&] { return booleanIn(text, kUs); }), errors::kTypeMismatch);
}

TEST(Variant, ANumberOutsideTheTypeOverflows)
{
    EXPECT_EQ(errorOf([] { return singleIn(1e39, kUs); }), errors::kOverflow);
    EXPECT_EQ(errorOf([] { return integerIn(3e9, kUs); }), errors::kOverflow);
    EXPECT_EQ(errorOf([] { return integerIn(3e9F, kUs); }), errors::kOverflow);
}

TEST(Variant, ASingleComesBackAsItIs)
{
    EXPECT_EQ(singleIn(0.1F, kUs), 0.1F);
    EXPECT_EQ(singleIn(0.1, kUs), 0.1F);
    EXPECT_EQ(singleIn(std::string("0.1"), kUs), 0.1F);
}

TEST(Variant, AnIntegerIsTheNearestHalvesToEven)
{
    EXPECT_EQ(integerIn(2.5, kUs), 2);
    EXPECT_EQ(integerIn(3.5F, kUs), 4);
    EXPECT_EQ(integerIn(true, kUs), -1);
    EXPECT_EQ(integerIn(std::int32_t{-2147483647}, kUs), -2147483647);
}

TEST(Variant, AnythingButZeroIsTrue)
{
    EXPECT_TRUE(booleanIn(true, kUs));
    EXPECT_TRUE(booleanIn(std::int32_t{5}, kUs));
    EXPECT_TRUE(booleanIn(-0.5, kUs));
    EXPECT_TRUE(booleanIn(std::string("True"), kUs));
    EXPECT_TRUE(booleanIn(std::string("1"), kUs));
    EXPECT_FALSE(booleanIn(std::string("FALSE"), kUs));
    EXPECT_FALSE(booleanIn(std::string("0"), kUs));
    EXPECT_FALSE(booleanIn(Empty{}, kUs));
    EXPECT_FALSE(booleanIn(0.0F, kUs));
}

TEST(Variant, TextIsTheGeneralForm)
{
    EXPECT_EQ(toText(Empty{}, kUs), "");
    EXPECT_EQ(toText(true, kUs), "True");
    EXPECT_EQ(toText(false, kUs), "False");
    EXPECT_EQ(toText(std::uint8_t{7}, kUs), "7");
    EXPECT_EQ(toText(std::int32_t{-1234567}, kUs), "-1234567");
    EXPECT_EQ(toText(12.5F, kGerman), "12,5");
    EXPECT_EQ(toText(1e15, kUs), "1E+15");
    EXPECT_EQ(toText(kText, kGerman), "1.5");
    EXPECT_EQ(toText(makeDate(2024, 3, 10, 15, 5, 9), kUs), "3/10/2024 3:05:09 PM");
}

TEST(Variant, AnAmountHasAtMostFourPlaces)
{
    EXPECT_EQ(toText(Currency{12345}, kUs), "1.2345");
    EXPECT_EQ(toText(Currency{-12500}, kGerman), "-1,25");
    EXPECT_EQ(toText(Currency{-5}, kUs), "-0.0005");
    EXPECT_EQ(toText(Currency{50000}, kUs), "5");
    EXPECT_EQ(toText(Currency{0}, kUs), "0");
    EXPECT_EQ(toText(Currency{-50000}, kUs), "-5");
}

} // namespace k7deval
