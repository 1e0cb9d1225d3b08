#include "foundation/FileReplacement.h"

#include "foundation/Error.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>

namespace k7deval
{
namespace
{

namespace fs = std::filesystem;
using test::contentOf;
using test::TemporaryFolder;
using test::writeFile;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct ReplaceFile : testing::Test {
    const TemporaryFolder folder;
};

int failureOf(const std::string& path, std::string_view content = "new")
{
    try {
        replaceFile(path, content);
    } catch (const Error& error) {
        EXPECT_EQ(error.description(), errorDescription(error.number()));
        return error.number();
    }
    return 0;
}

TEST_F(ReplaceFile, WritesANewFileAndNothingElse)
{
    replaceFile(folder.file("report.pdf"), std::string("a\0b\r\nc", 6));
    EXPECT_EQ(contentOf(folder.file("report.pdf")), std::string("a\0b\r\nc", 6));
    EXPECT_THAT(folder.names(), ElementsAre("report.pdf"));
}

TEST_F(ReplaceFile, TakesThePlaceOfALongerFile)
{
    writeFile(folder.file("report.pdf"), "a much longer text that was there");
    replaceFile(folder.file("report.pdf"), "new");
    EXPECT_EQ(contentOf(folder.file("report.pdf")), "new");
    EXPECT_THAT(folder.names(), ElementsAre("report.pdf"));
}

TEST_F(ReplaceFile, TakesAUtf8NameAndOneAsLongAsANameCanBe)
{
    const std::string greek = "\u0391\u03BD\u03B1\u03C6\u03BF\u03C1\u03AC.pdf";
    const std::string longest(255, 'x');
    replaceFile(folder.file(greek), "new");
    replaceFile(folder.file(longest), "new");
    EXPECT_THAT(folder.names(), ElementsAre(longest, greek));
}

TEST_F(ReplaceFile, TakesABareNameInTheCurrentFolder)
{
    const fs::path before = fs::current_path();
    fs::current_path(folder.path());
    replaceFile("report.pdf", "new");
    fs::current_path(before);
    EXPECT_EQ(contentOf(folder.file("report.pdf")), "new");
}

TEST_F(ReplaceFile, ReplacesTheFileBehindALinkAndKeepsTheLink)
{
    fs::create_directory(folder.path() / "archive");
    writeFile(folder.file("archive/report.pdf"), "old");
    fs::create_symlink("archive/report.pdf", folder.path() / "latest.pdf");
    replaceFile(folder.file("latest.pdf"), "new");
    EXPECT_TRUE(fs::is_symlink(folder.path() / "latest.pdf"));
    EXPECT_EQ(contentOf(folder.file("archive/report.pdf")), "new");
}

TEST_F(ReplaceFile, RefusesAFolderThatDoesNotExist)
{
    EXPECT_EQ(failureOf(folder.file("missing/report.pdf")), errors::kPathNotFound);
    EXPECT_EQ(failureOf(folder.file("missing/")), errors::kPathNotFound);
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(ReplaceFile, RefusesAFileInThePlaceOfAFolder)
{
    writeFile(folder.file("plant"), "old");
    EXPECT_EQ(failureOf(folder.file("plant/report.pdf")), errors::kPathNotFound);
    EXPECT_EQ(contentOf(folder.file("plant")), "old");
}

TEST_F(ReplaceFile, RefusesToReplaceAFolder)
{
    fs::create_directory(folder.path() / "report.pdf");
    EXPECT_EQ(failureOf(folder.file("report.pdf")), errors::kPathAccess);
    EXPECT_EQ(failureOf(folder.file("report.pdf/")), errors::kPathAccess);
    EXPECT_THAT(folder.names(), ElementsAre("report.pdf"));
}

TEST_F(ReplaceFile, RefusesToReplaceWhatIsNoOrdinaryFile)
{
    const std::string pipe = folder.file("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), S_IRUSR | S_IWUSR), 0);
    EXPECT_EQ(failureOf(pipe), errors::kPathAccess);
    EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST_F(ReplaceFile, RefusesANameThatIsNone)
{
    EXPECT_EQ(failureOf(""), errors::kPathAccess);
    EXPECT_EQ(failureOf(folder.file("a") + std::string("\0b", 2)), errors::kPathAccess);
    EXPECT_EQ(failureOf(folder.file(std::string(256, 'x'))), errors::kPathAccess);
    EXPECT_THAT(folder.names(), IsEmpty());
}

// The administrator may write everywhere but into the kernel's own tree.
std::string forbiddenFolder(const TemporaryFolder& folder)
{
    if (geteuid() == 0)
        return "/sys";
    fs::permissions(folder.path(), fs::perms::owner_read | fs::perms::owner_exec);
    return folder.path().string();
}

TEST_F(ReplaceFile, TellsAFolderThatItMayNotWriteInto)
{
    if (geteuid() == 0 && !fs::exists("/sys/kernel"))
        GTEST_SKIP() << "nothing here that the administrator may not write into";
    EXPECT_EQ(failureOf(forbiddenFolder(folder) + "/report.pdf"), errors::kPermissionDenied);
    fs::permissions(folder.path(), fs::perms::owner_all);
}

// In a process of its own, since the limit on the size of files stays. The signal that comes with
// it has to be ignored for the write to fail instead.
[[noreturn]] void replaceWithoutRoom(const std::string& path)
{
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{4096, 4096};
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
        std::exit(1);
    std::exit(failureOf(path, std::string(100000, 'x')));
}

TEST_F(ReplaceFile, KeepsTheOldFileWhenThereIsNoRoomForTheNewOne)
{
    writeFile(folder.file("report.pdf"), "old");
    EXPECT_EXIT(replaceWithoutRoom(folder.file("report.pdf")),
                ::testing::ExitedWithCode(errors::kDiskFull), "");
    EXPECT_EQ(contentOf(folder.file("report.pdf")), "old");
    EXPECT_THAT(folder.names(), ElementsAre("report.pdf"));
}

struct FailureCase {
    std::errc failure;
    int number;
};

constexpr FailureCase kFailureCases[] = {
    {std::errc::no_space_on_device, errors::kDiskFull},
    {std::errc::file_too_large, errors::kDiskFull},
    {std::errc::permission_denied, errors::kPermissionDenied},
    {std::errc::operation_not_permitted, errors::kPermissionDenied},
    {std::errc::read_only_file_system, errors::kPermissionDenied},
    {std::errc::no_such_file_or_directory, errors::kPathNotFound},
    {std::errc::not_a_directory, errors::kPathNotFound},
    {std::errc::is_a_directory, errors::kPathAccess},
    {std::errc::io_error, errors::kPathAccess},
    {std::errc::filename_too_long, errors::kPathAccess},
};

TEST(FileErrorNumber, SortsTheFailuresOfTheFileSystem)
{
    for (const auto& row : kFailureCases) {
        const std::error_code failure = std::make_error_code(row.failure);
        EXPECT_EQ(fileErrorNumber(failure), row.number) << failure.message();
    }
    EXPECT_EQ(fileErrorNumber({EDQUOT, std::generic_category()}), errors::kDiskFull);
}

} // namespace
} // namespace k7deval
