#pragma once

#include "foundation/Date.h"
#include "foundation/RegionalSettings.h"
#include "sevenday/DriftRulesModel.h"
#include "sevenday/DriftTest.h"
#include "support/FakeSite.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// Drift tests made of plain data: a run, a day, a pattern of days, a record.
namespace k7deval::test
{

inline constexpr PID kDriftUnit = 100100000;
inline constexpr PID kDriftUnitHours = 150000000;  ///< Operating time of the unit.
inline constexpr PID kDriftStack = 160000000;      ///< What the analyzer may be linked to.
inline constexpr PID kDriftStackHours = 165000000; ///< Operating time of the stack.
inline constexpr PID kDriftSource = 110000100;     ///< Measured parameter that the records name.
inline constexpr PID kDriftAnalyzer = 110007500;

/// A time on a day, counted from 10 March 2024.
Date onDay(int day, int hour = 0, int minute = 0, int second = 0);

/// A drift test of kDriftAnalyzer on a site with a unit, a stack and their operating times, and the
/// lines it posted. The unit has its operating time; nothing is linked to the stack.
struct DriftRig {
    DriftRig();
    DriftRig(const DriftRig&) = delete;
    DriftRig& operator=(const DriftRig&) = delete;
    ~DriftRig() = default;

    RegionalSettings regional;
    std::shared_ptr<SiteData> site = std::make_shared<SiteData>();
    std::shared_ptr<Messages> messages = std::make_shared<Messages>();
    DriftTest test{regional};

    /// The interval: so many days from 10 March 2024.
    void setInterval(int days);
    /// Adds a run to dictCals under its key.
    void add(const std::shared_ptr<cls7DayAnalyzerCal>& run);
    /// The keys of dictCals, in order.
    [[nodiscard]] std::vector<std::string> runKeys() const { return test.dictCals->Keys(); }
    [[nodiscard]] const cls7DayAnalyzerCal& run(const std::string& key) const
    {
        return *test.dictCals->Item(key);
    }
};

std::shared_ptr<clsStrippedCal> injection(float reference, float measured, float limit = 1);
/// A run with both injections, within their limits or not.
std::shared_ptr<cls7DayAnalyzerCal> runAt(Date time, model::Run facts = {});

/// A zero and an upscale record of the rig's analyzer. Reference and measured value are 0 (zero)
/// and 100 (upscale), the span is 200.
RecordData zeroRecord(Date runTime);
RecordData upscaleRecord(Date runTime);

/// Days from a text, one per letter or group of runs:
///
/// P a good on-line run on an operating day, F a failed one; M an operating day without a run, N
/// a day without operation; U, W and Q are N, M and P with hours of no data. A group has a letter
/// and a sign for each run: A automatic, M manual, a and m the same off-line, + passes, - fails;
/// "!" ahead of it says that the unit operated, "?" that an hour has no data.
std::vector<model::Day> daysOf(std::string_view text);

/// The letter of one day of that text.
model::Day dayOf(char letter);

/// Makes the days the rig's data. The first `interval` days are the interval, in order; the
/// others lie outside of it and have runs only.
void setDays(DriftRig& rig, const std::vector<model::Day>& days, std::size_t interval);
inline void setDays(DriftRig& rig, const std::vector<model::Day>& days)
{
    setDays(rig, days, days.size());
}

/// Counters and marks of an evaluated test.
model::Outcome outcomeOf(const DriftTest& test);

/// The marks, a character per day: "." without a marked run, else the place of the run from 1.
std::string marksText(const model::Outcome& outcome, std::size_t days);

} // namespace k7deval::test
