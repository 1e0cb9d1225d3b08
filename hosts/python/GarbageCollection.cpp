#include "python/GarbageCollection.h"

#include <pybind11/detail/class.h>

namespace k7deval::python
{

namespace py = pybind11;

int visitKeptAlive(PyObject* self, visitproc visitor, void* argument)
{
    if (const int result = visitor(reinterpret_cast<PyObject*>(Py_TYPE(self)), argument))
        return result;
    if (!reinterpret_cast<py::detail::instance*>(self)->has_patients)
        return 0;
    for (PyObject* patient : py::detail::get_internals().patients[self]) {
        if (const int result = visitor(patient, argument))
            return result;
    }
    return 0;
}

void deallocate(PyObject* self)
{
    PyObject_GC_UnTrack(self);
    py::detail::pybind11_object_dealloc(self);
}

void* ownedValue(PyObject* self)
{
    auto* instance = reinterpret_cast<py::detail::instance*>(self);
    if (!instance->owned)
        return nullptr;
    const py::detail::value_and_holder value = instance->get_value_and_holder();
    return value.holder_constructed() ? value.value_ptr() : nullptr;
}

py::custom_type_setup collectedPart()
{
    return py::custom_type_setup([](PyHeapTypeObject* heapType) {
        PyTypeObject& type = heapType->ht_type;
        type.tp_flags |= Py_TPFLAGS_HAVE_GC;
        type.tp_dealloc = deallocate;
        type.tp_traverse = visitKeptAlive;
    });
}

} // namespace k7deval::python
