#include "qt/Binding.h"

#include "qt/Colors.h"
#include "qt/Mirror.h"
#include "qt/Pictures.h"
#include "qt/Texts.h"
#include "qt/UserAction.h"

#include <QHeaderView>
#include <QTimer>
#include <QTreeWidget>

#include <utility>

namespace k7deval::qt
{

namespace
{

constexpr int kKeyRole = Qt::UserRole;

using Nodes = std::vector<std::unique_ptr<screen::TreeNode>>;

QString keyOf(const QTreeWidgetItem& item)
{
    return item.data(0, kKeyRole).toString();
}

void showNode(QTreeWidgetItem& item, const screen::TreeNode& node, const NodeDescription& describe)
{
    const QString key = toQString(node.Key);
    if (keyOf(item) != key)
        item.setExpanded(false);
    item.setData(0, kKeyRole, key);
    item.setText(0, toQString(node.Text));
    item.setIcon(0, pictureOf(node.Image));
    item.setBackground(0, areaColor(node.BackColor, item.treeWidget()->palette()));
    const QString description = describe(node);
    item.setToolTip(0, description);
    item.setData(0, Qt::AccessibleDescriptionRole, description);
}

/// Entries are changed in place, so that those which stay the same stay open.
void showNodes(QTreeWidgetItem& parent, const Nodes& nodes, const NodeDescription& describe)
{
    int row = 0;
    for (const auto& node : nodes) {
        if (row >= parent.childCount())
            parent.addChild(new QTreeWidgetItem);
        QTreeWidgetItem& item = *parent.child(row++);
        showNode(item, *node, describe);
        showNodes(item, node->Children, describe);
    }
    while (parent.childCount() > row)
        delete parent.child(row);
}

QTreeWidgetItem* findItem(QTreeWidgetItem& parent, const QString& key)
{
    for (int row = 0; row < parent.childCount(); ++row) {
        QTreeWidgetItem& item = *parent.child(row);
        if (keyOf(item) == key)
            return &item;
        if (auto* found = findItem(item, key))
            return found;
    }
    return nullptr;
}

void showTree(QTreeWidget& view, const screen::TreeView& model, const NodeDescription& describe)
{
    QTreeWidgetItem& root = *view.invisibleRootItem();
    showNodes(root, model.Nodes(), describe);
    if (model.SelectedItem() == nullptr) {
        view.clearSelection();
        return;
    }
    auto* selected = findItem(root, toQString(model.SelectedItem()->Key));
    if (selected != view.currentItem() || !selected->isSelected())
        view.setCurrentItem(selected);
}

/// Runs a refresh once for all that asks for it before the event loop turns.
Refresh deferred(QTreeWidget& view, const Refresh& refresh)
{
    auto* timer = new QTimer(&view);
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, &view, refresh);
    return [guard = QPointer<QTimer>(timer)] {
        if (guard)
            guard->start(0);
    };
}

void press(QTreeWidget& view, screen::TreeView& model)
{
    const auto selected = view.selectedItems();
    if (!selected.isEmpty())
        model.Press(keyOf(*selected.front()).toStdString());
}

} // namespace

void bind(QTreeWidget& view, screen::TreeView& model, NodeDescription describe)
{
    view.setHeaderHidden(true);
    view.setUniformRowHeights(true);
    view.setIconSize({pictureSize(view), pictureSize(view)});
    const Refresh refresh =
        deferred(view, refreshOf<QTreeWidget, screen::TreeView>(
                           view, model,
                           [describe = std::move(describe)](QTreeWidget& tree, const auto& from) {
                               showTree(tree, from, describe);
                           }));
    keepShown(view, model, refresh);
    // Not the current entry: a tree that gets the focus makes its first entry the current one.
    QObject::connect(&view, &QTreeWidget::itemSelectionChanged, &view, [&view, &model, refresh] {
        forward(
            view, [&] { press(view, model); }, refresh);
    });
}

} // namespace k7deval::qt
