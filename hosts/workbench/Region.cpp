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

RegionalSettings settingsOfRegion(const QString& name)
{
    return settingsOf(name.isEmpty() ? QLocale::system() : QLocale(name));
}

QString titleOfRegion(const QString& name)
{
    const QLocale locale(name);
    return QLocale::languageToString(locale.language()) + " (" +
           QLocale::territoryToString(locale.territory()) + ")";
}

} // namespace k7deval::workbench
