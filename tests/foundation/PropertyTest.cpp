#include "foundation/PropertyOf.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace k7deval::test
{

namespace
{

enum Weather : std::int32_t { Sunny = 3 };

constexpr std::string_view typeName(Weather /*weather*/)
{
    return "Weather";
}

struct Walk {
    static constexpr std::string_view kTypeName = "Walk";
    float miles = 0;
    [[nodiscard]] PropertyList Properties() const { return {{"miles", {miles}}}; }
};

using Walks = OrderedMap<std::int32_t, std::shared_ptr<Walk>>;
using Kind = PropertyType::Kind;

template <class T> bool holdsNothing(const T& field)
{
    return std::holds_alternative<std::monostate>(PropertyOf<T>::value(field).value);
}

TEST(Property, BearsNameValueMeaningAndType)
{
    const Property walked = property("walked", std::int32_t{7}, "Days with a walk.");
    EXPECT_EQ(walked.name, "walked");
    EXPECT_EQ(walked.meaning, "Days with a walk.");
    EXPECT_EQ(std::get<std::int32_t>(walked.content.value), 7);
    EXPECT_EQ(walked.type().kind, Kind::Integer);
    EXPECT_FALSE(walked.type().mayBeAbsent);
}

TEST(Property, NamesTheEnumerationOfAChoice)
{
    const Property weather = property("weather", Sunny, "");
    EXPECT_EQ(std::get<PropertyChoice>(weather.content.value).number, 3);
    EXPECT_EQ(std::get<PropertyChoice>(weather.content.value).type, "Weather");
    EXPECT_EQ(weather.type().kind, Kind::Choice);
    EXPECT_EQ(weather.type().name, "Weather");
}

TEST(Property, IsNothingForWhatIsAbsent)
{
    EXPECT_TRUE(holdsNothing(Array<std::int32_t>()));
    EXPECT_TRUE(holdsNothing(std::shared_ptr<Walk>()));
    EXPECT_TRUE(holdsNothing(std::shared_ptr<Walks>()));
    EXPECT_FALSE(holdsNothing(Array<std::int32_t>(std::vector<std::int32_t>{})));
    EXPECT_TRUE(PropertyOf<Array<std::int32_t>>::type().mayBeAbsent);
    EXPECT_TRUE(PropertyOf<std::shared_ptr<Walks>>::type().mayBeAbsent);
    EXPECT_FALSE(PropertyOf<Walks>::type().mayBeAbsent);
}

TEST(Property, IsNothingForWhatCannotBeWorkedOut)
{
    const PropertyValue failed = workedOut([]() -> float { throw Error(errors::kOverflow); });
    EXPECT_TRUE(std::holds_alternative<std::monostate>(failed.value));
    EXPECT_EQ(std::get<float>(workedOut([] { return 2.5F; }).value), 2.5F);
}

TEST(Property, KeepsTheOrderOfAMapAndSharesItsRecords)
{
    const auto walk = std::make_shared<Walk>();
    Walks walks;
    walks.Add(9, walk);
    walks.Add(2, std::make_shared<Walk>());
    const PropertyValue listed = PropertyOf<Walks>::value(walks);
    walk->miles = 4;

    const auto& entries = std::get<PropertyMap>(listed.value);
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(std::get<std::int32_t>(entries[0].key), 9);
    EXPECT_EQ(std::get<std::int32_t>(entries[1].key), 2);
    const auto& record = std::get<PropertyRecord>(entries[0].item.value);
    EXPECT_EQ(std::any_cast<std::shared_ptr<Walk>>(record.handle), walk);
    EXPECT_EQ(std::get<float>(record.describe().at(0).content.value), 4);
}

TEST(Property, TellsTheTypesOfKeysAndItems)
{
    const PropertyType type = PropertyOf<OrderedMap<std::string, Walks>>::type();
    EXPECT_EQ(type.kind, Kind::Map);
    ASSERT_EQ(type.parts.size(), 2U);
    EXPECT_EQ(type.parts[0].kind, Kind::Text);
    ASSERT_EQ(type.parts[1].parts.size(), 2U);
    EXPECT_EQ(type.parts[1].parts[1].name, "Walk");
    EXPECT_FALSE(type.parts[1].parts[1].mayBeAbsent) << "no record of a map is absent";
}

} // namespace

} // namespace k7deval::test
