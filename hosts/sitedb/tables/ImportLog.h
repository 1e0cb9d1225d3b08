#pragma once

#include "foundation/Date.h"
#include "sitedb/sql/Connection.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace k7deval::sitedb
{

/// What the log keeps of a file that was imported.
struct ImportLogEntry {
    std::string fileName;
    std::string format;
    std::int64_t size = 0; ///< Of the file as it lay on the disk.
    std::int64_t crc = 0;  ///< CRC-32 of the same.
    Date time;             ///< Of the import; the zero date: not recorded.
    std::vector<std::string> counts;
};

/// Which files were imported into a site. The caller holds the transaction.
class ImportLog
{
public:
    explicit ImportLog(sql::Connection& connection) : connection_(connection) {}

    /// Whether a file of this size was imported; if not, a file of the size is certainly new.
    [[nodiscard]] bool holdsSize(std::int64_t size);
    /// The name under which a file of this size and check sum was imported, or nothing.
    [[nodiscard]] std::optional<std::string> nameOf(std::int64_t size, std::int64_t crc);
    void add(const ImportLogEntry& entry);

private:
    sql::Connection& connection_;
};

} // namespace k7deval::sitedb
