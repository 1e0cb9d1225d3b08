#include "sitedb/formats/EmissionsCalibrations.h"

namespace k7deval::sitedb
{

EmissionsCalibrations::EmissionsCalibrations(sql::Connection& connection, const SourceFile& file,
                                             SteppedOver& steppedOver, bool leavesOut)
    : writer_(connection), calibrations_(connection, file), rows_(leavesOut, true),
      steppedOver_(steppedOver), leavesOut_(leavesOut)
{
}

void EmissionsCalibrations::take(const JsonNode& record)
{
    const JsonNode list = record.fieldOrNull("dailyCalibrationData");
    const auto rows = list.isNull() ? std::vector<JsonNode>() : list.elements();
    if (rows.empty()) {
        stepOver("without injections, of type " + record.fieldOrNull("testTypeCode").shown());
        return;
    }
    QaTest test = testOf(record);
    if (test.component.empty()) {
        stepOver("of " + test.unit + " without a component");
        return;
    }
    for (const auto& row : rows)
        rows_.read(test, row);
    if (const auto scale = scaleOf(test))
        put(test, *scale);
    else
        deferred_.push_back(std::move(test));
}

void EmissionsCalibrations::finish()
{
    for (const auto& test : deferred_) {
        if (const auto scale = scaleOf(test))
            put(test, *scale);
        else
            stepOver("of component " + test.component + " of " + test.unit +
                     ", which the site does not have");
    }
}

QaTest EmissionsCalibrations::testOf(const JsonNode& record)
{
    const auto location = locationOf(record);
    const auto component = componentOf(record);
    const JsonNode code = record.fieldOrNull("spanScaleCode");
    const auto scale = scaleOfCode(code.textOrNull());
    if (!scale)
        throw code.error(code.shown() + " is not H, L or null");
    QaTest test;
    test.unit = location.name;
    test.unitPath = location.path;
    test.component = component.name;
    test.componentPath = component.path;
    test.scale = *scale;
    test.scalePath = code.path();
    return test;
}

// Daily calibrations of an analyzer with one range bear the code of the high scale, where its span
// bears none. A scale that the site does not have is made; its span is not known.
std::optional<CalibratedScale> EmissionsCalibrations::scaleOf(const QaTest& test)
{
    const auto unit = writer_.units.find(test.unit);
    const auto measured =
        unit ? writer_.analyzers.findMeasured(*unit, test.component) : std::nullopt;
    if (!measured)
        return std::nullopt;
    auto known = writer_.analyzers.find(*unit, test.component, test.scale);
    if (!known && test.scale == Scale::High)
        known = writer_.analyzers.find(*unit, test.component, Scale::Single);
    if (known)
        return CalibratedScale{known->measured, known->calibration, known->scale, known->span};
    const Gas* gas = findGas(PIDPart(*measured, pidpart::kParameterCode));
    writer_.analyzers.addCalibrationWithoutSpan(*measured, *gas, test.component, test.scale);
    return CalibratedScale{*measured, calibrationPID(*measured, test.scale), scaleText(test.scale),
                           std::nullopt};
}

void EmissionsCalibrations::put(const QaTest& test, const CalibratedScale& scale)
{
    injectionCount_ += calibrations_.take(test, scale, [&](const ImportError& fault) {
        if (!leavesOut_)
            throw fault;
        rows_.leaveOut(fault);
    });
}

void EmissionsCalibrations::stepOver(const std::string& which)
{
    steppedOver_.add(emissions::kDailyTests, "test", which);
}

} // namespace k7deval::sitedb
