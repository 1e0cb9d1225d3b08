#include "cli/DriftSession.h"

#include "cli/OpenSite.h"
#include "cli/PostedLine.h"
#include "cli/Saving.h"
#include "cli/UsageError.h"
#include "foundation/FileFunctions.h"

namespace k7deval::cli
{

DriftSession::DriftSession(const std::shared_ptr<DIServer>& server, const Clock& clock,
                           const RegionalSettings& regional, std::ostream& notes)
    : clock_(&clock), regional_(&regional), services_(notes),
      control_(screen::Surroundings{services_, clock, regional})
{
    requireUnits(*server);
    control_.Setup(lines_, server);
}

void DriftSession::evaluate()
{
    linesBefore_ = postedLines().size();
    control_.cmdNext.Press();
}

// No entry but the one for nothing.
bool DriftSession::hasCalibrations() const
{
    return control_.ctrl7DayResult1.tvwCalTimes.Find("NA") == nullptr;
}

std::string DriftSession::failure() const
{
    const bool hasResult = control_.ctrl7DayResult1.Visible();
    if (hasResult && postedLines().size() == linesBefore_)
        return {};
    return std::string(hasResult ? "There is no sure result " : "There is no result ") +
           asReason(postedLines().at(linesBefore_), "because a step failed") + ".";
}

void DriftSession::savePdf(const std::string& path)
{
    save(path, kPdfEntry);
}

void DriftSession::saveXml(const std::string& path)
{
    save(path, kEcmpsEntry);
}

void DriftSession::save(const std::string& path, std::int32_t filterIndex)
{
    linesBefore_ = postedLines().size();
    const std::string failure =
        pressSave(control_.cmdSave, control_.chkPreview, services_, {path, filterIndex});
    // A file can be saved in which a figure or a row is missing.
    if (postedLines().size() > linesBefore_)
        throw UsageError(path +
                         (fileExists(path) ? " is not complete " : " could not be written ") +
                         asReason(postedLines().at(linesBefore_), "") + ".");
    if (!failure.empty())
        throw UsageError(path + " could not be written (" + failure + ").");
}

} // namespace k7deval::cli
