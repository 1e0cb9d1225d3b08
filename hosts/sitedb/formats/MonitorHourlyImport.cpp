#include "sitedb/formats/MonitorHourlyImport.h"

#include "sitedb/formats/Fields.h"
#include "sitedb/formats/HourlyGas.h"
#include "sitedb/formats/HourlyTable.h"
#include "sitedb/formats/ImportSteps.h"
#include "sitedb/tables/Modc.h"

#include <algorithm>
#include <map>
#include <utility>

namespace k7deval::sitedb
{

namespace
{

constexpr const char* kValueColumn = "unadjusted_hourly_value";
// The same of a table of 40 CFR 63 Subpart UUUUU, whose values are of mercury.
constexpr const char* kMatsValueColumn = "unadjusted_hourly_value_ugscm";

/// "010 and 020", "010, 020 and 030".
std::string enumerated(const std::vector<std::string>& names)
{
    std::string text;
    for (std::size_t index = 0; index < names.size(); ++index) {
        if (index > 0)
            text += index + 1 == names.size() ? " and " : ", ";
        text += names[index];
    }
    return text;
}

bool isMats(const CsvTable& table)
{
    return std::ranges::find(table.header(), kMatsValueColumn) != table.header().end();
}

/// Takes the rows of a table of monitor hours into a site, one after the other. The table does not
/// say which component measured them.
class MonitorHourlyImporter
{
public:
    MonitorHourlyImporter(const CsvTable& table, const ImportTask& task)
        : table_(table), hours_(table, task.file, task.connection), writer_(task.connection),
          options_(task.options),
          unit_(namedUnit(writer_, task.file, options_.unit, "hours belong")),
          parameter_(table.column("parameter")), modc_(table.column("modc")),
          value_(table.column(isMats(table) ? kMatsValueColumn : kValueColumn))
    {
    }

    void take(const CsvRow& row)
    {
        const std::string& code = table_.field(row, parameter_);
        const Gas& gas = gasOf(row, code);
        const Modc& modc = modcOf(row);
        SiteHour hour = hours_.hourOf(row);
        if (!row.fields[value_].empty())
            hour.value = table_.number(row, value_, -kHighestHourlyValue, kHighestHourlyValue);
        hour.word = statusWord(modc);
        hours_.add(row, measuredOf(row, gas), "the unit's " + code, hour);
        if (modc.use == ModcUse::Measured)
            ++measuredHours_;
    }

    [[nodiscard]] std::vector<std::string> counts() const
    {
        return {counted(table_.rows().size(), "hour"), counted(measuredHours_, "measured hour")};
    }

private:
    const Gas& gasOf(const CsvRow& row, const std::string& code) const
    {
        const Gas* gas = findHourlyGas(code);
        if (gas == nullptr)
            throw table_.error(row, parameter_, inQuotes(code) + " is no parameter that is kept");
        if (isMats(table_) && gas->unitsCode != "UGSCM")
            throw table_.error(row, parameter_, code + " is not measured in \xC2\xB5g/scm");
        return *gas;
    }

    const Modc& modcOf(const CsvRow& row) const
    {
        const std::string& text = table_.field(row, modc_);
        const Modc* modc = findModc(text);
        if (modc == nullptr)
            throw table_.error(row, modc_, inQuotes(text) + " is no MODC of a monitor's hour");
        return *modc;
    }

    PID measuredOf(const CsvRow& row, const Gas& gas)
    {
        const auto known = measured_.find(gas.parameterCode);
        if (known != measured_.end())
            return known->second;
        const std::string component = componentOf(row, gas);
        const auto measured = findOrAddMeasured(writer_, unit_, gas, component);
        if (!measured)
            throw table_.error(row, parameter_, noMoreComponents());
        if (PIDPart(*measured, pidpart::kParameterCode) != gas.parameterCode)
            throw table_.error(row, parameter_, measuresAnotherGas(component, options_.unit));
        measured_[gas.parameterCode] = *measured;
        return *measured;
    }

    std::string componentOf(const CsvRow& row, const Gas& gas)
    {
        if (!options_.component.empty()) {
            const std::string fault = identifierFault(options_.component, kComponentIdLength);
            if (!fault.empty())
                throw table_.error(row, parameter_, "component: " + fault);
            return options_.component;
        }
        const auto possible = possibleComponents(writer_, unit_, gas);
        if (possible.size() > 1)
            throw table_.error(row, parameter_,
                               "of the components " + enumerated(possible) + " of " +
                                   options_.unit + ", which all measure " +
                                   std::string(gas.componentType) + ", one has to be named");
        return possible.front();
    }

    const CsvTable& table_;
    HourlyTable hours_;
    SiteWriter writer_;
    const ImportOptions& options_;
    std::int32_t unit_;
    std::size_t parameter_;
    std::size_t modc_;
    std::size_t value_;
    std::map<std::int32_t, PID> measured_; ///< By the gas's code.
    std::size_t measuredHours_ = 0;
};

} // namespace

Taken takeMonitorHourly(const ImportTask& task)
{
    const CsvTable table = CsvTable::parse(task.file);
    MonitorHourlyImporter importer(table, task);
    takeRows(table, task, [&](const CsvRow& row) { importer.take(row); });
    auto others =
        otherColumns(table, {"date", "hour", "parameter", "modc", kValueColumn, kMatsValueColumn});
    return {{{}, importer.counts(), std::move(others), {}}, table.rows().size()};
}

} // namespace k7deval::sitedb
