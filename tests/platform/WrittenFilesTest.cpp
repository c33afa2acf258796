// The files that the program writes for a keeper beside his database: PDFs and settings. A failure leaves what was
// there.
#include <gtest/gtest.h>

#include <QPrinter>
#include <QTemporaryDir>

#include "platform/PaintedPages.h"
#include "platform/Paper.h"
#include "platform/RuntimeFailure.h"
#include "platform/SettingsStore.h"
#include "support/TestFiles.h"

struct WrittenFiles : testing::Test
{
    QByteArray content() const { return contentOf(folder.path())["file"]; }

    QTemporaryDir folder;
    QString name = folder.filePath("file");
};

TEST_F(WrittenFiles, APdfIsThereWhenItsDocumentHasEnded)
{
    for (const bool ended : {false, true}) {
        writeFile(name, "an older log");
        {
            const auto pages = PagesInPdf(name);
            pages->beginDocument("Log");
            pages->text(0, 0, {"Arial", 14, true, true, false}, "Reef");
            pages->newPage();
            EXPECT_EQ(content(), "an older log") << "not before its end";
            if (ended)
                pages->endDocument();
        }
        EXPECT_EQ(content() == "an older log", !ended);
        EXPECT_EQ(contentOf(folder.path()).size(), 1u);
    }
    EXPECT_TRUE(content().startsWith("%PDF-") && content().trimmed().endsWith("%%EOF"));
    EXPECT_TRUE(content().contains("/Count 2")) << "two pages";
}

TEST_F(WrittenFiles, PagesKeepTheOrientationTheyWerePaintedIn)
{
    QPrinter printer;
    printer.setOutputFileName(name);
    const auto pages = PagesOnPrinter(printer);
    pages->setLandscape(true);
    pages->beginDocument("Log");
    pages->endDocument();
    pages->setLandscape(false); // as a report leaves its printer; a preview asks afterwards
    EXPECT_EQ(printer.pageLayout().orientation(), QPageLayout::Landscape);
}

TEST_F(WrittenFiles, APdfInAFolderThatIsNotThereOrGoesAwayIsAFailure)
{
    EXPECT_THROW(PagesInPdf(folder.filePath("none/log.pdf")), RuntimeFailure);
    QDir(folder.path()).mkdir("usb");
    const auto pages = PagesInPdf(folder.filePath("usb/log.pdf"));
    pages->beginDocument("Log");
    ASSERT_TRUE(QDir(folder.filePath("usb")).removeRecursively());
    EXPECT_THROW(pages->endDocument(), RuntimeFailure);
}

TEST_F(WrittenFiles, ASettingMayHoldACommaWithoutQuotationMarks)
{
    writeFile(name, "[SETTINGS]\nCustom1=@, b\n");
    EXPECT_EQ(SettingsStore(name).value("Custom1", ""), "@, b");
}

TEST_F(WrittenFiles, ASettingThatCannotBeWrittenIsAFailureAndIsNotReadBack)
{
    writeFile(name, "no folder");
    SettingsStore settings(name + "/OMK.ini");
    for (int attempt = 0; attempt < 2; ++attempt) {
        EXPECT_THROW(settings.setValue("Date_Order", "YYMMDD"), RuntimeFailure);
        EXPECT_EQ(settings.value("Date_Order", "MMDDYY"), "MMDDYY");
    }
}
