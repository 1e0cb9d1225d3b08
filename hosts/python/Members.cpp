#include "python/Members.h"

#include "python/PropertyForm.h"

#include <functional>
#include <string>
#include <string_view>
#include <typeinfo>

namespace k7deval::python
{

namespace py = pybind11;

namespace
{

using Getter = std::function<py::object(const py::object& self)>;

/// What an attribute is called, gives and means.
struct Attribute {
    std::string name;
    std::string type;
    std::string_view meaning;
};

void define(const py::object& owner, const Attribute& attribute, const Getter& getter)
{
    if (py::hasattr(owner, attribute.name.c_str()))
        return;
    const auto className = owner.attr("__name__").cast<std::string>();
    const std::string signature = "(self: " + className + ") -> " + attribute.type;
    // The signature that the binding would write itself knows of objects only.
    py::options options;
    options.disable_function_signatures();
    const py::cpp_function get(getter, py::doc(signature.c_str()));
    const py::object property = py::module_::import("builtins").attr("property");
    owner.attr(attribute.name.c_str()) =
        property(get, py::none(), py::none(), py::str(std::string(attribute.meaning)));
}

/// The class of a widget, such as Label.
std::string classOf(const screen::Widget& widget)
{
    const py::handle found = py::detail::get_type_handle(typeid(widget), true);
    return found.attr("__name__").cast<std::string>();
}

py::object widgetOf(const py::object& self, screen::Widget& widget)
{
    return py::cast(&widget, py::return_value_policy::reference_internal, self);
}

/// "lblBar(" of the element "lblBar(3)"; empty for a widget of its own.
std::string arrayOf(const std::string& name)
{
    const auto index = name.find('(');
    return index == std::string::npos ? std::string() : name.substr(0, index + 1);
}

py::object elementsOf(const py::object& self, const std::string& array)
{
    py::list elements;
    for (screen::Widget* widget : self.cast<screen::Control&>().widgets()) {
        if (widget->Name().starts_with(array))
            elements.append(widgetOf(self, *widget));
    }
    return elements;
}

void bindWidget(const py::object& owner, const screen::Widget& widget)
{
    const std::string& name = widget.Name();
    if (const std::string array = arrayOf(name); !array.empty()) {
        define(owner,
               {array.substr(0, array.size() - 1), "list[" + classOf(widget) + "]",
                "An array of widgets; index 0 is the hidden pattern."},
               [array](const py::object& self) { return elementsOf(self, array); });
        return;
    }
    define(owner, {name, classOf(widget), {}}, [name](const py::object& self) {
        return widgetOf(self, *self.cast<screen::Control&>().Find(name));
    });
}

/// The results by their names. They come in sets, or one by one.
void forEachResult(const PropertyList& results,
                   const std::function<void(const Property& result)>& take)
{
    for (const Property& result : results) {
        if (const auto* set = std::get_if<PropertyList>(&result.content.value))
            forEachResult(*set, take);
        else
            take(result);
    }
}

py::object resultOf(const py::object& self, const std::string& name)
{
    PropertyValue found;
    forEachResult(self.cast<const screen::Control&>().results(), [&](const Property& result) {
        if (result.name == name)
            found = result.content;
    });
    return pythonForm(found);
}

} // namespace

void bindMembers(const py::object& controlClass, screen::Control& sample)
{
    for (const screen::Widget* widget : sample.widgets())
        bindWidget(controlClass, *widget);
    forEachResult(sample.results(), [&](const Property& result) {
        define(controlClass, {result.name, typeText(result.type()), result.meaning},
               [name = result.name](const py::object& self) { return resultOf(self, name); });
    });
}

} // namespace k7deval::python
