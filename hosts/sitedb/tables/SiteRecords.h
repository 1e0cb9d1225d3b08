#pragma once

#include "foundation/DataInterface.h"
#include "sitedb/sql/Connection.h"

#include <memory>
#include <string>

namespace k7deval::sitedb
{

/// The calibration records of a site. They come in the order of their run times, of one minute the
/// zero gas first.
class SiteRecords final : public DIRecordStore
{
public:
    SiteRecords(std::shared_ptr<sql::Connection> connection, std::string siteKey);

    /// start and end belong to the range. Error 5 for the key of another site.
    [[nodiscard]] DIRecordList ReadRangeRecords(const RangeRecordQuery& query) override;
    /// Error 5 for the key of another site.
    [[nodiscard]] DIRecordList ReadRecords(const RecordQuery& query) override;

private:
    std::shared_ptr<sql::Connection> connection_;
    std::string siteKey_;
};

/// Error 5 unless the key is this site's own.
void checkSiteKey(const std::string& siteKey, const std::string& asked);

} // namespace k7deval::sitedb
