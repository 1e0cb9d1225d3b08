#pragma once

#include "foundation/DataInterface.h"
#include "screen/ComboBox.h"
#include "screen/Container.h"
#include "selection/ParamRows.h"

#include <memory>

namespace k7deval
{

/// Lets a user pick one parameter of a list that the host supplies, with an optional filter of
/// units. Failures of the data pass on to the host, and so does error 381 where an entry is needed
/// and none is selected.
class SingleParamSelect : public screen::Control
{
public:
    SingleParamSelect();

    [[nodiscard]] bool AllUnitsInCombo() const { return allUnitsInCombo_; }
    void SetAllUnitsInCombo(bool value);
    [[nodiscard]] bool ShowPIDNumber() const { return showPIDNumber_; }
    void SetShowPIDNumber(bool value);
    [[nodiscard]] bool ShowUnpopulatedUnits() const { return showUnpopulatedUnits_; }
    void SetShowUnpopulatedUnits(bool value);
    /// Until this is first set, the filter is shown and empty.
    [[nodiscard]] bool ShowUnitCombo() const { return showUnitCombo_; }
    void SetShowUnitCombo(bool value);
    [[nodiscard]] std::shared_ptr<k7deval::DIServer> DIServer() const { return server_; }
    /// Handing over nothing keeps the data that was there.
    void SetDIServer(std::shared_ptr<k7deval::DIServer> server);

    /// Loads the rows; see ParamRows.
    void SetParamList(const ParamList& varParamList, bool blnUnitNamesInList = false);
    /// The PID of the selected entry. Error 381 with none selected.
    [[nodiscard]] PID GetSelection() const { return cmbPID.ItemData(); }

    /// Ends the control's life: drops the data.
    void Terminate() { server_.reset(); }
    /// Gives the control a new size in twips.
    void Resize(float width, float height);

    [[nodiscard]] const ParamRows& rows() const { return rows_; }

    screen::ComboBox cmbUnit{*this, "cmbUnit", screen::EditField::Yes};
    screen::ComboBox cmbPID{*this, "cmbPID", screen::EditField::Yes};

private:
    void fillBoth();
    void fillUnits();
    void hideUnits();
    void fillParameters();
    [[nodiscard]] std::string entryOf(const ParamRow& row, bool withUnit) const;

    std::shared_ptr<k7deval::DIServer> server_;
    ParamRows rows_;
    bool allUnitsInCombo_ = true;
    bool showPIDNumber_ = false;
    bool showUnpopulatedUnits_ = false;
    bool showUnitCombo_ = false;
};

} // namespace k7deval
