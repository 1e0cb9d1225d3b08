#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace k7deval::screen
{

/// Something that others can be told of. Handlers run in the order in which they were connected.
template <class... Args> class Event
{
public:
    using Handler = std::function<void(Args...)>;

    void Connect(Handler handler) { handlers_.push_back(std::move(handler)); }

    /// A handler that connects another one while it runs does not run that one yet.
    void raise(Args... args) const
    {
        const auto handlers = handlers_;
        for (const auto& handler : handlers)
            handler(args...);
    }

private:
    std::vector<Handler> handlers_;
};

} // namespace k7deval::screen
