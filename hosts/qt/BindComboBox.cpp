#include "qt/Binding.h"

#include "qt/Mirror.h"
#include "qt/Texts.h"
#include "qt/UserAction.h"

#include <QComboBox>
#include <QEvent>
#include <QLineEdit>

#include <algorithm>

namespace k7deval::qt
{

namespace
{

constexpr int kFewestLetters = 6;
constexpr int kMostLetters = 26;

/// Keeps the wheel from picking in a list that the user is not in: he scrolls the screen past it.
class WheelGuard final : public QObject
{
public:
    explicit WheelGuard(QComboBox& list) : QObject(&list), list_(&list)
    {
        list.setFocusPolicy(Qt::StrongFocus);
        list.installEventFilter(this);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        const bool isKept = event->type() == QEvent::Wheel && !list_->hasFocus();
        if (isKept)
            event->ignore();
        return isKept;
    }

private:
    QComboBox* list_;
};

/// A list is as wide as its longest entry, within reason, and its layout may make it wider. The
/// toolkit's own way of following the entries would take that width back.
void fitWidth(QComboBox& view)
{
    int letters = kFewestLetters;
    for (int row = 0; row < view.count(); ++row)
        letters = std::max(letters, static_cast<int>(view.itemText(row).size()));
    view.setMinimumContentsLength(std::min(letters, kMostLetters));
}

/// Rows are changed in place, since a list is filled entry by entry.
void showEntries(QComboBox& view, const screen::ComboBox& model)
{
    for (int row = 0; row < model.listCount(); ++row) {
        const QString text = toQString(model.List()[static_cast<std::size_t>(row)]);
        if (row >= view.count())
            view.addItem(text);
        else if (view.itemText(row) != text)
            view.setItemText(row, text);
    }
    while (view.count() > model.listCount())
        view.removeItem(view.count() - 1);
    fitWidth(view);
}

/// A text that stays keeps its cursor: the first key typed into the text of an entry deselects it.
void showTyped(QComboBox& view, const QString& text, const QString& before, int cursor)
{
    if (view.currentText() != text)
        view.setEditText(text);
    if (text == before)
        view.lineEdit()->setCursorPosition(cursor);
}

void showComboBox(QComboBox& view, const screen::ComboBox& model)
{
    const QString before = view.currentText();
    const int cursor = view.isEditable() ? view.lineEdit()->cursorPosition() : 0;
    showEntries(view, model);
    if (view.currentIndex() != model.ListIndex())
        view.setCurrentIndex(model.ListIndex());
    if (view.isEditable())
        showTyped(view, toQString(model.Text()), before, cursor);
}

/// The toolkit's own readings of a typed text, to complete it or to pick the entry that it equals,
/// would make a pick of what the user only typed.
void makeEditable(QComboBox& view)
{
    view.setEditable(true);
    view.setInsertPolicy(QComboBox::NoInsert);
    view.setCompleter(nullptr);
    QObject::disconnect(view.lineEdit(), &QLineEdit::editingFinished, &view, nullptr);
    QObject::disconnect(view.lineEdit(), &QLineEdit::returnPressed, &view, nullptr);
}

} // namespace

void bind(QComboBox& view, screen::ComboBox& model)
{
    if (model.hasEditField())
        makeEditable(view);
    new WheelGuard(view);
    view.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    const Refresh refresh = mirror<QComboBox, screen::ComboBox>(view, model, showComboBox);
    QObject::connect(&view, &QComboBox::activated, &view, [&view, &model, refresh](int row) {
        forward(
            view, [&] { model.Pick(row); }, refresh);
    });
    if (!view.isEditable())
        return;
    QObject::connect(view.lineEdit(), &QLineEdit::textEdited, &view,
                     [&view, &model, refresh](const QString& text) {
                         forward(
                             view, [&] { model.Type(text.toStdString()); }, refresh);
                     });
}

} // namespace k7deval::qt
