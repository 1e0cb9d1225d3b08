#include "sitedb/formats/PlanImport.h"

#include "sitedb/PlainText.h"
#include "sitedb/formats/ImportSteps.h"
#include "sitedb/formats/PlanContent.h"
#include "sitedb/tables/SiteWriter.h"

#include <algorithm>
#include <utility>

namespace k7deval::sitedb
{

namespace
{

/// Takes the locations of a plan into a site. What the site holds already may stand in the plan
/// once more, but has to say the same.
class PlanImporter
{
public:
    PlanImporter(SiteWriter& writer, const SourceFile& file) : writer_(writer), file_(file) {}

    void take(const PlanLocation& location)
    {
        const std::int32_t unit = unitOf(location);
        for (const auto& component : location.components)
            take(location, unit, component);
        takeLoad(location, unit);
    }

    [[nodiscard]] std::vector<std::string> counts() const
    {
        std::vector<std::string> counts{counted(newUnits_, "unit"),
                                        counted(newAnalyzers_, "analyzer"),
                                        counted(newSpans_, "span")};
        if (knownSpans_ > 0)
            counts.push_back(counted(knownSpans_, "span") + " that the site had");
        if (newLoads_ > 0)
            counts.push_back(counted(newLoads_, "maximum load"));
        return counts;
    }

private:
    std::int32_t unitOf(const PlanLocation& location)
    {
        if (const auto known = writer_.units.find(location.name))
            return *known;
        const auto added = writer_.units.add(location.name);
        if (!added)
            throw file_.error(location.place, noMoreUnits(location.name));
        ++newUnits_;
        return *added;
    }

    void take(const PlanLocation& location, std::int32_t unit, const PlanComponent& component)
    {
        for (const auto& id : identifiersOf(location, unit, component)) {
            const PID measured = measuredOf(location, unit, component, id);
            for (const auto& span : component.spans)
                takeSpan(location, unit, measured, {id, component.gas, span});
        }
    }

    // Spans belong to a location and a type of analyzer. A file that names no components gives them
    // to all analyzers of the type that the site has there, or to one named by the gas.
    std::vector<std::string> identifiersOf(const PlanLocation& location, std::int32_t unit,
                                           const PlanComponent& component)
    {
        const std::string gas(component.gas->componentType);
        auto known = writer_.analyzers.components(unit, *component.gas);
        if (component.id.empty())
            return known.empty() ? std::vector{gas} : known;
        const bool isNameless = known == std::vector{gas} && isOnlyOne(location, component);
        if (isNameless && !writer_.analyzers.findMeasured(unit, component.id))
            writer_.analyzers.renameComponent(unit, *component.gas, component.id);
        return {component.id};
    }

    // An analyzer whose hours came without its identifier gets it when it can be no other.
    static bool isOnlyOne(const PlanLocation& location, const PlanComponent& component)
    {
        return component.isInForce &&
               std::ranges::count_if(location.components, [&](const PlanComponent& other) {
                   return other.isInForce && other.gas == component.gas;
               }) == 1;
    }

    PID measuredOf(const PlanLocation& location, std::int32_t unit, const PlanComponent& component,
                   const std::string& id)
    {
        if (const auto known = writer_.analyzers.findMeasured(unit, id)) {
            if (PIDPart(*known, pidpart::kParameterCode) != component.gas->parameterCode)
                throw file_.error(component.place, measuresAnotherGas(id, location.name));
            return *known;
        }
        const auto added = writer_.analyzers.addMeasured(unit, *component.gas, id);
        if (!added)
            throw file_.error(component.place, noMoreComponents());
        ++newAnalyzers_;
        return *added;
    }

    struct JoinedSpan {
        const std::string& component;
        const Gas* gas;
        const PlanSpan& facts;
    };

    void takeSpan(const PlanLocation& location, std::int32_t unit, PID measured,
                  const JoinedSpan& joined)
    {
        const AnalyzerSpan& span = joined.facts.span;
        const std::string name =
            location.name + " " + joined.component + " " + scaleText(span.scale);
        const auto known = writer_.analyzers.find(unit, joined.component, span.scale);
        if (known)
            checkIsSame(joined.facts.place, "a span of " + numberText(known->span) + " for " + name,
                        numberText(known->span), numberText(span.value));
        else
            writer_.analyzers.addCalibration(measured, *joined.gas, joined.component, span);
        ++(known ? knownSpans_ : newSpans_);
        takeFacts(calibrationPID(measured, span.scale), name, joined.facts);
    }

    void takeFacts(PID calibration, const std::string& name, const PlanSpan& facts)
    {
        const auto potential = facts.maximumPotential ? facts.maximumPotential : facts.maximumFlow;
        const std::pair<std::int32_t, std::optional<double>> numbers[] = {
            {planattribute::kFullScaleRange, facts.fullScale},
            {planattribute::kMaximumPotential, potential},
            {planattribute::kMaximumExpected, facts.maximumExpected},
            {planattribute::kFlowSpan, facts.flowSpan},
            {planattribute::kFlowFullScale, facts.flowFullScale},
        };
        for (const auto& [id, number] : numbers) {
            if (number)
                takeFact(calibration, id, name, facts.place, numberText(*number));
        }
        takeFact(calibration, planattribute::kSpanBegin, name, facts.place, facts.begin);
    }

    void takeFact(PID calibration, std::int32_t id, const std::string& name,
                  const std::string& place, const std::string& value)
    {
        const auto held = writer_.parameters.attributeText(calibration, id);
        if (held)
            checkIsSame(place, factName(id) + *held + " for " + name, *held, value);
        else
            writer_.parameters.setAttribute(calibration, id, value);
    }

    static std::string factName(std::int32_t id)
    {
        switch (id) {
        case planattribute::kFullScaleRange:
            return "a full scale range of ";
        case planattribute::kMaximumPotential:
            return "a maximum potential value of ";
        case planattribute::kMaximumExpected:
            return "a maximum expected value of ";
        case planattribute::kFlowSpan:
            return "a flow span of ";
        case planattribute::kFlowFullScale:
            return "a flow full scale range of ";
        default:
            return "a span in force since ";
        }
    }

    void checkIsSame(const std::string& place, const std::string& what, const std::string& held,
                     const std::string& value) const
    {
        if (held != value)
            throw file_.error(place, "the site has " + what + ", and the file says " + value);
    }

    void takeLoad(const PlanLocation& location, std::int32_t unit)
    {
        const PlanLoad& load = location.load;
        // Without a load there is no capacity to propose.
        if (load.maximum && *load.maximum > 0)
            newLoads_ +=
                takeConstant(location, maximumLoadPID(unit), "Maximum Load", *load.maximum);
        if (load.lowerBoundary)
            takeConstant(location, lowerBoundaryPID(unit), "Lower Operation Boundary",
                         *load.lowerBoundary);
        if (load.upperBoundary)
            takeConstant(location, upperBoundaryPID(unit), "Upper Operation Boundary",
                         *load.upperBoundary);
    }

    /// How many were made: 1 or 0.
    std::size_t takeConstant(const PlanLocation& location, PID pid, const std::string& name,
                             double megawatts)
    {
        if (const auto held = writer_.constants.value(pid)) {
            checkIsSame(location.load.place,
                        "a " + name + " of " + numberText(*held) + " MW for " + location.name,
                        numberText(*held), numberText(megawatts));
            return 0;
        }
        writer_.constants.set(pid, name, megawatts);
        return 1;
    }

    SiteWriter& writer_;
    const SourceFile& file_;
    std::size_t newUnits_ = 0;
    std::size_t newAnalyzers_ = 0;
    std::size_t newSpans_ = 0;
    std::size_t knownSpans_ = 0;
    std::size_t newLoads_ = 0;
};

Taken take(const ImportTask& task, const PlanContent& content)
{
    SiteWriter writer(task.connection);
    checkOrisCode(task.file, content.orisPlace, content.orisCode, writer.units.orisCode());
    PlanImporter importer(writer, task.file);
    for (const auto& location : content.locations)
        importer.take(location);
    writer.units.setOrisCode(content.orisCode);
    if (!content.facility.empty() && !writer.lookups.facilityName())
        writer.lookups.setFacilityName(content.facility);
    return {{{}, importer.counts(), content.steppedOver, {}}};
}

} // namespace

Taken takeMonitoringPlan(const ImportTask& task)
{
    return take(task, readMonitoringPlan(task.file));
}

Taken takeLocationSpans(const ImportTask& task)
{
    return take(task, readLocationSpans(task.file, task.options.unit));
}

} // namespace k7deval::sitedb
