#pragma once

#include "cli/ConsoleHost.h"
#include "cli/DriftOptions.h"
#include "foundation/Clock.h"
#include "sevenday/ctrl7Day.h"

#include <iosfwd>
#include <memory>
#include <string>

namespace k7deval::cli
{

/// An operator at the 7-Day tool: fills the setup page, presses its buttons, reads its screen.
/// Nothing is computed here.
class DriftSession
{
public:
    /// The clock and the regional settings outlive the session. Questions that the tool asks are
    /// told to notes.
    DriftSession(const std::shared_ptr<DIServer>& server, const Clock& clock,
                 const RegionalSettings& regional, std::ostream& notes);

    /// Fills the setup page. UsageError for what its lists do not hold and its fields do not take.
    void fillSetUp(const DriftOptions& options);
    /// Presses Next. False when no results page came up.
    bool evaluate();
    /// Presses Save with the entry of the filter for PDF or ECMPS. UsageError when the screen
    /// offers no such entry or the file could not be written.
    void savePdf(const std::string& path);
    void saveXml(const std::string& path);

    [[nodiscard]] ctrl7Day& control() { return control_; }
    [[nodiscard]] const std::vector<std::string>& postedLines() const { return lines_->lines; }

private:
    void fillInterval(const DriftOptions& options);
    void fillSpecification(const DriftOptions& options);
    void fillDisplay(const DriftOptions& options);
    void fillTestInformation(const DriftOptions& options);
    void typeDate(screen::TextBox& field, const std::string& text);
    void save(const std::string& path, std::int32_t filterIndex);

    const Clock* clock_;
    const RegionalSettings* regional_;
    ConsoleServices services_;
    std::shared_ptr<PostedLines> lines_ = std::make_shared<PostedLines>();
    ctrl7Day control_;
};

} // namespace k7deval::cli
