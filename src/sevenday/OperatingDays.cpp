#include "foundation/UtilityFunctions.h"
#include "sevenday/DriftTest.h"
#include "sevenday/NumberedLine.h"

namespace k7deval
{

void DriftTest::AnalyzeOperatingDays()
{
    runPosting(irm, NumberedLine::AnalyzeOperatingDays, [this] {
        DIDataSet hours;
        hours.Init(dtStart, static_cast<std::int32_t>(hourBoundariesBetween(dtStart, dtEnd)) + 1,
                   "h", 1, 0);
        if (!present(present(DIServer).Parameters()).Exists(lngOpTimePID)) {
            addUndeterminedDays(hours);
            return;
        }
        const auto operatingTime = present(DIServer->Parameters()).Item(lngOpTimePID, -1);
        present(operatingTime).ReadData(hours);
        addDaysByHour(hours);
    });
}

void DriftTest::addUndeterminedDays(const DIDataSet& hours)
{
    for (Date t = hours.StartTime(); t < hours.EndTime(); t = DateAddExact("h", kHoursPerDay, t)) {
        const auto day = std::make_shared<clsDaySummary>();
        day->TStamp = t;
        day->OpStatusIsUndetermined = true;
        dictDays.Add(dayKey(t), day);
    }
}

void DriftTest::addDaysByHour(DIDataSet& hours)
{
    bool blnUndetermined = false;
    Date t = hours.StartTime();
    for (std::int32_t hour = 1; hour <= hours.Count(); ++hour) {
        if (dateParts(t).hour == 0)
            blnUndetermined = false;
        const Variant value = hours.ItemByTime(t).Value();
        const bool blnOperated = !isNull(value) && doubleIn(value, *regional_) > 0;
        blnUndetermined = blnUndetermined || isNull(value);
        addHour(t, blnOperated, blnUndetermined);
        t = DateAddExact("h", 1, t);
    }
}

void DriftTest::addHour(Date hour, bool operated, bool undetermined)
{
    const std::string key = dayKey(hour);
    if (!dictDays.Exists(key)) {
        const auto day = std::make_shared<clsDaySummary>();
        day->TStamp = dateOnly(hour);
        dictDays.Add(key, day);
    }
    clsDaySummary& day = *dictDays.Item(key);
    day.OpStatusIsUndetermined = day.OpStatusIsUndetermined || undetermined;
    day.SetIsOpDay(day.IsOpDay() || operated);
}

} // namespace k7deval
