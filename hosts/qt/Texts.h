#pragma once

#include <QString>

#include <string>

namespace k7deval::qt
{

inline QString toQString(const std::string& text)
{
    return QString::fromStdString(text);
}

/// A text of several lines, which the tools separate by a carriage return and a line feed.
QString toLines(const std::string& text);

/// A caption for a widget that reads "&" as the mark of a mnemonic: the first such letter is
/// underlined, and a "&" of the caption stands as it is. No letter, no mnemonic.
QString withMnemonic(const std::string& caption, char letter);

} // namespace k7deval::qt
