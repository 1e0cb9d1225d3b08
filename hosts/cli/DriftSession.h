#pragma once

#include "cli/ConsoleHost.h"
#include "cli/DriftOptions.h"
#include "foundation/Clock.h"
#include "sevenday/ctrl7Day.h"

#include <cstddef>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

namespace k7deval::cli
{

/// An operator at the 7-Day tool: fills the setup page, presses its buttons, reads its screen.
/// Nothing is computed here.
class DriftSession
{
public:
    /// The clock and the regional settings outlive the session. Questions that the tool asks are
    /// told to notes. UsageError for a site without units.
    DriftSession(const std::shared_ptr<DIServer>& server, const Clock& clock,
                 const RegionalSettings& regional, std::ostream& notes);

    /// Fills the setup page except for the test information. UsageError for what its lists do not
    /// hold and its fields do not take.
    void fillSetUp(const DriftOptions& options);
    /// Whether the analyzer has test information, and an ECMPS export.
    [[nodiscard]] bool isUnder40CFR75() const { return control_.ctrl7DaySetUp1.Is40CFR75(); }
    /// Fills in the test information that is given. UsageError where there is none to fill in, and
    /// for what its fields do not take.
    void fillTestInformation(const DriftOptions& options);
    /// Presses Next.
    void evaluate();
    /// Why there is no result to rely on, in a sentence: no results page came up, or a step failed
    /// on the way to it. Empty when there is one.
    [[nodiscard]] std::string failure() const;
    /// Whether the results page shows any calibration.
    [[nodiscard]] bool hasCalibrations() const;
    /// Presses Save with the entry of the filter for PDF or ECMPS. UsageError when the file could
    /// not be written, or not all of it.
    void savePdf(const std::string& path);
    void saveXml(const std::string& path);

    [[nodiscard]] ctrl7Day& control() { return control_; }
    [[nodiscard]] const ctrl7Day& control() const { return control_; }
    [[nodiscard]] const std::vector<std::string>& postedLines() const { return lines_->lines; }

private:
    void pickUnit(const std::string& unit);
    void pickAnalyzer(const std::string& analyzer);
    void fillInterval(const DriftOptions& options);
    void fillCriteria(const DriftOptions& options);
    void fillSpecification(const DriftOptions& options);
    void typeLimit(const std::string& limit);
    void fillDisplay(const DriftOptions& options);
    void typeOris(const std::string& oris);
    void fillStack(const std::string& stack);
    void pickReason(const std::string& reason);
    void save(const std::string& path, std::int32_t filterIndex);

    const Clock* clock_;
    const RegionalSettings* regional_;
    ConsoleServices services_;
    std::shared_ptr<PostedLines> lines_ = std::make_shared<PostedLines>();
    ctrl7Day control_;
    std::size_t linesBefore_ = 0; ///< Lines posted before the last pick or press.
};

} // namespace k7deval::cli
