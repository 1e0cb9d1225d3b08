#include "sevenday/UtilityXMLDOMFunctions.h"

#include "foundation/Error.h"
#include "foundation/TextFunctions.h"
#include "foundation/UtilityFunctions.h"

#include <pugixml.hpp>

#include <sstream>
#include <string_view>

namespace k7deval
{

namespace
{

bool isOnZeroDate(Date value)
{
    return IsNoDate(dateOnly(value));
}

std::string pickedFormat(Date value)
{
    if (isOnZeroDate(value))
        return "HH:mm";
    if (wholeSeconds(IntervalStart(value, static_cast<std::int32_t>(kSecondsPerDay), false)) ==
        wholeSeconds(value))
        return "yyyy-MM-dd";
    return "yyyy-MM-dd HH:mm";
}

std::string formattedDate(Date value, std::string_view format)
{
    const DateParts parts = dateParts(value);
    std::string text;
    bool behindHours = false;
    while (!format.empty()) {
        const std::string_view pair = format.substr(0, 2);
        if (format.starts_with("yyyy")) {
            text += withZerosAhead(std::to_string(parts.year), 4);
            format.remove_prefix(4);
            continue;
        }
        if (pair == "dd")
            text += twoDigits(parts.day);
        else if (pair == "HH")
            text += twoDigits(parts.hour);
        else if (pair == "nn" || (pair == "mm" && behindHours))
            text += twoDigits(parts.minute);
        else if (pair == "MM" || pair == "mm")
            text += twoDigits(parts.month);
        else
            text += format.front();
        const bool isField =
            pair == "dd" || pair == "HH" || pair == "nn" || pair == "MM" || pair == "mm";
        behindHours = pair == "HH" || (behindHours && !isField);
        format.remove_prefix(isField ? 2 : 1);
    }
    return text;
}

std::string booleanText(const Variant& value, const RegionalSettings& settings)
{
    if (std::holds_alternative<Empty>(value) || !IsNumeric(value, settings))
        return {};
    try {
        return booleanIn(value, settings) ? "1" : "0";
    } catch (const Error&) {
        return {};
    }
}

} // namespace

pugi::xml_document CreateXMLDocument()
{
    return {};
}

pugi::xml_node AddChildElement(pugi::xml_node parent, const std::string& name,
                               const std::string& text)
{
    pugi::xml_node element = parent.append_child(name.c_str());
    if (!text.empty())
        element.text().set(text.c_str());
    return element;
}

pugi::xml_node SetNodeText(pugi::xml_node parent, const std::string& name, const std::string& text)
{
    pugi::xml_node element = parent.child(name.c_str());
    if (!element)
        return AddChildElement(parent, name, text);
    element.remove_children();
    if (!text.empty())
        element.text().set(text.c_str());
    return element;
}

pugi::xml_node SetDateNode(pugi::xml_node parent, const std::string& name, Date value,
                           const std::string& format)
{
    std::string text;
    if (!IsNoDate(value))
        text = formattedDate(value, format.empty() ? pickedFormat(value) : format);
    return SetNodeText(parent, name, text);
}

pugi::xml_node SetBooleanNode(pugi::xml_node parent, const std::string& name, const Variant& value,
                              const RegionalSettings& settings)
{
    return SetNodeText(parent, name, booleanText(value, settings));
}

std::string documentText(const pugi::xml_document& document)
{
    std::ostringstream text;
    document.save(text, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
    return text.str();
}

} // namespace k7deval
