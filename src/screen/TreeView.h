#pragma once

#include "screen/Container.h"
#include "screen/Label.h"

#include <any>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace k7deval::screen
{

/// An entry of a tree. Its tag holds what the entry stands for, or nothing.
struct TreeNode {
    std::string Key;
    std::string Text;
    std::string Image;
    Color BackColor = color::kWindow;
    std::any Tag;
    std::vector<std::unique_ptr<TreeNode>> Children;
};

/// A tree of entries with pictures. Keys are unique in the whole tree.
class TreeView final : public Widget
{
public:
    TreeView(Container& parent, std::string name);

    [[nodiscard]] const std::vector<std::unique_ptr<TreeNode>>& Nodes() const { return roots_; }
    void clear();
    /// Adds a root entry. Error 457 for a key that the tree has.
    TreeNode& addRoot(TreeNode node);
    /// Adds an entry under another. Error 457 for a key that the tree has, 5 for an unknown parent.
    TreeNode& addChild(const std::string& parentKey, TreeNode node);
    /// The entry with that key, or null.
    [[nodiscard]] TreeNode* Find(std::string_view key) const;

    [[nodiscard]] const TreeNode* SelectedItem() const { return selected_; }
    /// Selects an entry by code; runs no rule.
    void SetSelectedItem(const TreeNode& node);
    [[nodiscard]] Color BackColor() const { return backColor_; }
    void SetBackColor(Color value) { update(backColor_, value); }

    /// The user presses an entry, which selects it; an unknown key does nothing.
    void Press(std::string_view key);
    Event<const TreeNode&> NodeClicked;

    [[nodiscard]] std::string_view kind() const override { return "TreeView"; }
    [[nodiscard]] PropertyList Properties() const override;

private:
    TreeNode& add(std::vector<std::unique_ptr<TreeNode>>& siblings, TreeNode node);

    std::vector<std::unique_ptr<TreeNode>> roots_;
    std::map<std::string, TreeNode*, std::less<>> nodesByKey_;
    const TreeNode* selected_ = nullptr;
    Color backColor_ = color::kWindow;
};

} // namespace k7deval::screen
