#include "workbench/DataPage.h"
#include "foundation/DateText.h"
#include "foundation/NumberText.h"
#include "qt/Operator.h"
#include "qt/ScreenReader.h"
#include "sitedb/SampleSite.h"
#include "sitedb/read/CsvTable.h"
#include "sitedb/read/SourceFile.h"
#include "support/FakeServices.h"
#include "support/FakeSite.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <QAbstractItemModel>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

#include <filesystem>

namespace k7deval::workbench::test
{

namespace
{

using k7deval::test::SiteData;
using k7deval::test::TemporaryFolder;
using qt::test::faultsForAScreenReader;
using qt::test::Operator;
using qt::test::readBox;
using qt::test::settle;
using qt::test::told;
using qt::test::whenDialogComes;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

const std::string kHourly = "hourlyTable";
const std::string kInjections = "calibrationTable";
constexpr PID kLoadGT3 = 360'207'501;
constexpr PID kLoadGT4 = 460'207'501;
constexpr PID kNox = 111'007'501;

/// An operator at the page on a site.
struct DataScreen {
    explicit DataScreen(std::shared_ptr<DIServer> site, const std::string& region = "en-US")
        : regional(regionalSettings(region)), server(std::move(site))
    {
        page.resize(1000, 600);
        page.setServer(server);
        settle();
    }
    DataScreen() : DataScreen(sitedb::test::sharedSample().server()) {}

    RegionalSettings regional;
    std::shared_ptr<DIServer> server;
    k7deval::test::FakeServices services;
    k7deval::test::FixedClock clock{makeDate(2024, 5, 2, 9, 30)};
    DataPage page{{services, clock, regional}};
    Operator hands{page};

    [[nodiscard]] QString text(const std::string& field) const
    {
        return hands.view<QLineEdit>(field).text();
    }
    [[nodiscard]] QTableView& table(const std::string& name) const
    {
        return hands.view<QTableView>(name);
    }
    [[nodiscard]] QString cell(const std::string& name, int row, int column) const
    {
        return table(name).model()->index(row, column).data().toString();
    }
    [[nodiscard]] QString heading(const std::string& name, int column) const
    {
        return table(name).model()->headerData(column, Qt::Horizontal).toString();
    }
    [[nodiscard]] std::vector<std::string> row(const std::string& name, int number) const
    {
        std::vector<std::string> cells;
        for (int column = 0; column < table(name).model()->columnCount(); ++column)
            cells.push_back(cell(name, number, column).toStdString());
        return cells;
    }
    /// Ticks parameters in the list on view, by unit and name, with the keys.
    void tick(const QString& unit, const QStringList& names) const
    {
        auto& list = table("jgexGrid");
        list.setFocus(Qt::TabFocusReason);
        bool isInUnit = false;
        for (int row = 0; row < list.model()->rowCount(); ++row) {
            const QString header = list.model()->index(row, 0).data().toString();
            if (!header.isEmpty())
                isInUnit = header.contains(" " + unit + " ");
            else if (isInUnit && names.contains(list.model()->index(row, 1).data().toString())) {
                list.setCurrentIndex(list.model()->index(row, 0));
                hands.press(Qt::Key_Space);
            }
        }
    }
    void enterDays(const std::string& name, const std::string& first, const std::string& last) const
    {
        hands.enter(name + "FirstDay", first);
        hands.enter(name + "LastDay", last);
    }
    void showCalibrations() const { hands.view<QTabWidget>("dataPages").setCurrentIndex(1); }
};

/// One unit with an analyzer whose hours lie on the first of two days of March 2024.
std::shared_ptr<SiteData> siteOfOneAnalyzer()
{
    auto site = std::make_shared<SiteData>();
    k7deval::test::ParameterData unit;
    unit.pid = 100'100'000;
    unit.name = "GT1";
    unit.type = kUnitType;
    k7deval::test::ParameterData nox;
    nox.pid = kNox;
    nox.name = "NOX, \"dry\"";
    nox.type = 8;
    nox.unitsText = "ppm";
    nox.intervalLetter = "h";
    nox.hours = {makeDate(2024, 3, 1), {12.5, std::nullopt, 0.1, 1e6}, {0, 2, 1, 0}};
    site->parameters = {unit, nox};
    return site;
}

/// Names the file in the save dialog that comes next, and then does something else.
void nameFile(const std::string& path, const std::function<void()>& afterwards)
{
    whenDialogComes([path, afterwards](QDialog& dialog) {
        auto* field = dialog.findChild<QLineEdit*>("fileNameEdit");
        field->insert(QString::fromStdString(path));
        QTest::keyClick(field, Qt::Key_Return);
        afterwards();
    });
}

std::string clipboard()
{
    return QApplication::clipboard()->text().toStdString();
}

} // namespace

TEST(DataScreen, ProposesTheMonthUpToTheNewestValue)
{
    const DataScreen screen;
    EXPECT_EQ(screen.text("hourlyFirstDay"), "12/1/2021");
    EXPECT_EQ(screen.text("hourlyLastDay"), "12/31/2021");
    screen.hands.photograph("data-start");
}

TEST(DataScreen, ShowsTheHoursOfTheTickedParameters)
{
    const DataScreen screen;
    screen.tick("GT3", {"Load"});
    screen.tick("GT4", {"Load"});
    screen.hands.click("hourlyShow");
    screen.hands.photograph("data-hours");
    EXPECT_EQ(screen.hands.text("hourlyLine"), "744 hours, 744 with a value");
    EXPECT_EQ(screen.heading(kHourly, 2), "GT3 Load\nMW");
    EXPECT_EQ(screen.heading(kHourly, 5), "GT4 Load\nstatus");

    const auto& model = *screen.table(kHourly).model();
    ASSERT_EQ(model.columnCount(), 6);
    for (const auto& [pid, column] : {std::pair(kLoadGT3, 2), std::pair(kLoadGT4, 4)}) {
        DIDataSet hours;
        hours.Init(makeDate(2021, 12, 1), model.rowCount(), "h", 1, 0);
        screen.server->Parameters()->Item(pid, -1)->ReadData(hours);
        for (int row = 0; row < model.rowCount(); ++row) {
            const auto slot = static_cast<std::size_t>(row);
            EXPECT_EQ(screen.cell(kHourly, row, column).toStdString(),
                      GeneralNumber(hours.values()[slot], screen.regional));
            EXPECT_EQ(screen.cell(kHourly, row, column + 1),
                      hours.statuses()[slot] == 2 ? "off line" : "valid");
        }
    }
}

TEST(DataScreen, ARowIsHeadedByItsDayAndHour)
{
    const DataScreen screen;
    screen.tick("GT3", {"Load"});
    screen.hands.click("hourlyShow");
    const auto& model = *screen.table(kHourly).model();
    EXPECT_EQ(model.headerData(13, Qt::Vertical).toString(), "12/1/2021 1:00 PM");
    EXPECT_TRUE(screen.table(kHourly).isColumnHidden(0));
    EXPECT_EQ(screen.cell(kHourly, 13, 0), "12/1/2021");
}

TEST(DataScreen, AMissingValueIsEmptyAndHasItsStatus)
{
    const DataScreen screen(serve(siteOfOneAnalyzer()));
    screen.tick("GT1", {"NOX, \"dry\""});
    screen.enterDays("hourly", "3/1/2024", "3/2/2024");
    screen.hands.click("hourlyShow");
    screen.hands.photograph("data-missing");
    EXPECT_EQ(screen.hands.text("hourlyLine"), "48 hours, 3 with a value");
    EXPECT_THAT(screen.row(kHourly, 0),
                ElementsAre("3/1/2024", "12:00 AM", "12.5", "valid, status 0"));
    EXPECT_THAT(screen.row(kHourly, 1),
                ElementsAre("3/1/2024", "1:00 AM", "", "off line, status 2"));
    EXPECT_THAT(screen.row(kHourly, 2),
                ElementsAre("3/1/2024", "2:00 AM", "0.1", "left out, status 1"));
}

TEST(DataScreen, FollowsTheStyleOfTheRegion)
{
    const DataScreen screen(serve(siteOfOneAnalyzer()), "de-DE");
    EXPECT_EQ(screen.text("hourlyLastDay"), "01.03.2024");
    screen.tick("GT1", {"NOX, \"dry\""});
    screen.enterDays("hourly", "1.3.2024", "31.12.2024");
    screen.hands.click("hourlyShow");
    EXPECT_EQ(screen.hands.text("hourlyLine"), "7.344 hours, 3 with a value");
    EXPECT_THAT(screen.row(kHourly, 0),
                ElementsAre("01.03.2024", "00:00", "12,5", "valid, status 0"));
}

TEST(DataScreen, ProposesTheCalibrationWithTheNewestInjection)
{
    const DataScreen screen;
    screen.showCalibrations();
    EXPECT_EQ(screen.hands.view<QComboBox>("cmbPID").currentText(), "GT3 NOX 310/L Calibration");
    EXPECT_EQ(screen.text("calibrationFirstDay"), "5/10/2020");
    screen.hands.click("calibrationShow");
    EXPECT_EQ(screen.hands.text("calibrationLine"), "14 injections");
    EXPECT_EQ(screen.cell(kInjections, 13, 0), "5/9/2021 5:21 PM");
}

TEST(DataScreen, ShowsTheInjectionsOfAnAnalyzer)
{
    const DataScreen screen;
    screen.showCalibrations();
    screen.hands.photograph("data-calibrations-start");
    screen.hands.pick("cmbPID", "GT4 NOX 206/H Calibration");
    screen.enterDays("calibration", "5/4/2018", "5/4/2018");
    screen.hands.click("calibrationShow");
    screen.hands.photograph("data-calibrations");
    EXPECT_EQ(screen.hands.text("calibrationLine"), "2 injections");
    EXPECT_THAT(screen.row(kInjections, 0),
                ElementsAre("5/4/2018 7:17 AM", "5/4/2018 7:17 AM", "HIGH", "ZERO", "220", "-0.79",
                            "-220.79", "250", "no", "on line", "GT4 NOX 206"));
    EXPECT_THAT(screen.row(kInjections, 1),
                ElementsAre("5/4/2018 7:17 AM", "5/4/2018 7:26 AM", "HIGH", "HIGH", "215.3",
                            "213.99", "-1.31", "250", "no", "on line", "GT4 NOX 206"));
}

TEST(DataScreen, InjectionsComeInTheOrderOfTime)
{
    const DataScreen screen;
    screen.showCalibrations();
    screen.hands.pick("cmbPID", "GT4 NOX 206/H Calibration");
    screen.enterDays("calibration", "1/1/2018", "12/31/2018");
    screen.hands.click("calibrationShow");
    const auto& model = *screen.table(kInjections).model();
    ASSERT_GT(model.rowCount(), 2);
    for (int row = 1; row < model.rowCount(); ++row)
        EXPECT_LE(ToDate(screen.cell(kInjections, row - 1, 0).toStdString(), screen.regional, {}),
                  ToDate(screen.cell(kInjections, row, 0).toStdString(), screen.regional, {}));
}

TEST(DataScreen, CopiesWhatIsSelectedWithItsHeadings)
{
    const DataScreen screen;
    screen.tick("GT3", {"Load"});
    screen.hands.click("hourlyShow");
    auto& table = screen.table(kHourly);
    table.setFocus();
    table.setCurrentIndex(table.model()->index(4, 2));
    QTest::keyClick(&table, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "Day\tHour\tGT3 Load MW\n"
                           "12/1/2021\t4:00 AM\t0\n"
                           "12/1/2021\t5:00 AM\t36\n");
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                      table.visualRect(table.model()->index(5, 2)).center());
    QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "36");
}

TEST(DataScreen, CopiesAllWhenNothingIsSelected)
{
    const DataScreen screen;
    screen.showCalibrations();
    screen.hands.pick("cmbPID", "GT4 NOX 206/H Calibration");
    screen.enterDays("calibration", "5/4/2018", "5/4/2018");
    screen.hands.click("calibrationShow");
    screen.hands.click("calibrationCopy");
    const QStringList lines = QString::fromStdString(clipboard()).split('\n');
    ASSERT_EQ(lines.size(), 4);
    EXPECT_EQ(lines[0], "Run time\tInjection end\tScale\tGas level\tReference\tMeasured\tDrift\t"
                        "Span\tManual\tUnit\tParameter");
    EXPECT_TRUE(lines[2].endsWith("215.3\t213.99\t-1.31\t250\tno\ton line\tGT4 NOX 206"));
}

TEST(DataScreen, ASavedTableIsReadByAProgram)
{
    const TemporaryFolder folder;
    const DataScreen screen(serve(siteOfOneAnalyzer()), "de-DE");
    screen.tick("GT1", {"NOX, \"dry\""});
    screen.enterDays("hourly", "1.3.2024", "1.3.2024");
    screen.hands.click("hourlyShow");
    nameFile(folder.file("hours"), [] {});
    screen.hands.click("hourlySave");

    const auto file = sitedb::readSourceFile(folder.file("hours.csv"));
    const auto table = sitedb::CsvTable::parse(file);
    EXPECT_THAT(table.header(),
                ElementsAre("Day", "Hour", "GT1 NOX, \"dry\" (ppm)", "GT1 NOX, \"dry\" status"));
    ASSERT_EQ(table.rows().size(), 24);
    EXPECT_THAT(table.rows()[0].fields, ElementsAre("2024-03-01", "0", "12.5", "valid, status 0"));
    EXPECT_THAT(table.rows()[1].fields, ElementsAre("2024-03-01", "1", "", "off line, status 2"));
    EXPECT_EQ(table.rows()[3].fields[2], "1000000");
    EXPECT_THAT(file.content, HasSubstr("status\"\r\n2024-03-01,0,12.5,\"valid, status 0\"\r\n"));
}

TEST(DataScreen, AFileThatCannotBeWrittenIsTold)
{
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.path() / "gone");
    const DataScreen screen;
    screen.tick("GT3", {"Load"});
    screen.hands.click("hourlyShow");
    std::string text;
    nameFile(folder.file("gone/load.csv"), [&] {
        std::filesystem::remove_all(folder.path() / "gone");
        readBox(text);
    });
    screen.hands.click("hourlySave");
    EXPECT_EQ(text, "Error 76: Path not found");
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST(DataScreen, WrongDaysAreTold)
{
    const DataScreen screen;
    screen.tick("GT3", {"Load"});
    const auto toldOf = [&](const std::string& first, const std::string& last) {
        screen.enterDays("hourly", first, last);
        return told([&] { screen.hands.click("hourlyShow"); });
    };
    EXPECT_THAT(toldOf("45/45/2021", "1/1/2021"), HasSubstr("\"45/45/2021\" is no day."));
    EXPECT_THAT(toldOf("1/1/2021", ""), HasSubstr("\"\" is no day."));
    EXPECT_EQ(toldOf("2/1/2021", "1/31/2021"), "The last day lies ahead of the first.");
    EXPECT_EQ(toldOf("1/1/2001", "1/1/2011"), "No more than 10 years can be shown at once.");
    EXPECT_THAT(toldOf("1/1/9999", "12/31/9999"), HasSubstr("Error 5"));
    EXPECT_EQ(screen.hands.text("hourlySentence"), "Tick one or more parameters and press Show.");
}

TEST(DataScreen, ASentenceTellsOfDaysWithoutData)
{
    const DataScreen screen;
    screen.tick("GT3", {"Load"});
    screen.tick("GT4", {"NOX 206"});
    screen.enterDays("hourly", "1/1/1999", "1/31/1999");
    screen.hands.click("hourlyShow");
    screen.hands.photograph("data-none");
    EXPECT_EQ(screen.hands.text("hourlySentence"),
              "No hour from 1/1/1999 to 1/31/1999 has a value.\n"
              "The newest value of GT3 Load is of 12/31/2021.\n"
              "GT4 NOX 206 has no value at all.");
    screen.showCalibrations();
    screen.hands.pick("cmbPID", "GT4 NOX 206/H Calibration");
    screen.enterDays("calibration", "1/1/1999", "1/31/1999");
    screen.hands.click("calibrationShow");
    EXPECT_THAT(screen.hands.text("calibrationSentence"),
                ::testing::StartsWith(
                    "GT4 NOX 206/H Calibration has no injection from 1/1/1999 to 1/31/1999.\n"
                    "Its newest injection is of "));
}

TEST(DataScreen, AskedForNothingItSaysWhatToDo)
{
    const DataScreen screen;
    screen.hands.click("hourlyShow");
    EXPECT_EQ(screen.hands.text("hourlySentence"), "Tick one or more parameters and press Show.");
}

TEST(DataScreen, AFailureOfTheDataIsTold)
{
    const auto site = siteOfOneAnalyzer();
    const DataScreen screen(serve(site));
    screen.tick("GT1", {"NOX, \"dry\""});
    site->failure = [](const std::string& call, std::size_t) {
        return call == "DIParameter.ReadData" ? std::optional(Error(440, "the line is down"))
                                              : std::nullopt;
    };
    EXPECT_EQ(told([&] { screen.hands.click("hourlyShow"); }), "Error 440: the line is down");
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(DataScreen, AnotherSiteAndNoneTakeThePlaceOfTheFirst)
{
    DataScreen screen;
    screen.tick("GT3", {"Load"});
    screen.hands.click("hourlyShow");
    screen.page.setServer(serve(siteOfOneAnalyzer()));
    EXPECT_EQ(screen.table("jgexGrid").model()->rowCount(), 2);
    screen.showCalibrations();
    EXPECT_EQ(screen.hands.text("calibrationSentence"), "The site has no calibrations.");
    screen.page.setServer(nullptr);
    EXPECT_EQ(screen.table("jgexGrid").model()->rowCount(), 0);
    EXPECT_FALSE(screen.hands.view<QWidget>("hourlyShow").isEnabled());
    EXPECT_EQ(screen.hands.text("hourlySentence"), "Open a site to see its data.");
}

TEST(DataScreen, IsWorkedByKeysAlone)
{
    const DataScreen screen;
    auto& list = screen.table("jgexGrid");
    screen.hands.pressMnemonic(Qt::Key_P);
    EXPECT_TRUE(list.hasFocus());
    screen.tick("GT3", {"Load"});
    screen.hands.press(Qt::Key_Tab);
    EXPECT_TRUE(screen.hands.view<QWidget>("hourlyFirstDay").hasFocus());
    screen.hands.press(Qt::Key_Return);
    EXPECT_EQ(screen.hands.text("hourlyLine"), "744 hours, 744 with a value");
    auto& table = screen.table(kHourly);
    table.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(table.currentIndex(), table.model()->index(0, 2));
    screen.hands.press(Qt::Key_Right);
    screen.hands.press(Qt::Key_Down);
    EXPECT_EQ(table.currentIndex(), table.model()->index(1, 3));
    screen.hands.press(Qt::Key_Home);
    EXPECT_EQ(table.currentIndex().column(), 2);
    screen.hands.press(Qt::Key_Tab);
    EXPECT_FALSE(table.hasFocus());
    const auto& pages = screen.hands.view<QTabWidget>("dataPages");
    screen.hands.pressMnemonic(Qt::Key_B);
    EXPECT_EQ(pages.currentIndex(), 1);
    screen.hands.pressMnemonic(Qt::Key_U);
    EXPECT_EQ(pages.currentIndex(), 0);
}

TEST(DataScreen, AllThatTakesTheKeysIsNamed)
{
    const DataScreen screen;
    screen.tick("GT3", {"Load"});
    screen.hands.click("hourlyShow");
    EXPECT_THAT(faultsForAScreenReader(screen.page), IsEmpty());
    screen.showCalibrations();
    screen.hands.click("calibrationShow");
    EXPECT_THAT(faultsForAScreenReader(screen.page), IsEmpty());
}

TEST(DataScreen, ADayIsPickedFromACalendarThatOpensAtTheOneShown)
{
    DataScreen screen;
    screen.services.dateAnswer = makeDate(2021, 12, 24);
    screen.hands.click("hourlyFirstCalendar");
    EXPECT_EQ(screen.text("hourlyFirstDay"), "12/24/2021");
    screen.hands.type("hourlyLastDay", "");
    screen.hands.click("hourlyLastCalendar");
    using Request = std::pair<std::string, Date>;
    EXPECT_THAT(screen.services.dateRequests,
                ::testing::ElementsAre(Request("First day", makeDate(2021, 12, 1)),
                                       Request("Last day", makeDate(2024, 5, 2))));
}

} // namespace k7deval::workbench::test
