#include "sevenday/ExportRig.h"

#include <gtest/gtest.h>
#include <pugixml.hpp>

namespace k7deval::test
{

ExportRig::ExportRig(const AnalyzerFacts& facts, const std::string& region)
    : SetUpRig(siteOf(facts), region)
{
    setup();
    test.irm = messages;
    test.DIServer = serve(site);
    test.lngAnalyzedPID = facts.measuredPID();
    test.lngGoodCals = 7;
}

ExportRig& ExportRig::show(const std::vector<CalDay>& days)
{
    test.objDaysToDisplay = arrayOf(days);
    return *this;
}

std::string ExportRig::text()
{
    EXPECT_EQ(write(), std::nullopt);
    return test::contentOf(path);
}

std::string ExportRig::valueOf(const std::string& element)
{
    pugi::xml_document document;
    const std::string content = text();
    EXPECT_TRUE(document.load_string(content.c_str())) << content;
    const pugi::xml_node found =
        document.find_node([&](const pugi::xml_node& node) { return node.name() == element; });
    return found ? found.text().as_string() : "(absent)";
}

CalDay dayOf(const CalRun& run)
{
    return dayWith(dateOnly(run->CalTime), {run});
}

} // namespace k7deval::test
