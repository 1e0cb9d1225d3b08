#include "latebound/Parameters.h"

#include "foundation/ExpectError.h"
#include "latebound/FakeObject.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace k7deval::latebound
{
namespace
{

using testing::ElementsAre;

Variant number(std::int32_t value)
{
    return value;
}

TEST(LateParameter, IsReadByTheNamesOfTheDataInterface)
{
    const FakeHandle object = fake({
        {"PID", number(100100000)},
        {"Name", Variant(std::string("Load"))},
        {"ParamType", number(8)},
        {"UnitsText", Variant(std::string("MW"))},
    });
    Parameter parameter(wrapped(object));

    EXPECT_EQ(parameter.PID(), 100100000);
    EXPECT_EQ(parameter.Name(0), "Load");
    EXPECT_EQ(parameter.ParamType(), 8);
    EXPECT_EQ(parameter.UnitsText(), "MW");
    EXPECT_THAT(object->calls, ElementsAre("PID", "Name(0)", "ParamType", "UnitsText"));
}

TEST(LateParameter, HasTheIntervalOfItsObject)
{
    const FakeHandle interval = fake({{"Multiple", number(15)}, {"Unit", number(2)}});
    Parameter parameter(wrapped(fake({{"Interval", interval}})));

    EXPECT_EQ(parameter.Interval(), (DIInterval{15, 2}));
}

TEST(LateParameter, WithoutAnIntervalIsAnAbsentObject)
{
    Parameter parameter(wrapped(fake({{"Interval", ObjectHandle()}})));

    EXPECT_EQ(errorOf([&] { return parameter.Interval(); }), errors::kObjectNotSet);
}

TEST(LateParameter, HandsItsDataSetToTheHost)
{
    const FakeHandle object = fake({{"ReadData", Variant()}});
    object->fill = [](DIDataSet& set) { set.ItemByIndex(2).SetValue(7); };
    DIDataSet set;
    set.Init({}, 2, "h", 1, 0);

    Parameter(wrapped(object)).ReadData(set);

    EXPECT_EQ(set.ItemByIndex(2).Value(), Variant(7.0));
    EXPECT_THAT(object->calls, ElementsAre("ReadData(set)"));
}

TEST(LateParameter, GivesAttributesAsTheyAre)
{
    const FakeHandle object =
        fake({{"GetAttribute", Variant(Null{})}, {"GetLinkedPID", number(123)}});
    Parameter parameter(wrapped(object));

    EXPECT_EQ(parameter.GetAttribute(-25), Variant(Null{}));
    EXPECT_EQ(parameter.GetLinkedPID(-60), number(123));
    EXPECT_THAT(object->calls, ElementsAre("GetAttribute(-25)", "GetLinkedPID(-60)"));
}

struct PointCase {
    const char* what;
    Variant held;
    Variant read;
};

class LateConstant : public testing::TestWithParam<PointCase>
{
};

TEST_P(LateConstant, IsANumberOrNoValue)
{
    const FakeHandle point = fake({{"Value", GetParam().held}, {"Status", number(4)}});
    Parameter parameter(wrapped(fake({{"CurrentPoint", point}})));

    DIDataSet set = parameter.CurrentPoint(0, 0, 0);

    EXPECT_EQ(set.ItemByIndex(1).Value(), GetParam().read);
    EXPECT_EQ(set.ItemByIndex(1).Status(), 4);
}

INSTANTIATE_TEST_SUITE_P(Values, LateConstant,
                         testing::Values(PointCase{"a double", 12.5, 12.5},
                                         PointCase{"an integer", number(3), 3.0},
                                         PointCase{"a numeric text", std::string("7.5"), 7.5},
                                         PointCase{"Null", Null{}, Null{}},
                                         PointCase{"a word", std::string("off"), Null{}}),
                         [](const auto& test) { return "Case" + std::to_string(test.index); });

TEST(LateParameters, LookParametersUpByPID)
{
    const FakeHandle load = fake({{"PID", number(5)}});
    const FakeHandle object = fake({{"Exists", Variant(true)}, {"Item", load}});
    Parameters parameters(wrapped(object));

    EXPECT_TRUE(parameters.Exists(5));
    EXPECT_EQ(parameters.Item(5, -1)->PID(), 5);
    EXPECT_THAT(object->calls, ElementsAre("Exists(5)", "Item(5, -1)"));
}

TEST(LateParameters, PassOnThatThereIsNoItem)
{
    Parameters parameters(wrapped(fake({{"Item", ObjectHandle()}})));

    EXPECT_EQ(parameters.Item(5, -1), nullptr);
}

TEST(LateParameter, WithoutAMemberIsTheErrorOfAMissingMember)
{
    Parameter parameter(wrapped(fake({})));

    EXPECT_EQ(errorOf([&] { return parameter.PID(); }), errors::kUnknownMember);
}

TEST(LateParameter, NeedsNumbersAndTextsWhereTheInterfaceSaysSo)
{
    Parameter parameter(wrapped(fake({
        {"PID", Variant(Null{})},
        {"ParamType", Variant(std::string("unit"))},
        {"Name", Variant(Null{})},
    })));

    EXPECT_EQ(errorOf([&] { return parameter.PID(); }), errors::kInvalidUseOfNull);
    EXPECT_EQ(errorOf([&] { return parameter.ParamType(); }), errors::kTypeMismatch);
    EXPECT_EQ(errorOf([&] { return parameter.Name(0); }), errors::kInvalidUseOfNull);
}

} // namespace
} // namespace k7deval::latebound
