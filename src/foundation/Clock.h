#pragma once

#include "foundation/Date.h"

namespace k7deval
{

/// Where the present time comes from.
class Clock
{
public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual Date now() const = 0;
};

/// The machine's clock, in its local time.
class SystemClock final : public Clock
{
public:
    [[nodiscard]] Date now() const override;
};

} // namespace k7deval
