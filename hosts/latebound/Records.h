#pragma once

#include "foundation/DataInterface.h"
#include "latebound/Wrapper.h"

#include <cstdint>
#include <string>
#include <utility>

namespace k7deval::latebound
{

/// A calibration record of the host.
class Record final : public DIRecord
{
public:
    explicit Record(Wrapper object) : object_(std::move(object)) {}

    [[nodiscard]] Date RunTime() override { return object_.date("RunTime"); }
    [[nodiscard]] std::string Scale() override { return object_.text("Scale"); }
    [[nodiscard]] std::int32_t GasLevelCode() override { return object_.number("GasLevelCode"); }
    [[nodiscard]] std::string GasLevelText() override { return object_.text("GasLevelText"); }
    [[nodiscard]] Variant ReferenceValue() override { return object_.value("ReferenceValue"); }
    [[nodiscard]] Variant MeasuredValue() override { return object_.value("MeasuredValue"); }
    [[nodiscard]] Date InjectionEnd() override { return object_.date("InjectionEnd"); }
    [[nodiscard]] Variant Manual() override { return object_.value("Manual"); }
    [[nodiscard]] std::int32_t CalStatus() override { return object_.number("CalStatus"); }
    [[nodiscard]] Variant Span() override { return object_.value("Span"); }
    [[nodiscard]] Variant SourceTagID() override { return object_.value("SourceTagID"); }

private:
    Wrapper object_;
};

/// The record tables of the host.
class RecordStore final : public DIRecordStore
{
public:
    explicit RecordStore(Wrapper object) : object_(std::move(object)) {}

    [[nodiscard]] DIRecordList ReadRangeRecords(const RangeRecordQuery& query) override;
    [[nodiscard]] DIRecordList ReadRecords(const RecordQuery& query) override;

private:
    Wrapper object_;
};

} // namespace k7deval::latebound
