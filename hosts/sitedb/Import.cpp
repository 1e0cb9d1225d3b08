#include "sitedb/Import.h"

#include "sitedb/formats/ImportSteps.h"
#include "sitedb/tables/ImportLog.h"

#include <utility>

namespace k7deval::sitedb
{

namespace
{

constexpr std::int64_t kBytesBetweenSigns = std::int64_t{1} << 20U;

/// Lets the operator cancel while a file is read from which nothing is taken yet.
OnBytesRead signOfLife(const ImportTask& task)
{
    return [&task, next = kBytesBetweenSigns](std::int64_t bytesRead) mutable {
        if (bytesRead < next)
            return;
        next = bytesRead + kBytesBetweenSigns;
        tellProgress(task, 0, 0);
    };
}

// The check sum is taken on the way when a file is read, and ahead of it only for a file that has
// the size of one that was imported.
void checkIsNew(ImportLog& log, const ImportTask& task)
{
    const SourceFile& file = task.file;
    if (!log.holdsSize(file.size))
        return;
    if (const auto name = log.nameOf(file.size, checkSumOf(file, signOfLife(task))))
        throw file.error("", "the site has imported this file before, as " + *name);
}

ImportLogEntry logEntry(const ImportTask& task, const ImportReport& report)
{
    return {task.file.name,        report.format,     task.file.size,
            task.file.crc.value(), task.options.time, report.counts};
}

} // namespace

FileKind kindOf(const std::filesystem::path& path)
{
    return importerOf(findSourceFile(path)).kind;
}

ImportReport importFile(SiteDatabase& site, const std::filesystem::path& path,
                        const ImportOptions& options)
{
    SourceFile file = findSourceFile(path);
    const Importer& importer = importerOf(file);
    const ImportTask task{site.connection(), file, options};
    sql::Transaction transaction(task.connection);
    ImportLog log(task.connection);
    if (!importer.mayComeAgain)
        checkIsNew(log, task);
    if (!importer.readsAsStream)
        readContent(file, signOfLife(task));
    Taken taken = importer.take(task);
    taken.report.format = importer.kind.format;
    tellProgress(task, file.size, taken.hours);
    if (!taken.isNothing) {
        log.add(logEntry(task, taken.report));
        transaction.commit();
    }
    return std::move(taken.report);
}

} // namespace k7deval::sitedb
