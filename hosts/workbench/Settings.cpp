#include "workbench/Settings.h"

#include <QDir>
#include <QFileInfo>
#include <QMainWindow>

namespace k7deval::workbench
{

namespace
{

constexpr int kMostSites = 8;
constexpr const char* kRecentSites = "recentSites";
constexpr const char* kRegion = "region";
constexpr const char* kFolder = "folder";
constexpr const char* kGeometry = "window/geometry";
constexpr const char* kDocks = "window/docks";

/// One spelling for each file, so that none is listed twice.
QString wholePath(const QString& path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

} // namespace

Settings::Settings() : settings_(QSettings::IniFormat, QSettings::UserScope, "k7deval", "workbench")
{
}

Settings::Settings(const QString& file) : settings_(file, QSettings::IniFormat) {}

QStringList Settings::recentSites() const
{
    return settings_.value(kRecentSites).toStringList();
}

void Settings::addRecentSite(const QString& path)
{
    QStringList sites = recentSites();
    sites.removeAll(wholePath(path));
    sites.prepend(wholePath(path));
    settings_.setValue(kRecentSites, QStringList(sites.mid(0, kMostSites)));
}

void Settings::removeRecentSite(const QString& path)
{
    QStringList sites = recentSites();
    sites.removeAll(wholePath(path));
    settings_.setValue(kRecentSites, sites);
}

void Settings::clearRecentSites()
{
    settings_.remove(kRecentSites);
}

QString Settings::region() const
{
    return settings_.value(kRegion).toString();
}

void Settings::setRegion(const QString& name)
{
    settings_.setValue(kRegion, name);
}

QString Settings::folder() const
{
    return settings_.value(kFolder, QDir::homePath()).toString();
}

void Settings::setFolderOf(const QString& file)
{
    settings_.setValue(kFolder, QFileInfo(file).absolutePath());
}

void Settings::keepLayout(const QMainWindow& window)
{
    settings_.setValue(kGeometry, window.saveGeometry());
    settings_.setValue(kDocks, window.saveState());
}

bool Settings::restoreLayout(QMainWindow& window) const
{
    const bool restored = window.restoreGeometry(settings_.value(kGeometry).toByteArray());
    return window.restoreState(settings_.value(kDocks).toByteArray()) && restored;
}

} // namespace k7deval::workbench
