#include "sitedb/SiteQueries.h"

namespace k7deval::sitedb::test
{

DIRecordList allRecords(const SiteDatabase& site, PID measured, const std::string& scale)
{
    return recordsBetween(site, measured, scale, makeDate(1900, 1, 1), makeDate(2199, 12, 31));
}

DIRecordList recordsBetween(const SiteDatabase& site, PID measured, const std::string& scale,
                            Date start, Date end)
{
    const auto server = site.server();
    RangeRecordQuery query;
    query.siteKey = server->SiteInfo()->SiteKey();
    query.start = start;
    query.end = end;
    query.pid = measured;
    query.scale = scale;
    query.tables = "K7CAL,K7PMCAL,K7PS9SINGLEINJCALCHK,K7PS9TRIPLEINJCALCHK";
    return server->RecordStore()->ReadRangeRecords(query);
}

DIRecordList recordsOf(const SiteDatabase& site, PID pid, const std::string& table)
{
    const auto server = site.server();
    RecordQuery query;
    query.siteKey = server->SiteKey();
    query.pid = pid;
    query.table = table;
    return server->RecordStore()->ReadRecords(query);
}

std::shared_ptr<DIParameter> parameter(const SiteDatabase& site, PID pid)
{
    return site.server()->Parameters()->Item(pid, -1);
}

Variant attributeOf(const SiteDatabase& site, PID pid, std::int32_t id)
{
    return parameter(site, pid)->GetAttribute(id);
}

std::vector<PID> pidsOf(const DIParameterList& list)
{
    std::vector<PID> pids;
    pids.reserve(list.size());
    for (const auto& entry : list)
        pids.push_back(entry->PID());
    return pids;
}

} // namespace k7deval::sitedb::test
