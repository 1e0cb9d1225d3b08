#include "workbench/MessagePanel.h"

#include "foundation/DateText.h"
#include "qt/Texts.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QPointer>

namespace k7deval::workbench
{

namespace
{

class PanelSink final : public MessageSink
{
public:
    PanelSink(MessagePanel& panel, const Clock& clock, const RegionalSettings& regional)
        : panel_(&panel), clock_(&clock), regional_(&regional)
    {
    }

    void Post(std::int32_t severity, const std::string& text) override
    {
        if (!panel_)
            return;
        const Date now = clock_->now();
        panel_->add(qt::toQString(ShortDate(now, *regional_) + " " + longTime(now, *regional_)),
                    severity, qt::toQString(text));
    }

private:
    QPointer<MessagePanel> panel_;
    const Clock* clock_;
    const RegionalSettings* regional_;
};

} // namespace

MessagePanel::MessagePanel(QWidget* parent) : QTableWidget(0, 3, parent)
{
    setObjectName("messages");
    setAccessibleName("Messages");
    setHorizontalHeaderLabels({"Time", "Severity", "Message"});
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    verticalHeader()->hide();
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setTabKeyNavigation(false);
    addActions();
}

void MessagePanel::addActions()
{
    auto* copyLines = new QAction("&Copy", this);
    copyLines->setShortcut(QKeySequence::Copy);
    auto* clearLines = new QAction("C&lear", this);
    for (QAction* action : {copyLines, clearLines}) {
        action->setShortcutContext(Qt::WidgetShortcut);
        addAction(action);
    }
    connect(copyLines, &QAction::triggered, this, [this] { copy(); });
    connect(clearLines, &QAction::triggered, this, [this] { setRowCount(0); });
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void MessagePanel::copy() const
{
    QStringList lines;
    const bool isAnyMarked = selectionModel()->hasSelection();
    for (int row = 0; row < rowCount(); ++row) {
        if (!isAnyMarked || selectionModel()->isRowSelected(row, {}))
            lines << item(row, 0)->text() + "\t" + item(row, 2)->text();
    }
    QGuiApplication::clipboard()->setText(lines.join('\n'));
}

void MessagePanel::add(const QString& time, std::int32_t severity, const QString& text)
{
    const int row = rowCount();
    insertRow(row);
    setItem(row, 0, new QTableWidgetItem(time));
    setItem(row, 1, new QTableWidgetItem(QString::number(severity)));
    setItem(row, 2, new QTableWidgetItem(text));
    resizeColumnToContents(0);
    scrollToBottom();
}

std::shared_ptr<MessageSink> sinkOf(MessagePanel& panel, const Clock& clock,
                                    const RegionalSettings& regional)
{
    return std::make_shared<PanelSink>(panel, clock, regional);
}

} // namespace k7deval::workbench
