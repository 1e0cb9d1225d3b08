#pragma once

#include "screen/Buttons.h"
#include "screen/ComboBox.h"
#include "screen/Container.h"
#include "screen/Grid.h"
#include "screen/Label.h"
#include "screen/TextBox.h"
#include "screen/TreeView.h"

#include <QString>

#include <functional>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTableView;
class QTreeWidget;
class QWidget;

/// Ties a view to its model: the view gets the model's name, shows what stands in the model, and
/// hands what the user does to the model. The model outlives the view. A mnemonic is a letter of
/// the caption, or 0 for none.
namespace k7deval::qt
{

/// Models measure in twips.
inline constexpr float kTwipsPerPixel = 15;

/// Ties a screen or a page: whether it is seen and enabled, and its mouse pointer.
void bind(QWidget& view, screen::Control& model);
void bind(QGroupBox& view, screen::Frame& model);
void bind(QLabel& view, screen::Label& model);
/// A label whose mnemonic leads to the field that it names, and that names it to a screen reader.
void bind(QLabel& view, screen::Label& model, QWidget& field, char mnemonic = 0);
void bind(QLabel& view, screen::Image& model);
void bind(QLineEdit& view, screen::TextBox& model);
void bind(QPushButton& view, screen::Button& model, char mnemonic = 0);
void bind(QCheckBox& view, screen::CheckBox& model, char mnemonic = 0);
void bind(QRadioButton& view, screen::OptionButton& model, char mnemonic = 0);
void bind(QComboBox& view, screen::ComboBox& model);

/// What an entry of a tree says to those who don't see its picture and colour.
using NodeDescription = std::function<QString(const screen::TreeNode&)>;
/// Shows the entries with the next turn of the event loop: a tree is filled entry by entry.
void bind(QTreeWidget& view, screen::TreeView& model, NodeDescription describe);

/// Also hands the widths of texts and of the scroll bar to the grid.
void bind(QTableView& view, screen::Grid& model);

/// The view of each kind of widget.
template <class Model> struct ViewOf;
template <> struct ViewOf<screen::Frame> {
    using type = QGroupBox;
};
template <> struct ViewOf<screen::Label> {
    using type = QLabel;
};
template <> struct ViewOf<screen::Image> {
    using type = QLabel;
};
template <> struct ViewOf<screen::TextBox> {
    using type = QLineEdit;
};
template <> struct ViewOf<screen::Button> {
    using type = QPushButton;
};
template <> struct ViewOf<screen::CheckBox> {
    using type = QCheckBox;
};
template <> struct ViewOf<screen::OptionButton> {
    using type = QRadioButton;
};
template <> struct ViewOf<screen::ComboBox> {
    using type = QComboBox;
};

/// Makes the view of a model in a parent, which owns it.
template <class Model, class... Look>
typename ViewOf<Model>::type* makeView(QWidget& parent, Model& model, Look&&... look)
{
    auto* view = new typename ViewOf<Model>::type(&parent);
    bind(*view, model, std::forward<Look>(look)...);
    return view;
}

} // namespace k7deval::qt
