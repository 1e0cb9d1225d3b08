#pragma once

#include <QStringList>

class QMimeData;

namespace k7deval::workbench
{

/// The paths of what is dropped, of files on this machine only.
QStringList droppedFiles(const QMimeData& dropped);

} // namespace k7deval::workbench
