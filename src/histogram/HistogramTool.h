#pragma once

#include "foundation/DataInterface.h"
#include "histogram/BarLabels.h"
#include "histogram/HistogramPage.h"
#include "report/ReportDocument.h"
#include "screen/Buttons.h"
#include "screen/ComboBox.h"
#include "screen/CommonDialog.h"
#include "screen/Container.h"
#include "screen/Label.h"
#include "screen/Line.h"
#include "screen/Services.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace k7deval::histogram
{

/// Where each of the two tools places what both have, in twips.
struct ToolLook {
    std::string name;
    std::string title; ///< Of message boxes without a title of their own: the tool's name.
    screen::Geometry control;
    screen::Geometry fraResults;
    screen::LineStyle markStyle = screen::LineStyle::Solid;
    float linLowX = 0;
    float linMidX = 0;
    screen::Geometry lblMidOpPercent;
    screen::Geometry lblHighOpPercent;
    screen::Geometry lblMinSafe;
    screen::Geometry lblLow;
    screen::Alignment lblLowAlignment = screen::Alignment::Left;
    screen::Geometry lblMid;
    screen::Alignment lblMidAlignment = screen::Alignment::Left;
    screen::Geometry lbl000;
};

/// What load and range evaluation have in common as screens: unit and parameter on the left, twenty
/// bars over three levels on the right, and the buttons.
///
/// Only the save button deals with failures; all others reach the host, and leave the hourglass as
/// it stands.
class HistogramTool : public screen::Control
{
public:
    /// The data; null until it is set.
    [[nodiscard]] std::shared_ptr<k7deval::DIServer> DIServer() const { return server_; }
    virtual void SetDIServer(std::shared_ptr<k7deval::DIServer> server) = 0;
    /// Ends the control's life: drops the data.
    virtual void Terminate() { server_.reset(); }

    /// The user wants to close the screen; closing it is the host's business.
    screen::Event<> CloseClicked;

    /// Whether what is entered has changed since the last finished evaluation, as far as the
    /// screen takes notice.
    [[nodiscard]] bool NeedsEvaluation() const { return needsEvaluation_; }

    /// The report of what the screen shows now. Error 91 without data.
    [[nodiscard]] virtual std::unique_ptr<ReportDocument> buildReport() const = 0;

    screen::Frame fraSetup{*this, "fraSetup", ""};
    screen::Label lblUnit{fraSetup, "lblUnit", "Unit:"};
    screen::ComboBox cmbUnit{fraSetup, "cmbUnit"};
    screen::Label lblParameter{fraSetup, "lblParameter", "Parameter:"};
    screen::ComboBox cmbParam{fraSetup, "cmbParam"};
    screen::CheckBox chkShowPID{fraSetup, "chkShowPID", "Show PID"};

    screen::Button cmdCalculate{*this, "cmdCalculate", "Calculate"};
    screen::Button cmdSave{*this, "cmdSave", "Save"};
    screen::CheckBox chkPreview{*this, "chkPreview", "Preview Report After Saving"};
    screen::Button cmdClose{*this, "cmdClose", "Close"};
    screen::CommonDialog CommonDialog1;

    screen::Frame fraResults{*this, "fraResults", ""};
    screen::Label lblHeader;
    screen::Label lblLowOpPercent;
    screen::Label lblMidOpPercent;
    screen::Label lblHighOpPercent;
    screen::Line linMin;
    screen::Line linLow;
    screen::Line linMid;
    screen::Line linMax;
    screen::Line linBase;
    BarLabels lblBar;
    screen::Label lblMinSafe;
    screen::Label lblLow;
    screen::Label lblMid;
    screen::Label lblMax;
    screen::Label lbl000;
    screen::Label lbl100;

protected:
    HistogramTool(const ToolLook& look, const screen::Surroundings& surroundings);

    virtual void ClearResults();
    /// The results don't belong to what is entered any more.
    void clearStaleResults();
    /// The same, and there is nothing to save.
    void markStale();
    void setEvaluated() { needsEvaluation_ = false; }
    void setServer(std::shared_ptr<k7deval::DIServer> server) { server_ = std::move(server); }

    /// The data. Error 91 when it was never set.
    [[nodiscard]] k7deval::DIServer& data() const { return present(server_); }
    /// A parameter's entry in the list, with its PID in front if that is wanted.
    [[nodiscard]] std::string parameterEntry(DIParameter& parameter) const;

    /// The results of an evaluation and whether they still hold, as a set of results.
    [[nodiscard]] PropertyList withState(PropertyList evaluation) const;

    /// What an evaluation reads: a series, and the meanings of its status words.
    struct HourSource {
        std::shared_ptr<DIParameter> parameter;
        std::shared_ptr<DIStatusCodes> statusCodes;
    };
    /// The hours of a parameter; none for one that is gone.
    [[nodiscard]] std::optional<HourSource> hoursOf(PID pid) const;
    /// What follows the percents of the three levels.
    struct LevelTails {
        std::string low;
        std::string mid;
        std::string high;
    };
    void showHeader();
    void showLevels(const InRangeHours& hours, const LevelTails& tails);
    /// The values at the four marks.
    void showScale(const std::string& minimum, float low, float mid, float maximum);

    /// The texts of a tool's report.
    struct ReportTexts {
        std::string author; ///< Also its creator.
        std::string subject;
        std::string title;
        std::string heading;
        std::string period;
    };
    /// A report with its page begun: the head, and the captions and hours of the levels.
    struct BegunReport {
        std::unique_ptr<ReportDocument> document;
        ReportPage* page = nullptr;
        float chartTop = 0;
    };
    /// Where the middles of the levels stand on the page, from the low one.
    using LevelCentres = std::array<float, 3>;
    [[nodiscard]] BegunReport beginReport(const ReportTexts& texts, const LevelCentres& centres,
                                          const InRangeHours& hours) const;

    screen::Surroundings surroundings_;

private:
    void saveClick();

    std::string title_;
    std::shared_ptr<k7deval::DIServer> server_;
    bool needsEvaluation_ = true;
};

} // namespace k7deval::histogram
