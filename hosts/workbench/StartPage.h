#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>

class QLabel;
class QListWidget;
class QPushButton;

namespace k7deval::workbench
{

/// What the window shows before there is anything to evaluate: without a site, how to get one; on a
/// site without units, how to fill it.
class StartPage final : public QWidget
{
public:
    /// What its buttons do.
    struct Actions {
        std::function<void()> newSite;
        std::function<void()> openSite;
        std::function<void()> importFiles;
        std::function<void(const QString& path)> openRecent;
    };
    explicit StartPage(Actions actions, QWidget* parent = nullptr);

    void showWithoutSite(const QStringList& recentSites);
    void showEmptySite(const QString& name);

private:
    QPushButton* addButton(const char* name, const QString& text);
    void addRecentList();
    void openCurrent();

    Actions actions_;
    QLabel* title_;
    QLabel* text_;
    QPushButton* newSite_ = nullptr;
    QPushButton* openSite_ = nullptr;
    QPushButton* importFiles_ = nullptr;
    QLabel* recentTitle_ = nullptr;
    QListWidget* recent_ = nullptr;
};

} // namespace k7deval::workbench
