#include "load/ctrlMaxMW.h"

#include "foundation/NumberText.h"
#include "foundation/PropertyOf.h"
#include "foundation/TextFunctions.h"
#include "histogram/HistogramPage.h"
#include "screen/UnitList.h"

#include <array>
#include <utility>

namespace k7deval
{

namespace
{

constexpr std::int32_t kNoSuffix = 0;

const ParamTypes kLoadTypes = {8, 11, 28, 35, 38, 39, 40, 41, 49, 52};
const ParamTypes kCapacityTypes = {4, 34};
const ParamTypes kCapacitySubsets = {0, 3};

const histogram::ToolLook kLook{
    .name = "ctrlMaxMW",
    .title = "Load Evaluation",
    .control = {0, 0, 12300, 4830},
    .fraResults = {6240, 120, 6000, 4020},
    .markStyle = screen::LineStyle::Dotted,
    .linLowX = 1845,
    .linMidX = 3570,
    .lblMidOpPercent = {1800, 360, 1800, 0},
    .lblHighOpPercent = {3840, 360, 1800, 0},
    .lblMinSafe = {120, 2760, 1350, 0},
    .lblLow = {1170, 2760, 1350, 0},
    .lblLowAlignment = screen::Alignment::Centre,
    .lblMid = {2895, 2760, 1350, 0},
    .lblMidAlignment = screen::Alignment::Centre,
    .lbl000 = {120, 3000, 1350, 0},
};

// On paper.
constexpr std::array<float, 3> kLevelCentres{144, 360, 612};
constexpr histogram::InnerMarks kMarks{252, 468};

/// How much a parameter looks like the unit's load.
struct Candidates {
    std::int32_t first = -1;
    std::int32_t second = -1;

    void consider(std::int32_t row, PID pid)
    {
        if (PIDPart(pid, pidpart::kParameterCode) != kLoadCode)
            return;
        const std::int32_t program = PIDPart(pid, pidpart::kProgramCode);
        if (program == kProgram40CFR75)
            first = row;
        else if (second == -1 && (program == kProgram40CFR60 || program == kNoProgram))
            second = row;
    }
    [[nodiscard]] std::int32_t best() const
    {
        if (first != -1)
            return first;
        return second != -1 ? second : 0;
    }
};

} // namespace

ctrlMaxMW::ctrlMaxMW(const screen::Surroundings& surroundings) : HistogramTool(kLook, surroundings)
{
    connectRules();
    startUp();
}

void ctrlMaxMW::startUp()
{
    txtMinSafe.SetText("0");
    txtCapacity.SetText("0");
    period_.startUp();
    ctrlMaxMW::ClearResults();
    lblBar.ResetBars();
}

void ctrlMaxMW::connectRules()
{
    cmbUnit.Picked.Connect([this] { unitRule(); });
    cmbParam.Picked.Connect([this] { markStale(); });
    chkShowPID.Clicked.Connect([this] { showPIDRule(); });
    period_.Changed.Connect([this] { markStale(); });
    // What is typed clears the results and leaves the button for saving as it is, so that what is
    // saved then shows the cleared screen.
    for (histogram::NumberField* field : {&minSafe_, &capacity_})
        field->Entered.Connect([this] { clearStaleResults(); });
    period_.DateEntered.Connect([this] { clearStaleResults(); });
    cmdCalculate.Clicked.Connect([this] { calculate(); });
}

void ctrlMaxMW::SetDIServer(std::shared_ptr<k7deval::DIServer> server)
{
    setServer(std::move(server));
    cmbUnit.clear();
    if (DIServer() == nullptr) {
        cmbParam.clear();
    } else {
        screen::offerUnits(cmbUnit, data());
    }
    ClearResults();
    lblBar.ResetBars();
    cmdSave.SetEnabled(false);
}

void ctrlMaxMW::unitRule()
{
    SetMousePointer(screen::MousePointer::Hourglass);
    const std::int32_t unit = PIDPart(cmbUnit.ItemData(), pidpart::kUnit);
    listParameters(unit);
    proposeParameter();
    lookUpCapacity(unit);
    markStale();
    SetMousePointer(screen::MousePointer::Default);
}

void ctrlMaxMW::listParameters(std::int32_t unit)
{
    const auto parameters = data().ParametersOfUnitTypes(kLoadTypes, unit, 3, "h");
    cmbParam.clear();
    for (const auto& parameter : parameters) {
        const std::string entry = parameterEntry(present(parameter));
        cmbParam.addItem(entry, parameter->PID());
    }
}

/// Picks the unit's load, of the program of 40 CFR 75 if there is one.
void ctrlMaxMW::proposeParameter()
{
    Candidates candidates;
    for (std::int32_t row = 0; row < cmbParam.listCount(); ++row) {
        const auto index = static_cast<std::size_t>(row);
        if (upperCase(cmbParam.List()[index]).find("BIN") == std::string::npos)
            candidates.consider(row, cmbParam.itemDataList()[index]);
    }
    if (cmbParam.listCount() > 0)
        cmbParam.SetListIndex(candidates.best());
}

/// A constant without program and suffix is preferred to those of a program. Where there is none,
/// the capacity stays, also that of another unit.
void ctrlMaxMW::lookUpCapacity(std::int32_t unit)
{
    bool CapacityFound = false;
    for (const auto& constant :
         data().ConstantsOfUnitTypes(kCapacityTypes, unit, kCapacitySubsets)) {
        const PID pid = present(constant).PID();
        const std::int32_t program = PIDPart(pid, pidpart::kProgramCode);
        if (PIDPart(pid, pidpart::kParameterCode) != kLoadCode ||
            PIDPart(pid, pidpart::kSuffix) != kNoSuffix)
            continue;
        if (program == kNoProgram && takeCapacity(*constant))
            CapacityFound = true;
        if (!CapacityFound && (program == kProgram40CFR60 || program == kProgram40CFR75))
            takeCapacity(*constant);
    }
}

bool ctrlMaxMW::takeCapacity(DIParameter& constant)
{
    const Variant value = constant.CurrentPoint(0, 0, 0).ItemByIndex(1).Value();
    const bool isNumber = IsNumeric(value, surroundings_.regional);
    if (isNumber)
        capacity_.set(singleIn(value, surroundings_.regional));
    return isNumber;
}

/// Rows whose parameter is gone keep their text.
void ctrlMaxMW::showPIDRule()
{
    if (DIServer() == nullptr)
        return;
    const auto parameters = data().Parameters();
    for (std::int32_t row = 0; row < cmbParam.listCount(); ++row) {
        const PID pid = cmbParam.itemDataList()[static_cast<std::size_t>(row)];
        if (present(parameters).Exists(pid))
            cmbParam.setItemText(row, parameterEntry(present(parameters->Item(pid, -1))));
    }
}

void ctrlMaxMW::calculate()
{
    SetMousePointer(screen::MousePointer::Hourglass);
    if (evaluation_.MinSafeValue == 0)
        surroundings_.services.MsgBox(
            {"Verify a minimum safe operating load of zero from the Part 75 Monitoring Plan.",
             kLook.title, screen::MsgBoxButtons::OK, screen::MsgBoxIcon::Information});
    period_.CheckEvaluationPeriod();
    if (NeedsEvaluation())
        EvaluateLoad(cmbParam.ItemData());
    DrawChart();
    ShowResults();
    cmdSave.SetEnabled(true);
    SetMousePointer(screen::MousePointer::Default);
}

/// A range of zero and a parameter that is gone end it quietly, with nothing counted and the
/// evaluation still due.
void ctrlMaxMW::EvaluateLoad(PID pid)
{
    minSafe_.read();
    capacity_.read();
    evaluation_.setThresholds(surroundings_.regional);
    evaluation_.reset();
    if (evaluation_.Range() == 0)
        return;
    const LoadPeriod hours = period_.hours();
    const auto source = hoursOf(pid);
    if (!source)
        return;
    evaluation_.run(present(source->parameter), present(source->statusCodes), hours);
    setEvaluated();
}

void ctrlMaxMW::DrawChart()
{
    lblBar.DrawChart(evaluation_.Bins, evaluation_.MinSafeValue, evaluation_.Range(),
                     surroundings_.regional);
}

void ctrlMaxMW::ShowResults()
{
    showHeader();
    showScale(numberText(evaluation_.MinSafeValue), evaluation_.LowThreshold,
              evaluation_.HighThreshold, evaluation_.CapacityValue);
    showLevels(evaluation_,
               {.low = "% Low Op Load", .mid = "% Mid Op Load", .high = "% High Op Load"});
    lblBelow.SetCaption(std::to_string(evaluation_.UnderHours) + " hour(s) under " +
                        numberText(evaluation_.MinSafeValue));
    lblAbove.SetCaption(overText());
}

/// "hours(s)" where there are none is how operators know the line.
std::string ctrlMaxMW::overText() const
{
    const std::string hours = std::to_string(evaluation_.OverHours);
    const std::string capacity = numberText(evaluation_.CapacityValue);
    if (evaluation_.OverHours >= 1)
        return hours + " hour(s) over " + capacity + " - Maximum " +
               numberText(evaluation_.MaxObserved);
    return hours + " hours(s) over " + capacity;
}

PropertyList ctrlMaxMW::results() const
{
    PropertyList results = withState(evaluation_.Properties());
    results.push_back(
        property("StartDate", StartDate(), "First day of the option \"Specified Dates:\"."));
    results.push_back(
        property("EndDate", EndDate(), "Last day of the option \"Specified Dates:\"."));
    return {{"Evaluation", {std::move(results)}}};
}

void ctrlMaxMW::ClearResults()
{
    HistogramTool::ClearResults();
    lblBelow.SetCaption("0 hour(s) under minimum");
    lblAbove.SetCaption("0 hour(s) over maximum");
}

std::string ctrlMaxMW::numberText(float value) const
{
    return GeneralNumber(value, surroundings_.regional);
}

/// What the labels show at the moment, over the bins of the last evaluation.
std::unique_ptr<ReportDocument> ctrlMaxMW::buildReport() const
{
    // The title is known under this spelling.
    auto [document, page, top] = beginReport({.author = "Kelvo Load Evaluation",
                                              .subject = "Load Evaluation",
                                              .title = "Load Evalution",
                                              .heading = "Load Evaluation Summary",
                                              .period = periodLine()},
                                             kLevelCentres, evaluation_);
    ReportTextItem& below = layout::addText(*page, lblBelow.Caption(), kBodyFont, kBodySize);
    const float y = histogram::kLowestRow + below.Height();
    layout::alignLeft(below, layout::kLeft, y);
    ReportTextItem& above = layout::addText(*page, lblAbove.Caption(), kBodyFont, kBodySize);
    layout::alignRight(above, layout::kRight, y);
    const float bottom = histogram::drawScale(
        *page, kMarks,
        {{{lbl000.Caption(), lbl030.Caption(), lbl060.Caption(), lbl100.Caption()},
          {lblMinSafe.Caption(), lblLow.Caption(), lblMid.Caption(), lblMax.Caption()}}},
        y + above.Height() + histogram::kGapAboveCounts);
    histogram::drawBarChart(*page, kMarks, evaluation_.Bins, bottom, top);
    return std::move(document);
}

std::string ctrlMaxMW::periodLine() const
{
    if (optTimeSelect.isSelected())
        return "Load summary from " + txtFrom.Text() + " to " + txtTo.Text();
    return "Load summary ending the last day of " + cmbYear.Text() + " " + cmbQTR.Text();
}

} // namespace k7deval
