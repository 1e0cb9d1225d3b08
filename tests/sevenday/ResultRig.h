#pragma once

#include "sevenday/DriftDays.h"
#include "sevenday/ctrl7DayResult.h"
#include "support/ScreenSnapshot.h"

#include <string>
#include <vector>

namespace k7deval::test
{

/// What a tree shows, an entry a line: "text [image] white|light", children indented by two blanks.
/// Key and text of an entry are the same in this tool; where not, the key follows.
inline void addLinesOf(const std::vector<std::unique_ptr<screen::TreeNode>>& nodes,
                       const std::string& indent, std::vector<std::string>& lines)
{
    for (const auto& node : nodes) {
        const bool white = node->BackColor == screen::color::kWhite;
        const bool light = node->BackColor == screen::color::kLight3D;
        std::string line = indent + node->Text;
        line.append(" [").append(node->Image).append("]");
        line.append(white ? " white" : light ? " light" : " other colour");
        if (node->Key != node->Text)
            line.append(" key ").append(node->Key);
        lines.push_back(line);
        addLinesOf(node->Children, indent + "  ", lines);
    }
}

inline std::vector<std::string> linesOf(const screen::TreeView& tree)
{
    std::vector<std::string> lines;
    addLinesOf(tree.Nodes(), "", lines);
    return lines;
}

/// The results page by itself.
struct ResultRig {
    explicit ResultRig(const std::string& region = "en-US") : regional(regionalSettings(region)) {}

    /// Shows days with some displayed runs.
    ctrl7DayResult& show(const std::vector<CalDay>& days)
    {
        page.SetTreeView(arrayOf(days));
        return page;
    }

    template <class Action> std::vector<std::string> changesBy(Action action)
    {
        return changesOn(page, action);
    }

    RegionalSettings regional;
    screen::Control host{"host"};
    ctrl7DayResult page{host, "ctrl7DayResult1", regional};
};

using Lines = std::vector<std::string>;

} // namespace k7deval::test
