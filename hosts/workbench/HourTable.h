#pragma once

#include "foundation/DataInterface.h"
#include "workbench/DataTable.h"
#include "workbench/StatusText.h"

#include <map>
#include <memory>
#include <vector>

namespace k7deval::workbench
{

/// The hours of one parameter.
struct HourSeries {
    QString name;  ///< With its unit: "GT4 Load".
    QString units; ///< "MW", or empty.
    DIDataSet hours;

    [[nodiscard]] bool hasValue() const;
};

/// Reads a parameter's hours from one on. Raises what the data raises.
HourSeries readSeries(DIServer& server, PID pid, Date first, std::int32_t hours);

/// Hourly values, a row for each hour: day, hour, and of each parameter value and status.
class HourTable final : public DataTable
{
public:
    /// Day and hour.
    static constexpr int kTimeColumns = 2;

    /// One or more series over the same hours. Regional settings outlive the table.
    HourTable(std::vector<HourSeries> series, DIStatusCodes& codes,
              const RegionalSettings& regional);

    /// In how many hours at least one parameter has a value.
    [[nodiscard]] int hoursWithValue() const;
    /// Whether there is anything to say about an hour: a value, or a status word.
    [[nodiscard]] bool hasContent() const;
    /// The status texts that stand in a column of them.
    [[nodiscard]] QStringList statusTextsIn(int column) const;

    [[nodiscard]] QString heading(int column, Reader reader) const override;
    [[nodiscard]] QString cell(int row, int column, Reader reader) const override;
    [[nodiscard]] QString explanation(int row, int column) const override;
    [[nodiscard]] bool isNumber(int column) const override { return isValue(column); }

    int rowCount(const QModelIndex& parent) const override;
    int columnCount(const QModelIndex& parent) const override;
    /// A row is headed by its day and hour.
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    static bool isValue(int column) { return column >= kTimeColumns && column % 2 == 0; }
    static bool isStatus(int column) { return column >= kTimeColumns && column % 2 != 0; }

private:
    [[nodiscard]] const HourSeries& seriesOf(int column) const;
    [[nodiscard]] const StatusText& statusOf(int row, int column) const;
    [[nodiscard]] QString dayText(int row, Reader reader) const;
    [[nodiscard]] QString hourText(int row, Reader reader) const;
    [[nodiscard]] Date timeOf(int row) const;

    std::vector<HourSeries> series_;
    std::map<std::int32_t, StatusText> statuses_;
    const RegionalSettings* regional_;
};

} // namespace k7deval::workbench
