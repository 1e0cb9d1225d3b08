#include "selection/ParamRows.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>

namespace k7deval
{

namespace
{

constexpr std::int32_t kNoUnit = -1;

using TakeParameter = std::function<void(const std::shared_ptr<DIParameter>&)>;

/// Each entry is dealt with before the next one is looked up.
void forEach(DIServer& server, const std::vector<PID>& pids, const TakeParameter& take)
{
    const auto parameters = server.Parameters();
    for (const PID pid : pids) {
        if (present(parameters).Exists(pid))
            take(parameters->Item(pid, -1));
    }
}

void forEach(const std::shared_ptr<DIServer>& server, const ParamList& list,
             const TakeParameter& take)
{
    if (const auto* pids = std::get_if<std::vector<PID>>(&list); pids && !pids->empty())
        forEach(present(server), *pids, take);
    else if (const auto* parameters = std::get_if<DIParameterList>(&list))
        std::for_each(parameters->begin(), parameters->end(), take);
}

} // namespace

void ParamRows::load(const std::shared_ptr<DIServer>& server, const ParamList& list,
                     bool unitsInList)
{
    count_ = 0;
    std::int32_t lastUnit = kNoUnit;
    forEach(server, list, [&](const std::shared_ptr<DIParameter>& parameter) {
        if (unitsInList)
            add({present(parameter).PID(), parameter->Name(0), false,
                 parameter->ParamType() == kUnitType});
        else
            addBelowUnit(server, present(parameter), lastUnit);
    });
}

/// A unit that comes back later in the list gets a second row.
void ParamRows::addBelowUnit(const std::shared_ptr<DIServer>& server, DIParameter& parameter,
                             std::int32_t& lastUnit)
{
    const PID pid = parameter.PID();
    const std::int32_t unit = PIDPart(pid, pidpart::kUnit);
    if (unit != lastUnit) {
        lastUnit = unit;
        const auto statusCodes = present(server).StatusCodes();
        add({unit * kUnitFactor, present(statusCodes).UnitName(pid), false, true});
    }
    if (parameter.ParamType() != kUnitType)
        add({pid, parameter.Name(0), false, false});
}

/// Rows of the earlier list further down stay: until the load is through, they are on view.
void ParamRows::add(ParamRow row)
{
    if (count_ > SafeUBound(rows_))
        rows_.resizeKeeping(count_);
    rows_[count_] = std::move(row);
    ++count_;
}

void ParamRows::dropOld()
{
    if (count_ > 0)
        rows_.resizeKeeping(count_ - 1);
}

void ParamRows::fillUnits(screen::ComboBox& list, const UnitFilter& filter) const
{
    list.clear();
    if (filter.allUnits)
        list.addItem("===All Units===", kAllUnits);
    bool isBehindUnit = false;
    // A unit without a parameter behind it leaves the list again.
    const auto dropUnpopulated = [&] {
        if (isBehindUnit && !filter.unpopulatedUnits)
            list.removeItem(list.listCount() - 1);
    };
    for (std::int32_t index = 0; index < count_; ++index) {
        const ParamRow& row = rows_[index];
        if (row.isUnit) {
            dropUnpopulated();
            list.addItem(row.name, row.pid);
        }
        isBehindUnit = row.isUnit;
    }
    dropUnpopulated();
}

} // namespace k7deval
