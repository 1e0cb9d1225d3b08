#include "python/Values.h"

#include "foundation/Error.h"
#include "foundation/NumberText.h"

#include <cmath>
#include <datetime.h>
#include <limits>
#include <string_view>

namespace k7deval::python
{

namespace py = pybind11;

namespace
{

constexpr double kMicrosecondsPerDay = kSecondsPerDay * 1e6;

void needDateTime()
{
    if (PyDateTimeAPI == nullptr)
        PyDateTime_IMPORT;
}

bool isInstanceOf(py::handle object, const char* type)
{
    return py::isinstance(object, valuesModule().attr(type));
}

/// The name of an object's class within its module, as numpy's scalars are told by theirs without
/// numpy being there.
bool hasTypeName(py::handle object, std::string_view name)
{
    return name == Py_TYPE(object.ptr())->tp_name;
}

Date dateTimeOf(PyObject* object)
{
    Date date = makeDate(PyDateTime_GET_YEAR(object), PyDateTime_GET_MONTH(object),
                         PyDateTime_GET_DAY(object), PyDateTime_DATE_GET_HOUR(object),
                         PyDateTime_DATE_GET_MINUTE(object), PyDateTime_DATE_GET_SECOND(object));
    date.days += PyDateTime_DATE_GET_MICROSECOND(object) / kMicrosecondsPerDay;
    return date;
}

bool isNaive(PyObject* object)
{
    return PyDateTime_DATE_GET_TZINFO(object) == Py_None;
}

/// The int that an object stands for; nothing for one that stands for none, nor for a truth value.
py::object integerIn(py::handle object)
{
    if (PyIndex_Check(object.ptr()) == 0 || PyBool_Check(object.ptr()) != 0)
        return {};
    auto index = py::reinterpret_steal<py::object>(PyNumber_Index(object.ptr()));
    if (!index && PyErr_ExceptionMatches(PyExc_TypeError) == 0)
        throw py::error_already_set();
    // Some types have an index in some of their values only.
    PyErr_Clear();
    return index;
}

Variant integerVariant(const py::object& integer)
{
    int overflow = 0;
    const long long value = PyLong_AsLongLongAndOverflow(integer.ptr(), &overflow);
    if (overflow != 0)
        return std::copysign(std::numeric_limits<double>::infinity(), overflow);
    if (value != static_cast<std::int32_t>(value))
        return static_cast<double>(value);
    return static_cast<std::int32_t>(value);
}

/// What other scalar types, such as numpy's, stand for.
Variant scalarVariant(py::handle object)
{
    if (hasTypeName(object, "numpy.float32"))
        return static_cast<float>(*readDouble(object));
    if (py::hasattr(object, "dtype") && py::hasattr(object, "item")) {
        const py::object item = object.attr("item")();
        if (!py::hasattr(item, "dtype"))
            return variantOf(item);
    }
    if (const py::object integer = integerIn(object))
        return integerVariant(integer);
    if (const auto number = readDouble(object))
        return *number;
    throw Error(errors::kTypeMismatch);
}

struct PythonForm {
    py::object operator()(Empty) const { return valuesModule().attr("Empty"); }
    py::object operator()(Null) const { return py::none(); }
    py::object operator()(bool value) const { return py::bool_(value); }
    py::object operator()(float value) const { return valuesModule().attr("Single")(value); }
    py::object operator()(double value) const { return py::float_(value); }
    py::object operator()(Currency value) const
    {
        return py::float_(static_cast<double>(value.tenThousandths) / 10'000);
    }
    py::object operator()(Date value) const { return pythonDate(value); }
    py::object operator()(const std::string& value) const { return py::str(value); }
    template <class Integer> py::object operator()(Integer value) const { return py::int_(value); }
};

std::optional<std::vector<std::int32_t>> integersIn(const py::sequence& sequence)
{
    std::vector<std::int32_t> result;
    for (const py::handle item : sequence) {
        const auto number = readInt32(item);
        if (!number)
            return std::nullopt;
        result.push_back(*number);
    }
    return result;
}

/// A vector of integers by its buffer: of one dimension, and of an integer type.
bool isIntegerVector(py::handle object)
{
    if (PyBytes_Check(object.ptr()) != 0 || PyByteArray_Check(object.ptr()) != 0)
        return false;
    const auto info = readBuffer(object);
    constexpr std::string_view kIntegerCodes = "bBhHiIlLqQnN";
    return info && info->ndim == 1 && !info->format.empty() &&
           kIntegerCodes.find(info->format.back()) != std::string_view::npos;
}

} // namespace

std::optional<py::buffer_info> readBuffer(py::handle object)
{
    if (PyObject_CheckBuffer(object.ptr()) == 0)
        return std::nullopt;
    try {
        return py::reinterpret_borrow<py::buffer>(object).request();
    } catch (const py::error_already_set&) {
        // Some vectors, of dates for instance, have no buffer that others could read.
        return std::nullopt;
    }
}

py::module_ valuesModule()
{
    return py::module_::import("k7deval._values");
}

std::optional<Date> readDate(py::handle object)
{
    needDateTime();
    if (object.is_none())
        return Date{};
    PyObject* const pointer = object.ptr();
    if (PyDateTime_Check(pointer))
        return isNaive(pointer) ? std::optional(dateTimeOf(pointer)) : std::nullopt;
    if (PyDate_Check(pointer))
        return makeDate(PyDateTime_GET_YEAR(pointer), PyDateTime_GET_MONTH(pointer),
                        PyDateTime_GET_DAY(pointer));
    return std::nullopt;
}

Date dateOf(py::handle object)
{
    const auto date = readDate(object);
    if (!date)
        throw Error(errors::kTypeMismatch);
    return *date;
}

py::object pythonDate(Date value)
{
    needDateTime();
    const DateParts parts = dateParts(value);
    PyObject* const date = PyDateTime_FromDateAndTime(parts.year, parts.month, parts.day,
                                                      parts.hour, parts.minute, parts.second, 0);
    if (date == nullptr)
        throw py::error_already_set();
    return py::reinterpret_steal<py::object>(date);
}

std::optional<std::int32_t> readInt32(py::handle object)
{
    if (PyBool_Check(object.ptr()) != 0)
        return object.ptr() == Py_True ? 1 : 0;
    const py::object integer = integerIn(object);
    if (!integer)
        return std::nullopt;
    const Variant number = integerVariant(integer);
    const auto* value = std::get_if<std::int32_t>(&number);
    if (value == nullptr)
        throw Error(errors::kOverflow);
    return *value;
}

std::optional<double> readDouble(py::handle object)
{
    const double value = PyFloat_AsDouble(object.ptr());
    if (value != -1.0 || PyErr_Occurred() == nullptr)
        return value;
    if (PyErr_ExceptionMatches(PyExc_TypeError) == 0)
        throw py::error_already_set();
    PyErr_Clear();
    return std::nullopt;
}

Variant variantOf(py::handle object)
{
    PyObject* const pointer = object.ptr();
    if (pointer == Py_None)
        return Null{};
    if (PyBool_Check(pointer) != 0)
        return pointer == Py_True;
    if (PyLong_CheckExact(pointer) != 0)
        return integerVariant(py::reinterpret_borrow<py::object>(object));
    if (PyFloat_CheckExact(pointer) != 0)
        return PyFloat_AS_DOUBLE(pointer);
    if (PyUnicode_Check(pointer) != 0)
        return object.cast<std::string>();
    if (isInstanceOf(object, "EmptyType"))
        return Empty{};
    if (isInstanceOf(object, "Single"))
        return static_cast<float>(PyFloat_AS_DOUBLE(pointer));
    if (const auto date = readDate(object))
        return *date;
    return scalarVariant(object);
}

py::object pythonValue(const Variant& value)
{
    return std::visit(PythonForm{}, value);
}

std::optional<std::vector<std::int32_t>> readIntegers(py::handle object)
{
    if (py::isinstance<py::list>(object) || py::isinstance<py::tuple>(object))
        return integersIn(py::reinterpret_borrow<py::sequence>(object));
    if (isIntegerVector(object))
        return integersIn(py::list(py::reinterpret_borrow<py::object>(object)));
    return std::nullopt;
}

py::object pythonLimitRule(CalLimitRulesEnum rule)
{
    return py::module_::import("k7deval._core")
        .attr("CalLimitRulesEnum")(static_cast<std::int32_t>(rule));
}

} // namespace k7deval::python

namespace pybind11::detail
{

bool type_caster<k7deval::python::Float32>::load(handle source, bool)
{
    const auto number = k7deval::python::readDouble(source);
    value = {k7deval::ToSingle(number.value_or(0))};
    return number.has_value();
}

bool type_caster<k7deval::python::Text>::load(handle source, bool convert)
{
    if (source.is_none())
        throw k7deval::Error(k7deval::errors::kInvalidUseOfNull);
    make_caster<std::string> text;
    if (!text.load(source, convert))
        return false;
    value = {cast_op<std::string&&>(std::move(text))};
    return true;
}

} // namespace pybind11::detail
