#include "workbench/DataTable.h"

#include "qt/Texts.h"
#include "sitedb/PlainText.h"

#include <QItemSelectionModel>

#include <set>

namespace k7deval::workbench
{

namespace
{

std::string programText(const Variant& value)
{
    if (const auto* number = std::get_if<double>(&value))
        return sitedb::numberText(*number);
    return toText(value, RegionalSettings());
}

/// The cells of a table that a copy holds.
struct Extract {
    std::set<int> rows;
    std::set<int> columns;
};

Extract extractOf(const QItemSelection& selection)
{
    Extract extract;
    for (const auto& range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            extract.rows.insert(row);
        for (int column = range.left(); column <= range.right(); ++column)
            extract.columns.insert(column);
    }
    return extract;
}

QItemSelection allOf(const DataTable& table)
{
    return {table.index(0, 0), table.index(table.rows() - 1, table.columns() - 1)};
}

QString quoted(QString field)
{
    const bool needsQuotes =
        field.contains(',') || field.contains('"') || field.contains('\n') || field.contains('\r');
    return needsQuotes ? '"' + field.replace('"', "\"\"") + '"' : field;
}

int alignmentOf(bool isNumber)
{
    return static_cast<int>((isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

} // namespace

bool isMissing(const Variant& value)
{
    return isNull(value) || std::holds_alternative<Empty>(value);
}

QString cellText(const Variant& value, Reader reader, const RegionalSettings& regional)
{
    if (isMissing(value))
        return {};
    return qt::toQString(reader == Reader::User ? toText(value, regional) : programText(value));
}

QString DataTable::explanation(int /*row*/, int /*column*/) const
{
    return {};
}

QVariant DataTable::data(const QModelIndex& index, int role) const
{
    if (role == Qt::DisplayRole)
        return cell(index.row(), index.column(), Reader::User);
    if (role == Qt::ToolTipRole || role == Qt::AccessibleDescriptionRole)
        return explanation(index.row(), index.column());
    if (role == Qt::TextAlignmentRole)
        return alignmentOf(isNumber(index.column()));
    return {};
}

QVariant DataTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    // A row goes by its time, for those who are told where they are.
    if (orientation != Qt::Horizontal)
        return role == Qt::DisplayRole ? cell(section, 0, Reader::User) : QVariant();
    if (role == Qt::DisplayRole)
        return heading(section, Reader::User);
    if (role == Qt::TextAlignmentRole)
        return alignmentOf(isNumber(section));
    return {};
}

QString tabbedText(const DataTable& table, const QItemSelectionModel& selection, int leadingColumns)
{
    const QItemSelection selected = selection.hasSelection() ? selection.selection() : allOf(table);
    Extract extract = extractOf(selected);
    if (extract.rows.size() == 1 && extract.columns.size() == 1)
        return table.cell(*extract.rows.begin(), *extract.columns.begin(), Reader::User);
    for (int column = 0; column < leadingColumns; ++column)
        extract.columns.insert(column);

    QStringList headings;
    for (const int column : extract.columns)
        headings << table.heading(column, Reader::User).replace('\n', ' ');
    QStringList lines{headings.join('\t')};
    for (const int row : extract.rows) {
        QStringList cells;
        for (const int column : extract.columns) {
            const bool isWanted =
                column < leadingColumns || selected.contains(table.index(row, column));
            cells << (isWanted ? table.cell(row, column, Reader::User) : QString());
        }
        lines << cells.join('\t');
    }
    return lines.join('\n') + '\n';
}

std::string csvText(const DataTable& table)
{
    const auto lineOf = [&](const auto& fieldOf) {
        QStringList fields;
        for (int column = 0; column < table.columns(); ++column)
            fields << quoted(fieldOf(column));
        return fields.join(',').toStdString() + "\r\n";
    };
    std::string text = lineOf([&](int column) { return table.heading(column, Reader::Program); });
    for (int row = 0; row < table.rows(); ++row)
        text += lineOf([&](int column) { return table.cell(row, column, Reader::Program); });
    return text;
}

} // namespace k7deval::workbench
