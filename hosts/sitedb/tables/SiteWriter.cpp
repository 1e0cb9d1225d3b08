#include "sitedb/tables/SiteWriter.h"


#include <charconv>

namespace k7deval::sitedb
{

namespace
{

constexpr std::int32_t kFewestDecimals = 1;
constexpr std::int32_t kOfUseForRange = 0;
constexpr std::int32_t kOfNoUseForRange = 1;

std::int64_t firstPID(std::int32_t unit)
{
    return std::int64_t{kUnitFactor} * unit;
}

std::int64_t lastPID(std::int32_t unit)
{
    return firstPID(unit) + kUnitFactor - 1;
}

std::string padded(std::string identifier)
{
    if (identifier.size() < kUnitIdentifierLength)
        identifier.resize(kUnitIdentifierLength, ' ');
    return identifier;
}

std::int32_t wholeNumber(const std::string& text)
{
    std::int32_t value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

std::string scaleSuffix(Scale scale)
{
    return scale == Scale::Single ? "" : "/" + scaleText(scale).substr(0, 1);
}

std::string analyzerName(const Gas& gas, const std::string& component)
{
    const std::string type(gas.componentType);
    return component == type ? type : type + " " + component;
}

} // namespace

std::optional<std::int32_t> SiteWriter::findUnit(const std::string& identifier)
{
    const auto row =
        connection_.prepare("SELECT pid FROM parameter WHERE param_type = $1 AND name = $2");
    row->with(std::int64_t{kUnitType}, identifier);
    return row->step() ? std::optional(PIDPart(row->int32(0), pidpart::kUnit)) : std::nullopt;
}

std::optional<std::int32_t> SiteWriter::addUnit(const std::string& identifier)
{
    const auto count = connection_.prepare("SELECT COUNT(*) FROM parameter WHERE param_type = $1");
    count->with(std::int64_t{kUnitType}).step();
    const std::int32_t unit = count->int32(0) + 1;
    if (unit > kHighestUnit)
        return std::nullopt;
    const PID pid = UnitPID(unit);
    const auto oris = orisCode();
    addParameter(pid, identifier, kUnitType, "", "");
    setAttribute(pid, attribute::kSeveralStacks, false);
    setAttribute(pid, attribute::kUnitIdentifier, padded(identifier));
    setAttribute(pid, attribute::kStackIdentifiers, std::string());
    if (oris)
        setAttribute(pid, attribute::kOrisCode, *oris);
    return unit;
}

// The identifier stands at the measured parameter and at its calibrations, which have its number.
std::optional<PID> SiteWriter::findMeasured(std::int32_t unit, const std::string& component)
{
    const auto row = connection_.prepare("SELECT MIN(pid) FROM attribute WHERE id = $1"
                                         " AND value = $2 AND pid BETWEEN $3 AND $4");
    row->with(std::int64_t{attribute::kComponentId}, component, firstPID(unit), lastPID(unit));
    if (!row->step() || row->isNull(0))
        return std::nullopt;
    const PID found = row->int32(0);
    return measuredPID(unit, PIDPart(found, pidpart::kParameterCode),
                       PIDPart(found, pidpart::kSuffix));
}

std::vector<std::string> SiteWriter::components(std::int32_t unit, const Gas& gas)
{
    const auto rows = connection_.prepare(
        "SELECT attribute.value FROM attribute JOIN parameter ON parameter.pid = attribute.pid"
        " WHERE attribute.id = $1 AND parameter.param_type = $2"
        " AND parameter.pid BETWEEN $3 AND $4 ORDER BY parameter.pid");
    rows->with(std::int64_t{attribute::kComponentId}, std::int64_t{paramtype::kMeasuredSeries},
               std::int64_t{measuredPID(unit, gas.parameterCode, 1)},
               std::int64_t{measuredPID(unit, gas.parameterCode, kHighestComponent)});
    std::vector<std::string> components;
    while (rows->step())
        components.push_back(rows->text(0));
    return components;
}

// The name stands at the head of the names of the measured parameter and of its calibrations.
void SiteWriter::renameComponent(std::int32_t unit, const Gas& gas, const std::string& component)
{
    const std::string old(gas.componentType);
    const auto measured = findMeasured(unit, old);
    if (!measured)
        return;
    std::vector<PID> pids{*measured};
    for (const Scale scale : {Scale::Single, Scale::Low, Scale::Mid, Scale::High})
        pids.push_back(calibrationPID(*measured, scale));
    for (const PID pid : pids) {
        if (!exists(pid))
            continue;
        connection_.execute("UPDATE parameter SET name = $1 || SUBSTR(name, $2) WHERE pid = $3",
                            analyzerName(gas, component), static_cast<std::int64_t>(old.size()) + 1,
                            std::int64_t{pid});
        setAttribute(pid, attribute::kComponentId, component);
    }
}

std::optional<Analyzer> SiteWriter::findAnalyzer(std::int32_t unit, const std::string& component,
                                                 Scale scale)
{
    const auto measured = findMeasured(unit, component);
    if (!measured)
        return std::nullopt;
    const PID calibration = calibrationPID(*measured, scale);
    const auto row = connection_.prepare("SELECT scale, span FROM calibration_record"
                                         " WHERE pid = $1 AND record_table = $2"
                                         " AND span IS NOT NULL");
    row->with(std::int64_t{calibration}, std::string(kCalibrationTable));
    if (!row->step())
        return std::nullopt;
    return Analyzer{*measured, calibration, row->text(0), row->real(1)};
}

std::optional<PID> SiteWriter::addMeasured(std::int32_t unit, const Gas& gas,
                                           const std::string& component)
{
    std::int32_t number = 1;
    while (number <= kHighestComponent && exists(measuredPID(unit, gas.parameterCode, number)))
        ++number;
    if (number > kHighestComponent)
        return std::nullopt;
    const PID pid = measuredPID(unit, gas.parameterCode, number);
    addParameter(pid, analyzerName(gas, component), paramtype::kMeasuredSeries,
                 std::string(gas.unitsText), "h");
    setAttribute(pid, attribute::kLeftOutOfLists, false);
    setAttribute(pid, attribute::kComponentId, component);
    return pid;
}

void SiteWriter::addCalibration(PID measured, const Gas& gas, const std::string& component,
                                const AnalyzerSpan& span)
{
    addCalibrationWithoutSpan(measured, gas, component, span.scale);
    const PID pid = calibrationPID(measured, span.scale);
    connection_.execute("UPDATE parameter SET units_text = $1 WHERE pid = $2",
                        spanUnitsText(gas, span.unitsCode), std::int64_t{pid});
    setAttribute(pid, attribute::kRangeUse,
                 span.unitsCode == gas.unitsCode ? kOfUseForRange : kOfNoUseForRange);
    setSpan(pid, measured, span.scale, span.value);
}

void SiteWriter::addCalibrationWithoutSpan(PID measured, const Gas& gas,
                                           const std::string& component, Scale scale)
{
    const PID pid = calibrationPID(measured, scale);
    if (exists(pid))
        return;
    addParameter(pid, analyzerName(gas, component) + scaleSuffix(scale) + " Calibration",
                 kCalibrationType, std::string(gas.unitsText), "");
    setAttribute(pid, attribute::kDecimals, kFewestDecimals);
    setAttribute(pid, attribute::kMeasuredPID, measured);
    setAttribute(pid, attribute::kLeftOutOfLists, false);
    setAttribute(pid, attribute::kScale, scaleText(scale));
    setAttribute(pid, attribute::kRangeUse, kOfUseForRange);
    setAttribute(pid, attribute::kComponentId, component);
    setAttribute(pid, attribute::kRecordTable, std::string(kCalibrationTable));
    setAttribute(pid, attribute::kTestNumberBase, std::string(gas.componentType));
    addDefinition(pid, measured, scale);
}

void SiteWriter::addDefinition(PID calibration, PID measured, Scale scale)
{
    connection_.execute("INSERT INTO calibration_record (record_table, pid, scale, gas_level_code,"
                        " gas_level_text, cal_status, source_tag_pid)"
                        " VALUES ($1, $2, $3, 0, '', 0, $4)",
                        std::string(kCalibrationTable), std::int64_t{calibration}, scaleText(scale),
                        std::int64_t{measured});
}

// The injections that came before the span bear none either.
void SiteWriter::setSpan(PID calibration, PID measured, Scale scale, double span)
{
    connection_.execute("UPDATE calibration_record SET span = $1 WHERE scale = $2"
                        " AND pid IN ($3, $4) AND span IS NULL",
                        span, scaleText(scale), std::int64_t{calibration}, std::int64_t{measured});
}

void SiteWriter::raiseDecimals(PID calibration, std::int32_t decimals)
{
    const auto held = attributeText(calibration, attribute::kDecimals);
    if (held && wholeNumber(*held) < decimals)
        setAttribute(calibration, attribute::kDecimals, decimals);
}

void SiteWriter::addLoad(std::int32_t unit)
{
    const PID load = loadPID(unit);
    if (exists(load))
        return;
    addParameter(load, "Load", paramtype::kOperationSeries, "MW", "h");
    setAttribute(load, attribute::kLeftOutOfLists, false);
}

void SiteWriter::addOperatingTime(std::int32_t unit)
{
    const PID operatingTime = operatingTimePID(unit);
    if (exists(operatingTime))
        return;
    addParameter(operatingTime, "Operating Time", paramtype::kOperationSeries, "h", "h");
    setAttribute(operatingTime, attribute::kLeftOutOfLists, false);
    connection_.execute("INSERT INTO link (pid, id, target_pid) VALUES ($1, $2, $3)",
                        std::int64_t{UnitPID(unit)}, std::int64_t{attribute::kOperatingTimePID},
                        std::int64_t{operatingTime});
}

void SiteWriter::setCapacity(std::int32_t unit, double megawatts)
{
    setConstant(capacityPID(unit), "Capacity", megawatts);
}

std::optional<double> SiteWriter::constant(PID pid)
{
    const auto row = connection_.prepare("SELECT value FROM constant WHERE pid = $1");
    row->with(std::int64_t{pid});
    return row->step() && !row->isNull(0) ? std::optional(row->real(0)) : std::nullopt;
}

void SiteWriter::setConstant(PID pid, const std::string& name, double megawatts)
{
    if (!exists(pid)) {
        addParameter(pid, name, paramtype::kConstant, "MW", "");
        setAttribute(pid, attribute::kLeftOutOfLists, false);
    }
    connection_.execute("INSERT INTO constant (pid, subset, value, status)"
                        " VALUES ($1, $2, $3, $4)"
                        " ON CONFLICT (pid) DO UPDATE SET value = excluded.value",
                        std::int64_t{pid}, std::int64_t{kUnitConstants}, megawatts,
                        std::int64_t{status::kMeasured});
}

void SiteWriter::removeConstant(PID pid)
{
    for (const char* command :
         {"DELETE FROM constant WHERE pid = $1", "DELETE FROM attribute WHERE pid = $1",
          "DELETE FROM parameter WHERE pid = $1"})
        connection_.execute(command, std::int64_t{pid});
}

std::optional<std::int32_t> SiteWriter::orisCode()
{
    const auto row = connection_.prepare("SELECT MIN(value) FROM attribute WHERE id = $1");
    row->with(std::int64_t{attribute::kOrisCode});
    if (!row->step() || row->isNull(0))
        return std::nullopt;
    return wholeNumber(row->text(0));
}

void SiteWriter::setOrisCode(std::int32_t code)
{
    const auto units = connection_.prepare("SELECT pid FROM parameter WHERE param_type = $1");
    units->with(std::int64_t{kUnitType});
    while (units->step())
        setAttribute(units->int32(0), attribute::kOrisCode, code);
}

std::optional<std::string> SiteWriter::facilityName()
{
    const auto row = connection_.prepare("SELECT value FROM lookup"
                                         " WHERE lookup_table = $1 AND lookup_key = $2");
    row->with(std::string(kLookupTable), std::string(kFacilityNameEntry));
    return row->step() ? std::optional(row->text(0)) : std::nullopt;
}

void SiteWriter::setFacilityName(const std::string& name)
{
    if (!name.empty())
        setLookup(kLookupTable, kFacilityNameEntry, name);
    else
        connection_.execute("DELETE FROM lookup WHERE lookup_table = $1 AND lookup_key = $2",
                            std::string(kLookupTable), std::string(kFacilityNameEntry));
}

void SiteWriter::setLookup(const std::string& table, const std::string& key,
                           const std::string& value)
{
    connection_.execute("INSERT INTO lookup (lookup_table, lookup_key, value) VALUES ($1, $2, $3)"
                        " ON CONFLICT (lookup_table, lookup_key)"
                        " DO UPDATE SET value = excluded.value",
                        table, key, value);
}

void SiteWriter::addParameter(PID pid, const std::string& name, std::int32_t type,
                              const std::string& unitsText, const std::string& intervalLetter)
{
    const std::int64_t interval = intervalLetter.empty() ? 0 : 1;
    connection_.execute("INSERT INTO parameter (pid, name, param_type, units_text,"
                        " interval_letter, interval_multiple, interval_unit)"
                        " VALUES ($1, $2, $3, $4, $5, $6, $7)",
                        std::int64_t{pid}, name, std::int64_t{type}, unitsText, intervalLetter,
                        interval, interval);
}

std::optional<std::string> SiteWriter::attributeText(PID pid, std::int32_t id)
{
    const auto row = connection_.prepare("SELECT value FROM attribute WHERE pid = $1 AND id = $2");
    row->with(std::int64_t{pid}, std::int64_t{id});
    return row->step() ? std::optional(row->text(0)) : std::nullopt;
}

void SiteWriter::setAttribute(PID pid, std::int32_t id, std::int32_t value)
{
    setAttributeText(pid, id, "i4", std::to_string(value));
}

void SiteWriter::setAttribute(PID pid, std::int32_t id, bool value)
{
    setAttributeText(pid, id, "Boolean", value ? "True" : "False");
}

void SiteWriter::setAttribute(PID pid, std::int32_t id, const std::string& value)
{
    setAttributeText(pid, id, "text", value);
}

void SiteWriter::setAttributeText(PID pid, std::int32_t id, const char* kind,
                                  const std::string& value)
{
    connection_.execute("INSERT INTO attribute (pid, id, kind, value) VALUES ($1, $2, $3, $4)"
                        " ON CONFLICT (pid, id)"
                        " DO UPDATE SET kind = excluded.kind, value = excluded.value",
                        std::int64_t{pid}, std::int64_t{id}, std::string(kind), value);
}

bool SiteWriter::exists(PID pid)
{
    const auto row = connection_.prepare("SELECT 1 FROM parameter WHERE pid = $1");
    row->with(std::int64_t{pid});
    return row->step();
}

} // namespace k7deval::sitedb
