#pragma once

#include "screen/Buttons.h"
#include "screen/TextBox.h"

#include <QString>

class QLineEdit;
class QPushButton;
class QWidget;

namespace k7deval::qt
{

/// A field for a day, wide enough for any, and the button of its calendar.
struct DateField {
    QLineEdit* text;
    QPushButton* calendar;
};

/// The name is that of the day: "First day".
DateField makeDateField(QWidget& parent, screen::TextBox& text, screen::Button& calendar,
                        const QString& name);

} // namespace k7deval::qt
