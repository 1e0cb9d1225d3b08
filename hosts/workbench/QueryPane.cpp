#include "workbench/QueryPane.h"

#include "foundation/DateReader.h"
#include "foundation/DateText.h"
#include "foundation/FileReplacement.h"
#include "foundation/UtilityFunctions.h"
#include "qt/Modal.h"
#include "qt/Texts.h"
#include "qt/UserAction.h"
#include "workbench/Hourglass.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QSplitter>
#include <QStackedWidget>
#include <QTableView>
#include <QVBoxLayout>

#include <utility>

namespace k7deval::workbench
{

namespace
{

constexpr int kMostYears = 10;
constexpr int kMonthsOfAYear = 12;
constexpr int kWidthOfLeft = 30;  ///< In letters.
constexpr int kMostOfColumn = 40; ///< In letters.

/// The dialog itself asks about a file that is there.
QString askForFile(QWidget& over)
{
    qt::Modal<QFileDialog> dialog(over.window(), "Save as CSV");
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters({"Comma-separated values (*.csv)", "All files (*)"});
    dialog->setDefaultSuffix("csv");
    if (dialog.ask() != QDialog::Accepted || dialog->selectedFiles().isEmpty())
        return {};
    return dialog->selectedFiles().front();
}

void layOut(QTableView& view)
{
    view.setAlternatingRowColors(true);
    view.setTabKeyNavigation(false);
    view.setWordWrap(false);
    view.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    view.setContextMenuPolicy(Qt::ActionsContextMenu);
    view.horizontalHeader()->setHighlightSections(false);
    // A size for each of many thousand rows would be asked for one by one.
    view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view.verticalHeader()->setHighlightSections(false);
}

std::int32_t yearOf(Date day)
{
    return dateParts(day).year;
}

} // namespace

QString Period::text(const RegionalSettings& regional) const
{
    return qt::toQString("from " + ShortDate(first, regional) + " to " + ShortDate(last, regional));
}

QueryPane::QueryPane(QString name, const screen::Surroundings& surroundings, Ask ask,
                     QWidget* parent)
    : QWidget(parent), name_(std::move(name)), surroundings_(surroundings), ask_(std::move(ask))
{
    auto* halves = new QSplitter(this);
    halves->setChildrenCollapsible(false);
    halves->addWidget(makeLeft());
    halves->addWidget(makeRight());
    halves->setStretchFactor(1, 1);
    auto* column = new QVBoxLayout(this);
    column->addWidget(halves);
}

template <class Part> Part* QueryPane::named(Part* part, const QString& name, const QString& title)
{
    part->setObjectName(name_ + name);
    part->setAccessibleName(title);
    if (part->focusPolicy() != Qt::NoFocus)
        keyOrder_ << part;
    return part;
}

QWidget* QueryPane::makeLeft()
{
    left_ = new QWidget(this);
    leftColumn_ = new QVBoxLayout(left_);
    leftColumn_->setContentsMargins(0, 0, 0, 0);
    addDay(firstDay_, "First", "First &day:");
    addDay(lastDay_, "Last", "&Last day:");
    auto* show = named(new QPushButton("&Show", left_), "Show", "Show");
    connect(show, &QPushButton::clicked, this, [this] { askForData(); });
    leftColumn_->addWidget(show);
    leftColumn_->addStretch();
    return left_;
}

void QueryPane::addDay(QLineEdit*& field, const QString& name, const QString& caption)
{
    const QString title = QString(caption).remove('&').remove(':');
    field = named(new QLineEdit(left_), name + "Day", title);
    connect(field, &QLineEdit::returnPressed, this, [this] { askForData(); });
    auto* label = new QLabel(caption, left_);
    label->setBuddy(field);
    auto* calendar = named(new QPushButton("...", left_), name + "Calendar", "Calendar, " + title);
    calendar->setToolTip(calendar->accessibleName());
    calendar->setMaximumWidth(calendar->fontMetrics().horizontalAdvance("  ...  ") +
                              calendar->sizeHint().height() / 2);
    connect(calendar, &QPushButton::clicked, this, [this, &field] { pickDay(*field); });
    leftColumn_->addWidget(label);
    auto* row = new QHBoxLayout;
    row->addWidget(field, 1);
    row->addWidget(calendar);
    leftColumn_->addLayout(row);
}

QWidget* QueryPane::makeRight()
{
    right_ = new QStackedWidget(this);
    sentence_ = named(new QLabel(right_), "Sentence", {});
    sentence_->setTextFormat(Qt::PlainText);
    sentence_->setAlignment(Qt::AlignCenter);
    sentence_->setWordWrap(true);
    right_->addWidget(sentence_);
    right_->addWidget(makeTablePage());
    return right_;
}

QWidget* QueryPane::makeTablePage()
{
    auto* page = new QWidget(right_);
    line_ = named(new QLabel(page), "Line", {});
    line_->setTextFormat(Qt::PlainText);
    line_->setWordWrap(true);
    auto* copy = named(new QPushButton("&Copy", page), "Copy", "Copy");
    auto* save = named(new QPushButton("Save &as CSV...", page), "Save", "Save as CSV");
    view_ = named(new QTableView(page), "Table", "Data");
    layOut(*view_);
    addTableActions(*copy, *save);

    auto* head = new QHBoxLayout;
    head->addWidget(line_, 1);
    head->addWidget(copy);
    head->addWidget(save);
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(column->spacing(), 0, 0, 0);
    column->addLayout(head);
    column->addWidget(view_, 1);
    return page;
}

void QueryPane::addTableActions(QPushButton& copy, QPushButton& save)
{
    copy.setToolTip("Copies what is selected, or all of the table");
    auto* copyAction = new QAction("&Copy", view_);
    copyAction->setShortcut(QKeySequence::Copy);
    copyAction->setShortcutContext(Qt::WidgetShortcut);
    auto* saveAction = new QAction("Save &as CSV...", view_);
    view_->addActions({copyAction, saveAction});
    const auto doCopy = [this] { this->copy(); };
    const auto doSave = [this] { this->save(); };
    connect(copyAction, &QAction::triggered, this, doCopy);
    connect(saveAction, &QAction::triggered, this, doSave);
    connect(&copy, &QPushButton::clicked, this, doCopy);
    connect(&save, &QPushButton::clicked, this, doSave);
}

void QueryPane::setChoice(QWidget& choice, const QString& caption, QWidget& lastPart)
{
    auto* label = new QLabel(caption, left_);
    label->setBuddy(&lastPart);
    leftColumn_->insertWidget(0, label);
    const bool isGrowing = choice.sizePolicy().verticalPolicy() == QSizePolicy::Expanding;
    leftColumn_->insertWidget(1, &choice, isGrowing ? 1 : 0);
    left_->setMinimumWidth(left_->fontMetrics().averageCharWidth() * kWidthOfLeft);
    QWidget* before = &lastPart;
    for (QWidget* part : keyOrder_)
        setTabOrder(std::exchange(before, part), part);
}

void QueryPane::setPeriod(const Period& period)
{
    firstDay_->setText(qt::toQString(ShortDate(period.first, surroundings_.regional)));
    lastDay_->setText(qt::toQString(ShortDate(period.last, surroundings_.regional)));
}

void QueryPane::setReachable(bool isReachable)
{
    left_->setEnabled(isReachable);
}

void QueryPane::say(const QString& sentence)
{
    sentence_->setText(sentence);
    right_->setCurrentIndex(0);
}

void QueryPane::show(std::unique_ptr<DataTable> table, const QString& line, int leadingColumns)
{
    line_->setText(line);
    view_->setModel(table.get());
    table_ = std::move(table);
    leadingColumns_ = leadingColumns;
    view_->verticalHeader()->setVisible(leadingColumns > 0);
    const QFontMetrics metrics = view_->fontMetrics();
    view_->verticalHeader()->setDefaultSectionSize(metrics.height() * 5 / 4);
    for (int column = 0; column < table_->columns(); ++column)
        view_->setColumnHidden(column, column < leadingColumns);
    view_->resizeColumnsToContents();
    view_->setCurrentIndex(table_->index(0, leadingColumns));
    view_->clearSelection();
    right_->setCurrentIndex(1);
}

void QueryPane::makeRoom(int column, const QStringList& texts)
{
    const QFontMetrics metrics = view_->fontMetrics();
    int width = view_->columnWidth(column);
    for (const QString& text : texts)
        width = std::max(width, metrics.horizontalAdvance(text.left(kMostOfColumn) + "mm"));
    view_->setColumnWidth(column, width);
}

void QueryPane::askForData()
{
    const auto show = [this] {
        const auto asked = period();
        if (!asked)
            return;
        setPeriod(*asked);
        const Hourglass pointer;
        ask_(*asked);
    };
    qt::forward(*this, show);
}

std::optional<Period> QueryPane::period()
{
    const auto first = dayIn(*firstDay_);
    if (!first)
        return std::nullopt;
    const auto last = dayIn(*lastDay_);
    if (!last)
        return std::nullopt;
    if (*last < *first) {
        tell("The last day lies ahead of the first.", *lastDay_);
        return std::nullopt;
    }
    if (*last >= DateAddExact("m", kMostYears * kMonthsOfAYear, *first)) {
        tell(QString("No more than %1 years can be shown at once.").arg(kMostYears), *firstDay_);
        return std::nullopt;
    }
    return Period{*first, *last};
}

Date QueryPane::today() const
{
    return dateOnly(surroundings_.clock.now());
}

std::optional<Date> QueryPane::dayIn(QLineEdit& field)
{
    const auto day =
        readDateText(field.text().toStdString(), surroundings_.regional, yearOf(today()));
    if (day)
        return dateOnly(*day);
    const Date example = makeDate(yearOf(today()), 12, 31);
    tell(QString("\"%1\" is no day. Write it like %2.")
             .arg(field.text(), qt::toQString(ShortDate(example, surroundings_.regional))),
         field);
    return std::nullopt;
}

void QueryPane::pickDay(QLineEdit& field)
{
    const Date shown =
        readDateText(field.text().toStdString(), surroundings_.regional, yearOf(today()))
            .value_or(today());
    const QPointer<QLineEdit> guard(&field);
    const auto picked =
        surroundings_.services.PickDate(field.accessibleName().toStdString(), shown, -1, -1, -1);
    if (picked && guard)
        field.setText(qt::toQString(ShortDate(*picked, surroundings_.regional)));
}

void QueryPane::tell(const QString& sentence, QLineEdit& field)
{
    const QPointer<QLineEdit> guard(&field);
    qt::Modal<QMessageBox> box(QMessageBox::Warning, "K7DEval", sentence, QMessageBox::Ok,
                               window());
    box->setTextFormat(Qt::PlainText);
    static_cast<void>(box.ask());
    if (!guard)
        return;
    field.setFocus(Qt::OtherFocusReason);
    field.selectAll();
}

void QueryPane::copy()
{
    const Hourglass pointer;
    QApplication::clipboard()->setText(
        tabbedText(*table_, *view_->selectionModel(), leadingColumns_));
}

void QueryPane::save()
{
    const QString path = askForFile(*this);
    if (path.isEmpty())
        return;
    qt::forward(*this, [&] {
        const Hourglass pointer;
        replaceFile(path.toStdString(), csvText(*table_));
    });
}

} // namespace k7deval::workbench
