#include "latebound/Records.h"

namespace k7deval::latebound
{

DIRecordList RecordStore::ReadRangeRecords(const RangeRecordQuery& query)
{
    return object_.list<Record, DIRecord>(
        "ReadRangeRecords",
        {query.siteKey, query.argument2, query.start, query.end, query.argument5, query.pid,
         query.argument7, query.argument8, query.scale, query.argument10, query.tables,
         query.argument12, query.argument13, query.argument14});
}

DIRecordList RecordStore::ReadRecords(const RecordQuery& query)
{
    return object_.optionalItems<Record, DIRecord>(
        "ReadRecords", {query.siteKey, query.argument2, query.argument3, query.argument4,
                        query.argument5, query.argument6, query.pid, query.argument8,
                        query.argument9, query.argument10, query.table});
}

} // namespace k7deval::latebound
