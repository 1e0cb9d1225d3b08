#pragma once

#include "foundation/Date.h"
#include "sitedb/Import.h"

#include <QObject>

#include <atomic>
#include <filesystem>
#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace k7deval::workbench
{

/// A file to import, and what the operator says about it.
struct ImportTask {
    std::filesystem::path file;
    std::string unit;
    std::string component;
};

struct ImportOrder {
    std::filesystem::path site; ///< Made when it is not there.
    std::vector<ImportTask> tasks;
    bool leaveOutUnreadable = false;
    Date time; ///< For the site's log.
};

/// What became of a file.
struct ImportOutcome {
    enum class Kind { Taken, Refused, Cancelled };
    Kind kind = Kind::Refused;
    sitedb::ImportReport report; ///< Of a file that was taken.
    std::string sentence;        ///< Why a file was refused.
};

/// What is told of an import, in the thread in which the job was made. Files go by their place in
/// the order.
struct ImportListener {
    std::function<void(std::size_t)> started;
    std::function<void(std::size_t, const sitedb::ImportProgress&)> progressed;
    std::function<void(std::size_t, const ImportOutcome&)> finished;
    /// All is done or cancelled, and the site is closed. A sentence when it could not be opened.
    std::function<void(const std::string&)> ended;
};

/// Takes files into a site, one after the other, in a thread and on a connection of its own. A file
/// that is refused does not hinder the next. A site that was made for it and got nothing is removed
/// again.
class ImportJob final : public QObject
{
public:
    /// Starts at once.
    ImportJob(ImportOrder order, ImportListener listener);
    ImportJob(const ImportJob&) = delete;
    ImportJob& operator=(const ImportJob&) = delete;
    /// Cancels and waits until the file under way is rolled back. Nobody is told of it any more.
    ~ImportJob() override;

    /// Asks for an end: nothing is taken of the file under way.
    void cancel() { isCancelled_ = true; }
    /// Cancels and waits until the site is closed.
    void finish();
    /// Whether a file was taken up to now.
    [[nodiscard]] bool hasTaken() const { return hasTaken_; }

private:
    void run();
    void takeAll();
    void take(sitedb::SiteDatabase& site, std::size_t index);
    [[nodiscard]] ImportOutcome outcomeOf(sitedb::SiteDatabase& site, std::size_t index);
    [[nodiscard]] bool tell(std::size_t index, const sitedb::ImportProgress& progress);
    /// Calls the listener in its thread, in the order of the calls.
    template <class Call> void post(Call call);

    ImportOrder order_;
    ImportListener listener_;
    std::atomic<bool> isCancelled_ = false;
    std::atomic<bool> hasTaken_ = false;
    /// The listener has not seen the progress that it was told last.
    std::atomic<bool> isBehind_ = false;
    std::thread thread_;
};

} // namespace k7deval::workbench
