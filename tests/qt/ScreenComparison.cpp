#include "qt/ScreenComparison.h"

#include "qt/Texts.h"
#include "screen/Buttons.h"
#include "screen/ComboBox.h"
#include "screen/Label.h"
#include "screen/TextBox.h"
#include "screen/TreeView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>

#include <sstream>

namespace k7deval::qt::test
{

namespace
{

/// A part of a screen as one line of text, from the model and from the view.
using Line = std::string;

std::string plain(QString caption)
{
    return caption.replace("&&", "\n").remove('&').replace('\n', '&').toStdString();
}

std::string marked(bool mark, const std::string& caption)
{
    return (mark ? "[x] " : "[ ] ") + caption;
}

template <class Texts> std::string listed(const Texts& texts, int selected)
{
    std::ostringstream line;
    line << selected << " of";
    for (const auto& text : texts)
        line << " | " << text;
    return line.str();
}

std::string entriesOf(const std::vector<std::unique_ptr<screen::TreeNode>>& nodes)
{
    std::string line;
    for (const auto& node : nodes)
        line += node->Text + " (" + entriesOf(node->Children) + ") ";
    return line;
}

std::string entriesOf(const QTreeWidgetItem& parent)
{
    std::string line;
    for (int row = 0; row < parent.childCount(); ++row)
        line +=
            parent.child(row)->text(0).toStdString() + " (" + entriesOf(*parent.child(row)) + ") ";
    return line;
}

Line lineOf(const screen::Widget& model)
{
    if (const auto* label = dynamic_cast<const screen::Label*>(&model))
        return toLines(label->Caption()).toStdString() + (label->Bold() ? " bold" : "");
    if (const auto* box = dynamic_cast<const screen::TextBox*>(&model))
        return box->Text();
    if (const auto* button = dynamic_cast<const screen::Button*>(&model))
        return button->Caption();
    if (const auto* frame = dynamic_cast<const screen::Frame*>(&model))
        return frame->Caption();
    if (const auto* check = dynamic_cast<const screen::CheckBox*>(&model))
        return marked(check->isChecked(), check->Caption());
    if (const auto* option = dynamic_cast<const screen::OptionButton*>(&model))
        return marked(option->isSelected(), option->Caption());
    if (const auto* list = dynamic_cast<const screen::ComboBox*>(&model))
        return listed(list->List(), list->ListIndex()) + " > " + list->Text();
    if (const auto* tree = dynamic_cast<const screen::TreeView*>(&model))
        return entriesOf(tree->Nodes()) +
               (tree->SelectedItem() == nullptr ? "" : tree->SelectedItem()->Text);
    return {};
}

std::vector<std::string> textsOf(const QComboBox& list)
{
    std::vector<std::string> texts;
    for (int row = 0; row < list.count(); ++row)
        texts.push_back(list.itemText(row).toStdString());
    return texts;
}

Line lineOf(const QWidget& view)
{
    if (const auto* label = qobject_cast<const QLabel*>(&view)) {
        const QString text = label->text();
        return (label->buddy() == nullptr ? text.toStdString() : plain(text)) +
               (label->font().bold() ? " bold" : "");
    }
    if (const auto* edit = qobject_cast<const QLineEdit*>(&view))
        return edit->text().toStdString();
    if (const auto* box = qobject_cast<const QGroupBox*>(&view))
        return plain(box->title());
    if (const auto* button = qobject_cast<const QPushButton*>(&view))
        return plain(button->text());
    if (const auto* button = qobject_cast<const QAbstractButton*>(&view))
        return marked(button->isChecked(), plain(button->text()));
    if (const auto* list = qobject_cast<const QComboBox*>(&view))
        return listed(textsOf(*list), list->currentIndex()) + " > " +
               list->currentText().toStdString();
    if (const auto* tree = qobject_cast<const QTreeWidget*>(&view)) {
        const auto selected = tree->selectedItems();
        return entriesOf(*tree->invisibleRootItem()) +
               (selected.isEmpty() ? "" : selected.front()->text(0).toStdString());
    }
    return {};
}

/// Without a view of their own: what the chart paints, and what is never seen.
bool isPartOfAnother(const screen::Widget& model)
{
    return model.Kind() == "Line" || model.Kind() == "ImageList" ||
           model.Kind() == "CommonDialog" || model.Name().rfind("lblBar(", 0) == 0;
}

void compare(const screen::Widget& model, const QWidget& view, std::vector<std::string>& found)
{
    const auto note = [&](const std::string& property, const auto& expected, const auto& shown) {
        std::ostringstream line;
        line << model.Name() << "." << property << ": " << expected << ", shown: " << shown;
        if (expected != shown)
            found.push_back(line.str());
    };
    note("Visible", model.Visible(), view.isVisibleTo(view.parentWidget()));
    bool isEnabled = model.Enabled();
    for (const screen::Container* parent = model.Parent(); parent != nullptr;
         parent = parent->Parent())
        isEnabled = isEnabled && parent->Enabled();
    note("Enabled", isEnabled, view.isEnabled());
    note("Content", lineOf(model), lineOf(view));
}

} // namespace

std::vector<std::string> differences(const screen::Control& control, const QWidget& screen)
{
    std::vector<std::string> found;
    for (const screen::Widget* model : control.Widgets()) {
        if (isPartOfAnother(*model))
            continue;
        const auto* view = screen.findChild<QWidget*>(QString::fromStdString(model->Name()));
        if (view == nullptr) {
            found.push_back(model->Name() + " is not on the screen");
            continue;
        }
        compare(*model, *view, found);
        if (const auto* page = dynamic_cast<const screen::Control*>(model)) {
            for (auto& difference : differences(*page, *view))
                found.push_back(page->Name() + "." + difference);
        }
    }
    return found;
}

} // namespace k7deval::qt::test
