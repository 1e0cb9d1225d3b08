#pragma once

#include "python/Binding.h"
#include "python/GarbageCollection.h"
#include "screen/Container.h"

#include <memory>
#include <pybind11/pybind11.h>

/// What the classes of all controls have.
namespace k7deval::python
{

template <class Control, class Base = screen::Control>
using ControlClass = pybind11::class_<Control, Base, std::shared_ptr<Control>>;

template <class Control> void terminate(Control& control)
{
    if constexpr (requires { control.Terminate(); })
        control.Terminate();
}

template <class Control> void resize(Control& control, Float32 width, Float32 height)
{
    if constexpr (requires { control.Resize(width, height); }) {
        control.Resize(width, height);
    } else {
        const screen::Geometry place = control.place();
        control.setPlace({place.Left, place.Top, width, height});
    }
}

/// The end of a control and its size.
template <class Class> void bindLife(Class& control)
{
    using Control = typename Class::type;
    using pybind11::literals::operator""_a;
    control
        .def("Terminate", &terminate<Control>,
             "Ends the control's life at once: drops the data and what else it holds of its host.")
        .def("Resize", &resize<Control>, "width"_a, "height"_a,
             "Gives the control a new size in twips.");
}

/// The data as a property.
template <class Class> void bindData(Class& control, const HostStateHandle& state)
{
    using Control = typename Class::type;
    control.def_property(
        "DIServer", [](const Control& self) { return pythonServer(self.DIServer()); },
        [state](Control& self, const pybind11::object& server) {
            self.SetDIServer(serverOf(server, self, state));
        },
        "The data: an object with the members of the data interface, or a site of OpenSite.");
}

} // namespace k7deval::python
