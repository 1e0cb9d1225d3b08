#include "sitedb/tables/CalibrationWriter.h"

#include "foundation/DataInterface.h"
#include "sitedb/tables/SiteIds.h"

namespace k7deval::sitedb
{

CalibrationWriter::CalibrationWriter(sql::Connection& connection)
    : find_(connection.prepare(
          "SELECT 1 FROM calibration_record WHERE record_table = $1 AND pid = $2"
          " AND scale = $3 AND run_time = $4 AND (gas_level_code = 0) = ($5 = 0)")),
      insert_(connection.prepare(
          "INSERT INTO calibration_record (record_table, pid, scale, run_time, gas_level_code,"
          " gas_level_text, reference_value, measured_value, injection_end, manual, cal_status,"
          " span, source_tag_pid)"
          " VALUES ($1, $2, $3, $4, $5, $6, $7, $8, $9, 0, $10, $11, $12)"))
{
}

Outcome CalibrationWriter::add(const CalibratedScale& scale, const Injection& injection)
{
    const bool isZero = injection.gasLevelCode == 0;
    if (!inFile_.emplace(scale.calibration, injection.runTime, isZero).second)
        return Outcome::TwiceInFile;
    if (isHeld(scale, injection))
        return Outcome::AlreadyHeld;
    insert(scale, injection);
    return Outcome::Taken;
}

bool CalibrationWriter::isHeld(const CalibratedScale& scale, const Injection& injection)
{
    find_->with(std::string(kCalibrationTable), std::int64_t{scale.measured}, scale.scale,
                injection.runTime, std::int64_t{injection.gasLevelCode});
    const bool found = find_->step();
    find_->reset();
    return found;
}

std::string CalibrationWriter::fault(Outcome outcome, const std::string& analyzer,
                                     const Injection& injection)
{
    const std::string which = (injection.gasLevelCode == 0 ? "a zero" : "an upscale") +
                              std::string(" injection of ") + analyzer + " at " + injection.runTime;
    return outcome == Outcome::TwiceInFile ? which + " stands in the file twice"
                                           : "the site already holds " + which;
}

void CalibrationWriter::insert(const CalibratedScale& scale, const Injection& injection)
{
    insert_->run(
        std::string(kCalibrationTable), std::int64_t{scale.measured}, scale.scale,
        injection.runTime, std::int64_t{injection.gasLevelCode}, injection.gasLevelText,
        sql::orNull(injection.reference), sql::orNull(injection.measured), injection.injectionEnd,
        std::int64_t{injection.isOnline ? status::kOnlineCalibration : status::kOfflineCalibration},
        sql::orNull(scale.span), std::int64_t{scale.measured});
}

} // namespace k7deval::sitedb
