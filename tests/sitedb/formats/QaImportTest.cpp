#include "sitedb/ImportCase.h"
#include "sitedb/SiteQueries.h"
#include "support/Places.h"

#include <gtest/gtest.h>

namespace k7deval::sitedb::test
{

namespace
{

constexpr PID kUnit = 100'100'000;

using QaImport = ImportTest<SmallSite>;

TEST_F(QaImport, ARowBecomesAZeroAndAnUpscaleRecordOfOneMinute)
{
    take("qa.json", smallQa());
    const auto records = allRecords(site, kNox, "HIGH");
    ASSERT_EQ(records.size(), 4U);
    EXPECT_EQ(records[0]->RunTime(), makeDate(2020, 3, 1, 6, 10));
    EXPECT_EQ(records[0]->InjectionEnd(), makeDate(2020, 3, 1, 6, 10));
    EXPECT_EQ(records[0]->GasLevelCode(), 0);
    EXPECT_EQ(records[0]->GasLevelText(), "ZERO");
    EXPECT_EQ(records[0]->MeasuredValue(), Variant(0.25));
    EXPECT_EQ(records[0]->ReferenceValue(), Variant(0.0));
    EXPECT_EQ(records[1]->RunTime(), makeDate(2020, 3, 1, 6, 10));
    EXPECT_EQ(records[1]->InjectionEnd(), makeDate(2020, 3, 1, 6, 15));
    EXPECT_EQ(records[1]->GasLevelCode(), 2);
    EXPECT_EQ(records[1]->GasLevelText(), "HIGH");
    EXPECT_EQ(records[1]->MeasuredValue(), Variant(89.5));
    EXPECT_EQ(records[1]->ReferenceValue(), Variant(90.0));
}

TEST_F(QaImport, EveryRecordCarriesScaleSpanSourceAndTheMarkOfAnAutomaticRun)
{
    take("qa.json", smallQa());
    for (const auto& record : allRecords(site, kNox, "HIGH")) {
        EXPECT_EQ(record->Scale(), "HIGH");
        EXPECT_EQ(record->Span(), Variant(100.0));
        EXPECT_EQ(record->SourceTagID(), Variant(kNox));
        EXPECT_EQ(record->Manual(), Variant(false));
    }
}

TEST_F(QaImport, AnOfflineRowBearsTheOfflineStatus)
{
    take("qa.json", smallQa());
    const auto records = allRecords(site, kNox, "HIGH");
    EXPECT_NE(records[0]->CalStatus(), status::kOfflineCalibration);
    EXPECT_NE(records[1]->CalStatus(), status::kOfflineCalibration);
    EXPECT_EQ(records[2]->CalStatus(), status::kOfflineCalibration);
    EXPECT_EQ(records[3]->CalStatus(), status::kOfflineCalibration);
    const auto codes = site.server()->StatusCodes();
    EXPECT_FALSE(codes->IsUnitOffline(records[0]->CalStatus()));
    EXPECT_TRUE(codes->IsUnitOffline(records[2]->CalStatus()));
}

TEST_F(QaImport, AValueThatIsNullStaysNull)
{
    take("qa.json", smallQa());
    const auto records = allRecords(site, kNox, "HIGH");
    EXPECT_EQ(records[2]->ReferenceValue(), Variant(Null{}));
    EXPECT_EQ(records[2]->MeasuredValue(), Variant(-0.125));
    EXPECT_EQ(records[3]->MeasuredValue(), Variant(Null{}));
    EXPECT_EQ(records[3]->ReferenceValue(), Variant(50.0));
}

struct GasLevelCase {
    const char* json;
    std::int32_t code;
    const char* text;
};

constexpr GasLevelCase kGasLevels[] = {
    {R"("HIGH")", 2, "HIGH"},
    {R"("MID")", 1, "MID"},
    {R"("LOW")", 1, "LOW"},
    {"null", 2, ""},
};

TEST_F(QaImport, GasLevelsHaveTheirCodes)
{
    for (const auto& level : kGasLevels) {
        SmallSite fresh;
        importText(fresh, "qa.json",
                   patchedQa("/testSummaryData/1/calibrationInjectionData/0/upscaleGasLevelCode",
                             level.json));
        const auto records = allRecords(fresh.site, kNox, "HIGH");
        EXPECT_EQ(records[1]->GasLevelCode(), level.code) << level.json;
        EXPECT_EQ(records[1]->GasLevelText(), level.text) << level.json;
    }
}

TEST_F(QaImport, TheDecimalsAreThoseOfTheLongestValueOfTheScale)
{
    take("qa.json", smallQa());
    EXPECT_EQ(attributeOf(site, kNoxHigh, attribute::kDecimals), Variant(3));
    EXPECT_EQ(attributeOf(site, kNoxHigh - 20'000, attribute::kDecimals), Variant(1));
}

TEST_F(QaImport, ALaterFileDoesNotTakeDecimalsAway)
{
    take("qa.json", smallQa());
    auto later = smallQa();
    for (auto at = later.find("2020-03"); at != std::string::npos; at = later.find("2020-03"))
        later.replace(at, 7, "2020-04");
    later.replace(later.find("-0.125"), 6, "-0.5");
    take("qa.json", later);
    EXPECT_EQ(attributeOf(site, kNoxHigh, attribute::kDecimals), Variant(3));
    EXPECT_EQ(allRecords(site, kNox, "HIGH").size(), 8U);
}

struct DecimalsCase {
    const char* value;
    std::int32_t decimals;
};

constexpr DecimalsCase kDecimals[] = {
    {"89", 1},           {"89.5", 1}, {"89.25", 2}, {"0.00001", 5},
    {"0.1234567891", 6}, {"1e-9", 6}, {"1e3", 1},
};

TEST_F(QaImport, DecimalsAreAtLeastOneAndAtMostSix)
{
    for (const auto& entry : kDecimals) {
        SmallSite fresh;
        auto text = smallQa();
        text.replace(text.find("0.25,"), 4, entry.value);
        text.replace(text.find("-0.125"), 6, "0");
        importText(fresh, "qa.json", text);
        EXPECT_EQ(attributeOf(fresh.site, kNoxHigh, attribute::kDecimals), Variant(entry.decimals))
            << entry.value;
    }
}

TEST_F(QaImport, TheOrisCodeGoesToAllUnitsAlsoToThoseThatComeLater)
{
    take("more.csv", kSpanColumns + "U2,010,NOX,H,100,PPM\n");
    EXPECT_EQ(attributeOf(site, kUnit, attribute::kOrisCode), Variant(Null{}));
    take("qa.json", smallQa());
    take("load.csv", "date,hour,gross_load_mw\n2020-01-01,0,5\n", forUnit("U3"));
    for (const PID unit : {100'100'000, 200'100'000, 300'100'000})
        EXPECT_EQ(attributeOf(site, unit, attribute::kOrisCode), Variant(54)) << unit;
}

TEST_F(QaImport, TestsWithoutInjectionsAreSteppedOver)
{
    auto text = patchedQa("/certificationEventData", "[{}, {}]");
    const auto report = take("qa.json", text);
    EXPECT_EQ(report.steppedOver,
              (std::vector<std::string>{
                  R"(testSummaryData[0]: the test "LINE" has no calibration injections.)",
                  "certificationEventData: 2 entries."}));
    EXPECT_EQ(report.counts,
              (std::vector<std::string>{"1 test", "2 zero injections", "2 upscale injections"}));
}

TEST_F(QaImport, GenuineFilesWithoutSevenDayTestsLeaveNoTrace)
{
    for (const char* name :
         {"ecmps_qa_54_small.json", "ecmps_qa_54_SCT1_linearity_and_events.json"}) {
        SmallSite fresh;
        const std::string before = dump(fresh.site);
        const auto report = importFile(
            fresh.site, k7deval::test::projectFile(std::string("tests/sitedb/data/") + name), {});
        EXPECT_EQ(report.counts.front(), "0 tests") << name;
        EXPECT_GE(report.steppedOver.size(), 3U) << name;
        EXPECT_EQ(dump(fresh.site), before) << name;
    }
}

TEST_F(QaImport, TheOtherSpellingOfTheComponentFieldIsRead)
{
    auto text = smallQa();
    for (auto at = text.find("componentId"); at != std::string::npos; at = text.find("componentId"))
        text.replace(at, 11, "componentID");
    take("qa.json", text);
    EXPECT_EQ(allRecords(site, kNox, "HIGH").size(), 4U);
}

TEST_F(QaImport, AGzipFileIsUnpacked)
{
    const auto report = take("qa.json.gz", gzip(smallQa()));
    EXPECT_EQ(report.format, "ECMPS QA data");
    EXPECT_EQ(allRecords(site, kNox, "HIGH").size(), 4U);
}

TEST_F(QaImport, AByteOrderMarkIsNoMatter)
{
    take("qa.json", "\xEF\xBB\xBF" + smallQa());
    EXPECT_EQ(allRecords(site, kNox, "HIGH").size(), 4U);
}

struct LeftOutCase {
    const char* what;
    const char* operation;
    const char* field;
    const char* value;
    const char* sentence; ///< Behind the path of the first row.
    std::size_t zeros;    ///< Of the file's two.
    std::size_t upscales; ///< Of the file's two.
    const char* firstUpscaleRun;
};

constexpr LeftOutCase kLeftOut[] = {
    {"the zero hour", "replace", "/zeroInjectionHour", "24",
     ".zeroInjectionHour: 24 is no hour from 0 to 23.", 1, 2, "2020/03/01 06:15"},
    {"the zero date", "replace", "/zeroInjectionDate", "null",
     ".zeroInjectionDate: null is no date.", 1, 2, "2020/03/01 06:15"},
    {"the zero reading", "replace", "/zeroMeasuredValue", "true",
     ".zeroMeasuredValue: true is no number.", 1, 2, "2020/03/01 06:10"},
    {"the upscale minute", "replace", "/upscaleInjectionMinute", "60",
     ".upscaleInjectionMinute: 60 is no minute from 0 to 59.", 2, 1, "2020/03/02 07:15"},
    {"the gas level", "replace", "/upscaleGasLevelCode", "3", ".upscaleGasLevelCode: 3 is no text.",
     2, 1, "2020/03/02 07:15"},
    {"the upscale reference", "remove", "/upscaleReferenceValue", "",
     ".upscaleReferenceValue: the field is missing.", 2, 1, "2020/03/02 07:15"},
    {"the indicator of both", "replace", "/onlineOfflineIndicator", "7",
     ".onlineOfflineIndicator: 7 is no indicator from 0 to 1.", 1, 1, "2020/03/02 07:15"},
    {"the whole row", "replace", "", "null", ": null is no object.", 1, 1, "2020/03/02 07:15"},
};

void PrintTo(const LeftOutCase& entry, std::ostream* stream)
{
    *stream << entry.what;
}

using LeavingOut = ImportCases<SmallSite, LeftOutCase>;
using LeavingOutUnreadable = ImportTest<SmallSite>;

TEST_P(LeavingOut, TakesAllButTheInjectionThatCannotBeRead)
{
    const auto& entry = GetParam();
    const std::string row = "/testSummaryData/1/calibrationInjectionData/0";
    const auto report = take("qa.json", patchedQa(row + entry.field, entry.value), leavingOut());
    EXPECT_EQ(report.leftOut,
              std::vector<std::string>{"qa.json: testSummaryData[1].calibrationInjectionData[0]" +
                                       std::string(entry.sentence)});
    std::size_t zeros = 0;
    std::vector<std::string> upscaleRuns;
    for (const auto& record : allRecords(site, kNox, "HIGH")) {
        if (record->GasLevelCode() == 0)
            ++zeros;
        else
            upscaleRuns.push_back(minuteKey(record->RunTime()));
    }
    EXPECT_EQ(zeros, entry.zeros);
    ASSERT_EQ(upscaleRuns.size(), entry.upscales);
    EXPECT_EQ(upscaleRuns.front(), entry.firstUpscaleRun);
    const std::size_t leftOut = 4 - entry.zeros - entry.upscales;
    EXPECT_EQ(report.counts.back(),
              leftOut == 1 ? "1 injection left out" : "2 injections left out");
}

INSTANTIATE_TEST_SUITE_P(Qa, LeavingOut, testing::ValuesIn(kLeftOut));

TEST_F(LeavingOutUnreadable, DoesNotExcuseATestThatCannotBePlaced)
{
    EXPECT_EQ(refused("qa.json", patchedQa("/testSummaryData/1/unitId", R"("U9")"), leavingOut()),
              "qa.json: testSummaryData[1].unitId: the site has no unit U9, so its monitoring plan "
              "or span table has to "
              "be imported first.");
}

TEST_F(LeavingOutUnreadable, TwoFaultsOfARowAreListedApart)
{
    auto text = smallQa();
    text.replace(text.find(R"("zeroInjectionHour": 6)"), 22, R"("zeroInjectionHour": 24)");
    text.replace(text.find(R"("upscaleInjectionHour": 6)"), 25, R"("upscaleInjectionHour": 25)");
    const auto report = take("qa.json", text, leavingOut());
    const std::string row = "qa.json: testSummaryData[1].calibrationInjectionData[0]";
    EXPECT_EQ(report.leftOut, (std::vector<std::string>{
                                  row + ".zeroInjectionHour: 24 is no hour from 0 to 23.",
                                  row + ".upscaleInjectionHour: 25 is no hour from 0 to 23."}));
    EXPECT_EQ(allRecords(site, kNox, "HIGH").size(), 2U);
}

} // namespace

} // namespace k7deval::sitedb::test
