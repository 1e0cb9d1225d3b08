#include "qt/ScreenComparison.h"

#include "qt/Texts.h"
#include "screen/Buttons.h"
#include "screen/ComboBox.h"
#include "screen/Grid.h"
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
#include <QTableView>
#include <QTreeWidget>

#include <optional>
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

/// An entry of a tree, and whether it has a picture and the ground of a window.
std::string entry(const std::string& text, bool hasPicture, bool isWhite)
{
    return text + (hasPicture ? " *" : "") + (isWhite ? " on white" : "");
}

std::string entriesOf(const std::vector<std::unique_ptr<screen::TreeNode>>& nodes)
{
    std::string line;
    for (const auto& node : nodes)
        line += entry(node->Text, !node->Image.empty(), node->BackColor == screen::color::kWhite) +
                " (" + entriesOf(node->Children) + ") ";
    return line;
}

std::string entriesOf(const QTreeWidgetItem& parent)
{
    std::string line;
    for (int row = 0; row < parent.childCount(); ++row) {
        const QTreeWidgetItem& item = *parent.child(row);
        const QColor white = item.treeWidget()->palette().color(QPalette::Base);
        line += entry(item.text(0).toStdString(), !item.icon(0).isNull(),
                      item.background(0).color() == white) +
                " (" + entriesOf(item) + ") ";
    }
    return line;
}

/// A row of a grid: its mark where it has one, and its text.
std::string rowOf(std::optional<bool> mark, const std::string& text)
{
    return (mark ? marked(*mark, text) : text) + "\n";
}

std::string rowsOf(const screen::Grid& grid)
{
    std::string rows;
    for (std::int32_t row = 1; row <= grid.RowCount(); ++row) {
        const screen::GridCells cells = grid.Cells(row);
        const bool* mark = std::get_if<bool>(&cells.first);
        rows += rowOf(mark == nullptr ? std::nullopt : std::optional(*mark),
                      std::get<std::string>(cells.second));
    }
    return rows;
}

std::string rowsOf(const QTableView& table)
{
    const QAbstractItemModel& rows = *table.model();
    std::string shown;
    for (int row = 0; row < rows.rowCount(); ++row) {
        const QVariant mark = rows.index(row, 0).data(Qt::CheckStateRole);
        const bool isHeader = table.columnSpan(row, 0) == 2;
        shown += rowOf(mark.isNull() ? std::nullopt : std::optional(mark == Qt::Checked),
                       rows.index(row, isHeader ? 0 : 1).data().toString().toStdString());
    }
    return shown;
}

/// A text with its letters and its tool tip.
std::string label(const std::string& text, bool isBold, bool isColored, const std::string& tip)
{
    return text + (isBold ? " bold" : "") + (isColored ? " in colour" : "") +
           (tip.empty() ? "" : " tip " + tip);
}

Line lineOf(const QLabel& view)
{
    const auto letters = [](const QWidget& widget) {
        return widget.palette().color(QPalette::Active, QPalette::WindowText);
    };
    if (!view.pixmap(Qt::ReturnByValue).isNull())
        return "picture";
    return label(view.buddy() == nullptr ? view.text().toStdString() : plain(view.text()),
                 view.font().bold(), letters(view) != letters(*view.parentWidget()),
                 view.toolTip().toStdString());
}

/// A page has the mouse pointer of its screen.
bool hasHourglass(const screen::Container* part)
{
    const auto* page = dynamic_cast<const screen::Control*>(part);
    return part != nullptr &&
           ((page != nullptr && page->MousePointer() == screen::MousePointer::Hourglass) ||
            hasHourglass(part->parent()));
}

Line lineOf(const screen::Widget& model)
{
    if (const auto* text = dynamic_cast<const screen::Label*>(&model))
        return label(toLines(text->Caption()).toStdString(), text->Bold(),
                     text->ForeColor() != screen::color::kBlack, text->ToolTipText());
    if (const auto* image = dynamic_cast<const screen::Image*>(&model))
        return image->Picture().empty() ? "" : "picture";
    if (const auto* grid = dynamic_cast<const screen::Grid*>(&model))
        return rowsOf(*grid);
    if (const auto* page = dynamic_cast<const screen::Control*>(&model))
        return hasHourglass(page) ? "hourglass" : "";
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
        return listed(list->List(), list->ListIndex()) + (list->hasEditField() ? " or " : " > ") +
               list->Text();
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
    if (const auto* text = qobject_cast<const QLabel*>(&view))
        return lineOf(*text);
    if (const auto* table = qobject_cast<const QTableView*>(&view))
        return rowsOf(*table);
    if (const auto* edit = qobject_cast<const QLineEdit*>(&view))
        return edit->text().toStdString();
    if (const auto* box = qobject_cast<const QGroupBox*>(&view))
        return plain(box->title());
    if (const auto* button = qobject_cast<const QPushButton*>(&view))
        return plain(button->text());
    if (const auto* button = qobject_cast<const QAbstractButton*>(&view))
        return marked(button->isChecked(), plain(button->text()));
    if (const auto* list = qobject_cast<const QComboBox*>(&view))
        return listed(textsOf(*list), list->currentIndex()) +
               (list->isEditable() ? " or " : " > ") + list->currentText().toStdString();
    if (const auto* tree = qobject_cast<const QTreeWidget*>(&view)) {
        const auto selected = tree->selectedItems();
        return entriesOf(*tree->invisibleRootItem()) +
               (selected.isEmpty() ? "" : selected.front()->text(0).toStdString());
    }
    return view.cursor().shape() == Qt::WaitCursor ? "hourglass" : "";
}

/// Without a view of their own: what the chart paints, and what is never seen.
bool isPartOfAnother(const screen::Widget& model)
{
    return model.kind() == "Line" || model.kind() == "ImageList" ||
           model.kind() == "CommonDialog" || model.Name().rfind("lblBar(", 0) == 0;
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
    for (const screen::Container* parent = model.parent(); parent != nullptr;
         parent = parent->parent())
        isEnabled = isEnabled && parent->Enabled();
    note("Enabled", isEnabled, view.isEnabled());
    note("Content", lineOf(model), lineOf(view));
}

} // namespace

std::vector<std::string> differences(const screen::Control& control, const QWidget& screen)
{
    std::vector<std::string> found;
    compare(control, screen, found);
    for (const screen::Widget* model : control.widgets()) {
        if (isPartOfAnother(*model))
            continue;
        const auto* view = screen.findChild<QWidget*>(QString::fromStdString(model->Name()));
        if (view == nullptr) {
            found.push_back(model->Name() + " is not on the screen");
            continue;
        }
        if (const auto* page = dynamic_cast<const screen::Control*>(model)) {
            for (auto& difference : differences(*page, *view))
                found.push_back(page->Name() + "." + difference);
        } else {
            compare(*model, *view, found);
        }
    }
    return found;
}

} // namespace k7deval::qt::test
