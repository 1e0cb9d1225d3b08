#pragma once

#include "report/ReportDocument.h"
#include "screen/Buttons.h"

#include <functional>
#include <memory>

class QPrinter;
class QPushButton;
class QWidget;

namespace k7deval::workbench
{

/// Asks for a printer in a dialog over a widget and prints a report. The paper proposed is that of
/// the first page. A failure is told to the user.
void printReport(const ReportDocument& document, QWidget* over);

/// Shows a report as it will be printed, in a dialog over a widget from which it can be printed.
void previewReport(const ReportDocument& document, QWidget* over);

/// Draws the pages that a printer is set to, at their true size in the middle of the paper; moved,
/// or else drawn smaller, where the printer would cut something off. Error 5 for a document without
/// pages, error 440 when the printer fails.
void printPages(const ReportDocument& document, QPrinter& printer);

/// The report of a tool as it is now; null when there is none.
using ReportMaker = std::function<std::unique_ptr<ReportDocument>()>;

/// The buttons that print what a tool would save, `cmdPrint` and `cmdPrintPreview`. They can be
/// seen and pressed when the button that saves can. What keeps a report from being built is told
/// to the user. The view that they are for owns them, and they keep to letters that none of its
/// mnemonics has; the button that saves outlives them.
struct PrintButtons {
    QPushButton* print = nullptr;
    QPushButton* preview = nullptr;
};
PrintButtons makePrintButtons(QWidget& view, screen::Button& save, const ReportMaker& build);

} // namespace k7deval::workbench
