#include "qt/Binding.h"

#include "qt/EventWatch.h"
#include "qt/Mirror.h"
#include "qt/Texts.h"
#include "qt/UserAction.h"

#include <QAbstractTableModel>
#include <QFontMetricsF>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTableView>

#include <optional>

namespace k7deval::qt
{

namespace
{

constexpr int kCheckColumn = 0;
constexpr int kTextColumn = 1;
constexpr int kColumns = 2;
/// The rows of a grid, asked of it whenever the view needs them. Rows and columns count from 0
/// here and from 1 in the grid.
class GridRows final : public QAbstractTableModel
{
public:
    GridRows(QTableView& view, screen::Grid& grid)
        : QAbstractTableModel(&view), view_(&view), grid_(&grid), shown_(grid.RowCount())
    {
    }

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : shown_; }
    int columnCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : kColumns;
    }

    Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        const bool isTick = index.column() == kCheckColumn && tick(index).has_value();
        const Qt::ItemFlags plain = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
        return isTick ? plain | Qt::ItemIsUserCheckable : plain;
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        const bool isHeader = !tick(index).has_value();
        if (role == Qt::CheckStateRole && index.column() == kCheckColumn && !isHeader)
            return *tick(index) ? Qt::Checked : Qt::Unchecked;
        if (role == Qt::DisplayRole && (index.column() == kTextColumn || isHeader))
            return text(index);
        if (role == Qt::TextAlignmentRole && isHeader)
            return Qt::AlignCenter;
        // A mark alone says nothing to a screen reader.
        if (role == Qt::AccessibleTextRole)
            return text(index);
        return {};
    }

    bool setData(const QModelIndex& index, const QVariant& value, int role) override
    {
        if (role != Qt::CheckStateRole || index.column() != kCheckColumn)
            return false;
        forward(*view_, [&] { grid_->Edit(index.row() + 1, value.toInt() == Qt::Checked); });
        return true;
    }

    /// Asks for all rows anew.
    void readAgain()
    {
        if (shown_ != grid_->RowCount()) {
            beginResetModel();
            shown_ = grid_->RowCount();
            endResetModel();
        } else if (shown_ > 0) {
            emit dataChanged(index(0, 0), index(shown_ - 1, kTextColumn));
        }
        spanHeaders();
    }

private:
    /// A row that can't be read now stays empty; the grid says so to whoever acts on it.
    [[nodiscard]] screen::GridCells cells(const QModelIndex& index) const
    {
        try {
            return grid_->Cells(index.row() + 1);
        } catch (const Error&) {
            return {};
        }
    }
    [[nodiscard]] std::optional<bool> tick(const QModelIndex& index) const
    {
        const Variant first = cells(index).first;
        const auto* mark = std::get_if<bool>(&first);
        return mark == nullptr ? std::nullopt : std::optional(*mark);
    }
    [[nodiscard]] QString text(const QModelIndex& index) const
    {
        const Variant second = cells(index).second;
        const auto* name = std::get_if<std::string>(&second);
        return name == nullptr ? QString() : toQString(*name);
    }

    /// A row without a mark is a heading over both columns.
    void spanHeaders()
    {
        view_->clearSpans();
        for (int row = 0; row < shown_; ++row) {
            if (!tick(index(row, kCheckColumn)))
                view_->setSpan(row, kCheckColumn, 1, kColumns);
        }
    }

    QTableView* view_;
    screen::Grid* grid_;
    int shown_;
};

void layOut(QTableView& view)
{
    view.horizontalHeader()->hide();
    view.horizontalHeader()->setMinimumSectionSize(1);
    view.horizontalHeader()->setSectionResizeMode(kCheckColumn, QHeaderView::ResizeToContents);
    view.horizontalHeader()->setSectionResizeMode(kTextColumn, QHeaderView::Stretch);
    view.verticalHeader()->hide();
    view.verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    view.setShowGrid(false);
    view.setTabKeyNavigation(false);
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

/// The grid may outlive the view, so it gets a measure that does not need it.
void handInWidths(const QTableView& view, screen::Grid& model)
{
    model.TextWidth = [metrics = QFontMetricsF(view.font())](const std::string& text) {
        return static_cast<float>(metrics.horizontalAdvance(toQString(text))) * kTwipsPerPixel;
    };
    const int scrollBar = view.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &view);
    model.ScrollBarWidth = static_cast<float>(scrollBar) * kTwipsPerPixel;
}

void showGrid(QTableView& view, GridRows& rows, const screen::Grid& model)
{
    rows.readAgain();
    view.setSelectionMode(model.MultiSelect() ? QAbstractItemView::ExtendedSelection
                                              : QAbstractItemView::SingleSelection);
    const QModelIndex current = rows.index(model.Row() - 1, model.Col() - 1);
    if (current.isValid() && view.currentIndex() != current)
        view.setCurrentIndex(current);
}

void forwardMouse(QTableView& view, screen::Grid& model, const Refresh& refresh)
{
    // Not the signal of the view, which a press on a mark does not raise.
    const auto mouseDown = [&view, &model](const QEvent& event) {
        const auto& press = static_cast<const QMouseEvent&>(event);
        const QModelIndex index = view.indexAt(press.position().toPoint());
        forward(view, [&] { model.MouseDown(index.row() + 1, index.column() + 1); });
    };
    for (const QEvent::Type kind : {QEvent::MouseButtonPress, QEvent::MouseButtonDblClick})
        new EventWatch(*view.viewport(), kind, mouseDown);
    QObject::connect(&view, &QTableView::doubleClicked, &view, [&view, &model, refresh] {
        forward(
            view, [&model] { model.DoubleClick(); }, refresh);
    });
}

/// The space bar ticks a mark that has the keys, so it also does in a row whose text has them.
void tickByKey(QTableView& view)
{
    new EventWatch(view, QEvent::KeyPress, [&view](const QEvent& event) {
        const QModelIndex current = view.currentIndex();
        if (static_cast<const QKeyEvent&>(event).key() == Qt::Key_Space && current.isValid())
            view.setCurrentIndex(current.siblingAtColumn(kCheckColumn));
    });
}

} // namespace

void bind(QTableView& view, screen::Grid& model)
{
    auto* rows = new GridRows(view, model);
    view.setModel(rows);
    layOut(view);
    handInWidths(view, model);
    const Refresh refresh = mirror<QTableView, screen::Grid>(
        view, model,
        [rows](QTableView& table, const screen::Grid& grid) { showGrid(table, *rows, grid); });
    new EventWatch(view, QEvent::FontChange, [&view, &model, refresh](const QEvent&) {
        handInWidths(view, model);
        refresh();
    });
    forwardMouse(view, model, refresh);
    tickByKey(view);
    QObject::connect(
        view.selectionModel(), &QItemSelectionModel::currentChanged, &view,
        [&view, &model](const QModelIndex& current) {
            if (current.isValid())
                forward(view, [&] { model.MoveTo(current.row() + 1, current.column() + 1); });
        });
}

} // namespace k7deval::qt
