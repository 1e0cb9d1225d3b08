#include "python/HostErrors.h"

#include <exception>
#include <optional>
#include <string>

namespace k7deval::python
{

namespace py = pybind11;

namespace
{

std::optional<int> ownNumber(const py::object& exception)
{
    const py::object number = py::getattr(exception, "number", py::none());
    if (PyLong_Check(number.ptr()) == 0 || PyBool_Check(number.ptr()) != 0)
        return std::nullopt;
    int overflow = 0;
    const long value = PyLong_AsLongAndOverflow(number.ptr(), &overflow);
    if (overflow != 0 || value != static_cast<int>(value))
        return std::nullopt;
    return static_cast<int>(value);
}

/// Looking at an exception runs code of the host again, which may fail in its turn.
template <class Function> auto orElse(Function look, decltype(look()) otherwise) -> decltype(look())
{
    try {
        return look();
    } catch (py::error_already_set& raised) {
        raised.discard_as_unraisable("k7deval.Error");
        return otherwise;
    }
}

int numberOf(const py::object& exception)
{
    return orElse([&] { return ownNumber(exception); }, std::nullopt).value_or(errors::kAutomation);
}

std::string descriptionOf(const py::object& exception)
{
    return orElse([&] { return py::str(exception).cast<std::string>(); },
                  errorDescription(errors::kAutomation));
}

/// The library goes on after an error; an interrupt must end what the host is doing, so it is
/// raised again as soon as the host's own code runs.
void keepInterrupt(const py::error_already_set& raised)
{
    if (raised.matches(PyExc_KeyboardInterrupt))
        PyErr_SetInterrupt();
}

/// The exception with the place where it was raised, which a debugger of the host shows.
py::object tracedException(const py::error_already_set& raised)
{
    py::object exception = raised.value();
    if (raised.trace())
        PyException_SetTraceback(exception.ptr(), raised.trace().ptr());
    return exception;
}

void raise(const py::object& errorClass, const Error& error, const py::object& cause)
{
    const py::object raised = errorClass(error.number(), error.description());
    if (!cause.is_none())
        PyException_SetCause(raised.ptr(), py::object(cause).release().ptr());
    PyErr_SetObject(errorClass.ptr(), raised.ptr());
}

} // namespace

HostError::HostError(const py::error_already_set& raised)
    : Error(numberOf(raised.value()), descriptionOf(raised.value())),
      cause_(tracedException(raised))
{
    keepInterrupt(raised);
}

HostError::HostError(int number, const py::error_already_set& raised)
    : Error(number), cause_(tracedException(raised))
{
}

void translateErrors(const py::module_& values)
{
    // The translator is called as a plain function, so the class is kept where it finds it.
    static PyObject* errorClass = nullptr;
    errorClass = py::object(values.attr("Error")).release().ptr();
    py::register_exception_translator([](std::exception_ptr raised) {
        const auto type = py::reinterpret_borrow<py::object>(errorClass);
        try {
            std::rethrow_exception(std::move(raised));
        } catch (const HostError& error) {
            raise(type, error, error.cause());
        } catch (const Error& error) {
            raise(type, error, py::none());
        }
    });
}

} // namespace k7deval::python
