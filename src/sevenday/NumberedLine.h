#pragma once

#include "foundation/DataInterface.h"
#include "foundation/Error.h"

#include <memory>
#include <optional>
#include <string>

namespace k7deval
{

/// The lines that the 7-Day tool posts to its message sink, each from one procedure.
enum class NumberedLine : int {
    SwitchPage = 1,
    SaveClick = 2,
    RetrieveCals = 3,
    ApplyLimits = 4,
    AnalyzeOperatingDays = 5,
    EvaluateDriftTest = 6,
    ShowDriftCals = 7,
    ShowCalsWithinDrift = 8,
    ShowIntervalCals = 9,
    BuildSummary = 10,
    WriteDriftReport = 11,
    DrawPageHeader = 12,
    DrawCalRow = 13,
    DrawSummaryText = 14,
    WriteEcmpsExport = 15,
    FormatCalError = 16,
    FormatGasValue = 17,
    UnitRule = 18,
    AnalyzerRule = 19,
};

/// Posts "DEval-0nn: number, description" with severity 4, if there is a sink.
void postLine(const std::shared_ptr<MessageSink>& irm, NumberedLine line, const Error& error);

/// Runs a procedure under its handler: a failure is posted as its line and ends the procedure, and
/// the caller goes on. Returns the failure, if there was one.
template <class Procedure>
std::optional<Error> runPosting(const std::shared_ptr<MessageSink>& irm, NumberedLine line,
                                Procedure procedure)
{
    try {
        procedure();
        return std::nullopt;
    } catch (...) {
        const Error error = errorInFlight();
        postLine(irm, line, error);
        return error;
    }
}

} // namespace k7deval
