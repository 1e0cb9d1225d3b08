#include "sitedb/formats/EcmpsQaImport.h"

#include "sitedb/formats/EcmpsQa.h"
#include "sitedb/formats/ImportSteps.h"
#include "sitedb/formats/TestTaker.h"
#include "sitedb/tables/SiteWriter.h"

namespace k7deval::sitedb
{

namespace
{

/// Takes the tests of a QA file into a site.
class QaImporter
{
public:
    QaImporter(sql::Connection& connection, const SourceFile& file)
        : file_(file), writer_(connection), calibrations_(connection, file)
    {
    }

    void take(const QaTest& test)
    {
        const Analyzer analyzer = analyzerOf(test);
        calibrations_.take(test,
                           {analyzer.measured, analyzer.calibration, analyzer.scale, analyzer.span},
                           [](const ImportError& fault) { throw fault; });
    }

private:
    Analyzer analyzerOf(const QaTest& test)
    {
        const auto unit = writer_.units.find(test.unit);
        if (!unit)
            throw unknown(test.unitPath, "unit " + test.unit);
        if (!writer_.analyzers.findMeasured(*unit, test.component))
            throw unknown(test.componentPath,
                          "component " + test.component + " of unit " + test.unit);
        const auto analyzer = writer_.analyzers.find(*unit, test.component, test.scale);
        if (!analyzer)
            throw unknown(test.scalePath, "scale " + scaleText(test.scale) + " of component " +
                                              test.component + " of unit " + test.unit);
        return *analyzer;
    }

    [[nodiscard]] ImportError unknown(const std::string& path, const std::string& what) const
    {
        return file_.error(path,
                           "the site has no " + what +
                               ", so its monitoring plan or span table has to be imported first");
    }

    const SourceFile& file_;
    SiteWriter writer_;
    TestTaker calibrations_;
};

ImportReport qaReport(const QaContent& content)
{
    std::size_t zeros = 0;
    std::size_t upscales = 0;
    for (const auto& test : content.tests) {
        for (const auto& injection : test.injections)
            ++(injection.gasLevelCode == 0 ? zeros : upscales);
    }
    ImportReport report{{},
                        {counted(content.tests.size(), "test"), counted(zeros, "zero injection"),
                         counted(upscales, "upscale injection")},
                        content.steppedOver,
                        content.leftOut};
    if (content.leftOutCount > 0)
        report.counts.push_back(counted(content.leftOutCount, "injection") + " left out");
    return report;
}

} // namespace

Taken takeEcmpsQa(const ImportTask& task)
{
    const QaContent content = readEcmpsQa(task.file, task.options.leaveOutUnreadable);
    SiteWriter writer(task.connection);
    checkOrisCode(task.file, "orisCode", content.orisCode, writer.units.orisCode());
    QaImporter importer(task.connection, task.file);
    for (const auto& test : content.tests)
        importer.take(test);
    writer.units.setOrisCode(content.orisCode);
    return {qaReport(content), 0, content.tests.empty()};
}

} // namespace k7deval::sitedb
