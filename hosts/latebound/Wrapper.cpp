#include "latebound/Wrapper.h"

#include "foundation/DateText.h"
#include "foundation/Error.h"
#include "foundation/Variant.h"

#include <utility>

namespace k7deval::latebound
{

Wrapper::Wrapper(ObjectHandle object, Region region)
    : object_(std::move(object)), region_(std::move(region))
{
    if (!object_)
        throw Error(errors::kObjectNotSet);
}

Variant Wrapper::value(const char* name, Arguments arguments) const
{
    return object_->value(name, arguments);
}

std::int32_t Wrapper::number(const char* name, Arguments arguments) const
{
    return integerIn(value(name, arguments), *region_);
}

bool Wrapper::flag(const char* name, Arguments arguments) const
{
    return booleanIn(value(name, arguments), *region_);
}

std::string Wrapper::text(const char* name, Arguments arguments) const
{
    return toText(value(name, arguments), *region_);
}

Date Wrapper::date(const char* name, Arguments arguments) const
{
    const Variant result = value(name, arguments);
    if (const auto* date = std::get_if<Date>(&result))
        return *date;
    if (isNull(result) || std::holds_alternative<Empty>(result))
        return {};
    if (const auto* text = std::get_if<std::string>(&result))
        return ToDate(*text, *region_, Date{});
    return {doubleIn(result, *region_)};
}

Wrapper Wrapper::member(const char* name, Arguments arguments) const
{
    return {object_->object(name, arguments), region_};
}

} // namespace k7deval::latebound
