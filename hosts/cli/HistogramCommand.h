#pragma once

#include "cli/Commands.h"
#include "cli/ConsoleHost.h"
#include "foundation/Error.h"
#include "foundation/RegionalSettings.h"
#include "histogram/HistogramTool.h"

#include <iosfwd>
#include <string>

namespace k7deval::cli
{

/// An operator at the load or the range tool: fills the setup, presses Calculate, reads the screen,
/// presses Save. Nothing is computed here.
class HistogramCommand
{
public:
    /// UsageError for a region that there is not.
    HistogramCommand(const HistogramRequest& request, const Console& console);
    HistogramCommand(const HistogramCommand&) = delete;
    HistogramCommand& operator=(const HistogramCommand&) = delete;
    virtual ~HistogramCommand() = default;

    /// Error or UsageError for what can't be done. Nothing is saved without a result.
    Status run();

protected:
    /// For the tool, which they outlive.
    [[nodiscard]] screen::Surroundings surroundings()
    {
        return {services_, console_.clock, regional_};
    }
    [[nodiscard]] const RegionalSettings& regional() const { return regional_; }
    [[nodiscard]] const Clock& clock() const { return console_.clock; }

    /// Picks unit and parameter, as far as they are given. UsageError for what the lists do not
    /// hold, and for a unit without parameters.
    void pickParameter();

private:
    [[nodiscard]] virtual histogram::HistogramTool& tool() = 0;
    /// Fills the setup. UsageError for what the screen does not offer or take.
    virtual void fillSetUp() = 0;
    /// What a user can see to when the evaluation failed, "because ..."; empty if nothing.
    [[nodiscard]] virtual std::string causeOf(const Error& /*error*/) const { return {}; }
    /// Why the evaluation ended without a result, in a sentence; empty if it has one.
    [[nodiscard]] virtual std::string failure() const { return {}; }
    virtual void printText(std::ostream& out) const = 0;

    void calculate();
    void print();
    void savePdf();

    const HistogramRequest& request_;
    const Console& console_;
    RegionalSettings regional_;
    ConsoleServices services_;
};

} // namespace k7deval::cli
