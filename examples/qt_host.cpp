#include "foundation/Clock.h"
#include "qt/QtServices.h"
#include "qt/ctrlMaxMWView.h"
#include "sitedb/SiteDatabase.h"

#include <QApplication>

#include <exception>
#include <iostream>

using namespace k7deval;

namespace
{

/// Opens the window; with the name of a picture, takes it and ends.
int runWindow(QWidget& window, const QString& picture)
{
    window.show();
    if (picture.isEmpty())
        return QApplication::exec();
    QApplication::processEvents();
    return window.grab().save(picture) ? 0 : 2;
}

int evaluateInAWindow(const std::string& siteFile, const QString& picture)
{
    qt::QtServices dialogs;
    const SystemClock clock;
    const RegionalSettings regional = regionalSettings("en-US");
    ctrlMaxMW tool({dialogs, clock, regional});
    qt::ctrlMaxMWView window(tool);
    tool.CloseClicked.Connect([&window] { window.close(); });

    const auto site = sitedb::SiteDatabase::open(siteFile, sitedb::OpenMode::ReadOnly);
    tool.SetDIServer(site.server());
    return runWindow(window, picture);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 2) {
        std::cerr << "Usage: " << argv[0] << " SITE [PICTURE]\n";
        return 2;
    }
    try {
        return evaluateInAWindow(arguments[1].toStdString(), arguments.value(2));
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return 2;
    }
}
