#include "foundation/OrderedMap.h"

#include "foundation/ExpectError.h"

#include <gtest/gtest.h>

#include <string>

namespace k7deval
{

namespace
{

OrderedMap<std::string, int> threeDays()
{
    OrderedMap<std::string, int> map;
    map.Add("2024/03/12", 1);
    map.Add("2024/03/10", 2);
    map.Add("2024/03/11", 3);
    return map;
}

} // namespace

TEST(OrderedMap, KeysComeInTheOrderOfInsertion)
{
    EXPECT_EQ(threeDays().Keys(),
              (std::vector<std::string>{"2024/03/12", "2024/03/10", "2024/03/11"}));
}

TEST(OrderedMap, EntriesComeInTheOrderOfInsertion)
{
    const auto map = threeDays();
    std::vector<int> values;
    for (const auto& entry : map)
        values.push_back(entry.second);
    EXPECT_EQ(values, (std::vector<int>{1, 2, 3}));
}

TEST(OrderedMap, AnItemIsFoundByItsKeyAndMayBeChanged)
{
    auto map = threeDays();
    map.Item("2024/03/10") = 20;
    EXPECT_EQ(map.Item("2024/03/10"), 20);
    EXPECT_EQ(map.Count(), 3U);
}

TEST(OrderedMap, AKeyAddedTwiceIsRefusedAndTheFirstValueStays)
{
    auto map = threeDays();
    EXPECT_EQ(errorOf([&] { return map.Add("2024/03/10", 9), 0; }), errors::kDuplicateKey);
    EXPECT_EQ(map.Item("2024/03/10"), 2);
    EXPECT_EQ(map.Count(), 3U);
}

TEST(OrderedMap, AKeyThatIsNotThereIsAnError)
{
    const auto map = threeDays();
    EXPECT_FALSE(map.Exists("2024/03/13"));
    EXPECT_EQ(errorOf([&] { return map.Item("2024/03/13"); }), errors::kInvalidCall);
}

TEST(OrderedMap, ANewMapIsEmpty)
{
    const OrderedMap<int, int> map;
    EXPECT_TRUE(map.isEmpty());
    EXPECT_EQ(map.begin(), map.end());
}

} // namespace k7deval
