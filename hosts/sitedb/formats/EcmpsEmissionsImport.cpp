#include "sitedb/formats/EcmpsEmissionsImport.h"

#include "sitedb/formats/EmissionsCalibrations.h"
#include "sitedb/formats/EmissionsHours.h"
#include "sitedb/formats/Fields.h"
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
    explicit EmissionsImporter(const ImportTask& task)
        : task_(task), writer_(task.connection), hours_(task.connection, task.file, steppedOver_),
          calibrations_(task.connection, task.file, steppedOver_, task.options.leaveOutUnreadable)
    {
    }

    Taken take()
    {
        SourceStream stream(task_.file, [this](std::int64_t bytesRead) {
            tellProgress(task_, bytesRead, hours_.hours());
        });
        counts_ = visitJson(stream, task_.file, visitor());
        if (!orisCode_)
            throw task_.file.error("orisCode", "the field is missing");
        hours_.finish();
        calibrations_.finish();
        writer_.units.setOrisCode(*orisCode_);
        return {report(), hours_.hours(), hours_.hours() + calibrations_.injections() == 0};
    }

private:
    [[nodiscard]] ImportReport report() const
    {
        ImportReport report{{},
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
            orisCode_ = orisCodeIn(node);
            checkOrisCode(task_.file, node.path(), *orisCode_, writer_.units.orisCode());
        }
        const bool isList =
            node.path() == emissions::kHours || node.path() == emissions::kDailyTests;
        if (isList && !node.isNull())
            throw node.error(node.shown() + " is no list");
    }

    const ImportTask& task_;
    SiteWriter writer_;
    SteppedOver steppedOver_;
    EmissionsHours hours_;
    EmissionsCalibrations calibrations_;
    std::optional<std::int32_t> orisCode_;
    JsonCounts counts_;
};

} // namespace

Taken takeEcmpsEmissions(const ImportTask& task)
{
    return EmissionsImporter(task).take();
}

} // namespace k7deval::sitedb
