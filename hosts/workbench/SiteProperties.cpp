#include "workbench/SiteProperties.h"

#include "foundation/NumberText.h"
#include "qt/Colors.h"
#include "qt/Texts.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <utility>

namespace k7deval::workbench
{

namespace
{

constexpr int kPropertiesWide = 88;
constexpr const char* kFaultOfCapacity = "This is no number above 0 and up to 999999.";

sitedb::SiteDatabase openSite(const QString& path, sitedb::OpenMode mode)
{
    return sitedb::SiteDatabase::open(path.toStdString(), mode);
}

std::string trimmed(const QLineEdit& field)
{
    return field.text().trimmed().toStdString();
}

/// A sentence beside a field, or none.
void showFault(QLabel& fault, const QString& sentence)
{
    fault.setText(sentence);
    fault.setVisible(!sentence.isEmpty());
}

} // namespace

SiteProperties::SiteProperties(QString sitePath, RegionalSettings regional, QWidget* parent)
    : QDialog(parent), sitePath_(std::move(sitePath)), regional_(std::move(regional)),
      facility_(new QLineEdit(this)), fault_(makeFault(this, "siteFault"))
{
    const auto site = openSite(sitePath_, sitedb::OpenMode::ReadOnly);
    facilityHeld_ = site.facilityName().value_or("");
    setWindowTitle("Properties of " + QFileInfo(sitePath_).fileName());
    facility_->setObjectName("facility");
    facility_->setAccessibleName("Facility");
    facility_->setText(qt::toQString(facilityHeld_));
    auto* heading = new QLabel("&Facility, as it stands on reports:", this);
    heading->setBuddy(facility_);
    auto* buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, Qt::Horizontal, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName("ok");
    buttons->button(QDialogButtonBox::Cancel)->setObjectName("cancel");
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { accept(); });
    connect(buttons, &QDialogButtonBox::rejected, this, [this] { reject(); });
    auto* column = new QVBoxLayout(this);
    column->addWidget(heading);
    column->addWidget(facility_);
    column->addWidget(makeUnits(site.unitPowers()), 1);
    column->addWidget(fault_);
    column->addWidget(buttons);
    resize(fontMetrics().averageCharWidth() * kPropertiesWide, sizeHint().height());
}

QLabel* SiteProperties::makeFault(QWidget* parent, const QString& name)
{
    auto* fault = new QLabel(parent);
    fault->setObjectName(name);
    fault->setTextFormat(Qt::PlainText);
    fault->setWordWrap(true);
    QPalette colors = fault->palette();
    colors.setColor(QPalette::WindowText, qt::textColor(screen::color::kRed, palette()));
    fault->setPalette(colors);
    fault->hide();
    return fault;
}

QWidget* SiteProperties::makeUnits(const std::vector<sitedb::UnitPower>& powers)
{
    auto* box = new QGroupBox("Capacity of the units, MW", this);
    auto* words = new QLabel(box);
    words->setWordWrap(true);
    words->setText(powers.empty()
                       ? "The site has no unit yet. Import a monitoring plan, a table of spans or "
                         "hourly data first."
                       : "Load evaluation proposes it as the upper end of the range of operation. "
                         "Where it is left empty, the maximum load of the monitoring plan counts.");
    auto* area = new QWidget;
    auto* rows = new QGridLayout(area);
    for (const auto& power : powers)
        addUnit(*rows, power);
    rows->setRowStretch(rows->rowCount(), 1);
    rows->setColumnStretch(2, 1);
    scroll_ = new QScrollArea(box);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setWidgetResizable(true);
    scroll_->setFocusPolicy(Qt::NoFocus);
    scroll_->setWidget(area);
    // The ground of the box is seen through.
    scroll_->viewport()->setAutoFillBackground(false);
    area->setAutoFillBackground(false);
    scroll_->setVisible(!powers.empty());
    auto* column = new QVBoxLayout(box);
    column->addWidget(words);
    column->addWidget(scroll_, 1);
    return box;
}

void SiteProperties::addUnit(QGridLayout& rows, const sitedb::UnitPower& power)
{
    QWidget* parent = rows.parentWidget();
    const QString unit = qt::toQString(power.unit);
    auto* capacity = new QLineEdit(parent);
    capacity->setObjectName("capacity of " + unit);
    capacity->setAccessibleName("Capacity of " + unit + ", MW");
    capacity->setText(textOf(power.capacity));
    if (power.maximumLoad)
        capacity->setPlaceholderText(textOf(power.maximumLoad) + " by the plan");
    capacity->setMinimumWidth(fontMetrics().horizontalAdvance("999,999.99 by the plan "));
    auto* fault = makeFault(parent, "fault of " + unit);
    const int row = rows.rowCount();
    rows.addWidget(new QLabel(unit, parent), row, 0);
    rows.addWidget(capacity, row, 1);
    rows.addWidget(fault, row, 2);
    units_.push_back({power, capacity, fault});
    connect(capacity, &QLineEdit::textEdited, fault, [fault] { showFault(*fault, {}); });
}

QString SiteProperties::textOf(const std::optional<double>& megawatts) const
{
    return megawatts ? qt::toQString(GeneralNumber(*megawatts, regional_)) : QString();
}

std::optional<sitedb::UnitCapacity> SiteProperties::changeOf(const UnitRow& row) const
{
    const std::string text = trimmed(*row.capacity);
    // A capacity may have more digits than its text.
    if (text == textOf(row.held.capacity).toStdString())
        return std::nullopt;
    return sitedb::UnitCapacity{row.held.unit, numberIn(text, regional_)};
}

QLineEdit* SiteProperties::fieldAtFault() const
{
    QLineEdit* first = nullptr;
    for (const auto& row : units_) {
        const auto change = changeOf(row);
        const bool isGood = !change || trimmed(*row.capacity).empty() ||
                            (change->megawatts && sitedb::isCapacity(*change->megawatts));
        showFault(*row.fault, isGood ? QString() : kFaultOfCapacity);
        row.capacity->setAccessibleDescription(row.fault->text());
        if (!isGood && first == nullptr)
            first = row.capacity;
    }
    return first;
}

sitedb::SiteChanges SiteProperties::changes() const
{
    sitedb::SiteChanges changes;
    if (trimmed(*facility_) != facilityHeld_)
        changes.facilityName = trimmed(*facility_);
    for (const auto& row : units_) {
        if (const auto change = changeOf(row))
            changes.capacities.push_back(*change);
    }
    return changes;
}

void SiteProperties::write(const sitedb::SiteChanges& changes) const
{
    if (changes.facilityName || !changes.capacities.empty())
        openSite(sitePath_, sitedb::OpenMode::ReadWrite).change(changes);
}

void SiteProperties::accept()
{
    if (QLineEdit* field = fieldAtFault()) {
        scroll_->ensureWidgetVisible(field);
        field->setFocus();
        field->selectAll();
        return;
    }
    try {
        write(changes());
    } catch (const Error& error) {
        showFault(*fault_, qt::toQString(error.description()));
        return;
    }
    QDialog::accept();
}

} // namespace k7deval::workbench
