#pragma once

#include <QAccessible>
#include <QStringList>
#include <QWidget>

namespace k7deval::workbench::test
{

/// The parts of a dialog that take the focus and that a screen reader has no name for.
inline QStringList namelessParts(const QWidget& dialog)
{
    QStringList parts;
    for (QWidget* part : dialog.findChildren<QWidget*>()) {
        if (part->focusPolicy() == Qt::NoFocus || !part->isVisible())
            continue;
        const auto* face = QAccessible::queryAccessibleInterface(part);
        // A part of another widget that has the focus in its place has no name of its own.
        const bool isInner = part->parentWidget()->focusProxy() == part ||
                             part->parentWidget()->inherits("QComboBox");
        if (!isInner && (face == nullptr || face->text(QAccessible::Name).isEmpty()))
            parts << QString(part->metaObject()->className()) + " " + part->objectName();
    }
    return parts;
}

} // namespace k7deval::workbench::test
