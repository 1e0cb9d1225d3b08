#pragma once

#include "foundation/Clock.h"
#include "foundation/DataInterface.h"
#include "foundation/RegionalSettings.h"
#include "screen/Services.h"

#include <QMainWindow>

#include <memory>
#include <string>

class QMenu;
class QTabWidget;

namespace k7deval::workbench
{

class MessagePanel;

/// The desktop program: one site, its tools in tabs, and what they have to say below.
class MainWindow final : public QMainWindow
{
public:
    /// Services and clock outlive the window.
    MainWindow(screen::Services& services, const Clock& clock, RegionalSettings regional);
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;
    ~MainWindow() override;

    /// Shows the tools on the site of a file in place of the site before. A failure is told to the
    /// user and leaves that one open.
    void openSite(const std::string& path);

private:
    /// Adds a tool and hands it the data.
    using ShowTool = void (MainWindow::*)();

    void addMenus();
    void addToolAction(QMenu& menu, const QString& title, ShowTool showTool);
    void addMessages();
    void askForSite();
    void closeTools();

    void showDrift();
    void showLoad();
    void showRange();
    template <class Page> void showHistogram(const QString& title);
    /// Goes to the tab of that title; false when there is none.
    bool goTo(const QString& title);
    void addTab(QWidget& page, const QString& title);

    screen::Services* services_;
    const Clock* clock_;
    RegionalSettings regional_;
    std::shared_ptr<DIServer> server_;
    QTabWidget* tabs_;
    QMenu* tools_ = nullptr;
    MessagePanel* messages_ = nullptr;
};

} // namespace k7deval::workbench
