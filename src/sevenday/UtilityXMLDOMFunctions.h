#pragma once

#include "foundation/Date.h"
#include "foundation/RegionalSettings.h"
#include "foundation/Variant.h"

#include <string>

namespace pugi
{
class xml_document;
class xml_node;
} // namespace pugi

namespace k7deval
{

/// An empty document.
pugi::xml_document CreateXMLDocument();

/// Adds an element with a text as the parent's last child. Does nothing without a parent.
pugi::xml_node AddChildElement(pugi::xml_node parent, const std::string& name,
                               const std::string& text);

/// Gives the first child of that name the text, and adds it where there is none. Does nothing
/// without a parent.
pugi::xml_node SetNodeText(pugi::xml_node parent, const std::string& name, const std::string& text);

/// As SetNodeText with a date in a format made of "yyyy", "MM" or "mm", "dd", "HH" and "nn" ("mm"
/// behind hours means minutes). Empty for the zero date. An empty format picks one: a time alone
/// "HH:mm", a midnight "yyyy-MM-dd", any other "yyyy-MM-dd HH:mm".
pugi::xml_node SetDateNode(pugi::xml_node parent, const std::string& name, Date value,
                           const std::string& format);

/// As SetNodeText with "1" for a true value or any number but 0, "0" for a false one, and the empty
/// text for a value that is empty, not numeric or no boolean.
pugi::xml_node SetBooleanNode(pugi::xml_node parent, const std::string& name, const Variant& value,
                              const RegionalSettings& settings);

/// The document as it goes into a file: UTF-8, no declaration, no white space between elements.
std::string documentText(const pugi::xml_document& document);

} // namespace k7deval
