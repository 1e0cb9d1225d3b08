#pragma once

#include "load/DateField.h"
#include "load/LoadEvaluation.h"
#include "screen/Buttons.h"
#include "screen/ComboBox.h"
#include "screen/Services.h"
#include "screen/TextBox.h"

namespace k7deval
{

/// What a load evaluation uses data from: four operating quarters up to the end of one, or
/// specified dates. It works the widgets in which the user enters it; they outlive it.
class EvaluationPeriod
{
public:
    struct Widgets {
        screen::OptionButton& optTimeEnd;
        screen::ComboBox& cmbYear;
        screen::ComboBox& cmbQTR;
        screen::OptionButton& optTimeSelect;
        screen::TextBox& txtFrom;
        screen::Button& cmdFrom;
        screen::TextBox& txtTo;
        screen::Button& cmdTo;
    };

    EvaluationPeriod(const Widgets& widgets, const screen::Surroundings& surroundings);

    /// A date was entered by typing.
    screen::Event<> DateEntered;
    /// The period was changed in any other way.
    screen::Event<> Changed;

    /// Selects four operating quarters up to the newest finished one, and takes that quarter's days
    /// as the dates.
    void startUp();
    /// Corrects specified dates: none lie more than five quarters apart or in reverse order.
    void CheckEvaluationPeriod();
    /// The hours to evaluate. A year or quarter that names none is replaced on the screen.
    [[nodiscard]] LoadPeriod hours();

    [[nodiscard]] Date StartDate() const { return from_.day(); }
    [[nodiscard]] Date EndDate() const { return to_.day(); }

private:
    void optionRule();
    void moveStart();

    Widgets widgets_;
    screen::Surroundings surroundings_;
    DateField from_;
    DateField to_;
};

} // namespace k7deval
