#pragma once

#include "sitedb/Import.h"
#include "workbench/ImportJob.h"

#include <QTableWidget>

#include <optional>
#include <vector>

class QComboBox;
class QLineEdit;

namespace k7deval::workbench
{

/// The files of an import: what each was taken for, what the operator says of it, and how far it
/// is.
class ImportList final : public QTableWidget
{
public:
    enum class State { Waiting, Importing, Taken, Refused, Cancelled };
    struct File {
        QString path;
        sitedb::FileKind kind;
    };

    explicit ImportList(QWidget* parent);

    /// Adds files in their order, but those that bring units ahead of the others: these may need
    /// them.
    void add(std::vector<File> files);
    [[nodiscard]] bool holds(const QString& path) const;
    void removeSelected();

    /// The rows of the files that were not taken yet.
    [[nodiscard]] std::vector<int> openRows() const;
    [[nodiscard]] QString fileName(int row) const;
    [[nodiscard]] QString format(int row) const;
    [[nodiscard]] ImportTask task(int row) const;
    void setState(int row, State state);

    /// The units that the site has, to pick from; what stands in the fields stays.
    void setUnits(const QStringList& units);
    /// Whether what is said of the files can be changed.
    void setEditable(bool editable);

protected:
    /// Says what to do as long as there is no file.
    void paintEvent(QPaintEvent* event) override;

private:
    void addRow(const File& file);
    void addUnit(int row, const File& file);
    void addComponent(int row);
    /// Shows a field in a row and puts it behind the fields above for the tabulator.
    void setField(int row, int column, QWidget& field);
    [[nodiscard]] State state(int row) const;
    [[nodiscard]] QComboBox* unit(int row) const;
    [[nodiscard]] QLineEdit* component(int row) const;

    QStringList units_;
};

} // namespace k7deval::workbench
