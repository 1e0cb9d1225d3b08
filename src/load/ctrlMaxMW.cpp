#include "load/ctrlMaxMW.h"

#include "foundation/NumberText.h"
#include "foundation/TextFunctions.h"
#include "screen/UnitList.h"

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
    connectFields();
    startUp();
}

void ctrlMaxMW::connectRules()
{
    cmbUnit.Picked.Connect([this] { unitRule(); });
    cmbParam.Picked.Connect([this] { markStale(); });
    chkShowPID.Clicked.Connect([this] { showPIDRule(); });
    optTimeEnd.Clicked.Connect([this] { periodRule(); });
    optTimeSelect.Clicked.Connect([this] { periodRule(); });
    // Only a change of the text counts; a pick from the open list leaves the results as they are.
    cmbYear.TextChanged.Connect([this] { markStale(); });
    cmbQTR.TextChanged.Connect([this] { markStale(); });
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
    const auto take = [this](DIParameter& constant) {
        const Variant value = constant.CurrentPoint(0, 0, 0).ItemByIndex(1).Value();
        if (!IsNumeric(value, surroundings_.regional))
            return false;
        evaluation_.CapacityValue = singleIn(value, surroundings_.regional);
        txtCapacity.SetText(numberText(evaluation_.CapacityValue));
        return true;
    };
    for (const auto& constant :
         data().ConstantsOfUnitTypes(kCapacityTypes, unit, kCapacitySubsets)) {
        const PID pid = present(constant).PID();
        const std::int32_t program = PIDPart(pid, pidpart::kProgramCode);
        if (PIDPart(pid, pidpart::kParameterCode) != kLoadCode ||
            PIDPart(pid, pidpart::kSuffix) != kNoSuffix)
            continue;
        if (program == kNoProgram && take(*constant))
            CapacityFound = true;
        if (!CapacityFound && (program == kProgram40CFR60 || program == kProgram40CFR75))
            take(*constant);
    }
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
    CheckEvaluationPeriod();
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
    evaluation_.MinSafeValue = ToSingle(txtMinSafe.Text(), surroundings_.regional);
    evaluation_.CapacityValue = ToSingle(txtCapacity.Text(), surroundings_.regional);
    evaluation_.setThresholds(surroundings_.regional);
    evaluation_.reset();
    if (evaluation_.Range() == 0)
        return;
    const LoadPeriod hours = period();
    const auto source = hoursOf(pid);
    if (!source)
        return;
    evaluation_.run(present(source->parameter), present(source->statusCodes), hours);
    setEvaluated();
}

} // namespace k7deval
