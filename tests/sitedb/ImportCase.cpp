#include "sitedb/ImportCase.h"

#include <nlohmann/json.hpp>

#include <map>

namespace k7deval::sitedb::test
{

namespace
{

constexpr const char* kSmallSpans =
    "unit_id,component_id,component_type,span_scale,span_value,units\n"
    "U1,010,NOX,H,100,PPM\n"
    "U1,010,NOX,L,10,PPM\n"
    "U1,020,CO2,,20,PCT\n";

constexpr const char* kSmallQa = R"({
 "orisCode": 54,
 "testSummaryData": [
  {"unitId": "U1", "testTypeCode": "LINE", "componentId": "010", "spanScaleCode": "H",
   "calibrationInjectionData": []},
  {"stackPipeId": null, "unitId": "U1", "testTypeCode": "7DAY", "componentId": "010",
   "spanScaleCode": "H", "calibrationInjectionData": [
    {"onlineOfflineIndicator": 1, "upscaleGasLevelCode": "HIGH",
     "zeroInjectionDate": "2020-03-01", "zeroInjectionHour": 6, "zeroInjectionMinute": 10,
     "upscaleInjectionDate": "2020-03-01", "upscaleInjectionHour": 6, "upscaleInjectionMinute": 15,
     "zeroMeasuredValue": 0.25, "upscaleMeasuredValue": 89.5,
     "zeroReferenceValue": 0.0, "upscaleReferenceValue": 90},
    {"onlineOfflineIndicator": 0, "upscaleGasLevelCode": "MID",
     "zeroInjectionDate": "2020-03-02", "zeroInjectionHour": 7, "zeroInjectionMinute": 15,
     "upscaleInjectionDate": "2020-03-02", "upscaleInjectionHour": 7, "upscaleInjectionMinute": 20,
     "zeroMeasuredValue": -0.125, "upscaleMeasuredValue": null,
     "zeroReferenceValue": null, "upscaleReferenceValue": 50}
   ]}
 ]
})";

/// The bytes of a site with these spans. They are made once for all tests of a program.
const std::string& bytesOfSite(const std::string& spans)
{
    static std::map<std::string, std::string> made;
    auto& bytes = made[spans];
    if (bytes.empty()) {
        const TemporaryDirectory directory;
        auto site = makeSite(directory / "site.k7site");
        if (!spans.empty())
            importFile(site, directory.write("spans.csv", spans), {});
        bytes = readFile(directory / "site.k7site");
    }
    return bytes;
}

} // namespace

EmptySite::EmptySite() : EmptySite(bytesOfSite("")) {}

EmptySite::EmptySite(const std::string& bytes)
    : path(directory.write("site.k7site", bytes)), site(makeSite(path))
{
}

SmallSite::SmallSite() : EmptySite(bytesOfSite(kSmallSpans)) {}

std::string refusal(EmptySite& held, const std::filesystem::path& file,
                    const ImportOptions& options)
{
    const std::string tables = dump(held.site);
    const std::string bytes = readFile(held.path);
    std::string sentence;
    try {
        importFile(held.site, file, options);
        ADD_FAILURE() << "the file was taken";
    } catch (const ImportError& error) {
        sentence = error.description();
    }
    EXPECT_EQ(dump(held.site), tables);
    EXPECT_TRUE(readFile(held.path) == bytes) << "the file of the site has changed";
    return sentence;
}

std::string smallQa()
{
    return kSmallQa;
}

std::string patchedQa(const std::string& operation, const std::string& path,
                      const std::string& value)
{
    return patchedJson(kSmallQa, operation, path, value);
}

std::string patchedJson(const std::string& text, const std::string& operation,
                        const std::string& path, const std::string& value)
{
    nlohmann::json step{{"op", operation}, {"path", path}};
    if (!value.empty())
        step["value"] = nlohmann::json::parse(value);
    return nlohmann::json::parse(text).patch(nlohmann::json::array({step})).dump(1);
}

} // namespace k7deval::sitedb::test
