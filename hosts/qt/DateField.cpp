#include "qt/DateField.h"

#include "qt/Binding.h"

#include <QLineEdit>
#include <QPushButton>

namespace k7deval::qt
{

DateField makeDateField(QWidget& parent, screen::TextBox& text, screen::Button& calendar,
                        const QString& name)
{
    auto* field = makeView(parent, text);
    field->setAccessibleName(name);
    field->setMinimumWidth(field->fontMetrics().horizontalAdvance("000/00/00000"));
    auto* button = makeView(parent, calendar);
    button->setAccessibleName("Calendar, " + name);
    button->setToolTip(button->accessibleName());
    button->setMaximumWidth(button->fontMetrics().horizontalAdvance("  " + button->text() + "  ") +
                            button->sizeHint().height() / 2);
    return {field, button};
}

} // namespace k7deval::qt
