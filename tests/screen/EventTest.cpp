#include "screen/Event.h"

#include <gtest/gtest.h>

#include <string>

namespace k7deval::screen
{

TEST(Event, HandlersRunInTheOrderInWhichTheyWereConnected)
{
    Event<> event;
    std::string order;
    event.Connect([&] { order += "first "; });
    event.Connect([&] { order += "second"; });
    event.raise();
    EXPECT_EQ(order, "first second");
}

TEST(Event, HandlersGetWhatWasRaised)
{
    Event<int, const std::string&> event;
    std::string seen;
    event.Connect(
        [&](int number, const std::string& text) { seen = std::to_string(number) + text; });
    event.raise(7, "DAY");
    EXPECT_EQ(seen, "7DAY");
}

TEST(Event, RaisedWithoutHandlersItDoesNothing)
{
    EXPECT_NO_THROW(Event<int>().raise(1));
}

TEST(Event, AHandlerConnectedByARunningHandlerWaitsForTheNextTime)
{
    Event<> event;
    int late = 0;
    bool connected = false;
    event.Connect([&] {
        if (!connected)
            event.Connect([&] { ++late; });
        connected = true;
    });
    event.raise();
    EXPECT_EQ(late, 0);
    event.raise();
    EXPECT_EQ(late, 1);
}

TEST(Event, AHandlerMayRaiseItsOwnEventAgain)
{
    Event<int> event;
    std::string order;
    event.Connect([&](int depth) {
        order += std::to_string(depth);
        if (depth > 0)
            event.raise(depth - 1);
    });
    event.raise(2);
    EXPECT_EQ(order, "210");
}

TEST(Event, AFailingHandlerEndsTheRoundAndItsFailureReachesTheRaiser)
{
    Event<> event;
    int behind = 0;
    event.Connect([] { throw std::runtime_error("handler"); });
    event.Connect([&] { ++behind; });
    EXPECT_THROW(event.raise(), std::runtime_error);
    EXPECT_EQ(behind, 0);
}

} // namespace k7deval::screen
