#include "cli/DriftSession.h"

#include "cli/OperatorActions.h"
#include "cli/PostedLine.h"
#include "foundation/TextFunctions.h"

#include <algorithm>
#include <utility>

/// How the setup page is filled.
namespace k7deval::cli
{

namespace
{

struct ReasonWord {
    const char* word;
    const char* entry;
};

constexpr std::array<ReasonWord, 3> kReasons{{
    {"initial", "Initial Certification"},
    {"recertification", "Recertification"},
    {"diagnostic", "Diagnostic"},
}};

bool hasTestInformation(const DriftOptions& options)
{
    return !(options.oris.empty() && options.stack.empty() && options.component.empty() &&
             options.reason.empty() && options.testNumber.empty());
}

} // namespace

void DriftSession::fillSetUp(const DriftOptions& options)
{
    pickUnit(options.unit);
    pickAnalyzer(options.analyzer);
    fillInterval(options);
    fillCriteria(options);
    fillSpecification(options);
    fillDisplay(options);
}

void DriftSession::pickUnit(const std::string& unit)
{
    ctrl7DaySetUp& page = control_.ctrl7DaySetUp1;
    if (!unit.empty()) {
        linesBefore_ = postedLines().size();
        pickEntry(page.cmbUnit, unit, "There is no unit " + inQuotes(unit));
    }
    // A unit whose rule ended half-way has its analyzers listed, but none of them picked.
    if (page.cmbAnalyzer.List().empty())
        throw UsageError("The analyzers of unit " + page.cmbUnit.Text() + " could not be listed " +
                         asReason(postedLines().at(linesBefore_), "because a step failed") + ".");
}

void DriftSession::pickAnalyzer(const std::string& analyzer)
{
    ctrl7DaySetUp& page = control_.ctrl7DaySetUp1;
    if (!analyzer.empty()) {
        linesBefore_ = postedLines().size();
        pickEntry(page.cmbAnalyzer, analyzer,
                  "Unit " + page.cmbUnit.Text() + " has no analyzer " + inQuotes(analyzer));
    }
    if (postedLines().size() > linesBefore_)
        throw UsageError("The setup page of " + std::string(trimRight(page.AnalyzerInfoText())) +
                         " could not be filled in " +
                         asReason(postedLines().at(linesBefore_), "because a step failed") + ".");
    if (page.cmbAnalyzer.ItemData() == 0)
        throw UsageError("Unit " + page.cmbUnit.Text() + " has no analyzer.");
}

void DriftSession::fillInterval(const DriftOptions& options)
{
    typeDate(control_.ctrl7DaySetUp1.txtFromDate, options.from, *regional_, *clock_);
    typeDate(control_.ctrl7DaySetUp1.txtToDate, options.to, *regional_, *clock_);
}

void DriftSession::fillCriteria(const DriftOptions& options)
{
    ctrl7DaySetUp& page = control_.ctrl7DaySetUp1;
    if (options.manualCals)
        choose(page.chkManualCals, *options.manualCals);
    if (options.sixOfSeven)
        choose(page.chk6of7, *options.sixOfSeven);
}

void DriftSession::fillSpecification(const DriftOptions& options)
{
    ctrl7DaySetUp& page = control_.ctrl7DaySetUp1;
    const std::array<NamedOption, 6> specifications{{
        {"2.5-span", &page.opt025Span},
        {"5-span", &page.opt05Span},
        {"0.5-absolute", &page.opt005Absolute},
        {"other-span", &page.optOtherSpan},
        {"other-absolute", &page.optOtherAbsolute},
        {"ps9", &page.optPS9GC},
    }};
    // The other specifications take the box out of reach as it stands, and a checked one holds
    // other-absolute to 5. So it is cleared while it can be.
    if (options.aps == false && page.chkUseAPS.isReachable())
        choose(page.chkUseAPS, false);
    if (!options.specification.empty())
        pressOption(specifications, options.specification, "specification");
    if (options.aps && (*options.aps || page.chkUseAPS.isChecked()))
        choose(page.chkUseAPS, *options.aps);
    if (!options.limit.empty())
        typeLimit(options.limit);
}

void DriftSession::typeLimit(const std::string& limit)
{
    ctrl7DaySetUp& page = control_.ctrl7DaySetUp1;
    const bool isAbsolute = page.optOtherAbsolute.isSelected();
    if (!isAbsolute && !page.optOtherSpan.isSelected())
        throw UsageError(
            "--limit needs the specification other-span or other-absolute, the others have their "
            "own.");
    screen::TextBox& field = isAbsolute ? page.txtOtherAbsoluteValue : page.txtOtherSpanValue;
    typeText(field, limit, "limit");
    if (field.Text() != limit)
        throw UsageError(inQuotes(limit) + " is no number that can be a limit.");
}

void DriftSession::fillDisplay(const DriftOptions& options)
{
    ctrl7DaySetUp& page = control_.ctrl7DaySetUp1;
    const std::array<NamedOption, 3> displays{{
        {"interval", &page.optShowInterval},
        {"test-end", &page.optShowAllCals},
        {"test-only", &page.optShowDriftTestCals},
    }};
    if (!options.show.empty())
        pressOption(displays, options.show, "choice of calibrations to show");
    if (options.summary)
        choose(page.chkShowSummary, *options.summary);
}

void DriftSession::fillTestInformation(const DriftOptions& options)
{
    ctrl7DaySetUp& page = control_.ctrl7DaySetUp1;
    if (!hasTestInformation(options))
        return;
    if (!isUnder40CFR75())
        throw UsageError(page.AnalyzerInfoText() +
                         " is not under 40 CFR 75, so it takes no test information.");
    if (!options.oris.empty())
        typeOris(options.oris);
    if (!options.stack.empty())
        fillStack(options.stack);
    if (!options.component.empty())
        typeText(page.txtComponentID, options.component, "component identifier");
    if (!options.reason.empty())
        pickReason(options.reason);
    if (!options.testNumber.empty())
        typeText(page.txtTestNumber, options.testNumber, "test number");
}

void DriftSession::typeOris(const std::string& oris)
{
    screen::TextBox& field = control_.ctrl7DaySetUp1.txtORIS;
    typeText(field, oris, "ORIS code");
    // The page writes 00123 as 123 and empties the field of what is no code.
    if (field.Text().empty())
        throw UsageError(inQuotes(oris) +
                         " is no ORIS code, which is a whole number from 0 to 999999.");
}

void DriftSession::fillStack(const std::string& stack)
{
    ctrl7DaySetUp& page = control_.ctrl7DaySetUp1;
    if (page.cmbStackID.isReachable())
        pickEntry(page.cmbStackID, stack,
                  "Unit " + page.cmbUnit.Text() + " has no stack " + inQuotes(stack));
    else
        typeText(page.txtStackID, stack, "unit or stack identifier");
}

void DriftSession::pickReason(const std::string& reason)
{
    const auto* const found =
        std::find_if(kReasons.begin(), kReasons.end(),
                     [&](const ReasonWord& entry) { return reason == entry.word; });
    if (found == kReasons.end())
        throw UsageError(inQuotes(reason) +
                         " is no reason for a test; it is one of: initial, recertification, "
                         "diagnostic.");
    pickEntry(control_.ctrl7DaySetUp1.cmbTestReason, found->entry,
              "There is no reason " + inQuotes(reason));
}

} // namespace k7deval::cli
