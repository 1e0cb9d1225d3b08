#include "sitedb/formats/Importer.h"

#include "sitedb/EmissionsCase.h"
#include "sitedb/PlanCase.h"

#include <gtest/gtest.h>

#include <set>

namespace k7deval::sitedb::test
{

namespace
{

struct Sample {
    std::string format;
    std::string content;
};

std::vector<Sample> samples()
{
    return {
        {"monitoring plan", smallPlan()},
        {"span table", "unit_id,component_id,component_type,span_scale,span_value,units\n"
                       "U2,010,NOX,H,100,PPM\n"},
        {"spans of locations", "oris,location,component_type_cd,span_value\n54,U1,NOX,100\n"},
        {"ECMPS QA data", smallQa()},
        {"ECMPS emissions data", smallEmissions()},
        {"hourly load", "date,hour,gross_load_mw\n2019-01-01,0,5\n"},
        {"hours of a monitor", "date,hour,parameter,modc,unadjusted_hourly_value\n"
                               "2019-01-01,0,NOXC,01,5\n"},
    };
}

TEST(Importers, EachFormatHasOneRow)
{
    std::set<std::string> formats;
    for (const auto& importer : importers())
        EXPECT_TRUE(formats.insert(importer.kind.format).second) << importer.kind.format;
    for (const auto& sample : samples())
        EXPECT_EQ(formats.erase(sample.format), 1U) << sample.format;
    EXPECT_TRUE(formats.empty()) << "a format without a sample: " << *formats.begin();
}

/// Whether an importer takes anything of a file that is not of its format.
bool takesAnything(const Importer& importer, const ImportTask& task)
{
    try {
        return !importer.take(task).isNothing;
    } catch (const ImportError&) {
        return false;
    }
}

TEST(Importers, NoneTakesAnythingOfTheOthersFiles)
{
    const SmallSite held;
    const std::string before = dump(held.site);
    for (const auto& importer : importers()) {
        for (const auto& sample : samples()) {
            if (sample.format == importer.kind.format)
                continue;
            SourceFile file = readSourceFile(held.directory.write("file", sample.content));
            const ImportOptions options = forUnit("U1");
            const sql::Transaction transaction(held.site.connection());
            EXPECT_FALSE(takesAnything(importer, {held.site.connection(), file, options}))
                << importer.kind.format << ": " << sample.format;
        }
    }
    EXPECT_EQ(dump(held.site), before);
}

struct TellingCase {
    const char* what;
    std::string content;
    const char* format;
};

TEST(Importers, AreToldByTheColumnsAndTheTopLevelNamesAlone)
{
    const TellingCase cases[] = {
        {"names of a plan deeper in QA data",
         R"({"orisCode": 54, "testSummaryData": [{"locations": [], "quarter": 1}]})",
         "ECMPS QA data"},
        {"names of a plan in a text", R"({"comment": "\"locations\"", "testSummaryData": []})",
         "ECMPS QA data"},
        {"a nested name ahead of the telling one",
         R"({"header": {"testSummaryData": 1}, "locations": []})", "monitoring plan"},
        {"no telling name", R"({"orisCode": 54})", "ECMPS QA data"},
        {"blanks ahead", "\n \t{\"quarter\": 1}", "ECMPS emissions data"},
        {"more columns, in another order", "note,modc,hour,parameter,date\n", "hours of a monitor"},
        {"names of columns in the rows",
         "date,hour,gross_load_mw\nunit_id,component_id,span_value\n", "hourly load"},
    };
    const TemporaryDirectory directory;
    for (const auto& entry : cases)
        EXPECT_EQ(kindOf(directory.write("file", entry.content)).format, entry.format)
            << entry.what;
}

} // namespace

} // namespace k7deval::sitedb::test
