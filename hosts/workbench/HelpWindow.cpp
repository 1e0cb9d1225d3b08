#include "workbench/HelpWindow.h"

#include "workbench/Tools.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QListWidget>
#include <QPushButton>
#include <QSplitter>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace k7deval::workbench
{

namespace
{

constexpr int kTopicRole = Qt::UserRole;
constexpr int kWidth = 130;
constexpr int kLines = 34;

QUrl urlOf(const QString& topic)
{
    return {"qrc:/k7deval/help/" + topic + ".html"};
}

QListWidget* makeTopics(QWidget* parent)
{
    auto* topics = new QListWidget(parent);
    topics->setObjectName("helpTopics");
    topics->setAccessibleName("Topics");
    const auto add = [topics](const char* name, const char* title) {
        auto* item = new QListWidgetItem(title, topics);
        item->setData(kTopicRole, QString(name));
    };
    add("sites", "Sites and files");
    for (const Tool& tool : allTools())
        add(tool.topic, tool.title);
    return topics;
}

QTextBrowser* makePage(QWidget* parent)
{
    auto* page = new QTextBrowser(parent);
    page->setObjectName("helpPage");
    page->setAccessibleName("Help");
    page->setOpenExternalLinks(true);
    return page;
}

} // namespace

HelpWindow::HelpWindow(QWidget* parent)
    : QDialog(parent), topics_(makeTopics(this)), page_(makePage(this))
{
    setWindowTitle("Help - K7DEval");
    setObjectName("help");
    auto* parts = new QSplitter(this);
    parts->addWidget(topics_);
    parts->addWidget(page_);
    parts->setStretchFactor(1, 1);
    parts->setChildrenCollapsible(false);
    const int widthOfTopics = topics_->sizeHintForColumn(0) * 3 / 2;
    parts->setSizes({widthOfTopics, widthOfTopics * 4});
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    auto* column = new QVBoxLayout(this);
    column->addWidget(parts, 1);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(topics_, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
        page_->setSource(urlOf(item->data(kTopicRole).toString()));
    });
    connect(page_, &QTextBrowser::sourceChanged, this, [this](const QUrl& page) { follow(page); });
    resize(fontMetrics().averageCharWidth() * kWidth, fontMetrics().lineSpacing() * kLines);
}

void HelpWindow::showTopic(const QString& topic)
{
    page_->setSource(urlOf(topic));
    show();
    raise();
    activateWindow();
    page_->setFocus();
}

/// A link leads to another topic, too.
void HelpWindow::follow(const QUrl& page)
{
    const QSignalBlocker quiet(topics_);
    const QString topic = QFileInfo(page.path()).baseName();
    for (int row = 0; row < topics_->count(); ++row) {
        if (topics_->item(row)->data(kTopicRole).toString() == topic)
            topics_->setCurrentRow(row);
    }
}

} // namespace k7deval::workbench
