#include "sitedb/sql/Connection.h"

#include "foundation/Error.h"

#include <limits>

namespace k7deval::sitedb::sql
{

namespace
{

template <class Type> Type expect(Value value, const char* what)
{
    if (auto* found = std::get_if<Type>(&value))
        return std::move(*found);
    throw Error(errors::kTypeMismatch,
                std::string("A column of the site database holds no ") + what + ".");
}

} // namespace

Value orNull(const std::optional<double>& number)
{
    Value value;
    if (number)
        value = *number;
    return value;
}

bool Statement::isNull(int index) const
{
    return std::holds_alternative<std::monostate>(column(index));
}

std::int64_t Statement::integer(int index) const
{
    return expect<std::int64_t>(column(index), "whole number");
}

std::int32_t Statement::int32(int index) const
{
    const std::int64_t value = integer(index);
    if (value < std::numeric_limits<std::int32_t>::min() ||
        value > std::numeric_limits<std::int32_t>::max())
        throw Error(errors::kOverflow, "A whole number in the site database is too large.");
    return static_cast<std::int32_t>(value);
}

double Statement::real(int index) const
{
    return expect<double>(column(index), "number");
}

std::string Statement::text(int index) const
{
    return expect<std::string>(column(index), "text");
}

Transaction::Transaction(Connection& connection) : connection_(connection)
{
    connection_.begin();
}

Transaction::~Transaction()
{
    if (open_)
        connection_.rollback();
}

void Transaction::commit()
{
    connection_.commit();
    open_ = false;
}

} // namespace k7deval::sitedb::sql
