#include "foundation/Variant.h"

#include "foundation/ExpectError.h"
#include "foundation/RegionalSettings.h"

#include <gtest/gtest.h>

#include <cmath>

namespace k7deval
{

namespace
{

const RegionalSettings kRegion;
const RegionalSettings kGerman = regionalSettings("de-DE");
const std::string kText = "1.5";

} // namespace

TEST(Variant, NumbersBooleansAndEmptyAreNumeric)
{
    for (const Variant& value : {Variant(Empty{}), Variant(true), Variant(std::uint8_t{1}),
                                 Variant(std::int16_t{1}), Variant(std::int32_t{1}), Variant(1.5F),
                                 Variant(1.5), Variant(Currency{15000}), Variant(kText)})
        EXPECT_TRUE(IsNumeric(value, kRegion)) << value.index();
}

TEST(Variant, NullDatesAndOtherTextsAreNotNumeric)
{
    for (const Variant& value : {Variant(Null{}), Variant(Date{45361}), Variant(std::string()),
                                 Variant(std::string("abc")), Variant(std::string("True"))})
        EXPECT_FALSE(IsNumeric(value, kRegion)) << value.index();
}

TEST(Variant, ATextIsReadUnderTheRegion)
{
    EXPECT_EQ(doubleIn(kText, kRegion), 1.5);
    EXPECT_EQ(doubleIn(kText, kGerman), 15);
    EXPECT_FALSE(IsNumeric(Variant(std::string("1,2,3")), kGerman));
}

TEST(Variant, EveryTypeHasItsNumber)
{
    EXPECT_EQ(doubleIn(Empty{}, kRegion), 0);
    EXPECT_EQ(doubleIn(true, kRegion), -1);
    EXPECT_EQ(doubleIn(false, kRegion), 0);
    EXPECT_EQ(doubleIn(std::uint8_t{200}, kRegion), 200);
    EXPECT_EQ(doubleIn(std::int16_t{-5}, kRegion), -5);
    EXPECT_EQ(doubleIn(0.1F, kRegion), static_cast<double>(0.1F));
    EXPECT_EQ(doubleIn(Currency{-12345}, kRegion), -1.2345);
    EXPECT_EQ(doubleIn(Date{45361.5}, kRegion), 45361.5);
}

TEST(Variant, NullHasNoValueToUse)
{
    EXPECT_EQ(errorOf([] { return singleIn(Null{}, kRegion); }), errors::kInvalidUseOfNull);
    EXPECT_EQ(errorOf([] { return doubleIn(Null{}, kRegion); }), errors::kInvalidUseOfNull);
    EXPECT_EQ(errorOf([] { return integerIn(Null{}, kRegion); }), errors::kInvalidUseOfNull);
    EXPECT_EQ(errorOf([] { return booleanIn(Null{}, kRegion); }), errors::kInvalidUseOfNull);
    EXPECT_EQ(errorOf([] { return toText(Null{}, kRegion); }), errors::kInvalidUseOfNull);
}

TEST(Variant, ATextThatIsNoNumberDoesNotFit)
{
    const Variant text(std::string("abc"));
    EXPECT_EQ(errorOf([&] { return singleIn(text, kRegion); }), errors::kTypeMismatch);
    EXPECT_EQ(errorOf([&] { return integerIn(text, kRegion); }), errors::kTypeMismatch);
    EXPECT_EQ(errorOf([&] { return booleanIn(text, kRegion); }), errors::kTypeMismatch);
}

TEST(Variant, ANumberOutsideTheTypeOverflows)
{
    EXPECT_EQ(errorOf([] { return singleIn(1e39, kRegion); }), errors::kOverflow);
    EXPECT_EQ(errorOf([] { return integerIn(3e9, kRegion); }), errors::kOverflow);
    EXPECT_EQ(errorOf([] { return integerIn(3e9F, kRegion); }), errors::kOverflow);
}

TEST(Variant, ASingleComesBackAsItIs)
{
    EXPECT_EQ(singleIn(0.1F, kRegion), 0.1F);
    EXPECT_EQ(singleIn(0.1, kRegion), 0.1F);
    EXPECT_EQ(singleIn(std::string("0.1"), kRegion), 0.1F);
}

TEST(Variant, AnIntegerIsTheNearestHalvesToEven)
{
    EXPECT_EQ(integerIn(2.5, kRegion), 2);
    EXPECT_EQ(integerIn(3.5F, kRegion), 4);
    EXPECT_EQ(integerIn(true, kRegion), -1);
    EXPECT_EQ(integerIn(std::int32_t{-2147483647}, kRegion), -2147483647);
}

TEST(Variant, AnythingButZeroIsTrue)
{
    EXPECT_TRUE(booleanIn(true, kRegion));
    EXPECT_TRUE(booleanIn(std::int32_t{5}, kRegion));
    EXPECT_TRUE(booleanIn(-0.5, kRegion));
    EXPECT_TRUE(booleanIn(std::string("True"), kRegion));
    EXPECT_TRUE(booleanIn(std::string("1"), kRegion));
    EXPECT_FALSE(booleanIn(std::string("FALSE"), kRegion));
    EXPECT_FALSE(booleanIn(std::string("0"), kRegion));
    EXPECT_FALSE(booleanIn(Empty{}, kRegion));
    EXPECT_FALSE(booleanIn(0.0F, kRegion));
}

TEST(Variant, TextIsTheGeneralForm)
{
    EXPECT_EQ(toText(Empty{}, kRegion), "");
    EXPECT_EQ(toText(true, kRegion), "True");
    EXPECT_EQ(toText(false, kRegion), "False");
    EXPECT_EQ(toText(std::uint8_t{7}, kRegion), "7");
    EXPECT_EQ(toText(std::int32_t{-1234567}, kRegion), "-1234567");
    EXPECT_EQ(toText(12.5F, kGerman), "12,5");
    EXPECT_EQ(toText(1e15, kRegion), "1E+15");
    EXPECT_EQ(toText(kText, kGerman), "1.5");
    EXPECT_EQ(toText(makeDate(2024, 3, 10, 15, 5, 9), kRegion), "3/10/2024 3:05:09 PM");
}

TEST(Variant, AnAmountHasAtMostFourPlaces)
{
    EXPECT_EQ(toText(Currency{12345}, kRegion), "1.2345");
    EXPECT_EQ(toText(Currency{-12500}, kGerman), "-1,25");
    EXPECT_EQ(toText(Currency{-5}, kRegion), "-0.0005");
    EXPECT_EQ(toText(Currency{50000}, kRegion), "5");
    EXPECT_EQ(toText(Currency{0}, kRegion), "0");
    EXPECT_EQ(toText(Currency{-50000}, kRegion), "-5");
}

} // namespace k7deval
