#include "sevenday/SetUpRig.h"

#include <gtest/gtest.h>

/// What follows from the pick of a unit.
namespace k7deval::test
{

namespace
{

AnalyzerFacts analyzer(const std::string& name, const Variant& scale, std::int32_t suffix = 1,
                       const Variant& component = std::string("101"))
{
    AnalyzerFacts facts;
    facts.name = name;
    facts.scale = scale;
    facts.suffix = suffix;
    facts.component = component;
    return facts;
}

std::shared_ptr<SiteData> siteWith(const std::vector<AnalyzerFacts>& analyzers)
{
    auto site = siteOfUnits();
    for (const AnalyzerFacts& facts : analyzers)
        addAnalyzer(*site, facts);
    return site;
}

/// The analyzers that the list shows of a site.
Lines listOf(const std::vector<AnalyzerFacts>& analyzers)
{
    SetUpRig rig(siteWith(analyzers));
    rig.setup();
    EXPECT_EQ(rig.messages->lines(), Lines());
    return rig.page.cmbAnalyzer.List();
}

const Variant kHigh = std::string("HIGH");

/// The PID of the analyzer that stands behind the first entry: the selected parameter's measured
/// PID tells which of several calibration parameters of one name it is.
PID measuredPIDOfEntry(SetUpRig& rig, std::int32_t entry)
{
    rig.page.cmbAnalyzer.Pick(entry);
    return rig.page.AnalyzedPID();
}

} // namespace

struct ScaleCase {
    const char* what;
    Variant scale;
    const char* name;
};

TEST(SetUpUnit, TheScaleIsAppendedToTheNameOfTheAnalyzer)
{
    const ScaleCase rows[] = {
        {"low", std::string("LOW"), "NOX/L"},   {"mid", std::string("MID"), "NOX/M"},
        {"high", std::string("HIGH"), "NOX/H"}, {"single", std::string("SINGLE"), "NOX"},
        {"empty", std::string(), "NOX"},        {"lower case", std::string("low"), "NOX"},
        {"padded", std::string("LOW "), "NOX"}, {"Null", Null{}, "NOX"},
    };
    for (const ScaleCase& row : rows) {
        SetUpRig rig(siteOf(analyzer("NOX", row.scale)));
        rig.setup();
        EXPECT_EQ(rig.page.cmbAnalyzer.List(), Lines{row.name}) << row.what;
    }
}

struct ListingCase {
    const char* what;
    std::vector<AnalyzerFacts> analyzers;
    Lines listed;
};

TEST(SetUpUnit, ListsItsNamedCalibrationParametersInTheirOrder)
{
    const AnalyzerFacts nox = analyzer("NOX", kHigh);
    AnalyzerFacts ofOtherUnit = analyzer("SO2", kHigh);
    ofOtherUnit.unit = 2;
    AnalyzerFacts otherTable = analyzer("CO", kHigh, 2);
    otherTable.table = std::string("K7CALX");
    AnalyzerFacts noTable = analyzer("SO2", kHigh, 3);
    noTable.table = Null{};
    AnalyzerFacts leftOut = analyzer("CO", kHigh, 2);
    leftOut.leftOut = true;
    AnalyzerFacts notConfigured = analyzer("SO2", kHigh, 3);
    notConfigured.leftOut = Null{};
    const Variant single = std::string("SINGLE");
    const ListingCase rows[] = {
        {"in their order, of the unit alone",
         {analyzer("O2", kHigh), ofOtherUnit, analyzer("CO", kHigh, 2), analyzer("NOX", single, 3)},
         {"O2/H", "CO/H", "NOX"}},
        {"without what is no calibration", {otherTable, noTable, nox}, {"NOX/H"}},
        {"without what is marked so", {leftOut, notConfigured, nox}, {"SO2/H", "NOX/H"}},
        {"without a name it is passed over",
         {analyzer("", single), analyzer("NOX", kHigh, 2)},
         {"NOX/H"}},
        {"a scale alone is a name", {analyzer("", kHigh)}, {"/H"}},
        {"names differ by case", {nox, analyzer("NOx", kHigh, 2)}, {"NOX/H", "NOx/H"}},
    };
    for (const ListingCase& row : rows)
        EXPECT_EQ(listOf(row.analyzers), row.listed) << row.what;
}

TEST(SetUpUnit, AsksForTheParametersOfTypeThreeOnly)
{
    auto site = siteOf({});
    ParameterData other = site->parameter(AnalyzerFacts().calibrationPID());
    other.pid = MakePID(1, 120, 0, 75, 9);
    other.type = 4;
    other.attributes[attribute::kScale] = std::string("LOW");
    site->parameters.push_back(other);
    SetUpRig rig(site);
    rig.setup();
    EXPECT_EQ(rig.page.cmbAnalyzer.List(), Lines{"NOX/H"});
}

TEST(SetUpUnit, OfTwoOfOneNameTheLaterOneWithAComponentReplacesTheFirst)
{
    const AnalyzerFacts later = analyzer("NOX", kHigh, 2);
    SetUpRig rig(siteWith({analyzer("NOX", kHigh), later}));
    rig.setup();
    EXPECT_EQ(rig.page.cmbAnalyzer.List(), Lines{"NOX/H"});
    EXPECT_EQ(measuredPIDOfEntry(rig, 0), later.measuredPID());
}

TEST(SetUpUnit, OfTwoOfOneNameTheLaterOneWithoutAComponentIsPassedOver)
{
    const AnalyzerFacts first = analyzer("NOX", kHigh);
    const Variant without[] = {std::string(), Null{}, Empty{}};
    for (const Variant& component : without) {
        SetUpRig rig(siteWith({first, analyzer("NOX", kHigh, 2, component)}));
        rig.setup();
        EXPECT_EQ(measuredPIDOfEntry(rig, 0), first.measuredPID());
    }
}

TEST(SetUpUnit, TheLaterOneReplacesTheAnalyzerListedLastAndNotItsNamesake)
{
    const AnalyzerFacts nox = analyzer("NOX", kHigh);
    const AnalyzerFacts secondNox = analyzer("NOX", kHigh, 3);
    SetUpRig rig(siteWith({nox, analyzer("CO", kHigh, 2), secondNox}));
    rig.setup();
    EXPECT_EQ(rig.page.cmbAnalyzer.List(), (Lines{"NOX/H", "CO/H"}));
    EXPECT_EQ(measuredPIDOfEntry(rig, 0), nox.measuredPID());
    EXPECT_EQ(measuredPIDOfEntry(rig, 1), secondNox.measuredPID());
}

TEST(SetUpUnit, WithAnAnalyzerTheUnitsFactsAreTakenWithoutTrailingBlanks)
{
    SetUpRig rig;
    rig.setup();
    EXPECT_EQ(rig.page.txtORIS.Text(), "50292");
    EXPECT_EQ(rig.page.StackID(), "GT3");
    EXPECT_TRUE(rig.page.txtStackID.Visible());
    rig.site->parameter(kGT3).attributes[attribute::kUnitIdentifier] = std::string(" CS 1  ");
    rig.setup();
    EXPECT_EQ(rig.page.StackID(), " CS 1");
}

TEST(SetUpUnit, AUnitOfSeveralStacksOffersThem)
{
    SetUpRig rig;
    auto& attributes = rig.site->parameter(kGT3).attributes;
    attributes[attribute::kSeveralStacks] = true;
    attributes[attribute::kStackIdentifiers] = std::string("CS1  ;MS2");
    rig.setup();
    EXPECT_EQ(rig.page.cmbStackID.List(), (Lines{"CS1", "MS2"}));
    EXPECT_EQ(rig.page.StackID(), "CS1");
    EXPECT_EQ(rig.page.txtStackID.Text(), "GT3");
    EXPECT_FALSE(rig.page.txtStackID.Visible());
}

TEST(SetUpUnit, StacksThatAreNotMarkedAsSeveralAreNotOffered)
{
    SetUpRig rig;
    auto& attributes = rig.site->parameter(kGT3).attributes;
    attributes[attribute::kStackIdentifiers] = std::string("CS1;MS2");
    for (const Variant& several : {Variant(false), Variant(Null{})}) {
        attributes[attribute::kSeveralStacks] = several;
        rig.setup();
        EXPECT_EQ(rig.page.StackID(), "GT3");
    }
}

TEST(SetUpUnit, AUnitWithoutAnalyzersShowsNAAndLeavesTheFieldsOfTheUnitBefore)
{
    SetUpRig rig;
    rig.setup();
    EXPECT_EQ(
        rig.changesBy([&] { rig.page.cmbUnit.Pick(1); }),
        (Lines{"cmbAnalyzer.ItemData: [1] -> [0]", "cmbAnalyzer.List: [\"NOX/H\"] -> [\"N/A\"]",
               "cmbAnalyzer.Text: \"NOX/H\" -> \"N/A\"", "cmbUnit.ListIndex: 0 -> 1",
               "cmbUnit.Text: \"GT3\" -> \"GT4\"", "fraTestInfo.Visible: True -> False"}));
    EXPECT_FALSE(rig.page.Is40CFR75());
    EXPECT_EQ(rig.messages->lines(), Lines());
}

TEST(SetUpUnit, APickOfNAKeepsTheAnalyzerSelectedBefore)
{
    SetUpRig rig;
    rig.setup();
    rig.page.cmbUnit.Pick(1);
    EXPECT_EQ(rig.page.AnalyzedPID(), AnalyzerFacts().measuredPID());
    EXPECT_EQ(rig.changesBy([&] { rig.page.cmbAnalyzer.Pick(0); }), Lines());
}

TEST(SetUpUnit, PickingTheUnitAgainRunsItsRuleAgain)
{
    SetUpRig rig;
    rig.setup();
    addAnalyzer(*rig.site, analyzer("CO", kHigh, 2));
    rig.page.cmbUnit.Pick(0);
    EXPECT_EQ(rig.page.cmbAnalyzer.List(), (Lines{"NOX/H", "CO/H"}));
}

} // namespace k7deval::test
