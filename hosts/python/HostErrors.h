#pragma once

#include "foundation/Error.h"

#include <pybind11/pybind11.h>

namespace k7deval::python
{

/// An error that began as an exception of the host's own code. It keeps the exception, so that it
/// can be named as the cause when the error passes on to the host.
class HostError : public Error
{
public:
    explicit HostError(const pybind11::error_already_set& raised);
    /// An exception that the library knows under a number of its own.
    HostError(int number, const pybind11::error_already_set& raised);

    [[nodiscard]] pybind11::object cause() const { return cause_; }

private:
    pybind11::object cause_;
};

/// Runs code of the host, with its exceptions as errors; error 13 for a value of another kind than
/// is asked for.
template <class Function> auto raisingErrors(Function function) -> decltype(function())
{
    try {
        return function();
    } catch (const pybind11::error_already_set& raised) {
        throw HostError(raised);
    } catch (const pybind11::cast_error&) {
        throw Error(errors::kTypeMismatch);
    }
}

/// Lets the library's errors reach Python as k7deval.Error. values: the module of the class.
void translateErrors(const pybind11::module_& values);

} // namespace k7deval::python
