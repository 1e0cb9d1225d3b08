#include "sitedb/tables/ParameterWriter.h"

#include "sitedb/tables/SiteIds.h"

namespace k7deval::sitedb
{

bool ParameterWriter::exists(PID pid)
{
    const auto row = connection_.prepare("SELECT 1 FROM parameter WHERE pid = $1");
    return row->with(std::int64_t{pid}).step();
}

void ParameterWriter::add(PID pid, const ParameterNames& names)
{
    insert(pid, names, "", 0);
}

void ParameterWriter::addHourly(PID pid, const ParameterNames& names)
{
    insert(pid, names, "h", 1);
}

void ParameterWriter::insert(PID pid, const ParameterNames& names,
                             const std::string& intervalLetter, std::int64_t interval)
{
    connection_.execute("INSERT INTO parameter (pid, name, param_type, units_text,"
                        " interval_letter, interval_multiple, interval_unit)"
                        " VALUES ($1, $2, $3, $4, $5, $6, $7)",
                        std::int64_t{pid}, names.name, std::int64_t{names.type}, names.unitsText,
                        intervalLetter, interval, interval);
}

void ParameterWriter::renameBeginning(PID pid, const std::string& old, const std::string& beginning)
{
    connection_.execute("UPDATE parameter SET name = $1 || SUBSTR(name, $2) WHERE pid = $3",
                        beginning, static_cast<std::int64_t>(old.size()) + 1, std::int64_t{pid});
}

void ParameterWriter::setUnitsText(PID pid, const std::string& unitsText)
{
    connection_.execute("UPDATE parameter SET units_text = $1 WHERE pid = $2", unitsText,
                        std::int64_t{pid});
}

void ParameterWriter::remove(PID pid)
{
    connection_.execute("DELETE FROM attribute WHERE pid = $1", std::int64_t{pid});
    connection_.execute("DELETE FROM parameter WHERE pid = $1", std::int64_t{pid});
}

std::optional<std::string> ParameterWriter::attributeText(PID pid, std::int32_t id)
{
    const auto row = connection_.prepare("SELECT value FROM attribute WHERE pid = $1 AND id = $2");
    row->with(std::int64_t{pid}, std::int64_t{id});
    return row->step() ? std::optional(row->text(0)) : std::nullopt;
}

void ParameterWriter::setAttribute(PID pid, std::int32_t id, std::int32_t value)
{
    putAttribute(pid, id, attributekind::kWhole, std::to_string(value));
}

void ParameterWriter::setAttribute(PID pid, std::int32_t id, bool value)
{
    putAttribute(pid, id, attributekind::kBoolean, value ? kTrueText : kFalseText);
}

void ParameterWriter::setAttribute(PID pid, std::int32_t id, const std::string& value)
{
    putAttribute(pid, id, attributekind::kText, value);
}

void ParameterWriter::putAttribute(PID pid, std::int32_t id, const char* kind,
                                   const std::string& value)
{
    connection_.execute(
        connection_.dialect().insertOrUpdate({"attribute", {"pid", "id"}, {"kind", "value"}}),
        std::int64_t{pid}, std::int64_t{id}, std::string(kind), value);
}

void ParameterWriter::setLink(PID pid, std::int32_t id, PID target)
{
    connection_.execute(
        connection_.dialect().insertOrUpdate({"link", {"pid", "id"}, {"target_pid"}}),
        std::int64_t{pid}, std::int64_t{id}, std::int64_t{target});
}

} // namespace k7deval::sitedb
