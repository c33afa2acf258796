#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/PaintedPages.h"
#include "platform/RuntimeFailure.h"

/// A folder for a PDF that is written with the pages of a report.
class PdfFile : public ::testing::Test
{
protected:
    static void printPage(PageSink &pages)
    {
        pages.text(0, 0, {"Arial", 14, true, true, false}, "Reef");
        pages.line(0, 100, pages.width(), 100);
    }
    QByteArray content() const
    {
        QFile pdf(name);
        return pdf.open(QIODevice::ReadOnly) ? pdf.readAll() : QByteArray("(none)");
    }
    void write(const QByteArray &bytes)
    {
        QFile pdf(name);
        ASSERT_TRUE(pdf.open(QIODevice::WriteOnly) && pdf.write(bytes) == bytes.size());
    }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }

    QTemporaryDir folder;
    QString name = folder.filePath("log.pdf");
};

TEST_F(PdfFile, IsThereWhenItsDocumentHasEnded)
{
    write("an older log");
    {
        const auto pages = PagesInPdf(name);
        pages->beginDocument("Log");
        printPage(*pages);
        pages->newPage();
        printPage(*pages);
        EXPECT_EQ(content(), "an older log") << "not before its end";
        pages->endDocument();
    }
    EXPECT_TRUE(content().startsWith("%PDF-") && content().trimmed().endsWith("%%EOF"));
    EXPECT_TRUE(content().contains("/Count 2")) << "two pages";
    EXPECT_EQ(files(), QStringList("log.pdf"));
}

TEST_F(PdfFile, GivenUpHalfWayLeavesWhatWasThere)
{
    for (const bool begun : {false, true})
        for (const char *before : {"(none)", "an older log"}) {
            QFile::remove(name);
            if (QByteArray(before) != "(none)")
                write(before);
            {
                const auto pages = PagesInPdf(name);
                if (begun) {
                    pages->beginDocument("Log");
                    printPage(*pages);
                }
            }
            EXPECT_EQ(content(), before) << begun;
            EXPECT_EQ(files().size(), before[0] == '(' ? 0 : 1) << files().join(u' ').toStdString();
        }
}

TEST_F(PdfFile, AFolderThatIsNotThereOrGoesAwayIsAFailure)
{
    EXPECT_THROW(PagesInPdf(folder.filePath("none/log.pdf")), RuntimeFailure);
    QDir(folder.path()).mkdir("usb");
    const auto pages = PagesInPdf(folder.filePath("usb/log.pdf"));
    pages->beginDocument("Log");
    printPage(*pages);
    ASSERT_TRUE(QDir(folder.filePath("usb")).removeRecursively());
    EXPECT_THROW(pages->endDocument(), RuntimeFailure);
}
