#include "qt/UserAction.h"

#include "qt/Modal.h"
#include "qt/Texts.h"

#include <QMessageBox>
#include <QPointer>

namespace k7deval::qt
{

void showError(QWidget* over, const Error& error)
{
    Modal<QMessageBox> box(
        QMessageBox::Critical, "K7DEval",
        toQString("Error " + std::to_string(error.number()) + ": " + error.description()),
        QMessageBox::Ok, over == nullptr ? nullptr : over->window());
    box->setTextFormat(Qt::PlainText);
    static_cast<void>(box.ask());
}

void forward(QWidget& view, const std::function<void()>& action, const Refresh& refresh)
{
    const QPointer<QWidget> guard(&view);
    try {
        action();
    } catch (...) {
        showError(guard.data(), errorInFlight());
    }
    refresh();
}

} // namespace k7deval::qt
