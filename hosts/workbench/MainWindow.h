#pragma once

#include "foundation/Clock.h"
#include "foundation/DataInterface.h"
#include "foundation/RegionalSettings.h"
#include "screen/Services.h"
#include "workbench/Settings.h"

#include <QMainWindow>

#include <functional>
#include <memory>

class QActionGroup;
class QLabel;
class QMenu;
class QStackedWidget;

namespace k7deval::workbench
{

class HelpWindow;
class MessagePanel;
class StartPage;
class ToolTabs;

/// The desktop program: one site, its tools in tabs, and what they have to say below.
class MainWindow final : public QMainWindow
{
public:
    /// All three outlive the window, which follows the settings and keeps them up to date.
    MainWindow(screen::Services& services, const Clock& clock, Settings& settings);
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;
    ~MainWindow() override;

    /// Shows the tools on the site of a file in place of the site before. A failure is told to the
    /// user and leaves that one open.
    void openSite(const QString& path);
    /// Lists a site among the recent ones without opening it.
    void offerSite(const QString& path);
    /// Makes an empty site and opens it. A file that is there already is told to the user and left
    /// alone.
    void newSite(const QString& path);
    /// Asks what is needed to take files into the open site, takes them, and shows what came of it.
    void importFiles(const QStringList& paths);

    [[nodiscard]] ToolTabs& tools() const { return *tools_; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void addMenus();
    void addFileMenu();
    void addToolsMenu();
    void addViewMenu();
    void addRegions(QMenu& menu);
    void addHelpMenu();
    void addMessages();
    void addCentre();
    void restoreLayout();

    void askForSite();
    void askForNewSite();
    void askForProperties();
    void listRecentSites();
    /// Presses a button of the tool on view, if it has one of that name.
    void pressOnPage(const QString& name);
    void takeRegion(const QString& name);
    /// What is known about a site when it is opened.
    struct Site {
        QString path; ///< Empty without a site.
        std::shared_ptr<DIServer> server;
        QString line; ///< What the status bar says of it.
        bool hasUnits = false;
    };
    [[nodiscard]] static Site readSite(const QString& path);
    /// Shows the site that is open, or how to get one.
    void showSite();
    /// Does something that shows the tools anew, and goes back to the tool on view.
    void onSameTool(const std::function<void()>& show);
    void showHelp();
    void showAbout();

    screen::Services* services_;
    const Clock* clock_;
    Settings* settings_;
    RegionalSettings regional_;
    Site site_;
    QStackedWidget* centre_;
    StartPage* start_ = nullptr;
    ToolTabs* tools_ = nullptr;
    MessagePanel* messages_ = nullptr;
    HelpWindow* help_ = nullptr;
    QLabel* siteLine_ = nullptr;
    QMenu* recentMenu_ = nullptr;
    QMenu* toolsMenu_ = nullptr;
    QAction* import_ = nullptr;
    QAction* properties_ = nullptr;
};

} // namespace k7deval::workbench
