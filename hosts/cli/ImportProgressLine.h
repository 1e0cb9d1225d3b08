#pragma once

#include "cli/Commands.h"
#include "sitedb/Import.h"

#include <cstdint>
#include <string>

namespace k7deval::cli
{

/// Tells, apart from the output, how far the import of a file is: on a terminal in one line that
/// rewrites itself and is gone at the end, elsewhere, and for large files only, with a line every
/// few seconds.
class ImportProgressLine
{
public:
    ImportProgressLine(std::string name, const Console& console);
    ImportProgressLine(const ImportProgressLine&) = delete;
    ImportProgressLine& operator=(const ImportProgressLine&) = delete;
    ~ImportProgressLine();

    void tell(const sitedb::ImportProgress& progress);

private:
    void rewrite(const std::string& text);

    std::string name_;
    const Console& console_;
    std::int64_t lastTold_; ///< Seconds, as the clock counts.
    std::int64_t percent_ = -1;
    std::size_t length_ = 0; ///< Of the line that stands there.
};

} // namespace k7deval::cli
