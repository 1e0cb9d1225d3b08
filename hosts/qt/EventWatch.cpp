#include "qt/EventWatch.h"

#include <utility>

namespace k7deval::qt
{

EventWatch::EventWatch(QObject& watched, QEvent::Type type, std::function<void(const QEvent&)> run)
    : QObject(&watched), kind_(watched.metaObject()), type_(type), run_(std::move(run))
{
    watched.installEventFilter(this);
}

/// A field that goes while it has the keys loses them when it is no field any more.
bool EventWatch::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == type_ && watched->metaObject()->inherits(kind_))
        run_(*event);
    return false;
}

} // namespace k7deval::qt
