#include "foundation/NumberText.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <limits>
#include <new>

namespace
{

std::size_t allocations = 0;

} // namespace

// The whole program allocates through these, so that a test can count.
void* operator new(std::size_t size)
{
    ++allocations;
    if (void* memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

namespace k7deval
{

TEST(RoundTrip, AllocatesNothing)
{
    constexpr float kValues[] = {12.34565F, -0.00004F, 1e-40F, 3.3e38F,
                                 std::numeric_limits<float>::max()};
    float sum = 0;
    const std::size_t before = allocations;
    for (const float value : kValues) {
        for (int places = 0; places <= 9; ++places)
            sum += roundTrip(value, places) / std::numeric_limits<float>::max();
    }
    EXPECT_EQ(allocations, before);
    EXPECT_GT(sum, 0);
}

TEST(RoundTrip, AllocationsWouldBeCounted)
{
    const std::size_t before = allocations;
    const std::string text(100, 'x');
    EXPECT_GT(allocations, before) << text;
}

} // namespace k7deval
