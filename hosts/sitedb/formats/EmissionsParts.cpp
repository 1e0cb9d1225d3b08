#include "sitedb/formats/EmissionsParts.h"

#include "sitedb/formats/Fields.h"
#include "sitedb/formats/ImportSteps.h"

#include <utility>

namespace k7deval::sitedb
{

namespace
{

EmissionsLocation named(const JsonNode& node, std::size_t longest)
{
    if (node.isNull())
        return {"", node.path()};
    return {identifierIn(node, longest), node.path()};
}

} // namespace

EmissionsLocation locationOf(const JsonNode& record)
{
    const auto unit = named(record.fieldOrNull("unitId"), kUnitIdentifierLength);
    const auto stack = named(record.fieldOrNull("stackPipeId"), kUnitIdentifierLength);
    if (unit.name.empty() && stack.name.empty())
        throw record.error("neither a unit nor a stack or pipe is named");
    if (!unit.name.empty() && !stack.name.empty())
        throw record.error("both the unit " + unit.name + " and the stack or pipe " + stack.name +
                           " are named");
    return unit.name.empty() ? stack : unit;
}

EmissionsLocation componentOf(const JsonNode& record)
{
    return named(record.fieldOrNull("componentId"), kComponentIdLength);
}

void SteppedOver::add(const std::string& list, const std::string& what, const std::string& which)
{
    ++counts_[{list, what, which}];
}

std::vector<std::string> SteppedOver::sentences() const
{
    std::vector<std::string> sentences;
    for (const auto& [kind, count] : counts_) {
        const auto& [list, what, which] = kind;
        std::string sentence = list + ": ";
        sentence.append(counted(count, what)).append(" ").append(which).append(".");
        sentences.push_back(std::move(sentence));
    }
    return sentences;
}

} // namespace k7deval::sitedb
