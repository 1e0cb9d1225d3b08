#include "workbench/ImportReportView.h"

#include "qt/Texts.h"

#include <QTextBlockFormat>
#include <QTextCursor>

namespace k7deval::workbench
{

namespace
{

QStringList texts(const std::vector<std::string>& lines, const QString& lead)
{
    QStringList all;
    for (const auto& line : lines)
        all << lead + qt::toQString(line);
    return all;
}

QTextCharFormat lettersOf(QFont::Weight weight)
{
    QTextCharFormat letters;
    letters.setFontWeight(weight);
    return letters;
}

QTextBlockFormat headingBlock(double space)
{
    QTextBlockFormat block;
    block.setTopMargin(space);
    return block;
}

QTextBlockFormat lineBlock()
{
    QTextBlockFormat block;
    block.setIndent(1);
    return block;
}

} // namespace

ImportReportView::ImportReportView(QWidget* parent) : QTextEdit(parent)
{
    setObjectName("report");
    setAccessibleName("Report of the import");
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setAcceptDrops(false);
    document()->setIndentWidth(fontMetrics().averageCharWidth() * 4.0);
    setPlaceholderText("What was taken of each file, and why one was refused.");
}

void ImportReportView::tell(const QString& file, const QString& format,
                            const ImportOutcome& outcome)
{
    const QString name = file + " (" + format + ")";
    switch (outcome.kind) {
    case ImportOutcome::Kind::Taken:
        tell("Taken: " + name, texts(outcome.report.counts, {}) +
                                   texts(outcome.report.steppedOver, "Stepped over: ") +
                                   texts(outcome.report.leftOut, "Left out: "));
        return;
    case ImportOutcome::Kind::Refused:
        tell("Refused, nothing was taken: " + name, {qt::toQString(outcome.sentence)});
        return;
    case ImportOutcome::Kind::Cancelled:
        tell("Cancelled, nothing was taken: " + name, {});
        return;
    }
}

void ImportReportView::tell(const QString& heading, const QStringList& lines)
{
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    if (!document()->isEmpty())
        end.insertBlock(headingBlock(fontMetrics().lineSpacing() / 2.0));
    end.insertText(heading, lettersOf(QFont::Bold));
    for (const auto& line : lines) {
        end.insertBlock(lineBlock());
        end.insertText(line, lettersOf(QFont::Normal));
    }
    setTextCursor(end);
    ensureCursorVisible();
}

} // namespace k7deval::workbench
