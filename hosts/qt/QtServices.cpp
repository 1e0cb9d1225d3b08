#include "qt/QtServices.h"

#include "foundation/Error.h"
#include "qt/Modal.h"
#include "qt/Texts.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QUrl>
#include <QVBoxLayout>

namespace k7deval::qt
{

namespace
{

QDate dayOf(Date date)
{
    const DateParts parts = dateParts(date);
    return {parts.year, parts.month, parts.day};
}

QMessageBox::Icon iconOf(screen::MsgBoxIcon icon)
{
    switch (icon) {
    case screen::MsgBoxIcon::Information:
        return QMessageBox::Information;
    case screen::MsgBoxIcon::Exclamation:
        return QMessageBox::Warning;
    case screen::MsgBoxIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

/// "pdf" of "PDF File (*.pdf)".
QString extensionOf(const QString& nameFilter)
{
    const auto star = nameFilter.lastIndexOf("(*.");
    return star < 0 ? QString() : nameFilter.mid(star + 3).chopped(1);
}

/// The days of a calendar, one of which is picked by its key or a double click.
class CalendarDialog final : public QDialog
{
public:
    CalendarDialog(const QString& title, QDate day) : QDialog(QApplication::activeWindow())
    {
        setWindowTitle(title);
        calendar_ = new QCalendarWidget(this);
        calendar_->setObjectName("calendar");
        calendar_->setAccessibleName(title);
        calendar_->setSelectedDate(day);
        auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
        auto* column = new QVBoxLayout(this);
        column->addWidget(calendar_);
        column->addWidget(buttons);
        connect(calendar_, &QCalendarWidget::activated, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    }

    [[nodiscard]] QDate day() const { return calendar_->selectedDate(); }

private:
    QCalendarWidget* calendar_;
};

} // namespace

QStringList nameFilters(const std::string& filter)
{
    const QStringList pieces = toQString(filter).split('|');
    QStringList filters;
    for (qsizetype name = 0; name + 1 < pieces.size(); name += 2) {
        const QString pattern = "(" + pieces[name + 1] + ")";
        filters << (pieces[name].endsWith(pattern) ? pieces[name] : pieces[name] + " " + pattern);
    }
    return filters;
}

/// The tool itself asks about a file that is there.
std::optional<screen::SaveAnswer> QtServices::ShowSave(const std::string& filter,
                                                       const std::string& defaultExtension)
{
    Modal<QFileDialog> dialog(QApplication::activeWindow(), "Save");
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
    dialog->setNameFilters(nameFilters(filter));
    dialog->setDefaultSuffix(toQString(defaultExtension));
    QObject::connect(
        &*dialog, &QFileDialog::filterSelected, &*dialog,
        [&files = *dialog](const QString& entry) { files.setDefaultSuffix(extensionOf(entry)); });
    if (dialog.ask() != QDialog::Accepted || dialog->selectedFiles().isEmpty())
        return std::nullopt;
    const auto entry = dialog->nameFilters().indexOf(dialog->selectedNameFilter());
    return screen::SaveAnswer{dialog->selectedFiles().front().toStdString(),
                              static_cast<std::int32_t>(entry) + 1};
}

screen::MsgBoxAnswer QtServices::MsgBox(const screen::MsgBoxRequest& request)
{
    const bool isQuestion = request.buttons == screen::MsgBoxButtons::YesNo;
    Modal<QMessageBox> box(iconOf(request.icon), toQString(request.title), toLines(request.prompt),
                           isQuestion ? QMessageBox::Yes | QMessageBox::No
                                      : QMessageBox::StandardButtons(QMessageBox::Ok),
                           QApplication::activeWindow());
    box->setTextFormat(Qt::PlainText);
    const int answer = box.ask();
    if (!isQuestion)
        return screen::MsgBoxAnswer::OK;
    return answer == QMessageBox::Yes ? screen::MsgBoxAnswer::Yes : screen::MsgBoxAnswer::No;
}

std::optional<Date> QtServices::PickDate(const std::string& title, Date date, std::int32_t /*x*/,
                                         std::int32_t /*y*/, std::int32_t /*owner*/)
{
    Modal<CalendarDialog> dialog(toQString(title), dayOf(date));
    if (dialog.ask() != QDialog::Accepted)
        return std::nullopt;
    const QDate day = dialog->day();
    return makeDate(day.year(), day.month(), day.day());
}

void QtServices::OpenDocument(const std::string& path, std::int32_t /*operation*/,
                              std::int32_t /*ownerWindow*/, std::int32_t /*folder*/,
                              std::int32_t /*showCommand*/)
{
    if (!QFileInfo::exists(toQString(path)))
        throw Error(errors::kFileNotFound);
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(toQString(path))))
        throw Error(errors::kAutomation, "No program opens " + path);
}

} // namespace k7deval::qt
