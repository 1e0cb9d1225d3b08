#pragma once

#include "foundation/RegionalSettings.h"

class QLocale;

namespace k7deval::workbench
{

/// The settings of a user's region; those of en-US for a region that the tools don't know.
RegionalSettings settingsOf(const QLocale& locale);

} // namespace k7deval::workbench
