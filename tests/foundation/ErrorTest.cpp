#include "foundation/Error.h"

#include <gtest/gtest.h>

namespace k7deval
{

TEST(Error, CarriesItsNumberAndDescription)
{
    const Error error(13, "Type mismatch in a field");
    EXPECT_EQ(error.number(), 13);
    EXPECT_EQ(error.description(), "Type mismatch in a field");
}

TEST(Error, ANumberAloneBringsItsStandingDescription)
{
    EXPECT_EQ(Error(errors::kOverflow).description(), "Overflow");
    EXPECT_EQ(Error(errors::kInvalidUseOfNull).description(), "Invalid use of Null");
    EXPECT_EQ(Error(errors::kCancelled).description(), "Cancel was selected.");
}

TEST(Error, ANumberWithoutADescriptionIsAFailureOfTheHost)
{
    const Error error(1234);
    EXPECT_EQ(error.number(), 1234);
    EXPECT_EQ(error.description(), "Automation error");
}

TEST(Error, AFailureInFlightKeepsItsNumber)
{
    try {
        throw Error(errors::kPathNotFound);
    } catch (...) {
        EXPECT_EQ(errorInFlight().number(), errors::kPathNotFound);
        EXPECT_EQ(errorInFlight().description(), "Path not found");
    }
}

TEST(Error, AFailureInFlightWithoutANumberIsTheHosts)
{
    try {
        throw std::runtime_error("the host gave up");
    } catch (...) {
        EXPECT_EQ(errorInFlight().number(), errors::kAutomation);
        EXPECT_EQ(errorInFlight().description(), "the host gave up");
    }
}

TEST(Error, AFailureOfAnyOtherKindIsTheHostsToo)
{
    try {
        throw 7;
    } catch (...) {
        EXPECT_EQ(errorInFlight().number(), errors::kAutomation);
        EXPECT_EQ(errorInFlight().description(), "Automation error");
    }
}

} // namespace k7deval
