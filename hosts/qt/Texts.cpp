#include "qt/Texts.h"

namespace k7deval::qt
{

QString toLines(const std::string& text)
{
    return toQString(text).replace("\r\n", "\n");
}

QString withMnemonic(const std::string& caption, char letter)
{
    QString text = toQString(caption).replace('&', "&&");
    const auto place = letter == 0 ? -1 : text.indexOf(QLatin1Char(letter), 0, Qt::CaseInsensitive);
    return place < 0 ? text : text.insert(place, '&');
}

} // namespace k7deval::qt
