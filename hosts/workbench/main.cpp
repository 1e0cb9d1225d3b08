#include "qt/QtServices.h"
#include "workbench/MainWindow.h"
#include "workbench/Region.h"

#include <QApplication>
#include <QLocale>

/// The desktop program, on a site if its file is named: k7deval-workbench [SITE]
int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QApplication::setApplicationName("K7DEval");
    k7deval::qt::QtServices services;
    const k7deval::SystemClock clock;
    k7deval::workbench::MainWindow window(services, clock,
                                          k7deval::workbench::settingsOf(QLocale::system()));
    window.show();
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() > 1)
        window.openSite(arguments[1].toStdString());
    return QApplication::exec();
}
