#include "latebound/Server.h"

#include "foundation/ExpectError.h"
#include "latebound/FakeObject.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace k7deval::latebound
{
namespace
{

using testing::ElementsAre;

Variant text(const char* value)
{
    return std::string(value);
}

FakeHandle parameter(PID pid)
{
    return fake({{"PID", Variant(pid)}});
}

std::vector<PID> pidsOf(const DIParameterList& parameters)
{
    std::vector<PID> pids;
    for (const auto& entry : parameters)
        pids.push_back(entry->PID());
    return pids;
}

TEST(LateServer, ListsParametersInTheOrderOfTheHost)
{
    const FakeHandle object = fake({{"Units", fakeCollection({parameter(2), parameter(1)})}});

    EXPECT_THAT(pidsOf(serverOn(object, enUS())->Units()), ElementsAre(2, 1));
}

TEST(LateServer, HandsArgumentsOverInTheirOrder)
{
    const ObjectHandle none = fakeCollection({});
    const FakeHandle object = fake({{"ParametersOfTypes", none},
                                    {"ParametersOfUnit", none},
                                    {"ParametersOfInterval", none},
                                    {"ParametersOfUnitTypes", none},
                                    {"ConstantsOfUnitTypes", none}});
    const auto server = serverOn(object, enUS());

    static_cast<void>(server->ParametersOfTypes({3}));
    static_cast<void>(server->ParametersOfUnit(1, {8, 11}));
    static_cast<void>(server->ParametersOfInterval("h"));
    static_cast<void>(server->ParametersOfUnitTypes({4, 34}, 1, 3, "h"));
    static_cast<void>(server->ConstantsOfUnitTypes({4}, 1, {0, 3}));

    EXPECT_THAT(object->calls,
                ElementsAre("ParametersOfTypes([3])", "ParametersOfUnit(1, [8 11])",
                            "ParametersOfInterval('h')", "ParametersOfUnitTypes([4 34], 1, 3, 'h')",
                            "ConstantsOfUnitTypes([4], 1, [0 3])"));
}

TEST(LateServer, AsksTheHostForTheMeaningOfAStatusWord)
{
    const FakeHandle codes = fake({{"IsValid", Variant(true)},
                                   {"IsExcluded", Variant(false)},
                                   {"IsUnitOffline", Variant(std::int32_t{-1})},
                                   {"UnitName", text("Unit 1")}});
    const auto status = serverOn(fake({{"StatusCodes", codes}}), enUS())->StatusCodes();

    EXPECT_TRUE(status->IsValid(35));
    EXPECT_FALSE(status->IsExcluded(35));
    EXPECT_TRUE(status->IsUnitOffline(35)) << "a number other than 0 is true";
    EXPECT_EQ(status->UnitName(100100000), "Unit 1");
    EXPECT_THAT(codes->calls, ElementsAre("IsValid(35)", "IsExcluded(35)", "IsUnitOffline(35)",
                                          "UnitName(100100000)"));
}

TEST(LateServer, FindsTheFacilityNameOnTheLookupRoad)
{
    const FakeHandle lookups = fake({{"Find", fake({{"Value", text("Bethpage")}})}});
    const FakeHandle object = fake({{"SiteInfo", fake({{"SiteKey", text("KEY")}})},
                                    {"LookupService", fake({{"Lookups", lookups}})}});

    EXPECT_EQ(facilityName(*serverOn(object, enUS())), "Bethpage");
    EXPECT_THAT(lookups->calls, ElementsAre("Find('KEY', 1, 'K7LOOKUP', 'FacilityName', '')"));
}

TEST(LateServer, PassesOnThatALookupFindsNothing)
{
    const FakeHandle lookups = fake({{"Find", ObjectHandle()}});
    const FakeHandle object = fake({{"SiteInfo", fake({{"SiteKey", text("KEY")}})},
                                    {"LookupService", fake({{"Lookups", lookups}})}});

    EXPECT_EQ(facilityName(*serverOn(object, enUS())), "<Facility Name>");
}

TEST(LateServer, HasTheObjectsAndTheKeyOfTheHost)
{
    const FakeHandle object = fake({{"Parameters", fake({{"Exists", Variant(false)}})},
                                    {"RecordStore", fake({{"ReadRecords", fakeCollection({})}})},
                                    {"SiteKey", text("KEY")}});
    const auto server = serverOn(object, enUS());

    EXPECT_FALSE(server->Parameters()->Exists(1));
    EXPECT_TRUE(server->RecordStore()->ReadRecords({}).empty());
    EXPECT_EQ(server->SiteKey(), "KEY");
}

TEST(LateServer, KeepsTheObjectThatItStandsFor)
{
    const FakeHandle object = fake({});

    EXPECT_EQ(objectBehind(serverOn(object, enUS())), object);
    EXPECT_EQ(serverOn(nullptr, enUS()), nullptr);
    EXPECT_EQ(objectBehind(std::shared_ptr<DIServer>()), nullptr);
}

TEST(LateServer, WithoutAListIsAnAbsentObject)
{
    const auto server = serverOn(fake({{"Units", ObjectHandle()}}), enUS());

    EXPECT_EQ(errorOf([&] { return server->Units(); }), errors::kObjectNotSet);
}

TEST(LateServer, WithNothingAmongItsParametersIsAnAbsentObject)
{
    const auto server = serverOn(fake({{"Units", fakeCollection({nullptr})}}), enUS());

    EXPECT_EQ(errorOf([&] { return server->Units(); }), errors::kObjectNotSet);
}

TEST(LateServer, ReadsNumbersInTextsUnderItsRegion)
{
    const auto german = std::make_shared<const RegionalSettings>(regionalSettings("de-DE"));
    const FakeHandle unit = fake({{"PID", text("100.100.000")}});
    const auto server = serverOn(fake({{"Units", fakeCollection({unit})}}), german);

    EXPECT_THAT(pidsOf(server->Units()), ElementsAre(100100000));
}

TEST(LateSink, PostsToTheHost)
{
    const FakeHandle object = fake({{"Post", Variant()}});
    const auto sink = sinkOn(object);

    sink->Post(4, "DEval-003: 94, Invalid use of Null");

    EXPECT_THAT(object->calls, ElementsAre("Post(4, 'DEval-003: 94, Invalid use of Null')"));
    EXPECT_EQ(objectBehind(sink), object);
    EXPECT_EQ(sinkOn(nullptr), nullptr);
}

TEST(LateCollection, GivesItsParameters)
{
    EXPECT_THAT(pidsOf(parametersIn(fakeCollection({parameter(7), parameter(8)}), enUS())),
                ElementsAre(7, 8));
}

} // namespace
} // namespace k7deval::latebound
