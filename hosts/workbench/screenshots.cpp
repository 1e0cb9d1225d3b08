#include "foundation/Error.h"
#include "qt/QtServices.h"
#include "qt/Texts.h"
#include "workbench/HelpWindow.h"
#include "workbench/ImportDialog.h"
#include "workbench/MainWindow.h"
#include "workbench/SiteProperties.h"
#include "workbench/ToolPages.h"
#include "workbench/ToolTabs.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <utility>

/// Pictures of the desktop program at work on the sample sites, for documentation and for those who
/// judge its looks: k7deval-screenshots SITES DATA FOLDER, of which DATA has the files of a site to
/// import
namespace k7deval::workbench
{

namespace
{

/// A small office screen.
constexpr QSize kScreen(1366, 768);

/// What the program remembers, whoever runs it.
struct Memory {
    explicit Memory(const QString& file) : settings(file) { settings.setRegion("en-US"); }

    Settings settings;
};

void pick(screen::ComboBox& list, const std::string& entry)
{
    const auto found = std::ranges::find(list.List(), entry);
    if (found == list.List().end())
        throw Error(errors::kInvalidCall, list.Name() + " does not hold " + entry + ".");
    list.Pick(static_cast<std::int32_t>(found - list.List().begin()));
}

void type(screen::TextBox& field, const std::string& text)
{
    field.Type(text);
    field.Leave();
}

/// One window, and the folder that its pictures go to.
class Studio
{
public:
    Studio(QString sites, QString data, QString folder)
        : sites_(std::move(sites)), data_(std::move(data)), folder_(std::move(folder))
    {
        for (const char* site : {"flint-creek", "crystal-river", "barrett", "bethpage"})
            window_.offerSite(pathOf(site));
        window_.resize(kScreen);
        window_.show();
    }

    void takeAll()
    {
        take("start", window_);
        window_.newSite(scratch_.filePath("bethpage.site"));
        take("empty-site", window_);
        takeImport();
        window_.openSite(pathOf("bethpage"));
        takeDrift();
        takeLoad();
        takeData();
        takeProperties();
        takeHelp();
        window_.openSite(pathOf("crystal-river"));
        takeRange();
    }

private:
    [[nodiscard]] QString fileOf(const QString& name) const { return QDir(data_).filePath(name); }
    [[nodiscard]] QString pathOf(const QString& site) const
    {
        return QDir(sites_).filePath(site + ".site");
    }

    template <class Page> Page& goTo(const char* tool)
    {
        window_.tools().goTo(tool);
        return dynamic_cast<Page&>(*window_.tools().page(tool));
    }

    /// A test that was passed on its seventh day.
    void takeDrift()
    {
        ctrl7Day& tool = goTo<DriftPage>("drift").tool();
        ctrl7DaySetUp& page = tool.ctrl7DaySetUp1;
        pick(page.cmbUnit, "GT3");
        pick(page.cmbAnalyzer, "NOX 310/L");
        type(page.txtFromDate, "5/3/2021");
        type(page.txtToDate, "5/9/2021");
        take("drift-setup", window_);
        tool.cmdNext.Press();
        take("drift-results", window_);
    }

    void takeLoad()
    {
        ctrlMaxMW& tool = goTo<LoadPage>("load").tool();
        pick(tool.cmbUnit, "GT4");
        type(tool.txtMinSafe, "30");
        type(tool.txtCapacity, "84");
        tool.cmbYear.Type("2021");
        pick(tool.cmbQTR, "Q4");
        tool.cmdCalculate.Press();
        take("load", window_);
    }

    void takeRange()
    {
        ctrlRangeEval& tool = goTo<RangePage>("range").tool();
        pick(tool.cmbUnit, "4");
        pick(tool.cmbParam, "HG");
        tool.cmbYear.Type("2021");
        pick(tool.cmbQTR, "Q3");
        tool.cmdCalculate.Press();
        take("range", window_);
    }

    /// The units come first; the tests hold one injection that is left out.
    void takeImport()
    {
        ImportDialog dialog(scratch_.filePath("bethpage.site"), clock_, &window_);
        dialog.show();
        dialog.addFiles({fileOf("hourly_load_GT4.csv.gz"), fileOf("ecmps_qa_50292.json"),
                         fileOf("spans.csv"), fileOf("tests.csv")});
        dialog.findChild<QComboBox*>("unit of hourly_load_GT4.csv.gz")->setEditText("GT4");
        dialog.findChild<QCheckBox*>("leaveOut")->setChecked(true);
        take("import", dialog);
        dialog.findChild<QPushButton*>("import")->click();
        const auto* cancel = dialog.findChild<QPushButton*>("cancel");
        while (cancel->isEnabled() && cancel->isVisible())
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        take("import-report", dialog);
    }

    void takeData()
    {
        window_.tools().goTo("data");
        QWidget& page = *window_.tools().page("data");
        auto& rows = *page.findChild<QTableView*>("jgexGrid")->model();
        for (int row = 0; row < rows.rowCount(); ++row) {
            const QString name = rows.index(row, 1).data().toString();
            if (name == "Load" || name == "Operating Time")
                rows.setData(rows.index(row, 0), Qt::Checked, Qt::CheckStateRole);
        }
        page.findChild<QPushButton*>("hourlyShow")->click();
        take("data-hours", window_);
        page.findChild<QTabWidget*>("dataPages")->setCurrentIndex(1);
        page.findChild<QPushButton*>("calibrationShow")->click();
        take("data-calibrations", window_);
    }

    void takeProperties()
    {
        SiteProperties dialog(pathOf("bethpage"), regionalSettings("en-US"), &window_);
        dialog.show();
        take("site-properties", dialog);
    }

    void takeHelp()
    {
        HelpWindow help(&window_);
        help.showTopic("drift");
        take("help", help);
    }

    void take(const QString& name, QWidget& window) const
    {
        QApplication::processEvents();
        const QString path = QDir(folder_).filePath(name + ".png");
        if (!window.grab().save(path))
            throw Error(errors::kPathAccess, path.toStdString() + " could not be written.");
        std::cout << path.toStdString() << '\n';
    }

    QString sites_;
    QString data_;
    QString folder_;
    QTemporaryDir scratch_;
    Memory memory_{scratch_.filePath("settings.ini")};
    qt::QtServices services_;
    SystemClock clock_;
    MainWindow window_{services_, clock_, memory_.settings};
};

} // namespace

} // namespace k7deval::workbench

int main(int argc, char** argv)
{
    // No display is needed, and none is disturbed.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 4 || !QDir().mkpath(arguments[3])) {
        std::cerr << "usage: k7deval-screenshots SITES DATA FOLDER\n";
        return EXIT_FAILURE;
    }
    try {
        k7deval::workbench::Studio(arguments[1], arguments[2], arguments[3]).takeAll();
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
