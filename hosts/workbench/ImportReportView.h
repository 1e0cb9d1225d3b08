#pragma once

#include "workbench/ImportJob.h"

#include <QTextEdit>

namespace k7deval::workbench
{

/// What became of the files, as a text to read and to copy.
class ImportReportView final : public QTextEdit
{
public:
    explicit ImportReportView(QWidget* parent);

    /// Tells of a file that was taken for a format.
    void tell(const QString& file, const QString& format, const ImportOutcome& outcome);
    /// A paragraph: a heading that stands out, and lines below it.
    void tell(const QString& heading, const QStringList& lines);
};

} // namespace k7deval::workbench
