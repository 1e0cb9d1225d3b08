#pragma once

#include "foundation/Error.h"
#include "qt/Mirror.h"

#include <QWidget>

#include <functional>

namespace k7deval::qt
{

/// Tells the user of a failure, by number and description, in a message box over a widget, or over
/// no window in particular.
void showError(QWidget* over, const Error& error);

/// Hands an action of the user to the model. What it raises is told to the user. Then the view
/// shows what the model made of it, even if that is nothing.
void forward(
    QWidget& view, const std::function<void()>& action, const Refresh& refresh = [] {});

} // namespace k7deval::qt
