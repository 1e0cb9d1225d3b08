#pragma once

#include "foundation/Error.h"
#include "screen/CommonDialog.h"
#include "screen/Services.h"

#include <functional>
#include <optional>
#include <string>

namespace k7deval::screen
{

/// How the writing of a file went.
struct WriteOutcome {
    bool ended = false;           ///< The user decided against it; the click is over.
    std::optional<Error> failure; ///< What ended the writer, which has dealt with it already.
};

/// Runs a writer that leaves its failures to the click.
WriteOutcome outcomeOf(const std::function<void()>& writer);

/// What a tool puts into the click of its save button.
struct SaveClick {
    std::string title; ///< Of message boxes without a title of their own: the tool's name.
    CommonDialog& dialog;
    Services& services;
    /// Writes the chosen file.
    std::function<WriteOutcome()> write;
    /// A failure that the click passes over.
    std::function<void(const Error&)> passOver;
    bool preview = false; ///< Open the file after saving.
};

/// The click of a save button, from the dialog to the preview. A cancelled dialog ends it silently.
/// Once an existing file is deleted, every failure, also of the writer, is shown in a message box
/// and ends the click; without one, a failed writer is followed by the preview all the same.
void runSaveClick(const SaveClick& click);

} // namespace k7deval::screen
