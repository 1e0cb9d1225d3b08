#pragma once

#include "foundation/Clock.h"
#include "foundation/RegionalSettings.h"

#include <memory>
#include <pybind11/pybind11.h>

namespace k7deval::python
{

/// The clock of the module: a callable of the host, or the machine's clock while there is none.
class HostClock final : public Clock
{
public:
    void follow(pybind11::object callable) { callable_ = std::move(callable); }
    /// Raises what the callable raises; error 13 when it gives no date.
    [[nodiscard]] Date now() const override;

private:
    pybind11::object callable_ = pybind11::none();
    SystemClock system_;
};

/// What all controls and functions of the module share.
struct HostState {
    std::shared_ptr<RegionalSettings> regional = std::make_shared<RegionalSettings>();
    HostClock clock;
};
using HostStateHandle = std::shared_ptr<HostState>;

} // namespace k7deval::python
