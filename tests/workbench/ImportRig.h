#pragma once

#include "qt/Operator.h"
#include "sitedb/EmissionsCase.h"
#include "support/FakeSite.h"
#include "workbench/ImportDialog.h"

#include <QLabel>
#include <QProgressBar>
#include <QTableWidget>
#include <QTest>
#include <QTextEdit>

#include <memory>
#include <string>

namespace k7deval::workbench::test
{

/// More than the tests wait for anything, in milliseconds.
inline constexpr int kLongest = 120'000;

/// An operator at the import of files into a site.
struct ImportRig {
    explicit ImportRig(const std::filesystem::path& site)
        : dialog(std::make_unique<ImportDialog>(QString::fromStdString(site.string()), clock,
                                                nullptr)),
          hands(*dialog)
    {
    }

    void add(const std::filesystem::path& file)
    {
        dialog->addFiles({QString::fromStdString(file.string())});
    }
    /// Presses Import and waits for the end.
    void import()
    {
        hands.click("import");
        waitForEnd();
    }
    void waitForEnd()
    {
        if (!QTest::qWaitFor([this] { return !bar().isVisible(); }, kLongest))
            throw std::runtime_error("the import does not end");
    }
    /// Presses Import and waits until a part of the emissions file is read.
    void importUpToTheMiddle()
    {
        constexpr int kSomeOfIt = 50;
        hands.click("import");
        const auto isInTheMiddle = [this] {
            return hands.text("status").starts_with("emissions.json: ") &&
                   bar().value() > kSomeOfIt;
        };
        if (!QTest::qWaitFor(isInTheMiddle, kLongest))
            throw std::runtime_error("no progress is seen");
    }

    [[nodiscard]] QTableWidget& files() const { return hands.view<QTableWidget>("files"); }
    [[nodiscard]] QProgressBar& bar() const { return hands.view<QProgressBar>("progress"); }
    [[nodiscard]] std::string report() const
    {
        return hands.view<QTextEdit>("report").toPlainText().toStdString();
    }
    /// What the list says of a file: its name, what it was taken for, and its state.
    [[nodiscard]] QStringList row(int row) const
    {
        QStringList texts;
        for (const int column : {0, 2, 1})
            texts << files().item(row, column)->text();
        return texts;
    }

    k7deval::test::FixedClock clock{makeDate(2024, 5, 2, 9, 30)};
    std::unique_ptr<ImportDialog> dialog;
    qt::test::Operator hands;
};

/// A site, what is in it, and a file that takes long to import into it.
struct LongImport {
    sitedb::test::SmallSite held;
    std::string tables = sitedb::test::dump(held.site);
    std::string bytes = sitedb::test::readFile(held.path);
    std::filesystem::path file =
        held.directory.write("emissions.json", sitedb::test::emissionsOfUnits(15, 4000));

    void expectSiteAsItWas()
    {
        EXPECT_EQ(sitedb::test::dump(held.site), tables);
        EXPECT_TRUE(sitedb::test::readFile(held.path) == bytes)
            << "the file of the site has changed";
    }
};

} // namespace k7deval::workbench::test
