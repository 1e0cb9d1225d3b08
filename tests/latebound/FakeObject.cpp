#include "latebound/FakeObject.h"

#include "foundation/Error.h"

#include <utility>

namespace k7deval::latebound
{

namespace
{

struct ArgumentText {
    DIDataSet* set = nullptr;

    std::string operator()(const Variant& value) const
    {
        if (const auto* text = std::get_if<std::string>(&value))
            return "'" + *text + "'";
        return toText(value, *enUS());
    }
    std::string operator()(const ParamTypes* types) const
    {
        std::string text = "[";
        for (const std::int32_t type : *types)
            text += (text.size() > 1 ? " " : "") + std::to_string(type);
        return text + "]";
    }
    std::string operator()(DIDataSet* /*set*/) const { return "set"; }
};

std::string callText(const char* name, Arguments arguments)
{
    std::string text = name;
    for (const Argument& argument : arguments)
        text +=
            (&argument == arguments.begin() ? "(" : ", ") + std::visit(ArgumentText{}, argument);
    return arguments.size() == 0 ? text : text + ")";
}

} // namespace

const Answer& FakeObject::reach(const char* name, Arguments arguments)
{
    calls.push_back(callText(name, arguments));
    const auto found = members.find(name);
    if (found == members.end())
        throw Error(errors::kUnknownMember);
    return found->second;
}

Variant FakeObject::value(const char* name, Arguments arguments)
{
    return std::get<Variant>(reach(name, arguments));
}

ObjectHandle FakeObject::object(const char* name, Arguments arguments)
{
    return std::get<ObjectHandle>(reach(name, arguments));
}

void FakeObject::call(const char* name, Arguments arguments)
{
    reach(name, arguments);
    for (const Argument& argument : arguments) {
        if (DIDataSet* const* set = std::get_if<DIDataSet*>(&argument))
            fill(**set);
    }
}

FakeHandle fake(std::map<std::string, Answer> members)
{
    auto object = std::make_shared<FakeObject>();
    object->members = std::move(members);
    return object;
}

FakeHandle fakeCollection(std::vector<ObjectHandle> entries)
{
    auto object = std::make_shared<FakeObject>();
    object->entries = std::move(entries);
    return object;
}

Region enUS()
{
    return std::make_shared<const RegionalSettings>();
}

Wrapper wrapped(const FakeHandle& object)
{
    return {object, enUS()};
}

} // namespace k7deval::latebound
