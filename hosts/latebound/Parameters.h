#pragma once

#include "foundation/DataInterface.h"
#include "latebound/Wrapper.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

namespace k7deval::latebound
{

/// A parameter of the host.
class Parameter final : public DIParameter
{
public:
    explicit Parameter(Wrapper object) : object_(std::move(object)) {}

    [[nodiscard]] k7deval::PID PID() override;
    [[nodiscard]] std::string Name(std::int32_t form) override;
    [[nodiscard]] std::int32_t ParamType() override;
    [[nodiscard]] std::string UnitsText() override;
    [[nodiscard]] DIInterval Interval() override;
    void ReadData(DIDataSet& set) override;
    [[nodiscard]] DIDataSet CurrentPoint(std::int32_t one, std::int32_t two,
                                         std::int32_t three) override;
    [[nodiscard]] Variant GetAttribute(std::int32_t id) override;
    [[nodiscard]] Variant GetLinkedPID(std::int32_t id) override;

private:
    Wrapper object_;
};

/// All parameters of the host.
class Parameters final : public DIParameters
{
public:
    explicit Parameters(Wrapper object) : object_(std::move(object)) {}

    [[nodiscard]] bool Exists(PID pid) override;
    [[nodiscard]] std::shared_ptr<DIParameter> Item(PID pid, std::int32_t option) override;

private:
    Wrapper object_;
};

} // namespace k7deval::latebound
