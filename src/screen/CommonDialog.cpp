#include "screen/CommonDialog.h"

#include "foundation/Error.h"

#include <utility>

namespace k7deval::screen
{

CommonDialog::CommonDialog(Container& parent, std::string name, Services& services)
    : Widget(&parent, std::move(name)), services_(&services)
{
}

void CommonDialog::ShowSave()
{
    fileName_.clear();
    const auto answer = services_->ShowSave(filter_, defaultExt_);
    if (!answer)
        throw Error(errors::kCancelled);
    fileName_ = answer->path;
    filterIndex_ = answer->filterIndex;
}

PropertyList CommonDialog::Properties() const
{
    PropertyList properties = Widget::Properties();
    properties.push_back({"Filter", {filter_}});
    properties.push_back({"DefaultExt", {defaultExt_}});
    properties.push_back({"FileName", {fileName_}});
    properties.push_back({"FilterIndex", {filterIndex_}});
    return properties;
}

} // namespace k7deval::screen
