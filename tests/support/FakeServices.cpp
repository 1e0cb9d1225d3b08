#include "support/FakeServices.h"

#include "foundation/Error.h"

#include <stdexcept>

namespace k7deval::test
{

namespace
{

/// The constant arguments of a call are part of what a host is promised.
void insistOn(bool promise, const char* what)
{
    if (!promise)
        throw std::logic_error(what);
}

void failIf(const std::optional<Error>& error)
{
    if (error)
        throw Error(*error);
}

} // namespace

std::optional<screen::SaveAnswer> FakeServices::ShowSave(const std::string& filter,
                                                         const std::string& defaultExtension)
{
    filters.push_back(filter);
    extensions.push_back(defaultExtension);
    failIf(saveError);
    return saveAnswer;
}

screen::MsgBoxAnswer FakeServices::MsgBox(const screen::MsgBoxRequest& request)
{
    boxes.push_back(request);
    failIf(msgBoxError);
    if (answers.empty())
        return screen::MsgBoxAnswer::OK;
    const screen::MsgBoxAnswer answer = answers.front();
    answers.erase(answers.begin());
    return answer;
}

std::optional<Date> FakeServices::PickDate(const std::string& title, Date date, std::int32_t a,
                                           std::int32_t b, std::int32_t c)
{
    insistOn(a == -1 && b == -1 && c == -1, "PickDate is called with -1, -1, -1");
    failIf(dateError);
    dateRequests.emplace_back(title, date);
    return dateAnswer;
}

void FakeServices::OpenDocument(const std::string& path, std::int32_t a,
                                std::int32_t /*ownerWindow*/, std::int32_t b,
                                std::int32_t showCommand)
{
    insistOn(a == 0 && b == 0 && showCommand == 1, "OpenDocument is called with 0, 0 and 1");
    opened.push_back(path);
    failIf(openError);
}

} // namespace k7deval::test
