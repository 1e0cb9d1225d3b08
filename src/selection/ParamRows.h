#pragma once

#include "foundation/ArrayFunctions.h"
#include "foundation/DataInterface.h"
#include "screen/ComboBox.h"

#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace k7deval
{

/// What a host hands over to choose from: PIDs, parameters, or anything else, which gives no rows.
using ParamList = std::variant<std::monostate, std::vector<PID>, DIParameterList>;

/// One row of a list to choose from.
struct ParamRow {
    PID pid = 0;
    std::string name;
    bool isSelected = false; ///< The row is ticked.
    bool isUnit = false;     ///< The row stands for a unit, not a parameter.
    friend bool operator==(const ParamRow&, const ParamRow&) = default;
};

/// Whether the filter of units has an entry for all of them, and units without a parameter.
struct UnitFilter {
    bool allUnits = true;
    bool unpopulatedUnits = false;
};

/// Item data of the filter's entry "===All Units===".
inline constexpr std::int32_t kAllUnits = -1;

/// The rows of a list, in list order.
class ParamRows
{
public:
    /// Replaces the rows. A list of another form and an empty one leave the old rows where they
    /// are, though none of them counts any longer, and so do the old rows behind the last of a
    /// shorter list. With unitsInList the list brings its own unit rows, else they are made here,
    /// and its units are dropped. PIDs that do not exist are skipped. Error 91 without data; after
    /// a failure of the data the rows up to it count.
    void load(const std::shared_ptr<DIServer>& server, const ParamList& list, bool unitsInList);
    /// Drops the old rows behind the last that counts; keeps them all when none does.
    void dropOld();

    /// How many rows count.
    [[nodiscard]] std::int32_t Count() const { return count_; }
    /// All rows, also those that no longer count.
    [[nodiscard]] const Array<ParamRow>& all() const { return rows_; }
    [[nodiscard]] const ParamRow& operator[](std::int32_t index) const { return rows_[index]; }
    void select(std::int32_t index, bool selected) { rows_[index].isSelected = selected; }

    /// Fills a list with the units of the rows.
    void fillUnits(screen::ComboBox& list, const UnitFilter& filter) const;

private:
    void addBelowUnit(const std::shared_ptr<DIServer>& server, DIParameter& parameter,
                      std::int32_t& lastUnit);
    void add(ParamRow row);

    Array<ParamRow> rows_;
    std::int32_t count_ = 0;
};

} // namespace k7deval
