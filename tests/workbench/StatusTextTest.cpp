#include "workbench/StatusText.h"
#include "sitedb/SampleSite.h"

#include <gtest/gtest.h>

#include <QString>

namespace k7deval::workbench::test
{

TEST(StatusText, TellsTheMethodOfAMonitorsHour)
{
    const auto codes = sitedb::test::sharedSample().server()->StatusCodes();
    const auto brief = [&](std::int32_t word) {
        return statusText(*codes, word).brief.toStdString();
    };
    EXPECT_EQ(brief(0), "no data");
    EXPECT_EQ(brief(1), "valid");
    EXPECT_EQ(brief(2), "off line");
    EXPECT_EQ(brief(3), "left out");
    EXPECT_EQ(brief(35), "valid, 200 % of the maximum potential concentration");
    EXPECT_EQ(brief(101), "valid, MODC 01");
    EXPECT_EQ(brief(106), "not valid, MODC 06");
    EXPECT_EQ(brief(116), "left out, MODC 16");
    EXPECT_EQ(brief(77), "not valid, status 77");
    EXPECT_EQ(statusText(*codes, 106).full,
              "Status 106: MODC 06: average of the hours before and after");
}

} // namespace k7deval::workbench::test
