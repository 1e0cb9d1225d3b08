#include "workbench/SiteProperties.h"
#include "qt/Operator.h"
#include "sitedb/PlanCase.h"
#include "sitedb/sql/Connection.h"
#include "workbench/ImportNames.h"

#include <gtest/gtest.h>

#include <QLabel>

#include <QLineEdit>

namespace k7deval::workbench::test
{

namespace
{

using qt::test::Operator;

/// A site with the units U1, whose maximum load a plan tells, and CS1, and an operator at its
/// properties.
struct PropertiesBench {
    explicit PropertiesBench(const std::string& region = "en-US") : region_(region)
    {
        importText(held, "plan.json", sitedb::test::smallPlan());
        held.site.setCapacity("CS1", 84.5);
        sitDown();
    }

    void sitDown()
    {
        dialog = std::make_unique<SiteProperties>(QString::fromStdString(held.path.string()),
                                                  regionalSettings(region_), nullptr);
        hands = std::make_unique<Operator>(*dialog);
    }
    [[nodiscard]] QLineEdit& field(const std::string& name) const
    {
        return hands->view<QLineEdit>(name);
    }
    [[nodiscard]] std::optional<double> capacity(std::size_t unit) const
    {
        return held.site.unitPowers().at(unit).capacity;
    }

    sitedb::test::EmptySite held;
    std::unique_ptr<SiteProperties> dialog;
    std::unique_ptr<Operator> hands;

private:
    std::string region_;
};

} // namespace

TEST(SiteProperties, ShowTheFacilityAndTheCapacitiesOfItsUnits)
{
    const PropertiesBench bench;
    EXPECT_EQ(bench.field("facility").text(), "Small Plant");
    EXPECT_EQ(bench.field("capacity of U1").text(), "");
    EXPECT_EQ(bench.field("capacity of U1").placeholderText(), "150 by the plan");
    EXPECT_EQ(bench.field("capacity of CS1").text(), "84.5");
    bench.hands->photograph("properties");
}

TEST(SiteProperties, KeepWhatTheOperatorChanges)
{
    PropertiesBench bench;
    bench.hands->enter("facility", "O'Neill & Sons");
    bench.hands->enter("capacity of U1", " 1,050.25 ");
    bench.hands->enter("capacity of CS1", "");
    bench.hands->press(Qt::Key_Enter);
    EXPECT_EQ(bench.dialog->result(), QDialog::Accepted);
    EXPECT_EQ(bench.held.site.facilityName(), "O'Neill & Sons");
    EXPECT_EQ(bench.capacity(0), 1050.25);
    EXPECT_EQ(bench.capacity(1), std::nullopt);
    bench.sitDown();
    EXPECT_EQ(bench.field("capacity of U1").text(), "1050.25");
}

TEST(SiteProperties, ReadAndShowNumbersAsTheRegionWritesThem)
{
    PropertiesBench bench("de-DE");
    EXPECT_EQ(bench.field("capacity of CS1").text(), "84,5");
    bench.hands->enter("capacity of U1", "99,5");
    bench.hands->click("ok");
    EXPECT_EQ(bench.capacity(0), 99.5);
}

TEST(SiteProperties, TellAtTheFieldWhatIsNoCapacityAndWriteNothing)
{
    PropertiesBench bench;
    const std::string before = sitedb::test::dump(bench.held.site);
    for (const char* text : {"much", "0", "-5", "1000000"}) {
        bench.hands->enter("facility", "Other");
        bench.hands->enter("capacity of U1", "100");
        bench.hands->enter("capacity of CS1", text);
        bench.hands->click("ok");
        EXPECT_TRUE(bench.dialog->isVisible());
        EXPECT_EQ(bench.hands->text("fault of CS1"), "This is no number above 0 and up to 999999.");
        EXPECT_EQ(bench.hands->text("fault of U1"), "");
        EXPECT_TRUE(bench.field("capacity of CS1").hasFocus());
        EXPECT_EQ(sitedb::test::dump(bench.held.site), before) << text;
    }
    bench.hands->photograph("properties-fault");
    bench.hands->enter("capacity of CS1", "84");
    EXPECT_EQ(bench.hands->text("fault of CS1"), "");
    bench.hands->click("ok");
    EXPECT_FALSE(bench.dialog->isVisible());
    EXPECT_EQ(bench.capacity(1), 84);
}

TEST(SiteProperties, WriteNothingWhenNothingWasChangedOrWhenCancelled)
{
    PropertiesBench bench;
    // More digits than a field shows.
    bench.held.site.setCapacity("U1", 100.0 / 3);
    const std::string before = sitedb::test::dump(bench.held.site);
    bench.sitDown();
    bench.hands->click("ok");
    EXPECT_EQ(sitedb::test::dump(bench.held.site), before);
    bench.sitDown();
    bench.hands->enter("facility", "Other");
    bench.hands->press(Qt::Key_Escape);
    EXPECT_EQ(sitedb::test::dump(bench.held.site), before);
}

TEST(SiteProperties, TellWhyASiteCanNotBeWritten)
{
    PropertiesBench bench;
    bench.hands->enter("facility", "Other");
    const sitedb::sql::Transaction writing(bench.held.site.connection());
    bench.hands->click("ok");
    EXPECT_TRUE(bench.dialog->isVisible());
    EXPECT_EQ(bench.hands->text("siteFault"),
              "site.k7site: another program is writing to the site.");
}

TEST(SiteProperties, SayThatThereIsNoUnitYet)
{
    const sitedb::test::EmptySite held;
    SiteProperties dialog(QString::fromStdString(held.path.string()), RegionalSettings(), nullptr);
    const Operator hands(dialog);
    EXPECT_EQ(hands.view<QLineEdit>("facility").text(), "");
    EXPECT_TRUE(dialog.findChildren<QLineEdit*>().size() == 1);
    hands.photograph("properties-empty");
}

TEST(SiteProperties, EveryPartHasAName)
{
    const PropertiesBench bench;
    EXPECT_EQ(namelessParts(*bench.dialog), QStringList());
}

} // namespace k7deval::workbench::test
