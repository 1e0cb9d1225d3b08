#include "foundation/ArrayFunctions.h"

#include "foundation/ExpectError.h"

#include <gtest/gtest.h>

namespace k7deval
{

TEST(ArrayFunctions, AnArrayNeverSizedHasBothBoundsAtMinusOne)
{
    const Array<int> array;
    EXPECT_EQ(SafeUBound(array), -1);
    EXPECT_EQ(SafeLBound(array), -1);
}

TEST(ArrayFunctions, AnArrayOfOneElementHasBothBoundsAtZero)
{
    const Array<int> array({7});
    EXPECT_EQ(SafeUBound(array), 0);
    EXPECT_EQ(SafeLBound(array), 0);
}

TEST(ArrayFunctions, TheUpperBoundIsTheLastIndex)
{
    EXPECT_EQ(SafeUBound(Array<int>({1, 2, 3})), 2);
}

TEST(ArrayFunctions, AnIndexOutsideTheBoundsIsRefused)
{
    const Array<int> array({1, 2});
    EXPECT_EQ(array[1], 2);
    EXPECT_EQ(errorOf([&] { return array[2]; }), errors::kSubscript);
    EXPECT_EQ(errorOf([&] { return array[-1]; }), errors::kSubscript);
}

TEST(ArrayFunctions, AnArrayNeverSizedHasNoElement)
{
    const Array<int> array;
    EXPECT_EQ(errorOf([&] { return array[0]; }), errors::kSubscript);
    EXPECT_EQ(errorOf([&] { return array[-1]; }), errors::kSubscript);
}

TEST(ArrayFunctions, ResizingKeepsWhatIsThere)
{
    Array<int> array({1, 2, 3});
    array.resizeKeeping(4);
    EXPECT_EQ(array.items(), (std::vector<int>{1, 2, 3, 0, 0}));
    array.resizeKeeping(0);
    EXPECT_EQ(array.items(), std::vector<int>{1});
}

TEST(ArrayFunctions, ResizingAnArrayNeverSizedSizesIt)
{
    Array<int> array;
    array.resizeKeeping(0);
    EXPECT_TRUE(array.isSized());
    EXPECT_EQ(SafeUBound(array), 0);
}

TEST(ArrayFunctions, AnUpperBoundBelowMinusOneIsRefused)
{
    Array<int> array({1});
    EXPECT_EQ(errorOf([&] { return array.resizeKeeping(-2), 0; }), errors::kSubscript);
    EXPECT_EQ(SafeUBound(array), 0);
}

} // namespace k7deval
