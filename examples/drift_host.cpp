#include "examples/Host.h"
#include "foundation/Clock.h"
#include "sevenday/ctrl7Day.h"
#include "sitedb/SiteDatabase.h"

#include <iostream>

using namespace k7deval;
using example::Dialogs;
using example::type;

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
    return example::run(argc, argv, evaluate);
}
