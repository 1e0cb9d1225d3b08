#include "python/Binding.h"
#include "python/GarbageCollection.h"
#include "screen/TreeView.h"
#include "sevenday/ctrl7DayResult.h"

#include <memory>
#include <string>
#include <vector>

namespace k7deval::python
{

namespace py = pybind11;
using namespace py::literals;

namespace
{

/// An entry as it stood when it was asked for: the tree makes its entries anew with each showing.
struct HostNode {
    std::string key;
    std::string text;
    std::string image;
    screen::Color backColor = 0;
    std::shared_ptr<cls7DayAnalyzerCal> run;
    std::vector<HostNode> children;
};

HostNode hostNode(const screen::TreeNode& node)
{
    HostNode result{node.Key, node.Text, node.Image, node.BackColor, runOf(node), {}};
    for (const auto& child : node.Children)
        result.children.push_back(hostNode(*child));
    return result;
}

std::vector<HostNode> rootsOf(const screen::TreeView& tree)
{
    std::vector<HostNode> roots;
    for (const auto& node : tree.Nodes())
        roots.push_back(hostNode(*node));
    return roots;
}

py::object selectedNode(const screen::TreeView& tree)
{
    const screen::TreeNode* node = tree.SelectedItem();
    return node == nullptr ? py::none() : py::cast(hostNode(*node));
}

} // namespace

void bindTree(py::module_& module)
{
    py::class_<HostNode>(module, "TreeNode", "An entry of a tree, as it stood when asked for.")
        .def_readonly("Key", &HostNode::key, "Its key, unique in the tree.")
        .def_readonly("Text", &HostNode::text, "What is shown.")
        .def_readonly("Image", &HostNode::image, "Key of its picture in the image list.")
        .def_readonly("BackColor", &HostNode::backColor, "0xBBGGRR, or a colour of the desktop.")
        .def_readonly("Tag", &HostNode::run, "The run that the entry stands for, or None.")
        .def_readonly("Children", &HostNode::children, "The entries under it.");
    using screen::TreeView;
    py::class_<TreeView, screen::Widget, std::shared_ptr<TreeView>>(
        module, "TreeView", collectedPart(), "A tree of entries with pictures.")
        .def_property_readonly("Nodes", &rootsOf, "The entries at the root.")
        .def_property_readonly("SelectedItem", &selectedNode, "The selected entry, or None.")
        .def_property_readonly("BackColor", &TreeView::BackColor, "Behind the entries.")
        .def("Press", &TreeView::Press, "key"_a,
             "The user presses an entry, which selects it; an unknown key does nothing.");
}

} // namespace k7deval::python
