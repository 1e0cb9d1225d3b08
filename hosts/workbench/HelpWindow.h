#pragma once

#include <QDialog>
#include <QString>
#include <QUrl>

class QListWidget;
class QTextBrowser;

namespace k7deval::workbench
{

/// The pages of help, one on each tool and those on the program itself.
class HelpWindow final : public QDialog
{
public:
    explicit HelpWindow(QWidget* parent = nullptr);

    /// Shows the window on the page of a topic: "drift", "load", "range", "data" or "sites".
    void showTopic(const QString& topic);

private:
    void follow(const QUrl& page);

    QListWidget* topics_;
    QTextBrowser* page_;
};

} // namespace k7deval::workbench
