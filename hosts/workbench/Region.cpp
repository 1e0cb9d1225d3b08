#include "workbench/Region.h"

#include "foundation/Error.h"

#include <QLocale>

namespace k7deval::workbench
{

RegionalSettings settingsOf(const QLocale& locale)
{
    try {
        return regionalSettings(locale.name().replace('_', '-').toStdString());
    } catch (const Error&) {
        return {};
    }
}

} // namespace k7deval::workbench
