#include "sitedb/formats/EmissionsHours.h"

#include "sitedb/formats/Fields.h"
#include "sitedb/formats/ImportSteps.h"

namespace k7deval::sitedb
{

namespace
{

constexpr const char* kMonitorHours = "monitorHourlyValueData";
constexpr const char* kMatsHours = "matsMonitorHourlyValueData";

const Modc& modcOf(const JsonNode& value)
{
    const JsonNode node = value.field("modcCode");
    const Modc* modc = node.isText() ? findModc(node.text()) : nullptr;
    if (modc == nullptr)
        throw node.error(node.shown() + " is no MODC of a monitor's hour");
    return *modc;
}

std::int32_t operatingWord(const std::optional<double>& operatingTime)
{
    if (!operatingTime)
        return status::kNoData;
    return *operatingTime == 0 ? status::kUnitOffline : status::kMeasured;
}

} // namespace

EmissionsHours::EmissionsHours(sql::Connection& connection, const SourceFile& file,
                               SteppedOver& steppedOver)
    : file_(file), writer_(connection), hours_(connection), steppedOver_(steppedOver)
{
}

void EmissionsHours::take(const JsonNode& node)
{
    Unit& unit = unitOf(node);
    const std::string* day = &*days_.insert(dateIn(node.field("date"))).first;
    const int hour = hourIn(node.field("hour"));
    const auto time = node.fieldOrNull("operatingTime").numberOrNull(0, 1);
    const Record record{unit, day, hour, time && *time == 0, node.path()};
    add(operatingTimePID(unit.number), {day, hour, operatingWord(time), time},
        "the operating time of " + unit.name, record.path);
    if (record.isOffline)
        unit.offline.emplace_back(day, hour);
    takeLoad(record, node);
    basisInHour_.clear();
    takeValues(record, node, kMonitorHours);
    takeValues(record, node, kMatsHours);
    ++hourCount_;
}

EmissionsHours::Unit& EmissionsHours::unitOf(const JsonNode& record)
{
    const auto location = locationOf(record);
    const auto known = units_.find(location.name);
    if (known != units_.end())
        return known->second;
    auto number = writer_.units.find(location.name);
    if (!number)
        number = writer_.units.add(location.name);
    if (!number)
        throw file_.error(location.path, noMoreUnits(location.name));
    writer_.units.addOperatingTime(*number);
    Unit& unit = units_[location.name];
    unit.number = *number;
    unit.name = location.name;
    return unit;
}

void EmissionsHours::takeLoad(const Record& record, const JsonNode& node)
{
    const auto value = node.fieldOrNull("hourLoad").numberOrNull(0, kHighestLoad);
    if (!value || record.isOffline)
        return;
    const std::string units = node.fieldOrNull("loadUnitsOfMeasureCode").textOrNull();
    if (units != "MW") {
        steppedOver_.add(std::string(emissions::kHours) + ".hourLoad", "hour",
                         units.empty() ? "without a unit of measure" : "in " + inQuotes(units));
        return;
    }
    const PID pid = loadPID(record.unit.number);
    if (record.unit.parameters.insert(pid).second)
        writer_.units.addLoad(record.unit.number);
    add(pid, {record.day, record.hour, status::kMeasured, value}, "the load of " + record.unit.name,
        record.path);
}

void EmissionsHours::takeValues(const Record& record, const JsonNode& node, const char* list)
{
    const JsonNode values = node.fieldOrNull(list);
    if (values.isNull())
        return;
    for (const auto& value : values.elements())
        takeValue(record, value, list);
}

void EmissionsHours::takeValue(const Record& record, const JsonNode& value, const char* list)
{
    const std::string code = value.field("parameterCode").text();
    const Gas* gas = findHourlyGas(code);
    if (gas == nullptr) {
        steppedOver_.add(std::string(emissions::kHours) + "." + list, "value",
                         "of " + inQuotes(code));
        return;
    }
    const Modc& modc = modcOf(value);
    // In the records of 40 CFR 63 Subpart UUUUU a value is a text.
    const auto number = value.fieldOrNull("unadjustedHourlyValue")
                            .numberInTextOrNull(-kHighestHourlyValue, kHighestHourlyValue);
    const UnnamedHour hour{record.day, record.hour,
                           record.isOffline ? status::kUnitOffline : statusWord(modc), number};
    if (value.fieldOrNull("componentId").isNull())
        record.unit.unnamed[gas].push_back(hour);
    else
        takeNamed(record, value, *gas, hour);
    ++valueCount_;
}

// An analyzer that measures oxygen wet and dry in turn has two values of one hour. The one that
// stands first is kept.
void EmissionsHours::takeNamed(const Record& record, const JsonNode& value, const Gas& gas,
                               UnnamedHour hour)
{
    const auto component = componentOf(value);
    const PID pid = measuredOf(record.unit, gas, component.name, component.path);
    const std::string basis = value.fieldOrNull("moistureBasis").textOrNull();
    const auto first = basisInHour_.find(pid);
    if (first != basisInHour_.end() && first->second != basis) {
        steppedOver_.add(std::string(emissions::kHours) + "." + kMonitorHours, "value",
                         "of a component that has one on another moisture basis");
        return;
    }
    basisInHour_[pid] = basis;
    add(pid, hour, "the hours of " + record.unit.name + " " + component.name, value.path());
}

PID EmissionsHours::measuredOf(Unit& unit, const Gas& gas, const std::string& component,
                               const std::string& place)
{
    const auto known = unit.measured.find({&gas, component});
    if (known != unit.measured.end())
        return known->second;
    const auto measured = findOrAddMeasured(writer_, unit.number, gas, component);
    if (!measured)
        throw file_.error(place, noMoreComponents());
    if (PIDPart(*measured, pidpart::kParameterCode) != gas.parameterCode)
        throw file_.error(place, measuresAnotherGas(component, unit.name));
    unit.measured[{&gas, component}] = *measured;
    unit.parameters.insert(*measured);
    return *measured;
}

void EmissionsHours::finish()
{
    for (auto& [name, unit] : units_) {
        for (const auto& [gas, hours] : unit.unnamed)
            placeUnnamed(unit, *gas, hours);
        placeOffline(unit);
    }
}

// Where no component is named, none of the analyzers measured, but for one whose own value the file
// has for the same hour.
void EmissionsHours::placeUnnamed(Unit& unit, const Gas& gas, const std::vector<UnnamedHour>& hours)
{
    for (const auto& component : possibleComponents(writer_, unit.number, gas)) {
        const PID pid = measuredOf(unit, gas, component, emissions::kHours);
        for (const auto& hour : hours)
            addIfMissing(pid, hour, "the hours of " + unit.name + " " + component);
    }
}

void EmissionsHours::placeOffline(Unit& unit)
{
    for (const PID pid : unit.parameters) {
        for (const auto& [day, hour] : unit.offline)
            addIfMissing(pid, {day, hour, status::kUnitOffline, std::nullopt},
                         "hours of " + unit.name);
    }
}

void EmissionsHours::add(PID pid, const UnnamedHour& hour, const std::string& what,
                         const std::string& place)
{
    const auto outcome = write(pid, hour);
    if (outcome != Outcome::Taken)
        throw file_.error(place, fault(outcome, hour, what));
}

void EmissionsHours::addIfMissing(PID pid, const UnnamedHour& hour, const std::string& what)
{
    const auto outcome = write(pid, hour);
    if (outcome == Outcome::AlreadyHeld)
        throw file_.error(emissions::kHours, fault(outcome, hour, what));
}

Outcome EmissionsHours::write(PID pid, const UnnamedHour& hour)
{
    return hours_.add(pid, {*hour.day, hour.hour, hour.value, hour.word});
}

std::string EmissionsHours::fault(Outcome outcome, const UnnamedHour& hour,
                                  const std::string& what) const
{
    return HourWriter::fault(outcome, what, {*hour.day, hour.hour, hour.value, hour.word});
}

} // namespace k7deval::sitedb
