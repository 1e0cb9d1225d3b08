#include "qt/Operator.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <QWindow>

#include <algorithm>

namespace k7deval::qt::test
{

namespace
{

/// Boxes and options react on their mark and text, at the left.
QPoint spotOf(const QWidget& view)
{
    const bool hasMark = qobject_cast<const QCheckBox*>(&view) != nullptr ||
                         qobject_cast<const QRadioButton*>(&view) != nullptr;
    return hasMark ? QPoint(view.height() / 2, view.height() / 2) : view.rect().center();
}

/// What the text of a label or button takes. Several lines find theirs.
QSize roomFor(const QWidget& part)
{
    const auto* label = qobject_cast<const QLabel*>(&part);
    if (label != nullptr && !label->wordWrap())
        return label->minimumSizeHint();
    const auto* button = qobject_cast<const QAbstractButton*>(&part);
    return button == nullptr ? QSize()
                             : button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
}

} // namespace

Operator::Operator(QWidget& screen) : screen_(&screen)
{
    screen.show();
    QApplication::setActiveWindow(&screen);
    settle();
}

void Operator::click(const std::string& name) const
{
    auto& button = view<QWidget>(name);
    QTest::mouseClick(&button, Qt::LeftButton, {}, spotOf(button));
    settle();
}

void Operator::type(const std::string& name, const std::string& text) const
{
    auto& field = view<QWidget>(name);
    field.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    if (text.empty())
        QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, QString::fromStdString(text));
    settle();
}

void Operator::enter(const std::string& name, const std::string& text) const
{
    type(name, text);
    press(Qt::Key_Tab);
}

void Operator::pick(const std::string& name, const std::string& entry) const
{
    auto& list = view<QComboBox>(name);
    list.setFocus(Qt::TabFocusReason);
    const int wanted = list.findText(QString::fromStdString(entry));
    if (wanted < 0)
        throw std::runtime_error("no such entry of " + name + ": " + entry);
    while (list.currentIndex() != wanted)
        QTest::keyClick(&list, list.currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
    settle();
}

void Operator::press(Qt::Key key) const
{
    QWidget* focused = QApplication::focusWidget();
    QTest::keyClick(focused == nullptr ? screen_ : focused, key);
    settle();
}

/// A button pressed by its letter is seen to go down and up.
void Operator::pressMnemonic(Qt::Key letter) const
{
    QTest::keyClick(screen_->windowHandle(), letter, Qt::AltModifier);
    const auto buttons = screen_->findChildren<QAbstractButton*>();
    const bool isDone = QTest::qWaitFor([&] {
        return std::none_of(buttons.begin(), buttons.end(),
                            [](const QAbstractButton* button) { return button->isDown(); });
    });
    if (!isDone)
        throw std::runtime_error("a button stays down");
    settle();
}

QStringList Operator::walk(const std::string& first, Qt::Key key) const
{
    constexpr int kFar = 100;
    auto& start = view<QWidget>(first);
    start.setFocus(Qt::TabFocusReason);
    QStringList names;
    do {
        names << QApplication::focusWidget()->objectName();
        press(key);
    } while (QApplication::focusWidget() != &start && names.size() < kFar);
    if (names.size() == kFar)
        throw std::runtime_error("no way back to " + first + ", but to " +
                                 names.back().toStdString());
    return names;
}

std::string Operator::text(const std::string& label) const
{
    return view<QLabel>(label).text().toStdString();
}

void Operator::photograph(const std::string& name) const
{
    const QString folder = qEnvironmentVariable("K7DEVAL_SCREENS");
    if (folder.isEmpty())
        return;
    settle();
    screen_->grab().save(folder + "/" + QString::fromStdString(name) + ".png");
}

LargeLetters::LargeLetters() : before_(QApplication::font())
{
    QFont large = before_;
    large.setPointSizeF(before_.pointSizeF() * 2);
    QApplication::setFont(large);
}

LargeLetters::~LargeLetters()
{
    QApplication::setFont(before_);
}

std::vector<std::string> cutOff(const QWidget& screen)
{
    std::vector<std::string> names;
    for (const QWidget* part : screen.findChildren<QWidget*>()) {
        const QSize needed = roomFor(*part);
        const bool isSmall = part->width() < needed.width() || part->height() < needed.height();
        if (part->isVisible() && isSmall)
            names.push_back(part->objectName().toStdString());
    }
    return names;
}

void settle()
{
    QApplication::processEvents();
}

void dropFiles(QWidget& target, const std::vector<std::filesystem::path>& files)
{
    QMimeData data;
    QList<QUrl> urls;
    for (const auto& file : files)
        urls << QUrl::fromLocalFile(QString::fromStdString(file.string()));
    data.setUrls(urls);
    const QPoint spot = target.rect().center();
    QDragEnterEvent enter(spot, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&target, &enter);
    if (!enter.isAccepted())
        return;
    QDropEvent drop(spot, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&target, &drop);
    settle();
}

void whenDialogComes(std::function<void(QDialog&)> deal)
{
    QTimer::singleShot(0, qApp, [deal = std::move(deal)] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
            deal(*dialog);
        else
            whenDialogComes(deal);
    });
}

void readBox(std::string& text)
{
    whenDialogComes([&text](QDialog& dialog) {
        text = dynamic_cast<QMessageBox&>(dialog).text().toStdString();
        dialog.accept();
    });
}

std::string told(const std::function<void()>& act)
{
    std::string text;
    readBox(text);
    act();
    return text;
}

} // namespace k7deval::qt::test
