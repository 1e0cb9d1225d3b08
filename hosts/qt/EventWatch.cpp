#include "qt/EventWatch.h"

#include <utility>

namespace k7deval::qt
{

EventWatch::EventWatch(QObject& watched, QEvent::Type type, std::function<void(const QEvent&)> run)
    : QObject(&watched), type_(type), run_(std::move(run))
{
    watched.installEventFilter(this);
}

bool EventWatch::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() == type_)
        run_(*event);
    return false;
}

} // namespace k7deval::qt
