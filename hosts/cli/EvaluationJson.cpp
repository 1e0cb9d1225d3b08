#include "cli/EvaluationJson.h"

#include "cli/ScreenJson.h"

#include <string>

namespace k7deval::cli
{

namespace
{

using Json = nlohmann::ordered_json;

Json toJson(const ScaleSpans& scales)
{
    Json object = Json::object();
    for (const auto& [scale, span] : scales)
        object[std::to_string(scale)] = numberToJson(span);
    return object;
}

Json toJson(const ParameterScales& parameters)
{
    Json object = Json::object();
    for (const auto& [pid, scales] : parameters)
        object[std::to_string(pid)] = toJson(scales);
    return object;
}

} // namespace

Json evaluationToJson(const ctrlMaxMW& tool)
{
    const LoadEvaluation& evaluation = tool.evaluation();
    return {{"HighThreshold", numberToJson(evaluation.HighThreshold)},
            {"LowThreshold", numberToJson(evaluation.LowThreshold)},
            {"MinSafeValue", numberToJson(evaluation.MinSafeValue)},
            {"CapacityValue", numberToJson(evaluation.CapacityValue)},
            {"HighHours", evaluation.HighHours},
            {"MidHours", evaluation.MidHours},
            {"LowHours", evaluation.LowHours},
            {"OverHours", evaluation.OverHours},
            {"MaxObserved", numberToJson(evaluation.MaxObserved)},
            {"UnderHours", evaluation.UnderHours},
            {"Bins", evaluation.Bins},
            {"NeedsEvaluation", tool.NeedsEvaluation()},
            {"StartDate", timeToJson(tool.StartDate())},
            {"EndDate", timeToJson(tool.EndDate())}};
}

Json evaluationToJson(const ctrlRangeEval& tool)
{
    const RangeEvaluation& evaluation = tool.evaluation();
    return {{"RangeValue", numberToJson(evaluation.RangeValue)},
            {"LowThreshold", numberToJson(evaluation.LowThreshold)},
            {"HighThreshold", numberToJson(evaluation.HighThreshold)},
            {"MECValue", numberToJson(evaluation.MECValue)},
            {"MPCValue", numberToJson(evaluation.MPCValue)},
            {"LowHours", evaluation.LowHours},
            {"MidHours", evaluation.MidHours},
            {"HighHours", evaluation.HighHours},
            {"OverRangeHours", evaluation.OverRangeHours},
            {"AboveMECHours", evaluation.AboveMECHours},
            {"AboveMPCHours", evaluation.AboveMPCHours},
            {"ReplacedHours", evaluation.ReplacedHours},
            {"InvalidHours", evaluation.InvalidHours},
            {"Bins", evaluation.Bins},
            {"NeedsEvaluation", tool.NeedsEvaluation()}};
}

Json toJson(const Catalogue& catalogue)
{
    Json object = Json::object();
    for (const auto& [unit, parameters] : catalogue)
        object[std::to_string(unit)] = toJson(parameters);
    return object;
}

} // namespace k7deval::cli
