#include "foundation/ExpectError.h"
#include "selection/SelectionRig.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <optional>

/// Failures of the data, which pass on to the host as they are.
namespace k7deval::test
{

namespace
{

const Lines kCallsForPIDs = {"DIParameter.Name",
                             "DIParameter.PID",
                             "DIParameter.ParamType",
                             "DIParameters.Exists",
                             "DIParameters.Item",
                             "DIServer.Parameters",
                             "DIServer.StatusCodes",
                             "DIStatusCodes.UnitName(100100000)",
                             "DIStatusCodes.UnitName(260207500)"};

/// A form of list, and the members of the data that it needs. A unit is named for the entry that
/// opens it, and by that one's PID.
struct ListForm {
    const char* what;
    bool isCollection;
    bool hasUnits;
    Lines calls;
};

void PrintTo(const ListForm& form, std::ostream* out)
{
    *out << form.what;
}

const ListForm kListForms[] = {
    {"PIDs", false, false, kCallsForPIDs},
    {"PIDsWithUnits",
     false,
     true,
     {"DIParameter.Name", "DIParameter.PID", "DIParameter.ParamType", "DIParameters.Exists",
      "DIParameters.Item", "DIServer.Parameters"}},
    {"Parameters",
     true,
     false,
     {"DIParameter.Name", "DIParameter.PID", "DIParameter.ParamType", "DIServer.StatusCodes",
      "DIStatusCodes.UnitName(100100000)", "DIStatusCodes.UnitName(260207500)"}},
    {"ParametersWithUnits",
     true,
     true,
     {"DIParameter.Name", "DIParameter.PID", "DIParameter.ParamType"}},
};

/// The error that an action passes on to the host; nothing when there is none.
std::optional<std::string> passedOn(const std::function<void()>& action)
{
    try {
        action();
    } catch (const Error& error) {
        return std::to_string(error.number()) + ", " + error.description();
    }
    return std::nullopt;
}

Lines sortedOnce(Lines lines)
{
    std::sort(lines.begin(), lines.end());
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    return lines;
}

class SelectionFailure : public ::testing::TestWithParam<ListForm>
{
protected:
    static ParamList listOn(const std::shared_ptr<SiteData>& site)
    {
        const PIDs pids = {kGT1, kNox, kLoad, kFlow};
        if (GetParam().isCollection)
            return collectionOf(site, pids);
        return pids;
    }

    /// Loads the list with its call of that number failing.
    template <class Rig>
    static std::optional<std::string> loadFailingAt(Rig& rig, std::size_t number)
    {
        const ParamList list = listOn(rig.site);
        const std::size_t first = rig.site->calls.size();
        rig.site->failure = [first, number](const std::string&, std::size_t at) {
            return at == first + number ? std::optional(Error(1234, "the line is down"))
                                        : std::nullopt;
        };
        return passedOn([&] { rig.tool.SetParamList(list, GetParam().hasUnits); });
    }

    /// The calls that loading the list takes.
    template <class Rig> static Lines callsOfLoading(Rig& rig)
    {
        const ParamList list = listOn(rig.site);
        rig.site->calls.clear();
        rig.tool.SetParamList(list, GetParam().hasUnits);
        return rig.site->calls;
    }
};

} // namespace

TEST_P(SelectionFailure, OfEachCallIsMetWhileLoading)
{
    ParamSelectRig rig;
    EXPECT_EQ(sortedOnce(callsOfLoading(rig)), sortedOnce(GetParam().calls));
}

TEST_P(SelectionFailure, AtAnyCallReachesTheHostOfTheListAndLeavesTheOldRowsOnView)
{
    ParamSelectRig undisturbed;
    const std::size_t count = callsOfLoading(undisturbed).size();
    for (std::size_t number = 0; number < count; ++number) {
        ParamSelectRig rig;
        rig.filtered().list({kSo2, kOpacity});
        EXPECT_EQ(loadFailingAt(rig, number), "1234, the line is down") << number;
        EXPECT_EQ(visibleIndexes(rig.tool), (Indexes{0, 1, 2, 3})) << number;
        EXPECT_EQ(rig.tool.cmbUnit.listCount(), 3) << number;
        EXPECT_NO_THROW(view(rig.tool)) << number;
    }
}

TEST_P(SelectionFailure, AtAnyCallReachesTheHostOfTheBoxesAndLeavesTheirEntries)
{
    SingleRig undisturbed;
    undisturbed.filtered(false);
    const std::size_t count = callsOfLoading(undisturbed).size();
    for (std::size_t number = 0; number < count; ++number) {
        SingleRig rig;
        rig.filtered(false).list({kSo2});
        EXPECT_EQ(loadFailingAt(rig, number), "1234, the line is down") << number;
        EXPECT_EQ(rig.tool.cmbPID.List(), Lines{"SO2"}) << number;
    }
}

TEST_P(SelectionFailure, IsOverWithTheNextList)
{
    ParamSelectRig rig;
    loadFailingAt(rig, 3);
    rig.site->failure = nullptr;
    rig.list({kLoad});
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT2 --", "[ ] Load"}));
}

INSTANTIATE_TEST_SUITE_P(, SelectionFailure, ::testing::ValuesIn(kListForms),
                         [](const auto& test) { return std::string(test.param.what); });

TEST(SelectionFailureOfTheData, LeavesTheRowsUpToItCounted)
{
    ParamSelectRig rig;
    failAt(*rig.site, "DIParameters.Exists", 3);
    EXPECT_EQ(passedOn([&] { rig.list(kFiveParameters); }), "440, the line is down");
    EXPECT_EQ(rig.tool.rows().Count(), 3) << "GT1, NOx, CO";
}

TEST(SelectionFailureOfTheData, HasNoEntryOfTheListLookedUpBeforeThoseAheadOfItHaveTheirRows)
{
    ParamSelectRig rig;
    failAt(*rig.site, "DIStatusCodes.UnitName(110007500)");
    EXPECT_EQ(passedOn([&] { rig.list(kFiveParameters); }), "440, the line is down");
    EXPECT_EQ(rig.site->countCalls("DIParameters.Exists"), 1U);
}

TEST(SelectionFailureOfTheData, IsThatOfAnAbsentObjectWhereTheDataHandsOutNone)
{
    ParamSelectRig rig;
    const DIParameterList list = {nullptr};
    EXPECT_EQ(passedOn([&] { rig.tool.SetParamList(list); }),
              "91, Object variable or With block variable not set");
    EXPECT_EQ(passedOn([&] { rig.tool.SetParamList(list, true); }),
              "91, Object variable or With block variable not set");
}

TEST(SelectionFailureOfTheData, InNamingTheUnitsOfTheEntriesReachesTheHost)
{
    SingleRig rig;
    rig.filtered().listWithUnits({kGT1, kNox, kGT2, kLoad});
    for (const char* call : {"DIServer.StatusCodes", "DIStatusCodes.UnitName(260207500)"}) {
        failAt(*rig.site, call);
        const std::string failure = "440, the line is down";
        EXPECT_EQ(passedOn([&] { rig.tool.SetShowPIDNumber(true); }), failure) << call;
        EXPECT_EQ(passedOn([&] { rig.tool.SetShowUnpopulatedUnits(true); }), failure) << call;
        EXPECT_EQ(passedOn([&] { rig.tool.SetAllUnitsInCombo(true); }), failure) << call;
        EXPECT_EQ(passedOn([&] { rig.tool.cmbUnit.Pick(0); }), failure) << call;
    }
}

} // namespace k7deval::test
