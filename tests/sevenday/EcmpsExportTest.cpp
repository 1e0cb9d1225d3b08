#include "sevenday/ExportRig.h"
#include "support/Places.h"

#include <gtest/gtest.h>

#include <filesystem>

/// What the export writes.
namespace k7deval::test
{

namespace
{

/// The golden file of that name without the line breaks and indents that make it readable.
std::string golden(const std::string& name)
{
    const std::string readable =
        test::contentOf(test::projectFile("tests/golden/7day-export/" + name));
    std::string text;
    bool atLineStart = true;
    for (const char c : readable) {
        if (c != '\n' && !(atLineStart && c == ' '))
            text += c;
        atLineStart = c == '\n' || (atLineStart && c == ' ');
    }
    return text;
}

std::size_t countOf(const std::string& text, const std::string& piece)
{
    std::size_t count = 0;
    for (auto at = text.find(piece); at != std::string::npos; at = text.find(piece, at + 1))
        ++count;
    return count;
}

std::size_t countRuns(ExportRig& rig)
{
    return countOf(rig.text(), "<CalibrationInjectionData>");
}

CalRun withAPS(CalRun run, bool zero, bool span)
{
    run->ZeroCal->UsesAPS = zero;
    run->SpanCal->UsesAPS = span;
    return run;
}

} // namespace

TEST(Export, WritesTheWholeFile)
{
    // 0.25 of a span of 200 is 0.125 %, 1.5 is 0.75 %, 0.5 is 0.25 %: halves go up. The last
    // injection is held to the alternative: its drift of 5.04 stands in ppm.
    AnalyzerFacts facts;
    facts.scale = std::string("LOW");
    ExportRig rig(facts);
    rig.page.cmbTestReason.Pick(1);
    CalRun first = runAt(makeDate(2024, 3, 1, 8, 15));
    first->ZeroCal->MeasuredValue = 0.25F;
    first->ZeroCal->InjectionEndTime = makeDate(2024, 3, 1, 8, 5);
    first->SpanCal->MeasuredValue = 161.5F;
    first->SpanCal->InjectionEndTime = makeDate(2024, 3, 1, 8, 25);
    CalRun second = withAPS(offline(runAt(makeDate(2024, 3, 2, 8, 15))), false, true);
    second->ZeroCal->MeasuredValue = -0.5F;
    second->ZeroCal->InjectionEndTime = makeDate(2024, 3, 2);
    second->SpanCal->MeasuredValue = 154.96F;
    second->SpanCal->GasLevel = "MID";
    second->SpanCal->InjectionEndTime = makeDate(2024, 3, 2, 23, 59);
    rig.show({dayOf(first), dayOf(second)});
    EXPECT_EQ(rig.text(), golden("two-runs.xml"));
    EXPECT_EQ(rig.messages->lines(), Lines());
}

TEST(Export, WithNoRunCountedHasNoInjectionsAndNoDates)
{
    ExportRig rig;
    rig.test.lngGoodCals = 0;
    rig.show({dayWith(makeDate(2024, 3, 10), {unused(runAt(kMorning))})});
    EXPECT_EQ(rig.text(), golden("no-run.xml"));
}

TEST(Export, OfAnEmptyListOfDaysIsWrittenToo)
{
    ExportRig rig;
    rig.test.lngGoodCals = 0;
    rig.test.objDaysToDisplay.resizeKeeping(-1);
    EXPECT_EQ(rig.text(), golden("no-run.xml"));
}

struct ScaleCodeCase {
    const char* scale;
    const char* code;
};

TEST(Export, OnlyTheLowScaleIsCodedL)
{
    for (const ScaleCodeCase& row :
         {ScaleCodeCase{"LOW", "L"}, {"MID", "H"}, {"HIGH", "H"}, {"SINGLE", "H"}, {"low", "H"}}) {
        AnalyzerFacts facts;
        facts.scale = std::string(row.scale);
        ExportRig rig(facts);
        rig.show({});
        EXPECT_EQ(rig.valueOf("SpanScaleCode"), row.code) << row.scale;
    }
}

struct ResultCase {
    const char* what;
    int goodCals;
    int failedCals;
    bool zeroAPS;
    bool spanAPS;
    const char* code;
};

TEST(Export, TheResultGoesByTheGoodRunsAndTheAlternativeSpecification)
{
    constexpr ResultCase kRows[] = {
        {"passed", 7, 0, false, false, "PASSED"},
        {"passed with an alternative for the zero gas", 7, 0, true, false, "PASSAPS"},
        {"passed with an alternative for the span gas", 7, 0, false, true, "PASSAPS"},
        {"more than seven", 8, 0, false, false, "PASSED"},
        {"six and the allowed failure", 6, 1, false, false, "FAILED"},
        {"six and the allowed failure with an alternative", 6, 1, true, true, "FAILED"},
        {"none", 0, 0, false, false, "FAILED"},
    };
    for (const ResultCase& row : kRows) {
        ExportRig rig;
        rig.test.lngGoodCals = row.goodCals;
        rig.test.lngFailedCals = row.failedCals;
        rig.show({dayOf(withAPS(runAt(kMorning), row.zeroAPS, row.spanAPS)),
                  dayOf(runAt(kNextMorning))});
        EXPECT_EQ(rig.valueOf("TestResultCode"), row.code) << row.what;
    }
}

TEST(Export, AnAlternativeInARunThatIsNotCountedDoesNotMatter)
{
    ExportRig rig;
    rig.show({dayOf(runAt(kMorning)), dayOf(withAPS(unused(runAt(kNextMorning)), true, true))});
    EXPECT_EQ(rig.valueOf("TestResultCode"), "PASSED");
}

TEST(Export, OnlyCountedRunsThatAreDisplayedGoOut)
{
    const Date day = makeDate(2024, 3, 10);
    const CalRun counted = runAt(kMorning);
    const CalRun notCounted = unused(runAt(makeDate(2024, 3, 10, 12, 0)));
    ExportRig rig;
    rig.show({dayWith(day, {counted, notCounted})});
    EXPECT_EQ(countRuns(rig), 1U);
    CalDay hidden = dayWith(day, {counted});
    hidden->DisplayedCals = RunArray();
    rig.show({hidden});
    EXPECT_EQ(countRuns(rig), 0U);
    CalDay unmarked = dayWith(day, {notCounted});
    unmarked->DisplayedCals = RunArray({counted});
    rig.show({unmarked});
    EXPECT_EQ(countRuns(rig), 0U) << "the day itself is not used";
}

TEST(Export, RunsGoOutInTheOrderOfTheDaysAndTheirRuns)
{
    const CalRun runs[] = {runAt(kNextMorning), runAt(makeDate(2024, 3, 11, 6, 0)),
                           runAt(kMorning)};
    const char* levels[] = {"ONE", "TWO", "THREE"};
    for (std::size_t i = 0; i < 3; ++i)
        runs[i]->SpanCal->GasLevel = levels[i];
    ExportRig rig;
    rig.show({dayWith(makeDate(2024, 3, 11), {runs[0], runs[1]}), dayOf(runs[2])});
    const std::string text = rig.text();
    EXPECT_LT(text.find("ONE"), text.find("TWO"));
    EXPECT_LT(text.find("TWO"), text.find("THREE"));
    EXPECT_NE(text.find("THREE"), std::string::npos);
}

struct SpanCase {
    const char* what;
    Date zeroEnd;
    Date spanEnd;
    const char* begin;
    const char* end;
};

TEST(Export, BeginAndEndComeFromTheInjectionsAndNotFromTheRun)
{
    // The other run is of 10 March, 08:20 (zero gas) to 08:25 (span gas).
    const SpanCase rows[] = {
        {"within", makeDate(2024, 3, 10, 8, 21), makeDate(2024, 3, 10, 8, 24), "8:20", "8:25"},
        {"zero gas earlier", makeDate(2024, 3, 10, 7, 1), makeDate(2024, 3, 10, 8, 24), "7:1",
         "8:25"},
        {"span gas earlier", makeDate(2024, 3, 10, 8, 21), makeDate(2024, 3, 10, 6, 30), "6:30",
         "8:25"},
        {"zero gas later", makeDate(2024, 3, 10, 9, 2), makeDate(2024, 3, 10, 8, 24), "8:20",
         "9:2"},
        {"span gas later", makeDate(2024, 3, 10, 8, 21), makeDate(2024, 3, 10, 23, 59), "8:20",
         "23:59"},
    };
    for (const SpanCase& row : rows) {
        CalRun other = runAt(makeDate(2024, 3, 10, 12, 0));
        other->ZeroCal->InjectionEndTime = row.zeroEnd;
        other->SpanCal->InjectionEndTime = row.spanEnd;
        ExportRig rig;
        rig.show({dayOf(runAt(kMorning)), dayOf(other)});
        EXPECT_EQ(rig.valueOf("BeginHour") + ":" + rig.valueOf("BeginMinute"), row.begin)
            << row.what;
        EXPECT_EQ(rig.valueOf("EndHour") + ":" + rig.valueOf("EndMinute"), row.end) << row.what;
        EXPECT_EQ(rig.valueOf("BeginDate"), "2024-03-10") << row.what;
        EXPECT_EQ(rig.valueOf("EndDate"), "2024-03-10") << row.what;
    }
}

TEST(Export, TheTestInformationIsWhatStandsOnThePage)
{
    ExportRig rig;
    rig.show({});
    auto& page = rig.page;
    page.txtORIS.Type("00054");
    page.SetStackID("CS1;CS2");
    page.cmbStackID.Pick(1);
    page.txtComponentID.Type("9");
    page.txtTestNumber.Type("A<B & \"C\"");
    page.cmbTestReason.Pick(2);
    EXPECT_EQ(rig.valueOf("ORISCode"), "54");
    EXPECT_EQ(rig.valueOf("UnitID"), "CS2");
    EXPECT_EQ(rig.valueOf("ComponentID"), "9");
    EXPECT_EQ(rig.valueOf("TestNumber"), "A<B & \"C\"");
    EXPECT_EQ(rig.valueOf("TestReasonCode"), "RECERT");
}

TEST(Export, EveryRunIsMarkedOnlineAndItsGasLevelIsTakenAsItStands)
{
    CalRun run = offline(runAt(kMorning));
    run->SpanCal->GasLevel = "low-ish ";
    ExportRig rig;
    rig.show({dayOf(run)});
    EXPECT_EQ(rig.valueOf("OnLineOffLineIndicator"), "1");
    EXPECT_EQ(rig.valueOf("UpscaleGasLevelCode"), "low-ish ");
}

TEST(Export, KeepsTextsBeyondASCIIAsUTF8WithoutADeclaration)
{
    ExportRig rig;
    rig.show({});
    rig.page.SetTestNumber("Prüfung €");
    const std::string text = rig.text();
    EXPECT_TRUE(text.starts_with("<QualityAssuranceAndCert><ORISCode>50292</ORISCode>"
                                 "<Version>1.3</Version><TestSummaryData><UnitID>"))
        << text;
    EXPECT_NE(text.find("<TestNumber>Prüfung €</TestNumber>"), std::string::npos) << text;
}

TEST(Export, TakesThePlaceOfAFileThatIsThere)
{
    ExportRig rig;
    rig.show({});
    test::writeFile(rig.path, std::string(100000, 'x'));
    EXPECT_TRUE(rig.text().ends_with("</QualityAssuranceAndCert>"));
    EXPECT_EQ(rig.folder.names(), Lines{"7Day.xml"}) << "and leaves nothing beside it";
}

} // namespace k7deval::test
