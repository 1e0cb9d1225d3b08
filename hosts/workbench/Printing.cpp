#include "workbench/Printing.h"

#include "foundation/Error.h"
#include "qt/Mirror.h"
#include "qt/Modal.h"
#include "qt/ReportPainter.h"
#include "qt/Texts.h"
#include "qt/UserAction.h"

#include <QComboBox>
#include <QGraphicsView>
#include <QLineEdit>
#include <QPageLayout>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPushButton>

#include <algorithm>
#include <string>
#include <vector>

namespace k7deval::workbench
{

namespace
{

/// The paper that a page is laid out for.
QPageLayout layoutOf(const ReportPage& page)
{
    const double width = page.Width();
    const double height = page.Height();
    const QPageSize size(QSizeF(std::min(width, height), std::max(width, height)), QPageSize::Point,
                         QString(), QPageSize::FuzzyMatch);
    return {size, width > height ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()};
}

/// What the printer reaches, and the user has not kept free.
QRectF printableOn(QPageLayout layout)
{
    layout.setUnits(QPageLayout::Point);
    return layout.fullRect().marginsRemoved(layout.margins() | layout.minimumMargins());
}

/// From the points of a page to those of the paper.
QTransform placeOn(const QRectF& paper, const QRectF& printable, const ReportPage& page)
{
    const QRectF content = qt::contentOf(page);
    const double scale = std::min({1.0, printable.width() / std::max(content.width(), 1.0),
                                   printable.height() / std::max(content.height(), 1.0)});
    const QSizeF size = QSizeF(page.Width(), page.Height()) * scale;
    QPointF corner = paper.center() - QPointF(size.width(), size.height()) / 2;
    const QRectF placed(corner + content.topLeft() * scale, content.size() * scale);
    corner += QPointF(std::max(printable.left() - placed.left(), 0.0) +
                          std::min(printable.right() - placed.right(), 0.0),
                      std::max(printable.top() - placed.top(), 0.0) +
                          std::min(printable.bottom() - placed.bottom(), 0.0));
    return QTransform::fromTranslate(corner.x(), corner.y()).scale(scale, scale);
}

Error printerError()
{
    return {errors::kAutomation, "The printer could not be used."};
}

void printPage(const ReportPage& page, QPrinter& printer, QPainter& painter)
{
    const QPageLayout layout = printer.pageLayout();
    painter.save();
    painter.scale(printer.logicalDpiX() / 72.0, printer.logicalDpiY() / 72.0);
    painter.setTransform(placeOn(layout.fullRect(QPageLayout::Point), printableOn(layout), page),
                         true);
    qt::drawPage(painter, page);
    painter.restore();
}

/// The pages that the user asked for, one time each.
std::vector<const ReportPage*> pagesFor(const QPrinter& printer, const ReportDocument& document)
{
    std::vector<const ReportPage*> pages;
    int number = 0;
    for (const ReportPage& page : document.Pages()) {
        ++number;
        if (printer.fromPage() == 0 || (number >= printer.fromPage() && number <= printer.toPage()))
            pages.push_back(&page);
    }
    return pages;
}

void prepare(QPrinter& printer, const ReportDocument& document)
{
    printer.setDocName(qt::toQString(document.Title()));
    printer.setCreator(qt::toQString(document.Creator()));
    if (document.Pages().Count() > 0)
        printer.setPageLayout(layoutOf(*document.Pages().begin()));
}

/// The first of some letters that is no mnemonic of a view yet; 0 when all are.
char freeLetter(const QWidget& view, const std::string& letters)
{
    QString taken;
    for (const QWidget* widget : view.findChildren<QWidget*>()) {
        const QString text = widget->property("text").toString().toLower().remove("&&");
        if (const auto mark = text.indexOf('&'); mark >= 0)
            taken += text.mid(mark + 1, 1);
    }
    const auto found = std::find_if(letters.begin(), letters.end(), [&](char letter) {
        return !taken.contains(QLatin1Char(letter));
    });
    return found == letters.end() ? '\0' : *found;
}

/// What the two buttons differ in.
struct PrintLook {
    const char* name;
    const char* caption;
    const char* letters; ///< For its mnemonic, the best first.
    void (*show)(const ReportDocument&, QWidget*);
};
constexpr PrintLook kPrint = {"cmdPrint", "Print...", "prnti", printReport};
constexpr PrintLook kPreview = {"cmdPrintPreview", "Print Preview...", "wveirntp", previewReport};

void show(const PrintLook& look, const ReportMaker& build, QWidget& over)
{
    const auto document = build();
    if (!document)
        throw Error(errors::kInvalidCall, "There is nothing to print.");
    look.show(*document, &over);
}

QPushButton* makeButton(QWidget& view, screen::Button& save, const PrintLook& look,
                        const ReportMaker& build)
{
    auto* button =
        new QPushButton(qt::withMnemonic(look.caption, freeLetter(view, look.letters)), &view);
    button->setObjectName(look.name);
    const qt::Refresh refresh =
        qt::refreshOf<QPushButton, screen::Button>(*button, save, [](auto&, const auto&) {});
    save.Changed.Connect(refresh);
    refresh();
    QObject::connect(button, &QPushButton::clicked, button, [button, &save, &look, build, refresh] {
        // A field that the user was in is left first, which may take the results away.
        button->setFocus(Qt::ShortcutFocusReason);
        if (save.isReachable())
            qt::forward(
                *button, [&] { show(look, build, *button); }, refresh);
    });
    return button;
}

/// The toolkit leaves some of its fields without names.
void nameFields(const QPrintPreviewDialog& dialog)
{
    for (QGraphicsView* pages : dialog.findChildren<QGraphicsView*>())
        pages->setAccessibleName("Pages");
    for (QComboBox* zoom : dialog.findChildren<QComboBox*>())
        zoom->setAccessibleName("Zoom");
    for (QLineEdit* page : dialog.findChildren<QLineEdit*>())
        page->setAccessibleName("Page");
}

} // namespace

void printPages(const ReportDocument& document, QPrinter& printer)
{
    if (document.Pages().Count() == 0)
        throw Error(errors::kInvalidCall);
    printer.setFullPage(true);
    QPainter painter;
    if (!painter.begin(&printer))
        throw printerError();
    bool isFirst = true;
    const int copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
    for (int copy = 0; copy < copies; ++copy) {
        for (const ReportPage* page : pagesFor(printer, document)) {
            if (!isFirst && !printer.newPage())
                throw printerError();
            isFirst = false;
            printPage(*page, printer, painter);
        }
    }
    if (!painter.end() || printer.printerState() == QPrinter::Error)
        throw printerError();
}

void printReport(const ReportDocument& document, QWidget* over)
{
    QPrinter printer(QPrinter::HighResolution);
    prepare(printer, document);
    qt::Modal<QPrintDialog> dialog(&printer, over);
    dialog->setWindowTitle("Print");
    dialog->setMinMax(1, document.Pages().Count());
    dialog->setOption(QAbstractPrintDialog::PrintPageRange, document.Pages().Count() > 1);
    if (dialog.ask() != QDialog::Accepted)
        return;
    try {
        printPages(document, printer);
    } catch (...) {
        qt::showError(over, errorInFlight());
    }
}

void previewReport(const ReportDocument& document, QWidget* over)
{
    QPrinter printer(QPrinter::HighResolution);
    prepare(printer, document);
    qt::Modal<QPrintPreviewDialog> dialog(&printer, over);
    dialog->setWindowTitle(qt::toQString("Print Preview - " + document.Title()));
    nameFields(*dialog);
    QPrintPreviewDialog& shown = *dialog;
    QObject::connect(&shown, &QPrintPreviewDialog::paintRequested, &shown,
                     [&shown, &document](QPrinter* target) {
                         qt::forward(shown, [&] { printPages(document, *target); });
                     });
    static_cast<void>(dialog.ask());
}

PrintButtons makePrintButtons(QWidget& view, screen::Button& save, const ReportMaker& build)
{
    return {makeButton(view, save, kPrint, build), makeButton(view, save, kPreview, build)};
}

} // namespace k7deval::workbench
