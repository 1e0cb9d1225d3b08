#pragma once

#include "sitedb/Import.h"
#include "sitedb/read/SourceFile.h"
#include "sitedb/sql/Connection.h"

#include <cstddef>
#include <set>
#include <span>
#include <string>

/// The importers: one row for each format, and what every importer gets and gives back. Whoever
/// calls an importer owns the transaction, the log and the end of the progress.
namespace k7deval::sitedb
{

/// What an importer works with.
struct ImportTask {
    sql::Connection& connection;
    SourceFile& file; ///< With its content, unless the importer reads it as a stream.
    const ImportOptions& options;
};

/// What an importer took of a file.
struct Taken {
    ImportReport report; ///< Without the format.
    std::size_t hours = 0;
    bool isNothing = false; ///< The file holds nothing for the site and leaves no trace in it.
};

/// How the beginning of a file tells its format: by the columns of a table, all of them in its
/// header, or by the top-level names of a JSON object, of which one is enough.
struct Recognition {
    enum class Form { Table, Json };
    Form form = Form::Table;
    std::set<std::string> names;
};

struct Importer {
    FileKind kind; ///< What the format is called and what its import asks for.
    Recognition recognition;
    Taken (*take)(const ImportTask&) = nullptr;
    bool readsAsStream = false; ///< A file of any size, which is not held in memory.
    bool mayComeAgain = false;  ///< The same file may be imported once more, for another location.
};

/// All importers. Of two that recognise a file the first takes it.
std::span<const Importer> importers();

/// The importer of a file, told by its beginning. A JSON object with none of the names goes to the
/// first importer of JSON, which then says what is missing. Raises ImportError for a file that none
/// takes.
const Importer& importerOf(const SourceFile& file);

} // namespace k7deval::sitedb
