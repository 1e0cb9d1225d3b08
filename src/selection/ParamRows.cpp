#include "selection/ParamRows.h"

#include <memory>
#include <utility>

namespace k7deval
{

namespace
{

constexpr std::int32_t kNoUnit = -1;
constexpr PID kUnitPlace = 100000000;

DIParameterList parametersOf(DIServer& server, const std::vector<PID>& pids)
{
    DIParameterList found;
    const auto parameters = server.Parameters();
    for (const PID pid : pids) {
        if (present(parameters).Exists(pid))
            found.push_back(parameters->Item(pid, -1));
    }
    return found;
}

DIParameterList parametersOf(const std::shared_ptr<DIServer>& server, const ParamList& list)
{
    if (const auto* pids = std::get_if<std::vector<PID>>(&list))
        return pids->empty() ? DIParameterList{} : parametersOf(present(server), *pids);
    const auto* parameters = std::get_if<DIParameterList>(&list);
    return parameters == nullptr ? DIParameterList{} : *parameters;
}

} // namespace

void ParamRows::Load(const std::shared_ptr<DIServer>& server, const ParamList& list,
                     bool unitsInList)
{
    count_ = 0;
    std::int32_t lastUnit = kNoUnit;
    for (const auto& parameter : parametersOf(server, list)) {
        if (unitsInList)
            add({present(parameter).PID(), parameter->Name(0), false,
                 parameter->ParamType() == kUnitType});
        else
            addBelowUnit(present(server), present(parameter), lastUnit);
    }
}

/// A unit that comes back later in the list gets a second row.
void ParamRows::addBelowUnit(DIServer& server, DIParameter& parameter, std::int32_t& lastUnit)
{
    const PID pid = parameter.PID();
    const std::int32_t unit = PIDPart(pid, pidpart::kUnit);
    if (unit != lastUnit) {
        lastUnit = unit;
        const auto statusCodes = server.StatusCodes();
        add({unit * kUnitPlace, present(statusCodes).UnitName(pid), false, true});
    }
    if (parameter.ParamType() != kUnitType)
        add({pid, parameter.Name(0), false, false});
}

void ParamRows::add(ParamRow row)
{
    rows_.resizeKeeping(count_);
    rows_[count_] = std::move(row);
    ++count_;
}

void ParamRows::fillUnits(screen::ComboBox& list, const UnitFilter& filter) const
{
    list.Clear();
    if (filter.allUnits)
        list.AddItem("===All Units===", kAllUnits);
    bool isBehindUnit = false;
    // A unit without a parameter behind it leaves the list again.
    const auto dropUnpopulated = [&] {
        if (isBehindUnit && !filter.unpopulatedUnits)
            list.RemoveItem(list.ListCount() - 1);
    };
    for (std::int32_t index = 0; index < count_; ++index) {
        const ParamRow& row = rows_[index];
        if (row.isUnit) {
            dropUnpopulated();
            list.AddItem(row.name, row.pid);
        }
        isBehindUnit = row.isUnit;
    }
    dropUnpopulated();
}

} // namespace k7deval
