#pragma once

#include <QApplication>

namespace k7deval::workbench
{

/// Shows the pointer of a program at work for as long as it lives.
class Hourglass
{
public:
    Hourglass() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
    ~Hourglass() { QApplication::restoreOverrideCursor(); }
};

} // namespace k7deval::workbench
