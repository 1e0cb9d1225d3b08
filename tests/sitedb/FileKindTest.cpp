#include "sitedb/EmissionsCase.h"
#include "sitedb/PlanCase.h"

#include <gtest/gtest.h>

namespace k7deval::sitedb::test
{

namespace
{

struct KindCase {
    std::string content;
    FileKind kind;
};

constexpr bool kBringsUnits = true;
constexpr bool kTakesUnit = true;
constexpr bool kNeedsUnit = true;
constexpr bool kTakesComponent = true;

std::vector<KindCase> kindCases()
{
    return {
        {smallPlan(), {"monitoring plan", kBringsUnits}},
        {"unit_id,component_id,component_type,span_scale,span_value,units\n",
         {"span table", kBringsUnits}},
        {"oris,location,component_type_cd,span_value\n",
         {"spans of locations", kBringsUnits, kTakesUnit}},
        {smallQa(), {"ECMPS QA data"}},
        {smallEmissions(), {"ECMPS emissions data"}},
        {"date,hour,gross_load_mw\n", {"hourly load", false, kTakesUnit, kNeedsUnit}},
        {"date,hour,parameter,unadjusted_hourly_value,modc\n",
         {"hours of a monitor", false, kTakesUnit, kNeedsUnit, kTakesComponent}},
    };
}

TEST(FileKind, SaysWhatAFileIsAndWhatItAsksFor)
{
    const TemporaryDirectory directory;
    for (const auto& [content, kind] : kindCases()) {
        EXPECT_EQ(kindOf(directory.write("file", content)), kind) << kind.format;
        EXPECT_EQ(kindOf(directory.write("file.gz", gzip(content))), kind) << kind.format;
    }
}

TEST(FileKind, IsTheFormatOfTheReport)
{
    SmallSite held;
    for (const auto& [name, content] :
         {std::pair("qa.json", smallQa()), std::pair("emissions.json", smallEmissions()),
          std::pair("load.csv", std::string("date,hour,gross_load_mw\n2019-01-01,0,5\n"))}) {
        const auto file = held.directory.write(name, content);
        EXPECT_EQ(kindOf(file).format, importFile(held.site, file, forUnit("U1")).format);
    }
}

TEST(FileKind, RefusesAFileOfNoKnownFormatAsItsImportDoes)
{
    SmallSite held;
    const std::string packed = gzip(smallQa());
    for (const std::string& content :
         {std::string(), std::string("Dear operator\n"), std::string("[1, 2]"),
          packed.substr(0, 30), packed + "rest"}) {
        const auto file = held.directory.write("file.dat", content);
        try {
            kindOf(file);
            ADD_FAILURE() << content;
        } catch (const ImportError& error) {
            EXPECT_EQ(error.description(), refusal(held, file, {}));
        }
    }
    EXPECT_THROW(kindOf(held.directory / "none.csv"), ImportError);
}

// Damage far behind would be found by whoever reads it.
TEST(FileKind, IsToldWithoutReadingAllOfALargeFile)
{
    const TemporaryDirectory directory;
    const std::string emissions = emissionsOfUnits(5, 2000);
    const std::string cut = gzip(emissions);
    EXPECT_EQ(kindOf(directory.write("emissions.json.gz", cut.substr(0, cut.size() / 2))).format,
              "ECMPS emissions data");
    std::string table = "date,hour,gross_load_mw\n";
    for (int row = 0; row < 100'000; ++row)
        table += "2020-01-01," + std::to_string(row) + ",5\n";
    const std::string cutTable = gzip(table);
    EXPECT_EQ(
        kindOf(directory.write("load.csv.gz", cutTable.substr(0, cutTable.size() - 20))).format,
        "hourly load");
}

/// Cancels when it is told for the nth time, from 1.
ImportOptions cancellingAt(int time)
{
    ImportOptions options = forUnit("U1");
    options.progress = [time, told = 0](const ImportProgress&) mutable { return ++told < time; };
    return options;
}

/// An import that is cancelled when all is read takes nothing.
void expectNothingTaken(EmptySite& held, const std::string& content)
{
    const auto file = held.directory.write("file", content);
    int told = 0;
    ImportOptions options = forUnit("U1");
    options.progress = [&told](const ImportProgress& progress) {
        ++told;
        return progress.bytesRead < progress.bytesTotal;
    };
    EXPECT_EQ(refusal(held, file, options), "file: the import was cancelled.") << content;
    EXPECT_EQ(refusal(held, file, cancellingAt(told)), "file: the import was cancelled.");
}

TEST(ImportCancel, TakesNothingOfAnyFileUpToItsEnd)
{
    EmptySite empty;
    expectNothingTaken(empty, smallPlan());
    SmallSite held;
    expectNothingTaken(held, smallQa());
    expectNothingTaken(held, smallEmissions());
    expectNothingTaken(held, kSpanColumns + "U2,010,NOX,H,100,PPM\n");
    expectNothingTaken(held, "date,hour,gross_load_mw\n2019-01-01,0,5\n");
    expectNothingTaken(held, "date,hour,parameter,unadjusted_hourly_value,modc\n"
                             "2019-01-01,0,NOXC,5,01\n");
}

TEST(ImportCancel, EndsATableInTheMiddle)
{
    SmallSite held;
    std::string table = "date,hour,gross_load_mw\n";
    for (int hour = 0; hour < 28 * 24 * 6; ++hour) {
        const int day = hour / 24;
        const std::string month = "2019-0" + std::to_string(day / 28 + 1);
        const std::string ofMonth = std::to_string(day % 28 + 101).substr(1);
        table += month + "-" + ofMonth + "," + std::to_string(hour % 24) + ",5\n";
    }
    const auto file = held.directory.write("load.csv", table);
    EXPECT_EQ(refusal(held, file, cancellingAt(3)), "load.csv: the import was cancelled.");
    std::vector<ImportProgress> told;
    ImportOptions options = forUnit("U1");
    options.progress = [&told](const ImportProgress& progress) {
        told.push_back(progress);
        return true;
    };
    importFile(held.site, file, options);
    ASSERT_EQ(told.size(), 6U);
    EXPECT_EQ(told[2].hours, 2000U);
    EXPECT_EQ(told[2].bytesRead, static_cast<std::int64_t>(table.size() * 2000 / 4032));
    EXPECT_EQ(told.back().hours, 4032U);
    EXPECT_EQ(told.back().bytesRead, told.back().bytesTotal);
}

// A load table of so many bytes, of which nothing can be taken.
std::string longTable(std::size_t size)
{
    return "date,hour,gross_load_mw\n" + std::string(size, '\n');
}

constexpr std::size_t kMegabyte = std::size_t{1} << 20U;

TEST(ImportCancel, EndsTheReadingOfALongTable)
{
    SmallSite held;
    const auto file = held.directory.write("load.csv", longTable(3 * kMegabyte));
    ImportOptions options = forUnit("U1");
    int told = 0;
    options.progress = [&told](const ImportProgress& progress) {
        EXPECT_EQ(progress.bytesRead, 0);
        return ++told < 2;
    };
    EXPECT_EQ(refusal(held, file, options), "load.csv: the import was cancelled.");
    EXPECT_EQ(told, 2);
}

TEST(ImportCancel, EndsTheCheckSumOfAFileThatMayHaveBeenImported)
{
    SmallSite held;
    std::string table = longTable(2 * kMegabyte) + "2019-01-01,0,5\n";
    importFile(held.site, held.directory.write("load.csv", table), forUnit("U1"));
    table[table.size() - 2] = '6';
    const auto other = held.directory.write("other.csv", table);
    EXPECT_EQ(refusal(held, other, cancellingAt(1)), "other.csv: the import was cancelled.");
    EXPECT_EQ(refusal(held, other, forUnit("U1")),
              "other.csv: line 2097154: date and hour: the site already holds the unit's load for "
              "hour 0 of 2019-01-01.");
}

} // namespace

} // namespace k7deval::sitedb::test
