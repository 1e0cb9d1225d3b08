#pragma once

#include "foundation/DataInterface.h"
#include "screen/Services.h"

#include <QWidget>

#include <memory>

class QTabWidget;

namespace k7deval::workbench
{

/// The data of a site as the tools see it: hourly values and injections of calibrations.
class DataPage final : public QWidget
{
public:
    /// What the surroundings refer to outlives the page.
    explicit DataPage(const screen::Surroundings& surroundings, QWidget* parent = nullptr);

    /// Shows the data of another site, or of none. What the data raises is told to the user.
    void setServer(const std::shared_ptr<DIServer>& server);

private:
    screen::Surroundings surroundings_;
    QTabWidget* pages_;
};

} // namespace k7deval::workbench
