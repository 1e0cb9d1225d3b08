#include "range/UnitCatalogue.h"

#include "foundation/NumberText.h"
#include "foundation/PIDFunctions.h"

#include <array>
#include <cstddef>
#include <memory>
#include <utility>

namespace k7deval
{

namespace
{

constexpr float kSpanWhenUnknown = 100;
constexpr std::array<const char*, 4> kScaleNames = {"SINGLE", "LOW", "MID", "HIGH"};

std::int32_t scaleOf(const Variant& text)
{
    const auto* name = std::get_if<std::string>(&text);
    for (std::size_t scale = 0; name != nullptr && scale < kScaleNames.size(); ++scale) {
        if (*name == kScaleNames[scale])
            return static_cast<std::int32_t>(scale);
    }
    return 0;
}

/// A calibration definition that offers its analyzer for range evaluation.
bool qualifies(DIParameter& calibration, const RegionalSettings& regional)
{
    if (isLeftOutOfLists(calibration, regional).value_or(true))
        return false;
    const Variant use = calibration.GetAttribute(attribute::kRangeUse);
    return !isNull(use) && integerIn(use, regional) == 0 && definesCalibrations(calibration);
}

/// Calibration definitions by the text of their PIDs.
using Calibrations = OrderedMap<std::string, std::shared_ptr<DIParameter>>;

Calibrations readCalibrations(DIServer& server, const RegionalSettings& regional)
{
    Calibrations calibrations;
    for (const auto& parameter : server.ParametersOfTypes({kCalibrationType})) {
        if (qualifies(present(parameter), regional))
            calibrations.Add(PIDToText(parameter->PID()), parameter);
    }
    return calibrations;
}

/// Whether a series holds the hourly values that a calibration belongs to.
bool isPartner(DIParameter& hourly, PID calibration)
{
    const PID pid = hourly.PID();
    for (const int part : {pidpart::kUnit, pidpart::kParameterCode, pidpart::kProgramCode}) {
        if (PIDPart(pid, part) != PIDPart(calibration, part))
            return false;
    }
    return hourly.Interval() == DIInterval{1, 1};
}

/// The hourly parameter of each calibration. A calibration without one is dropped.
OrderedMap<PID, std::shared_ptr<DIParameter>> findPartners(DIServer& server,
                                                           const Calibrations& calibrations)
{
    OrderedMap<PID, std::shared_ptr<DIParameter>> partners;
    const DIParameterList hourlyParameters = server.ParametersOfInterval("h");
    for (const auto& entry : calibrations) {
        const PID calibration = entry.second->PID();
        for (const auto& hourly : hourlyParameters) {
            if (isPartner(present(hourly), calibration)) {
                partners.Add(calibration, hourly);
                break;
            }
        }
    }
    return partners;
}

template <class Key, class Value> Value& entryOf(OrderedMap<Key, Value>& map, const Key& key)
{
    if (!map.Exists(key))
        map.Add(key, {});
    return map.Item(key);
}

float readSpan(DIServer& server, DIParameter& calibration, const RegionalSettings& regional)
{
    RecordQuery query;
    query.siteKey = server.SiteKey();
    query.pid = calibration.PID();
    query.table = toText(calibration.GetAttribute(attribute::kRecordTable), regional);
    const auto store = server.RecordStore();
    const DIRecordList records = present(store).ReadRecords(query);
    if (records.empty() || records.front() == nullptr)
        return kSpanWhenUnknown;
    const Variant span = records.front()->Span();
    return IsNumeric(span, regional) ? singleIn(span, regional) : kSpanWhenUnknown;
}

} // namespace

std::string scaleName(std::int32_t scale)
{
    const auto index = static_cast<std::size_t>(scale);
    return scale >= 0 && index < kScaleNames.size() ? kScaleNames[index] : "";
}

void addToCatalogue(Catalogue& catalogue, DIServer& server, const RegionalSettings& regional)
{
    const Calibrations calibrations = readCalibrations(server, regional);
    const auto partners = findPartners(server, calibrations);
    for (const auto& unit : server.Units()) {
        const PID unitPid = present(unit).PID();
        for (const auto& [pid, hourly] : partners) {
            if (PIDPart(pid, pidpart::kUnit) != PIDPart(unitPid, pidpart::kUnit))
                continue;
            ScaleSpans& scales = entryOf(entryOf(catalogue, unitPid), hourly->PID());
            const auto parameters = server.Parameters();
            const auto calibration = present(parameters).Item(pid, -1);
            const std::int32_t scale =
                scaleOf(present(calibration).GetAttribute(attribute::kScale));
            if (!scales.Exists(scale))
                scales.Add(scale, readSpan(server, *calibration, regional));
        }
    }
}

} // namespace k7deval
