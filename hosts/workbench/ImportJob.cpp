#include "workbench/ImportJob.h"

#include "sitedb/NewSite.h"

#include <QMetaObject>

#include <utility>

namespace k7deval::workbench
{

ImportJob::ImportJob(ImportOrder order, ImportListener listener)
    : order_(std::move(order)), listener_(std::move(listener)), thread_([this] { run(); })
{
}

ImportJob::~ImportJob()
{
    finish();
}

void ImportJob::finish()
{
    cancel();
    if (thread_.joinable())
        thread_.join();
}

template <class Call> void ImportJob::post(Call call)
{
    QMetaObject::invokeMethod(this, std::move(call), Qt::QueuedConnection);
}

void ImportJob::run()
{
    std::string failure;
    try {
        takeAll();
    } catch (...) {
        failure = errorInFlight().description();
    }
    post([this, failure] { listener_.ended(failure); });
}

void ImportJob::takeAll()
{
    sitedb::NewSite newSite(order_.site);
    auto site = sitedb::SiteDatabase::open(order_.site, sitedb::OpenMode::ReadWrite);
    for (std::size_t index = 0; index < order_.tasks.size() && !isCancelled_; ++index) {
        take(site, index);
        if (hasTaken_)
            newSite.keep();
    }
}

void ImportJob::take(sitedb::SiteDatabase& site, std::size_t index)
{
    post([this, index] { listener_.started(index); });
    const ImportOutcome outcome = outcomeOf(site, index);
    if (outcome.kind == ImportOutcome::Kind::Taken)
        hasTaken_ = true;
    post([this, index, outcome] { listener_.finished(index, outcome); });
}

ImportOutcome ImportJob::outcomeOf(sitedb::SiteDatabase& site, std::size_t index)
{
    const ImportTask& task = order_.tasks[index];
    sitedb::ImportOptions options;
    options.unit = task.unit;
    options.component = task.component;
    options.leaveOutUnreadable = order_.leaveOutUnreadable;
    options.time = order_.time;
    options.progress = [this, index](const sitedb::ImportProgress& progress) {
        return tell(index, progress);
    };
    ImportOutcome outcome;
    try {
        outcome.report = sitedb::importFile(site, task.file, options);
        outcome.kind = ImportOutcome::Kind::Taken;
    } catch (const sitedb::ImportCancelled&) {
        outcome.kind = ImportOutcome::Kind::Cancelled;
    } catch (...) {
        outcome.sentence = errorInFlight().description();
    }
    return outcome;
}

// Progress is told far more often than it can be shown: what the listener would see late is left
// out.
bool ImportJob::tell(std::size_t index, const sitedb::ImportProgress& progress)
{
    if (!isBehind_.exchange(true)) {
        post([this, index, progress] {
            isBehind_ = false;
            listener_.progressed(index, progress);
        });
    }
    return !isCancelled_;
}

} // namespace k7deval::workbench
