#pragma once

#include "foundation/DataInterface.h"
#include "sitedb/sql/Connection.h"
#include "sitedb/tables/Gases.h"
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

/// What the importers and the site itself put into the tables. The caller holds the transaction.
class SiteWriter
{
public:
    explicit SiteWriter(sql::Connection& connection) : connection_(connection) {}

    /// The number of the unit with this identifier, or nothing.
    [[nodiscard]] std::optional<std::int32_t> findUnit(const std::string& identifier);
    /// Makes a unit under the next number; nothing when the site has all the units that PIDs allow.
    std::optional<std::int32_t> addUnit(const std::string& identifier);

    /// The measured parameter of a component, or nothing.
    [[nodiscard]] std::optional<PID> findMeasured(std::int32_t unit, const std::string& component);
    /// The calibration of a component on a scale, or nothing where there is none or its span is not
    /// known.
    [[nodiscard]] std::optional<Analyzer> findAnalyzer(std::int32_t unit,
                                                       const std::string& component, Scale scale);
    /// Makes the measured parameter of a component; nothing when the unit has all the components
    /// that PIDs allow for the gas. A component whose identifier is not known is identified by the
    /// gas itself.
    std::optional<PID> addMeasured(std::int32_t unit, const Gas& gas, const std::string& component);
    /// The identifiers of the components of a unit that measure a gas, in the order of their
    /// numbers.
    [[nodiscard]] std::vector<std::string> components(std::int32_t unit, const Gas& gas);
    /// Gives the unit's component that is identified by its gas the identifier that it has.
    void renameComponent(std::int32_t unit, const Gas& gas, const std::string& component);
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

    /// Makes the load or operating-time parameter of a unit where it is missing.
    void addLoad(std::int32_t unit);
    void addOperatingTime(std::int32_t unit);
    void setCapacity(std::int32_t unit, double megawatts);

    /// The value of a constant of a unit, or nothing.
    [[nodiscard]] std::optional<double> constant(PID pid);
    /// Makes or changes a constant of a unit, in MW.
    void setConstant(PID pid, const std::string& name, double megawatts);
    /// Takes a constant away, where there is one.
    void removeConstant(PID pid);

    /// A configuration attribute that is a text, or nothing.
    [[nodiscard]] std::optional<std::string> attributeText(PID pid, std::int32_t id);
    void setAttribute(PID pid, std::int32_t id, const std::string& value);

    /// The name that stands on reports, or nothing.
    [[nodiscard]] std::optional<std::string> facilityName();
    /// An empty name is none.
    void setFacilityName(const std::string& name);

    /// The ORIS code that the site's units carry, or nothing.
    [[nodiscard]] std::optional<std::int32_t> orisCode();
    /// Gives all units of the site their ORIS code.
    void setOrisCode(std::int32_t code);

    void setLookup(const std::string& table, const std::string& key, const std::string& value);

private:
    void addParameter(PID pid, const std::string& name, std::int32_t type,
                      const std::string& unitsText, const std::string& intervalLetter);
    void setAttribute(PID pid, std::int32_t id, std::int32_t value);
    void setAttribute(PID pid, std::int32_t id, bool value);
    void setAttributeText(PID pid, std::int32_t id, const char* kind, const std::string& value);
    void addDefinition(PID calibration, PID measured, Scale scale);
    void setSpan(PID calibration, PID measured, Scale scale, double span);
    [[nodiscard]] bool exists(PID pid);

    sql::Connection& connection_;
};

} // namespace k7deval::sitedb
