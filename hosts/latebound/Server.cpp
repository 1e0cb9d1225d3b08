#include "latebound/Server.h"

#include "latebound/Parameters.h"
#include "latebound/Records.h"

#include <string>
#include <utility>

namespace k7deval::latebound
{

namespace
{

class StatusCodes final : public DIStatusCodes
{
public:
    explicit StatusCodes(Wrapper object) : object_(std::move(object)) {}

    bool IsValid(std::int32_t status) override { return object_.flag("IsValid", {status}); }
    bool IsExcluded(std::int32_t status) override { return object_.flag("IsExcluded", {status}); }
    bool IsUnitOffline(std::int32_t status) override
    {
        return object_.flag("IsUnitOffline", {status});
    }
    std::string UnitName(PID pid) override { return object_.text("UnitName", {pid}); }

private:
    Wrapper object_;
};

class LookupEntry final : public DILookupEntry
{
public:
    explicit LookupEntry(Wrapper object) : object_(std::move(object)) {}
    std::string Value() override { return object_.text("Value"); }

private:
    Wrapper object_;
};

class Lookups final : public DILookups
{
public:
    explicit Lookups(Wrapper object) : object_(std::move(object)) {}
    std::shared_ptr<DILookupEntry> Find(const std::string& siteKey, std::int32_t option,
                                        const std::string& table, const std::string& key,
                                        const std::string& last) override
    {
        return object_.optional<LookupEntry>("Find", {siteKey, option, table, key, last});
    }

private:
    Wrapper object_;
};

class LookupService final : public DILookupService
{
public:
    explicit LookupService(Wrapper object) : object_(std::move(object)) {}
    std::shared_ptr<DILookups> Lookups() override
    {
        return object_.optional<latebound::Lookups>("Lookups");
    }

private:
    Wrapper object_;
};

class SiteInfo final : public DISiteInfo
{
public:
    explicit SiteInfo(Wrapper object) : object_(std::move(object)) {}
    std::string SiteKey() override { return object_.text("SiteKey"); }

private:
    Wrapper object_;
};

class Server final : public DIServer
{
public:
    explicit Server(Wrapper object) : object_(std::move(object)) {}

    [[nodiscard]] const ObjectHandle& handle() const { return object_.handle(); }

    std::shared_ptr<DIParameters> Parameters() override
    {
        return object_.optional<latebound::Parameters>("Parameters");
    }
    DIParameterList Units() override { return parameters("Units"); }
    DIParameterList ParametersOfTypes(const ParamTypes& types) override
    {
        return parameters("ParametersOfTypes", {&types});
    }
    DIParameterList ParametersOfUnit(std::int32_t unit, const ParamTypes& types) override
    {
        return parameters("ParametersOfUnit", {unit, &types});
    }
    DIParameterList ParametersOfInterval(const std::string& interval) override
    {
        return parameters("ParametersOfInterval", {interval});
    }
    DIParameterList ParametersOfUnitTypes(const ParamTypes& types, std::int32_t unit,
                                          std::int32_t option, const std::string& interval) override
    {
        return parameters("ParametersOfUnitTypes", {&types, unit, option, interval});
    }
    DIParameterList ConstantsOfUnitTypes(const ParamTypes& types, std::int32_t unit,
                                         const ParamTypes& subset) override
    {
        return parameters("ConstantsOfUnitTypes", {&types, unit, &subset});
    }
    std::shared_ptr<DIStatusCodes> StatusCodes() override
    {
        return object_.optional<latebound::StatusCodes>("StatusCodes");
    }
    std::shared_ptr<DIRecordStore> RecordStore() override
    {
        return object_.optional<latebound::RecordStore>("RecordStore");
    }
    std::shared_ptr<DILookupService> LookupService() override
    {
        return object_.optional<latebound::LookupService>("LookupService");
    }
    std::shared_ptr<DISiteInfo> SiteInfo() override
    {
        return object_.optional<latebound::SiteInfo>("SiteInfo");
    }
    std::string SiteKey() override { return object_.text("SiteKey"); }

private:
    [[nodiscard]] DIParameterList parameters(const char* name, Arguments arguments = {}) const
    {
        return object_.list<Parameter, DIParameter>(name, arguments);
    }

    Wrapper object_;
};

class Sink final : public MessageSink
{
public:
    explicit Sink(ObjectHandle object) : object_(std::move(object)) {}

    [[nodiscard]] const ObjectHandle& handle() const { return object_; }

    void Post(std::int32_t severity, const std::string& text) override
    {
        object_->call("Post", {severity, text});
    }

private:
    ObjectHandle object_;
};

} // namespace

std::shared_ptr<DIServer> serverOn(ObjectHandle object, Region region)
{
    if (!object)
        return nullptr;
    return std::make_shared<Server>(Wrapper(std::move(object), std::move(region)));
}

ObjectHandle objectBehind(const std::shared_ptr<DIServer>& server)
{
    const auto* late = dynamic_cast<const Server*>(server.get());
    return late == nullptr ? nullptr : late->handle();
}

std::shared_ptr<MessageSink> sinkOn(ObjectHandle object)
{
    return object ? std::make_shared<Sink>(std::move(object)) : nullptr;
}

ObjectHandle objectBehind(const std::shared_ptr<MessageSink>& sink)
{
    const auto* late = dynamic_cast<const Sink*>(sink.get());
    return late == nullptr ? nullptr : late->handle();
}

DIParameterList parametersIn(ObjectHandle collection, Region region)
{
    return Wrapper(std::move(collection), std::move(region)).items<Parameter, DIParameter>();
}

} // namespace k7deval::latebound
