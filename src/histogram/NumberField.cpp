#include "histogram/NumberField.h"

#include "foundation/NumberText.h"

namespace k7deval::histogram
{

NumberField::NumberField(screen::TextBox& box, float& number, const RegionalSettings& regional)
    : box_(box), number_(number), regional_(regional)
{
    box_.Validate.Connect([this] { validate(); });
}

void NumberField::set(float number)
{
    number_ = number;
    box_.SetText(GeneralNumber(number_, regional_));
}

void NumberField::read()
{
    number_ = ToSingle(box_.Text(), regional_);
}

void NumberField::validate()
{
    if (IsNumeric(box_.Text(), regional_)) {
        read();
        Entered.raise();
    } else {
        set(number_);
    }
}

} // namespace k7deval::histogram
