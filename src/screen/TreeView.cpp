#include "screen/TreeView.h"

#include "foundation/Error.h"

#include <utility>

namespace k7deval::screen
{

namespace
{

TreeNode* findIn(const std::vector<std::unique_ptr<TreeNode>>& nodes, std::string_view key)
{
    for (const auto& node : nodes) {
        if (node->Key == key)
            return node.get();
        if (TreeNode* found = findIn(node->Children, key))
            return found;
    }
    return nullptr;
}

PropertyValues described(const std::vector<std::unique_ptr<TreeNode>>& nodes)
{
    PropertyValues values;
    for (const auto& node : nodes) {
        values.push_back({PropertyList{
            {"Key", {node->Key}},
            {"Text", {node->Text}},
            {"Image", {node->Image}},
            {"BackColor", {colorText(node->BackColor)}},
            {"Children", {described(node->Children)}},
        }});
    }
    return values;
}

} // namespace

TreeView::TreeView(Container& parent, std::string name) : Widget(&parent, std::move(name)) {}

void TreeView::Clear()
{
    selected_ = nullptr;
    roots_.clear();
    Changed.raise();
}

TreeNode& TreeView::AddRoot(TreeNode node)
{
    return add(roots_, std::move(node));
}

TreeNode& TreeView::AddChild(const std::string& parentKey, TreeNode node)
{
    TreeNode* parent = Find(parentKey);
    if (parent == nullptr)
        throw Error(errors::kInvalidCall);
    return add(parent->Children, std::move(node));
}

TreeNode& TreeView::add(std::vector<std::unique_ptr<TreeNode>>& siblings, TreeNode node)
{
    if (Find(node.Key) != nullptr)
        throw Error(errors::kDuplicateKey);
    siblings.push_back(std::make_unique<TreeNode>(std::move(node)));
    Changed.raise();
    return *siblings.back();
}

TreeNode* TreeView::Find(std::string_view key) const
{
    return findIn(roots_, key);
}

void TreeView::SetSelectedItem(const TreeNode& node)
{
    update(selected_, &node);
}

void TreeView::Press(std::string_view key)
{
    const TreeNode* node = isReachable() ? Find(key) : nullptr;
    if (node == nullptr)
        return;
    SetSelectedItem(*node);
    NodeClicked.raise(*node);
}

PropertyList TreeView::Properties() const
{
    PropertyList properties = Widget::Properties();
    properties.push_back({"BackColor", {colorText(backColor_)}});
    properties.push_back({"Nodes", {described(roots_)}});
    properties.push_back({"SelectedItem", {selected_ == nullptr ? std::string() : selected_->Key}});
    return properties;
}

} // namespace k7deval::screen
