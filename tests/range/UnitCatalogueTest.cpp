#include "range/UnitCatalogue.h"

#include "foundation/ExpectError.h"
#include "range/RangeRig.h"
#include "range/ServerOfRecords.h"

#include <gtest/gtest.h>

#include <sstream>

/// Which analyzers a site's calibration definitions offer for range evaluation.
namespace k7deval::test
{

namespace
{

Catalogue catalogueOf(const std::shared_ptr<SiteData>& site)
{
    Catalogue catalogue;
    addToCatalogue(catalogue, *serve(site), {});
    return catalogue;
}

/// A catalogue in its order, as "unit: parameter: scale=span scale=span; ...".
std::string listed(const Catalogue& catalogue)
{
    std::ostringstream text;
    for (const auto& [unit, parameters] : catalogue) {
        for (const auto& [parameter, scales] : parameters) {
            text << unit << ": " << parameter << ":";
            for (const auto& [scale, span] : scales)
                text << ' ' << scale << '=' << span;
            text << "; ";
        }
    }
    return text.str();
}

std::string listed(const std::shared_ptr<SiteData>& site)
{
    return listed(catalogueOf(site));
}

constexpr const char* kNOxOf100 = "100100000: 112017500: 0=100; ";

struct FlagCase {
    const char* what;
    Variant value;
    bool isListed;
};

const FlagCase kLeftOut[] = {
    {"not left out", false, true},
    {"left out", true, false},
    {"not configured", Null{}, false},
    {"a number for no", std::int32_t{0}, true},
    {"a number for yes", std::int32_t{-1}, false},
};

const FlagCase kRangeUse[] = {
    {"0", std::int32_t{0}, true},
    {"1", std::int32_t{1}, false},
    {"-1", std::int32_t{-1}, false},
    {"not configured", Null{}, false},
};

const FlagCase kTables[] = {
    {"a calibration", std::string("K7CAL"), true},
    {"a linearity check", std::string("K7LIN"), false},
    {"no table", std::string(), false},
    {"not configured", Null{}, false},
    {"in small letters", std::string("k7cal"), false},
};

struct SpanCase {
    const char* what;
    std::optional<Variant> span;
    float value;
};

const SpanCase kSpans[] = {
    {"a single", 33.3F, 33.3F},
    {"a double", 12.5, 12.5F},
    {"a whole number", std::int32_t{2500}, 2500},
    {"a text with a number", std::string("250"), 250},
    {"zero", 0.0F, 0},
    {"no definition", std::nullopt, 100},
    {"a definition without a span", Null{}, 100},
    {"a text without a number", std::string("n/a"), 100},
    {"a date", Date{45000}, 100},
};

struct ScaleCase {
    const char* text;
    std::int32_t index;
};

constexpr ScaleCase kScales[] = {
    {"SINGLE", 0}, {"LOW", 1}, {"MID", 2}, {"HIGH", 3}, {"ZERO", 0}, {"", 0}, {"high", 0},
};

/// The site of one scale whose hourly series is this one.
std::string listedWithPartner(const ParameterData& partner, const ScaleFacts& scale = {})
{
    auto site = std::make_shared<SiteData>();
    site->parameters = {unitNamed(kGT1, "GT1"), partner};
    addScale(*site, scale);
    return listed(site);
}

std::string listedWithPartner(PID pid)
{
    return listedWithPartner(hourlyNamed(pid, "NOX"));
}

} // namespace

TEST(UnitCatalogue, HoldsUnitParameterScaleAndSpan)
{
    EXPECT_EQ(listed(siteOfNOx()), kNOxOf100);
}

TEST(UnitCatalogue, LeavesOutWhatIsLeftOutOfLists)
{
    for (const FlagCase& row : kLeftOut)
        EXPECT_EQ(!listed(siteOfNOx({{.leftOut = row.value}})).empty(), row.isListed) << row.what;
}

TEST(UnitCatalogue, TakesTheUseForRangeEvaluationAlone)
{
    for (const FlagCase& row : kRangeUse)
        EXPECT_EQ(!listed(siteOfNOx({{.rangeUse = row.value}})).empty(), row.isListed) << row.what;
}

TEST(UnitCatalogue, TakesCalibrationsAlone)
{
    for (const FlagCase& row : kTables)
        EXPECT_EQ(!listed(siteOfNOx({{.table = row.value}})).empty(), row.isListed) << row.what;
}

TEST(UnitCatalogue, TakesParametersOfTypeThreeAlone)
{
    for (const std::int32_t type : {0, 1, 2, 4, 8, 25, 34})
        EXPECT_EQ(listed(siteOfNOx({{.type = type}})), "") << type;
}

TEST(UnitCatalogue, NamesTheScales)
{
    for (const ScaleCase& row : kScales) {
        EXPECT_EQ(listed(siteOfNOx({{.scale = std::string(row.text)}})),
                  "100100000: 112017500: " + std::to_string(row.index) + "=100; ")
            << row.text;
    }
    EXPECT_EQ(listed(siteOfNOx({{.scale = Null{}}})), kNOxOf100);
    EXPECT_EQ(scaleName(0), "SINGLE");
    EXPECT_EQ(scaleName(1), "LOW");
    EXPECT_EQ(scaleName(2), "MID");
    EXPECT_EQ(scaleName(3), "HIGH");
    EXPECT_EQ(scaleName(4), "");
    EXPECT_EQ(scaleName(-1), "");
}

TEST(UnitCatalogue, TakesTheSpanOfTheDefinitionOrAHundred)
{
    for (const SpanCase& row : kSpans) {
        const Catalogue catalogue = catalogueOf(siteOfNOx({{.span = row.span}}));
        ASSERT_EQ(catalogue.Count(), 1U) << row.what;
        EXPECT_EQ(catalogue.Item(kGT1).Item(kNOx).Item(0), row.value) << row.what;
    }
}

TEST(UnitCatalogue, TakesTheFirstOfSeveralRecords)
{
    auto site = siteOfNOx();
    RecordData later;
    later.pid = ScaleFacts().pid();
    later.span = 7.0F;
    site->records.push_back(later);
    EXPECT_EQ(listed(site), kNOxOf100);
    site->records.front().span = Null{};
    EXPECT_EQ(listed(site), kNOxOf100) << "the second is not looked at";
}

TEST(UnitCatalogue, AFirstRecordThatIsNotThereLeavesTheSpanAtAHundred)
{
    const auto server = serve(siteOfNOx({{.span = 50.0F}}));
    RecordQuery query;
    query.pid = ScaleFacts().pid();
    query.table = kCalibrationTable;
    const DIRecordList records = server->RecordStore()->ReadRecords(query);
    ASSERT_EQ(records.size(), 1U);
    for (const DIRecordList& list : {DIRecordList(), {nullptr}, {nullptr, records[0]}}) {
        ServerOfRecords gaps(server, list);
        Catalogue catalogue;
        addToCatalogue(catalogue, gaps, {});
        EXPECT_EQ(listed(catalogue), kNOxOf100) << list.size();
    }
    ServerOfRecords whole(server, records);
    Catalogue catalogue;
    addToCatalogue(catalogue, whole, {});
    EXPECT_EQ(listed(catalogue), "100100000: 112017500: 0=50; ");
}

TEST(UnitCatalogue, ReadsEachDefinitionWithTheArgumentsOfTheRecordStore)
{
    auto site = siteOfNOx();
    site->siteKey = "K42";
    catalogueOf(site);
    const RecordQuery expected{"K42", 0, Date{}, Date{}, "", 0, 112007501, "", "", "", "K7CAL"};
    EXPECT_EQ(site->recordQueries, std::vector<RecordQuery>{expected});
}

TEST(UnitCatalogue, TheFirstDefinitionOfAScaleWins)
{
    auto site = siteOfNOx({{.span = 50.0F}, {.suffix = 2, .span = 500.0F}});
    EXPECT_EQ(listed(site), "100100000: 112017500: 0=50; ");
    EXPECT_EQ(site->recordQueries.size(), 1U) << "the second one's span is not read";
    EXPECT_EQ(listed(siteOfNOx(
                  {{.scale = std::string("?"), .span = 50.0F}, {.suffix = 2, .span = 500.0F}})),
              "100100000: 112017500: 0=50; ")
        << "a text that names no scale is the single one too";
}

TEST(UnitCatalogue, KeepsTheOrderOfTheDefinitions)
{
    EXPECT_EQ(listed(siteOfNOx({{.suffix = 3, .scale = std::string("HIGH"), .span = 500.0F},
                                {.suffix = 1, .scale = std::string("LOW"), .span = 50.0F},
                                {.suffix = 2, .scale = std::string("MID"), .span = 250.0F}})),
              "100100000: 112017500: 3=500 1=50 2=250; ");
}

TEST(UnitCatalogue, KeepsTheOrderOfTheUnitsAheadOfThatOfTheDefinitions)
{
    EXPECT_EQ(listed(siteOfTwoUnits()),
              "100100000: 112017500: 1=50 3=500; 100100000: 123017500: 0=20; "
              "200100000: 212017500: 2=250; ");
    auto site = siteOfTwoUnits();
    std::swap(site->parameter(kGT1), site->parameter(kGT2));
    EXPECT_EQ(listed(site), "200100000: 212017500: 2=250; 100100000: 112017500: 1=50 3=500; "
                            "100100000: 123017500: 0=20; ");
}

TEST(UnitCatalogue, AUnitWithoutAnAnalyzerHasNoEntry)
{
    auto site = siteOfNOx();
    site->parameters.push_back(unitNamed(kGT2, "GT2"));
    EXPECT_EQ(listed(site), kNOxOf100);
}

TEST(UnitCatalogue, AnAnalyzerOfAnUnknownUnitHasNoEntry)
{
    auto site = siteOfNOx({{.unit = 2}});
    site->parameters.push_back(hourlyNamed(212017500, "NOX"));
    EXPECT_EQ(listed(site), "");
}

TEST(UnitCatalogue, APartnerHasUnitCodeAndProgramOfTheCalibration)
{
    EXPECT_EQ(listedWithPartner(MakePID(1, 120, 1, 75, 0)), kNOxOf100);
    EXPECT_EQ(listedWithPartner(MakePID(1, 120, 3, 75, 42)), "100100000: 112037542: 0=100; ")
        << "variant and suffix are its own";
    EXPECT_EQ(listedWithPartner(MakePID(2, 120, 1, 75, 0)), "");
    EXPECT_EQ(listedWithPartner(MakePID(1, 121, 1, 75, 0)), "");
    EXPECT_EQ(listedWithPartner(MakePID(1, 120, 1, 60, 0)), "");
}

TEST(UnitCatalogue, APartnerIsAnHourlySeries)
{
    ParameterData partner = hourlyNamed(kNOx, "NOX");
    for (const DIInterval interval : {DIInterval{2, 1}, {1, 2}, {0, 1}, {1, 0}, {24, 1}}) {
        partner.interval = interval;
        EXPECT_EQ(listedWithPartner(partner), "") << interval.Multiple << " " << interval.Unit;
    }
    partner.interval = {1, 1};
    partner.intervalLetter = "d";
    EXPECT_EQ(listedWithPartner(partner), "") << "not in the list of hourly ones";
}

TEST(UnitCatalogue, TheFirstPartnerThatFitsIsTheOne)
{
    auto site = siteOfNOx();
    site->parameter(kNOx).interval = {6, 2};
    site->parameters.push_back(hourlyNamed(MakePID(1, 120, 2, 75, 0), "NOX second"));
    site->parameters.push_back(hourlyNamed(MakePID(1, 120, 3, 75, 0), "NOX third"));
    EXPECT_EQ(listed(site), "100100000: 112027500: 0=100; ");
}

TEST(UnitCatalogue, ASecondSiteAddsToTheFirst)
{
    Catalogue catalogue = catalogueOf(siteOfNOx({{.scale = std::string("LOW"), .span = 50.0F}}));
    addToCatalogue(catalogue,
                   *serve(siteOfNOx({{.scale = std::string("HIGH"), .span = 500.0F},
                                     {.suffix = 2, .scale = std::string("LOW"), .span = 60.0F}})),
                   {});
    EXPECT_EQ(listed(catalogue), "100100000: 112017500: 1=50 3=500; ");
    addToCatalogue(catalogue, *serve(siteOfTwoUnits()), {});
    EXPECT_EQ(listed(catalogue), "100100000: 112017500: 1=50 3=500; 100100000: 123017500: 0=20; "
                                 "200100000: 212017500: 2=250; ");
}

TEST(UnitCatalogue, ASpanIsReadAsTheRegionWritesIt)
{
    const auto site = siteOfNOx({{.span = std::string("12,5")}});
    Catalogue catalogue;
    addToCatalogue(catalogue, *serve(site), regionalSettings("de-DE"));
    EXPECT_EQ(catalogue.Item(kGT1).Item(kNOx).Item(0), 12.5F);
}

TEST(UnitCatalogue, AnyFailureOfTheDataReachesTheCaller)
{
    for (const char* call :
         {"DIServer.ParametersOfTypes", "DIServer.ParametersOfInterval", "DIServer.Units",
          "DIServer.Parameters", "DIServer.SiteKey", "DIServer.RecordStore",
          "DIRecordStore.ReadRecords", "DIRecord.Span", "DIParameters.Item", "DIParameter.Interval",
          "DIParameter.GetAttribute(-25)", "DIParameter.GetAttribute(-57)",
          "DIParameter.GetAttribute(-300)", "DIParameter.GetAttribute(-56)"}) {
        auto site = siteOfNOx();
        failAt(*site, call);
        EXPECT_EQ(errorOf([&] { return catalogueOf(site).Count(); }), 440) << call;
    }
}

TEST(UnitCatalogue, ASpanBeyondASingleIsAnOverflow)
{
    EXPECT_EQ(errorOf([] { return catalogueOf(siteOfNOx({{.span = 1e300}})).Count(); }), 6);
}

} // namespace k7deval::test
