#pragma once

#include "sitedb/formats/EmissionsParts.h"
#include "sitedb/formats/HourlyGas.h"
#include "sitedb/read/JsonNode.h"
#include "sitedb/tables/HourWriter.h"
#include "sitedb/tables/Modc.h"
#include "sitedb/tables/SiteWriter.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace k7deval::sitedb
{

/// Takes the hours of an emissions file into a site, one after the other. The caller holds the
/// transaction.
class EmissionsHours
{
public:
    EmissionsHours(sql::Connection& connection, const SourceFile& file, SteppedOver& steppedOver);

    /// Takes an element of hourlyOperatingData.
    void take(const JsonNode& record);
    /// Takes what can only be placed when all hours are known.
    void finish();

    [[nodiscard]] std::size_t hours() const { return hourCount_; }
    [[nodiscard]] std::size_t values() const { return valueCount_; }

private:
    /// An hour of a gas for which no component is named, as EPA wants it where no monitor measured.
    struct UnnamedHour {
        const std::string* day = nullptr;
        int hour = 0;
        std::int32_t word = 0;
        std::optional<double> value;
    };
    struct Unit {
        std::int32_t number = 0;
        std::string name;
        std::set<PID> parameters; ///< That the file has hours of, without the operating time.
        std::map<std::pair<const Gas*, std::string>, PID> measured; ///< By component.
        std::map<const Gas*, std::vector<UnnamedHour>> unnamed;
        std::vector<std::pair<const std::string*, int>> offline;
    };
    /// The hour that is being read.
    struct Record {
        Unit& unit;
        const std::string* day;
        int hour;
        bool isOffline;
        std::string path;
    };

    Unit& unitOf(const JsonNode& record);
    void takeLoad(const Record& record, const JsonNode& node);
    void takeValues(const Record& record, const JsonNode& node, const char* list);
    void takeValue(const Record& record, const JsonNode& value, const char* list);
    void takeNamed(const Record& record, const JsonNode& value, const Gas& gas, UnnamedHour hour);
    PID measuredOf(Unit& unit, const Gas& gas, const std::string& component,
                   const std::string& place);
    void placeUnnamed(Unit& unit, const Gas& gas, const std::vector<UnnamedHour>& hours);
    void placeOffline(Unit& unit);
    void add(PID pid, const UnnamedHour& hour, const std::string& what, const std::string& place);
    void addIfMissing(PID pid, const UnnamedHour& hour, const std::string& what);
    Outcome write(PID pid, const UnnamedHour& hour);
    [[nodiscard]] std::string fault(Outcome outcome, const UnnamedHour& hour,
                                    const std::string& what) const;

    const SourceFile& file_;
    SiteWriter writer_;
    HourWriter hours_;
    SteppedOver& steppedOver_;
    std::map<std::string, Unit> units_;
    std::set<std::string> days_; ///< All days of the file, once each.
    std::map<PID, std::string> basisInHour_;
    std::size_t hourCount_ = 0;
    std::size_t valueCount_ = 0;
};

} // namespace k7deval::sitedb
