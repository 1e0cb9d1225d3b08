#include "cli/ScreenJson.h"

#include "cli/CommandRun.h"
#include "cli/PrintedJson.h"
#include "cli/SampleSites.h"
#include "foundation/TextFunctions.h"
#include "sevenday/ctrl7Day.h"
#include "support/FakeServices.h"
#include "support/FakeSite.h"

#include <gtest/gtest.h>

#include <limits>
#include <set>

namespace k7deval::cli::test
{

namespace
{

using nlohmann::json;
using Names = std::set<std::string>;
using k7deval::test::TemporaryFolder;

/// The names in a text, a blank between them.
Names namesOf(std::string_view text)
{
    const auto words = splitAt(' ', text);
    return {words.begin(), words.end()};
}

const Names kWizard =
    namesOf("ctrl7DaySetUp1 ctrl7DayResult1 cmdBack cmdNext cmdSave chkPreview CommonDialog1");

const Names kSetUp =
    namesOf("cmbUnit cmbAnalyzer fraTargetTime lblFromDate txtFromDate cmdFromDate lblToDate "
            "txtToDate cmdToDate fraCriteria chkManualCals chk6of7 fraDisplay optShowInterval "
            "optShowAllCals optShowDriftTestCals chkShowSummary fraPerfSpec opt025Span lbl025Span "
            "chkUseAPS opt05Span lbl05Span opt005Absolute lbl005Absolute optOtherSpan lblOtherSpan "
            "txtOtherSpanValue lblOtherSpanValue optOtherAbsolute lblOtherAbsolute "
            "txtOtherAbsoluteValue lblOtherAbsoluteValue optPS9GC lblPS9GC fraTestInfo lblORIS "
            "txtORIS lblStackID txtStackID cmbStackID lblComponentID txtComponentID lblTestReason "
            "cmbTestReason lblTestNumber txtTestNumber");

const Names kResult = namesOf(
    "tvwCalTimes imgOnOffLine fraSummary lblSummary lblAnalyzerLabel imgOnlinePass "
    "lblOnlinePass imgOfflinePass lblOfflinePass imgOnlineFail lblOnlineFail "
    "imgOfflineFail lblOfflineFail imgOpDayNoCals lblOpDayNoCals lblCalTimeLabel "
    "lblCalTimeData lblInstSpanLabel lblInstSpanData lblCalResultLabel lblCalOnline "
    "fraZero lblZeroRefLabel lblZeroRefData lblZeroMeasLabel lblZeroMeasData "
    "lblZeroDriftLabel lblZeroDriftData lblZeroLimitLabel lblZeroLimitData lblZeroAPSLabel "
    "fraSpan lblSpanRefLabel lblSpanRefData lblSpanMeasLabel lblSpanMeasData "
    "lblSpanDriftLabel lblSpanDriftData lblSpanLimitLabel lblSpanLimitData lblSpanAPSLabel");

const Names kTest =
    namesOf("lngAnalyzedPID strAnalyzedScale dtStart dtEnd sngPercentOfSpanLimit "
            "sngPercentOfRefLimit sngAbsoluteLimit lngLimitRule blnSixOfSeven blnIncludeManualCals "
            "blnUseZeroCals blnRetrieveCals blnApplyLimits lngOpTimePID lngGoodCals lngFailedCals "
            "lngLastFailDay lngPrevFailDay lngUndeterminedDays strSummary dictCals dictDays "
            "objDaysToDisplay");

Names namesIn(const json& object)
{
    Names names;
    for (const auto& [name, content] : object.items())
        names.insert(name);
    return names;
}

void expectAllWidgets(const json& screen)
{
    const json& widgets = screen.at("Widgets");
    EXPECT_EQ(namesIn(widgets), kWizard);
    EXPECT_EQ(namesIn(widgets.at("ctrl7DaySetUp1").at("Widgets")), kSetUp);
    EXPECT_EQ(namesIn(widgets.at("ctrl7DayResult1").at("Widgets")), kResult);
    for (const auto* page : {"ctrl7DaySetUp1", "ctrl7DayResult1"}) {
        for (const auto& [name, widget] : widgets.at(page).at("Widgets").items()) {
            SCOPED_TRACE(name);
            EXPECT_TRUE(widget.at("Kind").is_string());
            EXPECT_TRUE(widget.at("Visible").is_boolean());
            EXPECT_TRUE(widget.at("Enabled").is_boolean());
            for (const auto* place : {"Left", "Top", "Width", "Height"})
                EXPECT_TRUE(widget.at(place).is_number()) << place;
        }
    }
}

Arguments passedTest()
{
    return {"--site",    siteOfTests(), "--unit",     "GT2",  "--analyzer",
            "NOX 213/H", "--from",      "2015-11-09", "--to", "2015-11-15"};
}

TEST(ScreenJson, HoldsEveryWidgetByName)
{
    const json document = driftAsJson(passedTest());
    EXPECT_EQ(namesIn(document), (Names{"Screen", "Test", "Messages"}));
    expectAllWidgets(document.at("Screen"));
    EXPECT_EQ(document.at("Messages"), json::array());
}

TEST(ScreenJson, HoldsWhatStandsOnTheScreen)
{
    const json document = driftAsJson(passedTest());
    const json& widgets = document.at("Screen").at("Widgets");
    EXPECT_EQ(widgets.at("cmdNext").at("Visible"), false);
    EXPECT_EQ(widgets.at("cmdNext").at("Caption"), "Next >>");
    EXPECT_EQ(widgets.at("ctrl7DayResult1").at("Left"), 120.0);
    const json& results = widgets.at("ctrl7DayResult1").at("Widgets");
    EXPECT_EQ(results.at("lblAnalyzerLabel").at("Caption"), "GT2 NOX 213/H");
    EXPECT_EQ(results.at("lblSummary").at("Caption").get<std::string>().substr(0, 37),
              "The 7-Day Drift Test has been passed.");
    EXPECT_EQ(results.at("lblSpanRefData").at("Caption"), "72.3");
    EXPECT_EQ(results.at("tvwCalTimes").at("Nodes").size(), 7U);
    EXPECT_EQ(results.at("tvwCalTimes").at("Nodes").at(4).at("Text"), "11/13/2015 08:55");
}

TEST(ScreenJson, HoldsTheStateOfTheTest)
{
    const json test = driftAsJson(passedTest()).at("Test");
    EXPECT_EQ(namesIn(test), kTest);
    EXPECT_EQ(test.at("lngGoodCals"), 7);
    EXPECT_EQ(test.at("dtStart"), "2015-11-09 00:00");
    EXPECT_EQ(test.at("dtEnd"), "2015-11-15 23:59");
    EXPECT_EQ(test.at("sngPercentOfSpanLimit"), 2.5);
    EXPECT_EQ(test.at("dictDays").size(), 7U);
    EXPECT_EQ(test.at("objDaysToDisplay").size(), 7U);
    EXPECT_EQ(test.at("dictCals").at("2015/11/13 08:55"),
              json::parse(R"({"CalTime": "2015-11-13 08:55", "InstrumentSpan": 80.0,
                  "IsOnline": true, "ManualCal": false, "UseZeroCal": true, "IsCompleteRun": true,
                  "AnalyzerPassed": true, "IsUsedIn7Day": true,
                  "ZeroCal": {"ReferenceValue": 0.0, "MeasuredValue": 0.0, "Drift": 0.0,
                      "DriftLimit": 2.0, "UsesAPS": false, "InjectionEndTime": "2015-11-13 08:55",
                      "GasLevel": "ZERO"},
                  "SpanCal": {"ReferenceValue": 72.3, "MeasuredValue": 69.8, "Drift": -2.5,
                      "DriftLimit": 5.0, "UsesAPS": true, "InjectionEndTime": "2015-11-13 08:59",
                      "GasLevel": "HIGH"}})"));
    EXPECT_EQ(test.at("dictDays").at("2015/11/13"),
              json::parse(R"({"TStamp": "2015-11-13 00:00", "IsOpDay": true,
                  "OpStatusIsUndetermined": true, "HasOnlineCals": true, "DayIsUsedIn7Day": true,
                  "CalsInDay": ["2015/11/13 08:55"], "DisplayedCals": ["2015/11/13 08:55"]})"));
}

TEST(ScreenJson, ShowsAnIntervalWithoutCalibrations)
{
    const json document = driftAsJson({"--site", siteOfTests()});
    expectAllWidgets(document.at("Screen"));
    EXPECT_EQ(document.at("Test").at("dictCals"), json::object());
    EXPECT_EQ(document.at("Test").at("objDaysToDisplay"), nullptr);
}

TEST(ScreenJson, ShowsAnEvaluationThatFailed)
{
    const Arguments drift{"--site",    siteOfTests(), "--unit",     "GT2",  "--analyzer",
                          "CO2 031/H", "--from",      "2015-05-20", "--to", "2015-05-26"};
    const json document = driftAsJson(drift);
    expectAllWidgets(document.at("Screen"));
    EXPECT_EQ(document.at("Test").at("dictCals"), nullptr);
    EXPECT_EQ(document.at("Messages").at(0), "DEval-003: 94, Invalid use of Null");
    EXPECT_EQ(document.at("Messages").size(), 5U);
    EXPECT_EQ(run(Arguments{"drift", "--json"} + drift).status, 2);
}

TEST(ScreenJson, ShowsARunWithoutAZeroInjection)
{
    const json document = driftAsJson({"--site", siteOfTests(), "--analyzer", "NOX 013/H", "--from",
                                       "2015-05-20", "--to", "2015-05-20"});
    const json& calibration = document.at("Test").at("dictCals").at("2015/05/20 07:25");
    EXPECT_EQ(calibration.at("ZeroCal"), nullptr);
    EXPECT_EQ(calibration.at("IsCompleteRun"), false);
}

TEST(ScreenJson, WritesTextsOfAnyLettersAndBytes)
{
    const TemporaryFolder folder;
    const std::string site = alteredSite(
        siteOfTests(), folder,
        {"UPDATE parameter SET name = 'Générateur \"1\"' WHERE pid = 100100000",
         "UPDATE parameter SET name = CAST(x'4E4FFF58' AS TEXT) WHERE pid = 111007501"});
    const json document = driftAsJson({"--site", site});
    const json& results = document.at("Screen").at("Widgets").at("ctrl7DayResult1").at("Widgets");
    EXPECT_EQ(results.at("lblAnalyzerLabel").at("Caption"), "Générateur \"1\" NO\uFFFDX/H");
}

struct FreshScreen {
    k7deval::test::FakeServices services;
    k7deval::test::FixedClock clock{makeDate(2021, 5, 20)};
    RegionalSettings regional;
    ctrl7Day control{{services, clock, regional}};
};

TEST(ScreenJson, IsValidForAScreenThatWasNeverEvaluated)
{
    const FreshScreen fresh;
    const json screen = printed(fresh.control.Properties());
    expectAllWidgets(screen);
    const json test = printed(fresh.control.test().Properties());
    EXPECT_EQ(namesIn(test), kTest);
    EXPECT_EQ(test.at("dtStart"), "1899-12-30 00:00");
    EXPECT_EQ(test.at("dictCals"), nullptr);
    EXPECT_EQ(test.at("objDaysToDisplay"), nullptr);
}

TEST(ScreenJson, HasNoNumberForWhatIsNone)
{
    const RegionalSettings regional;
    DriftTest test(regional);
    test.sngAbsoluteLimit = std::numeric_limits<float>::infinity();
    test.dictCals = std::make_shared<RunMap>();
    const auto calibration = std::make_shared<cls7DayAnalyzerCal>();
    calibration->SpanCal = std::make_shared<clsStrippedCal>();
    calibration->SpanCal->MeasuredValue = std::numeric_limits<float>::max();
    calibration->SpanCal->ReferenceValue = std::numeric_limits<float>::lowest();
    test.dictCals->Add("a", calibration);
    const json document = printed(test.Properties());
    EXPECT_EQ(document.at("sngAbsoluteLimit"), nullptr);
    const json& written = document.at("dictCals").at("a");
    EXPECT_EQ(written.at("SpanCal").at("Drift"), nullptr);
    EXPECT_EQ(written.at("AnalyzerPassed"), nullptr);
    EXPECT_EQ(written.at("SpanCal").at("MeasuredValue"), 3.402823e38);
}

} // namespace

} // namespace k7deval::cli::test
