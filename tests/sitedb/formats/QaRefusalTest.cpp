#include "sitedb/ImportCase.h"

#include <gtest/gtest.h>

namespace k7deval::sitedb::test
{

namespace
{

const JsonParts kQaParts{
    {"test", "/testSummaryData/1"},
    {"row", "/testSummaryData/1/calibrationInjectionData/0"},
};

constexpr JsonFault kQaFaults[] = {
    // The file.
    {"no ORIS code", "/orisCode", "", "the field is missing."},
    {"ORIS code null", "/orisCode", "null", "null is no ORIS code from 1 to 999999."},
    {"ORIS code as text", "/orisCode", R"("54")", R"("54" is no ORIS code from 1 to 999999.)"},
    {"ORIS code 0", "/orisCode", "0", "0 is no ORIS code from 1 to 999999."},
    {"ORIS code beyond 32 bits", "/orisCode", "99999999999",
     "99999999999 is no ORIS code from 1 to 999999."},
    {"ORIS code with a fraction", "/orisCode", "54.5", "54.5 is no ORIS code from 1 to 999999."},
    {"no tests", "/testSummaryData", "", "the field is missing."},
    {"tests null", "/testSummaryData", "null", "null is no list."},
    {"a test that is a number", "test", "7", "7 is no object."},
    {"events that are no list", "/certificationEventData", R"("none")", R"("none" is no list.)"},
    // A test.
    {"injections that are no list", "test/calibrationInjectionData", "{}", "an object is no list."},
    {"no unit", "test/unitId", "", "the field is missing."},
    {"unit as number", "test/unitId", "1", "1 is no text."},
    {"unit null", "test/unitId", "null", "null is no text."},
    {"an unknown unit", "test/unitId", R"("U9")",
     "the site has no unit U9, so its monitoring plan or span table has to be imported first."},
    {"no component", "test/componentId", "", "the field is missing."},
    {"component null", "test/componentId", "null", "null is no text."},
    {"an unknown component", "test/componentId", R"("011")",
     "the site has no component 011 of unit U1, so its monitoring plan or span table has to be "
     "imported first."},
    {"no scale", "test/spanScaleCode", "", "the field is missing."},
    {"an unknown scale code", "test/spanScaleCode", R"("X")", R"("X" is not H, L or null.)"},
    {"a scale that the component lacks", "test/spanScaleCode", "null",
     "the site has no scale SINGLE of component 010 of unit U1, so its monitoring plan or span "
     "table has to be imported first."},
    // A row.
    {"a row that is a text", "row", R"("none")", R"("none" is no object.)"},
    {"no indicator", "row/onlineOfflineIndicator", "", "the field is missing."},
    {"indicator 2", "row/onlineOfflineIndicator", "2", "2 is no indicator from 0 to 1."},
    {"indicator null", "row/onlineOfflineIndicator", "null", "null is no indicator from 0 to 1."},
    {"indicator as Boolean", "row/onlineOfflineIndicator", "true",
     "true is no indicator from 0 to 1."},
    {"no gas level", "row/upscaleGasLevelCode", "", "the field is missing."},
    {"an unknown gas level", "row/upscaleGasLevelCode", R"("ZERO")",
     R"("ZERO" is not LOW, MID or HIGH.)"},
    {"an empty gas level", "row/upscaleGasLevelCode", R"("")", R"("" is not LOW, MID or HIGH.)"},
    {"gas level as number", "row/upscaleGasLevelCode", "2", "2 is no text."},
    // Times.
    {"no zero date", "row/zeroInjectionDate", "", "the field is missing."},
    {"zero date null", "row/zeroInjectionDate", "null", "null is no date."},
    {"30 February", "row/zeroInjectionDate", R"("2020-02-30")", R"("2020-02-30" is no date.)"},
    {"29 February of a common year", "row/zeroInjectionDate", R"("2021-02-29")",
     R"("2021-02-29" is no date.)"},
    {"a date the American way", "row/zeroInjectionDate", R"("03/01/2020")",
     R"("03/01/2020" is no date.)"},
    {"a date with a time", "row/zeroInjectionDate", R"("2020-03-01T00:00")",
     R"("2020-03-01T00:00" is no date.)"},
    {"the year 20", "row/zeroInjectionDate", R"("0020-03-01")", R"("0020-03-01" is no date.)"},
    {"hour 24", "row/zeroInjectionHour", "24", "24 is no hour from 0 to 23."},
    {"hour -1", "row/zeroInjectionHour", "-1", "-1 is no hour from 0 to 23."},
    {"hour null", "row/zeroInjectionHour", "null", "null is no hour from 0 to 23."},
    {"hour as text", "row/zeroInjectionHour", R"("6")", R"("6" is no hour from 0 to 23.)"},
    {"no minute", "row/zeroInjectionMinute", "", "the field is missing."},
    {"minute 60", "row/zeroInjectionMinute", "60", "60 is no minute from 0 to 59."},
    {"upscale hour 24", "row/upscaleInjectionHour", "24", "24 is no hour from 0 to 23."},
    {"upscale date null", "row/upscaleInjectionDate", "null", "null is no date."},
    {"no upscale minute", "row/upscaleInjectionMinute", "", "the field is missing."},
    // Values.
    {"no measured value", "row/zeroMeasuredValue", "", "the field is missing."},
    {"no reference value", "row/upscaleReferenceValue", "", "the field is missing."},
    {"measured value as text", "row/upscaleMeasuredValue", R"("89.5")", R"("89.5" is no number.)"},
    {"measured value as list", "row/zeroMeasuredValue", "[0.1]", "a list is no number."},
    {"more than pure gas", "row/upscaleReferenceValue", "1000001",
     "1000001 lies outside -1000000 to 1000000."},
    {"a very negative reading", "row/zeroMeasuredValue", "-1e9",
     "-1000000000.0 lies outside -1000000 to 1000000."},
};

using QaRefusal = ImportCases<SmallSite, JsonFault>;

TEST_P(QaRefusal, NamesFilePathAndFieldAndLeavesTheSiteAsItWas)
{
    const std::string text = patchedQa(pathOf(GetParam(), kQaParts), GetParam().value);
    EXPECT_EQ(refused("qa.json", text), "qa.json: " + sentenceOf(GetParam(), kQaParts));
}

INSTANTIATE_TEST_SUITE_P(Qa, QaRefusal, testing::ValuesIn(kQaFaults));

using QaRefusals = ImportTest<SmallSite>;

TEST_F(QaRefusals, AStackThatTheSiteDoesNotHaveIsRefused)
{
    auto text = patchedQa("/testSummaryData/1/unitId", "null");
    text.replace(text.find(R"("stackPipeId": null)"), 19, R"("stackPipeId": "CS1")");
    EXPECT_EQ(refused("qa.json", text),
              "qa.json: testSummaryData[1].stackPipeId: the site has no unit CS1, so its "
              "monitoring plan or span table has to be imported first.");
}

TEST_F(QaRefusals, AnotherFacilityIsRefused)
{
    take("qa.json", smallQa());
    EXPECT_EQ(refused("other.json", patchedQa("/orisCode", "55")),
              "other.json: orisCode: 55 is another facility than the site's, which is 54.");
}

TEST_F(QaRefusals, TheSameFileIsRefusedUnderAnyName)
{
    take("qa.json", smallQa());
    EXPECT_EQ(refused("again.json", smallQa()),
              "again.json: the site has imported this file before, as qa.json.");
}

TEST_F(QaRefusals, RunsThatTheSiteHoldsAreRefused)
{
    take("qa.json", smallQa());
    EXPECT_EQ(refused("copy.json", smallQa() + "\n"),
              "copy.json: testSummaryData[1].calibrationInjectionData[0], zero injection: the site "
              "already holds a zero injection of U1 010 HIGH at 2020-03-01 06:10.");
}

TEST_F(QaRefusals, ARunThatStandsTwiceIsRefused)
{
    auto text = smallQa();
    for (const std::string from :
         {"2020-03-02", R"("zeroInjectionHour": 7)", R"("zeroInjectionMinute": 15)"}) {
        const std::string to = from == "2020-03-02" ? "2020-03-01"
                               : from.back() == '7' ? R"("zeroInjectionHour": 6)"
                                                    : R"("zeroInjectionMinute": 10)";
        text.replace(text.find(from), from.size(), to);
    }
    EXPECT_EQ(refused("qa.json", text),
              "qa.json: testSummaryData[1].calibrationInjectionData[1], zero injection: a zero "
              "injection of U1 010 HIGH at 2020-03-01 06:10 stands in the file twice.");
}

// The same file, cut off behind each of its bytes.
TEST_F(QaRefusals, AFileThatIsCutOffAnywhereIsRefused)
{
    const std::string whole = smallQa();
    const std::string before = dump(site);
    for (std::size_t length = 1; length < whole.size(); ++length) {
        const auto file = held.directory.write("qa.json", whole.substr(0, length));
        try {
            importFile(site, file, leavingOut());
            ADD_FAILURE() << "taken with " << length << " bytes";
        } catch (const ImportError& error) {
            ASSERT_NE(error.description().find("the JSON is cut off"), std::string::npos)
                << error.description();
        }
    }
    EXPECT_EQ(dump(site), before);
}

constexpr TableFault kBrokenJson[] = {
    {"cut off in its third line", "{\n\"orisCode\": 5,\n\"testS", "line 3: the JSON is cut off."},
    {"a comma too many", "{\"orisCode\": 54,\n \"testSummaryData\": [],\n}",
     "line 3: this is no JSON."},
    {"a number beyond all bounds", R"({"orisCode": 1e999})",
     "a number in the JSON is out of range."},
    {"a text that is no UTF-8", "{\"orisCode\": \"\xff\"}", "line 1: this is no JSON."},
    {"an object of something else", R"({"monitoringLocationData": []})",
     "orisCode: the field is missing."},
};

TEST_F(QaRefusals, BrokenJsonIsToldWithItsLine)
{
    for (const auto& broken : kBrokenJson) {
        const auto file = held.directory.write("qa.json", broken.content);
        EXPECT_EQ(refusal(held, file, {}), std::string("qa.json: ") + broken.sentence)
            << broken.what;
    }
}

TEST_F(QaRefusals, DeepNestingIsNoDanger)
{
    const std::string deep = R"({"orisCode": )" + std::string(200'000, '[');
    EXPECT_EQ(refused("qa.json", deep), "qa.json: line 1: the JSON is cut off.");
}

TEST_F(QaRefusals, ALongValueIsCutInTheSentence)
{
    const std::string longText =
        "\"" + std::string(38, 'x') + "\xC3\xA9" + std::string(50, 'y') + "\"";
    EXPECT_EQ(refused("qa.json", patchedQa("/testSummaryData/1/spanScaleCode", longText)),
              R"(qa.json: testSummaryData[1].spanScaleCode: ")" + std::string(38, 'x') +
                  "... is not H, L or null.");
}

} // namespace

} // namespace k7deval::sitedb::test
