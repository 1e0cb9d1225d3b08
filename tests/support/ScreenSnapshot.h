#pragma once

#include "screen/Container.h"

#include <map>
#include <string>
#include <vector>

namespace k7deval::test
{

/// All that stands on a screen and its pages, as text by "page.widget.Property". Texts stand in
/// quotes, lists in brackets.
using Snapshot = std::map<std::string, std::string>;

Snapshot snapshotOf(const screen::Control& control);

/// All widgets of a screen as text, one a line below the frame or page that it lies in: its kind,
/// its name, its place (left, top, width, height) if it has one, and what else stands in it. What
/// most widgets have in common (visible, enabled, the system's colours) is left out.
std::string layoutOf(const screen::Control& control);

/// What differs, as "name: before -> after", sorted by name.
std::vector<std::string> changesBetween(const Snapshot& before, const Snapshot& after);

/// What an action changes on a screen.
template <class Action>
std::vector<std::string> changesOn(const screen::Control& control, Action action)
{
    const Snapshot before = snapshotOf(control);
    action();
    return changesBetween(before, snapshotOf(control));
}

} // namespace k7deval::test
