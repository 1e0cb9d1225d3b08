#pragma once

#include "sevenday/SevenDaySite.h"
#include "sevenday/ctrl7DaySetUp.h"
#include "support/FakeServices.h"
#include "support/ScreenSnapshot.h"

#include <memory>
#include <string>
#include <vector>

namespace k7deval::test
{

/// The setup page on a site of plain data, created on 10 March 2024 at 14:30.
struct SetUpRig {
    explicit SetUpRig(std::shared_ptr<SiteData> data = siteOf({}),
                      const std::string& region = "en-US")
        : site(std::move(data)), regional(regionalSettings(region))
    {
    }

    /// Hands over the sink and the site, which lists the units and picks the first.
    SetUpRig& setup()
    {
        page.Setup(messages, serve(site));
        return *this;
    }

    /// The user types into a field and leaves it.
    static void enter(screen::TextBox& field, const std::string& text)
    {
        field.Type(text);
        field.Leave();
    }

    /// What an action changes on the page.
    template <class Action> std::vector<std::string> changesBy(Action action)
    {
        return changesOn(page, action);
    }

    std::shared_ptr<SiteData> site;
    std::shared_ptr<Messages> messages = std::make_shared<Messages>();
    FakeServices services;
    FixedClock clock{makeDate(2024, 3, 10, 14, 30)};
    RegionalSettings regional;
    screen::Control host{"host"};
    ctrl7DaySetUp page{host, "ctrl7DaySetUp1", {services, clock, regional}};
};

using Lines = std::vector<std::string>;

} // namespace k7deval::test
