#include "range/ctrlRangeEval.h"

#include "foundation/NumberText.h"
#include "foundation/PIDFunctions.h"
#include "foundation/PropertyOf.h"
#include "foundation/UtilityFunctions.h"
#include "histogram/HistogramPage.h"
#include "histogram/Quarters.h"

#include <array>
#include <utility>

namespace k7deval
{

namespace
{

constexpr double kExpectedShare = 0.2;
constexpr std::int32_t kHighestLowScale = 1; ///< "SINGLE" and "LOW".

const histogram::ToolLook kLook{
    .name = "ctrlRangeEval",
    .title = "Range Evaluation",
    .control = {0, 0, 12540, 5295},
    .fraResults = {6480, 120, 6000, 4500},
    .markStyle = screen::LineStyle::Solid,
    .linLowX = 1260,
    .linMidX = 4725,
    .lblMidOpPercent = {2040, 360, 1800, 0},
    .lblHighOpPercent = {4080, 360, 1800, 0},
    .lblMinSafe = {120, 2760, 0, 0},
    .lblLow = {1320, 2760, 0, 0},
    .lblLowAlignment = screen::Alignment::Left,
    .lblMid = {3360, 2760, 1350, 0},
    .lblMidAlignment = screen::Alignment::Right,
    .lbl000 = {120, 3000, 0, 0},
};

// Two blanks behind the colons: the report copies these lines as they stand.
constexpr const char* kAboveMEC = "Hours above MEC:  ";
constexpr const char* kAboveMPC = "Hours above MPC:  ";
constexpr const char* kOverRange = "Hours over Range:  ";
constexpr const char* kReplaced = "Hours with 200% replacement:  ";
constexpr const char* kInvalid = "Invalid Hours:  ";
constexpr const char* kNotApplicable = "N/A";

// On paper.
constexpr std::array<float, 3> kLevelCentres{108, 396, 684};
constexpr histogram::InnerMarks kMarks{180, 612};
constexpr float kSecondColumn = 396;

/// Two texts beside each other. Returns their height.
float drawPair(ReportPage& page, const screen::Label& left, const screen::Label& right, float y)
{
    layout::alignLeft(layout::addText(page, left.Caption(), kBodyFont, kBodySize), layout::kLeft,
                      y);
    ReportTextItem& second = layout::addText(page, right.Caption(), kBodyFont, kBodySize);
    layout::alignLeft(second, kSecondColumn, y);
    return second.Height();
}

} // namespace

ctrlRangeEval::ctrlRangeEval(const screen::Surroundings& surroundings)
    : HistogramTool(kLook, surroundings)
{
    txtRange.SetText("Text1");
    txtMEC.SetText("Text3");
    txtMPC.SetText("Text4");
    cmbYear.SetText("Combo2");
    connectRules();
    startUp();
}

void ctrlRangeEval::startUp()
{
    histogram::offerQuarters(cmbQTR, cmbYear, CurrentDateTime(surroundings_.clock));
    ctrlRangeEval::ClearResults();
    lblBar.ResetBars();
}

void ctrlRangeEval::connectRules()
{
    cmbUnit.Picked.Connect([this] { unitRule(); });
    cmbParam.Picked.Connect([this] { parameterRule(); });
    cmbScale.Picked.Connect([this] { scaleRule(); });
    chkShowPID.Clicked.Connect([this] { showPIDRule(); });
    range_.Entered.Connect([this] { markStale(); });
    txtMEC.TextChanged.Connect([this] { markStale(); });
    txtMPC.TextChanged.Connect([this] { markStale(); });
    // Only a change of the text counts; a pick from the open list leaves the results as they are.
    cmbYear.TextChanged.Connect([this] { markStale(); });
    cmbQTR.TextChanged.Connect([this] { markStale(); });
    cmdCalculate.Clicked.Connect([this] { calculate(); });
}

/// The catalogue is not emptied: what another site brought in stays.
void ctrlRangeEval::SetDIServer(std::shared_ptr<k7deval::DIServer> server)
{
    setServer(std::move(server));
    if (DIServer() != nullptr)
        addToCatalogue(catalogue_, data(), surroundings_.regional);
    cmbUnit.clear();
    cmbParam.clear();
    cmbScale.clear();
    if (DIServer() != nullptr)
        listUnits();
    ClearResults();
    lblBar.ResetBars();
    cmdSave.SetEnabled(false);
}

void ctrlRangeEval::Terminate()
{
    catalogue_ = {};
    HistogramTool::Terminate();
}

void ctrlRangeEval::listUnits()
{
    const auto parameters = data().Parameters();
    for (const PID unit : catalogue_.Keys())
        cmbUnit.addItem(present(present(parameters).Item(unit, -1)).Name(0), unit);
    if (cmbUnit.listCount() > 0)
        cmbUnit.SetListIndex(0);
}

const ParameterScales& ctrlRangeEval::pickedUnit() const
{
    return catalogue_.Item(cmbUnit.ItemData());
}

const ScaleSpans& ctrlRangeEval::pickedParameter() const
{
    return pickedUnit().Item(cmbParam.ItemData());
}

void ctrlRangeEval::unitRule()
{
    cmbParam.clear();
    cmbScale.clear();
    const auto parameters = data().Parameters();
    for (const PID pid : pickedUnit().Keys())
        cmbParam.addItem(parameterEntry(present(present(parameters).Item(pid, -1))), pid);
    if (cmbParam.listCount() > 0)
        cmbParam.SetListIndex(0);
    markStale();
}

void ctrlRangeEval::parameterRule()
{
    cmbScale.clear();
    for (const std::int32_t scale : pickedParameter().Keys())
        cmbScale.addItem(scaleName(scale), scale);
    if (cmbScale.listCount() > 0)
        cmbScale.SetListIndex(0);
    markStale();
}

void ctrlRangeEval::scaleRule()
{
    const std::int32_t scale = cmbScale.ItemData();
    range_.set(pickedParameter().Item(scale));
    proposeLimits(scale);
    markStale();
}

/// An expected concentration of 20% of the span and a potential one of the span itself, for the
/// operator to overwrite. Percent gases have none, and the upper scales no expected one.
void ctrlRangeEval::proposeLimits(std::int32_t scale)
{
    const RegionalSettings& regional = surroundings_.regional;
    const bool hasPotential = !IsPercentGasPID(cmbParam.ItemData());
    const bool hasExpected = hasPotential && scale <= kHighestLowScale;
    txtMEC.SetText(hasExpected ? GeneralNumber(evaluation_.RangeValue * kExpectedShare, regional)
                               : kNotApplicable);
    txtMPC.SetText(hasPotential ? GeneralNumber(evaluation_.RangeValue, regional) : kNotApplicable);
    chkMEC.setChecked(hasExpected);
    chkMPC.setChecked(hasPotential);
}

void ctrlRangeEval::showPIDRule()
{
    if (DIServer() == nullptr)
        return;
    const auto parameters = data().Parameters();
    for (std::int32_t row = 0; row < cmbParam.listCount(); ++row) {
        const PID pid = cmbParam.itemDataList()[static_cast<std::size_t>(row)];
        const auto parameter = present(parameters).Item(pid, -1);
        cmbParam.setItemText(row, parameterEntry(present(parameter)));
    }
}

void ctrlRangeEval::calculate()
{
    SetMousePointer(screen::MousePointer::Hourglass);
    if (NeedsEvaluation())
        EvaluateRange(cmbParam.ItemData());
    DrawChart();
    ShowResults();
    cmdSave.SetEnabled(true);
    SetMousePointer(screen::MousePointer::Default);
}

/// A parameter that is gone ends it quietly, with nothing counted and the evaluation still due.
void ctrlRangeEval::EvaluateRange(PID pid)
{
    range_.read();
    evaluation_.setThresholds(surroundings_.regional);
    evaluation_.reset();
    const RangeEvaluation::Limits limits = readLimits();
    const Date lastHour = histogram::GetSelectedQuarterEnd(cmbQTR, cmbYear, surroundings_);
    const auto source = hoursOf(pid);
    if (!source)
        return;
    evaluation_.run(present(source->parameter), present(source->statusCodes), lastHour, limits);
    setEvaluated();
}

RangeEvaluation::Limits ctrlRangeEval::readLimits()
{
    const RangeEvaluation::Limits limits{takesPart(chkMEC, txtMEC), takesPart(chkMPC, txtMPC)};
    if (limits.mec)
        evaluation_.MECValue = ToSingle(txtMEC.Text(), surroundings_.regional);
    if (limits.mpc)
        evaluation_.MPCValue = ToSingle(txtMPC.Text(), surroundings_.regional);
    return limits;
}

bool ctrlRangeEval::takesPart(const screen::CheckBox& box, const screen::TextBox& field) const
{
    return box.isChecked() && IsNumeric(field.Text(), surroundings_.regional);
}

void ctrlRangeEval::DrawChart()
{
    lblBar.DrawChart(evaluation_.Bins, 0, evaluation_.RangeValue, surroundings_.regional);
}

/// Whether a limit is shown goes by its box and text as they stand now, not by what was counted.
void ctrlRangeEval::ShowResults()
{
    showHeader();
    showScale("0", evaluation_.LowThreshold, evaluation_.HighThreshold, evaluation_.RangeValue);
    showLevels(evaluation_, {.low = "%", .mid = "%", .high = "%"});
    const auto countOrNone = [](bool isShown, std::int32_t hours) {
        return isShown ? std::to_string(hours) : kNotApplicable;
    };
    lblAboveMEC.SetCaption(kAboveMEC +
                           countOrNone(takesPart(chkMEC, txtMEC), evaluation_.AboveMECHours));
    lblAboveMPC.SetCaption(kAboveMPC +
                           countOrNone(takesPart(chkMPC, txtMPC), evaluation_.AboveMPCHours));
    lblOverRange.SetCaption(kOverRange + std::to_string(evaluation_.OverRangeHours));
    lblReplaced.SetCaption(kReplaced + std::to_string(evaluation_.ReplacedHours));
    lblInvalid.SetCaption(kInvalid + std::to_string(evaluation_.InvalidHours));
}

PropertyList ctrlRangeEval::results() const
{
    return {{"Evaluation", {withState(evaluation_.Properties())}},
            property("UnitCatalogue", catalogue_,
                     "Units by PID, their hourly parameters by PID, the spans of those by scale.")};
}

void ctrlRangeEval::ClearResults()
{
    HistogramTool::ClearResults();
    lblAboveMEC.SetCaption(std::string(kAboveMEC) + kNotApplicable);
    lblAboveMPC.SetCaption(std::string(kAboveMPC) + kNotApplicable);
    lblOverRange.SetCaption(std::string(kOverRange) + kNotApplicable);
    lblReplaced.SetCaption(std::string(kReplaced) + kNotApplicable);
    lblInvalid.SetCaption(std::string(kInvalid) + kNotApplicable);
}

/// What the labels show at the moment, over the bins of the last evaluation.
std::unique_ptr<ReportDocument> ctrlRangeEval::buildReport() const
{
    auto [document, page, top] = beginReport(
        {.author = "Kelvo Range Evaluation",
         .subject = "Range Evaluation",
         .title = "Range Evaluation",
         .heading = "Range Evaluation Summary",
         .period = "Range summary ending the last day of " + cmbYear.Text() + " " + cmbQTR.Text()},
        kLevelCentres, evaluation_);
    ReportTextItem& overRange =
        layout::addText(*page, lblOverRange.Caption(), kBodyFont, kBodySize);
    float y = histogram::kLowestRow + overRange.Height();
    layout::alignLeft(overRange, layout::kLeft, y);
    y += overRange.Height() + layout::kGap;
    y += drawPair(*page, lblAboveMPC, lblInvalid, y) + layout::kGap;
    y += drawPair(*page, lblAboveMEC, lblReplaced, y) + histogram::kGapAboveCounts;
    const float bottom = histogram::drawScale(
        *page, kMarks,
        {{{lbl000.Caption(), lbl020.Caption(), lbl080.Caption(), lbl100.Caption()},
          {lblMinSafe.Caption(), lblLow.Caption(), lblMid.Caption(), lblMax.Caption()}}},
        y);
    histogram::drawBarChart(*page, kMarks, evaluation_.Bins, bottom, top);
    return std::move(document);
}

} // namespace k7deval
