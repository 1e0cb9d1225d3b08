#include "python/PropertyForm.h"

#include "python/Values.h"
#include "sevenday/clsDaySummary.h"

#include <array>
#include <cassert>
#include <memory>

namespace k7deval::python
{

namespace py = pybind11;

namespace
{

template <class Record> py::object liveObject(const std::any& handle)
{
    const auto* record = std::any_cast<std::shared_ptr<Record>>(&handle);
    return record == nullptr ? py::object() : py::cast(*record);
}

/// The records that Python has classes for.
constexpr std::array kLiveObjects{&liveObject<clsStrippedCal>, &liveObject<cls7DayAnalyzerCal>,
                                  &liveObject<clsDaySummary>};

struct Form {
    py::object operator()(std::monostate) const { return py::none(); }
    py::object operator()(bool value) const { return py::bool_(value); }
    py::object operator()(std::int32_t value) const { return py::int_(value); }
    /// Widened, unlike the typed singles of the data interface.
    py::object operator()(float value) const { return py::float_(value); }
    py::object operator()(const std::string& value) const { return py::str(value); }
    py::object operator()(Date value) const { return pythonDate(value); }

    py::object operator()(const PropertyChoice& choice) const
    {
        const std::string type(choice.type);
        return py::module_::import("k7deval._core").attr(type.c_str())(choice.number);
    }

    py::object operator()(const PropertyRecord& record) const
    {
        for (const auto& attempt : kLiveObjects) {
            if (py::object object = attempt(record.handle))
                return object;
        }
        assert(false);
        return py::none();
    }

    py::object operator()(const PropertyValues& values) const
    {
        py::list list;
        for (const auto& value : values)
            list.append(pythonForm(value));
        return list;
    }

    py::object operator()(const PropertyMap& entries) const
    {
        py::dict dict;
        for (const auto& [key, value] : entries)
            dict[std::visit(*this, key)] = pythonForm(value);
        return dict;
    }

    py::object operator()(const PropertyList& properties) const
    {
        py::dict dict;
        for (const auto& property : properties)
            dict[py::str(property.name)] = pythonForm(property.content);
        return dict;
    }
};

std::string plainTypeText(const PropertyType& type)
{
    using Kind = PropertyType::Kind;
    switch (type.kind) {
    case Kind::Truth:
        return "bool";
    case Kind::Integer:
        return "int";
    case Kind::Single:
        return "float";
    case Kind::Time:
        return "datetime";
    case Kind::Choice:
    case Kind::Record:
        return std::string(type.name);
    case Kind::List:
        return "list[" + typeText(type.parts.at(0)) + "]";
    case Kind::Map:
        return "dict[" + typeText(type.parts.at(0)) + ", " + typeText(type.parts.at(1)) + "]";
    case Kind::Text:
        break;
    }
    return "str";
}

} // namespace

py::object pythonForm(const PropertyValue& content)
{
    return std::visit(Form{}, content.value);
}

std::string typeText(const PropertyType& type)
{
    return plainTypeText(type) + (type.mayBeAbsent ? " | None" : "");
}

} // namespace k7deval::python
