#pragma once

#include "report/EmbeddedFont.h"
#include "report/FontSet.h"

#include <deque>
#include <optional>
#include <string>

namespace k7deval
{

/// A font that a document draws with: a standard face, or the embedded part of a TrueType face.
struct UsedFont {
    std::string resourceName;             ///< What the pages call it: "F1", "F2", ...
    int fontCode = 0;                     ///< Of a standard face; 0 for an embedded one.
    std::optional<EmbeddedFont> embedded; ///< None for a standard face.
};

/// The fonts of one document, in the order of their first use.
class UsedFonts
{
public:
    /// The font that draws a run of a text with that font code.
    UsedFont& fontOf(const TextRun& run, int fontCode);

    [[nodiscard]] auto begin() const { return fonts_.begin(); }
    [[nodiscard]] auto end() const { return fonts_.end(); }

private:
    std::deque<UsedFont> fonts_;
};

} // namespace k7deval
