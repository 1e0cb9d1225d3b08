#include "workbench/DroppedFiles.h"

#include <QMimeData>
#include <QUrl>

namespace k7deval::workbench
{

QStringList droppedFiles(const QMimeData& dropped)
{
    QStringList paths;
    for (const QUrl& url : dropped.urls()) {
        if (url.isLocalFile())
            paths << url.toLocalFile();
    }
    return paths;
}

} // namespace k7deval::workbench
