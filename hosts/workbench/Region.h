#pragma once

#include "foundation/RegionalSettings.h"

#include <QString>

class QLocale;

namespace k7deval::workbench
{

/// The settings of a user's region; those of en-US for a region that the tools don't know.
RegionalSettings settingsOf(const QLocale& locale);

/// The settings of a region by its name, such as "de-DE"; those of the desktop for an empty name.
RegionalSettings settingsOfRegion(const QString& name);

/// A region as a user knows it: "English (United Kingdom)".
QString titleOfRegion(const QString& name);

} // namespace k7deval::workbench
