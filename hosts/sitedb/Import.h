#pragma once

#include "foundation/Date.h"
#include "sitedb/SiteDatabase.h"
#include "sitedb/read/ImportError.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

/// Importers of US EPA's files. An import takes all of a file in one transaction or leaves the site
/// as it was.
namespace k7deval::sitedb
{

/// What a file is, as far as that can be told before it is imported.
struct FileKind {
    std::string format; ///< As in the report of its import.
    /// A monitoring plan or table of spans: other files may need the units and analyzers in it.
    bool bringsUnits = false;
    bool takesUnit = false;      ///< ImportOptions::unit is asked for or has a meaning.
    bool needsUnit = false;      ///< ... and can't be left out.
    bool takesComponent = false; ///< ImportOptions::component has a meaning.

    friend bool operator==(const FileKind&, const FileKind&) = default;
};

/// How far the import of a file is.
struct ImportProgress {
    std::int64_t bytesRead = 0; ///< Of the file as it lies on the disk.
    std::int64_t bytesTotal = 0;
    std::size_t hours = 0; ///< Taken so far.
};

struct ImportOptions {
    /// The unit that hours of a table belong to, made when the site doesn't have it; the one
    /// location to take from a table of the spans of locations, empty: all.
    std::string unit;
    /// The component that measured the hours of a table, where the unit has several for the gas.
    std::string component;
    /// Leaves out the single injections of a QA or emissions file that can't be read, and of an
    /// emissions file also those that the site holds already, and takes all else.
    bool leaveOutUnreadable = false;
    /// The time of the import for the log; the zero date: not recorded.
    Date time;
    /// Is told how far the import is: of an emissions file and an hourly table now and then, of any
    /// file while a long one is read, with 0 bytes, and before what was taken is kept for good.
    /// False ends the import with ImportCancelled, and nothing is taken.
    std::function<bool(const ImportProgress&)> progress;
};

struct ImportReport {
    std::string format;                   ///< What the file was taken for.
    std::vector<std::string> counts;      ///< "4 units", "17 spans", ...
    std::vector<std::string> steppedOver; ///< What the file holds that a site does not keep.
    std::vector<std::string> leftOut;     ///< Why injections were left out, a sentence each.
};

/// Tells what a file is from its content. Raises the ImportError of an import for a file that is
/// none of those that can be imported. However large the file is, its beginning is read, and of
/// JSON as much as tells the format.
FileKind kindOf(const std::filesystem::path& path);

/// Imports a file, plain or gzip, whose format is told from its content.
ImportReport importFile(SiteDatabase& site, const std::filesystem::path& path,
                        const ImportOptions& options);

} // namespace k7deval::sitedb
