#include "sitedb/formats/EmissionsCalibrations.h"
#include "sitedb/formats/EmissionsHours.h"
#include "sitedb/formats/ImportSteps.h"
#include "sitedb/read/JsonStream.h"

namespace k7deval::sitedb
{

namespace
{

/// Takes an emissions file into a site. The caller holds the transaction.
class EmissionsImporter
{
public:
    EmissionsImporter(sql::Connection& connection, const SourceFile& file,
                      const ImportOptions& options)
        : file_(file), options_(options), writer_(connection),
          hours_(connection, file, steppedOver_),
          calibrations_(connection, file, steppedOver_, options.leaveOutUnreadable)
    {
    }

    void take(const std::filesystem::path& path)
    {
        SourceStream stream(path, file_, [this](std::int64_t bytesRead) { tell(bytesRead); });
        counts_ = visitJson(stream, file_, visitor());
        if (!orisCode_)
            throw file_.error("orisCode", "the field is missing");
        hours_.finish();
        calibrations_.finish();
        writer_.setOrisCode(*orisCode_);
        tellAllIsRead(options_, file_, hours_.hours());
    }

    /// Whether the site holds anything of the file.
    [[nodiscard]] bool tookSomething() const
    {
        return hours_.hours() + calibrations_.injections() > 0;
    }

    [[nodiscard]] ImportReport report() const
    {
        ImportReport report{format::kEcmpsEmissions,
                            {counted(hours_.hours(), "hour"),
                             counted(hours_.values(), "monitor value"),
                             counted(calibrations_.injections(), "calibration injection")},
                            steppedOver_.sentences(),
                            calibrations_.rows().leftOut()};
        for (const auto& [list, count] : counts_)
            report.steppedOver.push_back(list + ": " + entries(count) + ".");
        if (calibrations_.rows().leftOutCount() > 0)
            report.counts.push_back(counted(calibrations_.rows().leftOutCount(), "injection") +
                                    " left out");
        return report;
    }

private:
    JsonVisitor visitor()
    {
        return {{emissions::kHours, emissions::kDailyTests},
                {"derivedHourlyValueData", "matsDerivedHourlyValueData", "hourlyFuelFlowData",
                 "hourlyGFMData"},
                [this](const JsonNode& node) { takeField(node); },
                [this](const std::string& list, const JsonNode& node) {
                    if (list == emissions::kHours)
                        hours_.take(node);
                    else
                        calibrations_.take(node);
                }};
    }

    void takeField(const JsonNode& node)
    {
        if (node.path() == "orisCode") {
            orisCode_ = node.whole(1, kHighestOrisCode, "ORIS code");
            writer_.checkOrisCode(file_, node.path(), *orisCode_);
        }
        const bool isList =
            node.path() == emissions::kHours || node.path() == emissions::kDailyTests;
        if (isList && !node.isNull())
            throw node.error(node.shown() + " is no list");
    }

    void tell(std::int64_t bytesRead) { tellProgress(options_, file_, bytesRead, hours_.hours()); }

    const SourceFile& file_;
    const ImportOptions& options_;
    SiteWriter writer_;
    SteppedOver steppedOver_;
    EmissionsHours hours_;
    EmissionsCalibrations calibrations_;
    std::optional<std::int32_t> orisCode_;
    JsonCounts counts_;
};

} // namespace

bool isEcmpsEmissions(const std::filesystem::path& path, const SourceFile& file)
{
    SourceStream stream(path, file);
    return hasTopLevelName(stream, {"quarter", emissions::kHours, emissions::kDailyTests,
                                    "dailyEmissionData", "weeklyTestSummaryData",
                                    "summaryValueData", "longTermFuelFlowData", "sorbentTrapData",
                                    "nsps4tSummaryData", "dailyBackstopData"});
}

ImportReport takeEcmpsEmissions(sql::Connection& connection, const std::filesystem::path& path,
                                const SourceFile& file, const ImportOptions& options)
{
    sql::Transaction transaction(connection);
    SiteWriter writer(connection);
    writer.checkIsNew(file);
    EmissionsImporter importer(connection, file, options);
    importer.take(path);
    ImportReport report = importer.report();
    // A file that holds nothing for the site leaves no trace in it, not even its ORIS code.
    if (!importer.tookSomething())
        return report;
    writer.log(file, report, options.time);
    transaction.commit();
    return report;
}

} // namespace k7deval::sitedb
