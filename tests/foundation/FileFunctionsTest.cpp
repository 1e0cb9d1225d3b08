#include "foundation/FileFunctions.h"

#include "foundation/ExpectError.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace k7deval
{

namespace
{

namespace fs = std::filesystem;

struct FileFunctions : testing::Test {
    test::TemporaryFolder folder;

    /// A file of this name, written.
    [[nodiscard]] std::string fileNamed(const std::string& name) const
    {
        test::writeFile(folder.file(name), "drift");
        return folder.file(name);
    }
};

} // namespace

TEST_F(FileFunctions, AFileOfThatNameExists)
{
    EXPECT_TRUE(fileExists(fileNamed("Übersicht.pdf")));
    EXPECT_FALSE(fileExists(folder.file("other.pdf")));
}

TEST_F(FileFunctions, AFolderIsNoFile)
{
    fs::create_directory(filePath(folder.file("reports")));
    EXPECT_FALSE(fileExists(folder.file("reports")));
}

TEST_F(FileFunctions, ADeletedFileIsGone)
{
    const std::string path = fileNamed("summary.pdf");
    deleteFile(path);
    EXPECT_FALSE(fileExists(path));
}

TEST_F(FileFunctions, AFileThatIsNotThereCannotBeDeleted)
{
    EXPECT_EQ(errorOf([&] { return deleteFile(folder.file("absent.pdf")), 0; }),
              errors::kFileNotFound);
}

TEST_F(FileFunctions, AWriteProtectedFileStays)
{
    const std::string path = fileNamed("summary.pdf");
    fs::permissions(filePath(path), fs::perms::owner_read);
    EXPECT_EQ(errorOf([&] { return deleteFile(path), 0; }), errors::kPermissionDenied);
    EXPECT_TRUE(fileExists(path));
}

TEST_F(FileFunctions, ATextThatNamesNoPathIsRefused)
{
    EXPECT_EQ(errorOf([] { return filePath(""); }), errors::kPathAccess);
    EXPECT_EQ(errorOf([] { return filePath(std::string("a\0b", 3)); }), errors::kPathAccess);
}

} // namespace k7deval
