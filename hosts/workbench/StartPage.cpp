#include "workbench/StartPage.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace k7deval::workbench
{

namespace
{

constexpr double kTitleSize = 1.6;
constexpr int kColumnLetters = 70;
constexpr int kRecentLines = 9;
constexpr int kRecentPathRole = Qt::UserRole;

QLabel* makeTitle(QWidget* parent)
{
    auto* title = new QLabel(parent);
    title->setObjectName("startTitle");
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * kTitleSize);
    title->setFont(font);
    return title;
}

QLabel* makeText(QWidget* parent)
{
    auto* text = new QLabel(parent);
    text->setObjectName("startText");
    text->setWordWrap(true);
    return text;
}

QString entryOf(const QString& path)
{
    const QFileInfo file(path);
    return file.fileName() + "   " + QDir::toNativeSeparators(file.path());
}

} // namespace

StartPage::StartPage(Actions actions, QWidget* parent)
    : QWidget(parent), actions_(std::move(actions)), title_(makeTitle(this)), text_(makeText(this))
{
    auto* middle = new QHBoxLayout(this);
    auto* column = new QVBoxLayout;
    middle->addStretch(1);
    middle->addLayout(column, 4);
    middle->addStretch(1);
    column->addStretch(1);
    column->addWidget(title_);
    column->addWidget(text_);
    auto* buttons = new QHBoxLayout;
    newSite_ = addButton("startNew", "New &Site...");
    openSite_ = addButton("startOpen", "&Open Site...");
    importFiles_ = addButton("startImport", "&Import Files...");
    for (QPushButton* button : {newSite_, openSite_, importFiles_})
        buttons->addWidget(button);
    buttons->addStretch(1);
    column->addLayout(buttons);
    addRecentList();
    column->addWidget(recentTitle_);
    column->addWidget(recent_);
    column->addStretch(2);
    text_->setMinimumWidth(fontMetrics().averageCharWidth() * kColumnLetters);

    connect(newSite_, &QPushButton::clicked, this, [this] { actions_.newSite(); });
    connect(openSite_, &QPushButton::clicked, this, [this] { actions_.openSite(); });
    connect(importFiles_, &QPushButton::clicked, this, [this] { actions_.importFiles(); });
}

QPushButton* StartPage::addButton(const char* name, const QString& text)
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    return button;
}

void StartPage::addRecentList()
{
    recentTitle_ = new QLabel("&Recent sites", this);
    recent_ = new QListWidget(this);
    recent_->setObjectName("recentSites");
    recent_->setAccessibleName("Recent sites");
    recent_->setTextElideMode(Qt::ElideMiddle);
    recent_->setMaximumHeight(fontMetrics().lineSpacing() * kRecentLines);
    recentTitle_->setBuddy(recent_);
    connect(recent_, &QListWidget::itemActivated, this, [this] { openCurrent(); });
}

void StartPage::openCurrent()
{
    const QListWidgetItem* item = recent_->currentItem();
    if (item != nullptr)
        actions_.openRecent(item->data(kRecentPathRole).toString());
}

void StartPage::showWithoutSite(const QStringList& recentSites)
{
    title_->setText("No site is open");
    text_->setText("A site is one file with the units, analyzers, hours and calibrations of a "
                   "plant. Open one, or make a new one and fill it with files in EPA's formats.");
    importFiles_->hide();
    newSite_->show();
    openSite_->show();
    recent_->clear();
    for (const QString& path : recentSites) {
        auto* item = new QListWidgetItem(entryOf(path), recent_);
        item->setData(kRecentPathRole, path);
        item->setToolTip(QDir::toNativeSeparators(path));
    }
    recent_->setCurrentRow(0);
    recentTitle_->setVisible(!recentSites.isEmpty());
    recent_->setVisible(!recentSites.isEmpty());
    openSite_->setFocus();
}

void StartPage::showEmptySite(const QString& name)
{
    title_->setText(name + " has no units yet");
    text_->setText("Import a monitoring plan or a table of spans first, since they bring the units "
                   "and analyzers; then quality-assurance tests, emissions and hourly tables. "
                   "Files can also be dropped on this window.");
    newSite_->hide();
    openSite_->hide();
    recentTitle_->hide();
    recent_->hide();
    importFiles_->show();
    importFiles_->setFocus();
}

} // namespace k7deval::workbench
