#pragma once

#include "python/References.h"
#include "screen/Widget.h"

#include <pybind11/pybind11.h>

/// How Python's garbage collector sees controls and widgets. A widget keeps its control alive, a
/// control the objects of its host; a host that keeps a widget closes the circle.
namespace k7deval::python
{

/// Shows the type of an object and what it keeps alive.
int visitKeptAlive(PyObject* self, visitproc visitor, void* argument);
/// Takes an object out of the collector's sight before it is taken apart.
void deallocate(PyObject* self);

/// The C++ object behind a Python object that owns it; nothing while there is none, and for a part
/// of another object.
void* ownedValue(PyObject* self);

/// For the class of a widget.
pybind11::custom_type_setup collectedPart();

/// For the class of a control.
template <class Control> pybind11::custom_type_setup collectedControl()
{
    return pybind11::custom_type_setup([](PyHeapTypeObject* heapType) {
        PyTypeObject& type = heapType->ht_type;
        type.tp_flags |= Py_TPFLAGS_HAVE_GC;
        type.tp_dealloc = deallocate;
        type.tp_traverse = [](PyObject* self, visitproc visitor, void* argument) {
            if (const int result = visitKeptAlive(self, visitor, argument); result != 0)
                return result;
            auto* control = static_cast<Control*>(ownedValue(self));
            return control == nullptr ? 0 : visit(*referencesOf(*control), visitor, argument);
        };
        type.tp_clear = [](PyObject* self) {
            if (auto* control = static_cast<Control*>(ownedValue(self)))
                referencesOf(*control)->drop();
            return 0;
        };
    });
}

} // namespace k7deval::python
