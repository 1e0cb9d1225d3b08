#pragma once

#include "sitedb/tables/Gases.h"
#include "sitedb/tables/ParameterWriter.h"
#include "sitedb/tables/SiteIds.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace k7deval::sitedb
{

/// An analyzer on one scale, as the span table brought it in.
struct Analyzer {
    PID measured = 0;
    PID calibration = 0;
    std::string scale; ///< "HIGH", ...
    double span = 0;   ///< In the analyzer's units.
};

/// The span of an analyzer on a scale, in the unit of EPA's code.
struct AnalyzerSpan {
    Scale scale = Scale::High;
    double value = 0;
    std::string unitsCode;
};

/// Puts measured parameters and their calibrations into the tables. The caller holds the
/// transaction.
class AnalyzerWriter
{
public:
    explicit AnalyzerWriter(sql::Connection& connection)
        : connection_(connection), parameters_(connection)
    {
    }

    /// The measured parameter of a component, or nothing.
    [[nodiscard]] std::optional<PID> findMeasured(std::int32_t unit, const std::string& component);
    /// The calibration of a component on a scale, or nothing where there is none or its span is not
    /// known.
    [[nodiscard]] std::optional<Analyzer> find(std::int32_t unit, const std::string& component,
                                               Scale scale);
    /// Makes the measured parameter of a component; nothing when the unit has all the components
    /// that PIDs allow for the gas. A component whose identifier is not known is identified by the
    /// gas itself.
    std::optional<PID> addMeasured(std::int32_t unit, const Gas& gas, const std::string& component);
    /// The identifiers of the components of a unit that measure a gas, in the order of their
    /// numbers.
    [[nodiscard]] std::vector<std::string> components(std::int32_t unit, const Gas& gas);
    /// Gives the unit's component that is identified by its gas the identifier that it has.
    void renameComponent(std::int32_t unit, const Gas& gas, const std::string& component);

    /// Whether a measured parameter has a calibration on any scale.
    [[nodiscard]] bool isCalibrated(PID measured);
    /// Makes the calibration of a measured parameter on a scale, with its definition. Range
    /// evaluation is not offered the span when it is in another unit than the hourly values.
    void addCalibration(PID measured, const Gas& gas, const std::string& component,
                        const AnalyzerSpan& span);
    /// Makes a calibration whose span is not known, where there is none yet. addCalibration gives
    /// it its span.
    void addCalibrationWithoutSpan(PID measured, const Gas& gas, const std::string& component,
                                   Scale scale);
    /// Makes sure that a calibration shows at least so many decimals.
    void raiseDecimals(PID calibration, std::int32_t decimals);

private:
    void addDefinition(PID calibration, PID measured, Scale scale);
    void setSpan(PID calibration, PID measured, Scale scale, double span);

    sql::Connection& connection_;
    ParameterWriter parameters_;
};

} // namespace k7deval::sitedb
