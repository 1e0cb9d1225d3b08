#include "sitedb/formats/Fields.h"
#include "sitedb/formats/ImportSteps.h"
#include "sitedb/formats/PlanContent.h"
#include "sitedb/read/CsvTable.h"
#include "sitedb/tables/TimeText.h"

#include <algorithm>
#include <set>
#include <utility>

namespace k7deval::sitedb
{

namespace
{

struct SpanRow {
    const CsvRow* row;
    std::string location;
    const Gas* gas;
    Scale scale;
    PlanPeriod period;

    /// Records of one key follow one another in time.
    [[nodiscard]] bool isOfKey(const SpanRow& other) const
    {
        return location == other.location && gas == other.gas && scale == other.scale;
    }
};

/// Reads a table of the spans of locations.
class SpanReader
{
public:
    SpanReader(const SourceFile& file, const std::string& location)
        : file_(file), table_(CsvTable::parse(file)), only_(location)
    {
    }

    PlanContent read()
    {
        readFacility();
        std::vector<SpanRow> rows;
        for (const auto& row : table_.rows()) {
            if (!isWanted(row))
                continue;
            const std::string& type = table_.field(row, table_.column("component_type_cd"));
            if (const Gas* gas = findGas(type))
                rows.push_back(spanRow(row, *gas));
            else
                otherTypes_.insert(type);
        }
        if (rows.empty())
            throw file_.error("location", only_.empty() ? "no row of the table names its location"
                                                        : "the table has no location " + only_);
        while (!rows.empty())
            takeKey(rows);
        tellSteppedOver();
        return std::move(content_);
    }

private:
    void readFacility()
    {
        const std::size_t oris = table_.column("oris");
        const CsvRow& first = table_.rows().front();
        content_.orisPlace = "line " + std::to_string(first.line) + ": oris";
        content_.orisCode = orisCodeIn(table_, first, oris);
        content_.facility = first.fields[table_.column("facility")];
        for (const auto& row : table_.rows()) {
            if (orisCodeIn(table_, row, oris) != content_.orisCode)
                throw table_.error(row, oris, "the table holds more than one facility");
        }
    }

    bool isWanted(const CsvRow& row)
    {
        const std::string& location = row.fields[table_.column("location")];
        if (location.empty())
            ++nameless_;
        return !location.empty() && (only_.empty() || location == only_);
    }

    SpanRow spanRow(const CsvRow& row, const Gas& gas) const
    {
        return {&row, identifierIn(table_, row, table_.column("location"), kUnitIdentifierLength),
                &gas, scaleOf(row), periodOf(row)};
    }

    Scale scaleOf(const CsvRow& row) const
    {
        const std::size_t column = table_.column("span_scale_cd");
        const auto scale = scaleOfCode(row.fields[column]);
        if (!scale)
            throw table_.error(row, column, inQuotes(row.fields[column]) + " is not H, L or empty");
        return *scale;
    }

    PlanPeriod periodOf(const CsvRow& row) const
    {
        PlanPeriod period;
        period.begin = hourOf(row, "begin_date", "begin_hour");
        if (!row.fields[table_.column("end_date")].empty())
            period.end = hourOf(row, "end_date", "end_hour");
        return period;
    }

    std::string hourOf(const CsvRow& row, const char* dateName, const char* hourName) const
    {
        const std::size_t dateColumn = table_.column(dateName);
        const std::size_t hourColumn = table_.column(hourName);
        return minuteText(dateIn(table_, row, dateColumn), hourIn(table_, row, hourColumn), 0);
    }

    /// Takes the first row's location, type and scale out of the rows, with the span in force.
    void takeKey(std::vector<SpanRow>& rows)
    {
        const SpanRow key = rows.front();
        const auto rest = std::stable_partition(
            rows.begin(), rows.end(), [&](const SpanRow& row) { return row.isOfKey(key); });
        std::vector<PlanPeriod> periods;
        for (auto row = rows.begin(); row != rest; ++row)
            periods.push_back(row->period);
        const SpanRow& held = rows[*recordAt(periods, kPresent)];
        stale_ += periods.size() - 1;
        addSpan(held);
        rows.erase(rows.begin(), rest);
    }

    void addSpan(const SpanRow& held)
    {
        const auto value = numberOf(*held.row, "span_value", held.gas->highestSpan);
        if (!value) {
            content_.steppedOver.push_back("line " + std::to_string(held.row->line) + ": " +
                                           held.location + " " +
                                           std::string(held.gas->componentType) + " " +
                                           scaleText(held.scale) + " has no span value.");
            return;
        }
        PlanSpan span = planSpan(held, *value);
        component(location(held), held).spans.push_back(std::move(span));
    }

    PlanSpan planSpan(const SpanRow& held, double value) const
    {
        const CsvRow& row = *held.row;
        const double highest = held.gas->highestSpan;
        PlanSpan span;
        span.place = "line " + std::to_string(row.line);
        span.span = spanOf(held, value);
        span.begin = held.period.begin;
        span.fullScale = numberOf(row, "full_scale_range", highest);
        span.maximumPotential = numberOf(row, "mpc_value", highest);
        span.maximumExpected = numberOf(row, "mec_value", highest);
        span.maximumFlow = numberOf(row, "mpf_value", highest);
        span.flowSpan = numberOf(row, "flow_span_value", highest);
        span.flowFullScale = numberOf(row, "flow_full_scale_range", highest);
        return span;
    }

    AnalyzerSpan spanOf(const SpanRow& held, double value) const
    {
        if (value == 0)
            throw table_.error(*held.row, table_.column("span_value"), "a span is above 0");
        const std::size_t column = table_.column("span_uom_cd");
        const std::string& units = table_.field(*held.row, column);
        if (!isSpanUnit(*held.gas, units))
            throw table_.error(*held.row, column,
                               inQuotes(units) + " is not " + spanUnitNames(*held.gas));
        return {held.scale, value, units};
    }

    std::optional<double> numberOf(const CsvRow& row, const char* name, double highest) const
    {
        const std::size_t column = table_.column(name);
        if (row.fields[column].empty())
            return std::nullopt;
        return table_.number(row, column, 0, highest);
    }

    PlanLocation& location(const SpanRow& held)
    {
        auto& all = content_.locations;
        const auto found = std::ranges::find(all, held.location, &PlanLocation::name);
        if (found != all.end())
            return *found;
        PlanLocation location;
        location.place = "line " + std::to_string(held.row->line) + ": location";
        location.name = held.location;
        return all.emplace_back(std::move(location));
    }

    static PlanComponent& component(PlanLocation& location, const SpanRow& held)
    {
        auto& all = location.components;
        const auto found = std::ranges::find(all, held.gas, &PlanComponent::gas);
        if (found != all.end())
            return *found;
        PlanComponent component;
        component.place = "line " + std::to_string(held.row->line) + ": component_type_cd";
        component.gas = held.gas;
        return all.emplace_back(std::move(component));
    }

    void tellSteppedOver()
    {
        if (!otherTypes_.empty())
            content_.steppedOver.push_back(
                "Spans of types without hourly values: " + listed(otherTypes_) + ".");
        if (stale_ > 0)
            content_.steppedOver.push_back(counted(stale_, "span") + " of other times.");
        if (nameless_ > 0 && only_.empty())
            content_.steppedOver.push_back(counted(nameless_, "row") + " without a location.");
    }

    const SourceFile& file_;
    CsvTable table_;
    const std::string& only_;
    PlanContent content_;
    std::set<std::string> otherTypes_;
    std::size_t stale_ = 0;
    std::size_t nameless_ = 0;
};

} // namespace

PlanContent readLocationSpans(const SourceFile& file, const std::string& location)
{
    return SpanReader(file, location).read();
}

} // namespace k7deval::sitedb
