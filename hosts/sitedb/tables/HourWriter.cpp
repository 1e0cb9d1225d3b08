#include "sitedb/tables/HourWriter.h"

namespace k7deval::sitedb
{

namespace
{

std::uint32_t bitOf(int hour)
{
    return std::uint32_t{1} << static_cast<unsigned>(hour);
}

} // namespace

HourWriter::HourWriter(sql::Connection& connection)
    : insert_(connection.prepare(connection.dialect().insertIfNew(
          {"hourly_value", {"pid", "day", "hour"}, {"value", "status"}})))
{
}

Outcome HourWriter::add(PID pid, const SiteHour& hour)
{
    HoursOfDay& hours = inFile_[pid][hour.day];
    if ((hours & bitOf(hour.hour)) != 0)
        return Outcome::TwiceInFile;
    insert_->with(std::int64_t{pid}, hour.day, std::int64_t{hour.hour}, sql::orNull(hour.value),
                  std::int64_t{hour.word});
    const bool isNew = insert_->step();
    insert_->reset();
    if (!isNew)
        return Outcome::AlreadyHeld;
    hours |= bitOf(hour.hour);
    return Outcome::Taken;
}

std::string HourWriter::fault(Outcome outcome, const std::string& what, const SiteHour& hour)
{
    const std::string which = "hour " + std::to_string(hour.hour) + " of " + hour.day;
    if (outcome == Outcome::TwiceInFile)
        return which + " stands in the file twice";
    return "the site already holds " + what + " for " + which;
}

} // namespace k7deval::sitedb
