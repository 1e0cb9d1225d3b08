#include "support/Places.h"
#include "workbench/ImportRig.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QProcess>

namespace k7deval::workbench::test
{

namespace
{

QString textOf(const std::filesystem::path& path)
{
    return QString::fromStdString(path.string());
}

} // namespace

// What was written up to then lies in the file of the site, and in its journal what was there
// before.
TEST(ImportKill, AProcessThatIsKilledInTheMiddleLeavesTheSiteAsItWas)
{
    LongImport task;
    QProcess program;
    program.start(QString::fromStdString(k7deval::test::commandLineProgram()),
                  {"import", "--site", textOf(task.held.path), textOf(task.file)});
    const auto isWritten = [&] {
        return QFileInfo(textOf(task.held.path)).size() >
               2 * static_cast<qint64>(task.bytes.size());
    };
    ASSERT_TRUE(QTest::qWaitFor(isWritten, kLongest));
    program.kill();
    ASSERT_TRUE(program.waitForFinished(kLongest));
    ASSERT_EQ(program.exitStatus(), QProcess::CrashExit);
    ASSERT_TRUE(QFileInfo::exists(textOf(task.held.path) + "-journal"));

    const auto reader = sitedb::SiteDatabase::open(task.held.path, sitedb::OpenMode::ReadOnly);
    EXPECT_EQ(sitedb::test::dump(reader), task.tables);
    task.expectSiteAsItWas();
    EXPECT_FALSE(QFileInfo::exists(textOf(task.held.path) + "-journal"));
}

} // namespace k7deval::workbench::test
