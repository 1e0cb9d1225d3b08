#pragma once

#include "foundation/Clock.h"
#include "workbench/ImportJob.h"

#include <QDialog>

#include <memory>
#include <vector>

class QCheckBox;
class QDialogButtonBox;
class QLabel;
class QLayout;
class QProgressBar;
class QPushButton;

namespace k7deval::workbench
{

class ImportList;
class ImportReportView;

/// Takes EPA's files into a site, which is made when it is not there. The window stays alive
/// meanwhile. Closing the dialog, or its end, cancels the file under way and waits until nothing of
/// it is left in the site.
class ImportDialog final : public QDialog
{
public:
    /// The clock outlives the dialog.
    ImportDialog(QString sitePath, const Clock& clock, QWidget* parent);
    ImportDialog(const ImportDialog&) = delete;
    ImportDialog& operator=(const ImportDialog&) = delete;
    ~ImportDialog() override;

    /// Puts files on the list, those that bring units ahead of the others; of a file that can't be
    /// imported the report says why. During an import nothing is added.
    void addFiles(const QStringList& paths);
    /// Whether anything was taken since the dialog was opened, so that the site has to be read
    /// anew.
    [[nodiscard]] bool hasTaken() const;

    void done(int result) override;

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    QLayout* makeFiles();
    QLayout* makeLeaveOut();
    QLayout* makeReport();
    QLayout* makeProgress();
    void makeButtons();

    void askForFiles();
    void readUnits();
    void start();
    void cancel();
    [[nodiscard]] ImportListener listener();
    void showStart(int row);
    void showProgress(int row, const sitedb::ImportProgress& progress);
    void showOutcome(int row, const ImportOutcome& outcome);
    void showEnd(const std::string& failure);
    void showWhatCanBeDone();

    QString sitePath_;
    const Clock* clock_;
    // In the order of the tabulator.
    ImportList* files_;
    QPushButton* add_;
    QPushButton* remove_;
    QCheckBox* leaveOut_;
    ImportReportView* report_;
    QLabel* status_;
    QProgressBar* bar_;
    QPushButton* cancel_;
    QPushButton* import_ = nullptr;
    QDialogButtonBox* buttons_;

    std::vector<int> rows_; ///< Of the files of the job.
    std::vector<ImportOutcome::Kind> outcomes_;
    bool isImporting_ = false;
    bool hasTaken_ = false; ///< In an earlier job.
    std::unique_ptr<ImportJob> job_;
};

} // namespace k7deval::workbench
