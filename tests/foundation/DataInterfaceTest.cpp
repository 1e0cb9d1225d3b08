#include "foundation/DataInterface.h"

#include "foundation/ExpectError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace k7deval
{

namespace
{

using testing::NiceMock;
using testing::Return;
using testing::StrictMock;
using testing::Throw;

class MockEntry : public DILookupEntry
{
public:
    MOCK_METHOD(std::string, Value, (), (override));
};

class MockLookups : public DILookups
{
public:
    MOCK_METHOD(std::shared_ptr<DILookupEntry>, Find,
                (const std::string&, std::int32_t, const std::string&, const std::string&,
                 const std::string&),
                (override));
};

class MockLookupService : public DILookupService
{
public:
    MOCK_METHOD(std::shared_ptr<DILookups>, Lookups, (), (override));
};

class MockSiteInfo : public DISiteInfo
{
public:
    MOCK_METHOD(std::string, SiteKey, (), (override));
};

class MockServer : public DIServer
{
public:
    MOCK_METHOD(std::shared_ptr<DIParameters>, Parameters, (), (override));
    MOCK_METHOD(DIParameterList, Units, (), (override));
    MOCK_METHOD(DIParameterList, ParametersOfTypes, (const ParamTypes&), (override));
    MOCK_METHOD(DIParameterList, ParametersOfUnit, (std::int32_t, const ParamTypes&), (override));
    MOCK_METHOD(DIParameterList, ParametersOfInterval, (const std::string&), (override));
    MOCK_METHOD(DIParameterList, ParametersOfUnitTypes,
                (const ParamTypes&, std::int32_t, std::int32_t, const std::string&), (override));
    MOCK_METHOD(DIParameterList, ConstantsOfUnitTypes,
                (const ParamTypes&, std::int32_t, const ParamTypes&), (override));
    MOCK_METHOD(std::shared_ptr<DIStatusCodes>, StatusCodes, (), (override));
    MOCK_METHOD(std::shared_ptr<DIRecordStore>, RecordStore, (), (override));
    MOCK_METHOD(std::shared_ptr<DILookupService>, LookupService, (), (override));
    MOCK_METHOD(std::shared_ptr<DISiteInfo>, SiteInfo, (), (override));
    MOCK_METHOD(std::string, SiteKey, (), (override));
};

// A server whose lookup road can be walked to its end.
class FacilityName : public testing::Test
{
protected:
    FacilityName()
    {
        ON_CALL(server, LookupService()).WillByDefault(Return(service));
        ON_CALL(server, SiteInfo()).WillByDefault(Return(siteInfo));
        ON_CALL(*service, Lookups()).WillByDefault(Return(lookups));
        ON_CALL(*siteInfo, SiteKey()).WillByDefault(Return("RIVERSIDE"));
    }

    void findGives(const std::shared_ptr<DILookupEntry>& found)
    {
        EXPECT_CALL(*lookups, Find("RIVERSIDE", 1, "K7LOOKUP", "FacilityName", ""))
            .WillOnce(Return(found));
    }

    NiceMock<MockServer> server;
    std::shared_ptr<NiceMock<MockLookupService>> service =
        std::make_shared<NiceMock<MockLookupService>>();
    std::shared_ptr<NiceMock<MockSiteInfo>> siteInfo = std::make_shared<NiceMock<MockSiteInfo>>();
    std::shared_ptr<StrictMock<MockLookups>> lookups = std::make_shared<StrictMock<MockLookups>>();
    std::shared_ptr<NiceMock<MockEntry>> entry = std::make_shared<NiceMock<MockEntry>>();
};

} // namespace

TEST_F(FacilityName, ComesFromTheLookupTableOfTheSite)
{
    ON_CALL(*entry, Value()).WillByDefault(Return("Riverside Power"));
    findGives(entry);
    EXPECT_EQ(facilityName(server), "Riverside Power");
}

TEST_F(FacilityName, IsTheDefaultTextWhenTheTableHasNoEntry)
{
    findGives(nullptr);
    EXPECT_EQ(facilityName(server), "<Facility Name>");
}

TEST_F(FacilityName, IsTheDefaultTextWhenTheEntryIsEmpty)
{
    ON_CALL(*entry, Value()).WillByDefault(Return(""));
    findGives(entry);
    EXPECT_EQ(facilityName(server), "<Facility Name>");
}

TEST_F(FacilityName, PassesOnAFailureOfTheHost)
{
    ON_CALL(server, LookupService()).WillByDefault(Throw(Error(440, "no lookup service")));
    EXPECT_EQ(errorOf([&] { return facilityName(server); }), errors::kAutomation);
}

TEST_F(FacilityName, AnAbsentObjectOnTheRoadIsAnError)
{
    ON_CALL(*service, Lookups()).WillByDefault(Return(nullptr));
    EXPECT_EQ(errorOf([&] { return facilityName(server); }), errors::kObjectNotSet);
    ON_CALL(server, LookupService()).WillByDefault(Return(nullptr));
    EXPECT_EQ(errorOf([&] { return facilityName(server); }), errors::kObjectNotSet);
}

TEST(DataInterface, AnAbsentObjectIsAnErrorWhereItIsUsed)
{
    const std::shared_ptr<int> absent;
    const auto there = std::make_shared<int>(5);
    EXPECT_EQ(errorOf([&] { return present(absent); }), errors::kObjectNotSet);
    EXPECT_EQ(present(there), 5);
}

TEST(DataInterface, ANewQueryCarriesTheConstantsOfItsTable)
{
    const RangeRecordQuery range;
    EXPECT_EQ(range.argument2, 0);
    EXPECT_EQ(range.argument7, 0);
    EXPECT_EQ(range.argument12, 0);
    EXPECT_EQ(range.argument13, 0);
    EXPECT_EQ(range.argument14, 1);
    EXPECT_EQ(range.argument5 + range.argument8 + range.argument10, "");

    const RecordQuery records;
    EXPECT_EQ(records.argument2, 0);
    EXPECT_EQ(records.argument6, 0);
    EXPECT_EQ(records.argument3, Date{});
    EXPECT_EQ(records.argument4, Date{});
    EXPECT_EQ(records.argument5 + records.argument8 + records.argument9 + records.argument10, "");
}

} // namespace k7deval
