#include "cli/SampleSites.h"

#include "cli/CommandRun.h"
#include "sitedb/SiteDatabase.h"
#include "sitedb/sql/Connection.h"

#include <stdexcept>

namespace k7deval::cli::test
{

namespace
{

using k7deval::testing::TemporaryFolder;

std::string sharedFile(const std::string& name)
{
    static const TemporaryFolder folder;
    return folder.file(name);
}

void mustImport(const std::string& site, const Arguments& arguments)
{
    const CommandRun import = run(Arguments{"import", "--site", site} + arguments);
    if (import.status != 0)
        throw std::runtime_error(import.notes);
}

std::string makeSite(const std::string& name, const std::vector<Arguments>& imports)
{
    const std::string site = sharedFile(name);
    for (const auto& arguments : imports)
        mustImport(site, arguments);
    return site;
}

const Arguments kFacility{"--facility", "Bethpage Energy Center"};

Arguments spans()
{
    return kFacility + Arguments{sampleFile("spans.csv")};
}

Arguments tests()
{
    return {"--leave-out", sampleFile("ecmps_qa_50292.json")};
}

Arguments load(const std::string& unit)
{
    return {"--unit", unit, sampleFile("hourly_load_" + unit + ".csv.gz")};
}

} // namespace

std::string sampleFile(const std::string& name)
{
    return std::string(K7DEVAL_SOURCE_DIR) + "/data/bethpage/" + name;
}

const std::string& emptySite()
{
    static const std::string site = makeSite("empty.site", {kFacility});
    return site;
}

const std::string& siteOfSpans()
{
    static const std::string site = makeSite("spans.site", {spans()});
    return site;
}

const std::string& siteOfTests()
{
    static const std::string site = makeSite("tests.site", {spans(), tests()});
    return site;
}

const std::string& fullSite()
{
    static const std::string site =
        makeSite("full.site", {spans(), tests(), load("GT3"), load("GT4")});
    return site;
}

std::string alteredSite(const std::string& site, const TemporaryFolder& folder,
                        const std::vector<std::string>& commands)
{
    const std::string copy = folder.file("altered.site");
    std::filesystem::copy_file(site, copy, std::filesystem::copy_options::overwrite_existing);
    const auto altered = sitedb::SiteDatabase::open(copy, sitedb::OpenMode::ReadWrite);
    altered.connection().execute("PRAGMA foreign_keys = OFF");
    for (const auto& command : commands)
        altered.connection().execute(command);
    return copy;
}

std::string siteWithPart60(const TemporaryFolder& folder)
{
    const std::string moved = "CASE pid WHEN 124007501 THEN 124006001 WHEN 124047501 THEN 124046001"
                              " ELSE pid END";
    return alteredSite(siteOfTests(), folder,
                       {"UPDATE parameter SET pid = " + moved,
                        "UPDATE attribute SET pid = " + moved, "UPDATE link SET pid = " + moved,
                        "UPDATE calibration_record SET pid = " + moved +
                            ", source_tag_pid = CASE source_tag_pid WHEN 124007501 THEN 124006001"
                            " ELSE source_tag_pid END",
                        "UPDATE attribute SET value = '124006001' WHERE value = '124007501'"});
}

} // namespace k7deval::cli::test
