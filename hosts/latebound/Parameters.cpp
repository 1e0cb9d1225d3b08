#include "latebound/Parameters.h"

namespace k7deval::latebound
{

k7deval::PID Parameter::PID()
{
    return object_.number("PID");
}

std::string Parameter::Name(std::int32_t form)
{
    return object_.text("Name", {form});
}

std::int32_t Parameter::ParamType()
{
    return object_.number("ParamType");
}

std::string Parameter::UnitsText()
{
    return object_.text("UnitsText");
}

DIInterval Parameter::Interval()
{
    const Wrapper interval = object_.member("Interval");
    return {interval.number("Multiple"), interval.number("Unit")};
}

void Parameter::ReadData(DIDataSet& set)
{
    object_.handle()->call("ReadData", {&set});
}

DIDataSet Parameter::CurrentPoint(std::int32_t one, std::int32_t two, std::int32_t three)
{
    const Wrapper point = object_.member("CurrentPoint", {one, two, three});
    DIDataSet set;
    set.Init({}, 1, "h", 1, 0);
    DIDataPoint slot = set.ItemByIndex(1);
    // A slot holds numbers only; any other value is as good as none.
    const Variant value = point.value("Value");
    if (IsNumeric(value, *point.region()))
        slot.SetValue(doubleIn(value, *point.region()));
    slot.SetStatus(point.number("Status"));
    return set;
}

Variant Parameter::GetAttribute(std::int32_t id)
{
    return object_.value("GetAttribute", {id});
}

Variant Parameter::GetLinkedPID(std::int32_t id)
{
    return object_.value("GetLinkedPID", {id});
}

bool Parameters::Exists(PID pid)
{
    return object_.flag("Exists", {pid});
}

std::shared_ptr<DIParameter> Parameters::Item(PID pid, std::int32_t option)
{
    return object_.optional<Parameter>("Item", {pid, option});
}

} // namespace k7deval::latebound
