#include "sitedb/formats/Fields.h"
#include "sitedb/formats/ImportSteps.h"
#include "sitedb/formats/PlanContent.h"
#include "sitedb/read/CsvTable.h"
#include "sitedb/read/JsonNode.h"
#include "sitedb/tables/TimeText.h"

#include <algorithm>
#include <set>
#include <utility>

namespace k7deval::sitedb
{

namespace
{

/// The name of a list in the layout of the import and in that of the API.
struct ListName {
    std::string_view ofImport;
    std::string_view ofApi;

    [[nodiscard]] bool is(std::string_view name) const { return name == ofImport || name == ofApi; }
    [[nodiscard]] std::vector<JsonNode> in(const JsonNode& node) const
    {
        return node.list({ofImport, ofApi});
    }
};

constexpr ListName kLocations{"monitoringLocationData", "locations"};
constexpr ListName kSpans{"monitoringSpanData", "spans"};
constexpr ListName kLoads{"monitoringLoadData", "loads"};
constexpr ListName kComponents{"componentData", "components"};
constexpr ListName kRanges{"analyzerRangeData", "analyzerRanges"};

/// The hour of a date and an hour field; an hour that is null is the given one.
std::string hourOf(const JsonNode& record, const char* date, const char* hour, int hourOfNull)
{
    const std::string day = dateIn(record.field(date));
    const bool isNull = !record.has(hour) || record.field(hour).isNull();
    return minuteText(day, isNull ? hourOfNull : hourIn(record.field(hour)), 0);
}

PlanPeriod periodOf(const JsonNode& record)
{
    PlanPeriod period;
    period.begin = hourOf(record, "beginDate", "beginHour", 0);
    if (record.has("endDate") && !record.field("endDate").isNull())
        period.end = hourOf(record, "endDate", "endHour", 23);
    return period;
}

std::optional<double> numberOf(const JsonNode& record, const char* name, double highest)
{
    return record.has(name) ? record.field(name).numberOrNull(0, highest) : std::nullopt;
}

struct SpanRecord {
    JsonNode node;
    const Gas* gas;
    Scale scale;
    PlanPeriod period;
};

Scale scaleOf(const JsonNode& record, const Gas& gas)
{
    const JsonNode node = record.field("spanScaleCode");
    const auto scale = scaleOfCode(node.textOrNull());
    if (!scale || (*scale != Scale::Single) != hasScales(gas))
        throw node.error(node.shown() +
                         (hasScales(gas) ? " is not H or L" : " is a scale, and flow has none"));
    return *scale;
}

AnalyzerSpan spanOf(const SpanRecord& record, double value)
{
    if (value == 0)
        throw record.node.field("spanValue").error("a span is above 0");
    const JsonNode units = record.node.field("spanUnitsOfMeasureCode");
    const std::string code = units.textOrNull();
    if (!isSpanUnit(*record.gas, code))
        throw units.error(units.shown() + " is not " + spanUnitNames(*record.gas));
    return {record.scale, value, code};
}

PlanSpan planSpan(const SpanRecord& record, double value)
{
    const double highest = record.gas->highestSpan;
    const JsonNode& node = record.node;
    PlanSpan span;
    span.place = node.path();
    span.span = spanOf(record, value);
    span.begin = record.period.begin;
    span.fullScale = numberOf(node, "fullScaleRange", highest);
    span.maximumPotential = numberOf(node, "mpcValue", highest);
    span.maximumExpected = numberOf(node, "mecValue", highest);
    span.maximumFlow = numberOf(node, "mpfValue", highest);
    span.flowSpan = numberOf(node, "flowSpanValue", highest);
    span.flowFullScale = numberOf(node, "flowFullScaleRange", highest);
    return span;
}

/// The scales that a range code of an analyzer stands for; A is one analyzer on both.
std::vector<Scale> scalesOf(const JsonNode& range)
{
    const JsonNode node = range.field("analyzerRangeCode");
    const std::string code = node.textOrNull();
    if (code == "H")
        return {Scale::High};
    if (code == "L")
        return {Scale::Low};
    if (code == "A")
        return {Scale::High, Scale::Low};
    throw node.error(node.shown() + " is not H, L or A");
}

template <class Record> std::vector<PlanPeriod> periodsOf(const std::vector<Record>& records)
{
    std::vector<PlanPeriod> periods;
    periods.reserve(records.size());
    for (const auto& record : records)
        periods.push_back(record.period);
    return periods;
}

struct DatedNode {
    JsonNode node;
    PlanPeriod period;
};

std::vector<DatedNode> datedNodes(const std::vector<JsonNode>& nodes)
{
    std::vector<DatedNode> dated;
    dated.reserve(nodes.size());
    for (const auto& node : nodes)
        dated.push_back({node, periodOf(node)});
    return dated;
}

/// Reads one location of a plan.
class LocationReader
{
public:
    LocationReader(const JsonNode& node, std::vector<std::string>& steppedOver)
        : node_(node), steppedOver_(steppedOver)
    {
    }

    PlanLocation read()
    {
        location_.place = node_.path();
        location_.name = name();
        readSpans();
        for (const auto& component : kComponents.in(node_))
            readComponent(component);
        // What is in force is numbered first: range evaluation shows the first of two analyzers.
        std::stable_partition(location_.components.begin(), location_.components.end(),
                              [](const PlanComponent& component) { return component.isInForce; });
        readLoad();
        tellSteppedOver();
        return std::move(location_);
    }

private:
    [[nodiscard]] std::string name() const
    {
        const bool isUnit = node_.has("unitId") && !node_.field("unitId").isNull();
        return identifierIn(node_.field(isUnit ? "unitId" : "stackPipeId"), kUnitIdentifierLength);
    }

    void readSpans()
    {
        for (const auto& node : kSpans.in(node_)) {
            const std::string type = node.field("componentTypeCode").text();
            const Gas* gas = findGas(type);
            if (gas == nullptr)
                otherSpans_.insert(type);
            else
                spans_.push_back({node, gas, scaleOf(node, *gas), periodOf(node)});
        }
    }

    void readComponent(const JsonNode& node)
    {
        const std::string type = node.field("componentTypeCode").text();
        const Gas* gas = findGas(type);
        if (gas == nullptr) {
            otherComponents_.insert(type);
            return;
        }
        PlanComponent component;
        const JsonNode id = node.field({"componentId", "componentID"});
        component.place = id.path();
        component.id = identifierIn(id, kComponentIdLength);
        component.gas = gas;
        join(component, node);
        location_.components.push_back(std::move(component));
    }

    // A flow monitor has one scale and no range record.
    void join(PlanComponent& component, const JsonNode& node)
    {
        const auto ranges = datedNodes(kRanges.in(node));
        const auto range = recordAt(periodsOf(ranges), kPresent);
        if (!range) {
            joinSpan(component, Scale::Single, std::string(kPresent));
            if (hasScales(*component.gas) && hasSpans(component))
                steppedOver_.push_back(
                    node.path() + ": " + std::string(component.gas->componentType) + " " +
                    component.id + " has no analyzer range, so no span is joined to it.");
            return;
        }
        const DatedNode& held = ranges[*range];
        component.isInForce = held.period.end.empty();
        const std::string time = component.isInForce ? std::string(kPresent) : held.period.end;
        for (const Scale scale : scalesOf(held.node))
            joinSpan(component, scale, time);
    }

    // Spans of its type that a component without a range could have been joined to.
    [[nodiscard]] bool hasSpans(const PlanComponent& component) const
    {
        return std::ranges::any_of(
            spans_, [&](const SpanRecord& span) { return span.gas == component.gas; });
    }

    void joinSpan(PlanComponent& component, Scale scale, const std::string& time)
    {
        std::vector<SpanRecord> records;
        std::ranges::copy_if(spans_, std::back_inserter(records), [&](const SpanRecord& record) {
            return record.gas == component.gas && record.scale == scale;
        });
        const auto found = recordAt(periodsOf(records), time);
        if (!found)
            return;
        const SpanRecord& record = records[*found];
        taken_.insert(record.node.path());
        const auto value = numberOf(record.node, "spanValue", record.gas->highestSpan);
        if (value)
            component.spans.push_back(planSpan(record, *value));
        else
            tellNoSpan(record);
    }

    // The high scale of an analyzer with a default high range is not calibrated.
    void tellNoSpan(const SpanRecord& record)
    {
        const std::string sentence =
            record.node.path() + ": " + std::string(record.gas->componentType) + " " +
            scaleText(record.scale) + " has no span value, so its scale has no calibrations.";
        if (std::ranges::find(steppedOver_, sentence) == steppedOver_.end())
            steppedOver_.push_back(sentence);
    }

    void readLoad()
    {
        const auto loads = datedNodes(kLoads.in(node_));
        const auto found = recordAt(periodsOf(loads), kPresent);
        if (!found)
            return;
        staleLoads_ = loads.size() - 1;
        const JsonNode& node = loads[*found].node;
        const JsonNode units = node.field("maximumLoadUnitsOfMeasureCode");
        if (units.textOrNull() != "MW") {
            steppedOver_.push_back(units.path() + ": " + units.shown() +
                                   " is not MW, the unit in which a site keeps loads.");
            return;
        }
        location_.load = {node.path(), numberOf(node, "maximumLoadValue", kHighestLoad),
                          numberOf(node, "lowerOperationBoundary", kHighestLoad),
                          numberOf(node, "upperOperationBoundary", kHighestLoad)};
    }

    void tellSteppedOver()
    {
        const std::string path = node_.path();
        if (!otherComponents_.empty())
            steppedOver_.push_back(path + ": components of types without hourly values: " +
                                   listed(otherComponents_) + ".");
        if (!otherSpans_.empty())
            steppedOver_.push_back(
                path + ": spans of types without hourly values: " + listed(otherSpans_) + ".");
        if (spans_.size() > taken_.size())
            steppedOver_.push_back(path + ": " + counted(spans_.size() - taken_.size(), "span") +
                                   " of other times or without an analyzer.");
        if (staleLoads_ > 0)
            steppedOver_.push_back(path + ": " + counted(staleLoads_, "load record") +
                                   " of other times.");
    }

    const JsonNode& node_;
    std::vector<std::string>& steppedOver_;
    PlanLocation location_;
    std::vector<SpanRecord> spans_;
    std::set<std::string> taken_;
    std::set<std::string> otherSpans_;
    std::set<std::string> otherComponents_;
    std::size_t staleLoads_ = 0;
};

void stepOverLists(const JsonNode& node, std::vector<std::string>& steppedOver)
{
    for (const auto& name : node.fieldNames()) {
        const JsonNode list = node.field(name);
        const bool isRead =
            kLocations.is(name) || kSpans.is(name) || kLoads.is(name) || kComponents.is(name);
        if (isRead || !list.isList() || list.elements().empty())
            continue;
        steppedOver.push_back(list.path() + ": " + entries(list.elements().size()) + ".");
    }
}

void readLocation(PlanContent& content, const JsonNode& node)
{
    PlanLocation location = LocationReader(node, content.steppedOver).read();
    stepOverLists(node, content.steppedOver);
    const bool isUnit = node.has("unitId") && !node.field("unitId").isNull();
    if (isUnit || !location.components.empty())
        content.locations.push_back(std::move(location));
    else
        content.steppedOver.push_back(node.path() + ": " + location.name +
                                      " is a stack or pipe without analyzers.");
}

} // namespace

std::optional<std::size_t> recordAt(const std::vector<PlanPeriod>& periods, std::string_view time)
{
    const auto rank = [&](const PlanPeriod& period) {
        const bool isInForce = period.end.empty() || period.end >= time;
        return std::pair(isInForce, period.begin);
    };
    std::optional<std::size_t> best;
    for (std::size_t index = 0; index < periods.size(); ++index) {
        const bool hasBegun = periods[index].begin <= time;
        if (hasBegun && (!best || rank(periods[*best]) < rank(periods[index])))
            best = index;
    }
    return best;
}

PlanContent readMonitoringPlan(const SourceFile& file)
{
    const JsonNode root = JsonNode::parse(file);
    PlanContent content;
    const JsonNode oris = root.field("orisCode");
    content.orisPlace = oris.path();
    content.orisCode = orisCodeIn(oris);
    if (root.has("facilityName"))
        content.facility = root.field("facilityName").textOrNull();
    stepOverLists(root, content.steppedOver);
    const JsonNode locations = root.field({kLocations.ofImport, kLocations.ofApi});
    for (const auto& node : locations.elements())
        readLocation(content, node);
    if (content.locations.empty())
        throw locations.error("the plan has no unit and no stack with analyzers");
    return content;
}

} // namespace k7deval::sitedb
