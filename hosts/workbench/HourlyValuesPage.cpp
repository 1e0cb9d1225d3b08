#include "workbench/HourlyValuesPage.h"

#include "foundation/DateText.h"
#include "foundation/UtilityFunctions.h"
#include "qt/SelectionViews.h"
#include "qt/Texts.h"
#include "qt/UserAction.h"
#include "workbench/HourTable.h"
#include "workbench/Hourglass.h"
#include "workbench/SiteReading.h"

#include <QTableView>
#include <QVBoxLayout>

namespace k7deval::workbench
{

namespace
{

constexpr int kDaysProposed = 31;

/// "8,784 hours"
QString countText(int count, const QString& what, const RegionalSettings& regional)
{
    QString digits = QString::number(count);
    const QString mark =
        regional.groupMarks.empty() ? QString() : qt::toQString(regional.groupMarks.front());
    for (auto place = digits.size() - 3; place > 0; place -= 3)
        digits.insert(place, mark);
    return digits + " " + what;
}

QString lineAbout(const HourTable& table, const std::vector<QString>& withoutValue,
                  const RegionalSettings& regional)
{
    QString line = countText(table.rows(), "hours", regional) + ", " +
                   countText(table.hoursWithValue(), "with a value", regional);
    for (const QString& name : withoutValue)
        line += "; " + name + " has none";
    return line;
}

} // namespace

HourlyValuesPage::HourlyValuesPage(std::shared_ptr<DIServer> server,
                                   const screen::Surroundings& surroundings, QWidget* parent)
    : QWidget(parent), server_(std::move(server)), surroundings_(surroundings),
      pane_(new QueryPane(
          "hourly", surroundings, [this](const Period& period) { show(period); }, this))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(pane_);
    auto* choice = new qt::ParamSelectView(parameters_, pane_);
    choice->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    pane_->setChoice(*choice, "&Parameters:", *choice->findChild<QTableView*>("jgexGrid"));
    pane_->setReachable(server_ != nullptr);
    pane_->say("Open a site to see its data.");
    if (server_)
        qt::forward(*this, [this] { fill(); });
}

/// The pane goes first: it has the view of the list.
HourlyValuesPage::~HourlyValuesPage()
{
    delete pane_;
    parameters_.Terminate();
}

void HourlyValuesPage::fill()
{
    const Hourglass pointer;
    const DIParameterList parameters = server_->ParametersOfInterval("h");
    if (parameters.empty()) {
        pane_->setReachable(false);
        pane_->say("The site has no hourly values.");
        return;
    }
    pane_->say("Tick one or more parameters and press Show.");
    parameters_.SetDIServer(server_);
    parameters_.SetShowUnitCombo(true);
    parameters_.SetParamList(parameters);
    proposePeriod(parameters);
}

/// The month up to the newest value of all.
void HourlyValuesPage::proposePeriod(const DIParameterList& parameters)
{
    const Date now = surroundings_.clock.now();
    std::optional<Date> newest;
    for (const auto& parameter : parameters) {
        const Date since = newest ? dateOnly(*newest) : beginningOfData();
        newest = std::max(newest, newestValue(present(parameter), now, since));
    }
    const Date last = dateOnly(newest.value_or(endOfData(now)));
    pane_->setPeriod({DateAddExact("d", 1 - kDaysProposed, last), last});
}

void HourlyValuesPage::show(const Period& period)
{
    const auto pids = parameters_.GetSelection().value_or(std::vector<PID>());
    if (pids.empty()) {
        pane_->say("Tick one or more parameters and press Show.");
        return;
    }
    const auto days = dayBoundariesBetween(period.first, period.last) + 1;
    std::vector<HourSeries> series;
    std::vector<QString> withoutValue;
    for (const PID pid : pids) {
        series.push_back(readSeries(*server_, pid, period.first,
                                    static_cast<std::int32_t>(days * kHoursPerDay)));
        if (!series.back().hasValue())
            withoutValue.push_back(series.back().name);
    }
    const auto codes = server_->StatusCodes();
    auto table =
        std::make_unique<HourTable>(std::move(series), present(codes), surroundings_.regional);
    if (!table->hasContent()) {
        sayThatNothingIsThere(pids, period);
        return;
    }
    const HourTable& shown = *table;
    pane_->show(std::move(table), lineAbout(shown, withoutValue, surroundings_.regional),
                HourTable::kTimeColumns);
    for (int column = 0; column < shown.columns(); ++column) {
        if (HourTable::isStatus(column))
            pane_->makeRoom(column, shown.statusTextsIn(column));
    }
}

void HourlyValuesPage::sayThatNothingIsThere(const std::vector<PID>& pids, const Period& period)
{
    QString sentence = "No hour " + period.text(surroundings_.regional) + " has a value.";
    for (const PID pid : pids) {
        const auto parameter = present(server_->Parameters()).Item(pid, -1);
        const auto newest = newestValue(present(parameter), surroundings_.clock.now());
        const QString name = nameWithUnit(*server_, *parameter);
        sentence += newest ? "\nThe newest value of " + name + " is of " +
                                 qt::toQString(ShortDate(*newest, surroundings_.regional)) + "."
                           : "\n" + name + " has no value at all.";
    }
    pane_->say(sentence);
}

} // namespace k7deval::workbench
