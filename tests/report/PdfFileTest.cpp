#include "report/ReportDocument.h"

#include "foundation/Error.h"
#include "foundation/ExpectError.h"
#include "report/TestFonts.h"
#include "support/PdfText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace k7deval
{
namespace
{

using test::contentOf;
using test::pdfInformation;
using test::TemporaryFolder;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

ReportPage& addPage(ReportDocument& document)
{
    ReportPage& page = document.Pages().Add();
    page.SetHeight(612);
    page.SetWidth(792);
    return page;
}

/// A document with something of everything.
void fill(ReportDocument& document)
{
    document.SetTitle("7-Day Drift Testing");
    document.SetAuthor("\u0141\u00F3d\u017A");
    for (int number = 0; number < 3; ++number) {
        ReportPage& page = addPage(document);
        page.TextItems().Add("Drift").SetFont(6);
        page.TextItems().Add("\u0395\u03BB\u03BB\u03AC\u03B4\u03B1");
        page.TextItems().Add("\u0416").SetFont(6);
        page.Lines().Add().SetX2(100);
        page.Rectangles().Add().SetWidth(100);
    }
}

int failureOfSaving(const ReportDocument& document, const std::string& path)
{
    return errorOf([&] { return document.SaveToFile(path), 0; });
}

TEST(PdfFile, CarriesTheInformationOfTheDocument)
{
    const TemporaryFolder folder;
    ReportDocument document;
    addPage(document);
    document.SetTitle("7-Day (Drift) \\ Testing");
    document.SetSubject("\u0395\u03BB\u03BB\u03AC\u03B4\u03B1 \u5E02 \U0001F600");
    document.SetAuthor("Caf\u00E9");
    document.SetCreator("\u0141\u00F3d\u017A");
    document.SaveToFile(folder.file("report.pdf"));
    test::requireValidPdf(folder.file("report.pdf"));
    auto information = pdfInformation(folder.file("report.pdf"));
    EXPECT_EQ(information["Title"], "7-Day (Drift) \\ Testing");
    EXPECT_EQ(information["Subject"], "\u0395\u03BB\u03BB\u03AC\u03B4\u03B1 \u5E02 \U0001F600");
    EXPECT_EQ(information["Author"], "Caf\u00E9");
    EXPECT_EQ(information["Creator"], "\u0141\u00F3d\u017A");
    EXPECT_EQ(information["Pages"], "1");
}

TEST(PdfFile, LeavesOutInformationThatIsNotSet)
{
    const TemporaryFolder folder;
    ReportDocument document;
    addPage(document);
    document.SaveToFile(folder.file("report.pdf"));
    const auto information = pdfInformation(folder.file("report.pdf"));
    for (const char* const entry : {"Title", "Subject", "Author", "Creator"})
        EXPECT_EQ(information.count(entry), 0U) << entry;
}

TEST(PdfFile, IsTheSameForTheSameDocument)
{
    const TemporaryFolder folder;
    ReportDocument first;
    ReportDocument second;
    fill(first);
    fill(second);
    first.SaveToFile(folder.file("first.pdf"));
    first.SaveToFile(folder.file("again.pdf"));
    second.SaveToFile(folder.file("second.pdf"));
    const std::string bytes = contentOf(folder.file("first.pdf"));
    EXPECT_EQ(bytes, contentOf(folder.file("again.pdf")));
    EXPECT_EQ(bytes, contentOf(folder.file("second.pdf")));
    const auto information = pdfInformation(folder.file("first.pdf"));
    EXPECT_EQ(information.count("CreationDate") + information.count("ModDate"), 0U);
    EXPECT_THAT(bytes, Not(HasSubstr("/ID")));
}

TEST(PdfFile, TakesADocumentThatGrewSinceItWasSaved)
{
    const TemporaryFolder folder;
    ReportDocument document;
    fill(document);
    document.SaveToFile(folder.file("report.pdf"));
    addPage(document).TextItems().Add("later");
    document.SaveToFile(folder.file("report.pdf"));
    EXPECT_EQ(test::pdfPages(folder.file("report.pdf")).size(), 4U);
    EXPECT_THAT(test::pdfPlainText(folder.file("report.pdf")), HasSubstr("later"));
    EXPECT_THAT(folder.names(), ElementsAre("report.pdf"));
}

TEST(PdfFile, IsNotMadeOfADocumentWithoutPages)
{
    const TemporaryFolder folder;
    test::writeFile(folder.file("report.pdf"), "old");
    const ReportDocument document;
    EXPECT_EQ(failureOfSaving(document, folder.file("report.pdf")), errors::kInvalidCall);
    EXPECT_EQ(contentOf(folder.file("report.pdf")), "old");
}

TEST(PdfFile, IsNotMadeOfAPageWithoutSize)
{
    const TemporaryFolder folder;
    test::writeFile(folder.file("report.pdf"), "old");
    ReportDocument document;
    addPage(document);
    document.Pages().Add().SetWidth(792);
    EXPECT_EQ(failureOfSaving(document, folder.file("report.pdf")), errors::kInvalidCall);
    EXPECT_EQ(contentOf(folder.file("report.pdf")), "old");
    EXPECT_THAT(folder.names(), ElementsAre("report.pdf"));
}

TEST(PdfFile, IsNotMadeWithInformationLongerThanAPdfFileTakes)
{
    const TemporaryFolder folder;
    for (const std::string& letter : {std::string("x"), std::string("\u0141")}) {
        ReportDocument document;
        addPage(document);
        std::string title;
        for (int i = 0; i < 70000; ++i)
            title += letter;
        document.SetTitle(title);
        EXPECT_EQ(failureOfSaving(document, folder.file("report.pdf")), errors::kInvalidCall);
    }
    EXPECT_THAT(folder.names(), ::testing::IsEmpty());
}

TEST(PdfFile, FailsWithTheNumberOfWhatIsWrongWithItsPlace)
{
    const TemporaryFolder folder;
    ReportDocument document;
    fill(document);
    EXPECT_EQ(failureOfSaving(document, folder.file("missing/report.pdf")), errors::kPathNotFound);
    EXPECT_EQ(failureOfSaving(document, folder.path().string()), errors::kPathAccess);
    EXPECT_EQ(failureOfSaving(document, ""), errors::kPathAccess);
    EXPECT_THAT(folder.names(), ::testing::IsEmpty());
}

TEST(PdfFile, IsSavedUnderAUtf8Name)
{
    const TemporaryFolder folder;
    ReportDocument document;
    fill(document);
    document.SaveToFile(folder.file("\u0141\u00F3d\u017A \u5E02.pdf"));
    EXPECT_THAT(folder.names(), ElementsAre("\u0141\u00F3d\u017A \u5E02.pdf"));
}

} // namespace
} // namespace k7deval
