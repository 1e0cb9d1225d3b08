#include "workbench/MainWindow.h"

#include "qt/Modal.h"
#include "qt/Texts.h"
#include "qt/UserAction.h"
#include "sitedb/SiteDatabase.h"
#include "workbench/DroppedFiles.h"
#include "workbench/HelpWindow.h"
#include "workbench/ImportDialog.h"
#include "workbench/MessagePanel.h"
#include "workbench/Region.h"
#include "workbench/SiteProperties.h"
#include "workbench/StartPage.h"
#include "workbench/ToolTabs.h"
#include "workbench/Tools.h"

#include <QActionGroup>
#include <QDir>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QStatusBar>

#include <algorithm>
#include <utility>

namespace k7deval::workbench
{

namespace
{

constexpr int kLinesOfMessages = 7;
constexpr QSize kFirstSize(1180, 720);
constexpr const char* kSiteFilter = "Sites (*.site);;All files (*)";

bool isSite(const QString& path)
{
    return path.endsWith(".site", Qt::CaseInsensitive);
}

/// Which site this is. A facility without a name has a stand-in for reports, in brackets.
QString lineOf(DIServer& server, const QString& path)
{
    const QString name = qt::toQString(facilityName(server));
    return (name.startsWith('<') ? QString() : name + "   ") + QFileInfo(path).fileName();
}

sitedb::SiteDatabase openDatabase(const QString& path, sitedb::OpenMode mode)
{
    return sitedb::SiteDatabase::open(path.toStdString(), mode);
}

} // namespace

MainWindow::MainWindow(screen::Services& services, const Clock& clock, Settings& settings)
    : services_(&services), clock_(&clock), settings_(&settings),
      regional_(settingsOfRegion(settings_->region())), centre_(new QStackedWidget(this))
{
    setWindowTitle("K7DEval");
    setAcceptDrops(true);
    addMenus();
    addMessages();
    addCentre();
    siteLine_ = new QLabel(this);
    siteLine_->setObjectName("siteLine");
    statusBar()->addPermanentWidget(siteLine_, 1);
    restoreLayout();
    showSite();
}

/// The tools refer to what the window holds.
MainWindow::~MainWindow()
{
    tools_->close();
}

void MainWindow::addMenus()
{
    addFileMenu();
    addToolsMenu();
    addViewMenu();
    addHelpMenu();
}

void MainWindow::addFileMenu()
{
    QMenu& file = *menuBar()->addMenu("&File");
    file.addAction("&New Site...", QKeySequence::New, this, [this] { askForNewSite(); });
    file.addAction("&Open Site...", QKeySequence::Open, this, [this] { askForSite(); });
    recentMenu_ = file.addMenu("Open &Recent");
    connect(&file, &QMenu::aboutToShow, this, [this] { listRecentSites(); });
    file.addSeparator();
    import_ = file.addAction("&Import Files...", QKeySequence("Ctrl+I"), this,
                             [this] { importFiles({}); });
    properties_ = file.addAction("Site &Properties...", this, [this] { askForProperties(); });
    file.addSeparator();
    file.addAction("P&rint...", QKeySequence::Print, this, [this] { pressOnPage("cmdPrint"); });
    file.addAction("Print Pre&view...", this, [this] { pressOnPage("cmdPrintPreview"); });
    file.addSeparator();
    file.addAction("&Quit", QKeySequence::Quit, this, &QWidget::close);
}

void MainWindow::addToolsMenu()
{
    toolsMenu_ = menuBar()->addMenu("&Tools");
    int number = 0;
    for (const Tool& tool : allTools()) {
        const QString key = QString::number(++number);
        toolsMenu_->addAction("&" + key + " " + tool.title, QKeySequence("Ctrl+" + key), this,
                              [this, id = tool.id] { tools_->goTo(id); });
    }
}

void MainWindow::addViewMenu()
{
    QMenu& view = *menuBar()->addMenu("&View");
    view.setObjectName("viewMenu");
    addRegions(*view.addMenu("&Numbers and Dates"));
}

void MainWindow::addRegions(QMenu& menu)
{
    auto* group = new QActionGroup(&menu);
    const auto add = [&](const QString& title, const QString& name) {
        QAction* action = menu.addAction(title, this, [this, name] { takeRegion(name); });
        action->setCheckable(true);
        action->setChecked(settings_->region() == name);
        group->addAction(action);
    };
    add("As on the &desktop", {});
    for (const char* name : kRegionNames)
        add(titleOfRegion(name), name);
}

void MainWindow::addHelpMenu()
{
    QMenu& help = *menuBar()->addMenu("&Help");
    help.addAction("&Help on This Tool", QKeySequence::HelpContents, this, [this] { showHelp(); });
    help.addAction("&About K7DEval", this, [this] { showAbout(); });
}

/// A line that is posted brings the panel on view, whatever hid it.
void MainWindow::addMessages()
{
    auto* dock = new QDockWidget("Messages", this);
    dock->setObjectName("messagesDock");
    messages_ = new MessagePanel(dock);
    dock->setWidget(messages_);
    addDockWidget(Qt::BottomDockWidgetArea, dock);
    resizeDocks({dock}, {fontMetrics().lineSpacing() * kLinesOfMessages}, Qt::Vertical);
    findChild<QMenu*>("viewMenu")->addAction(dock->toggleViewAction());
    connect(messages_->model(), &QAbstractItemModel::rowsInserted, dock, [dock] { dock->show(); });
}

void MainWindow::addCentre()
{
    start_ = new StartPage({[this] { askForNewSite(); }, [this] { askForSite(); },
                            [this] { importFiles({}); },
                            [this](const QString& path) { openSite(path); }},
                           this);
    tools_ = new ToolTabs({*services_, *clock_, regional_}, *messages_, this);
    centre_->addWidget(start_);
    centre_->addWidget(tools_);
    setCentralWidget(centre_);
}

void MainWindow::restoreLayout()
{
    if (!settings_->restoreLayout(*this))
        resize(kFirstSize.boundedTo(screen()->availableSize()));
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    settings_->keepLayout(*this);
    QMainWindow::closeEvent(event);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!droppedFiles(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

/// The desktop waits for the end of a drop, so what it leads to is done behind it.
void MainWindow::dropEvent(QDropEvent* event)
{
    const QStringList paths = droppedFiles(*event->mimeData());
    event->acceptProposedAction();
    const auto take = [this, paths] {
        const auto site = std::ranges::find_if(paths, isSite);
        if (site == paths.end())
            return importFiles(paths);
        openSite(*site);
    };
    QMetaObject::invokeMethod(this, take, Qt::QueuedConnection);
}

void MainWindow::askForSite()
{
    const QString path =
        QFileDialog::getOpenFileName(this, "Open Site", settings_->folder(), kSiteFilter);
    if (!path.isEmpty())
        openSite(path);
}

void MainWindow::askForNewSite()
{
    QFileDialog dialog(this, "New Site", settings_->folder(), kSiteFilter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    // A site is never written over, so there is nothing to confirm.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setDefaultSuffix("site");
    if (dialog.exec() == QDialog::Accepted)
        newSite(dialog.selectedFiles().front());
}

void MainWindow::newSite(const QString& path)
{
    if (QFileInfo::exists(path)) {
        QMessageBox::warning(this, "New Site",
                             QDir::toNativeSeparators(path) +
                                 " is there already. Open it, or choose another name.");
        return;
    }
    bool isMade = false;
    const auto make = [&] {
        openDatabase(path, sitedb::OpenMode::ReadWrite);
        isMade = true;
    };
    qt::forward(*this, make);
    if (isMade)
        openSite(path);
}

MainWindow::Site MainWindow::readSite(const QString& path)
{
    auto server = openDatabase(path, sitedb::OpenMode::ReadOnly).server();
    const QString line = lineOf(*server, path);
    const bool hasUnits = !server->Units().empty();
    return {QFileInfo(path).absoluteFilePath(), std::move(server), line, hasUnits};
}

/// A site that can't be read leaves the one before as it is.
void MainWindow::openSite(const QString& path)
{
    const auto open = [&] {
        if (!QFileInfo::exists(path))
            settings_->removeRecentSite(path);
        site_ = readSite(path);
        settings_->setFolderOf(site_.path);
        settings_->addRecentSite(site_.path);
        showSite();
    };
    qt::forward(*this, open);
    // What is gone is not offered again.
    if (!site_.server)
        showSite();
}

void MainWindow::offerSite(const QString& path)
{
    settings_->addRecentSite(path);
    if (!site_.server)
        showSite();
}

void MainWindow::importFiles(const QStringList& paths)
{
    if (!site_.server) {
        QMessageBox::information(this, "Import Files",
                                 "Open a site first, or make a new one, to take the files into.");
        return;
    }
    qt::Modal<ImportDialog> dialog(site_.path, *clock_, this);
    dialog->addFiles(paths);
    static_cast<void>(dialog.ask());
    // The window may be gone, and the dialog with it.
    if (dialog && dialog->hasTaken())
        onSameTool([this] { openSite(site_.path); });
}

void MainWindow::askForProperties()
{
    const auto ask = [this] {
        qt::Modal<SiteProperties> dialog(site_.path, regional_, this);
        if (dialog.ask() == QDialog::Accepted)
            onSameTool([this] { openSite(site_.path); });
    };
    qt::forward(*this, ask);
}

void MainWindow::listRecentSites()
{
    recentMenu_->clear();
    int number = 0;
    for (const QString& path : settings_->recentSites()) {
        const QString title = "&" + QString::number(++number) + " " +
                              QDir::toNativeSeparators(QString(path)).replace('&', "&&");
        recentMenu_->addAction(title, this, [this, path] { openSite(path); });
    }
    recentMenu_->setEnabled(number > 0);
    recentMenu_->addSeparator();
    recentMenu_->addAction("&Clear List", this, [this] { settings_->clearRecentSites(); });
}

/// A button that can't be pressed now does nothing here, either.
void MainWindow::pressOnPage(const QString& name)
{
    auto* page = tools_->isVisible() ? tools_->currentWidget() : nullptr;
    auto* button = page == nullptr ? nullptr : page->findChild<QPushButton*>(name);
    if (button != nullptr && button->isVisible())
        button->click();
}

/// The tools keep to the region that they were made for, so they are made anew.
void MainWindow::takeRegion(const QString& name)
{
    settings_->setRegion(name);
    onSameTool([this, name] {
        tools_->close();
        regional_ = settingsOfRegion(name);
        showSite();
    });
}

void MainWindow::onSameTool(const std::function<void()>& show)
{
    const Tool* tool = tools_->current();
    show();
    if (tool != nullptr)
        tools_->goTo(tool->id);
}

void MainWindow::showSite()
{
    const QFileInfo file(site_.path);
    import_->setEnabled(site_.server != nullptr);
    properties_->setEnabled(site_.server != nullptr);
    toolsMenu_->setEnabled(site_.hasUnits);
    setWindowTitle(site_.server ? file.completeBaseName() + " - K7DEval" : "K7DEval");
    siteLine_->setText(site_.server ? site_.line : "No site");
    siteLine_->setToolTip(QDir::toNativeSeparators(site_.path));
    if (site_.hasUnits) {
        centre_->setCurrentWidget(tools_);
        tools_->open(site_.server);
        return;
    }
    tools_->close();
    centre_->setCurrentWidget(start_);
    if (site_.server)
        start_->showEmptySite(file.fileName());
    else
        start_->showWithoutSite(settings_->recentSites());
}

/// The topic of the tool on view.
void MainWindow::showHelp()
{
    if (help_ == nullptr)
        help_ = new HelpWindow(this);
    const Tool* tool = tools_->current();
    help_->showTopic(tool != nullptr ? tool->topic : "sites");
}

void MainWindow::showAbout()
{
    QMessageBox::about(this, "About K7DEval",
                       "K7DEval judges the data of continuous emissions monitoring systems under "
                       "40 CFR Part 75 and Part 60.\n\nWhat it shows is worked out by the same "
                       "library that its command line and its Python module use.");
}

} // namespace k7deval::workbench
