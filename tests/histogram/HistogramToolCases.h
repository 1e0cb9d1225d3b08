#pragma once

#include "histogram/HistogramRig.h"
#include "report/PdfWriter.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <set>

/// What load and range evaluation do alike, as cases for the rig of either. A rig tells `kSeries`
/// (the PID of its series), `kHeader` (over its results), `kTitle` (of its boxes) and `makeStale`.
namespace k7deval::test
{

template <class Rig> class HistogramToolCases : public ::testing::Test
{
protected:
    using Action = std::function<void(Rig&)>;

    /// Runs an action with a failure at each of its calls of the data, each time on a new tool.
    static void atEveryCall(const Action& prepare, const Action& action, const Action& expectation)
    {
        Rig undisturbed;
        prepare(undisturbed);
        undisturbed.site->calls.clear();
        action(undisturbed);
        const Lines calls = undisturbed.site->calls;
        EXPECT_FALSE(calls.empty());
        for (std::size_t at = 0; at < calls.size(); ++at) {
            SCOPED_TRACE(calls[at] + ", call " + std::to_string(at));
            Rig rig;
            prepare(rig);
            rig.site->calls.clear();
            rig.site->failure = [at](const std::string&, std::size_t index) {
                return index == at ? std::optional(Error(440, "the line is down")) : std::nullopt;
            };
            expectation(rig);
        }
    }

    static void nothing(Rig&) {}
    static void calculate(Rig& rig) { rig.hours({10, 50, 90}).calculate(); }
};

/// A tool after a calculation, with the preview on, and a folder to save in.
template <class Rig> struct SavingRig : Rig {
    SavingRig()
    {
        this->services.saveAnswer = screen::SaveAnswer{path, 1};
        this->hours({10, 50, 90}).calculate();
        this->tool.chkPreview.Press();
        this->services.boxes.clear();
        this->takeReads();
    }
    SavingRig& save()
    {
        this->tool.cmdSave.Press();
        return *this;
    }
    /// The file is there, and the user wants it deleted.
    SavingRig& existing()
    {
        test::writeFile(path, "old");
        this->services.answers = {screen::MsgBoxAnswer::Yes};
        return *this;
    }
    test::TemporaryFolder folder;
    std::string path = folder.file("report.pdf");
};

TYPED_TEST_SUITE_P(HistogramToolCases);

TYPED_TEST_P(HistogramToolCases, AtTheStartTheNewestFinishedQuarterIsSelected)
{
    const ToolAlone<typename TypeParam::Tool> rig(makeDate(2025, 1, 15, 9));
    EXPECT_EQ(rig.tool.cmbQTR.List(), (Lines{"Q1", "Q2", "Q3", "Q4"}));
    EXPECT_EQ(rig.tool.cmbYear.List(), (Lines{"2025", "2024", "2023"}));
    EXPECT_EQ(rig.tool.cmbQTR.Text(), "Q4");
    EXPECT_EQ(rig.tool.cmbQTR.ListIndex(), 3);
    EXPECT_EQ(rig.tool.cmbYear.Text(), "2024");
    EXPECT_EQ(rig.tool.cmbYear.ListIndex(), 1);
}

TYPED_TEST_P(HistogramToolCases, AtTheStartNothingIsEvaluatedOrAskedFor)
{
    const ToolAlone<typename TypeParam::Tool> rig;
    EXPECT_TRUE(rig.tool.NeedsEvaluation());
    EXPECT_FALSE(rig.tool.cmdSave.Enabled());
    EXPECT_TRUE(TypeParam::isEmpty(rig.tool));
    EXPECT_EQ(rig.tool.evaluation().totalInRange(), 0);
    EXPECT_EQ(rig.tool.evaluation().Bins, histogram::HourBins());
    EXPECT_EQ(rig.tool.DIServer(), nullptr);
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Default);
    EXPECT_TRUE(rig.services.boxes.empty());
    EXPECT_TRUE(rig.services.filters.empty());
    EXPECT_TRUE(rig.services.dateRequests.empty());
}

TYPED_TEST_P(HistogramToolCases, ClosingIsLeftToTheHost)
{
    TypeParam rig;
    int closed = 0;
    rig.tool.CloseClicked.Connect([&] { ++closed; });
    EXPECT_EQ(rig.changesBy([&] { rig.tool.cmdClose.Press(); }), Lines());
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(rig.tool.DIServer(), rig.server);
}

TYPED_TEST_P(HistogramToolCases, AYearCanBeTypedAndAQuarterCannot)
{
    TypeParam rig;
    rig.tool.cmbYear.Type("1999");
    EXPECT_EQ(rig.tool.cmbYear.Text(), "1999");
    EXPECT_EQ(rig.tool.cmbYear.ListIndex(), -1);
    rig.tool.cmbQTR.Type("Q9");
    EXPECT_EQ(rig.tool.cmbQTR.Text(), "Q1");
}

TYPED_TEST_P(HistogramToolCases, TheDataIsReleasedWhenTheToolEndsOrIsDestroyed)
{
    auto rig = std::make_unique<TypeParam>();
    const std::weak_ptr<DIServer> server = std::exchange(rig->server, nullptr);
    EXPECT_FALSE(server.expired());
    rig->tool.Terminate();
    EXPECT_TRUE(server.expired());
    EXPECT_EQ(rig->tool.DIServer(), nullptr);
    rig = std::make_unique<TypeParam>();
    const std::weak_ptr<DIServer> other = rig->server;
    rig.reset();
    EXPECT_TRUE(other.expired());
}

TYPED_TEST_P(HistogramToolCases, WithTheDataTakenAwayNothingCanBeSavedOrCalculated)
{
    TypeParam rig;
    rig.hours({50}).calculate();
    rig.tool.SetDIServer(nullptr);
    EXPECT_EQ(rig.tool.DIServer(), nullptr);
    for (const auto* list : {&rig.tool.cmbUnit, &rig.tool.cmbParam}) {
        EXPECT_EQ(list->listCount(), 0);
        EXPECT_EQ(list->Text(), "");
    }
    EXPECT_TRUE(TypeParam::isEmpty(rig.tool));
    EXPECT_FALSE(rig.tool.cmdSave.Enabled());
    EXPECT_EQ(rig.results().MidHours, 1) << "only the screen is cleared";
    rig.tool.cmdSave.Press();
    EXPECT_TRUE(rig.services.filters.empty());
    EXPECT_EQ(errorOf([&] { rig.calculate(); }), 381);
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Hourglass);
}

TYPED_TEST_P(HistogramToolCases, PIDsStandAheadOfTheNamesAsTheyAreNow)
{
    TypeParam rig;
    const std::string pid = "[" + PIDToText(TypeParam::kSeries) + "] ";
    rig.site->parameter(TypeParam::kSeries).name = "Renamed";
    rig.hours({50}).calculate();
    const Lines changes = rig.changesBy([&] { rig.tool.chkShowPID.Press(); });
    EXPECT_EQ(changes.size(), 3U) << "the box, the list and its text";
    EXPECT_EQ(rig.tool.cmbParam.Text(), pid + "Renamed");
    EXPECT_EQ(rig.tool.cmbParam.ItemData(), TypeParam::kSeries);
    EXPECT_FALSE(rig.tool.NeedsEvaluation());
    rig.tool.chkShowPID.Press();
    EXPECT_EQ(rig.tool.cmbParam.Text(), "Renamed");
}

TYPED_TEST_P(HistogramToolCases, PIDsAreShownOfTheNextUnitTooAndNeverOfUnits)
{
    TypeParam rig;
    rig.tool.chkShowPID.Press();
    rig.tool.cmbUnit.Pick(1);
    EXPECT_EQ(rig.tool.cmbParam.Text(), "[" + PIDToText(TypeParam::kOtherSeries) + "] " +
                                            rig.site->parameter(TypeParam::kOtherSeries).name);
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{"GT1", "GT2"}));
    rig.tool.chkShowPID.Press();
    EXPECT_EQ(rig.tool.cmbParam.Text(), rig.site->parameter(TypeParam::kOtherSeries).name);
}

TYPED_TEST_P(HistogramToolCases, PIDsOfNoDataAreNone)
{
    ToolAlone<typename TypeParam::Tool> rig;
    rig.tool.chkShowPID.Press();
    EXPECT_TRUE(rig.tool.chkShowPID.isChecked());
    EXPECT_EQ(rig.tool.cmbParam.listCount(), 0);
}

TYPED_TEST_P(HistogramToolCases, ACalculationWorksUnderTheHourglassAndCanBeSaved)
{
    TypeParam rig;
    std::set<screen::MousePointer> seen;
    rig.site->failure = [&](const std::string&, std::size_t) {
        seen.insert(rig.tool.MousePointer());
        return std::optional<Error>();
    };
    rig.hours({10, 50, 90}).calculate();
    EXPECT_EQ(seen, std::set{screen::MousePointer::Hourglass});
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Default);
    EXPECT_TRUE(rig.tool.cmdSave.Enabled());
    EXPECT_FALSE(rig.tool.NeedsEvaluation());
    EXPECT_EQ(rig.results().LowHours, 1);
    EXPECT_EQ(rig.results().MidHours, 1);
    EXPECT_EQ(rig.results().HighHours, 1);
}

TYPED_TEST_P(HistogramToolCases, PressedAgainReadsNothingAndShowsTheSame)
{
    TypeParam rig;
    rig.hours({10, 50, 90}).calculate().takeReads();
    rig.hours({10, 10, 10});
    EXPECT_EQ(rig.changesBy([&] { rig.calculate(); }), Lines());
    EXPECT_EQ(rig.takeReads(), Reads());
    TypeParam::makeStale(rig.tool);
    rig.calculate();
    EXPECT_EQ(rig.results().LowHours, 3) << "counted from zero";
    EXPECT_EQ(rig.results().MidHours, 0);
}

TYPED_TEST_P(HistogramToolCases, AFailedCalculationIsTheHostsAndTheNextOneIsWhole)
{
    this->atEveryCall(this->nothing, this->calculate, [this](TypeParam& rig) {
        EXPECT_EQ(errorOf([&] { this->calculate(rig); }), 440);
        EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Hourglass);
        EXPECT_FALSE(rig.tool.cmdSave.Enabled());
        rig.site->failure = nullptr;
        this->calculate(rig);
        TypeParam fresh;
        this->calculate(fresh);
        EXPECT_EQ(changesBetween(snapshotOf(fresh.tool), snapshotOf(rig.tool)), Lines());
        EXPECT_EQ(rig.results().Bins, fresh.results().Bins);
    });
}

TYPED_TEST_P(HistogramToolCases, AFailureInTheMiddleLeavesWhatWasCountedAndItIsToBeDoneAgain)
{
    TypeParam rig;
    rig.series().fill(makeDate(2023, 1, 1), makeDate(2024, 3, 31, 23), 50);
    rig.site->failure = [&](const std::string& call, std::size_t) {
        return call == "DIParameter.ReadData" && rig.site->countCalls(call) == 2
                   ? std::optional(Error(1234, "no such archive"))
                   : std::nullopt;
    };
    EXPECT_EQ(errorOf([&] { rig.calculate(); }), 1234);
    EXPECT_EQ(rig.results().MidHours, 91 * 24);
    EXPECT_TRUE(rig.tool.NeedsEvaluation());
    EXPECT_TRUE(TypeParam::isEmpty(rig.tool));
}

TYPED_TEST_P(HistogramToolCases, AParameterThatIsGoneShowsZerosAndStaysToBeEvaluated)
{
    TypeParam rig;
    rig.hours({10, 50, 90}).calculate();
    TypeParam::makeStale(rig.tool);
    rig.takeReads();
    rig.tool.cmbYear.Type("abc");
    rig.without(TypeParam::kSeries).calculate();
    EXPECT_EQ(rig.takeReads(), Reads());
    EXPECT_EQ(rig.results().totalInRange(), 0);
    EXPECT_EQ(rig.results().Bins, histogram::HourBins());
    EXPECT_TRUE(rig.tool.NeedsEvaluation());
    EXPECT_TRUE(rig.tool.cmdSave.Enabled());
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Default);
    EXPECT_EQ(rig.tool.cmbYear.Text(), "2024") << "the period was worked out before";
    EXPECT_EQ(rig.tool.lblHeader.Caption(), "") << "it keeps its text";
    EXPECT_EQ(rig.tool.lblMidOpPercent.Caption(), "-----");
    EXPECT_EQ(rig.tool.lblMax.Caption(), "100");
    EXPECT_TRUE(barsLieFlat(rig.tool.lblBar));
}

TYPED_TEST_P(HistogramToolCases, TheHeaderNamesUnitAndParameterAsItIsNowWithoutItsPID)
{
    TypeParam rig;
    rig.tool.chkShowPID.Press();
    rig.hours({50}).calculate();
    EXPECT_EQ(rig.tool.lblHeader.Caption(), TypeParam::kHeader);
    rig.site->parameter(TypeParam::kSeries).name = "Renamed";
    rig.calculate();
    EXPECT_EQ(rig.tool.lblHeader.Caption(), "GT1 Renamed");
    rig.without(TypeParam::kSeries);
    EXPECT_EQ(rig.changesBy([&] { rig.calculate(); }), Lines()) << "of one that goes later";
}

TYPED_TEST_P(HistogramToolCases, TheBarsStandForTheBins)
{
    TypeParam rig;
    rig.addHours(1600, 12).addHours(1, 99).calculate();
    EXPECT_EQ(rig.tool.lblBar[3].place().Top, 645);
    EXPECT_EQ(rig.tool.lblBar[20].place().Top, 2685) << "one hour is a pixel high";
    EXPECT_EQ(rig.tool.lblBar[1].place().Height, 0);
    EXPECT_EQ(rig.tool.lblBar[3].ToolTipText(), "10 - 15   Op Hours: 1600");
}

TYPED_TEST_P(HistogramToolCases, TheSharesAreOfTheHoursInTheRangeAlone)
{
    TypeParam rig;
    rig.hours({10, 90, 90, 150, 160}).calculate();
    const Lines percents = percentsOf(rig.tool);
    EXPECT_EQ(percents[0].substr(0, 5), "33.3%");
    EXPECT_EQ(percents[1].substr(0, 4), "0.0%");
    EXPECT_EQ(percents[2].substr(0, 5), "66.7%");
}

TYPED_TEST_P(HistogramToolCases, WithoutHoursInTheRangeAreStrokesAndFlatBars)
{
    for (const Hours& values : {Hours(), Hours{150, 160}}) {
        TypeParam rig;
        rig.hours(values).calculate();
        EXPECT_EQ(percentsOf(rig.tool), (Lines{"-----", "-----", "-----"}));
        EXPECT_TRUE(barsLieFlat(rig.tool.lblBar));
        EXPECT_EQ(rig.tool.lblHeader.Caption(), TypeParam::kHeader);
    }
}

TYPED_TEST_P(HistogramToolCases, ClearedResultsStayInTheEvaluation)
{
    TypeParam rig;
    rig.hours({10, 50, 90}).calculate();
    const histogram::HourBins bins = rig.results().Bins;
    TypeParam::makeStale(rig.tool);
    EXPECT_TRUE(TypeParam::isEmpty(rig.tool));
    EXPECT_FALSE(rig.tool.cmdSave.Enabled());
    EXPECT_EQ(rig.results().Bins, bins);
    EXPECT_EQ(rig.tool.lbl000.Caption(), "Minimum");
    EXPECT_EQ(rig.tool.lbl100.Caption(), "Maximum");
}

TYPED_TEST_P(HistogramToolCases, TheWalkBeginsWithTheQuarterThatIsPicked)
{
    for (int quarter = 1; quarter <= 4; ++quarter) {
        TypeParam rig;
        rig.tool.cmbQTR.Pick(quarter - 1);
        rig.tool.cmbYear.Pick(2);
        rig.calculate();
        EXPECT_EQ(rig.takeReads(), quartersBackFrom(TypeParam::kSeries, 2022, quarter, 12));
    }
}

TYPED_TEST_P(HistogramToolCases, AYearOrAQuarterThatIsNoneIsReplacedAndTheResultsStandAllTheSame)
{
    for (const auto& [typed, year] : {std::pair("1998", 1998), {"abc", 2024}, {"10000", 2024}}) {
        TypeParam rig;
        rig.tool.cmbYear.Type(typed);
        rig.tool.cmbQTR.SetListIndex(-1);
        rig.calculate();
        EXPECT_EQ(rig.site->reads.front().start, makeDate(year, 1, 1)) << typed;
        EXPECT_EQ(rig.tool.cmbYear.Text(), std::to_string(year));
        EXPECT_EQ(rig.tool.cmbQTR.Text(), "Q1");
        EXPECT_FALSE(rig.tool.NeedsEvaluation()) << typed;
        EXPECT_FALSE(TypeParam::isEmpty(rig.tool)) << typed;
        EXPECT_TRUE(rig.tool.cmdSave.Enabled()) << typed;
    }
}

TYPED_TEST_P(HistogramToolCases, BeyondTheYearsOfADateTheWalkFails)
{
    TypeParam rig;
    rig.tool.cmbYear.Type("9999");
    rig.tool.cmbQTR.Pick(3);
    EXPECT_EQ(errorOf([&] { rig.calculate(); }), 5) << "the last day of all has no next one";
    rig.tool.cmbYear.Type("100");
    rig.tool.cmbQTR.Pick(0);
    EXPECT_EQ(errorOf([&] { rig.calculate(); }), 5) << "nor the first day one before";
    EXPECT_EQ(rig.takeReads(), quartersBackFrom(TypeParam::kSeries, 100, 1, 1));
    EXPECT_TRUE(rig.tool.NeedsEvaluation());
}

TYPED_TEST_P(HistogramToolCases, AQuarterPickedAfterwardsWaitsForAnotherChange)
{
    TypeParam rig;
    rig.hours({10, 50, 90}).calculate().takeReads();
    rig.tool.cmbQTR.Pick(2);
    rig.tool.cmbYear.Pick(1);
    EXPECT_EQ(rig.changesBy([&] { rig.calculate(); }), Lines());
    EXPECT_EQ(rig.takeReads(), Reads());
    TypeParam::makeStale(rig.tool);
    rig.calculate();
    EXPECT_EQ(rig.takeReads().front(), quarterOfHours(TypeParam::kSeries, 2023, 3));
}

TYPED_TEST_P(HistogramToolCases, SavingWritesTheReportThatAHostCanBuildAndOpensIt)
{
    SavingRig<TypeParam> rig;
    rig.save();
    EXPECT_EQ(rig.services.filters, Lines{"PDF File (*.pdf)|*.pdf"});
    EXPECT_EQ(rig.services.extensions, Lines{".pdf"});
    EXPECT_EQ(test::contentOf(rig.path), pdfOf(*rig.tool.buildReport()));
    EXPECT_EQ(rig.services.opened, Lines{rig.path});
    EXPECT_TRUE(rig.services.boxes.empty());
    EXPECT_EQ(rig.changesBy([&] { rig.existing().save(); }), Lines());
    EXPECT_EQ(rig.takeReads(), Reads()) << "the hours are not read again";
    EXPECT_FALSE(rig.tool.NeedsEvaluation());
}

TYPED_TEST_P(HistogramToolCases, SavingWithoutThePreviewOpensNothing)
{
    SavingRig<TypeParam> rig;
    rig.tool.chkPreview.Press();
    rig.save();
    EXPECT_EQ(rig.folder.names(), Lines{"report.pdf"});
    EXPECT_EQ(rig.services.opened, Lines());
}

TYPED_TEST_P(HistogramToolCases, SavingThatIsCancelledTouchesNothing)
{
    SavingRig<TypeParam> rig;
    rig.services.saveAnswer.reset();
    rig.site->calls.clear();
    rig.save();
    EXPECT_EQ(rig.site->calls, Lines());
    EXPECT_EQ(rig.folder.names(), Lines());
    EXPECT_TRUE(rig.services.boxes.empty());
    EXPECT_TRUE(rig.tool.cmdSave.Enabled());
}

TYPED_TEST_P(HistogramToolCases, SavingAnsweredNoLeavesTheFile)
{
    SavingRig<TypeParam> rig;
    rig.existing().services.answers = {screen::MsgBoxAnswer::No};
    rig.save();
    EXPECT_EQ(test::contentOf(rig.path), "old");
    EXPECT_EQ(rig.services.boxes.size(), 1U);
    EXPECT_EQ(rig.services.opened, Lines());
}

TYPED_TEST_P(HistogramToolCases, SavingThatFailsBehindADeletionSaysSoUnderTheNameOfTheTool)
{
    SavingRig<TypeParam> rig;
    failAt(*rig.site, "DIServer.LookupService");
    rig.existing().save();
    ASSERT_EQ(rig.services.boxes.size(), 2U);
    EXPECT_EQ(
        rig.services.boxes[1],
        (screen::MsgBoxRequest{"Error Deleting File:  440:the line is down", TypeParam::kTitle,
                               screen::MsgBoxButtons::OK, screen::MsgBoxIcon::None}));
    EXPECT_EQ(rig.services.opened, Lines());
    EXPECT_EQ(rig.folder.names(), Lines());
}

TYPED_TEST_P(HistogramToolCases, SavingThatFailsWithoutADeletionIsSilentAndGoesOnToThePreview)
{
    SavingRig<TypeParam> rig;
    failAt(*rig.site, "DIServer.LookupService");
    rig.services.openError = Error(errors::kFileNotFound);
    EXPECT_NO_THROW(rig.save());
    EXPECT_EQ(rig.services.opened, Lines{rig.path});
    EXPECT_TRUE(rig.services.boxes.empty());
    rig.services.saveError = Error(440, "no dialog");
    EXPECT_NO_THROW(rig.save());
    EXPECT_EQ(rig.services.opened, Lines{rig.path}) << "no file was chosen";
    EXPECT_EQ(rig.folder.names(), Lines());
}

TYPED_TEST_P(HistogramToolCases, AFailureOfTheDataWhileSavingNeverReachesTheHost)
{
    const test::TemporaryFolder folder;
    const auto save = [&](TypeParam& rig) {
        rig.services.saveAnswer = screen::SaveAnswer{folder.file("report.pdf"), 1};
        rig.tool.cmdSave.Press();
        std::filesystem::remove(folder.file("report.pdf"));
    };
    this->atEveryCall(this->calculate, save, [&](TypeParam& rig) {
        EXPECT_NO_THROW(save(rig));
        EXPECT_TRUE(rig.tool.cmdSave.Enabled());
        EXPECT_EQ(folder.names(), Lines());
    });
}

TYPED_TEST_P(HistogramToolCases, AReportOfNoDataCannotBeBuilt)
{
    TypeParam rig;
    rig.tool.SetDIServer(nullptr);
    EXPECT_EQ(errorOf([&] { static_cast<void>(rig.tool.buildReport()); }), 91);
    ToolAlone<typename TypeParam::Tool> alone;
    EXPECT_EQ(errorOf([&] { static_cast<void>(alone.tool.buildReport()); }), 91);
}

REGISTER_TYPED_TEST_SUITE_P(
    HistogramToolCases, AtTheStartTheNewestFinishedQuarterIsSelected,
    AtTheStartNothingIsEvaluatedOrAskedFor, ClosingIsLeftToTheHost,
    AYearCanBeTypedAndAQuarterCannot, TheDataIsReleasedWhenTheToolEndsOrIsDestroyed,
    WithTheDataTakenAwayNothingCanBeSavedOrCalculated, PIDsStandAheadOfTheNamesAsTheyAreNow,
    PIDsAreShownOfTheNextUnitTooAndNeverOfUnits, PIDsOfNoDataAreNone,
    ACalculationWorksUnderTheHourglassAndCanBeSaved, PressedAgainReadsNothingAndShowsTheSame,
    AFailedCalculationIsTheHostsAndTheNextOneIsWhole,
    AFailureInTheMiddleLeavesWhatWasCountedAndItIsToBeDoneAgain,
    AParameterThatIsGoneShowsZerosAndStaysToBeEvaluated,
    TheHeaderNamesUnitAndParameterAsItIsNowWithoutItsPID, TheBarsStandForTheBins,
    TheSharesAreOfTheHoursInTheRangeAlone, WithoutHoursInTheRangeAreStrokesAndFlatBars,
    ClearedResultsStayInTheEvaluation, TheWalkBeginsWithTheQuarterThatIsPicked,
    AYearOrAQuarterThatIsNoneIsReplacedAndTheResultsStandAllTheSame,
    BeyondTheYearsOfADateTheWalkFails, AQuarterPickedAfterwardsWaitsForAnotherChange,
    SavingWritesTheReportThatAHostCanBuildAndOpensIt, SavingWithoutThePreviewOpensNothing,
    SavingThatIsCancelledTouchesNothing, SavingAnsweredNoLeavesTheFile,
    SavingThatFailsBehindADeletionSaysSoUnderTheNameOfTheTool,
    SavingThatFailsWithoutADeletionIsSilentAndGoesOnToThePreview,
    AFailureOfTheDataWhileSavingNeverReachesTheHost, AReportOfNoDataCannotBeBuilt);

} // namespace k7deval::test
