#pragma once

#include "foundation/DataInterface.h"
#include "screen/Services.h"
#include "selection/SingleParamSelect.h"
#include "workbench/QueryPane.h"

#include <QWidget>

#include <memory>

namespace k7deval::workbench
{

/// The injections of one calibration.
class CalibrationsPage final : public QWidget
{
public:
    /// On the data of a site; empty without one. Regional settings outlive the page.
    CalibrationsPage(std::shared_ptr<DIServer> server, const screen::Surroundings& surroundings,
                     QWidget* parent);
    CalibrationsPage(const CalibrationsPage&) = delete;
    CalibrationsPage& operator=(const CalibrationsPage&) = delete;
    ~CalibrationsPage() override;

private:
    void fill();
    void propose(const DIParameterList& calibrations);
    void select(PID calibration);
    void show(const Period& period);
    void sayThatNothingIsThere(DIParameter& calibration, const Period& period);

    std::shared_ptr<DIServer> server_;
    screen::Surroundings surroundings_;
    SingleParamSelect calibrations_;
    QueryPane* pane_;
};

} // namespace k7deval::workbench
