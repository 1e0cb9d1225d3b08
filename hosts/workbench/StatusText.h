#pragma once

#include "foundation/DataInterface.h"

#include <QString>

namespace k7deval::workbench
{

/// What the status word of an hour says.
struct StatusText {
    QString brief; ///< For a cell: "valid", "not valid, MODC 06".
    QString full;  ///< "Status 106: MODC 06: average of the hours before and after"
};

/// How the evaluations take an hour of that word, and what the site itself says of it.
StatusText statusText(DIStatusCodes& codes, std::int32_t word);

} // namespace k7deval::workbench
