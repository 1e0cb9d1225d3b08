#pragma once

#include "foundation/DIDataSet.h"
#include "foundation/DataInterface.h"
#include "foundation/Variant.h"

#include <initializer_list>
#include <memory>
#include <string>
#include <variant>
#include <vector>

/// The data interface on objects whose members are found by their names at run time.
namespace k7deval::latebound
{

class NamedObject;
using ObjectHandle = std::shared_ptr<NamedObject>;

/// What the data interface hands to a member: a plain value, a list of parameter types, or a data
/// set to be filled. What a pointer points to outlives the call.
using Argument = std::variant<Variant, const ParamTypes*, DIDataSet*>;
using Arguments = std::initializer_list<Argument>;

/// An object of a host, reached by the names of its members. A name without arguments is a property
/// of the object, one with arguments an operation that takes them in order.
///
/// All members raise Error: 438 for a name that the object does not have, 13 for a result of
/// another kind than is asked for, and what the host's own code raises with its number and
/// description, 440 where it has no number.
class NamedObject
{
public:
    NamedObject() = default;
    NamedObject(const NamedObject&) = delete;
    NamedObject& operator=(const NamedObject&) = delete;
    virtual ~NamedObject() = default;

    /// A member's plain value.
    [[nodiscard]] virtual Variant value(const char* name, Arguments arguments) = 0;
    /// A member's object, or null.
    [[nodiscard]] virtual ObjectHandle object(const char* name, Arguments arguments) = 0;
    /// Calls an operation whose result does not matter.
    virtual void call(const char* name, Arguments arguments) = 0;
    /// The items of a collection, in their order.
    [[nodiscard]] virtual std::vector<ObjectHandle> items() = 0;
    /// The name of the object's type, such as "DI1Params".
    [[nodiscard]] virtual std::string typeName() = 0;
};

} // namespace k7deval::latebound
