#include "qt/ChartAccess.h"

#include "qt/ChartView.h"
#include "qt/Texts.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>

#include <array>
#include <memory>
#include <vector>

namespace k7deval::qt
{

namespace
{

constexpr std::array<const char*, 4> kChartColumns = {"From", "To", "Hours", "Percent"};
constexpr int kColumnCount = static_cast<int>(kChartColumns.size());
constexpr int kHoursColumn = 2;
constexpr int kRowCount = histogram::kBinCount;
/// Stands for the row of the heads and for the column of the names of bars.
constexpr int kHead = -1;
/// The name of the bar and its cells.
constexpr int kCellsOfARow = kColumnCount + 1;
constexpr int kCellCount = kColumnCount + kRowCount * kCellsOfARow;

struct Place {
    int row = kHead;
    int column = kHead;
};

int indexOf(const Place& place)
{
    return place.row == kHead ? place.column
                              : kColumnCount + place.row * kCellsOfARow + place.column + 1;
}

Place placeOf(int index)
{
    if (index < kColumnCount)
        return {kHead, index};
    const int behindHeads = index - kColumnCount;
    return {behindHeads / kCellsOfARow, behindHeads % kCellsOfARow - 1};
}

QString textAt(const ChartView& chart, const Place& place)
{
    if (place.row == kHead)
        return kChartColumns.at(static_cast<std::size_t>(place.column));
    constexpr int kPercentOfABar = 100 / kRowCount;
    if (place.column == kHead)
        return QString("%1% to %2% of the range")
            .arg(place.row * kPercentOfABar)
            .arg((place.row + 1) * kPercentOfABar);
    const histogram::BarTexts& texts = chart.texts(place.row + 1);
    const std::array<const std::string*, 4> cells = {&texts.from, &texts.to, &texts.hours,
                                                     &texts.percent};
    return toQString(*cells.at(static_cast<std::size_t>(place.column)));
}

/// A cell of the table, a head of a column or the name of a bar.
class ChartCell final : public QAccessibleInterface, public QAccessibleTableCellInterface
{
public:
    ChartCell(ChartView& chart, const Place& place) : chart_(&chart), place_(place) {}

    [[nodiscard]] bool isValid() const override { return !chart_.isNull(); }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QWindow* window() const override
    {
        return isValid() ? table()->window() : nullptr;
    }
    [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override
    {
        return nullptr;
    }
    [[nodiscard]] QAccessibleInterface* parent() const override { return table(); }
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override
    {
        return -1;
    }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        if (!isValid())
            return {};
        if (kind == QAccessible::Name)
            return textAt(*chart_, place_);
        return kind == QAccessible::Description && isCell() ? chart_->tip(place_.row + 1)
                                                            : QString();
    }
    [[nodiscard]] QRect rect() const override
    {
        if (!isValid() || place_.row == kHead)
            return {};
        const QRect column = chart_->columnRect(place_.row + 1);
        return {chart_->mapToGlobal(column.topLeft()), column.size()};
    }
    [[nodiscard]] QAccessible::Role role() const override
    {
        if (place_.row == kHead)
            return QAccessible::ColumnHeader;
        return place_.column == kHead ? QAccessible::RowHeader : QAccessible::Cell;
    }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state;
        state.readOnly = true;
        state.invisible = !isValid() || !chart_->isVisible();
        state.focusable = isValid() && isCell();
        state.focused =
            state.focusable && chart_->hasFocus() && chart_->currentBar() == place_.row + 1;
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableCellInterface
                   ? static_cast<QAccessibleTableCellInterface*>(this)
                   : nullptr;
    }

    [[nodiscard]] int rowIndex() const override { return place_.row; }
    [[nodiscard]] int columnIndex() const override { return place_.column; }
    [[nodiscard]] int rowExtent() const override { return 1; }
    [[nodiscard]] int columnExtent() const override { return 1; }
    [[nodiscard]] bool isSelected() const override { return false; }
    [[nodiscard]] QAccessibleInterface* table() const override
    {
        return QAccessible::queryAccessibleInterface(chart_.data());
    }
    [[nodiscard]] QList<QAccessibleInterface*> rowHeaderCells() const override
    {
        return heads({place_.row, kHead});
    }
    [[nodiscard]] QList<QAccessibleInterface*> columnHeaderCells() const override
    {
        return heads({kHead, place_.column});
    }

private:
    [[nodiscard]] bool isCell() const { return place_.row != kHead && place_.column != kHead; }
    [[nodiscard]] QList<QAccessibleInterface*> heads(const Place& place) const
    {
        if (!isValid() || !isCell())
            return {};
        return {table()->child(indexOf(place))};
    }

    QPointer<ChartView> chart_;
    Place place_;
};

/// Nothing can be selected in a chart.
class ChartTable final : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    explicit ChartTable(ChartView& chart)
        : QAccessibleWidget(&chart, QAccessible::Table), cells_(kCellCount, 0)
    {
    }
    ChartTable(const ChartTable&) = delete;
    ChartTable& operator=(const ChartTable&) = delete;
    ~ChartTable() override
    {
        for (const QAccessible::Id id : cells_) {
            if (id != 0)
                QAccessible::deleteAccessibleInterface(id);
        }
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }
    [[nodiscard]] int childCount() const override
    {
        return kCellCount + QAccessibleWidget::childCount();
    }
    [[nodiscard]] QAccessibleInterface* child(int index) const override
    {
        if (index < 0 || index >= kCellCount)
            return QAccessibleWidget::child(index - kCellCount);
        QAccessible::Id& id = cells_[static_cast<std::size_t>(index)];
        if (id == 0)
            id = QAccessible::registerAccessibleInterface(new ChartCell(chart(), placeOf(index)));
        return QAccessible::accessibleInterface(id);
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override
    {
        const auto* cell = dynamic_cast<const ChartCell*>(child);
        if (cell != nullptr && cell->parent() == this)
            return indexOf({cell->rowIndex(), cell->columnIndex()});
        const int index = QAccessibleWidget::indexOfChild(child);
        return index < 0 ? -1 : kCellCount + index;
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override
    {
        const int bar = chart().barAt(chart().mapFromGlobal(QPoint(x, y)).x());
        return rect().contains(x, y) && bar > 0 ? cellAt(bar - 1, kHoursColumn) : nullptr;
    }
    [[nodiscard]] QAccessibleInterface* focusChild() const override
    {
        if (!chart().hasFocus() || chart().currentBar() == 0)
            return QAccessibleWidget::focusChild();
        return cellAt(chart().currentBar() - 1, kHoursColumn);
    }

    [[nodiscard]] QAccessibleInterface* caption() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* summary() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* cellAt(int row, int column) const override
    {
        if (row < 0 || row >= kRowCount || column < 0 || column >= kColumnCount)
            return nullptr;
        return child(indexOf({row, column}));
    }
    [[nodiscard]] int rowCount() const override { return kRowCount; }
    [[nodiscard]] int columnCount() const override { return kColumnCount; }
    [[nodiscard]] QString rowDescription(int row) const override
    {
        return row < 0 || row >= kRowCount ? QString() : textAt(chart(), {row, kHead});
    }
    [[nodiscard]] QString columnDescription(int column) const override
    {
        return column < 0 || column >= kColumnCount ? QString() : textAt(chart(), {kHead, column});
    }
    void modelChange(QAccessibleTableModelChangeEvent* /*event*/) override {}

    [[nodiscard]] int selectedCellCount() const override { return 0; }
    [[nodiscard]] int selectedColumnCount() const override { return 0; }
    [[nodiscard]] int selectedRowCount() const override { return 0; }
    [[nodiscard]] QList<QAccessibleInterface*> selectedCells() const override { return {}; }
    [[nodiscard]] QList<int> selectedColumns() const override { return {}; }
    [[nodiscard]] QList<int> selectedRows() const override { return {}; }
    [[nodiscard]] bool isColumnSelected(int /*column*/) const override { return false; }
    [[nodiscard]] bool isRowSelected(int /*row*/) const override { return false; }
    bool selectRow(int /*row*/) override { return false; }
    bool selectColumn(int /*column*/) override { return false; }
    bool unselectRow(int /*row*/) override { return false; }
    bool unselectColumn(int /*column*/) override { return false; }

private:
    [[nodiscard]] ChartView& chart() const { return *static_cast<ChartView*>(widget()); }

    /// Those that were asked for; 0 for the others.
    mutable std::vector<QAccessible::Id> cells_;
};

/// Charts come under the name of the toolkit's own class.
QAccessibleInterface* makeChartTable(const QString& /*className*/, QObject* object)
{
    auto* chart = dynamic_cast<ChartView*>(object);
    return chart == nullptr ? nullptr : new ChartTable(*chart);
}

} // namespace

void installChartAccess()
{
    QAccessible::installFactory(makeChartTable);
}

void tellFocus(ChartView& chart, int bar)
{
    QAccessibleEvent event(&chart, QAccessible::Focus);
    event.setChild(indexOf({bar - 1, kHoursColumn}));
    QAccessible::updateAccessibility(&event);
}

void tellChange(ChartView& chart)
{
    QAccessibleTableModelChangeEvent event(&chart, QAccessibleTableModelChangeEvent::DataChanged);
    event.setFirstRow(0);
    event.setLastRow(kRowCount - 1);
    event.setFirstColumn(0);
    event.setLastColumn(kColumnCount - 1);
    QAccessible::updateAccessibility(&event);
}

} // namespace k7deval::qt
