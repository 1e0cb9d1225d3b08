#pragma once

#include "load/ctrlMaxMW.h"
#include "range/ctrlRangeEval.h"

#include <nlohmann/json.hpp>

namespace k7deval::cli
{

/// The state of a load evaluation by its field names.
nlohmann::ordered_json evaluationToJson(const ctrlMaxMW& tool);
/// The state of a range evaluation by its field names.
nlohmann::ordered_json evaluationToJson(const ctrlRangeEval& tool);

/// Spans by unit, hourly parameter and scale; the keys are the decimal texts of PIDs and scales.
nlohmann::ordered_json toJson(const Catalogue& catalogue);

} // namespace k7deval::cli
