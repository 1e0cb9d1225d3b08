#include "sitedb/EmissionsCase.h"
#include "sitedb/SampleSite.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

// This program counts what it allocates, so that a test sees how much memory an import holds. What
// the database engine holds is bounded by its cache.
namespace
{

std::atomic<std::size_t> held = 0;
std::atomic<std::size_t> most = 0;

constexpr std::size_t kHeader = alignof(std::max_align_t);

void* allocate(std::size_t size)
{
    void* block = std::malloc(size + kHeader);
    if (block == nullptr)
        throw std::bad_alloc();
    *static_cast<std::size_t*>(block) = size;
    const std::size_t now = held += size;
    for (std::size_t seen = most; now > seen && !most.compare_exchange_weak(seen, now);) {
    }
    return static_cast<std::byte*>(block) + kHeader;
}

void release(void* memory)
{
    if (memory == nullptr)
        return;
    void* block = static_cast<std::byte*>(memory) - kHeader;
    held -= *static_cast<std::size_t*>(block);
    std::free(block);
}

} // namespace

void* operator new(std::size_t size)
{
    return allocate(size);
}
void* operator new[](std::size_t size)
{
    return allocate(size);
}
void operator delete(void* memory) noexcept
{
    release(memory);
}
void operator delete[](void* memory) noexcept
{
    release(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    release(memory);
}
void operator delete[](void* memory, std::size_t) noexcept
{
    release(memory);
}

namespace k7deval::sitedb::test
{

namespace
{

constexpr std::size_t kMegabyte = std::size_t{1} << 20U;

/// Sixty days of 24 hours, each with so many derived values that make the file large.
std::string largeEmissions(int derivedValues)
{
    std::string derived;
    for (int index = 0; index < derivedValues; ++index)
        derived +=
            R"({"parameterCode": "NOXR", "unadjustedHourlyValue": 0.123, "modcCode": "01"},)";
    derived += R"({"parameterCode": "HI"})";
    std::string text = R"({"orisCode": 54, "year": 2021, "quarter": 1, "hourlyOperatingData": [)";
    const std::int64_t first = wholeSeconds(makeDate(2021, 1, 1));
    for (int day = 0; day < 60; ++day) {
        const std::string date = isoDate(dateFromSeconds(first + day * std::int64_t{86'400}));
        for (int hour = 0; hour < 24; ++hour) {
            const std::string values = emissionsHour(date, hour, hour).dump();
            text += (text.back() == '[' ? "" : ",") + values.substr(0, values.size() - 1) +
                    ",\"derivedHourlyValueData\": [" + derived + "]}";
        }
    }
    return text + "]}";
}

/// The most memory that an import of a file holds beyond what was held before.
std::size_t memoryOf(EmptySite& site, const std::filesystem::path& file)
{
    const std::size_t before = held;
    most = before;
    importFile(site.site, file, {});
    return most - before;
}

TEST(ImportMemory, OfAnEmissionsFileDoesNotGrowWithTheFile)
{
    std::array<std::size_t, 2> used{};
    std::array<std::uintmax_t, 2> sizes{};
    for (const std::size_t index : {std::size_t{0}, std::size_t{1}}) {
        SmallSite site;
        const auto file =
            site.directory.write("emissions.json", largeEmissions(index == 0 ? 1 : 30));
        sizes[index] = std::filesystem::file_size(file);
        used[index] = memoryOf(site, file);
    }
    ASSERT_GT(sizes[1], 3 * kMegabyte);
    ASSERT_LT(sizes[0], 1 * kMegabyte);
    EXPECT_LT(used[0], kMegabyte / 2);
    EXPECT_LT(used[1], kMegabyte / 2);
}

TEST(ImportMemory, OfAPackedEmissionsFileDoesNotGrowWithItsContent)
{
    SmallSite site;
    const auto file = site.directory.write("emissions.json.gz", gzip(largeEmissions(30)));
    EXPECT_LT(memoryOf(site, file), kMegabyte / 2);
}

TEST(ImportMemory, OfATableIsThatOfItsContentAtLeast)
{
    SmallSite site;
    std::string table = "date,hour,gross_load_mw\n2021-01-01,0,5\n";
    table += std::string(2 * kMegabyte, '\n');
    const auto file = site.directory.write("load.csv", table);
    const std::size_t before = held;
    most = before;
    importFile(site.site, file, forUnit("U1"));
    EXPECT_GT(most - before, 2 * kMegabyte);
}

} // namespace

} // namespace k7deval::sitedb::test
