#pragma once

#include "python/HostServices.h"
#include "python/HostState.h"
#include "python/References.h"
#include "screen/Container.h"
#include "screen/Services.h"

#include <memory>
#include <pybind11/pybind11.h>
#include <string>
#include <type_traits>
#include <utility>

/// Controls together with what they refer to and don't own.
namespace k7deval::python
{

/// The world around a control: the dialogs of its host, the module's clock and region.
class World : public Referrer
{
public:
    World(pybind11::object dialogs, HostStateHandle state)
        : services_(std::move(dialogs), references()), state_(std::move(state))
    {
    }

    [[nodiscard]] screen::Surroundings surroundings()
    {
        return {services_, state_->clock, *state_->regional};
    }

private:
    HostServices services_;
    HostStateHandle state_;
};

/// A control that is made from its surroundings.
template <class Tool> class HostedTool final : public World, public Tool
{
public:
    HostedTool(pybind11::object dialogs, HostStateHandle state)
        : World(std::move(dialogs), std::move(state)), Tool(surroundings())
    {
    }
};

/// A control that asks its host for nothing but data.
template <class Tool> class HostedList final : public World, public Tool
{
public:
    using World::World;
};

/// A page on a screen of its own.
template <class Page> class HostedPage final : public World, public screen::Control
{
public:
    HostedPage(const std::string& name, pybind11::object dialogs, HostStateHandle state)
        : World(std::move(dialogs), std::move(state)), Control(name + "Screen"),
          page(makePage(*this, name))
    {
    }

    Page page;

private:
    /// Some pages show texts only, and need no more than the region.
    static Page makePage(HostedPage& own, const std::string& name)
    {
        if constexpr (std::is_constructible_v<Page, Container&, std::string, screen::Surroundings>)
            return Page(own, name, own.surroundings());
        else
            return Page(own, name, own.surroundings().regional);
    }
};

template <class Tool>
std::shared_ptr<Tool> hostTool(pybind11::object dialogs, const HostStateHandle& state)
{
    return std::make_shared<HostedTool<Tool>>(std::move(dialogs), state);
}

template <class Tool>
std::shared_ptr<Tool> hostList(pybind11::object dialogs, const HostStateHandle& state)
{
    return std::make_shared<HostedList<Tool>>(std::move(dialogs), state);
}

template <class Page>
std::shared_ptr<Page> hostPage(const std::string& name, pybind11::object dialogs,
                               const HostStateHandle& state)
{
    const auto own = std::make_shared<HostedPage<Page>>(name, std::move(dialogs), state);
    return {own, &own->page};
}

} // namespace k7deval::python
