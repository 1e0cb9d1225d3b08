#include "support/FakeSite.h"

#include <algorithm>
#include <stdexcept>

namespace k7deval::test
{

namespace
{

using Site = std::shared_ptr<SiteData>;

/// The constant arguments of a call are part of what the data interface asks for.
void insistOnCall(bool promise, const char* what)
{
    if (!promise)
        throw std::logic_error(what);
}

std::string called(const char* member, std::int32_t argument)
{
    return std::string(member) + "(" + std::to_string(argument) + ")";
}

class FakeParameter final : public DIParameter
{
public:
    FakeParameter(Site site, k7deval::PID pid) : site_(std::move(site)), pid_(pid) {}

    k7deval::PID PID() override
    {
        site_->noteCall("DIParameter.PID");
        return pid_;
    }
    std::string Name(std::int32_t form) override
    {
        insistOnCall(form == 0, "Name is called with 0");
        site_->noteCall("DIParameter.Name");
        return data().name;
    }
    std::int32_t ParamType() override
    {
        site_->noteCall("DIParameter.ParamType");
        return data().type;
    }
    std::string UnitsText() override
    {
        site_->noteCall("DIParameter.UnitsText");
        return data().unitsText;
    }
    DIInterval Interval() override
    {
        site_->noteCall("DIParameter.Interval");
        return data().interval;
    }
    void ReadData(DIDataSet& set) override
    {
        site_->noteCall("DIParameter.ReadData");
        site_->reads.push_back({pid_, set.StartTime(), set.Count()});
        site_->readSets.push_back(&set);
        const HourlyValues& hours = data().hours;
        const auto offset = hourBoundariesBetween(hours.start, set.StartTime());
        for (std::int32_t i = 1; i <= set.Count(); ++i) {
            const auto at = offset + i - 1;
            if (at >= 0 && at < static_cast<std::int64_t>(hours.values.size()))
                fill(set.ItemByIndex(i), hours, static_cast<std::size_t>(at));
        }
    }
    DIDataSet CurrentPoint(std::int32_t a, std::int32_t b, std::int32_t c) override
    {
        insistOnCall(a == 0 && b == 0 && c == 0, "CurrentPoint is called with 0, 0, 0");
        site_->noteCall("DIParameter.CurrentPoint");
        DIDataSet set;
        set.Init({}, 1, "h", 1, 0);
        if (const auto& constant = data().constant; constant && constant->value)
            set.ItemByIndex(1).SetValue(*constant->value);
        return set;
    }
    Variant GetAttribute(std::int32_t id) override
    {
        site_->noteCall(called("DIParameter.GetAttribute", id));
        const auto found = data().attributes.find(id);
        return found == data().attributes.end() ? Variant(Null{}) : found->second;
    }
    Variant GetLinkedPID(std::int32_t id) override
    {
        site_->noteCall(called("DIParameter.GetLinkedPID", id));
        const auto found = data().links.find(id);
        return found == data().links.end() ? Variant(std::int32_t{0}) : found->second;
    }

private:
    static void fill(DIDataPoint slot, const HourlyValues& hours, std::size_t at)
    {
        if (hours.values[at])
            slot.SetValue(*hours.values[at]);
        if (at < hours.statuses.size())
            slot.SetStatus(hours.statuses[at]);
    }
    ParameterData& data() { return site_->parameter(pid_); }

    Site site_;
    k7deval::PID pid_;
};

DIParameterList parametersWhere(const Site& site,
                                const std::function<bool(const ParameterData&)>& isWanted)
{
    DIParameterList list;
    for (const auto& parameter : site->parameters) {
        if (isWanted(parameter))
            list.push_back(std::make_shared<FakeParameter>(site, parameter.pid));
    }
    return list;
}

bool isOneOf(std::int32_t type, const ParamTypes& types)
{
    return std::find(types.begin(), types.end(), type) != types.end();
}

class FakeParameters final : public DIParameters
{
public:
    explicit FakeParameters(Site site) : site_(std::move(site)) {}
    bool Exists(PID pid) override
    {
        site_->noteCall("DIParameters.Exists");
        return site_->has(pid);
    }
    std::shared_ptr<DIParameter> Item(PID pid, std::int32_t form) override
    {
        insistOnCall(form == -1, "Item is called with -1");
        site_->noteCall("DIParameters.Item");
        if (!site_->has(pid))
            throw Error(errors::kInvalidCall);
        return std::make_shared<FakeParameter>(site_, pid);
    }

private:
    Site site_;
};

class FakeRecord final : public DIRecord
{
public:
    FakeRecord(Site site, RecordData data) : site_(std::move(site)), data_(std::move(data)) {}
    Date RunTime() override { return noted("DIRecord.RunTime", data_.runTime); }
    std::string Scale() override { return noted("DIRecord.Scale", data_.scale); }
    std::int32_t GasLevelCode() override
    {
        return noted("DIRecord.GasLevelCode", data_.gasLevelCode);
    }
    std::string GasLevelText() override
    {
        return noted("DIRecord.GasLevelText", data_.gasLevelText);
    }
    Variant ReferenceValue() override { return noted("DIRecord.ReferenceValue", data_.reference); }
    Variant MeasuredValue() override { return noted("DIRecord.MeasuredValue", data_.measured); }
    Date InjectionEnd() override { return noted("DIRecord.InjectionEnd", data_.injectionEnd); }
    Variant Manual() override { return noted("DIRecord.Manual", data_.manual); }
    std::int32_t CalStatus() override { return noted("DIRecord.CalStatus", data_.calStatus); }
    Variant Span() override { return noted("DIRecord.Span", data_.span); }
    Variant SourceTagID() override { return noted("DIRecord.SourceTagID", data_.sourceTag); }

private:
    template <class T> T noted(const char* member, const T& value)
    {
        site_->noteCall(member);
        return value;
    }

    Site site_;
    RecordData data_;
};

class FakeRecordStore final : public DIRecordStore
{
public:
    explicit FakeRecordStore(Site site) : site_(std::move(site)) {}
    DIRecordList ReadRangeRecords(const RangeRecordQuery& query) override
    {
        site_->noteCall("DIRecordStore.ReadRangeRecords");
        site_->rangeQueries.push_back(query);
        return recordsWhere([&](const RecordData& record) {
            return record.pid == query.pid && query.start <= record.runTime &&
                   record.runTime < dateFromSeconds(wholeSeconds(query.end) + 60);
        });
    }
    DIRecordList ReadRecords(const RecordQuery& query) override
    {
        site_->noteCall("DIRecordStore.ReadRecords");
        site_->recordQueries.push_back(query);
        return recordsWhere([&](const RecordData& record) {
            return record.pid == query.pid && record.table == query.table;
        });
    }

private:
    DIRecordList recordsWhere(const std::function<bool(const RecordData&)>& isWanted)
    {
        DIRecordList list;
        for (const auto& record : site_->records) {
            if (isWanted(record))
                list.push_back(std::make_shared<FakeRecord>(site_, record));
        }
        return list;
    }

    Site site_;
};

class FakeLookupEntry final : public DILookupEntry
{
public:
    FakeLookupEntry(Site site, std::string value) : site_(std::move(site)), value_(std::move(value))
    {
    }
    std::string Value() override
    {
        site_->noteCall("DILookupEntry.Value");
        return value_;
    }

private:
    Site site_;
    std::string value_;
};

class FakeLookups final : public DILookups, public DILookupService
{
public:
    explicit FakeLookups(Site site) : site_(std::move(site)) {}
    std::shared_ptr<DILookups> Lookups() override
    {
        site_->noteCall("DILookupService.Lookups");
        return std::make_shared<FakeLookups>(site_);
    }
    std::shared_ptr<DILookupEntry> Find(const std::string& siteKey, std::int32_t form,
                                        const std::string& table, const std::string& key,
                                        const std::string& rest) override
    {
        site_->noteCall("DILookups.Find");
        const bool isAsked = siteKey == site_->siteKey && form == 1 && table == "K7LOOKUP" &&
                             key == "FacilityName" && rest.empty();
        if (!isAsked || !site_->facilityName)
            return nullptr;
        return std::make_shared<FakeLookupEntry>(site_, *site_->facilityName);
    }

private:
    Site site_;
};

class FakeSiteInfo final : public DISiteInfo
{
public:
    explicit FakeSiteInfo(Site site) : site_(std::move(site)) {}
    std::string SiteKey() override
    {
        site_->noteCall("DISiteInfo.SiteKey");
        return site_->siteKey;
    }

private:
    Site site_;
};

class FakeStatusCodes final : public DIStatusCodes
{
public:
    explicit FakeStatusCodes(Site site) : site_(std::move(site)) {}
    bool IsValid(std::int32_t status) override { return site_->meaningOf(status).valid; }
    bool IsExcluded(std::int32_t status) override { return site_->meaningOf(status).excluded; }
    bool IsUnitOffline(std::int32_t status) override { return site_->meaningOf(status).offline; }
    std::string UnitName(PID pid) override
    {
        site_->noteCall(called("DIStatusCodes.UnitName", pid));
        return site_->parameter(UnitPID(pid)).name;
    }

private:
    Site site_;
};

class FakeServer final : public DIServer
{
public:
    explicit FakeServer(Site site) : site_(std::move(site)) {}

    std::shared_ptr<DIParameters> Parameters() override
    {
        return made<FakeParameters>("Parameters");
    }
    DIParameterList Units() override
    {
        site_->noteCall("DIServer.Units");
        return parametersWhere(site_, [](const auto& p) { return p.type == kUnitType; });
    }
    DIParameterList ParametersOfTypes(const ParamTypes& types) override
    {
        site_->noteCall("DIServer.ParametersOfTypes");
        return parametersWhere(site_, [&](const auto& p) { return isOneOf(p.type, types); });
    }
    DIParameterList ParametersOfUnit(std::int32_t unit, const ParamTypes& types) override
    {
        site_->noteCall("DIServer.ParametersOfUnit");
        return parametersWhere(site_, [&](const auto& p) {
            return PIDPart(p.pid, pidpart::kUnit) == unit && isOneOf(p.type, types);
        });
    }
    DIParameterList ParametersOfInterval(const std::string& interval) override
    {
        site_->noteCall("DIServer.ParametersOfInterval");
        return parametersWhere(site_, [&](const auto& p) {
            return !p.intervalLetter.empty() && p.intervalLetter == interval;
        });
    }
    DIParameterList ParametersOfUnitTypes(const ParamTypes& types, std::int32_t unit,
                                          std::int32_t form, const std::string& interval) override
    {
        insistOnCall(form == 3, "ParametersOfUnitTypes is called with 3");
        site_->noteCall("DIServer.ParametersOfUnitTypes");
        site_->parameterQueries.push_back({types, unit, interval, {}});
        return parametersWhere(site_, [&](const auto& p) {
            return PIDPart(p.pid, pidpart::kUnit) == unit && isOneOf(p.type, types) &&
                   !p.intervalLetter.empty() && p.intervalLetter == interval;
        });
    }
    DIParameterList ConstantsOfUnitTypes(const ParamTypes& types, std::int32_t unit,
                                         const ParamTypes& subset) override
    {
        site_->noteCall("DIServer.ConstantsOfUnitTypes");
        site_->constantQueries.push_back({types, unit, {}, subset});
        return parametersWhere(site_, [&](const auto& p) {
            return p.constant && PIDPart(p.pid, pidpart::kUnit) == unit && isOneOf(p.type, types) &&
                   isOneOf(p.constant->subset, subset);
        });
    }
    std::shared_ptr<DIStatusCodes> StatusCodes() override
    {
        return made<FakeStatusCodes>("StatusCodes");
    }
    std::shared_ptr<DIRecordStore> RecordStore() override
    {
        return made<FakeRecordStore>("RecordStore");
    }
    std::shared_ptr<DILookupService> LookupService() override
    {
        return made<FakeLookups>("LookupService");
    }
    std::shared_ptr<DISiteInfo> SiteInfo() override { return made<FakeSiteInfo>("SiteInfo"); }
    std::string SiteKey() override
    {
        site_->noteCall("DIServer.SiteKey");
        return site_->siteKey;
    }

private:
    template <class T> std::shared_ptr<T> made(const char* member)
    {
        site_->noteCall(std::string("DIServer.") + member);
        return std::make_shared<T>(site_);
    }

    Site site_;
};

} // namespace

std::size_t HourlyValues::reach(Date hour)
{
    if (values.empty())
        start = hour;
    statuses.resize(values.size());
    const std::int64_t at = hourBoundariesBetween(start, hour);
    if (at < 0) {
        values.insert(values.begin(), static_cast<std::size_t>(-at), std::nullopt);
        statuses.insert(statuses.begin(), static_cast<std::size_t>(-at), 0);
        start = hour;
        return 0;
    }
    const auto index = static_cast<std::size_t>(at);
    values.resize(std::max(values.size(), index + 1));
    statuses.resize(values.size());
    return index;
}

void HourlyValues::set(Date hour, std::optional<double> value, std::int32_t status)
{
    const std::size_t index = reach(hour);
    values[index] = value;
    statuses[index] = status;
}

void HourlyValues::fill(Date first, Date last, std::optional<double> value, std::int32_t status)
{
    reach(last);
    const std::size_t begin = reach(first);
    const auto hours = static_cast<std::size_t>(hourBoundariesBetween(first, last)) + 1;
    for (std::size_t i = begin; i < begin + hours; ++i) {
        values[i] = value;
        statuses[i] = status;
    }
}

ParameterData& SiteData::parameter(PID pid)
{
    const auto found = std::find_if(parameters.begin(), parameters.end(),
                                    [&](const auto& p) { return p.pid == pid; });
    if (found == parameters.end())
        throw Error(errors::kInvalidCall);
    return *found;
}

bool SiteData::has(PID pid) const
{
    return std::any_of(parameters.begin(), parameters.end(),
                       [&](const auto& p) { return p.pid == pid; });
}

StatusMeaning SiteData::meaningOf(std::int32_t status) const
{
    const auto found = statusMeanings.find(status);
    return found == statusMeanings.end() ? StatusMeaning{} : found->second;
}

void SiteData::noteCall(const std::string& call)
{
    calls.push_back(call);
    if (!failure)
        return;
    if (const auto error = failure(call, calls.size() - 1))
        throw Error(*error);
}

std::size_t SiteData::countCalls(const std::string& call) const
{
    return static_cast<std::size_t>(std::count(calls.begin(), calls.end(), call));
}

std::shared_ptr<DIServer> serve(const std::shared_ptr<SiteData>& site)
{
    return std::make_shared<FakeServer>(site);
}

void Messages::Post(std::int32_t severity, const std::string& text)
{
    posted.emplace_back(severity, text);
}

std::vector<std::string> Messages::lines() const
{
    std::vector<std::string> texts;
    for (const auto& [severity, text] : posted)
        texts.push_back(text);
    return texts;
}

} // namespace k7deval::test
