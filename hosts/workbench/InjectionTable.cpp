#include "workbench/InjectionTable.h"

#include "foundation/DateText.h"
#include "foundation/UtilityFunctions.h"
#include "qt/Texts.h"
#include "sevenday/clsStrippedCal.h"
#include "workbench/SiteReading.h"

#include <array>

namespace k7deval::workbench
{

namespace
{

/// The style of a date with hours and minutes.
constexpr std::int32_t kDateWithMinutes = 10;

Variant driftOf(const InjectionRow& row, const RegionalSettings& regional)
{
    if (isMissing(row.reference) || isMissing(row.measured))
        return Null{};
    clsStrippedCal injection;
    injection.ReferenceValue = singleIn(row.reference, regional);
    injection.MeasuredValue = singleIn(row.measured, regional);
    return injection.Drift();
}

/// As the record names it; the kind of gas for one without a name.
std::string gasLevelOf(DIRecord& record)
{
    std::string text = record.GasLevelText();
    if (!text.empty())
        return text;
    return record.GasLevelCode() == 0 ? "zero gas" : "upscale gas";
}

/// The names of parameters, each looked up once.
class ParameterNames
{
public:
    ParameterNames(DIServer& server, const RegionalSettings& regional)
        : server_(&server), regional_(&regional)
    {
    }

    const QString& of(const Variant& sourceTag)
    {
        const PID pid = isMissing(sourceTag) ? 0 : integerIn(sourceTag, *regional_);
        const auto found = names_.find(pid);
        return found != names_.end() ? found->second
                                     : names_.emplace(pid, nameOf(pid)).first->second;
    }

private:
    [[nodiscard]] QString nameOf(PID pid) const
    {
        const auto parameters = server_->Parameters();
        if (!present(parameters).Exists(pid))
            return qt::toQString(PIDToText(pid));
        return nameWithUnit(*server_, present(parameters->Item(pid, -1)));
    }

    DIServer* server_;
    const RegionalSettings* regional_;
    std::map<PID, QString> names_;
};

InjectionRow rowOf(DIRecord& record, ParameterNames& names, const RegionalSettings& regional)
{
    InjectionRow row;
    row.runTime = record.RunTime();
    row.injectionEnd = record.InjectionEnd();
    row.scale = record.Scale();
    row.gasLevel = gasLevelOf(record);
    row.reference = record.ReferenceValue();
    row.measured = record.MeasuredValue();
    row.drift = driftOf(row, regional);
    row.span = record.Span();
    row.manual = record.Manual();
    row.isOffline = record.CalStatus() == status::kOfflineCalibration;
    row.parameter = names.of(record.SourceTagID());
    return row;
}

/// What a cell is made from.
struct Writing {
    Reader reader;
    const RegionalSettings& regional;

    [[nodiscard]] QString value(const Variant& value) const
    {
        return cellText(value, reader, regional);
    }
    [[nodiscard]] QString time(Date time) const
    {
        if (IsNoDate(time))
            return {};
        if (reader == Reader::User)
            return qt::toQString(FormatTimeStamp(time, kDateWithMinutes, regional));
        return qt::toQString(isoDate(time) + " " + ShortTime(time, regional));
    }
    [[nodiscard]] QString yesOrNo(const Variant& value) const
    {
        if (isMissing(value))
            return {};
        return booleanIn(value, regional) ? "yes" : "no";
    }
};

struct InjectionColumn {
    const char* heading;
    bool isNumber;
    QString (*text)(const InjectionRow& row, const Writing& writing);
};

using Row = InjectionRow;

const std::array kColumns{
    InjectionColumn{"Run time", false,
                    [](const Row& row, const Writing& as) { return as.time(row.runTime); }},
    InjectionColumn{"Injection end", false,
                    [](const Row& row, const Writing& as) { return as.time(row.injectionEnd); }},
    InjectionColumn{"Scale", false,
                    [](const Row& row, const Writing&) { return qt::toQString(row.scale); }},
    InjectionColumn{"Gas level", false,
                    [](const Row& row, const Writing&) { return qt::toQString(row.gasLevel); }},
    InjectionColumn{"Reference", true,
                    [](const Row& row, const Writing& as) { return as.value(row.reference); }},
    InjectionColumn{"Measured", true,
                    [](const Row& row, const Writing& as) { return as.value(row.measured); }},
    InjectionColumn{"Drift", true,
                    [](const Row& row, const Writing& as) { return as.value(row.drift); }},
    InjectionColumn{"Span", true,
                    [](const Row& row, const Writing& as) { return as.value(row.span); }},
    InjectionColumn{"Manual", false,
                    [](const Row& row, const Writing& as) { return as.yesOrNo(row.manual); }},
    InjectionColumn{"Unit", false,
                    [](const Row& row, const Writing&) {
                        return QString(row.isOffline ? "off line" : "on line");
                    }},
    InjectionColumn{"Parameter", false,
                    [](const Row& row, const Writing&) { return row.parameter; }},
};

const InjectionColumn& columnAt(int column)
{
    return kColumns[static_cast<std::size_t>(column)];
}

} // namespace

InjectionTable::InjectionTable(DIServer& server, const DIRecordList& records,
                               const RegionalSettings& regional)
    : regional_(&regional)
{
    ParameterNames names(server, regional);
    for (const auto& record : records)
        rows_.push_back(rowOf(present(record), names, regional));
}

QString InjectionTable::heading(int column, Reader /*reader*/) const
{
    return columnAt(column).heading;
}

QString InjectionTable::cell(int row, int column, Reader reader) const
{
    return columnAt(column).text(rows_[static_cast<std::size_t>(row)], {reader, *regional_});
}

bool InjectionTable::isNumber(int column) const
{
    return columnAt(column).isNumber;
}

int InjectionTable::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int InjectionTable::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(kColumns.size());
}

} // namespace k7deval::workbench
