#include "workbench/DataPage.h"

#include "workbench/CalibrationsPage.h"
#include "workbench/HourlyValuesPage.h"

#include <QTabWidget>
#include <QVBoxLayout>

namespace k7deval::workbench
{

DataPage::DataPage(const screen::Surroundings& surroundings, QWidget* parent)
    : QWidget(parent), surroundings_(surroundings), pages_(new QTabWidget(this))
{
    pages_->setObjectName("dataPages");
    pages_->setAccessibleName("Kind of data");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(pages_);
    setServer(nullptr);
}

/// The lists of a page keep what they show until they get something else, so pages are made anew.
void DataPage::setServer(const std::shared_ptr<DIServer>& server)
{
    const int shown = pages_->currentIndex();
    while (pages_->count() > 0)
        delete pages_->widget(0);
    pages_->addTab(new HourlyValuesPage(server, surroundings_, pages_), "Ho&urly Values");
    pages_->addTab(new CalibrationsPage(server, surroundings_, pages_), "Cali&brations");
    pages_->setCurrentIndex(std::max(shown, 0));
}

} // namespace k7deval::workbench
