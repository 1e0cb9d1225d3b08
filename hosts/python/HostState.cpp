#include "python/HostState.h"

#include "python/HostErrors.h"
#include "python/Values.h"

namespace k7deval::python
{

Date HostClock::now() const
{
    if (callable_.is_none())
        return system_.now();
    return raisingErrors([this] { return dateOf(callable_()); });
}

} // namespace k7deval::python
