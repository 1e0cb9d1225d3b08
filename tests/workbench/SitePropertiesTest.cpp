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
struct PropertiesRig {
    explicit PropertiesRig(const std::string& region = "en-US") : region_(region)
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
    const PropertiesRig rig;
    EXPECT_EQ(rig.field("facility").text(), "Small Plant");
    EXPECT_EQ(rig.field("capacity of U1").text(), "");
    EXPECT_EQ(rig.field("capacity of U1").placeholderText(), "150 by the plan");
    EXPECT_EQ(rig.field("capacity of CS1").text(), "84.5");
    rig.hands->photograph("properties");
}

TEST(SiteProperties, KeepWhatTheOperatorChanges)
{
    PropertiesRig rig;
    rig.hands->enter("facility", "O'Neill & Sons");
    rig.hands->enter("capacity of U1", " 1,050.25 ");
    rig.hands->enter("capacity of CS1", "");
    rig.hands->press(Qt::Key_Enter);
    EXPECT_EQ(rig.dialog->result(), QDialog::Accepted);
    EXPECT_EQ(rig.held.site.facilityName(), "O'Neill & Sons");
    EXPECT_EQ(rig.capacity(0), 1050.25);
    EXPECT_EQ(rig.capacity(1), std::nullopt);
    rig.sitDown();
    EXPECT_EQ(rig.field("capacity of U1").text(), "1050.25");
}

TEST(SiteProperties, ReadAndShowNumbersAsTheRegionWritesThem)
{
    PropertiesRig rig("de-DE");
    EXPECT_EQ(rig.field("capacity of CS1").text(), "84,5");
    rig.hands->enter("capacity of U1", "99,5");
    rig.hands->click("ok");
    EXPECT_EQ(rig.capacity(0), 99.5);
}

TEST(SiteProperties, TellAtTheFieldWhatIsNoCapacityAndWriteNothing)
{
    PropertiesRig rig;
    const std::string before = sitedb::test::dump(rig.held.site);
    for (const char* text : {"much", "0", "-5", "1000000"}) {
        rig.hands->enter("facility", "Other");
        rig.hands->enter("capacity of U1", "100");
        rig.hands->enter("capacity of CS1", text);
        rig.hands->click("ok");
        EXPECT_TRUE(rig.dialog->isVisible());
        EXPECT_EQ(rig.hands->text("fault of CS1"), "This is no number above 0 and up to 999999.");
        EXPECT_EQ(rig.hands->text("fault of U1"), "");
        EXPECT_TRUE(rig.field("capacity of CS1").hasFocus());
        EXPECT_EQ(sitedb::test::dump(rig.held.site), before) << text;
    }
    rig.hands->photograph("properties-fault");
    rig.hands->enter("capacity of CS1", "84");
    EXPECT_EQ(rig.hands->text("fault of CS1"), "");
    rig.hands->click("ok");
    EXPECT_FALSE(rig.dialog->isVisible());
    EXPECT_EQ(rig.capacity(1), 84);
}

TEST(SiteProperties, WriteNothingWhenNothingWasChangedOrWhenCancelled)
{
    PropertiesRig rig;
    // More digits than a field shows.
    rig.held.site.setCapacity("U1", 100.0 / 3);
    const std::string before = sitedb::test::dump(rig.held.site);
    rig.sitDown();
    rig.hands->click("ok");
    EXPECT_EQ(sitedb::test::dump(rig.held.site), before);
    rig.sitDown();
    rig.hands->enter("facility", "Other");
    rig.hands->press(Qt::Key_Escape);
    EXPECT_EQ(sitedb::test::dump(rig.held.site), before);
}

TEST(SiteProperties, TellWhyASiteCanNotBeWritten)
{
    PropertiesRig rig;
    rig.hands->enter("facility", "Other");
    const sitedb::sql::Transaction writing(rig.held.site.connection());
    rig.hands->click("ok");
    EXPECT_TRUE(rig.dialog->isVisible());
    EXPECT_EQ(rig.hands->text("siteFault"), "site.k7site: another program is writing to the site.");
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
    const PropertiesRig rig;
    EXPECT_EQ(namelessParts(*rig.dialog), QStringList());
}

} // namespace k7deval::workbench::test
