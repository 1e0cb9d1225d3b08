#include "foundation/FileFunctions.h"

#include "foundation/ExpectError.h"

#include <gtest/gtest.h>

#include <fstream>

namespace k7deval
{

namespace
{

namespace fs = std::filesystem;

// A folder of its own for each case, gone afterwards.
class FileFunctions : public testing::Test
{
protected:
    FileFunctions()
    {
        const auto* const info = testing::UnitTest::GetInstance()->current_test_info();
        folder_ = fs::path(testing::TempDir()) / (std::string("k7deval-") + info->name());
        fs::remove_all(folder_);
        fs::create_directories(folder_);
    }

    ~FileFunctions() override { fs::remove_all(folder_); }

    FileFunctions(const FileFunctions&) = delete;
    FileFunctions& operator=(const FileFunctions&) = delete;

    [[nodiscard]] std::string pathOf(const std::string& name) const
    {
        return (folder_ / filePath(name)).string();
    }

    [[nodiscard]] std::string fileNamed(const std::string& name) const
    {
        std::ofstream(folder_ / filePath(name)) << "drift";
        return pathOf(name);
    }

private:
    fs::path folder_;
};

} // namespace

TEST_F(FileFunctions, AFileOfThatNameExists)
{
    EXPECT_TRUE(fileExists(fileNamed("Übersicht.pdf")));
    EXPECT_FALSE(fileExists(pathOf("other.pdf")));
}

TEST_F(FileFunctions, AFolderIsNoFile)
{
    fs::create_directory(filePath(pathOf("reports")));
    EXPECT_FALSE(fileExists(pathOf("reports")));
}

TEST_F(FileFunctions, ADeletedFileIsGone)
{
    const std::string path = fileNamed("summary.pdf");
    deleteFile(path);
    EXPECT_FALSE(fileExists(path));
}

TEST_F(FileFunctions, AFileThatIsNotThereCannotBeDeleted)
{
    EXPECT_EQ(errorOf([&] { return deleteFile(pathOf("absent.pdf")), 0; }), errors::kFileNotFound);
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
