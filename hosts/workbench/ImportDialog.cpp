#include "workbench/ImportDialog.h"

#include "foundation/FileFunctions.h"
#include "qt/Texts.h"
#include "workbench/DroppedFiles.h"
#include "workbench/ImportList.h"
#include "workbench/ImportReportView.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace k7deval::workbench
{

namespace
{

constexpr int kWholeBar = 1000;
constexpr int kLettersWide = 95;
constexpr int kLinesHigh = 34;

constexpr const char* kWhatLeaveOutDoes =
    "Unchecked, a file is refused as a whole if one of its calibration injections can't be read. "
    "Checked, the file is taken without such injections, and the report lists them. Of an "
    "emissions file those that the site has already are left out too.";

/// "1 file", "2 files".
QString countedFiles(std::ptrdiff_t count)
{
    return QString::number(count) + (count == 1 ? " file" : " files");
}

QString sizeText(std::int64_t bytes)
{
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

/// The units of a site; none of one that can't be read, which its import will tell.
QStringList unitsOf(const QString& sitePath)
{
    QStringList units;
    try {
        const auto site =
            sitedb::SiteDatabase::open(sitePath.toStdString(), sitedb::OpenMode::ReadOnly);
        for (const auto& power : site.unitPowers())
            units << qt::toQString(power.unit);
    } catch (const Error&) {
        return {};
    }
    return units;
}

} // namespace

ImportDialog::ImportDialog(QString sitePath, const Clock& clock, QWidget* parent)
    : QDialog(parent), sitePath_(std::move(sitePath)), clock_(&clock), files_(new ImportList(this)),
      add_(new QPushButton("&Add Files...", this)), remove_(new QPushButton("&Remove", this)),
      leaveOut_(new QCheckBox("&Leave out single injections that can't be read", this)),
      report_(new ImportReportView(this)), status_(new QLabel(this)), bar_(new QProgressBar(this)),
      cancel_(new QPushButton("Cancel", this)), buttons_(new QDialogButtonBox(this))
{
    setWindowTitle("Import");
    setAcceptDrops(true);
    auto* column = new QVBoxLayout(this);
    column->addLayout(makeFiles(), 1);
    column->addLayout(makeLeaveOut());
    column->addLayout(makeReport(), 1);
    column->addLayout(makeProgress());
    column->addWidget(buttons_);
    makeButtons();
    const QFontMetrics letters = fontMetrics();
    resize(QSize(letters.averageCharWidth() * kLettersWide, letters.lineSpacing() * kLinesHigh)
               .boundedTo(screen()->availableGeometry().size()));
    readUnits();
    showWhatCanBeDone();
    add_->setFocus();
}

/// The job ends before what it tells of.
ImportDialog::~ImportDialog()
{
    job_.reset();
}

QLayout* ImportDialog::makeFiles()
{
    const QString site = QFileInfo(sitePath_).fileName();
    auto* heading =
        new QLabel(qt::withMnemonic("Files to import into " + site.toStdString() + ":", 'F'), this);
    heading->setBuddy(files_);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(add_);
    buttons->addWidget(remove_);
    buttons->addStretch();
    auto* column = new QVBoxLayout;
    column->addWidget(heading);
    column->addWidget(files_, 1);
    column->addLayout(buttons);
    return column;
}

/// The words stand under the text of the box.
QLayout* ImportDialog::makeLeaveOut()
{
    auto* words = new QLabel(kWhatLeaveOutDoes, this);
    words->setWordWrap(true);
    leaveOut_->setObjectName("leaveOut");
    leaveOut_->setAccessibleDescription(kWhatLeaveOutDoes);
    auto* column = new QVBoxLayout;
    column->addWidget(leaveOut_);
    auto* line = new QHBoxLayout;
    line->addSpacing(style()->pixelMetric(QStyle::PM_IndicatorWidth) +
                     style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing));
    line->addWidget(words, 1);
    column->addLayout(line);
    return column;
}

QLayout* ImportDialog::makeReport()
{
    auto* heading = new QLabel("Re&port:", this);
    heading->setBuddy(report_);
    auto* column = new QVBoxLayout;
    column->addWidget(heading);
    column->addWidget(report_, 1);
    return column;
}

QLayout* ImportDialog::makeProgress()
{
    status_->setObjectName("status");
    status_->setTextFormat(Qt::PlainText);
    status_->setWordWrap(true);
    bar_->setObjectName("progress");
    bar_->setAccessibleName("Progress of the file");
    bar_->setRange(0, kWholeBar);
    cancel_->setObjectName("cancel");
    cancel_->setAutoDefault(false);
    connect(cancel_, &QPushButton::clicked, this, [this] { cancel(); });
    auto* line = new QHBoxLayout;
    line->addWidget(bar_, 1);
    line->addWidget(cancel_);
    auto* column = new QVBoxLayout;
    column->addWidget(status_);
    column->addLayout(line);
    return column;
}

void ImportDialog::makeButtons()
{
    add_->setObjectName("add");
    add_->setAutoDefault(false);
    connect(add_, &QPushButton::clicked, this, [this] { askForFiles(); });
    remove_->setObjectName("remove");
    remove_->setAutoDefault(false);
    connect(remove_, &QPushButton::clicked, this, [this] {
        files_->removeSelected();
        showWhatCanBeDone();
    });
    connect(files_, &QTableWidget::itemSelectionChanged, this, [this] { showWhatCanBeDone(); });

    import_ = buttons_->addButton("&Import", QDialogButtonBox::ActionRole);
    import_->setObjectName("import");
    import_->setDefault(true);
    connect(import_, &QPushButton::clicked, this, [this] { start(); });
    QPushButton* close = buttons_->addButton("Close", QDialogButtonBox::RejectRole);
    close->setObjectName("close");
    close->setAutoDefault(false);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void ImportDialog::askForFiles()
{
    addFiles(QFileDialog::getOpenFileNames(
        this, "Add Files", {}, "EPA files (*.json *.csv *.json.gz *.csv.gz);;All files (*)"));
}

void ImportDialog::addFiles(const QStringList& paths)
{
    if (isImporting_)
        return;
    std::vector<ImportList::File> known;
    for (const auto& given : paths) {
        const QString path = QDir::cleanPath(QFileInfo(given).absoluteFilePath());
        if (files_->holds(path))
            continue;
        try {
            known.push_back({path, sitedb::kindOf(filePath(path.toStdString()))});
        } catch (const Error& error) {
            report_->tell("Not added: " + QFileInfo(path).fileName(),
                          {qt::toQString(error.description())});
        }
    }
    files_->add(std::move(known));
    showWhatCanBeDone();
}

void ImportDialog::readUnits()
{
    files_->setUnits(unitsOf(sitePath_));
}

bool ImportDialog::hasTaken() const
{
    return hasTaken_ || (job_ && job_->hasTaken());
}

void ImportDialog::start()
{
    rows_ = files_->openRows();
    if (isImporting_ || rows_.empty())
        return;
    ImportOrder order;
    order.site = filePath(sitePath_.toStdString());
    order.leaveOutUnreadable = leaveOut_->isChecked();
    order.time = clock_->now();
    for (const int row : rows_) {
        files_->setState(row, ImportList::State::Waiting);
        order.tasks.push_back(files_->task(row));
    }
    outcomes_.clear();
    hasTaken_ = hasTaken();
    isImporting_ = true;
    showWhatCanBeDone();
    cancel_->setFocus();
    job_ = std::make_unique<ImportJob>(std::move(order), listener());
}

void ImportDialog::cancel()
{
    if (job_)
        job_->cancel();
    cancel_->setEnabled(false);
}

ImportListener ImportDialog::listener()
{
    return {[this](std::size_t index) { showStart(rows_[index]); },
            [this](std::size_t index, const sitedb::ImportProgress& progress) {
                showProgress(rows_[index], progress);
            },
            [this](std::size_t index, const ImportOutcome& outcome) {
                showOutcome(rows_[index], outcome);
            },
            [this](const std::string& failure) { showEnd(failure); }};
}

void ImportDialog::showStart(int row)
{
    files_->setState(row, ImportList::State::Importing);
    files_->scrollToItem(files_->item(row, 0));
    bar_->setValue(0);
    status_->setText(files_->fileName(row));
}

void ImportDialog::showProgress(int row, const sitedb::ImportProgress& progress)
{
    QString text = files_->fileName(row) + ": " + sizeText(progress.bytesRead) + " of " +
                   sizeText(progress.bytesTotal);
    if (progress.hours > 0)
        text += ", " + QLocale().toString(static_cast<qulonglong>(progress.hours)) +
                (progress.hours == 1 ? " hour" : " hours");
    status_->setText(text);
    if (progress.bytesTotal > 0)
        bar_->setValue(static_cast<int>(progress.bytesRead * kWholeBar / progress.bytesTotal));
}

void ImportDialog::showOutcome(int row, const ImportOutcome& outcome)
{
    switch (outcome.kind) {
    case ImportOutcome::Kind::Taken:
        files_->setState(row, ImportList::State::Taken);
        break;
    case ImportOutcome::Kind::Refused:
        files_->setState(row, ImportList::State::Refused);
        break;
    case ImportOutcome::Kind::Cancelled:
        files_->setState(row, ImportList::State::Cancelled);
        break;
    }
    outcomes_.push_back(outcome.kind);
    report_->tell(files_->fileName(row), files_->format(row), outcome);
}

void ImportDialog::showEnd(const std::string& failure)
{
    const auto count = [this](ImportOutcome::Kind kind) {
        return std::count(outcomes_.begin(), outcomes_.end(), kind);
    };
    QString text = countedFiles(count(ImportOutcome::Kind::Taken)) + " taken";
    if (const auto refused = count(ImportOutcome::Kind::Refused); refused > 0)
        text += ", " + QString::number(refused) + " refused";
    if (outcomes_.size() < rows_.size() || count(ImportOutcome::Kind::Cancelled) > 0)
        text += failure.empty() ? ", then cancelled" : ", the site can't be used";
    status_->setText(text + ".");
    if (!failure.empty())
        report_->tell("Refused, nothing was taken", {qt::toQString(failure)});
    isImporting_ = false;
    readUnits();
    showWhatCanBeDone();
    report_->setFocus();
}

void ImportDialog::showWhatCanBeDone()
{
    files_->setEditable(!isImporting_);
    add_->setEnabled(!isImporting_);
    remove_->setEnabled(!isImporting_ && files_->selectionModel()->hasSelection());
    leaveOut_->setEnabled(!isImporting_);
    import_->setEnabled(!isImporting_ && !files_->openRows().empty());
    bar_->setVisible(isImporting_);
    cancel_->setVisible(isImporting_);
    cancel_->setEnabled(isImporting_);
}

void ImportDialog::done(int result)
{
    if (job_)
        job_->finish();
    QDialog::done(result);
}

void ImportDialog::dragEnterEvent(QDragEnterEvent* event)
{
    if (!isImporting_ && !droppedFiles(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void ImportDialog::dropEvent(QDropEvent* event)
{
    addFiles(droppedFiles(*event->mimeData()));
    event->acceptProposedAction();
}

} // namespace k7deval::workbench
