#include "cli/OperatorActions.h"

#include <algorithm>
#include <cstdint>

namespace k7deval::cli
{

void pick(screen::ComboBox& list, const std::string& entry, const std::string& sentence)
{
    const auto& entries = list.List();
    const auto found = std::find(entries.begin(), entries.end(), entry);
    if (found == entries.end())
        throw UsageError(sentence + "; the list holds: " + listed(entries) + ".");
    list.Pick(static_cast<std::int32_t>(found - entries.begin()));
}

void choose(screen::CheckBox& box, bool wanted)
{
    if (!box.isReachable())
        throw UsageError(inQuotes(box.Caption()) + " can't be chosen with this specification.");
    if (box.isChecked() != wanted)
        box.Press();
}

void type(screen::TextBox& field, const std::string& text, const std::string& what)
{
    field.Type(text);
    if (field.Text() != text)
        throw UsageError(inQuotes(text) + " is too long; the " + what + " has at most " +
                         std::to_string(field.MaxLength()) + " characters.");
    field.Leave();
}

} // namespace k7deval::cli
