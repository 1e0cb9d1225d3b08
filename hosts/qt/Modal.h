#pragma once

#include <QPointer>

#include <utility>

namespace k7deval::qt
{

/// A dialog for as long as a question is asked. It may be gone before the answer, with the window
/// that it lies over.
template <class Dialog> class Modal
{
public:
    template <class... Arguments>
    explicit Modal(Arguments&&... arguments)
        : dialog_(new Dialog(std::forward<Arguments>(arguments)...))
    {
    }
    Modal(const Modal&) = delete;
    Modal& operator=(const Modal&) = delete;
    ~Modal() { delete dialog_.data(); }

    /// Whether the dialog is still there.
    explicit operator bool() const { return !dialog_.isNull(); }
    Dialog* operator->() const { return dialog_.data(); }
    Dialog& operator*() const { return *dialog_; }
    /// Asks, and says what was answered: the result of the dialog, or that of a rejected one when
    /// it is gone.
    [[nodiscard]] int ask()
    {
        const int result = dialog_->exec();
        return dialog_ ? result : 0;
    }

private:
    QPointer<Dialog> dialog_;
};

} // namespace k7deval::qt
