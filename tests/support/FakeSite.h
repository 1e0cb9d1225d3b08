#pragma once

#include "foundation/Clock.h"
#include "foundation/DataInterface.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// A data interface made of plain data, which notes every call and can be told to fail at one.
namespace k7deval::test
{

/// Hourly values from a start time on; nothing is an hour without a value. An hour that no status
/// word stands for has status 0.
struct HourlyValues {
    Date start;
    std::vector<std::optional<double>> values;
    std::vector<std::int32_t> statuses = {};

    /// Sets one hour, and makes the series as long as that needs, at either end.
    void set(Date hour, std::optional<double> value, std::int32_t status = 0);
    /// Sets all hours from one to another, both included.
    void fill(Date first, Date last, std::optional<double> value, std::int32_t status = 0);

private:
    std::size_t reach(Date hour);
};

/// The present value of a constant, and the subset that it is listed in.
struct ConstantData {
    std::optional<double> value;
    std::int32_t subset = 0;
};

struct ParameterData {
    PID pid = 0;
    std::string name;
    std::int32_t type = 0;
    std::string unitsText;
    DIInterval interval;
    std::map<std::int32_t, Variant> attributes;
    std::map<std::int32_t, Variant> links;
    HourlyValues hours;
    std::string intervalLetter = {};           ///< "h" for an hourly series; empty for none.
    std::optional<ConstantData> constant = {}; ///< Of a constant alone.
};

struct RecordData {
    PID pid = 0; ///< Of the parameter whose records it is read with.
    std::string table = "K7CAL";
    Date runTime;
    std::string scale = "HIGH";
    std::int32_t gasLevelCode = 0;
    std::string gasLevelText = "zero";
    Variant reference = 0.0F;
    Variant measured = 0.0F;
    Date injectionEnd;
    Variant manual = false;
    std::int32_t calStatus = 0;
    Variant span = 100.0F;
    Variant sourceTag = std::int32_t{0};
};

/// What the status codes say of a status word.
struct StatusMeaning {
    bool valid = true;
    bool excluded = false;
    bool offline = false;
};

/// The arguments of a call that lists the parameters or the constants of a unit.
struct UnitQuery {
    ParamTypes types;
    std::int32_t unit = 0;
    std::string interval;
    ParamTypes subset;
    friend bool operator==(const UnitQuery&, const UnitQuery&) = default;
};

/// A stretch of hours that was read.
struct ReadRequest {
    PID pid = 0;
    Date start;
    std::int32_t count = 0;
    friend bool operator==(const ReadRequest&, const ReadRequest&) = default;
};

/// The whole of a site, and what happened to it.
struct SiteData {
    std::string siteKey = "SITE";
    std::optional<std::string> facilityName;
    std::vector<ParameterData> parameters; ///< Units have kUnitType.
    std::vector<RecordData> records;
    /// Of the status words that are not simply valid.
    std::map<std::int32_t, StatusMeaning> statusMeanings = {{1, {.valid = false, .excluded = true}},
                                                            {2, {.valid = false, .offline = true}}};
    /// Members called so far, as "DIServer.Units", "DIParameter.GetAttribute(-21)", ...
    std::vector<std::string> calls;
    std::vector<RangeRecordQuery> rangeQueries;
    std::vector<RecordQuery> recordQueries;
    std::vector<UnitQuery> parameterQueries; ///< Of ParametersOfUnitTypes.
    std::vector<UnitQuery> constantQueries;  ///< Of ConstantsOfUnitTypes.
    std::vector<ReadRequest> reads;
    std::vector<const DIDataSet*> readSets; ///< The set that each of the reads filled.
    /// Decides for each call, before it is answered, whether it fails with an error.
    std::function<std::optional<Error>(const std::string& call, std::size_t index)> failure;

    [[nodiscard]] ParameterData& parameter(PID pid);
    [[nodiscard]] bool has(PID pid) const;
    [[nodiscard]] StatusMeaning meaningOf(std::int32_t status) const;
    void noteCall(const std::string& call);
    [[nodiscard]] std::size_t countCalls(const std::string& call) const;
};

/// The interface on that data. The data may be changed while a tool runs on it.
std::shared_ptr<DIServer> serve(const std::shared_ptr<SiteData>& site);

/// Keeps the lines that were posted.
class Messages final : public MessageSink
{
public:
    void Post(std::int32_t severity, const std::string& text) override;
    std::vector<std::pair<std::int32_t, std::string>> posted;
    [[nodiscard]] std::vector<std::string> lines() const;
};

/// A clock that stands still.
class FixedClock final : public Clock
{
public:
    explicit FixedClock(Date now) : now_(now) {}
    [[nodiscard]] Date now() const override { return now_; }
    void set(Date now) { now_ = now; }

private:
    Date now_;
};

} // namespace k7deval::test
