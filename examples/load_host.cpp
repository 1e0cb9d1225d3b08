#include "examples/Host.h"
#include "foundation/Clock.h"
#include "load/ctrlMaxMW.h"
#include "sitedb/SiteDatabase.h"

#include <iostream>

using namespace k7deval;
using example::Dialogs;
using example::type;

namespace
{

void evaluateLoad(const std::string& siteFile, const std::string& reportFile)
{
    Dialogs dialogs(reportFile);
    const SystemClock clock;
    const RegionalSettings regional = regionalSettings("en-US");
    ctrlMaxMW tool({dialogs, clock, regional});

    const auto site = sitedb::SiteDatabase::open(siteFile, sitedb::OpenMode::ReadOnly);
    tool.SetDIServer(site.server());

    type(tool.txtMinSafe, "45");
    type(tool.txtCapacity, "195");
    tool.cmbYear.Type("2021");
    tool.cmbQTR.Pick(3);
    tool.cmdCalculate.Press();
    std::cout << tool.lblHeader.Caption() << '\n'
              << tool.lblHighOpPercent.Caption() << '\n'
              << tool.lblAbove.Caption() << '\n';
    tool.cmdSave.Press();
}

} // namespace

int main(int argc, char** argv)
{
    return example::run(argc, argv, evaluateLoad);
}
