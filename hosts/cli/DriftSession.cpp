#include "cli/DriftSession.h"

#include "cli/UsageError.h"
#include "foundation/DateText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace k7deval::cli
{

namespace
{

constexpr std::int32_t kPdfEntry = 1;
constexpr std::int32_t kEcmpsEntry = 2;

std::string listed(const std::vector<std::string>& entries)
{
    std::string text;
    for (const auto& entry : entries)
        text += (text.empty() ? "" : ", ") + entry;
    return text;
}

void pick(screen::ComboBox& list, const std::string& entry, const std::string& what)
{
    const auto& entries = list.List();
    const auto found = std::find(entries.begin(), entries.end(), entry);
    if (found == entries.end())
        throw UsageError("There is no " + what + " \"" + entry +
                         "\"; the list holds: " + listed(entries) + ".");
    list.Pick(static_cast<std::int32_t>(found - entries.begin()));
}

void choose(screen::CheckBox& box, std::optional<bool> wanted)
{
    if (!wanted || box.isChecked() == *wanted)
        return;
    box.Press();
    if (box.isChecked() != *wanted)
        throw UsageError("\"" + box.Caption() + "\" can't be changed with this specification.");
}

void type(screen::TextBox& field, const std::string& text, const std::string& what)
{
    if (text.empty())
        return;
    field.Type(text);
    field.Leave();
    if (field.Text() != text)
        throw UsageError("\"" + text + "\" is no " + what + ".");
}

template <class Option> struct Choice {
    const char* word;
    Option* option;
};

template <class Option, std::size_t n>
void press(const std::array<Choice<Option>, n>& choices, const std::string& word,
           const std::string& what)
{
    if (word.empty())
        return;
    std::vector<std::string> words;
    for (const auto& choice : choices) {
        if (word == choice.word) {
            choice.option->Press();
            return;
        }
        words.emplace_back(choice.word);
    }
    throw UsageError("\"" + word + "\" is no " + what + "; it is one of: " + listed(words) + ".");
}

} // namespace

DriftSession::DriftSession(const std::shared_ptr<DIServer>& server, const Clock& clock,
                           const RegionalSettings& regional, std::ostream& notes)
    : clock_(&clock), regional_(&regional), services_(notes),
      control_(screen::Surroundings{services_, clock, regional})
{
    if (server->Units().empty())
        throw UsageError("The site has no unit yet; import a span table or hourly load first.");
    control_.Setup(lines_, server);
}

void DriftSession::fillSetUp(const DriftOptions& options)
{
    ctrl7DaySetUp& page = control_.ctrl7DaySetUp1;
    if (!options.unit.empty())
        pick(page.cmbUnit, options.unit, "unit");
    if (!options.analyzer.empty())
        pick(page.cmbAnalyzer, options.analyzer, "analyzer of unit " + page.cmbUnit.Text());
    if (page.cmbAnalyzer.ItemData() == 0)
        throw UsageError("Unit " + page.cmbUnit.Text() + " has no analyzer.");
    fillInterval(options);
    fillSpecification(options);
    fillDisplay(options);
    fillTestInformation(options);
}

void DriftSession::fillInterval(const DriftOptions& options)
{
    typeDate(control_.ctrl7DaySetUp1.txtFromDate, options.from);
    typeDate(control_.ctrl7DaySetUp1.txtToDate, options.to);
}

void DriftSession::typeDate(screen::TextBox& field, const std::string& text)
{
    if (text.empty())
        return;
    if (!IsDate(text, *regional_, clock_->now()))
        throw UsageError("\"" + text + "\" is no date.");
    field.Type(text);
    field.Leave();
}

void DriftSession::fillSpecification(const DriftOptions& options)
{
    ctrl7DaySetUp& page = control_.ctrl7DaySetUp1;
    const std::array<Choice<screen::OptionButton>, 6> specifications{{
        {"2.5-span", &page.opt025Span},
        {"5-span", &page.opt05Span},
        {"0.5-absolute", &page.opt005Absolute},
        {"other-span", &page.optOtherSpan},
        {"other-absolute", &page.optOtherAbsolute},
        {"ps9", &page.optPS9GC},
    }};
    press(specifications, options.specification, "specification");
    choose(page.chkUseAPS, options.aps);
    choose(page.chk6of7, options.sixOfSeven);
    choose(page.chkManualCals, options.manualCals);
    if (options.limit.empty())
        return;
    if (page.txtOtherSpanValue.isReachable())
        type(page.txtOtherSpanValue, options.limit, "limit");
    else if (page.txtOtherAbsoluteValue.isReachable())
        type(page.txtOtherAbsoluteValue, options.limit, "limit");
    else
        throw UsageError(
            "A limit of one's own needs the specification other-span or other-absolute.");
}

void DriftSession::fillDisplay(const DriftOptions& options)
{
    ctrl7DaySetUp& page = control_.ctrl7DaySetUp1;
    const std::array<Choice<screen::OptionButton>, 3> displays{{
        {"interval", &page.optShowInterval},
        {"test-end", &page.optShowAllCals},
        {"test-only", &page.optShowDriftTestCals},
    }};
    press(displays, options.show, "choice of calibrations to show");
    choose(page.chkShowSummary, options.summary);
}

void DriftSession::fillTestInformation(const DriftOptions& options)
{
    ctrl7DaySetUp& page = control_.ctrl7DaySetUp1;
    type(page.txtORIS, options.oris, "ORIS code");
    if (!options.stack.empty() && page.cmbStackID.isReachable())
        pick(page.cmbStackID, options.stack, "stack");
    else
        type(page.txtStackID, options.stack, "unit or stack identifier of at most 6 characters");
    type(page.txtComponentID, options.component, "component identifier of at most 3 characters");
    type(page.txtTestNumber, options.testNumber, "test number");
    if (options.reason.empty())
        return;
    constexpr std::array<std::pair<const char*, const char*>, 3> reasons{{
        {"initial", "Initial Certification"},
        {"recertification", "Recertification"},
        {"diagnostic", "Diagnostic"},
    }};
    const auto* const found = std::find_if(reasons.begin(), reasons.end(), [&](const auto& reason) {
        return options.reason == reason.first;
    });
    pick(page.cmbTestReason, found == reasons.end() ? options.reason : found->second,
         "reason for a test");
}

bool DriftSession::evaluate()
{
    control_.cmdNext.Press();
    return control_.ctrl7DayResult1.Visible();
}

void DriftSession::savePdf(const std::string& path)
{
    save(path, kPdfEntry);
}

void DriftSession::saveXml(const std::string& path)
{
    if (PIDPart(control_.Test().lngAnalyzedPID, pidpart::kProgramCode) != kProgram40CFR75)
        throw UsageError(
            "This analyzer is not under 40 CFR 75, so there is no ECMPS export of it.");
    save(path, kEcmpsEntry);
}

void DriftSession::save(const std::string& path, std::int32_t filterIndex)
{
    const std::size_t linesBefore = postedLines().size();
    services_.nextSave = screen::SaveAnswer{path, filterIndex};
    services_.failed = false;
    if (control_.chkPreview.isChecked())
        control_.chkPreview.Press();
    control_.cmdSave.Press();
    if (services_.failed || postedLines().size() > linesBefore)
        throw UsageError(path + " could not be written completely: " +
                         (postedLines().size() > linesBefore ? postedLines().back() : "see above") +
                         ".");
}

} // namespace k7deval::cli
