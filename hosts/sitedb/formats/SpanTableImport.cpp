#include "sitedb/formats/SpanTableImport.h"

#include "sitedb/formats/Fields.h"
#include "sitedb/formats/ImportSteps.h"
#include "sitedb/read/CsvTable.h"
#include "sitedb/tables/SiteWriter.h"

namespace k7deval::sitedb
{

namespace
{

struct SpanColumns {
    std::size_t unit;
    std::size_t component;
    std::size_t type;
    std::size_t scale;
    std::size_t span;
    std::size_t units;
};

SpanColumns spanColumns(const CsvTable& table)
{
    return {table.column("unit_id"),        table.column("component_id"),
            table.column("component_type"), table.column("span_scale"),
            table.column("span_value"),     table.column("units")};
}

/// Takes the rows of a span table into a site, one after the other.
class SpanTableImporter
{
public:
    SpanTableImporter(SiteWriter& writer, const CsvTable& table)
        : writer_(writer), table_(table), columns_(spanColumns(table))
    {
    }

    void take(const CsvRow& row)
    {
        const Gas& gas = gasOf(row);
        const Scale scale = scaleOf(row);
        const double span = table_.number(row, columns_.span, 0, gas.highestSpan);
        if (span == 0)
            throw table_.error(row, columns_.span, "a span is above 0");
        const std::string& component =
            identifierIn(table_, row, columns_.component, kComponentIdLength);
        const std::int32_t unit = unitOf(row);
        const PID measured = measuredOf(row, unit, gas, component);
        if (writer_.analyzers.find(unit, component, scale))
            throw table_.error(row, columns_.scale,
                               "the site already has the span of " + row.fields[columns_.unit] +
                                   " " + component + " on this scale");
        writer_.analyzers.addCalibration(measured, gas, component,
                                         {scale, span, row.fields[columns_.units]});
    }

    [[nodiscard]] std::vector<std::string> counts() const
    {
        return {counted(newUnits_, "unit"), counted(newAnalyzers_, "analyzer"),
                counted(table_.rows().size(), "span")};
    }

private:
    const Gas& gasOf(const CsvRow& row) const
    {
        const std::string& type = table_.field(row, columns_.type);
        const Gas* gas = findGas(type);
        if (gas == nullptr)
            throw table_.error(row, columns_.type, inQuotes(type) + " is not " + gasNames());
        const std::string& units = table_.field(row, columns_.units);
        if (!isSpanUnit(*gas, units))
            throw table_.error(row, columns_.units,
                               inQuotes(units) + " is not " + spanUnitNames(*gas));
        return *gas;
    }

    Scale scaleOf(const CsvRow& row) const
    {
        const std::string& code = row.fields[columns_.scale];
        const auto scale = scaleOfCode(code);
        if (!scale)
            throw table_.error(row, columns_.scale, inQuotes(code) + " is not H, L or empty");
        return *scale;
    }

    std::int32_t unitOf(const CsvRow& row)
    {
        const std::string& name = identifierIn(table_, row, columns_.unit, kUnitIdentifierLength);
        if (const auto known = writer_.units.find(name))
            return *known;
        const auto added = writer_.units.add(name);
        if (!added)
            throw table_.error(row, columns_.unit, noMoreUnits(name));
        ++newUnits_;
        return *added;
    }

    PID measuredOf(const CsvRow& row, std::int32_t unit, const Gas& gas,
                   const std::string& component)
    {
        if (const auto known = writer_.analyzers.findMeasured(unit, component)) {
            if (PIDPart(*known, pidpart::kParameterCode) != gas.parameterCode)
                throw table_.error(row, columns_.type,
                                   measuresAnotherGas(component, row.fields[columns_.unit]));
            return *known;
        }
        const auto added = writer_.analyzers.addMeasured(unit, gas, component);
        if (!added)
            throw table_.error(row, columns_.component, noMoreComponents());
        ++newAnalyzers_;
        return *added;
    }

    SiteWriter& writer_;
    const CsvTable& table_;
    SpanColumns columns_;
    std::size_t newUnits_ = 0;
    std::size_t newAnalyzers_ = 0;
};

} // namespace

Taken takeSpanTable(const ImportTask& task)
{
    const CsvTable table = CsvTable::parse(task.file);
    SiteWriter writer(task.connection);
    SpanTableImporter importer(writer, table);
    for (const auto& row : table.rows())
        importer.take(row);
    return {{{}, importer.counts(), {}, {}}};
}

} // namespace k7deval::sitedb
