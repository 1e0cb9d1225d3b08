#pragma once

#include "qt/Operator.h"
#include "sitedb/SampleSite.h"
#include "support/FakeServices.h"
#include "support/FakeSite.h"
#include "workbench/MainWindow.h"

#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

namespace k7deval::workbench::test
{

/// The sample, for tests that only read it.
inline std::string sampleSite()
{
    static const sitedb::test::SampleSite sample;
    return (sample.directory / "bethpage.k7site").string();
}

/// What the program remembers, gone with the test.
struct Memory {
    QTemporaryDir folder;
    Settings settings{folder.filePath("settings.ini")};

    Memory() { settings.setRegion("en-US"); }
};

/// An operator at the program with the sample open, on 2 May 2024.
struct Workbench {
    explicit Workbench(const std::string& site = sampleSite(),
                       std::shared_ptr<Memory> known = std::make_shared<Memory>())
        : memory(std::move(known))
    {
        window.resize(1000, 760);
        window.show();
        if (!site.empty())
            window.openSite(QString::fromStdString(site));
        qt::test::settle();
    }

    std::shared_ptr<Memory> memory;
    k7deval::test::FakeServices services;
    k7deval::test::FixedClock clock{makeDate(2024, 5, 2, 9, 30)};
    MainWindow window{services, clock, memory->settings};

    [[nodiscard]] QTabWidget& tabs() const { return *window.findChild<QTabWidget*>("tools"); }
    [[nodiscard]] QStringList titles() const
    {
        QStringList titles;
        for (int tab = 0; tab < tabs().count(); ++tab)
            titles << tabs().tabText(tab);
        return titles;
    }
    /// The hands of the operator in a tab.
    [[nodiscard]] qt::test::Operator at(int tab)
    {
        tabs().setCurrentIndex(tab);
        return qt::test::Operator(*tabs().widget(tab));
    }
    /// The entry of a menu, by the texts on the way to it; std::runtime_error when there is none.
    [[nodiscard]] QAction& entry(const QStringList& way) const
    {
        QList<QAction*> actions = window.menuBar()->actions();
        QAction* found = nullptr;
        for (const QString& text : way) {
            const auto at = std::ranges::find_if(actions, [&](const QAction* action) {
                return QString(action->text()).remove('&') == text;
            });
            if (at == actions.end())
                throw std::runtime_error("no such entry: " + text.toStdString());
            found = *at;
            if (found->menu() != nullptr) {
                emit found->menu()->aboutToShow();
                actions = found->menu()->actions();
            }
        }
        return *found;
    }
    void choose(const QStringList& way) const
    {
        entry(way).trigger();
        qt::test::settle();
    }
    [[nodiscard]] QLabel& label(const char* name) const { return *window.findChild<QLabel*>(name); }
    [[nodiscard]] QTableWidget& messages() const
    {
        return *window.findChild<QTableWidget*>("messages");
    }
};

} // namespace k7deval::workbench::test
