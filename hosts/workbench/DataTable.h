#pragma once

#include "foundation/RegionalSettings.h"
#include "foundation/Variant.h"

#include <QAbstractTableModel>

#include <string>

class QItemSelectionModel;

namespace k7deval::workbench
{

/// Who reads a text of a table: a user, in the style of the region, or a program, with a decimal
/// point and dates as in 2018-05-04 10:13.
enum class Reader { User, Program };

/// Whether there is no value: Null, or never given.
bool isMissing(const Variant& value);
/// A value as a cell shows it; empty for a missing one.
QString cellText(const Variant& value, Reader reader, const RegionalSettings& regional);

/// A table of values, whose cells are asked for when they come on view.
class DataTable : public QAbstractTableModel
{
public:
    using QAbstractTableModel::QAbstractTableModel;

    [[nodiscard]] virtual QString heading(int column, Reader reader) const = 0;
    [[nodiscard]] virtual QString cell(int row, int column, Reader reader) const = 0;
    [[nodiscard]] virtual bool isNumber(int column) const = 0;
    /// What else there is to say about a cell; mostly nothing.
    [[nodiscard]] virtual QString explanation(int row, int column) const;

    [[nodiscard]] int rows() const { return rowCount({}); }
    [[nodiscard]] int columns() const { return columnCount({}); }

    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
};

/// What is selected, with tabs between columns; all of the table when nothing is. Several cells
/// have their headings above them, and the cells of the leading columns at their left.
QString tabbedText(const DataTable& table, const QItemSelectionModel& selection,
                   int leadingColumns);

/// The table as comma-separated values (RFC 4180), UTF-8, the headings first.
std::string csvText(const DataTable& table);

} // namespace k7deval::workbench
