#include "workbench/CalibrationsPage.h"

#include "foundation/DateText.h"
#include "foundation/UtilityFunctions.h"
#include "qt/SelectionViews.h"
#include "qt/Texts.h"
#include "qt/UserAction.h"
#include "workbench/Hourglass.h"
#include "workbench/InjectionTable.h"
#include "workbench/SiteReading.h"

#include <QComboBox>
#include <QVBoxLayout>

#include <algorithm>

namespace k7deval::workbench
{

namespace
{

constexpr int kMonthsProposed = 12;

/// A calibration parameter that the lists of analyzers show.
bool isListed(DIParameter& parameter, const RegionalSettings& regional)
{
    return definesCalibrations(parameter) && !isLeftOutOfLists(parameter, regional).value_or(false);
}

DIParameterList listedCalibrations(DIServer& server, const RegionalSettings& regional)
{
    DIParameterList listed;
    for (const auto& parameter : server.ParametersOfTypes({kCalibrationType})) {
        if (isListed(present(parameter), regional))
            listed.push_back(parameter);
    }
    return listed;
}

QString lineAbout(const InjectionTable& table)
{
    return QString("%1 injection%2").arg(table.rows()).arg(table.rows() == 1 ? "" : "s");
}

} // namespace

CalibrationsPage::CalibrationsPage(std::shared_ptr<DIServer> server,
                                   const screen::Surroundings& surroundings, QWidget* parent)
    : QWidget(parent), server_(std::move(server)), surroundings_(surroundings),
      pane_(new QueryPane(
          "calibration", surroundings, [this](const Period& period) { show(period); }, this))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(pane_);
    auto* choice = new qt::SingleParamSelectView(calibrations_, pane_);
    choice->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    pane_->setChoice(*choice, "&Parameter:", *choice->findChild<QComboBox*>("cmbPID"));
    pane_->setReachable(server_ != nullptr);
    pane_->say("Open a site to see its data.");
    if (server_)
        qt::forward(*this, [this] { fill(); });
}

/// The pane goes first: it has the view of the list.
CalibrationsPage::~CalibrationsPage()
{
    delete pane_;
    calibrations_.Terminate();
}

void CalibrationsPage::fill()
{
    const Hourglass pointer;
    const DIParameterList calibrations = listedCalibrations(*server_, surroundings_.regional);
    if (calibrations.empty()) {
        pane_->setReachable(false);
        pane_->say("The site has no calibrations.");
        return;
    }
    pane_->say("Pick a calibration and press Show.");
    calibrations_.SetDIServer(server_);
    // With the filter the entries bear their units. It goes then: a unit that is picked in it
    // would leave the list of calibrations empty.
    calibrations_.SetShowUnitCombo(true);
    calibrations_.SetParamList(calibrations);
    calibrations_.cmbUnit.SetVisible(false);
    propose(calibrations);
}

/// The calibration with the newest injection of all, and the year up to it.
void CalibrationsPage::propose(const DIParameterList& calibrations)
{
    std::optional<Date> newest;
    PID proposed = calibrations.front()->PID();
    for (const auto& calibration : calibrations) {
        const Date since = newest.value_or(beginningOfData());
        const auto found = newestInjection(*server_, *calibration, surroundings_.regional,
                                           surroundings_.clock.now(), since);
        if (found > newest) {
            newest = found;
            proposed = calibration->PID();
        }
    }
    select(proposed);
    const Date last = dateOnly(newest.value_or(endOfData(surroundings_.clock.now())));
    const Date yearBefore = DateAddExact("m", -kMonthsProposed, last);
    pane_->setPeriod({DateAddExact("d", 1, yearBefore), last});
}

void CalibrationsPage::select(PID calibration)
{
    screen::ComboBox& list = calibrations_.cmbPID;
    const auto& pids = list.itemDataList();
    const auto found = std::ranges::find(pids, calibration);
    if (found != pids.end())
        list.SetListIndex(static_cast<std::int32_t>(found - pids.begin()));
}

void CalibrationsPage::show(const Period& period)
{
    if (calibrations_.cmbPID.ListIndex() < 0) {
        pane_->say("Pick a calibration and press Show.");
        return;
    }
    const auto calibration = present(server_->Parameters()).Item(calibrations_.GetSelection(), -1);
    const Date end = DateAddExact("s", -1, DateAddExact("d", 1, period.last));
    const DIRecordList records =
        readInjections(*server_, present(calibration), period.first, end, surroundings_.regional);
    if (records.empty()) {
        sayThatNothingIsThere(*calibration, period);
        return;
    }
    auto table = std::make_unique<InjectionTable>(*server_, records, surroundings_.regional);
    const QString line = lineAbout(*table);
    pane_->show(std::move(table), line, 0);
}

void CalibrationsPage::sayThatNothingIsThere(DIParameter& calibration, const Period& period)
{
    const QString name = nameWithUnit(*server_, calibration);
    const auto newest =
        newestInjection(*server_, calibration, surroundings_.regional, surroundings_.clock.now());
    pane_->say(name + " has no injection " + period.text(surroundings_.regional) + "." +
               (newest ? "\nIts newest injection is of " +
                             qt::toQString(ShortDate(*newest, surroundings_.regional)) + "."
                       : QString("\nIt has none at all.")));
}

} // namespace k7deval::workbench
