#include "sitedb/EmissionsCase.h"

#include "sitedb/PlainText.h"
#include "sitedb/SiteQueries.h"
#include "sitedb/sql/Connection.h"
#include "sitedb/tables/TimeText.h"
#include "support/Places.h"

namespace k7deval::sitedb::test
{

using nlohmann::json;

std::string smallEmissions()
{
    return readFile(k7deval::test::projectFile("tests/sitedb/data/ecmps_emissions_small.json"));
}

std::string patchedEmissions(const std::string& path, const std::string& value)
{
    return patchedJson(smallEmissions(), path, value);
}

json emissionsHour(const std::string& day, int hour, double value)
{
    return {{"unitId", "U1"},
            {"date", day},
            {"hour", hour},
            {"operatingTime", 1},
            {"monitorHourlyValueData",
             {{{"parameterCode", "NOXC"},
               {"unadjustedHourlyValue", value},
               {"modcCode", "01"},
               {"componentId", "010"}}}}};
}

std::string emissionsOf(const std::vector<json>& hours)
{
    return json{{"orisCode", 54}, {"year", 2021}, {"quarter", 1}, {"hourlyOperatingData", hours}}
        .dump();
}

std::string emissionsOfUnits(int units, int hours)
{
    std::string text = R"({"orisCode": 54, "year": 2021, "quarter": 1, "hourlyOperatingData": [)";
    const std::int64_t first = wholeSeconds(makeDate(2021, 1, 1));
    for (int hour = 0; hour < hours; ++hour) {
        const auto day = isoDate(dateFromSeconds(first + hour / 24 * std::int64_t{86'400}));
        json entry = emissionsHour(day, hour % 24, hour % 100);
        for (int unit = 1; unit <= units; ++unit) {
            entry["unitId"] = "U" + std::to_string(unit);
            text += (text.back() == '[' ? "" : ",") + entry.dump();
        }
    }
    return text + "]}";
}

std::vector<std::string> hoursFrom(const SiteDatabase& site, PID pid, Date start,
                                   std::int32_t count)
{
    DIDataSet set;
    set.Init(start, count, "h", 1, 0);
    parameter(site, pid)->ReadData(set);
    std::vector<std::string> texts;
    for (std::int32_t index = 1; index <= count; ++index) {
        const auto value = set.ItemByIndex(index).Value();
        texts.push_back((isNull(value) ? "-" : numberText(std::get<double>(value))) + "/" +
                        std::to_string(set.ItemByIndex(index).Status()));
    }
    return texts;
}

std::int64_t count(const SiteDatabase& site, const std::string& query)
{
    const auto row = site.connection().prepare(query);
    return row->step() ? row->integer(0) : -1;
}

} // namespace k7deval::sitedb::test
