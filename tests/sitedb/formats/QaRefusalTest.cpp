#include "sitedb/ImportCase.h"

#include <gtest/gtest.h>

namespace k7deval::sitedb::test
{

namespace
{

struct QaFault {
    const char* what;
    const char* operation;
    const char* path;
    const char* value;
    const char* sentence; ///< Behind "qa.json: ".
};

void PrintTo(const QaFault& fault, std::ostream* stream)
{
    *stream << fault.what;
}

constexpr const char* kFirstRow = "/testSummaryData/1/calibrationInjectionData/0";

// Of the path only what stands below the first row, where it doesn't begin with a slash.
constexpr QaFault kQaFaults[] = {
    // The file.
    {"no ORIS code", "remove", "/orisCode", "", "orisCode: the field is missing."},
    {"ORIS code null", "replace", "/orisCode", "null",
     "orisCode: null is no ORIS code from 1 to 999999."},
    {"ORIS code as text", "replace", "/orisCode", R"("54")",
     R"(orisCode: "54" is no ORIS code from 1 to 999999.)"},
    {"ORIS code 0", "replace", "/orisCode", "0", "orisCode: 0 is no ORIS code from 1 to 999999."},
    {"ORIS code beyond 32 bits", "replace", "/orisCode", "99999999999",
     "orisCode: 99999999999 is no ORIS code from 1 to 999999."},
    {"ORIS code with a fraction", "replace", "/orisCode", "54.5",
     "orisCode: 54.5 is no ORIS code from 1 to 999999."},
    {"no tests", "remove", "/testSummaryData", "", "testSummaryData: the field is missing."},
    {"tests null", "replace", "/testSummaryData", "null", "testSummaryData: null is no list."},
    {"a test that is a number", "replace", "/testSummaryData/1", "7",
     "testSummaryData[1]: 7 is no object."},
    {"events that are no list", "add", "/certificationEventData", R"("none")",
     R"(certificationEventData: "none" is no list.)"},
    // A test.
    {"injections that are no list", "replace", "/testSummaryData/1/calibrationInjectionData", "{}",
     "testSummaryData[1].calibrationInjectionData: an object is no list."},
    {"no unit", "remove", "/testSummaryData/1/unitId", "",
     "testSummaryData[1].unitId: the field is missing."},
    {"unit as number", "replace", "/testSummaryData/1/unitId", "1",
     "testSummaryData[1].unitId: 1 is no text."},
    {"unit null", "replace", "/testSummaryData/1/unitId", "null",
     "testSummaryData[1].unitId: null is no text."},
    {"an unknown unit", "replace", "/testSummaryData/1/unitId", R"("U9")",
     "testSummaryData[1].unitId: the site has no unit U9, so its monitoring plan or span table has "
     "to be imported "
     "first."},
    {"no component", "remove", "/testSummaryData/1/componentId", "",
     "testSummaryData[1].componentId: the field is missing."},
    {"component null", "replace", "/testSummaryData/1/componentId", "null",
     "testSummaryData[1].componentId: null is no text."},
    {"an unknown component", "replace", "/testSummaryData/1/componentId", R"("011")",
     "testSummaryData[1].componentId: the site has no component 011 of unit U1, so its monitoring "
     "plan or span table "
     "has to be imported first."},
    {"no scale", "remove", "/testSummaryData/1/spanScaleCode", "",
     "testSummaryData[1].spanScaleCode: the field is missing."},
    {"an unknown scale code", "replace", "/testSummaryData/1/spanScaleCode", R"("X")",
     R"(testSummaryData[1].spanScaleCode: "X" is not H, L or null.)"},
    {"a scale that the component lacks", "replace", "/testSummaryData/1/spanScaleCode", "null",
     "testSummaryData[1].spanScaleCode: the site has no scale SINGLE of component 010 of unit U1, "
     "so its monitoring plan or span table has to be imported first."},
    // A row.
    {"a row that is a text", "replace", "", R"("none")", R"(: "none" is no object.)"},
    {"no indicator", "remove", "/onlineOfflineIndicator", "",
     ".onlineOfflineIndicator: the field is missing."},
    {"indicator 2", "replace", "/onlineOfflineIndicator", "2",
     ".onlineOfflineIndicator: 2 is no indicator from 0 to 1."},
    {"indicator null", "replace", "/onlineOfflineIndicator", "null",
     ".onlineOfflineIndicator: null is no indicator from 0 to 1."},
    {"indicator as Boolean", "replace", "/onlineOfflineIndicator", "true",
     ".onlineOfflineIndicator: true is no indicator from 0 to 1."},
    {"no gas level", "remove", "/upscaleGasLevelCode", "",
     ".upscaleGasLevelCode: the field is missing."},
    {"an unknown gas level", "replace", "/upscaleGasLevelCode", R"("ZERO")",
     R"(.upscaleGasLevelCode: "ZERO" is not LOW, MID or HIGH.)"},
    {"an empty gas level", "replace", "/upscaleGasLevelCode", R"("")",
     R"(.upscaleGasLevelCode: "" is not LOW, MID or HIGH.)"},
    {"gas level as number", "replace", "/upscaleGasLevelCode", "2",
     ".upscaleGasLevelCode: 2 is no text."},
    // Times.
    {"no zero date", "remove", "/zeroInjectionDate", "",
     ".zeroInjectionDate: the field is missing."},
    {"zero date null", "replace", "/zeroInjectionDate", "null",
     ".zeroInjectionDate: null is no date."},
    {"30 February", "replace", "/zeroInjectionDate", R"("2020-02-30")",
     R"(.zeroInjectionDate: "2020-02-30" is no date.)"},
    {"29 February of a common year", "replace", "/zeroInjectionDate", R"("2021-02-29")",
     R"(.zeroInjectionDate: "2021-02-29" is no date.)"},
    {"a date the American way", "replace", "/zeroInjectionDate", R"("03/01/2020")",
     R"(.zeroInjectionDate: "03/01/2020" is no date.)"},
    {"a date with a time", "replace", "/zeroInjectionDate", R"("2020-03-01T00:00")",
     R"(.zeroInjectionDate: "2020-03-01T00:00" is no date.)"},
    {"the year 20", "replace", "/zeroInjectionDate", R"("0020-03-01")",
     R"(.zeroInjectionDate: "0020-03-01" is no date.)"},
    {"hour 24", "replace", "/zeroInjectionHour", "24",
     ".zeroInjectionHour: 24 is no hour from 0 to 23."},
    {"hour -1", "replace", "/zeroInjectionHour", "-1",
     ".zeroInjectionHour: -1 is no hour from 0 to 23."},
    {"hour null", "replace", "/zeroInjectionHour", "null",
     ".zeroInjectionHour: null is no hour from 0 to 23."},
    {"hour as text", "replace", "/zeroInjectionHour", R"("6")",
     R"(.zeroInjectionHour: "6" is no hour from 0 to 23.)"},
    {"no minute", "remove", "/zeroInjectionMinute", "",
     ".zeroInjectionMinute: the field is missing."},
    {"minute 60", "replace", "/zeroInjectionMinute", "60",
     ".zeroInjectionMinute: 60 is no minute from 0 to 59."},
    {"upscale hour 24", "replace", "/upscaleInjectionHour", "24",
     ".upscaleInjectionHour: 24 is no hour from 0 to 23."},
    {"upscale date null", "replace", "/upscaleInjectionDate", "null",
     ".upscaleInjectionDate: null is no date."},
    {"no upscale minute", "remove", "/upscaleInjectionMinute", "",
     ".upscaleInjectionMinute: the field is missing."},
    // Values.
    {"no measured value", "remove", "/zeroMeasuredValue", "",
     ".zeroMeasuredValue: the field is missing."},
    {"no reference value", "remove", "/upscaleReferenceValue", "",
     ".upscaleReferenceValue: the field is missing."},
    {"measured value as text", "replace", "/upscaleMeasuredValue", R"("89.5")",
     R"(.upscaleMeasuredValue: "89.5" is no number.)"},
    {"measured value as list", "replace", "/zeroMeasuredValue", "[0.1]",
     ".zeroMeasuredValue: a list is no number."},
    {"more than pure gas", "replace", "/upscaleReferenceValue", "1000001",
     ".upscaleReferenceValue: 1000001 lies outside -1000000 to 1000000."},
    {"a very negative reading", "replace", "/zeroMeasuredValue", "-1e9",
     ".zeroMeasuredValue: -1000000000.0 lies outside -1000000 to 1000000."},
};

std::string fullPath(const QaFault& fault)
{
    const std::string path = fault.path;
    const bool isOfFile = path.starts_with("/testSummaryData") || path == "/orisCode" ||
                          path == "/certificationEventData";
    return isOfFile ? path : kFirstRow + path;
}

std::string fullSentence(const QaFault& fault)
{
    const std::string sentence = fault.sentence;
    const bool isOfRow = sentence.front() == '.' || sentence.front() == ':';
    return "qa.json: " +
           (isOfRow ? "testSummaryData[1].calibrationInjectionData[0]" + sentence : sentence);
}

class QaRefusal : public testing::TestWithParam<QaFault>
{
};

TEST_P(QaRefusal, NamesFilePathAndFieldAndLeavesTheSiteAsItWas)
{
    SmallSite held;
    const auto& fault = GetParam();
    const auto file =
        held.directory.write("qa.json", patchedQa(fault.operation, fullPath(fault), fault.value));
    EXPECT_EQ(refusal(held, file, {}), fullSentence(fault));
}

INSTANTIATE_TEST_SUITE_P(Qa, QaRefusal, testing::ValuesIn(kQaFaults));

TEST(QaRefusals, AStackThatTheSiteDoesNotHaveIsRefused)
{
    SmallSite held;
    auto text = patchedQa("replace", "/testSummaryData/1/unitId", "null");
    text.replace(text.find(R"("stackPipeId": null)"), 19, R"("stackPipeId": "CS1")");
    EXPECT_EQ(refusal(held, held.directory.write("qa.json", text), {}),
              "qa.json: testSummaryData[1].stackPipeId: the site has no unit CS1, so its "
              "monitoring plan or span table has to be imported first.");
}

TEST(QaRefusals, AnotherFacilityIsRefused)
{
    SmallSite held;
    importFile(held.site, held.directory.write("qa.json", smallQa()), {});
    const auto file = held.directory.write("other.json", patchedQa("replace", "/orisCode", "55"));
    EXPECT_EQ(refusal(held, file, {}),
              "other.json: orisCode: 55 is another facility than the site's, which is 54.");
}

TEST(QaRefusals, TheSameFileIsRefusedUnderAnyName)
{
    SmallSite held;
    importFile(held.site, held.directory.write("qa.json", smallQa()), {});
    EXPECT_EQ(refusal(held, held.directory.write("again.json", smallQa()), {}),
              "again.json: the site has imported this file before, as qa.json.");
}

TEST(QaRefusals, RunsThatTheSiteHoldsAreRefused)
{
    SmallSite held;
    importFile(held.site, held.directory.write("qa.json", smallQa()), {});
    EXPECT_EQ(refusal(held, held.directory.write("copy.json", smallQa() + "\n"), {}),
              "copy.json: testSummaryData[1].calibrationInjectionData[0], zero injection: the site "
              "already holds a zero injection of U1 010 HIGH at 2020-03-01 06:10.");
}

TEST(QaRefusals, ARunThatStandsTwiceIsRefused)
{
    SmallSite held;
    auto text = smallQa();
    for (const std::string from :
         {"2020-03-02", R"("zeroInjectionHour": 7)", R"("zeroInjectionMinute": 15)"}) {
        const std::string to = from == "2020-03-02" ? "2020-03-01"
                               : from.back() == '7' ? R"("zeroInjectionHour": 6)"
                                                    : R"("zeroInjectionMinute": 10)";
        text.replace(text.find(from), from.size(), to);
    }
    EXPECT_EQ(refusal(held, held.directory.write("qa.json", text), {}),
              "qa.json: testSummaryData[1].calibrationInjectionData[1], zero injection: a zero "
              "injection of U1 010 HIGH at 2020-03-01 06:10 stands in the file twice.");
}

// The same file, cut off behind each of its bytes.
TEST(QaRefusals, AFileThatIsCutOffAnywhereIsRefused)
{
    SmallSite held;
    const std::string whole = smallQa();
    const std::string before = dump(held.site);
    for (std::size_t length = 1; length < whole.size(); ++length) {
        const auto file = held.directory.write("qa.json", whole.substr(0, length));
        try {
            importFile(held.site, file, leavingOut());
            ADD_FAILURE() << "taken with " << length << " bytes";
        } catch (const ImportError& error) {
            ASSERT_NE(error.description().find("the JSON is cut off"), std::string::npos)
                << error.description();
        }
    }
    EXPECT_EQ(dump(held.site), before);
}

struct BrokenJson {
    const char* what;
    const char* content;
    const char* sentence;
};

constexpr BrokenJson kBrokenJson[] = {
    {"cut off in its third line", "{\n\"orisCode\": 5,\n\"testS", "line 3: the JSON is cut off."},
    {"a comma too many", "{\"orisCode\": 54,\n \"testSummaryData\": [],\n}",
     "line 3: this is no JSON."},
    {"a number beyond all bounds", R"({"orisCode": 1e999})",
     "a number in the JSON is out of range."},
    {"a text that is no UTF-8", "{\"orisCode\": \"\xff\"}", "line 1: this is no JSON."},
    {"an object of something else", R"({"monitoringLocationData": []})",
     "orisCode: the field is missing."},
};

TEST(QaRefusals, BrokenJsonIsToldWithItsLine)
{
    SmallSite held;
    for (const auto& broken : kBrokenJson) {
        const auto file = held.directory.write("qa.json", broken.content);
        EXPECT_EQ(refusal(held, file, {}), std::string("qa.json: ") + broken.sentence)
            << broken.what;
    }
}

TEST(QaRefusals, DeepNestingIsNoDanger)
{
    SmallSite held;
    const std::string deep = R"({"orisCode": )" + std::string(200'000, '[');
    EXPECT_EQ(refusal(held, held.directory.write("qa.json", deep), {}),
              "qa.json: line 1: the JSON is cut off.");
}

TEST(QaRefusals, ALongValueIsCutInTheSentence)
{
    SmallSite held;
    const std::string longText =
        "\"" + std::string(38, 'x') + "\xC3\xA9" + std::string(50, 'y') + "\"";
    const auto file = held.directory.write(
        "qa.json", patchedQa("replace", "/testSummaryData/1/spanScaleCode", longText));
    EXPECT_EQ(refusal(held, file, {}), R"(qa.json: testSummaryData[1].spanScaleCode: ")" +
                                           std::string(38, 'x') + "... is not H, L or null.");
}

} // namespace

} // namespace k7deval::sitedb::test
