#pragma once

#include "screen/Container.h"

#include <QWidget>

#include <string>
#include <vector>

namespace k7deval::qt::test
{

/// What a screen shows otherwise than its control has it, one line each; none for a true mirror.
/// Compares all that the control has on view, its pages included.
std::vector<std::string> differences(const screen::Control& control, const QWidget& screen);

} // namespace k7deval::qt::test
