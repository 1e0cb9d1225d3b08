#include "workbench/StatusText.h"

#include "qt/Texts.h"
#include "sitedb/tables/SiteIds.h"
#include "sitedb/tables/SiteStatusCodes.h"

namespace k7deval::workbench
{

namespace
{

QString verdict(DIStatusCodes& codes, std::int32_t word)
{
    if (codes.IsUnitOffline(word))
        return "off line";
    if (codes.IsExcluded(word))
        return "left out";
    return codes.IsValid(word) ? "valid" : "not valid";
}

/// "MODC 06" of "MODC 06: average of the hours before and after".
QString briefly(const QString& meaning)
{
    return meaning.section(':', 0, 0);
}

/// The verdict says all that there is to the words of hours without a MODC.
bool isPlain(std::int32_t word)
{
    return word > sitedb::status::kNoData && word <= sitedb::status::kExcluded;
}

StatusText textOfSite(const QString& taken, const QString& meaning, std::int32_t word)
{
    const QString full = QString("Status %1: %2").arg(word).arg(meaning);
    if (word == sitedb::status::kNoData)
        return {meaning, full};
    return {isPlain(word) ? taken : taken + ", " + briefly(meaning), full};
}

} // namespace

StatusText statusText(DIStatusCodes& codes, std::int32_t word)
{
    const QString taken = verdict(codes, word);
    const auto* site = dynamic_cast<const sitedb::SiteStatusCodes*>(&codes);
    const QString meaning = site == nullptr ? QString() : qt::toQString(site->textOf(word));
    if (!meaning.isEmpty())
        return textOfSite(taken, meaning, word);
    return {QString("%1, status %2").arg(taken).arg(word),
            QString("Status %1: %2").arg(word).arg(taken)};
}

} // namespace k7deval::workbench
