#include "qt/QtServices.h"
#include "workbench/MainWindow.h"

#include <QApplication>
#include <QCommandLineParser>

/// The desktop program, on a site if its file is named: k7deval-workbench [SITE...]
int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QApplication::setApplicationName("K7DEval");
    QCommandLineParser parser;
    parser.setApplicationDescription("Judges the data of continuous emissions monitoring systems.");
    parser.addHelpOption();
    parser.addPositionalArgument(
        "SITE", "the site to open; further ones are listed among the recent ones", "[SITE...]");
    parser.process(application);

    k7deval::qt::QtServices services;
    const k7deval::SystemClock clock;
    k7deval::workbench::Settings settings;
    k7deval::workbench::MainWindow window(services, clock, settings);
    window.show();
    QStringList sites = parser.positionalArguments();
    for (qsizetype site = sites.size(); site > 1; --site)
        window.offerSite(sites[site - 1]);
    if (!sites.isEmpty())
        window.openSite(sites.front());
    return QApplication::exec();
}
