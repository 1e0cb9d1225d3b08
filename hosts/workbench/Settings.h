#pragma once

#include <QSettings>
#include <QString>
#include <QStringList>

class QMainWindow;

namespace k7deval::workbench
{

/// What the program remembers of a user from one start to the next.
class Settings
{
public:
    /// Those of the user who runs the program.
    Settings();
    /// Those in a file of their own.
    explicit Settings(const QString& file);

    /// The sites that were open, the last one first; at most eight.
    [[nodiscard]] QStringList recentSites() const;
    void addRecentSite(const QString& path);
    void removeRecentSite(const QString& path);
    void clearRecentSites();

    /// The name of the region to write numbers and dates by; empty for that of the desktop.
    [[nodiscard]] QString region() const;
    void setRegion(const QString& name);

    /// The folder that a file was last chosen in.
    [[nodiscard]] QString folder() const;
    void setFolderOf(const QString& file);

    void keepLayout(const QMainWindow& window);
    /// False when there is none to restore yet.
    [[nodiscard]] bool restoreLayout(QMainWindow& window) const;

private:
    QSettings settings_;
};

} // namespace k7deval::workbench
