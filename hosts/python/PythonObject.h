#pragma once

#include "latebound/NamedObject.h"
#include "python/References.h"

#include <pybind11/pybind11.h>
#include <string>
#include <vector>

namespace k7deval::python
{

/// A Python object, reached by the names of its members.
class PythonObject final : public latebound::NamedObject
{
public:
    PythonObject(pybind11::object object, ReferencesHandle owner);

    [[nodiscard]] pybind11::handle get() const { return reference_.get(); }

    [[nodiscard]] Variant value(const char* name, latebound::Arguments arguments) override;
    [[nodiscard]] latebound::ObjectHandle object(const char* name,
                                                 latebound::Arguments arguments) override;
    void call(const char* name, latebound::Arguments arguments) override;
    [[nodiscard]] std::vector<latebound::ObjectHandle> items() override;
    [[nodiscard]] std::string typeName() override;

private:
    Reference reference_;
};

/// The object as one with named members; nothing for None.
latebound::ObjectHandle namedObject(const pybind11::object& object, const ReferencesHandle& owner);

/// The Python object behind a handle; None for nothing.
pybind11::object pythonObject(const latebound::ObjectHandle& handle);

/// A member of the host's object, or nothing when the object does not have it. An attribute error
/// from within the host's own code passes on.
pybind11::object memberOf(pybind11::handle object, const char* name);

} // namespace k7deval::python
