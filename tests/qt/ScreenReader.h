#pragma once

#include <QWidget>

#include <string>
#include <vector>

namespace k7deval::qt::test
{

/// What a screen reader can't make sense of on a screen, one line each: parts on view that take the
/// focus and have no name or not the role of their kind, trees and tables with entries that can't
/// be walked, and names of fields that lead to no field.
std::vector<std::string> faultsForAScreenReader(const QWidget& screen);

} // namespace k7deval::qt::test
