#include "screen/SaveClick.h"

#include "foundation/FileFunctions.h"

#include <string>

namespace k7deval::screen
{

namespace
{

bool showDialog(const SaveClick& click)
{
    try {
        click.dialog.ShowSave();
        return !click.dialog.FileName().empty();
    } catch (...) {
        const Error error = errorInFlight();
        if (error.number() != errors::kCancelled)
            click.passOver(error);
        return false;
    }
}

bool mayDelete(const SaveClick& click)
{
    const std::string question = "Delete Existing File?";
    return click.services.MsgBox({question, question, MsgBoxButtons::YesNo, MsgBoxIcon::None}) ==
           MsgBoxAnswer::Yes;
}

void preview(const SaveClick& click)
{
    if (click.preview)
        click.services.OpenDocument(click.dialog.FileName(), 0, 0, 0, 1);
}

void replaceExisting(const SaveClick& click)
{
    deleteFile(click.dialog.FileName());
    const WriteOutcome outcome = click.write();
    if (outcome.ended)
        return;
    if (outcome.failure)
        throw Error(*outcome.failure);
    preview(click);
}

/// The wording stays "Deleting" also when it was the writing that failed.
void showDeletionFailure(const SaveClick& click, const Error& error)
{
    click.services.MsgBox(
        {"Error Deleting File:  " + std::to_string(error.number()) + ":" + error.description(),
         click.title, MsgBoxButtons::OK, MsgBoxIcon::None});
}

} // namespace

WriteOutcome outcomeOf(const std::function<void()>& writer)
{
    try {
        writer();
        return {};
    } catch (...) {
        return {false, errorInFlight()};
    }
}

void runSaveClick(const SaveClick& click)
{
    if (!showDialog(click))
        return;
    bool replacing = false;
    try {
        if (fileExists(click.dialog.FileName())) {
            if (!mayDelete(click))
                return;
            replacing = true;
            replaceExisting(click);
        } else if (!click.write().ended) {
            preview(click);
        }
    } catch (...) {
        if (replacing)
            showDeletionFailure(click, errorInFlight());
        else
            click.passOver(errorInFlight());
    }
}

} // namespace k7deval::screen
