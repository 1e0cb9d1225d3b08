#include "foundation/Clock.h"
#include "sevenday/ctrl7Day.h"
#include "sitedb/SiteDatabase.h"

#include <iostream>

using namespace k7deval;

namespace
{

class Log : public MessageSink
{
public:
    void Post(std::int32_t /*severity*/, const std::string& text) override
    {
        std::cerr << text << '\n';
    }
};

/// A host that saves to one file and has no calendar and no viewer.
class Dialogs : public screen::Services
{
public:
    explicit Dialogs(std::string path) : path_(std::move(path)) {}

    std::optional<screen::SaveAnswer> ShowSave(const std::string& /*filter*/,
                                               const std::string& /*defaultExtension*/) override
    {
        return screen::SaveAnswer{path_, 1};
    }
    screen::MsgBoxAnswer MsgBox(const screen::MsgBoxRequest& request) override
    {
        std::cout << request.prompt << '\n';
        return screen::MsgBoxAnswer::Yes;
    }
    std::optional<Date> PickDate(const std::string& /*title*/, Date /*date*/, std::int32_t,
                                 std::int32_t, std::int32_t) override
    {
        return std::nullopt;
    }
    void OpenDocument(const std::string& path, std::int32_t, std::int32_t /*ownerWindow*/,
                      std::int32_t, std::int32_t /*showCommand*/) override
    {
        std::cout << "Saved " << path << '\n';
    }

private:
    std::string path_;
};

void type(screen::TextBox& field, const std::string& text)
{
    field.Type(text);
    field.Leave();
}

void evaluate(const std::string& siteFile, const std::string& reportFile)
{
    Dialogs dialogs(reportFile);
    const SystemClock clock;
    const RegionalSettings regional = regionalSettings("en-US");
    ctrl7Day tool({dialogs, clock, regional});

    const auto site = sitedb::SiteDatabase::open(siteFile, sitedb::OpenMode::ReadOnly);
    tool.Setup(std::make_shared<Log>(), site.server());

    tool.ctrl7DaySetUp1.cmbUnit.Pick(3);
    tool.ctrl7DaySetUp1.cmbAnalyzer.Pick(0);
    type(tool.ctrl7DaySetUp1.txtFromDate, "5/4/2018");
    type(tool.ctrl7DaySetUp1.txtToDate, "6/18/2018");
    tool.cmdNext.Press();
    std::cout << tool.ctrl7DayResult1.lblAnalyzerLabel.Caption() << '\n'
              << tool.ctrl7DayResult1.lblSummary.Caption() << '\n';
    tool.cmdSave.Press();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::cerr << "Usage: drift_host SITE REPORT\n";
        return 2;
    }
    try {
        evaluate(argv[1], argv[2]);
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return 2;
    }
    return 0;
}
