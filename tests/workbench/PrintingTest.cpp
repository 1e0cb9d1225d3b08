#include "workbench/Printing.h"
#include "foundation/ExpectError.h"
#include "load/ctrlMaxMW.h"
#include "qt/Operator.h"
#include "qt/ScreenReader.h"
#include "qt/ctrl7DayView.h"
#include "qt/ctrlMaxMWView.h"
#include "report/PageLayout.h"
#include "sitedb/SampleSite.h"
#include "support/FakeServices.h"
#include "support/FakeSite.h"
#include "support/PdfText.h"
#include "support/TemporaryFolder.h"
#include "workbench/ToolPage.h"

#include <gmock/gmock.h>

#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QTest>

namespace k7deval::workbench::test
{

namespace
{

using k7deval::test::FakeServices;
using k7deval::test::FixedClock;
using k7deval::test::PdfPage;
using k7deval::test::pdfPages;
using k7deval::test::PdfWord;
using k7deval::test::TemporaryFolder;
using qt::test::faultsForAScreenReader;
using qt::test::Operator;
using qt::test::settle;
using qt::test::whenDialogComes;
using ::testing::IsEmpty;

/// Pages with their number in two corners.
struct NumberedPages {
    explicit NumberedPages(int count)
    {
        for (int number = 1; number <= count; ++number) {
            ReportPage& page = layout::addPage(document);
            const std::string text = "Sheet" + std::to_string(number);
            layout::alignLeft(layout::addText(page, text, 6, 14), layout::kLeft, layout::kTop);
            layout::alignRight(layout::addText(page, "end" + text, 5, 10), layout::kRight, 36);
        }
    }

    ReportDocument document;
};

/// A printer that makes a file.
struct FilePrinter {
    FilePrinter()
    {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(QString::fromStdString(path));
        printer.setPageSize(QPageSize(QPageSize::Letter));
        printer.setPageOrientation(QPageLayout::Landscape);
    }

    TemporaryFolder folder;
    std::string path = folder.file("printed.pdf");
    QPrinter printer{QPrinter::HighResolution};
};

void expectAt(const PdfWord& word, const PdfWord& expected)
{
    EXPECT_NEAR(word.left, expected.left, 0.5) << expected.text;
    EXPECT_NEAR(word.right, expected.right, 0.5) << expected.text;
    EXPECT_NEAR(word.bottom, expected.bottom, 3) << expected.text;
}

/// A tool on the sample, as the workbench shows it.
template <class Tool, class View> struct Shown {
    Shown() { page.resize(900, 480); }

    FakeServices services;
    FixedClock clock{makeDate(2024, 5, 2, 9, 30)};
    RegionalSettings regional;
    ToolPage<Tool, View> page{{services, clock, regional}, nullptr};
    Operator hands{page};

    [[nodiscard]] QPushButton& button(const std::string& name) const
    {
        return hands.template view<QPushButton>(name);
    }
};

struct ShownDrift : Shown<ctrl7Day, qt::ctrl7DayView> {
    ShownDrift()
    {
        page.tool().Setup(nullptr, sitedb::test::sharedSample().server());
        hands.pick("cmbUnit", "GT4");
        hands.pick("cmbAnalyzer", "NOX 206/H");
        hands.enter("txtFromDate", "5/4/2018");
        hands.enter("txtToDate", "6/18/2018");
    }
};

struct ShownLoad : Shown<ctrlMaxMW, qt::ctrlMaxMWView> {
    ShownLoad()
    {
        page.tool().SetDIServer(sitedb::test::sharedSample().server());
        hands.pick("cmbUnit", "GT4");
        hands.enter("txtMinSafe", "30");
        hands.enter("txtCapacity", "84");
        hands.click("optTimeSelect");
        hands.enter("txtFrom", "7/1/2020");
        hands.enter("txtTo", "6/30/2021");
    }
};

/// Looks at the preview that comes up, and closes it.
void whenPreviewComes(std::function<void(QPrintPreviewDialog&, QPrintPreviewWidget&)> look)
{
    whenDialogComes([look = std::move(look)](QDialog& dialog) {
        settle();
        auto& preview = dynamic_cast<QPrintPreviewDialog&>(dialog);
        look(preview, *preview.findChild<QPrintPreviewWidget*>());
        preview.reject();
    });
}

} // namespace

TEST(PrintPages, PutsEachWordWhereTheSavedReportHasIt)
{
    const NumberedPages report(2);
    FilePrinter file;
    printPages(report.document, file.printer);
    report.document.SaveToFile(file.folder.file("saved.pdf"));
    const auto printed = pdfPages(file.path);
    const auto saved = pdfPages(file.folder.file("saved.pdf"));
    ASSERT_EQ(printed.size(), 2U);
    for (std::size_t page = 0; page < printed.size(); ++page) {
        EXPECT_NEAR(printed[page].width, 792, 1);
        EXPECT_NEAR(printed[page].height, 612, 1);
        for (const PdfWord& word : saved[page].words)
            expectAt(printed[page].word(word.text), word);
    }
}

TEST(PrintPages, PrintsThePagesAskedFor)
{
    const NumberedPages report(4);
    FilePrinter file;
    file.printer.setFromTo(2, 3);
    printPages(report.document, file.printer);
    const auto printed = pdfPages(file.path);
    ASSERT_EQ(printed.size(), 2U);
    EXPECT_NO_THROW(static_cast<void>(printed[0].word("Sheet2")));
    EXPECT_NO_THROW(static_cast<void>(printed[1].word("Sheet3")));
}

TEST(PrintPages, CutsNothingOffOnOtherPaper)
{
    const NumberedPages report(1);
    for (const QPageSize::PageSizeId paper : {QPageSize::A4, QPageSize::A5, QPageSize::Legal}) {
        for (const auto turn : {QPageLayout::Landscape, QPageLayout::Portrait}) {
            FilePrinter file;
            file.printer.setPageSize(QPageSize(paper));
            file.printer.setPageOrientation(turn);
            printPages(report.document, file.printer);
            const PdfPage page = pdfPages(file.path).at(0);
            EXPECT_GE(page.word("Sheet1").left, -0.1);
            EXPECT_LE(page.word("Sheet1").top, page.height + 5);
            EXPECT_LE(page.word("endSheet1").right, page.width + 0.1);
            EXPECT_GE(page.word("endSheet1").bottom, -5);
        }
    }
}

TEST(PrintPages, KeepsOutOfTheMarginsOfThePrinter)
{
    const NumberedPages report(1);
    FilePrinter file;
    file.printer.setPageMargins(QMarginsF(72, 18, 18, 18), QPageLayout::Point);
    printPages(report.document, file.printer);
    const PdfPage page = pdfPages(file.path).at(0);
    EXPECT_NEAR(page.word("Sheet1").left, 72, 0.5);
    EXPECT_LE(page.word("Sheet1").top, page.height - 18 + 5);
    EXPECT_NEAR(page.word("endSheet1").right, page.width - 18, 0.5);
}

TEST(PrintPages, MovesAPageThatFitsIntoTheMargins)
{
    const NumberedPages report(1);
    FilePrinter file;
    file.printer.setPageMargins(QMarginsF(50, 10, 10, 10), QPageLayout::Point);
    printPages(report.document, file.printer);
    const PdfPage page = pdfPages(file.path).at(0);
    EXPECT_NEAR(page.word("Sheet1").left, 50, 0.5);
    EXPECT_NEAR(page.word("endSheet1").right, 770, 0.5);
}

TEST(PrintPages, KeepsTheTrueSizeOnAPaperThatIsLargeEnough)
{
    const NumberedPages report(1);
    FilePrinter file;
    file.printer.setPageSize(QPageSize(QPageSize::A3));
    printPages(report.document, file.printer);
    const PdfPage page = pdfPages(file.path).at(0);
    EXPECT_NEAR(page.word("endSheet1").right - page.word("Sheet1").left, 720, 0.5);
    EXPECT_NEAR(page.word("Sheet1").left - 36, page.width - page.word("endSheet1").right - 36, 0.5);
}

TEST(PrintPages, APrinterThatFailsIsAnError)
{
    const NumberedPages report(1);
    FilePrinter file;
    file.printer.setOutputFileName(QString::fromStdString(file.folder.file("nowhere/x.pdf")));
    EXPECT_EQ(errorOf([&] { printPages(report.document, file.printer); }), 440);
}

TEST(PrintPages, ADocumentWithoutPagesIsAnError)
{
    FilePrinter file;
    EXPECT_EQ(errorOf([&] { printPages(ReportDocument(), file.printer); }), 5);
    EXPECT_THAT(file.folder.names(), IsEmpty());
}

TEST(PrintPreview, ShowsAllPagesOnTheirPaper)
{
    const NumberedPages report(3);
    QWidget over;
    whenPreviewComes([](QPrintPreviewDialog& dialog, QPrintPreviewWidget& preview) {
        EXPECT_EQ(preview.pageCount(), 3);
        EXPECT_THAT(faultsForAScreenReader(dialog), IsEmpty());
        EXPECT_EQ(dialog.printer()->pageLayout().orientation(), QPageLayout::Landscape);
        EXPECT_EQ(dialog.printer()->pageLayout().pageSize().id(), QPageSize::Letter);
    });
    previewReport(report.document, &over);
}

TEST(Print, GoesWhereTheDialogSays)
{
    const NumberedPages report(2);
    const TemporaryFolder folder;
    QWidget over;
    whenDialogComes([&](QDialog& dialog) {
        QPrinter& printer = *dynamic_cast<QPrintDialog&>(dialog).printer();
        EXPECT_EQ(printer.pageLayout().orientation(), QPageLayout::Landscape);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(QString::fromStdString(folder.file("printed.pdf")));
        dialog.done(QDialog::Accepted);
    });
    printReport(report.document, &over);
    EXPECT_EQ(pdfPages(folder.file("printed.pdf")).size(), 2U);
}

TEST(Print, ADialogThatIsCancelledPrintsNothing)
{
    const NumberedPages report(1);
    const TemporaryFolder folder;
    QWidget over;
    whenDialogComes([&](QDialog& dialog) {
        dynamic_cast<QPrintDialog&>(dialog).printer()->setOutputFileName(
            QString::fromStdString(folder.file("printed.pdf")));
        dialog.reject();
    });
    printReport(report.document, &over);
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST(PrintButtons, CanBeReachedWhenTheReportCanBeSaved)
{
    ShownDrift drift;
    EXPECT_FALSE(drift.button("cmdPrint").isVisible());
    drift.hands.click("cmdNext");
    EXPECT_TRUE(drift.button("cmdPrint").isVisible());
    EXPECT_TRUE(drift.button("cmdPrintPreview").isEnabled());
    drift.hands.photograph("print-drift");
    EXPECT_THAT(faultsForAScreenReader(drift.page), IsEmpty());
    drift.hands.click("cmdBack");
    EXPECT_FALSE(drift.button("cmdPrintPreview").isVisible());

    ShownLoad load;
    EXPECT_FALSE(load.button("cmdPrint").isEnabled());
    load.hands.click("cmdCalculate");
    EXPECT_TRUE(load.button("cmdPrint").isEnabled());
    load.hands.photograph("print-load");
    EXPECT_THAT(faultsForAScreenReader(load.page), IsEmpty());
    load.hands.type("txtMinSafe", "40");
    EXPECT_EQ(load.button("cmdPrint").isEnabled(), load.button("cmdSave").isEnabled());
}

TEST(PrintButtons, ShowTheReportOfTheTool)
{
    ShownDrift drift;
    drift.hands.click("cmdNext");
    const auto report = drift.page.tool().buildReport();
    whenPreviewComes([&](QPrintPreviewDialog& dialog, QPrintPreviewWidget& preview) {
        EXPECT_EQ(preview.pageCount(), report->Pages().Count());
        EXPECT_EQ(dialog.windowTitle(), "Print Preview - 7-Day Drift Testing");
        dialog.resize(1100, 800);
        Operator(dialog).photograph("print-preview-drift");
    });
    drift.hands.click("cmdPrintPreview");

    ShownLoad load;
    load.hands.click("cmdCalculate");
    whenPreviewComes([](QPrintPreviewDialog& dialog, QPrintPreviewWidget&) {
        dialog.resize(1100, 800);
        Operator(dialog).photograph("print-preview-load");
    });
    load.hands.click("cmdPrintPreview");
}

TEST(PrintButtons, AreReachedByTheirLetters)
{
    ShownLoad load;
    load.hands.click("cmdCalculate");
    bool isAsked = false;
    whenDialogComes([&](QDialog& dialog) {
        isAsked = qobject_cast<QPrintDialog*>(&dialog) != nullptr;
        Operator(dialog).photograph("print-dialog");
        dialog.reject();
    });
    load.hands.pressMnemonic(Qt::Key_R);
    EXPECT_TRUE(isAsked);
    EXPECT_EQ(load.page.focusWidget(), &load.button("cmdPrint")) << "the field before is left";
}

TEST(PrintButtons, FollowTheButtonsThatSave)
{
    ShownLoad load;
    load.hands.click("cmdCalculate");
    load.button("cmdSave").setFocus(Qt::TabFocusReason);
    QStringList visited;
    for (int step = 0; step < 5; ++step) {
        visited << QApplication::focusWidget()->objectName();
        load.hands.press(Qt::Key_Tab);
    }
    EXPECT_EQ(visited,
              QStringList({"cmdSave", "chkPreview", "cmdPrint", "cmdPrintPreview", "cmdClose"}));
}

TEST(PrintButtons, AreBeforeTheButtonsOfTheWizard)
{
    ShownDrift drift;
    drift.hands.click("cmdNext");
    drift.button("cmdPrint").setFocus(Qt::TabFocusReason);
    QStringList visited;
    for (int step = 0; step < 5; ++step) {
        visited << QApplication::focusWidget()->objectName();
        drift.hands.press(Qt::Key_Tab);
    }
    EXPECT_EQ(visited,
              QStringList({"cmdPrint", "cmdPrintPreview", "chkPreview", "cmdBack", "cmdSave"}));
}

TEST(PrintButtons, TellWhatKeepsAReportFromBeingBuilt)
{
    QWidget view;
    screen::Control control("control");
    screen::Button save(control, "cmdSave", "Save");
    int builds = 0;
    makePrintButtons(view, save, [&]() -> std::unique_ptr<ReportDocument> {
        if (++builds == 1)
            throw Error(91);
        return nullptr;
    });
    const Operator hands(view);
    const auto toldBy = [&](const char* name) {
        return qt::test::told([&] { hands.view<QPushButton>(name).click(); });
    };
    EXPECT_EQ(toldBy("cmdPrint"), "Error 91: Object variable or With block variable not set");
    EXPECT_EQ(toldBy("cmdPrintPreview"), "Error 5: There is nothing to print.");
}

} // namespace k7deval::workbench::test
