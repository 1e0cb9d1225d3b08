#pragma once

#include "screen/Widget.h"

#include <QPointer>
#include <QSignalBlocker>
#include <QWidget>

#include <functional>
#include <utility>

namespace k7deval::qt
{

/// Shows a model again on its view, for as long as the view exists.
using Refresh = std::function<void()>;

/// How a view shows what stands in its model.
template <class View, class Model> using Show = std::function<void(View&, const Model&)>;

/// A function that makes a view look like its model without a signal to those who follow the view,
/// so that a change of the model is never taken for an action of the user. Does nothing once the
/// view is gone; the model outlives the view.
template <class View, class Model>
Refresh refreshOf(View& view, const Model& model, Show<View, Model> show)
{
    return [guard = QPointer<View>(&view), &model, show = std::move(show)] {
        if (!guard)
            return;
        const QSignalBlocker quiet(guard.data());
        guard->setVisible(model.Visible());
        guard->setEnabled(model.Enabled());
        show(*guard, model);
    };
}

/// Names a view as its model, and shows the model now, at each change, and when the view gets other
/// colours.
void keepShown(QWidget& view, screen::Widget& model, const Refresh& refresh);

/// Keeps a view like its model from now on. What it returns shows the model at once.
template <class View, class Model> Refresh mirror(View& view, Model& model, Show<View, Model> show)
{
    Refresh refresh = refreshOf<View, Model>(view, model, std::move(show));
    keepShown(view, model, refresh);
    return refresh;
}

} // namespace k7deval::qt
