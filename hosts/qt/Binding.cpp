#include "qt/Binding.h"

#include "qt/Colors.h"
#include "qt/EventWatch.h"
#include "qt/Mirror.h"
#include "qt/Pictures.h"
#include "qt/Texts.h"
#include "qt/UserAction.h"

#include <QCheckBox>
#include <QFocusEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

namespace k7deval::qt
{

namespace
{

constexpr int kUnlimited = 32767;

/// The default colour is left to the palette, so that it stays right in a disabled label.
void showTextColor(QLabel& view, const screen::Label& model)
{
    const bool hasOwnPalette = view.testAttribute(Qt::WA_SetPalette);
    if (model.ForeColor() == screen::color::kBlack) {
        if (hasOwnPalette)
            view.setPalette({});
        return;
    }
    const QColor wanted = textColor(model.ForeColor(), view.palette());
    if (hasOwnPalette && view.palette().color(QPalette::WindowText) == wanted)
        return;
    QPalette palette;
    palette.setColor(QPalette::WindowText, wanted);
    view.setPalette(palette);
}

void showLook(QLabel& view, const screen::Label& model)
{
    showTextColor(view, model);
    if (view.font().bold() != model.Bold()) {
        QFont font = view.font();
        font.setBold(model.Bold());
        view.setFont(font);
    }
    view.setToolTip(toQString(model.ToolTipText()));
}

/// The limit holds for what is typed: a longer text by code is shown whole.
void showText(QLineEdit& view, const screen::TextBox& model)
{
    const QString text = toQString(model.Text());
    const int limit = model.MaxLength() == 0 ? kUnlimited : model.MaxLength();
    // Setting the same limit or text would move the cursor.
    if (const int needed = std::max(limit, static_cast<int>(text.size()));
        needed != view.maxLength())
        view.setMaxLength(needed);
    if (view.text() != text)
        view.setText(text);
}

/// Another window, a menu or a list on top does not take the user out of a field.
bool isLeaving(Qt::FocusReason reason)
{
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
           reason != Qt::MenuBarFocusReason;
}

/// A mnemonic and some desktops press a button without moving to it; the field that the user was in
/// has to be left before the button does its work.
void leaveFieldFor(QWidget& button)
{
    if (!button.hasFocus())
        button.setFocus(Qt::ShortcutFocusReason);
}

/// The tabulator goes to the selected option, or to the first while there is none.
void keepOneTabStop(const QRadioButton& changed)
{
    const auto options =
        changed.parentWidget()->findChildren<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly);
    const auto selected = std::find_if(options.begin(), options.end(),
                                       [](const auto* option) { return option->isChecked(); });
    for (QRadioButton* option : options) {
        const bool isStop = option == (selected == options.end() ? options.front() : *selected);
        option->setFocusPolicy(isStop ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

template <class View, class Model>
void forwardClicks(View& view, Model& model, const Refresh& refresh)
{
    QObject::connect(&view, &View::clicked, &view, [&view, &model, refresh] {
        leaveFieldFor(view);
        forward(
            view, [&model] { model.Press(); }, refresh);
    });
}

} // namespace

void bind(QWidget& view, screen::Control& model)
{
    mirror<QWidget, screen::Control>(
        view, model, [](QWidget& page, const screen::Control& control) {
            if (control.MousePointer() == screen::MousePointer::Hourglass)
                page.setCursor(Qt::WaitCursor);
            else
                page.unsetCursor();
        });
}

void bind(QGroupBox& view, screen::Frame& model)
{
    mirror<QGroupBox, screen::Frame>(view, model, [](QGroupBox& box, const screen::Frame& frame) {
        box.setTitle(withMnemonic(frame.Caption(), 0));
    });
}

void bind(QLabel& view, screen::Label& model)
{
    view.setTextFormat(Qt::PlainText);
    mirror<QLabel, screen::Label>(view, model, [](QLabel& label, const screen::Label& shown) {
        label.setText(toLines(shown.Caption()));
        showLook(label, shown);
    });
}

void bind(QLabel& view, screen::Label& model, QWidget& field, char mnemonic)
{
    view.setTextFormat(Qt::PlainText);
    view.setBuddy(&field);
    mirror<QLabel, screen::Label>(view, model,
                                  [mnemonic](QLabel& label, const screen::Label& shown) {
                                      label.setText(withMnemonic(shown.Caption(), mnemonic));
                                      showLook(label, shown);
                                  });
}

void bind(QLabel& view, screen::Image& model)
{
    mirror<QLabel, screen::Image>(view, model, [](QLabel& label, const screen::Image& image) {
        const int size = pictureSize(label);
        label.setPixmap(pictureOf(image.Picture()).pixmap({size, size}, label.devicePixelRatioF()));
    });
}

void bind(QLineEdit& view, screen::TextBox& model)
{
    const Refresh refresh = mirror<QLineEdit, screen::TextBox>(view, model, showText);
    QObject::connect(&view, &QLineEdit::textEdited, &view,
                     [&view, &model, refresh](const QString& text) {
                         forward(
                             view, [&] { model.Type(text.toStdString()); }, refresh);
                     });
    new EventWatch(view, QEvent::FocusOut, [&view, &model, refresh](const QEvent& event) {
        if (isLeaving(static_cast<const QFocusEvent&>(event).reason()))
            forward(
                view, [&model] { model.Leave(); }, refresh);
    });
}

void bind(QPushButton& view, screen::Button& model, char mnemonic)
{
    const Refresh refresh = mirror<QPushButton, screen::Button>(
        view, model, [mnemonic](QPushButton& button, const screen::Button& shown) {
            button.setText(withMnemonic(shown.Caption(), mnemonic));
        });
    forwardClicks(view, model, refresh);
}

void bind(QCheckBox& view, screen::CheckBox& model, char mnemonic)
{
    const Refresh refresh = mirror<QCheckBox, screen::CheckBox>(
        view, model, [mnemonic](QCheckBox& box, const screen::CheckBox& shown) {
            box.setText(withMnemonic(shown.Caption(), mnemonic));
            box.setChecked(shown.isChecked());
        });
    forwardClicks(view, model, refresh);
}

void bind(QRadioButton& view, screen::OptionButton& model, char mnemonic)
{
    const Refresh refresh = mirror<QRadioButton, screen::OptionButton>(
        view, model, [mnemonic](QRadioButton& option, const screen::OptionButton& shown) {
            option.setText(withMnemonic(shown.Caption(), mnemonic));
            // An exclusive button refuses to be deselected; the arrow keys need it to be one.
            option.setAutoExclusive(false);
            option.setChecked(shown.isSelected());
            option.setAutoExclusive(true);
            keepOneTabStop(option);
        });
    forwardClicks(view, model, refresh);
}

} // namespace k7deval::qt
