#include "sitedb/tables/CalibrationWriter.h"

namespace k7deval::sitedb
{

CalibrationWriter::CalibrationWriter(sql::Connection& connection, const SourceFile& file)
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

std::size_t CalibrationWriter::take(const QaTest& test, const CalibratedScale& scale,
                                    const OnClash& onClash)
{
    std::size_t count = 0;
    for (const auto& injection : test.injections) {
        if (const auto fault = clash(test, scale, injection)) {
            onClash(*fault);
            continue;
        }
        insert(scale, injection);
        ++count;
    }
    writer_.raiseDecimals(scale.calibration, test.decimals);
    return count;
}

std::optional<ImportError> CalibrationWriter::clash(const QaTest& test,
                                                    const CalibratedScale& scale,
                                                    const QaInjection& injection)
{
    const bool isZero = injection.gasLevelCode == 0;
    const std::string which = (isZero ? "a zero" : "an upscale") + std::string(" injection of ") +
                              test.unit + " " + test.component + " " + scale.scale + " at " +
                              injection.runTime;
    if (!inFile_.emplace(scale.calibration, injection.runTime, isZero).second)
        return file_.error(injection.path, which + " stands in the file twice");
    find_->with(std::string(kCalibrationTable), std::int64_t{scale.measured}, scale.scale,
                injection.runTime, std::int64_t{injection.gasLevelCode});
    const bool isHeld = find_->step();
    find_->reset();
    if (isHeld)
        return file_.error(injection.path, "the site already holds " + which);
    return std::nullopt;
}

void CalibrationWriter::insert(const CalibratedScale& scale, const QaInjection& injection)
{
    insert_->run(
        std::string(kCalibrationTable), std::int64_t{scale.measured}, scale.scale,
        injection.runTime, std::int64_t{injection.gasLevelCode}, injection.gasLevelText,
        sql::orNull(injection.reference), sql::orNull(injection.measured), injection.injectionEnd,
        std::int64_t{injection.isOnline ? status::kOnlineCalibration : status::kOfflineCalibration},
        sql::orNull(scale.span), std::int64_t{scale.measured});
}

} // namespace k7deval::sitedb
