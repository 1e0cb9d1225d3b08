#include "sitedb/ImportCase.h"

#include "foundation/TextFunctions.h"

#include <nlohmann/json.hpp>

#include <algorithm>

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

std::string fullPath(const std::string& path, const JsonParts& parts)
{
    const std::size_t end = std::min(path.find('/'), path.size());
    return end == 0 ? path : parts.at(path.substr(0, end)) + path.substr(end);
}

/// "a[0].b" for "/a/0/b".
std::string fieldAt(const std::string& path)
{
    std::string field;
    for (const auto step : splitAt('/', std::string_view(path).substr(1))) {
        const bool isIndex = isDigit(step.front());
        field += isIndex ? "[" : field.empty() ? "" : ".";
        field += step;
        field += isIndex ? "]" : "";
    }
    return field;
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

ImportReport importText(EmptySite& held, const std::string& name, const std::string& text,
                        const ImportOptions& options)
{
    return importFile(held.site, held.directory.write(name, text), options);
}

void PrintTo(const TableFault& fault, std::ostream* stream)
{
    *stream << fault.what;
}

void PrintTo(const JsonFault& fault, std::ostream* stream)
{
    *stream << fault.what;
}

std::string pathOf(const JsonFault& fault, const JsonParts& parts)
{
    return fullPath(fault.path, parts);
}

std::string sentenceOf(const JsonFault& fault, const JsonParts& parts)
{
    const char* named = fault.named != nullptr ? fault.named : fault.path;
    return fieldAt(fullPath(named, parts)) + ": " + fault.sentence;
}

std::string smallQa()
{
    return kSmallQa;
}

std::string patchedQa(const std::string& path, const std::string& value)
{
    return patchedJson(kSmallQa, path, value);
}

std::string patchedJson(const std::string& text, const std::string& path, const std::string& value)
{
    auto document = nlohmann::json::parse(text);
    if (!value.empty()) {
        document[nlohmann::json::json_pointer(path)] = nlohmann::json::parse(value);
        return document.dump(1);
    }
    const nlohmann::json step{{"op", "remove"}, {"path", path}};
    return document.patch(nlohmann::json::array({step})).dump(1);
}

} // namespace k7deval::sitedb::test
