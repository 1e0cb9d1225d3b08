#include "python/PythonObject.h"

#include "foundation/Error.h"
#include "python/HostErrors.h"
#include "python/Values.h"

#include <memory>
#include <utility>
#include <variant>

namespace k7deval::python
{

namespace py = pybind11;

namespace
{

using latebound::Argument;
using latebound::Arguments;
using latebound::ObjectHandle;

/// The arguments of one call. A data set is handed over as a copy, which stays good when the host
/// keeps it, and what the host put into it is taken over after the call.
class CallArguments
{
public:
    explicit CallArguments(Arguments arguments) : values_(arguments.size())
    {
        std::size_t position = 0;
        for (const Argument& argument : arguments)
            values_[position++] = std::visit(*this, argument);
    }

    [[nodiscard]] const py::tuple& values() const { return values_; }

    void takeOver() const
    {
        if (filled_ != nullptr)
            *filled_ = *handed_;
    }

    py::object operator()(const Variant& value) const { return pythonValue(value); }
    py::object operator()(const ParamTypes* types) const { return py::cast(*types); }
    py::object operator()(DIDataSet* set)
    {
        filled_ = set;
        handed_ = std::make_shared<DIDataSet>(*set);
        return py::cast(handed_);
    }

private:
    py::tuple values_;
    DIDataSet* filled_ = nullptr;
    std::shared_ptr<DIDataSet> handed_;
};

/// Whether an attribute error came out of the object's own property.
bool isOwnProperty(py::handle object, const char* name)
{
    return py::hasattr(py::type::handle_of(object), name);
}

/// A member as it stands. Error 438 for one that is missing.
py::object attribute(py::handle object, const char* name)
{
    try {
        return object.attr(name);
    } catch (const py::error_already_set& raised) {
        if (raised.matches(PyExc_AttributeError) && !isOwnProperty(object, name))
            throw HostError(errors::kUnknownMember, raised);
        throw;
    }
}

py::object result(py::handle object, const char* name, Arguments arguments)
{
    return raisingErrors([&]() -> py::object {
        py::object member = attribute(object, name);
        if (arguments.size() == 0)
            return member;
        CallArguments call(arguments);
        py::object answer = member(*call.values());
        call.takeOver();
        return answer;
    });
}

} // namespace

PythonObject::PythonObject(py::object object, ReferencesHandle owner)
    : reference_(std::move(object), std::move(owner))
{
}

Variant PythonObject::value(const char* name, Arguments arguments)
{
    const py::object answer = result(get(), name, arguments);
    return raisingErrors([&] { return variantOf(answer); });
}

ObjectHandle PythonObject::object(const char* name, Arguments arguments)
{
    return namedObject(result(get(), name, arguments), reference_.owner());
}

void PythonObject::call(const char* name, Arguments arguments)
{
    result(get(), name, arguments);
}

std::vector<ObjectHandle> PythonObject::items()
{
    return raisingErrors([&] {
        std::vector<ObjectHandle> handles;
        for (const py::handle item : py::iter(get()))
            handles.push_back(
                namedObject(py::reinterpret_borrow<py::object>(item), reference_.owner()));
        return handles;
    });
}

std::string PythonObject::typeName()
{
    return py::type::handle_of(get()).attr("__name__").cast<std::string>();
}

ObjectHandle namedObject(const py::object& object, const ReferencesHandle& owner)
{
    return object.is_none() ? nullptr : std::make_shared<PythonObject>(object, owner);
}

py::object pythonObject(const ObjectHandle& handle)
{
    const auto* object = dynamic_cast<const PythonObject*>(handle.get());
    return object == nullptr ? py::none() : py::reinterpret_borrow<py::object>(object->get());
}

py::object memberOf(py::handle object, const char* name)
{
    try {
        return object.attr(name);
    } catch (const py::error_already_set& raised) {
        if (raised.matches(PyExc_AttributeError) && !isOwnProperty(object, name))
            return {};
        throw;
    }
}

} // namespace k7deval::python
