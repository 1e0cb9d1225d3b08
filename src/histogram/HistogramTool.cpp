#include "histogram/HistogramTool.h"

#include "foundation/NumberText.h"
#include "foundation/PIDFunctions.h"
#include "foundation/PropertyOf.h"
#include "foundation/UtilityFunctions.h"
#include "screen/SaveClick.h"

namespace k7deval::histogram
{

namespace
{

using screen::Alignment;
using screen::LineEnds;

constexpr float kMarkTop = 630;
constexpr float kBase = 2700;
constexpr float kFirstMark = 120;
constexpr float kLastMark = 5880;
constexpr float kBaseEnd = 5895;

LineEnds mark(float x)
{
    return {x, kMarkTop, x, kBase};
}

} // namespace

HistogramTool::HistogramTool(const ToolLook& look, const screen::Surroundings& surroundings)
    : Control(look.name), CommonDialog1(*this, "CommonDialog1", surroundings.services),
      lblHeader(fraResults, "lblHeader", "lblHeader", {750, 75, 4500, 0}, Alignment::Centre),
      lblLowOpPercent(fraResults, "lblLowOpPercent", "lblLowOpPercent", {60, 360, 1800, 0},
                      Alignment::Centre),
      lblMidOpPercent(fraResults, "lblMidOpPercent", "lblMidOpPercent", look.lblMidOpPercent,
                      Alignment::Centre),
      lblHighOpPercent(fraResults, "lblHighOpPercent", "lblHighOpPercent", look.lblHighOpPercent,
                       Alignment::Centre),
      linMin(fraResults, "linMin", mark(kFirstMark), look.markStyle),
      linLow(fraResults, "linLow", mark(look.linLowX), look.markStyle),
      linMid(fraResults, "linMid", mark(look.linMidX), look.markStyle),
      linMax(fraResults, "linMax", mark(kLastMark), look.markStyle),
      linBase(fraResults, "linBase", {kFirstMark, kBase, kBaseEnd, kBase}),
      lblBar(fraResults, linMin, linBase),
      lblMinSafe(fraResults, "lblMinSafe", "lblMinSafe", look.lblMinSafe),
      lblLow(fraResults, "lblLow", "lblLow", look.lblLow, look.lblLowAlignment),
      lblMid(fraResults, "lblMid", "lblMid", look.lblMid, look.lblMidAlignment),
      lblMax(fraResults, "lblMax", "lblMax", {4530, 2760, 1350, 0}, Alignment::Right),
      lbl000(fraResults, "lbl000", "Minimum", look.lbl000),
      lbl100(fraResults, "lbl100", "Maximum", {4530, 3000, 1350, 0}, Alignment::Right),
      surroundings_(surroundings), title_(look.title)
{
    setPlace(look.control);
    fraResults.setPlace(look.fraResults);
    cmdSave.SetEnabled(false);
    cmdClose.Clicked.Connect([this] { CloseClicked.raise(); });
    cmdSave.Clicked.Connect([this] { saveClick(); });
}

void HistogramTool::ClearResults()
{
    for (screen::Label* label : {&lblHeader, &lblMinSafe, &lblLow, &lblMid, &lblMax,
                                 &lblLowOpPercent, &lblMidOpPercent, &lblHighOpPercent})
        label->SetCaption("");
}

void HistogramTool::clearStaleResults()
{
    needsEvaluation_ = true;
    ClearResults();
    lblBar.ResetBars();
}

void HistogramTool::markStale()
{
    clearStaleResults();
    cmdSave.SetEnabled(false);
}

PropertyList HistogramTool::withState(PropertyList evaluation) const
{
    evaluation.push_back(
        property("NeedsEvaluation", needsEvaluation_,
                 "What is entered has changed since the last finished evaluation."));
    return evaluation;
}

std::string HistogramTool::parameterEntry(DIParameter& parameter) const
{
    if (!chkShowPID.isChecked())
        return parameter.Name(0);
    return nameWithPID(parameter.PID(), parameter.Name(0));
}

std::optional<HistogramTool::HourSource> HistogramTool::hoursOf(PID pid) const
{
    const auto parameters = data().Parameters();
    if (!present(parameters).Exists(pid))
        return std::nullopt;
    HourSource source{parameters->Item(pid, -1), data().StatusCodes()};
    return source;
}

void HistogramTool::showHeader()
{
    const PID pid = cmbParam.ItemData();
    const auto parameters = data().Parameters();
    if (present(parameters).Exists(pid))
        lblHeader.SetCaption(cmbUnit.Text() + " " + present(parameters->Item(pid, -1)).Name(0));
}

void HistogramTool::showLevels(const InRangeHours& hours, const LevelTails& tails)
{
    // Hours outside the range are left out, so that the three percents add up to 100.
    const auto show = [&](screen::Label& label, std::int32_t count, const std::string& tail) {
        label.SetCaption(percentText(count, hours.totalInRange(), tail, surroundings_.regional));
    };
    show(lblLowOpPercent, hours.LowHours, tails.low);
    show(lblMidOpPercent, hours.MidHours, tails.mid);
    show(lblHighOpPercent, hours.HighHours, tails.high);
}

void HistogramTool::showScale(const std::string& minimum, float low, float mid, float maximum)
{
    lblMinSafe.SetCaption(minimum);
    lblLow.SetCaption(GeneralNumber(low, surroundings_.regional));
    lblMid.SetCaption(GeneralNumber(mid, surroundings_.regional));
    lblMax.SetCaption(GeneralNumber(maximum, surroundings_.regional));
}

HistogramTool::BegunReport HistogramTool::beginReport(const ReportTexts& texts,
                                                      const LevelCentres& centres,
                                                      const InRangeHours& hours) const
{
    auto document = std::make_unique<ReportDocument>();
    document->SetAuthor(texts.author);
    document->SetCreator(texts.author);
    document->SetSubject(texts.subject);
    document->SetTitle(texts.title);
    const std::string facility = facilityName(data());

    ReportPage& page = layout::addPage(*document);
    const Date now = CurrentDateTime(surroundings_.clock);
    const float head =
        drawHead(page, {.facility = facility,
                        .heading = texts.heading,
                        .period = texts.period,
                        .analyzed = lblHeader.Caption(),
                        .printed = FormatTimeStamp(now, 10, surroundings_.regional)});
    const auto count = [](std::int32_t number) { return std::to_string(number) + " Hours"; };
    const float chartTop =
        drawLevels(page,
                   {{{centres[0], lblLowOpPercent.Caption(), count(hours.LowHours)},
                     {centres[1], lblMidOpPercent.Caption(), count(hours.MidHours)},
                     {centres[2], lblHighOpPercent.Caption(), count(hours.HighHours)}}},
                   head);
    return {std::move(document), &page, chartTop};
}

void HistogramTool::saveClick()
{
    CommonDialog1.SetFilter("PDF File (*.pdf)|*.pdf");
    CommonDialog1.SetDefaultExt(".pdf");
    screen::runSaveClick({
        .title = title_,
        .dialog = CommonDialog1,
        .services = surroundings_.services,
        .write =
            [this] {
                return screen::outcomeOf(
                    [this] { buildReport()->SaveToFile(CommonDialog1.FileName()); });
            },
        .passOver = [](const Error&) {},
        .preview = chkPreview.isChecked(),
    });
}

} // namespace k7deval::histogram
