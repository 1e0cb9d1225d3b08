#pragma once

#include "latebound/NamedObject.h"
#include "latebound/Wrapper.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <variant>
#include <vector>

/// A host's object made of plain data, which notes how its members are reached.
namespace k7deval::latebound
{

/// What a member gives: a value, or an object.
using Answer = std::variant<Variant, ObjectHandle>;

class FakeObject final : public NamedObject
{
public:
    /// Members by name, as properties and as the results of operations.
    std::map<std::string, Answer> members;
    std::vector<ObjectHandle> entries;
    std::string type = "FakeObject";
    /// Runs when a data set is handed over.
    std::function<void(DIDataSet&)> fill;
    /// Each reach for a member, such as "Name(0)" or "PID".
    std::vector<std::string> calls;

    [[nodiscard]] Variant value(const char* name, Arguments arguments) override;
    [[nodiscard]] ObjectHandle object(const char* name, Arguments arguments) override;
    void call(const char* name, Arguments arguments) override;
    [[nodiscard]] std::vector<ObjectHandle> items() override { return entries; }
    [[nodiscard]] std::string typeName() override { return type; }

private:
    const Answer& reach(const char* name, Arguments arguments);
};

using FakeHandle = std::shared_ptr<FakeObject>;

/// An object with these members.
FakeHandle fake(std::map<std::string, Answer> members);
/// A collection of these objects.
FakeHandle fakeCollection(std::vector<ObjectHandle> entries);
/// How numbers and dates are written in the tests.
Region enUS();
/// The object as the data interface takes it.
Wrapper wrapped(const FakeHandle& object);

} // namespace k7deval::latebound
