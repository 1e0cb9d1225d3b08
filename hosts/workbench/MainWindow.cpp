#include "workbench/MainWindow.h"

#include "foundation/FileFunctions.h"
#include "qt/Texts.h"
#include "qt/UserAction.h"
#include "qt/ctrl7DayView.h"
#include "qt/ctrlMaxMWView.h"
#include "qt/ctrlRangeEvalView.h"
#include "sitedb/SiteDatabase.h"
#include "workbench/MessagePanel.h"
#include "workbench/ToolPage.h"

#include <QDockWidget>
#include <QFileDialog>
#include <QMenuBar>
#include <QScrollArea>
#include <QTabWidget>

#include <utility>

namespace k7deval::workbench
{

namespace
{

using DriftPage = ToolPage<ctrl7Day, qt::ctrl7DayView>;
using LoadPage = ToolPage<ctrlMaxMW, qt::ctrlMaxMWView>;
using RangePage = ToolPage<ctrlRangeEval, qt::ctrlRangeEvalView>;

constexpr int kLinesOfMessages = 7;
constexpr const char* kDrift = "7-Day Drift";
constexpr const char* kLoad = "Load Evaluation";
constexpr const char* kRange = "Range Evaluation";

const qt::Refresh kNothingToRefresh = [] {};

} // namespace

MainWindow::MainWindow(screen::Services& services, const Clock& clock, RegionalSettings regional)
    : services_(&services), clock_(&clock), regional_(std::move(regional)),
      tabs_(new QTabWidget(this))
{
    setWindowTitle("K7DEval");
    tabs_->setObjectName("tools");
    tabs_->setDocumentMode(true);
    setCentralWidget(tabs_);
    addMenus();
    addMessages();
}

/// The tools refer to what the window holds.
MainWindow::~MainWindow()
{
    closeTools();
}

void MainWindow::addMenus()
{
    QMenu& file = *menuBar()->addMenu("&File");
    QAction* open = file.addAction("&Open Site...", this, [this] { askForSite(); });
    open->setShortcut(QKeySequence::Open);
    file.addSeparator();
    QAction* quit = file.addAction("&Quit", this, &QWidget::close);
    quit->setShortcut(QKeySequence::Quit);

    tools_ = menuBar()->addMenu("&Tools");
    addToolAction(*tools_, kDrift, &MainWindow::showDrift);
    addToolAction(*tools_, kLoad, &MainWindow::showLoad);
    addToolAction(*tools_, kRange, &MainWindow::showRange);
    tools_->setEnabled(false);
}

void MainWindow::addToolAction(QMenu& menu, const QString& title, ShowTool showTool)
{
    menu.addAction(title, this, [this, title, showTool] {
        if (!goTo(title))
            qt::forward(
                *this, [this, showTool] { (this->*showTool)(); }, kNothingToRefresh);
    });
}

void MainWindow::addMessages()
{
    auto* dock = new QDockWidget("Messages", this);
    dock->setObjectName("messagesDock");
    messages_ = new MessagePanel(dock);
    dock->setWidget(messages_);
    addDockWidget(Qt::BottomDockWidgetArea, dock);
    resizeDocks({dock}, {fontMetrics().lineSpacing() * kLinesOfMessages}, Qt::Vertical);
    menuBar()->addMenu("&View")->addAction(dock->toggleViewAction());
}

void MainWindow::askForSite()
{
    const QString path =
        QFileDialog::getOpenFileName(this, "Open Site", {}, "Sites (*.site);;All files (*)");
    if (!path.isEmpty())
        openSite(path.toStdString());
}

void MainWindow::openSite(const std::string& path)
{
    bool isOpen = false;
    const auto open = [&] {
        const auto site = sitedb::SiteDatabase::open(filePath(path), sitedb::OpenMode::ReadOnly);
        auto server = site.server();
        closeTools();
        server_ = std::move(server);
        setWindowTitle(qt::toQString(server_->SiteKey() + " - K7DEval"));
        tools_->setEnabled(true);
        isOpen = true;
    };
    qt::forward(*this, open, kNothingToRefresh);
    if (!isOpen)
        return;
    for (const ShowTool showTool :
         {&MainWindow::showDrift, &MainWindow::showLoad, &MainWindow::showRange})
        qt::forward(
            *this, [this, showTool] { (this->*showTool)(); }, kNothingToRefresh);
    tabs_->setCurrentIndex(0);
}

void MainWindow::closeTools()
{
    while (tabs_->count() > 0)
        delete tabs_->widget(0);
}

bool MainWindow::goTo(const QString& title)
{
    for (int tab = 0; tab < tabs_->count(); ++tab) {
        if (tabs_->tabText(tab) == title) {
            tabs_->setCurrentIndex(tab);
            return true;
        }
    }
    return false;
}

/// On a small desktop a tool is seen in part and can be scrolled.
void MainWindow::addTab(QWidget& page, const QString& title)
{
    auto* scroll = new QScrollArea(tabs_);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setWidget(&page);
    tabs_->setCurrentIndex(tabs_->addTab(scroll, title));
}

void MainWindow::showDrift()
{
    auto* page = new DriftPage({*services_, *clock_, regional_}, nullptr);
    addTab(*page, kDrift);
    page->tool().Setup(sinkOf(*messages_, *clock_, regional_), server_);
}

template <class Page> void MainWindow::showHistogram(const QString& title)
{
    auto* page = new Page({*services_, *clock_, regional_}, nullptr);
    addTab(*page, title);
    QWidget* tab = tabs_->currentWidget();
    // The tool is still at work when it says so.
    page->tool().CloseClicked.Connect([tab] { tab->deleteLater(); });
    page->tool().SetDIServer(server_);
}

void MainWindow::showLoad()
{
    showHistogram<LoadPage>(kLoad);
}

void MainWindow::showRange()
{
    showHistogram<RangePage>(kRange);
}

} // namespace k7deval::workbench
