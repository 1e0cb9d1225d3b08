#include "qt/ScreenReader.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>

#include <algorithm>
#include <array>
#include <utility>

namespace k7deval::qt::test
{

namespace
{

using Faults = std::vector<std::string>;
using RoleOfKind = std::pair<const char*, QAccessible::Role>;

constexpr std::array<RoleOfKind, 11> kRoles = {{{"QCheckBox", QAccessible::CheckBox},
                                                {"QRadioButton", QAccessible::RadioButton},
                                                {"QPushButton", QAccessible::Button},
                                                {"QLineEdit", QAccessible::EditableText},
                                                {"QComboBox", QAccessible::ComboBox},
                                                {"QAbstractSpinBox", QAccessible::SpinBox},
                                                {"QTreeView", QAccessible::Tree},
                                                {"QTableView", QAccessible::Table},
                                                {"QListView", QAccessible::List},
                                                {"QLabel", QAccessible::StaticText},
                                                {"QTabBar", QAccessible::PageTabList}}};

std::string nameOf(const QWidget& view)
{
    return view.objectName().isEmpty() ? view.metaObject()->className()
                                       : view.objectName().toStdString();
}

/// Such as the line of a list with an edit field, of which the reader gets the whole, or a frame
/// that hands the focus on.
bool isInnerPart(const QWidget& view)
{
    if (view.focusProxy() != nullptr)
        return true;
    const QWidget* whole = view.parentWidget();
    const auto* area = qobject_cast<const QAbstractScrollArea*>(whole);
    return (area != nullptr && area->viewport() == &view) ||
           qobject_cast<const QComboBox*>(whole) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(whole) != nullptr ||
           qobject_cast<const QAbstractItemView*>(whole) != nullptr;
}

/// A value that isn't there has nothing to read out.
bool isEmptyLabel(const QWidget& view)
{
    const auto* label = qobject_cast<const QLabel*>(&view);
    return label != nullptr && label->text().isEmpty();
}

bool hasSensibleRole(const QWidget& view, QAccessible::Role role)
{
    const auto* const known = std::find_if(
        kRoles.begin(), kRoles.end(), [&](const auto& row) { return view.inherits(row.first); });
    if (known != kRoles.end())
        return role == known->second;
    // Other parts at least have one.
    return view.inherits("QAbstractScrollArea") ||
           (role != QAccessible::NoRole && role != QAccessible::Client);
}

/// The cells of a table may be empty, and its corner always is.
bool needsName(QAccessible::Role role)
{
    return role == QAccessible::TreeItem || role == QAccessible::RowHeader ||
           role == QAccessible::ColumnHeader;
}

void checkEntries(const QWidget& view, QAccessibleInterface& face, Faults& faults)
{
    for (int index = 0; index < face.childCount(); ++index) {
        QAccessibleInterface* entry = face.child(index);
        if (entry == nullptr || face.indexOfChild(entry) != index)
            faults.push_back(nameOf(view) + ": no way to its entry " + std::to_string(index));
        else if (needsName(entry->role()) && entry->text(QAccessible::Name).isEmpty())
            faults.push_back(nameOf(view) + ": no name for its entry " + std::to_string(index));
    }
}

void check(QWidget& view, Faults& faults)
{
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&view);
    if (face == nullptr)
        return faults.push_back(nameOf(view) + ": not there");
    const QString name = face->text(QAccessible::Name);
    // A button of three dots has to say what it is for.
    if (name.isEmpty() || name == "...")
        faults.push_back(nameOf(view) + ": no name");
    if (!hasSensibleRole(view, face->role()))
        faults.push_back(nameOf(view) + ": role " + std::to_string(face->role()));
    if (face->role() == QAccessible::Tree || face->role() == QAccessible::Table)
        checkEntries(view, *face, faults);
}

void checkLabel(const QLabel& label, const QWidget& screen, Faults& faults)
{
    const QWidget* field = label.buddy();
    if (field != nullptr && (!screen.isAncestorOf(field) || !field->isVisible()))
        faults.push_back(nameOf(label) + ": names a field that is not on view");
}

} // namespace

Faults faultsForAScreenReader(const QWidget& screen)
{
    Faults faults;
    for (QWidget* view : screen.findChildren<QWidget*>()) {
        if (!view->isVisible())
            continue;
        if (const auto* label = qobject_cast<const QLabel*>(view))
            checkLabel(*label, screen, faults);
        // What hands the focus on, such as tabs to their bar, is never read out itself.
        const bool takesFocus = view->focusPolicy() != Qt::NoFocus && view->focusProxy() == nullptr;
        if (takesFocus && !isInnerPart(*view) && !isEmptyLabel(*view))
            check(*view, faults);
    }
    return faults;
}

} // namespace k7deval::qt::test
