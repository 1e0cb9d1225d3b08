#include "support/FakeServices.h"

#include "foundation/Error.h"

namespace k7deval::test
{

namespace
{

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

std::optional<Date> FakeServices::PickDate(const std::string& title, Date date, std::int32_t /*a*/,
                                           std::int32_t /*b*/, std::int32_t /*c*/)
{
    dateRequests.emplace_back(title, date);
    return dateAnswer;
}

void FakeServices::OpenDocument(const std::string& path, std::int32_t /*a*/,
                                std::int32_t /*ownerWindow*/, std::int32_t /*b*/,
                                std::int32_t /*showCommand*/)
{
    opened.push_back(path);
    failIf(openError);
}

} // namespace k7deval::test
