#pragma once

#include "sevenday/SevenDaySite.h"
#include "sevenday/ctrl7Day.h"
#include "support/FakeServices.h"
#include "support/ScreenSnapshot.h"

#include <memory>
#include <string>
#include <vector>

namespace k7deval::test
{

using Lines = std::vector<std::string>;

/// A calibration of a site's NOx analyzer in its records: span 200, zero gas 0 and span gas 160.
struct CalFacts {
    Date time;
    float zeroMeasured = 0.5F;
    float spanMeasured = 161;
    bool manual = false;
    bool online = true;
    bool hasZero = true;
    std::string scale = "HIGH";
    PID pid = AnalyzerFacts().measuredPID();
};

void addCal(SiteData& site, const CalFacts& facts);

/// A day of March 2024 at 08:15, when the daily calibrations are made.
inline Date march(int day, int hour = 8, int minute = 15)
{
    return makeDate(2024, 3, day, hour, minute);
}

/// GT3 operated from 1 to 9 March 2024 and at no other hour from 10 February to 10 March.
std::shared_ptr<SiteData> operatedSite();

/// The same, with a passed calibration a day from 1 March on.
std::shared_ptr<SiteData> siteWithDailyCals(int days);

/// The 7-Day tool on a site of plain data, on 10 March 2024 at 14:30. Its interval starts as the
/// month up to that day.
struct ToolRig {
    explicit ToolRig(std::shared_ptr<SiteData> data = siteWithDailyCals(7))
        : site(std::move(data)), server(serve(site))
    {
        tool.Setup(messages, server);
    }
    ToolRig(const ToolRig&) = delete;
    ToolRig& operator=(const ToolRig&) = delete;
    ~ToolRig() = default;

    ToolRig& next()
    {
        tool.cmdNext.Press();
        return *this;
    }
    ToolRig& back()
    {
        tool.cmdBack.Press();
        return *this;
    }
    /// The user types into a field of the setup page and leaves it.
    static void enter(screen::TextBox& field, const std::string& text)
    {
        field.Type(text);
        field.Leave();
    }

    [[nodiscard]] ctrl7DaySetUp& setUp() { return tool.ctrl7DaySetUp1; }
    [[nodiscard]] ctrl7DayResult& result() { return tool.ctrl7DayResult1; }
    [[nodiscard]] const DriftTest& test() const { return tool.test(); }
    [[nodiscard]] std::string summary() { return result().lblSummary.Caption(); }
    /// How often calibrations were read.
    [[nodiscard]] std::size_t retrievals() const { return site->rangeQueries.size(); }

    template <class Action> Lines changesBy(Action action) { return changesOn(tool, action); }

    std::shared_ptr<SiteData> site;
    std::shared_ptr<DIServer> server;
    std::shared_ptr<Messages> messages = std::make_shared<Messages>();
    FakeServices services;
    FixedClock clock{makeDate(2024, 3, 10, 14, 30)};
    RegionalSettings regional;
    ctrl7Day tool{{services, clock, regional}};
};

} // namespace k7deval::test
