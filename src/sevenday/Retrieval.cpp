#include "foundation/TextFunctions.h"
#include "foundation/UtilityFunctions.h"
#include "sevenday/DriftTest.h"
#include "sevenday/NumberedLine.h"

#include <utility>

namespace k7deval
{

/// The records of the interval, by what was injected, in the order of the collection.
struct DriftTest::InjectionRecords {
    DIRecordList colZeroRecords;
    DIRecordList colUpscaleRecords;
};

namespace
{

/// Sorts the keys ascending by insertion.
Array<std::string> sortedKeys(const std::vector<std::string>& keys)
{
    Array<std::string> sorted;
    sorted.resizeKeeping(static_cast<std::int32_t>(keys.size()) - 1);
    sorted[0] = keys[0];
    for (std::int32_t i = 1; i <= SafeUBound(sorted); ++i) {
        const std::string& key = keys[static_cast<std::size_t>(i)];
        std::int32_t place = i;
        if (!(key > sorted[i - 1])) {
            // The bottom is not looked out for on the first pass: a second key below the first
            // reaches under the array and ends the retrieval, which leaves the earlier runs in
            // force.
            do {
                sorted[place] = sorted[place - 1];
                --place;
            } while ((place > 0 || i == 1) && key < sorted[place - 1]);
        }
        sorted[place] = key;
    }
    return sorted;
}

std::shared_ptr<RunMap> inOrderOfTime(RunMap runs)
{
    if (runs.Count() <= 1)
        return std::make_shared<RunMap>(std::move(runs));
    auto ordered = std::make_shared<RunMap>();
    const Array<std::string> keys = sortedKeys(runs.Keys());
    for (const std::string& key : keys.items())
        ordered->Add(key, runs.Item(key));
    return ordered;
}

} // namespace

void DriftTest::RetrieveCals()
{
    runPosting(irm, NumberedLine::RetrieveCals, [this] {
        const InjectionRecords records = recordsOfInterval();
        findOperatingTime(records);
        RunMap runs;
        addZeroRuns(records, runs);
        addUpscaleInjections(records, runs);
        dictCals = inOrderOfTime(std::move(runs));
    });
}

DriftTest::InjectionRecords DriftTest::recordsOfInterval()
{
    RangeRecordQuery query;
    query.siteKey = present(present(DIServer).SiteInfo()).SiteKey();
    query.start = dtStart;
    query.end = dtEnd;
    query.pid = lngAnalyzedPID;
    query.scale = strAnalyzedScale;
    query.tables = kCalibrationTables;

    InjectionRecords records;
    for (const auto& record : present(DIServer->RecordStore()).ReadRangeRecords(query)) {
        if (present(record).Scale() != strAnalyzedScale)
            continue;
        const std::int32_t gasLevel = record->GasLevelCode();
        if (gasLevel == 0)
            records.colZeroRecords.push_back(record);
        else if (gasLevel == 1 || gasLevel == 2)
            records.colUpscaleRecords.push_back(record);
    }
    return records;
}

void DriftTest::findOperatingTime(const InjectionRecords& records)
{
    const auto operatingTimeOf = [this](PID pid) {
        const auto parameter = present(DIServer->Parameters()).Item(pid, -1);
        return integerIn(present(parameter).GetLinkedPID(attribute::kOperatingTimePID), *regional_);
    };
    lngOpTimePID = operatingTimeOf(UnitPID(lngAnalyzedPID));

    // The operating time of what the analyzer is linked to, a stack say, wins over the unit's own.
    const PID lngStackPID = linkedObject(records);
    if (!present(DIServer->Parameters()).Exists(lngStackPID))
        return;
    const PID lngCandidate = operatingTimeOf(lngStackPID);
    if (lngCandidate != 0 && present(DIServer->Parameters()).Exists(lngCandidate))
        lngOpTimePID = lngCandidate;
}

PID DriftTest::linkedObject(const InjectionRecords& records)
{
    const DIRecordList& source =
        records.colUpscaleRecords.empty() ? records.colZeroRecords : records.colUpscaleRecords;
    if (source.empty())
        return 0;
    const PID sourceTag = integerIn(source.front()->SourceTagID(), *regional_);
    const auto parameter = present(DIServer->Parameters()).Item(sourceTag, -1);
    return integerIn(present(parameter).GetLinkedPID(attribute::kLinkedObjectPID), *regional_);
}

std::shared_ptr<cls7DayAnalyzerCal> DriftTest::newRun(DIRecord& record) const
{
    auto run = std::make_shared<cls7DayAnalyzerCal>();
    run->CalTime = record.RunTime();
    run->InstrumentSpan = singleIn(record.Span(), *regional_);
    run->IsOnline = record.CalStatus() != status::kOfflineCalibration;
    run->ManualCal = booleanIn(record.Manual(), *regional_);
    return run;
}

std::shared_ptr<clsStrippedCal> DriftTest::newInjection(DIRecord& record) const
{
    auto injection = std::make_shared<clsStrippedCal>();
    injection->MeasuredValue = singleIn(record.MeasuredValue(), *regional_);
    injection->ReferenceValue = singleIn(record.ReferenceValue(), *regional_);
    injection->GasLevel = upperCase(record.GasLevelText());
    const Date end = record.InjectionEnd();
    injection->InjectionEndTime = IsNoDate(end) ? record.RunTime() : end;
    return injection;
}

void DriftTest::addZeroRuns(const InjectionRecords& records, RunMap& runs) const
{
    for (const auto& record : records.colZeroRecords) {
        const auto run = newRun(*record);
        run->ZeroCal = newInjection(*record);
        // The first zero injection of a minute wins.
        const std::string key = minuteKey(run->CalTime);
        if (!runs.Exists(key))
            runs.Add(key, run);
    }
}

void DriftTest::addUpscaleInjections(const InjectionRecords& records, RunMap& runs) const
{
    for (const auto& record : records.colUpscaleRecords) {
        const auto injection = newInjection(*record);
        const std::string key = minuteKey(record->RunTime());
        if (runs.Exists(key)) {
            // The first upscale injection of a minute wins; the run keeps the flags of its zero
            // record.
            cls7DayAnalyzerCal& run = *runs.Item(key);
            if (!run.SpanCal)
                run.SpanCal = injection;
            continue;
        }
        const auto run = newRun(*record);
        run->SpanCal = injection;
        run->UseZeroCal = blnUseZeroCals;
        runs.Add(key, run);
    }
}

} // namespace k7deval
