#include "sitedb/tables/AnalyzerWriter.h"

#include "foundation/DataInterface.h"
#include "sitedb/PlainText.h"

#include <algorithm>

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

// The identifier stands at the measured parameter and at its calibrations, which have its number.
std::optional<PID> AnalyzerWriter::findMeasured(std::int32_t unit, const std::string& component)
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

std::vector<std::string> AnalyzerWriter::components(std::int32_t unit, const Gas& gas)
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
void AnalyzerWriter::renameComponent(std::int32_t unit, const Gas& gas,
                                     const std::string& component)
{
    const std::string old(gas.componentType);
    const auto measured = findMeasured(unit, old);
    if (!measured)
        return;
    std::vector<PID> pids{*measured};
    for (const Scale scale : kScales)
        pids.push_back(calibrationPID(*measured, scale));
    for (const PID pid : pids) {
        if (!parameters_.exists(pid))
            continue;
        parameters_.renameBeginning(pid, old, analyzerName(gas, component));
        parameters_.setAttribute(pid, attribute::kComponentId, component);
    }
}

std::optional<Analyzer> AnalyzerWriter::find(std::int32_t unit, const std::string& component,
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

std::optional<PID> AnalyzerWriter::addMeasured(std::int32_t unit, const Gas& gas,
                                               const std::string& component)
{
    std::int32_t number = 1;
    while (number <= kHighestComponent &&
           parameters_.exists(measuredPID(unit, gas.parameterCode, number)))
        ++number;
    if (number > kHighestComponent)
        return std::nullopt;
    const PID pid = measuredPID(unit, gas.parameterCode, number);
    parameters_.addHourly(pid, {analyzerName(gas, component), paramtype::kMeasuredSeries,
                                std::string(gas.unitsText)});
    parameters_.setAttribute(pid, attribute::kLeftOutOfLists, false);
    parameters_.setAttribute(pid, attribute::kComponentId, component);
    return pid;
}

bool AnalyzerWriter::isCalibrated(PID measured)
{
    return std::ranges::any_of(
        kScales, [&](Scale scale) { return parameters_.exists(calibrationPID(measured, scale)); });
}

void AnalyzerWriter::addCalibration(PID measured, const Gas& gas, const std::string& component,
                                    const AnalyzerSpan& span)
{
    addCalibrationWithoutSpan(measured, gas, component, span.scale);
    const PID pid = calibrationPID(measured, span.scale);
    parameters_.setUnitsText(pid, spanUnitsText(gas, span.unitsCode));
    parameters_.setAttribute(pid, attribute::kRangeUse,
                             span.unitsCode == gas.unitsCode ? kOfUseForRange : kOfNoUseForRange);
    setSpan(pid, measured, span.scale, span.value);
}

void AnalyzerWriter::addCalibrationWithoutSpan(PID measured, const Gas& gas,
                                               const std::string& component, Scale scale)
{
    const PID pid = calibrationPID(measured, scale);
    if (parameters_.exists(pid))
        return;
    parameters_.add(pid, {analyzerName(gas, component) + scaleSuffix(scale) + " Calibration",
                          kCalibrationType, std::string(gas.unitsText)});
    parameters_.setAttribute(pid, attribute::kDecimals, kFewestDecimals);
    parameters_.setAttribute(pid, attribute::kMeasuredPID, measured);
    parameters_.setAttribute(pid, attribute::kLeftOutOfLists, false);
    parameters_.setAttribute(pid, attribute::kScale, scaleText(scale));
    parameters_.setAttribute(pid, attribute::kRangeUse, kOfUseForRange);
    parameters_.setAttribute(pid, attribute::kComponentId, component);
    parameters_.setAttribute(pid, attribute::kRecordTable, std::string(kCalibrationTable));
    parameters_.setAttribute(pid, attribute::kTestNumberBase, std::string(gas.componentType));
    addDefinition(pid, measured, scale);
}

void AnalyzerWriter::addDefinition(PID calibration, PID measured, Scale scale)
{
    connection_.execute("INSERT INTO calibration_record (record_table, pid, scale, gas_level_code,"
                        " gas_level_text, cal_status, source_tag_pid)"
                        " VALUES ($1, $2, $3, 0, '', 0, $4)",
                        std::string(kCalibrationTable), std::int64_t{calibration}, scaleText(scale),
                        std::int64_t{measured});
}

// The injections that came before the span bear none either.
void AnalyzerWriter::setSpan(PID calibration, PID measured, Scale scale, double span)
{
    connection_.execute("UPDATE calibration_record SET span = $1 WHERE scale = $2"
                        " AND pid IN ($3, $4) AND span IS NULL",
                        span, scaleText(scale), std::int64_t{calibration}, std::int64_t{measured});
}

void AnalyzerWriter::raiseDecimals(PID calibration, std::int32_t decimals)
{
    const auto held = parameters_.attributeText(calibration, attribute::kDecimals);
    if (held && plainWhole(*held).value_or(0) < decimals)
        parameters_.setAttribute(calibration, attribute::kDecimals, decimals);
}

} // namespace k7deval::sitedb
