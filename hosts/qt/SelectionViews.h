#pragma once

#include "selection/ParamSelect.h"
#include "selection/SingleParamSelect.h"

#include <QWidget>

namespace k7deval::qt
{

/// The list of parameters to tick. The control outlives it and takes its size.
class ParamSelectView final : public QWidget
{
public:
    explicit ParamSelectView(ParamSelect& control, QWidget* parent = nullptr);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    ParamSelect* control_;
};

/// The boxes to pick one parameter from. The control outlives it and takes its size.
class SingleParamSelectView final : public QWidget
{
public:
    explicit SingleParamSelectView(SingleParamSelect& control, QWidget* parent = nullptr);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    SingleParamSelect* control_;
};

} // namespace k7deval::qt
