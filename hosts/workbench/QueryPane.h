#pragma once

#include "foundation/Date.h"
#include "foundation/RegionalSettings.h"
#include "screen/Services.h"
#include "workbench/DataTable.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;
class QTableView;
class QVBoxLayout;

namespace k7deval::workbench
{

/// The days that are asked for: midnight of the first and of the last.
struct Period {
    Date first;
    Date last;

    /// "from 5/1/2021 to 5/31/2021"
    [[nodiscard]] QString text(const RegionalSettings& regional) const;
};

/// A screen to look up data with: at the left what is chosen from and the days, at the right what
/// was found, a table or a sentence. The table can be copied and saved.
class QueryPane final : public QWidget
{
public:
    using Ask = std::function<void(const Period& period)>;

    /// name: ahead of the names of all parts of the screen, "hourly". ask: run when the user wants
    /// to see the data of days that are all right; what it raises is told to him. Regional settings
    /// outlive the pane.
    QueryPane(QString name, const screen::Surroundings& surroundings, Ask ask, QWidget* parent);

    /// Puts what is chosen from at the left, above the days. The mnemonic of the caption leads to
    /// its last part, and the keys go on from there to the days.
    void setChoice(QWidget& choice, const QString& caption, QWidget& lastPart);
    void setPeriod(const Period& period);
    void setReachable(bool isReachable);

    /// Shows a sentence in place of a table.
    void say(const QString& sentence);
    /// Shows a table and, above it, a line about it. The leading columns stay out of view: the
    /// headings of the rows have them.
    void show(std::unique_ptr<DataTable> table, const QString& line, int leadingColumns);
    /// Makes a column wide enough for texts of it.
    void makeRoom(int column, const QStringList& texts);

private:
    template <class Part> Part* named(Part* part, const QString& name, const QString& title);
    QWidget* makeLeft();
    QWidget* makeRight();
    QWidget* makeTablePage();
    void addDay(QLineEdit*& field, const QString& name, const QString& caption);
    void addTableActions(QPushButton& copy, QPushButton& save);

    void askForData();
    [[nodiscard]] Date today() const;
    [[nodiscard]] std::optional<Date> dayIn(QLineEdit& field);
    [[nodiscard]] std::optional<Period> period();
    void pickDay(QLineEdit& field);
    void tell(const QString& sentence, QLineEdit& field);
    void copy();
    void save();

    QString name_;
    QWidgetList keyOrder_; ///< The parts behind the choice in the order of the keys.
    screen::Surroundings surroundings_;
    Ask ask_;
    QVBoxLayout* leftColumn_ = nullptr; ///< Left free at its top for the choice.
    QLineEdit* firstDay_ = nullptr;
    QLineEdit* lastDay_ = nullptr;
    QWidget* left_ = nullptr;
    QStackedWidget* right_ = nullptr;
    QLabel* sentence_ = nullptr;
    QLabel* line_ = nullptr;
    QTableView* view_ = nullptr;
    std::unique_ptr<DataTable> table_;
    int leadingColumns_ = 0;
};

} // namespace k7deval::workbench
