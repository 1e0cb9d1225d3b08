#include "sevenday/DriftTestData.h"

#include "foundation/UtilityFunctions.h"

#include <algorithm>
#include <cctype>
#include <sstream>
#include <stdexcept>

namespace k7deval::test
{

namespace
{

constexpr int kHoursPerDay = 24;
constexpr int kHourWithoutData = 13;
constexpr float kReference = 100;
constexpr float kLimit = 1;

ParameterData parameter(PID pid)
{
    ParameterData data;
    data.pid = pid;
    return data;
}

std::vector<std::optional<double>> hoursOf(const model::Day& day)
{
    std::vector<std::optional<double>> hours(kHoursPerDay, day.operated ? 1.0 : 0.0);
    if (day.undetermined)
        hours[kHourWithoutData] = std::nullopt;
    return hours;
}

RecordData recordAt(Date runTime, std::int32_t gasLevelCode, float reference)
{
    RecordData record;
    record.pid = kDriftAnalyzer;
    record.runTime = runTime;
    record.gasLevelCode = gasLevelCode;
    record.gasLevelText = gasLevelCode == 0 ? "zero" : "high";
    record.reference = reference;
    record.measured = reference;
    record.span = 200.0F;
    record.sourceTag = kDriftSource;
    return record;
}

model::Run runOf(char kind, char result)
{
    model::Run run;
    run.online = std::isupper(static_cast<unsigned char>(kind)) != 0;
    run.manual = kind == 'M' || kind == 'm';
    run.passes = result == '+';
    return run;
}

bool isGroupOfRuns(std::string_view word)
{
    return word.find_first_of("+-") != std::string_view::npos;
}

model::Day groupOf(std::string_view word)
{
    model::Day day;
    day.operated = word.front() == '!';
    day.undetermined = word.front() == '?';
    if (day.operated || day.undetermined)
        word.remove_prefix(1);
    for (std::size_t i = 0; i + 1 < word.size(); i += 2)
        day.runs.push_back(runOf(word[i], word[i + 1]));
    return day;
}

} // namespace

Date onDay(int day, int hour, int minute, int second)
{
    return makeDate(2024, 3, 10 + day, hour, minute, second);
}

DriftRig::DriftRig()
{
    for (const PID pid :
         {kDriftUnit, kDriftUnitHours, kDriftStack, kDriftStackHours, kDriftSource, kDriftAnalyzer})
        site->parameters.push_back(parameter(pid));
    site->parameter(kDriftUnit).links[attribute::kOperatingTimePID] = kDriftUnitHours;
    test.DIServer = serve(site);
    test.irm = messages;
    test.lngAnalyzedPID = kDriftAnalyzer;
    test.strAnalyzedScale = "HIGH";
    test.lngOpTimePID = kDriftUnitHours;
}

void DriftRig::setInterval(int days)
{
    test.dtStart = onDay(0);
    test.dtEnd = DateAddExact("n", -1, onDay(days));
}

void DriftRig::add(const std::shared_ptr<cls7DayAnalyzerCal>& run)
{
    if (!test.dictCals)
        test.dictCals = std::make_shared<RunMap>();
    test.dictCals->Add(minuteKey(run->CalTime), run);
}

std::shared_ptr<clsStrippedCal> injection(float reference, float measured, float limit)
{
    auto made = std::make_shared<clsStrippedCal>();
    made->ReferenceValue = reference;
    made->MeasuredValue = measured;
    made->DriftLimit = limit;
    return made;
}

std::shared_ptr<cls7DayAnalyzerCal> runAt(Date time, model::Run facts)
{
    auto run = std::make_shared<cls7DayAnalyzerCal>();
    run->CalTime = time;
    run->IsOnline = facts.online;
    run->ManualCal = facts.manual;
    run->ZeroCal = injection(0, kLimit / 2, kLimit);
    run->SpanCal =
        injection(kReference, facts.passes ? kReference : kReference - 2 * kLimit, kLimit);
    return run;
}

RecordData zeroRecord(Date runTime)
{
    return recordAt(runTime, 0, 0);
}

RecordData upscaleRecord(Date runTime)
{
    return recordAt(runTime, 2, kReference);
}

model::Day dayOf(char letter)
{
    model::Day day;
    const std::string_view letters = "PFMNUWQ";
    if (letters.find(letter) == std::string_view::npos)
        throw std::invalid_argument("no such day");
    day.operated = std::string_view("PFMWQ").find(letter) != std::string_view::npos;
    day.undetermined = std::string_view("UWQ").find(letter) != std::string_view::npos;
    if (letter == 'P' || letter == 'Q' || letter == 'F')
        day.runs.push_back({.online = true, .manual = false, .passes = letter != 'F'});
    return day;
}

std::vector<model::Day> daysOf(std::string_view text)
{
    std::vector<model::Day> days;
    std::istringstream words{std::string(text)};
    for (std::string word; words >> word;) {
        if (isGroupOfRuns(word))
            days.push_back(groupOf(word));
        else
            std::transform(word.begin(), word.end(), std::back_inserter(days), dayOf);
    }
    for (std::size_t i = 0; i < days.size(); ++i)
        days[i].date = static_cast<int>(i);
    return days;
}

void setDays(DriftRig& rig, const std::vector<model::Day>& days, std::size_t interval)
{
    rig.setInterval(static_cast<int>(interval));
    HourlyValues& hours = rig.site->parameter(kDriftUnitHours).hours;
    hours = {onDay(0), {}};
    for (std::size_t i = 0; i < interval; ++i) {
        const auto ofDay = hoursOf(days[i]);
        hours.values.insert(hours.values.end(), ofDay.begin(), ofDay.end());
    }

    // The map of all runs is in order of time, whatever the order of the days.
    std::vector<model::Day> inOrder = days;
    std::stable_sort(inOrder.begin(), inOrder.end(),
                     [](const auto& one, const auto& other) { return one.date < other.date; });
    rig.test.dictCals = std::make_shared<RunMap>();
    for (const model::Day& day : inOrder) {
        for (std::size_t run = 0; run < day.runs.size(); ++run)
            rig.add(runAt(onDay(day.date, 6, static_cast<int>(run)), day.runs[run]));
    }
}

model::Outcome outcomeOf(const DriftTest& test)
{
    model::Outcome outcome;
    outcome.goodCals = test.lngGoodCals;
    outcome.failedCals = test.lngFailedCals;
    outcome.lastFailDay = test.lngLastFailDay;
    outcome.prevFailDay = test.lngPrevFailDay;
    outcome.undeterminedDays = test.lngUndeterminedDays;
    model::Place place;
    for (const auto& [dayKey, day] : test.dictDays) {
        place.run = 0;
        for (const auto& [runKey, run] : day->CalsInDay()) {
            if (run->IsUsedIn7Day)
                outcome.marks.insert(place);
            ++place.run;
        }
        ++place.day;
    }
    return outcome;
}

std::string marksText(const model::Outcome& outcome, std::size_t days)
{
    std::string text(days, '.');
    for (const model::Place& mark : outcome.marks)
        text.at(mark.day) = static_cast<char>('1' + mark.run);
    return text;
}

} // namespace k7deval::test
