#pragma once

#include "foundation/DataInterface.h"
#include "foundation/Property.h"
#include "foundation/RegionalSettings.h"
#include "sevenday/CalLimitRules.h"
#include "sevenday/clsDaySummary.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace k7deval
{

/// The runs that make up a test.
inline constexpr std::int32_t kRunsOfATest = 7;

/// A 7-Day drift test: its state, kept from one evaluation to the next, and the procedures on it
/// (40 CFR 75 App. A 6.3.1: seven daily calibrations on consecutive operating days).
///
/// The procedures take their input from the fields and leave their result there. Each has its own
/// handler: a failure is posted to irm as the procedure's numbered line and ends it; what it
/// has done by then stays.
class DriftTest
{
public:
    /// The regional settings outlive the test.
    explicit DriftTest(const RegionalSettings& regional) : regional_(&regional) {}

    std::shared_ptr<k7deval::DIServer> DIServer;
    std::shared_ptr<MessageSink> irm;

    // What is tested, and how.
    PID lngAnalyzedPID = 0;
    std::string strAnalyzedScale;
    Date dtStart; ///< First moment of the interval.
    Date dtEnd;   ///< Last minute of the interval.
    float sngPercentOfSpanLimit = 0;
    float sngPercentOfRefLimit = 0;
    float sngAbsoluteLimit = 0;
    CalLimitRulesEnum lngLimitRule = CalLimitRules_AbsoluteValue;
    bool blnSixOfSeven = false;
    bool blnIncludeManualCals = false;
    bool blnUseZeroCals = false;

    // Which steps are due.
    bool blnRetrieveCals = false;
    bool blnApplyLimits = false;

    // What was found.
    /// All runs, ascending by key; absent before the first retrieval.
    std::shared_ptr<RunMap> dictCals;
    DayMap dictDays; ///< The days of the interval.
    PID lngOpTimePID = 0;
    std::int32_t lngGoodCals = 0;
    std::int32_t lngFailedCals = 0; ///< The one failed run that is allowed: 0 or 1.
    std::int32_t lngLastFailDay = 0;
    std::int32_t lngPrevFailDay = 0;
    std::int32_t lngUndeterminedDays = 0; ///< Before the end of the test.
    DayArray objDaysToDisplay;
    std::string strSummary;

    /// The state of the test by the names of its fields.
    [[nodiscard]] PropertyList Properties() const;

    /// The test is passed with seven runs, of which one may be the allowed failure.
    [[nodiscard]] bool isPassed() const { return lngGoodCals + lngFailedCals == kRunsOfATest; }

    /// Whether results page and report have runs to list. Error 91 while dictCals is absent.
    [[nodiscard]] bool hasRunsToShow(bool onlyDriftCals) const
    {
        return !present(dictCals).isEmpty() && !(onlyDriftCals && lngGoodCals + lngFailedCals == 0);
    }

    /// Reads the calibrations of the analyzer over the interval into dictCals and finds
    /// lngOpTimePID.
    void RetrieveCals();
    /// Gives each injection of dictCals its DriftLimit and UsesAPS under lngLimitRule.
    void ApplyLimits();
    /// Adds one day per calendar day of the interval to dictDays, judged by the hourly operating
    /// time.
    void AnalyzeOperatingDays();
    /// Decides which runs make up the test: marks, counters and the fail days.
    void EvaluateDriftTest();

    /// Shows the days with marked runs, and of these days the marked runs.
    void ShowDriftCals();
    /// Shows everything up to the end of the test.
    void ShowCalsWithinDrift();
    /// Shows everything in the interval.
    void ShowIntervalCals();

    /// Puts the outcome into words.
    void BuildSummary(bool showSummary);

private:
    struct InjectionRecords;
    [[nodiscard]] InjectionRecords recordsOfInterval();
    void findOperatingTime(const InjectionRecords& records);
    [[nodiscard]] PID linkedObject(const InjectionRecords& records);
    [[nodiscard]] std::shared_ptr<cls7DayAnalyzerCal> newRun(DIRecord& record) const;
    [[nodiscard]] std::shared_ptr<clsStrippedCal> newInjection(DIRecord& record) const;
    void addZeroRuns(const InjectionRecords& records, RunMap& runs) const;
    void addUpscaleInjections(const InjectionRecords& records, RunMap& runs) const;

    void limitByPercentOfSpan(const cls7DayAnalyzerCal& run) const;
    void limitByPercentOfSpanOrAPS(const cls7DayAnalyzerCal& run) const;
    void limitByAbsoluteValue(const cls7DayAnalyzerCal& run) const;
    void limitByPercentOfReference(const cls7DayAnalyzerCal& run) const;

    void addUndeterminedDays(const DIDataSet& hours);
    void addDaysByHour(DIDataSet& hours);
    void addHour(Date hour, bool operated, bool undetermined);

    void placeRunsInDays();
    void startScan(std::int32_t lastDay);
    void scanDays(const std::vector<std::string>& days);
    [[nodiscard]] bool isEligible(const cls7DayAnalyzerCal& run) const;
    void countDay(const clsDaySummary& day);
    void restartAt(std::int32_t day);
    void takeAllowedFailure(const std::vector<std::string>& days, std::int32_t day);
    void markAllowedFailure(const clsDaySummary& day);
    void recountGoodCals(const std::vector<std::string>& days, std::int32_t first,
                         std::int32_t last);
    void clearMarksBeforeTest(const std::vector<std::string>& days) const;

    void displayDay(std::int32_t index, const std::shared_ptr<clsDaySummary>& day);
    [[nodiscard]] Date firstDayOfTest() const;
    [[nodiscard]] std::string outcomeSentence() const;
    [[nodiscard]] std::string progressSentence() const;
    [[nodiscard]] std::string undeterminedSentence() const;

    const RegionalSettings* regional_;
};

} // namespace k7deval
