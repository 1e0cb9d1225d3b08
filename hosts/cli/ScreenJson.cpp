#include "cli/ScreenJson.h"

#include "foundation/NumberText.h"
#include "foundation/TextFunctions.h"

#include <cmath>
#include <ostream>

namespace k7deval::cli
{

namespace
{

using Json = nlohmann::ordered_json;

/// What has to be worked out, or null where that fails.
template <class Work> Json workedOut(Work work)
{
    try {
        return work();
    } catch (const Error&) {
        return nullptr;
    }
}

Json toJson(const screen::PropertyValue& content);

Json listToJson(const screen::PropertyValues& values)
{
    Json list = Json::array();
    for (const auto& value : values)
        list.push_back(toJson(value));
    return list;
}

Json toJson(const screen::PropertyValue& content)
{
    return std::visit(
        [](const auto& value) -> Json {
            using T = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<T, screen::PropertyValues>)
                return listToJson(value);
            else if constexpr (std::is_same_v<T, screen::PropertyList>)
                return cli::toJson(value);
            else if constexpr (std::is_same_v<T, float>)
                return numberToJson(value);
            else
                return value;
        },
        content.value);
}

Json toJson(const std::shared_ptr<clsStrippedCal>& injection)
{
    if (!injection)
        return nullptr;
    return {{"ReferenceValue", numberToJson(injection->ReferenceValue)},
            {"MeasuredValue", numberToJson(injection->MeasuredValue)},
            {"Drift", workedOut([&] { return numberToJson(injection->Drift()); })},
            {"DriftLimit", numberToJson(injection->DriftLimit)},
            {"UsesAPS", injection->UsesAPS},
            {"InjectionEndTime", timeToJson(injection->InjectionEndTime)},
            {"GasLevel", injection->GasLevel}};
}

Json toJson(const cls7DayAnalyzerCal& run)
{
    return {{"CalTime", timeToJson(run.CalTime)},
            {"InstrumentSpan", numberToJson(run.InstrumentSpan)},
            {"IsOnline", run.IsOnline},
            {"ManualCal", run.ManualCal},
            {"UseZeroCal", run.UseZeroCal},
            {"IsCompleteRun", run.IsCompleteRun()},
            {"AnalyzerPassed", workedOut([&] { return Json(run.AnalyzerPassed()); })},
            {"IsUsedIn7Day", run.IsUsedIn7Day},
            {"ZeroCal", toJson(run.ZeroCal)},
            {"SpanCal", toJson(run.SpanCal)}};
}

Json runsToJson(const RunMap& runs)
{
    Json map = Json::object();
    for (const auto& [key, run] : runs)
        map[key] = toJson(*run);
    return map;
}

Json toJson(const clsDaySummary& day)
{
    Json displayed = nullptr;
    if (day.DisplayedCals.isSized())
        displayed = Json::array();
    for (const auto& run : day.DisplayedCals.items())
        displayed.push_back(minuteKey(run->CalTime));
    return {{"TStamp", timeToJson(day.TStamp)},
            {"IsOpDay", day.IsOpDay()},
            {"OpStatusIsUndetermined", day.OpStatusIsUndetermined},
            {"HasOnlineCals", day.HasOnlineCals()},
            {"DayIsUsedIn7Day", day.DayIsUsedIn7Day()},
            {"CalsInDay", day.CalsInDay().Keys()},
            {"DisplayedCals", displayed}};
}

Json daysToJson(const DayMap& days)
{
    Json map = Json::object();
    for (const auto& [key, day] : days)
        map[key] = toJson(*day);
    return map;
}

Json displayToJson(const DayArray& days)
{
    if (!days.isSized())
        return nullptr;
    Json list = Json::array();
    for (const auto& day : days.items())
        list.push_back(toJson(*day));
    return list;
}

} // namespace

Json numberToJson(float value)
{
    if (!std::isfinite(value))
        return nullptr;
    return toDouble(GeneralNumber(value, {}), RegionalSettings{});
}

Json timeToJson(Date time)
{
    return replaceAll(minuteKey(time), "/", "-");
}

Json toJson(const screen::PropertyList& properties)
{
    Json object = Json::object();
    for (const auto& property : properties)
        object[property.name] = toJson(property.content);
    return object;
}

Json toJson(const DriftTest& test)
{
    return {{"lngAnalyzedPID", test.lngAnalyzedPID},
            {"strAnalyzedScale", test.strAnalyzedScale},
            {"dtStart", timeToJson(test.dtStart)},
            {"dtEnd", timeToJson(test.dtEnd)},
            {"sngPercentOfSpanLimit", numberToJson(test.sngPercentOfSpanLimit)},
            {"sngPercentOfRefLimit", numberToJson(test.sngPercentOfRefLimit)},
            {"sngAbsoluteLimit", numberToJson(test.sngAbsoluteLimit)},
            {"lngLimitRule", static_cast<std::int32_t>(test.lngLimitRule)},
            {"blnSixOfSeven", test.blnSixOfSeven},
            {"blnIncludeManualCals", test.blnIncludeManualCals},
            {"blnUseZeroCals", test.blnUseZeroCals},
            {"blnRetrieveCals", test.blnRetrieveCals},
            {"blnApplyLimits", test.blnApplyLimits},
            {"lngOpTimePID", test.lngOpTimePID},
            {"lngGoodCals", test.lngGoodCals},
            {"lngFailedCals", test.lngFailedCals},
            {"lngLastFailDay", test.lngLastFailDay},
            {"lngPrevFailDay", test.lngPrevFailDay},
            {"lngUndeterminedDays", test.lngUndeterminedDays},
            {"strSummary", test.strSummary},
            {"dictCals", test.dictCals ? runsToJson(*test.dictCals) : Json(nullptr)},
            {"dictDays", daysToJson(test.dictDays)},
            {"objDaysToDisplay", displayToJson(test.objDaysToDisplay)}};
}

void printJson(const Json& document, std::ostream& out)
{
    out << document.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}

} // namespace k7deval::cli
