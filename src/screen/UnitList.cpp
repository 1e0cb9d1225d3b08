#include "screen/UnitList.h"

namespace k7deval::screen
{

void offerUnits(ComboBox& list, DIServer& server)
{
    for (const auto& unit : server.Units()) {
        const std::string name = present(unit).Name(0);
        list.addItem(name, unit->PID());
    }
    list.SetListIndex(0);
}

} // namespace k7deval::screen
