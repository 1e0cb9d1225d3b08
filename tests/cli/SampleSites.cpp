#include "cli/SampleSites.h"

#include "cli/CommandRun.h"
#include "sitedb/SiteDatabase.h"
#include "sitedb/sql/Connection.h"
#include "support/Places.h"

#include <stdexcept>

namespace k7deval::cli::test
{

namespace
{

using k7deval::test::TemporaryFolder;

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

/// Loads of the first hours of a day.
std::string tableOfLoads(const std::vector<int>& loads)
{
    std::string file = sharedFile("loads.csv");
    std::string rows = "date,hour,gross_load_mw\n";
    for (std::size_t hour = 0; hour < loads.size(); ++hour)
        rows += "2021-03-31," + std::to_string(hour) + "," + std::to_string(loads[hour]) + "\n";
    k7deval::test::writeFile(file, rows);
    return file;
}

std::string tableOfSpans()
{
    std::string file = sharedFile("gas-spans.csv");
    k7deval::test::writeFile(file,
                             "unit_id,component_id,component_type,span_scale,span_value,units\n"
                             "U1,01,SO2,L,50,PPM\n"
                             "U1,01,SO2,H,100,PPM\n"
                             "U1,02,O2,H,25,PCT\n"
                             "U2,03,NOX,H,33.3,PPM\n");
    return file;
}

std::string tableOfGas()
{
    std::string file = sharedFile("gas.csv");
    k7deval::test::writeFile(file, "date,hour,parameter,unadjusted_hourly_value,modc\n"
                                   "2021-03-31,0,SO2C,5,01\n"
                                   "2021-03-31,1,SO2C,5.5,01\n"
                                   "2021-03-31,2,SO2C,10,01\n"
                                   "2021-03-31,3,SO2C,20,01\n"
                                   "2021-03-31,4,SO2C,20.1,01\n"
                                   "2021-03-31,5,SO2C,60,19\n"
                                   "2021-03-31,6,SO2C,80,01\n"
                                   "2021-03-31,7,SO2C,80.1,01\n"
                                   "2021-03-31,8,SO2C,100,01\n"
                                   "2021-03-31,9,SO2C,100.1,01\n"
                                   "2021-03-31,10,SO2C,30,06\n"
                                   "2021-03-31,11,SO2C,40,16\n");
    return file;
}

} // namespace

std::string dataFile(const std::string& name)
{
    return k7deval::test::projectFile("data/" + name);
}

std::string sampleFile(const std::string& name)
{
    return dataFile("bethpage/" + name);
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

const std::string& siteOfLoad()
{
    static const std::string site =
        makeSite("load.site", {{"--facility", "Unit One", "--unit", "U1",
                                tableOfLoads({5, 10, 15, 16, 40, 41, 70, 71, 110, 111, 0})}});
    return site;
}

const std::string& siteOfRanges()
{
    static const std::string site = makeSite(
        "ranges.site", {{"--facility", "Crystal River", dataFile("crystal-river/spans.csv")},
                        {"--unit", "4", dataFile("crystal-river/mats_hourly_4_HGC_2021Q3.csv")}});
    return site;
}

const std::string& siteOfGas()
{
    static const std::string site = makeSite(
        "gas.site", {{"--facility", "Unit One", tableOfSpans()}, {"--unit", "U1", tableOfGas()}});
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
