#pragma once

#include "foundation/RegionalSettings.h"
#include "sitedb/SiteDatabase.h"

#include <QDialog>

#include <optional>
#include <string>
#include <vector>

class QGridLayout;
class QLabel;
class QLineEdit;
class QScrollArea;

namespace k7deval::workbench
{

/// What an operator says of a site: the facility's name and the capacities of its units. OK writes
/// all that was changed in one transaction.
class SiteProperties final : public QDialog
{
public:
    /// Reads the site; raises Error when that can't be done.
    SiteProperties(QString sitePath, RegionalSettings regional, QWidget* parent);

    /// Stays open, with a sentence at the field, when something can't be written.
    void accept() override;

private:
    struct UnitRow {
        sitedb::UnitPower held;
        QLineEdit* capacity = nullptr;
        QLabel* fault = nullptr;
    };

    QLabel* makeFault(QWidget* parent, const QString& name);
    QWidget* makeUnits(const std::vector<sitedb::UnitPower>& powers);
    void addUnit(QGridLayout& rows, const sitedb::UnitPower& power);
    [[nodiscard]] QString textOf(const std::optional<double>& megawatts) const;
    /// What was changed of a unit; nothing when it stayed or when it is at fault, which is shown.
    [[nodiscard]] std::optional<sitedb::UnitCapacity> changeOf(const UnitRow& row) const;
    /// The first field that is at fault, or nothing.
    [[nodiscard]] QLineEdit* fieldAtFault() const;
    [[nodiscard]] sitedb::SiteChanges changes() const;
    void write(const sitedb::SiteChanges& changes) const;

    QString sitePath_;
    RegionalSettings regional_;
    std::string facilityHeld_;
    QLineEdit* facility_;
    QLabel* fault_; ///< Of the site as a whole.
    QScrollArea* scroll_ = nullptr;
    std::vector<UnitRow> units_;
};

} // namespace k7deval::workbench
