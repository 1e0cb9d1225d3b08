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

/// An hourly value from a start time on; nothing is an hour without a value.
struct HourlyValues {
    Date start;
    std::vector<std::optional<double>> values;
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

/// The whole of a site, and what happened to it.
struct SiteData {
    std::string siteKey = "SITE";
    std::optional<std::string> facilityName;
    std::vector<ParameterData> parameters; ///< Units have kUnitType.
    std::vector<RecordData> records;
    /// Members called so far, as "DIServer.Units", "DIParameter.GetAttribute(-21)", ...
    std::vector<std::string> calls;
    std::vector<RangeRecordQuery> rangeQueries;
    /// Decides for each call, before it is answered, whether it fails with an error.
    std::function<std::optional<Error>(const std::string& call, std::size_t index)> failure;

    [[nodiscard]] ParameterData& parameter(PID pid);
    [[nodiscard]] bool has(PID pid) const;
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
