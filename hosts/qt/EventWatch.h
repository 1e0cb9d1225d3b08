#pragma once

#include <QEvent>
#include <QObject>

#include <functional>

namespace k7deval::qt
{

/// Runs a function at the events of one kind that an object gets, before it deals with them itself.
/// Belongs to the object. Events that come while the object is destroyed are no longer watched.
class EventWatch final : public QObject
{
public:
    EventWatch(QObject& watched, QEvent::Type type, std::function<void(const QEvent&)> run);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const QMetaObject* kind_;
    QEvent::Type type_;
    std::function<void(const QEvent&)> run_;
};

} // namespace k7deval::qt
