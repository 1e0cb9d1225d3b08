#include "screen/TreeView.h"

#include "foundation/Error.h"

#include <utility>

namespace k7deval::screen
{

namespace
{

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

void TreeView::clear()
{
    selected_ = nullptr;
    nodesByKey_.clear();
    roots_.clear();
    Changed.raise();
}

TreeNode& TreeView::addRoot(TreeNode node)
{
    return add(roots_, std::move(node));
}

TreeNode& TreeView::addChild(const std::string& parentKey, TreeNode node)
{
    TreeNode* parent = Find(parentKey);
    if (parent == nullptr)
        throw Error(errors::kInvalidCall);
    return add(parent->Children, std::move(node));
}

TreeNode& TreeView::add(std::vector<std::unique_ptr<TreeNode>>& siblings, TreeNode node)
{
    const auto [entry, isNew] = nodesByKey_.try_emplace(node.Key, nullptr);
    if (!isNew)
        throw Error(errors::kDuplicateKey);
    siblings.push_back(std::make_unique<TreeNode>(std::move(node)));
    entry->second = siblings.back().get();
    Changed.raise();
    return *siblings.back();
}

TreeNode* TreeView::Find(std::string_view key) const
{
    const auto found = nodesByKey_.find(key);
    return found == nodesByKey_.end() ? nullptr : found->second;
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
