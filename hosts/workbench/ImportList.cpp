#include "workbench/ImportList.h"

#include "foundation/FileFunctions.h"
#include "qt/Texts.h"
#include "sitedb/tables/SiteIds.h"

#include <QComboBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace k7deval::workbench
{

namespace
{

enum Column { kFile, kState, kFormat, kUnit, kComponent, kColumnCount };
constexpr int kLongestName = 40;

enum Role { kPathRole = Qt::UserRole, kStateRole };

struct StateLook {
    const char* text = "";
    std::optional<QStyle::StandardPixmap> icon;
};

StateLook lookOf(ImportList::State state)
{
    switch (state) {
    case ImportList::State::Importing:
        return {"importing", QStyle::SP_ArrowForward};
    case ImportList::State::Taken:
        return {"taken", QStyle::SP_DialogApplyButton};
    case ImportList::State::Refused:
        return {"refused", QStyle::SP_MessageBoxWarning};
    case ImportList::State::Cancelled:
        return {"cancelled", QStyle::SP_DialogCancelButton};
    default:
        return {"waiting", std::nullopt};
    }
}

/// A field of a row. A file that is dropped on it is a file to import, not a text.
void makeField(QLineEdit& field, const QString& placeholder)
{
    field.setAcceptDrops(false);
    field.setPlaceholderText(placeholder);
}

QString textOf(const QComboBox* unit)
{
    return unit == nullptr ? QString() : unit->currentText().trimmed();
}

} // namespace

ImportList::ImportList(QWidget* parent) : QTableWidget(0, kColumnCount, parent)
{
    setObjectName("files");
    setAccessibleName("Files to import");
    setHorizontalHeaderLabels({"File", "State", "Taken For", "Unit", "Component"});
    horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    horizontalHeader()->setMaximumSectionSize(fontMetrics().averageCharWidth() * kLongestName);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    verticalHeader()->hide();
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setTextElideMode(Qt::ElideMiddle);
    setTabKeyNavigation(false);
    setAcceptDrops(false);
}

void ImportList::add(std::vector<File> files)
{
    std::stable_partition(files.begin(), files.end(),
                          [](const File& file) { return file.kind.bringsUnits; });
    for (const auto& file : files)
        addRow(file);
    viewport()->update();
}

void ImportList::addRow(const File& file)
{
    const int row = rowCount();
    insertRow(row);
    auto* name = new QTableWidgetItem(QFileInfo(file.path).fileName());
    name->setData(kPathRole, file.path);
    name->setToolTip(file.path);
    setItem(row, kFile, name);
    setItem(row, kFormat, new QTableWidgetItem(qt::toQString(file.kind.format)));
    setItem(row, kState, new QTableWidgetItem);
    if (file.kind.takesUnit)
        addUnit(row, file);
    if (file.kind.takesComponent)
        addComponent(row);
    setState(row, State::Waiting);
}

void ImportList::addUnit(int row, const File& file)
{
    auto* unit = new QComboBox(this);
    unit->setEditable(true);
    unit->setInsertPolicy(QComboBox::NoInsert);
    unit->addItems(units_);
    unit->setCurrentIndex(-1);
    unit->setObjectName("unit of " + fileName(row));
    unit->setAccessibleName("Unit of " + fileName(row));
    unit->setMinimumContentsLength(static_cast<int>(sitedb::kUnitIdentifierLength) + 2);
    makeField(*unit->lineEdit(), file.kind.needsUnit ? "needed" : "all");
    setField(row, kUnit, *unit);
}

void ImportList::addComponent(int row)
{
    auto* component = new QLineEdit(this);
    component->setObjectName("component of " + fileName(row));
    component->setAccessibleName("Component of " + fileName(row) + ", optional");
    makeField(*component, "optional");
    setField(row, kComponent, *component);
}

void ImportList::setField(int row, int column, QWidget& field)
{
    QWidget* last = this;
    for (int above = 0; above <= row; ++above) {
        for (const int next : {kUnit, kComponent}) {
            if (QWidget* held = cellWidget(above, next))
                last = held;
        }
    }
    setCellWidget(row, column, &field);
    setTabOrder(last, &field);
}

bool ImportList::holds(const QString& path) const
{
    for (int row = 0; row < rowCount(); ++row) {
        if (item(row, kFile)->data(kPathRole).toString() == path)
            return true;
    }
    return false;
}

void ImportList::removeSelected()
{
    QModelIndexList rows = selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end(),
              [](const QModelIndex& left, const QModelIndex& right) { return right < left; });
    for (const auto& row : rows)
        removeRow(row.row());
}

std::vector<int> ImportList::openRows() const
{
    std::vector<int> rows;
    for (int row = 0; row < rowCount(); ++row) {
        if (state(row) != State::Taken)
            rows.push_back(row);
    }
    return rows;
}

QString ImportList::fileName(int row) const
{
    return item(row, kFile)->text();
}

QString ImportList::format(int row) const
{
    return item(row, kFormat)->text();
}

ImportTask ImportList::task(int row) const
{
    const QLineEdit* component = this->component(row);
    return {filePath(item(row, kFile)->data(kPathRole).toString().toStdString()),
            textOf(unit(row)).toStdString(),
            component == nullptr ? std::string() : component->text().trimmed().toStdString()};
}

void ImportList::setState(int row, State state)
{
    const StateLook look = lookOf(state);
    QTableWidgetItem& cell = *item(row, kState);
    cell.setText(look.text);
    cell.setIcon(look.icon ? style()->standardIcon(*look.icon) : QIcon());
    cell.setData(kStateRole, static_cast<int>(state));
}

void ImportList::setUnits(const QStringList& units)
{
    units_ = units;
    for (int row = 0; row < rowCount(); ++row) {
        QComboBox* list = unit(row);
        if (list == nullptr)
            continue;
        const QString text = list->currentText();
        list->clear();
        list->addItems(units);
        list->setCurrentIndex(list->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
        list->setEditText(text);
    }
}

/// What was taken can't be changed any more.
void ImportList::setEditable(bool editable)
{
    for (int row = 0; row < rowCount(); ++row) {
        for (const int column : {kUnit, kComponent}) {
            if (QWidget* field = cellWidget(row, column))
                field->setEnabled(editable && state(row) != State::Taken);
        }
    }
}

void ImportList::paintEvent(QPaintEvent* event)
{
    QTableWidget::paintEvent(event);
    if (rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap,
                     "Drop EPA files here, or add them with the button below.");
}

ImportList::State ImportList::state(int row) const
{
    return static_cast<State>(item(row, kState)->data(kStateRole).toInt());
}

QComboBox* ImportList::unit(int row) const
{
    return qobject_cast<QComboBox*>(cellWidget(row, kUnit));
}

QLineEdit* ImportList::component(int row) const
{
    return qobject_cast<QLineEdit*>(cellWidget(row, kComponent));
}

} // namespace k7deval::workbench
