#pragma once

#include "foundation/DataInterface.h"
#include "screen/Services.h"
#include "selection/ParamSelect.h"
#include "workbench/QueryPane.h"

#include <QWidget>

#include <memory>
#include <vector>

namespace k7deval::workbench
{

/// The hourly values of the parameters that are ticked.
class HourlyValuesPage final : public QWidget
{
public:
    /// On the data of a site; empty without one. Regional settings outlive the page.
    HourlyValuesPage(std::shared_ptr<DIServer> server, const screen::Surroundings& surroundings,
                     QWidget* parent);
    HourlyValuesPage(const HourlyValuesPage&) = delete;
    HourlyValuesPage& operator=(const HourlyValuesPage&) = delete;
    ~HourlyValuesPage() override;

private:
    void fill();
    void proposePeriod(const DIParameterList& parameters);
    void show(const Period& period);
    void sayThatNothingIsThere(const std::vector<PID>& pids, const Period& period);

    std::shared_ptr<DIServer> server_;
    screen::Surroundings surroundings_;
    ParamSelect parameters_;
    QueryPane* pane_;
};

} // namespace k7deval::workbench
