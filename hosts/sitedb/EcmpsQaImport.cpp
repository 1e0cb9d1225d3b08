#include "sitedb/EcmpsQa.h"
#include "sitedb/ImportSteps.h"
#include "sitedb/SiteWriter.h"

#include <set>
#include <tuple>

namespace k7deval::sitedb
{

namespace
{

/// Takes the tests of a QA file into a site.
class QaImporter
{
public:
    QaImporter(sql::Connection& connection, const SourceFile& file)
        : file_(file), writer_(connection),
          find_(connection.prepare(
              "SELECT 1 FROM calibration_record WHERE record_table = $1 AND pid = $2"
              " AND scale = $3 AND run_time = $4 AND (gas_level_code = 0) = ($5 = 0)")),
          insert_(connection.prepare(
              "INSERT INTO calibration_record (record_table, pid, scale, run_time, gas_level_code,"
              " gas_level_text, reference_value, measured_value, injection_end, manual, cal_status,"
              " span, source_tag_pid)"
              " VALUES ($1, $2, $3, $4, $5, $6, $7, $8, $9, 0, $10, $11, $12)"))
    {
    }

    void take(const QaTest& test)
    {
        const Analyzer analyzer = analyzerOf(test);
        for (const auto& injection : test.injections) {
            checkIsNew(test, analyzer, injection);
            insert(analyzer, injection);
        }
        writer_.raiseDecimals(analyzer.calibration, test.decimals);
    }

private:
    Analyzer analyzerOf(const QaTest& test)
    {
        const auto unit = writer_.findUnit(test.unit);
        if (!unit)
            throw unknown(test.unitPath, "unit " + test.unit);
        if (!writer_.findMeasured(*unit, test.component))
            throw unknown(test.componentPath,
                          "component " + test.component + " of unit " + test.unit);
        const auto analyzer = writer_.findAnalyzer(*unit, test.component, test.scale);
        if (!analyzer)
            throw unknown(test.scalePath, "scale " + scaleText(test.scale) + " of component " +
                                              test.component + " of unit " + test.unit);
        return *analyzer;
    }

    [[nodiscard]] ImportError unknown(const std::string& path, const std::string& what) const
    {
        return file_.error(path, "the site has no " + what +
                                     ", so its span table has to be imported first");
    }

    // Of two injections in one minute the tools would use one, so none of them is taken.
    void checkIsNew(const QaTest& test, const Analyzer& analyzer, const QaInjection& injection)
    {
        const bool isZero = injection.gasLevelCode == 0;
        const std::string which = (isZero ? "a zero" : "an upscale") +
                                  std::string(" injection of ") + test.unit + " " + test.component +
                                  " " + analyzer.scale + " at " + injection.runTime;
        if (!inFile_.emplace(analyzer.calibration, injection.runTime, isZero).second)
            throw file_.error(injection.path, which + " stands in the file twice");
        find_->with(std::string(kCalibrationTable), std::int64_t{analyzer.measured}, analyzer.scale,
                    injection.runTime, std::int64_t{injection.gasLevelCode});
        if (find_->step())
            throw file_.error(injection.path, "the site already holds " + which);
    }

    void insert(const Analyzer& analyzer, const QaInjection& injection)
    {
        insert_->run(std::string(kCalibrationTable), std::int64_t{analyzer.measured},
                     analyzer.scale, injection.runTime, std::int64_t{injection.gasLevelCode},
                     injection.gasLevelText, value(injection.reference), value(injection.measured),
                     injection.injectionEnd,
                     std::int64_t{injection.isOnline ? status::kOnlineCalibration
                                                     : status::kOfflineCalibration},
                     analyzer.span, std::int64_t{analyzer.measured});
    }

    static sql::Value value(const std::optional<double>& number)
    {
        return number ? sql::Value(*number) : sql::Value();
    }

    const SourceFile& file_;
    SiteWriter writer_;
    std::unique_ptr<sql::Statement> find_;
    std::unique_ptr<sql::Statement> insert_;
    std::set<std::tuple<PID, std::string, bool>> inFile_;
};

ImportReport qaReport(const QaContent& content)
{
    std::size_t zeros = 0;
    std::size_t upscales = 0;
    for (const auto& test : content.tests) {
        for (const auto& injection : test.injections)
            ++(injection.gasLevelCode == 0 ? zeros : upscales);
    }
    ImportReport report{"ECMPS QA data",
                        {counted(content.tests.size(), "test"), counted(zeros, "zero injection"),
                         counted(upscales, "upscale injection")},
                        content.steppedOver,
                        content.leftOut};
    if (content.leftOutCount > 0)
        report.counts.push_back(counted(content.leftOutCount, "injection") + " left out");
    return report;
}

} // namespace

ImportReport takeEcmpsQa(sql::Connection& connection, const SourceFile& file,
                         const ImportOptions& options)
{
    const QaContent content = readEcmpsQa(file, options.leaveOutUnreadable);
    ImportReport report = qaReport(content);
    sql::Transaction transaction(connection);
    SiteWriter writer(connection);
    writer.checkIsNew(file);
    writer.checkOrisCode(file, "orisCode", content.orisCode);
    // A file that holds nothing for the site leaves no trace in it, not even its ORIS code.
    if (content.tests.empty())
        return report;
    QaImporter importer(connection, file);
    for (const auto& test : content.tests)
        importer.take(test);
    writer.setOrisCode(content.orisCode);
    writer.log(file, report, options.time);
    transaction.commit();
    return report;
}

} // namespace k7deval::sitedb
