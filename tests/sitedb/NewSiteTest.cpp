#include "sitedb/NewSite.h"
#include "sitedb/SampleSite.h"

#include <gtest/gtest.h>

namespace k7deval::sitedb::test
{

namespace
{

TEST(NewSite, IsTakenAwayUnlessItIsKept)
{
    const TemporaryDirectory directory;
    {
        const NewSite site(directory / "plant.k7site");
        makeSite(directory / "plant.k7site");
    }
    EXPECT_FALSE(std::filesystem::exists(directory / "plant.k7site"));
    {
        NewSite site(directory / "plant.k7site");
        makeSite(directory / "plant.k7site");
        site.keep();
    }
    EXPECT_TRUE(std::filesystem::exists(directory / "plant.k7site"));
}

TEST(NewSite, LeavesASiteAloneThatWasThereBefore)
{
    const TemporaryDirectory directory;
    makeSite(directory / "plant.k7site");
    {
        const NewSite site(directory / "plant.k7site");
    }
    EXPECT_TRUE(std::filesystem::exists(directory / "plant.k7site"));
}

} // namespace

} // namespace k7deval::sitedb::test
