#include "qt/QtServices.h"
#include "workbench/MainWindow.h"
#include "workbench/ToolTabs.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdlib>
#include <iostream>

/// Timings of the desktop program on a site, without a display: bench_workbench SITE [OPTION...]
namespace k7deval::workbench
{

namespace
{

struct Program {
    QTemporaryDir scratch;
    Settings settings{scratch.filePath("settings.ini")};
    qt::QtServices services;
    SystemClock clock;
};

/// From nothing to a window with its tools drawn.
void opensTheWindow(benchmark::State& state, const QString& site)
{
    for (auto _ : state) {
        Program program;
        MainWindow window(program.services, program.clock, program.settings);
        window.show();
        window.openSite(site);
        QApplication::processEvents();
        benchmark::DoNotOptimize(window.grab());
    }
}

/// To another tool and back, drawn each time.
void goesToATool(benchmark::State& state, const QString& site)
{
    Program program;
    MainWindow window(program.services, program.clock, program.settings);
    window.show();
    window.openSite(site);
    for (auto _ : state) {
        for (const Tool tool : {Tool::Load, Tool::Drift}) {
            window.tools().goTo(tool);
            QApplication::processEvents();
        }
    }
}

} // namespace

} // namespace k7deval::workbench

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (argc != 2 || !QFileInfo::exists(argv[1])) {
        std::cerr << "usage: bench_workbench SITE\n";
        return EXIT_FAILURE;
    }
    const QString site(argv[1]);
    benchmark::RegisterBenchmark("opensTheWindow", k7deval::workbench::opensTheWindow, site)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("goesToATool", k7deval::workbench::goesToATool, site)
        ->Unit(benchmark::kMillisecond);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
