#pragma once

#include "foundation/DataInterface.h"
#include "screen/Buttons.h"
#include "screen/CommonDialog.h"
#include "screen/Container.h"
#include "screen/SaveClick.h"
#include "screen/Services.h"
#include "sevenday/DriftReport.h"
#include "sevenday/DriftTest.h"
#include "sevenday/EcmpsExport.h"
#include "sevenday/ctrl7DayResult.h"
#include "sevenday/ctrl7DaySetUp.h"

#include <memory>

namespace k7deval
{

/// The 7-Day tool: did this analyzer pass a 7-Day drift test, and from which calibrations
/// (40 CFR 75 App. A 6.3.1). A wizard of two pages: the setup, and the results of the evaluation
/// that Next runs.
///
/// Nothing that goes wrong on the way reaches the host: each procedure posts its numbered line to
/// the message sink. Only Setup passes failures on.
class ctrl7Day : public screen::Control
{
public:
    explicit ctrl7Day(const screen::Surroundings& surroundings);

    /// Hands over the message sink (may be absent) and the data, and shows the setup page.
    void Setup(std::shared_ptr<MessageSink> irm, std::shared_ptr<DIServer> objDI);
    /// Ends the control's life: drops the data and the sink.
    void Terminate();

    /// The state of the test, as the last evaluation left it.
    [[nodiscard]] const DriftTest& test() const { return test_; }
    [[nodiscard]] PropertyList results() const override;
    /// The report that a save would write now. Null where a save writes none: when there are
    /// runs but no days to show them in. Raises what keeps it from being built; only a part that
    /// fails and leaves a gap posts its line.
    [[nodiscard]] std::unique_ptr<ReportDocument> buildReport() { return report_.build(); }

    ctrl7DaySetUp ctrl7DaySetUp1;
    ctrl7DayResult ctrl7DayResult1;
    screen::Button cmdBack{*this, "cmdBack", "<< Back"};
    screen::Button cmdNext{*this, "cmdNext", "Next >>"};
    screen::Button cmdSave{*this, "cmdSave", "Save"};
    screen::CheckBox chkPreview{*this, "chkPreview", "Preview Report After Saving"};
    screen::CommonDialog CommonDialog1;

private:
    enum class Page { SetUp = 1, Result = 2 };

    void SwitchPage(Page page);
    void evaluate();
    void ReadSetup();
    void fillDisplay();
    void fillResultPage();

    void saveClick();
    [[nodiscard]] screen::WriteOutcome writeFile();
    [[nodiscard]] bool mayExport();

    screen::Surroundings surroundings_;
    DriftTest test_;
    DriftReport report_;
    EcmpsExport export_;
};

} // namespace k7deval
