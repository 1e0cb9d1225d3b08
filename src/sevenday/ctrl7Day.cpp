#include "sevenday/ctrl7Day.h"

#include "foundation/UtilityFunctions.h"
#include "sevenday/NumberedLine.h"

#include <utility>

namespace k7deval
{

namespace
{

constexpr float kPageLeft = 120;
constexpr float kPageTop = 120;
/// From midnight to the last minute of a day.
constexpr double kLastMinuteOfDay = 1439;
constexpr std::int32_t kPdfEntry = 1;

} // namespace

ctrl7Day::ctrl7Day(const screen::Surroundings& surroundings)
    : Control("ctrl7Day"), ctrl7DaySetUp1(*this, "ctrl7DaySetUp1", surroundings),
      ctrl7DayResult1(*this, "ctrl7DayResult1", surroundings.regional),
      CommonDialog1(*this, "CommonDialog1", surroundings.services), surroundings_(surroundings),
      test_(surroundings.regional), report_(test_, ctrl7DaySetUp1, surroundings),
      export_(test_, ctrl7DaySetUp1)
{
    cmdSave.SetEnabled(false);
    cmdBack.Clicked.Connect([this] { SwitchPage(Page::SetUp); });
    cmdNext.Clicked.Connect([this] { SwitchPage(Page::Result); });
    cmdSave.Clicked.Connect([this] { saveClick(); });
}

void ctrl7Day::Setup(std::shared_ptr<MessageSink> irm, std::shared_ptr<DIServer> objDI)
{
    test_.irm = std::move(irm);
    test_.DIServer = std::move(objDI);
    ctrl7DaySetUp1.Setup(test_.irm, test_.DIServer);
    ctrl7DaySetUp1.move(kPageLeft, kPageTop);
    chkPreview.setChecked(true);
    cmdSave.setPlace(cmdNext.place());
    ctrl7DayResult1.move(kPageLeft, kPageTop);
    test_.blnRetrieveCals = true;
    test_.blnApplyLimits = true;
    SwitchPage(Page::SetUp);
}

void ctrl7Day::Terminate()
{
    test_.DIServer.reset();
    test_.irm.reset();
    ctrl7DaySetUp1.Terminate();
}

PropertyList ctrl7Day::results() const
{
    return {{"Test", {test_.Properties()}}, {"Report", {report_.Properties()}}};
}

/// After a failure the hourglass stays and the steps behind the failed one have not run.
void ctrl7Day::SwitchPage(Page page)
{
    runPosting(test_.irm, NumberedLine::SwitchPage, [&] {
        const bool blnFirst = page == Page::SetUp;
        SetMousePointer(screen::MousePointer::Hourglass);
        ctrl7DaySetUp1.SetVisible(blnFirst);
        ctrl7DayResult1.SetVisible(false);
        cmdBack.SetEnabled(!blnFirst);
        cmdNext.SetVisible(blnFirst);
        cmdSave.SetVisible(false);
        chkPreview.SetVisible(false);
        if (!blnFirst)
            evaluate();
        ctrl7DayResult1.SetVisible(!blnFirst);
        cmdSave.SetVisible(!blnFirst);
        chkPreview.SetVisible(!blnFirst);
        SetMousePointer(screen::MousePointer::Default);
    });
}

void ctrl7Day::evaluate()
{
    ReadSetup();
    if (test_.blnRetrieveCals) {
        test_.RetrieveCals();
        test_.blnRetrieveCals = false;
    }
    // Never set back: the limits are applied anew at every Next.
    if (test_.blnApplyLimits)
        test_.ApplyLimits();
    test_.EvaluateDriftTest();
    fillDisplay();
    fillResultPage();
}

void ctrl7Day::fillDisplay()
{
    if (ctrl7DaySetUp1.ShowAllCalsWithinDrift())
        test_.ShowCalsWithinDrift();
    else if (ctrl7DaySetUp1.ShowOnlyDriftCals())
        test_.ShowDriftCals();
    else
        test_.ShowIntervalCals();
}

void ctrl7Day::fillResultPage()
{
    ctrl7DayResult1.SetAnalyzerText(ctrl7DaySetUp1.AnalyzerInfoText());
    test_.BuildSummary(ctrl7DaySetUp1.ShowSummary());
    ctrl7DayResult1.SetSummaryText(test_.strSummary);
    if (test_.hasRunsToShow(ctrl7DaySetUp1.ShowOnlyDriftCals()))
        ctrl7DayResult1.SetTreeView(test_.objDaysToDisplay);
    else
        ctrl7DayResult1.ClearTreeView();
    ctrl7DayResult1.SetVisible(true);
    cmdSave.SetEnabled(true);
}

void ctrl7Day::ReadSetup()
{
    const ctrl7DaySetUp& page = ctrl7DaySetUp1;
    if (page.StartDate() != test_.dtStart ||
        page.EndDate() != DateAddExact("n", -kLastMinuteOfDay, test_.dtEnd) ||
        page.AnalyzedScale() != test_.strAnalyzedScale ||
        page.AnalyzedPID() != test_.lngAnalyzedPID) {
        test_.blnRetrieveCals = true;
        test_.blnApplyLimits = true;
    }
    test_.lngAnalyzedPID = page.AnalyzedPID();
    test_.strAnalyzedScale = page.AnalyzedScale();
    test_.dtStart = page.StartDate();
    test_.dtEnd = DateAddExact("n", kLastMinuteOfDay, page.EndDate());

    if (page.PercentOfSpanLimit() != test_.sngPercentOfSpanLimit ||
        page.AbsoluteLimit() != test_.sngAbsoluteLimit ||
        page.PercentOfRefLimit() != test_.sngPercentOfRefLimit ||
        page.LimitRules() != test_.lngLimitRule)
        test_.blnApplyLimits = true;
    test_.sngPercentOfSpanLimit = page.PercentOfSpanLimit();
    test_.sngPercentOfRefLimit = page.PercentOfRefLimit();
    test_.sngAbsoluteLimit = page.AbsoluteLimit();
    test_.lngLimitRule = page.LimitRules();
    // These touch no flag. Zero calibrations are told apart while runs are built, so a change of
    // that option alone does not reach runs that are in memory.
    test_.blnSixOfSeven = page.SixOfSevenCals();
    test_.blnIncludeManualCals = page.IncludeManualCals();
    test_.blnUseZeroCals = page.UseZeroCals();
}

void ctrl7Day::saveClick()
{
    const bool under40CFR75 =
        PIDPart(test_.lngAnalyzedPID, pidpart::kProgramCode) == kProgram40CFR75;
    CommonDialog1.SetFilter(under40CFR75 ? "PDF File (*.pdf)|*.pdf|ECMPS Export(*.xml)|*.xml"
                                         : "PDF File (*.pdf)|*.pdf");
    CommonDialog1.SetDefaultExt(".pdf");
    screen::runSaveClick({
        .title = "7-Day Drift",
        .dialog = CommonDialog1,
        .services = surroundings_.services,
        .write = [this] { return writeFile(); },
        .passOver =
            [this](const Error& error) { postLine(test_.irm, NumberedLine::SaveClick, error); },
        .preview = chkPreview.isChecked(),
    });
}

screen::WriteOutcome ctrl7Day::writeFile()
{
    if (CommonDialog1.FilterIndex() == kPdfEntry)
        return {false, report_.WriteDriftReport(CommonDialog1.FileName())};
    if (!mayExport())
        return {true, std::nullopt};
    return {false, export_.WriteEcmpsExport(CommonDialog1.FileName())};
}

/// A test passed with the allowed failed run has six good ones and is asked about, too.
bool ctrl7Day::mayExport()
{
    if (test_.lngGoodCals == kRunsOfATest)
        return true;
    return surroundings_.services.MsgBox({"The 7-Day Drift Test has not been completed.\r\nAre you "
                                          "sure want to export the data?",
                                          "Failed Drift Test", screen::MsgBoxButtons::YesNo,
                                          screen::MsgBoxIcon::Exclamation}) ==
           screen::MsgBoxAnswer::Yes;
}

} // namespace k7deval
