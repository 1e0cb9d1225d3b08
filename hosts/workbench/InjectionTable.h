#pragma once

#include "foundation/DataInterface.h"
#include "workbench/DataTable.h"

#include <map>
#include <string>
#include <vector>

namespace k7deval::workbench
{

/// One gas injection of a calibration.
struct InjectionRow {
    Date runTime;
    Date injectionEnd; ///< The zero date when not recorded.
    std::string scale;
    std::string gasLevel;
    Variant reference;
    Variant measured;
    Variant drift; ///< Null when one of both is missing.
    Variant span;
    Variant manual;
    bool isOffline = false;
    QString parameter; ///< That it was taken for, with its unit; empty when not recorded.
};

/// Injections in the order in which their records came, a row for each.
class InjectionTable final : public DataTable
{
public:
    /// Raises what the data raises. Regional settings outlive the table.
    InjectionTable(DIServer& server, const DIRecordList& records, const RegionalSettings& regional);

    [[nodiscard]] QString heading(int column, Reader reader) const override;
    [[nodiscard]] QString cell(int row, int column, Reader reader) const override;
    [[nodiscard]] bool isNumber(int column) const override;

    int rowCount(const QModelIndex& parent) const override;
    int columnCount(const QModelIndex& parent) const override;

private:
    std::vector<InjectionRow> rows_;
    const RegionalSettings* regional_;
};

} // namespace k7deval::workbench
