#include "sitedb/PlanCase.h"
#include "sitedb/SiteQueries.h"

#include "sitedb/sql/Connection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace k7deval::sitedb::test
{

namespace
{

/// What opening a file is refused with.
Error openingError(const std::filesystem::path& path, OpenMode mode)
{
    try {
        static_cast<void>(SiteDatabase::open(path, mode));
    } catch (const Error& error) {
        return error;
    }
    ADD_FAILURE() << "opened";
    return Error(0);
}

using SiteWithoutUnits = ImportTest<EmptySite>;
using SiteOfOneUnit = ImportTest<SmallSite>;

TEST(SiteDatabase, ANewSiteIsEmptyAndKeepsWhatIsPutIn)
{
    TemporaryDirectory directory;
    {
        auto site = SiteDatabase::open(directory / "plant.k7site", OpenMode::ReadWrite);
        EXPECT_TRUE(site.server()->Units().empty());
        site.setFacilityName("Bethpage Energy Center");
    }
    auto site = SiteDatabase::open(directory / "plant.k7site", OpenMode::ReadOnly);
    EXPECT_EQ(facilityName(*site.server()), "Bethpage Energy Center");
    EXPECT_EQ(site.server()->SiteKey(), "plant");
}

TEST(SiteDatabase, ASiteKeepsItsKeyUnderAnotherFileName)
{
    TemporaryDirectory directory;
    static_cast<void>(SiteDatabase::open(directory / "plant.k7site", OpenMode::ReadWrite));
    std::filesystem::rename(directory / "plant.k7site", directory / "moved.k7site");
    EXPECT_EQ(
        SiteDatabase::open(directory / "moved.k7site", OpenMode::ReadOnly).server()->SiteKey(),
        "plant");
}

TEST(SiteDatabase, AnEmptyFileBecomesASite)
{
    TemporaryDirectory directory;
    const auto path = directory.write("plant.k7site", "");
    EXPECT_EQ(openingError(path, OpenMode::ReadOnly).description(),
              "plant.k7site: the file is no site database.");
    EXPECT_TRUE(SiteDatabase::open(path, OpenMode::ReadWrite).server()->Units().empty());
}

TEST_F(SiteWithoutUnits, TheFacilityNameCanBeSetAnew)
{
    EXPECT_EQ(facilityName(*site.server()), "<Facility Name>");
    site.setFacilityName("Old");
    site.setFacilityName("Bethpage \xE2\x80\x93 O'Neill");
    EXPECT_EQ(facilityName(*site.server()), "Bethpage \xE2\x80\x93 O'Neill");
}

TEST_F(SiteWithoutUnits, AnEmptyFacilityNameIsNone)
{
    EXPECT_EQ(site.facilityName(), std::nullopt);
    site.setFacilityName("Old");
    EXPECT_EQ(site.facilityName(), "Old");
    site.setFacilityName("");
    EXPECT_EQ(site.facilityName(), std::nullopt);
    EXPECT_EQ(facilityName(*site.server()), "<Facility Name>");
}

TEST(SiteDatabase, AFileThatIsNotThereIsNotRead)
{
    TemporaryDirectory directory;
    const Error error = openingError(directory / "none.k7site", OpenMode::ReadOnly);
    EXPECT_EQ(error.number(), errors::kFileNotFound);
    EXPECT_EQ(error.description(), "none.k7site: there is no such file.");
    EXPECT_FALSE(std::filesystem::exists(directory / "none.k7site"));
}

TEST(SiteDatabase, AFolderThatIsNotThereIsNotMade)
{
    TemporaryDirectory directory;
    const Error error = openingError(directory / "none/plant.k7site", OpenMode::ReadWrite);
    EXPECT_EQ(error.number(), errors::kPathAccess);
    EXPECT_EQ(error.description(), "plant.k7site: the file can't be opened.");
}

TEST(SiteDatabase, AFileOfAnotherKindIsRefusedAndLeftAlone)
{
    TemporaryDirectory directory;
    const std::string content(5000, 'x');
    const auto path = directory.write("notes.txt", content);
    for (const auto mode : {OpenMode::ReadOnly, OpenMode::ReadWrite})
        EXPECT_EQ(openingError(path, mode).description(),
                  "notes.txt: the file is no site database.");
    EXPECT_EQ(readFile(path), content);
}

TEST_F(SiteWithoutUnits, ADatabaseOfAnotherProgramIsRefusedAndLeftAlone)
{
    site.connection().execute("PRAGMA application_id = 0");
    const std::string before = readFile(held.path);
    for (const auto mode : {OpenMode::ReadOnly, OpenMode::ReadWrite})
        EXPECT_EQ(openingError(held.path, mode).description(),
                  "site.k7site: the file is no site database.");
    EXPECT_TRUE(readFile(held.path) == before);
}

TEST_F(SiteWithoutUnits, TablesOfAnotherVersionAreRefused)
{
    site.connection().execute("PRAGMA user_version = 7");
    for (const auto mode : {OpenMode::ReadOnly, OpenMode::ReadWrite}) {
        const Error error = openingError(held.path, mode);
        EXPECT_EQ(error.number(), errors::kPathAccess);
        EXPECT_EQ(error.description(),
                  "site.k7site: the site has version 7 of the tables, and this "
                  "program reads version 1.");
    }
}

TEST(SiteDatabase, ADamagedSiteIsToldAsSuch)
{
    TemporaryDirectory directory;
    const auto path = directory / "plant.k7site";
    static_cast<void>(SiteDatabase::open(path, OpenMode::ReadWrite));
    std::string bytes = readFile(path);
    std::fill(bytes.begin() + 4096, bytes.end(), 'x');
    const auto damaged = directory.write("damaged.k7site", bytes);
    try {
        auto site = SiteDatabase::open(damaged, OpenMode::ReadOnly);
        static_cast<void>(site.server()->Units());
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.description(), "damaged.k7site: the file is damaged.");
    }
}

TEST(SiteDatabase, TheServerOutlivesTheObjectThatOpenedTheSite)
{
    TemporaryDirectory directory;
    std::shared_ptr<DIServer> server;
    {
        auto site = SiteDatabase::open(directory / "plant.k7site", OpenMode::ReadWrite);
        server = site.server();
    }
    EXPECT_TRUE(server->Units().empty());
    EXPECT_TRUE(server->StatusCodes()->IsValid(1));
}

TEST_F(SiteWithoutUnits, AServerSeesWhatIsImportedLater)
{
    const auto server = site.server();
    take("l.csv", "date,hour,gross_load_mw\n2020-01-01,0,5\n", forUnit("U1"));
    EXPECT_EQ(server->Units().size(), 1U);
}

TEST_F(SiteOfOneUnit, ACapacityIsAConstantThatTheLoadToolFinds)
{
    site.setCapacity("U1", 79.9);
    site.setCapacity("U1", 84.5);
    const auto constants = site.server()->ConstantsOfUnitTypes({4, 34}, 1, {0, 3});
    ASSERT_EQ(constants.size(), 1U);
    EXPECT_EQ(PIDPart(constants[0]->PID(), pidpart::kParameterCode), 602);
    EXPECT_EQ(PIDPart(constants[0]->PID(), pidpart::kProgramCode), 0);
    EXPECT_EQ(PIDPart(constants[0]->PID(), pidpart::kSuffix), 0);
    EXPECT_EQ(constants[0]->UnitsText(), "MW");
    auto point = constants[0]->CurrentPoint(0, 0, 0);
    EXPECT_EQ(point.Count(), 1);
    EXPECT_EQ(point.ItemByIndex(1).Value(), Variant(84.5));
    EXPECT_TRUE(site.server()->StatusCodes()->IsValid(point.ItemByIndex(1).Status()));
}

TEST_F(SiteOfOneUnit, ConstantsAreToldApartByUnitTypeAndSubset)
{
    site.setCapacity("U1", 80);
    const auto server = site.server();
    EXPECT_TRUE(server->ConstantsOfUnitTypes({4, 34}, 2, {0, 3}).empty());
    EXPECT_TRUE(server->ConstantsOfUnitTypes({34}, 1, {0, 3}).empty());
    EXPECT_TRUE(server->ConstantsOfUnitTypes({4}, 1, {3}).empty());
    EXPECT_TRUE(server->ConstantsOfUnitTypes({4}, 1, {}).empty());
}

TEST_F(SiteOfOneUnit, AParameterThatIsNoConstantHasNoPresentValue)
{
    auto point = parameter(site, 111'007'501)->CurrentPoint(0, 0, 0);
    EXPECT_EQ(point.Count(), 1);
    EXPECT_EQ(point.ItemByIndex(1).Value(), Variant(Null{}));
}

TEST_F(SiteOfOneUnit, ACapacityNeedsAUnitAndANumberAboveZero)
{
    const std::string before = dump(site);
    for (const double capacity : {0.0, -5.0, std::numeric_limits<double>::quiet_NaN(),
                                  std::numeric_limits<double>::infinity()}) {
        try {
            site.setCapacity("U1", capacity);
            ADD_FAILURE() << capacity;
        } catch (const Error& error) {
            EXPECT_EQ(error.description(), "A capacity is a number of MW above 0, at most 999999.");
        }
    }
    try {
        site.setCapacity("U9", 80);
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), errors::kInvalidCall);
        EXPECT_EQ(error.description(), "The site has no unit U9.");
    }
    EXPECT_EQ(dump(site), before);
}

TEST_F(SiteWithoutUnits, TellsTheCapacityOfEachUnitAndTheMaximumLoadOfItsPlan)
{
    take("plan.json", smallPlan());
    site.setCapacity("CS1", 84.5);
    const std::vector<UnitPower> powers{{"U1", std::nullopt, 150}, {"CS1", 84.5, std::nullopt}};
    EXPECT_EQ(site.unitPowers(), powers);
}

TEST_F(SiteWithoutUnits, ACapacityCanBeTakenBack)
{
    take("plan.json", smallPlan());
    const std::string before = dump(site);
    site.setCapacity("U1", 140);
    EXPECT_NE(dump(site), before);
    site.change({std::nullopt, {{"U1", std::nullopt}}});
    EXPECT_EQ(dump(site), before);
    site.change({std::nullopt, {{"U1", std::nullopt}}});
    EXPECT_EQ(dump(site), before);
}

TEST_F(SiteOfOneUnit, MakesAllChangesOrNone)
{
    const std::string before = dump(site);
    EXPECT_THROW(site.change({"Other", {{"U1", 80}, {"U9", 80}}}), Error);
    EXPECT_THROW(site.change({"Other", {{"U1", 80}, {"U1", 1'000'000}}}), Error);
    EXPECT_EQ(dump(site), before);
    site.change({"Other", {{"U1", 999'999}}});
    EXPECT_EQ(site.facilityName(), "Other");
    EXPECT_EQ(site.unitPowers().front().capacity, 999'999);
}

struct WordCase {
    std::int32_t word;
    bool valid;
    bool excluded;
    bool offline;
};

constexpr WordCase kWords[] = {
    {0, false, false, false},    // no data
    {1, true, false, false},     // measured
    {2, false, false, true},     // unit off line
    {3, true, true, false},      // left out of evaluations
    {28, true, false, false},    // calibration on line
    {29, true, false, true},     // calibration off line
    {35, true, false, false},    // 200 % of the MPC
    {36, true, false, false},    // 200 % of the full scale
    {4711, false, false, false}, // no word of the site
    {-1, false, false, false},   // no word of the site
};

TEST(SiteStatusCodes, EachWordSaysWhatTheTableSays)
{
    EmptySite held;
    const auto codes = held.site.server()->StatusCodes();
    for (const auto& entry : kWords) {
        EXPECT_EQ(codes->IsValid(entry.word), entry.valid) << entry.word;
        EXPECT_EQ(codes->IsExcluded(entry.word), entry.excluded) << entry.word;
        EXPECT_EQ(codes->IsUnitOffline(entry.word), entry.offline) << entry.word;
    }
}

TEST(SiteLog, TellsWhichFileWasTakenWhenAndWhatCameOfIt)
{
    SmallSite held;
    ImportOptions options = forUnit("U1");
    options.time = makeDate(2024, 5, 6, 7, 8, 59);
    importFile(held.site,
               held.directory.write("load.csv", "date,hour,gross_load_mw\n2020-01-01,0,5\n"),
               options);
    const auto row = held.site.connection().prepare(
        "SELECT file_name, format, file_size, imported_at, summary FROM import_log"
        " ORDER BY import_id DESC");
    ASSERT_TRUE(row->step());
    EXPECT_EQ(row->text(0), "load.csv");
    EXPECT_EQ(row->text(1), "hourly load");
    EXPECT_EQ(row->integer(2), 39);
    EXPECT_EQ(row->text(3), "2024-05-06 07:08");
    EXPECT_EQ(row->text(4), "1 hour, 1 hour with load");
    ASSERT_TRUE(row->step());
    EXPECT_TRUE(row->isNull(3)) << "the span table was imported with no time given";
}

} // namespace

} // namespace k7deval::sitedb::test
