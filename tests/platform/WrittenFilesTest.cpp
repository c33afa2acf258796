// The files that the program writes besides the database, PDFs and settings, and the dialogs and previews that they
// come from. If writing fails, an existing file does not change.
#include <functional>

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "platform/core/Doors.h"
#include "platform/core/Printer.h"
#include "platform/core/PrintJob.h"
#include "platform/core/SettingsStore.h"
#include "platform/desktop/DesktopDoors.h"
#include "platform/desktop/PageView.h"
#include "platform/desktop/PaintedPages.h"
#include "platform/desktop/Paper.h"
#include "support/Failures.h"
#include "support/TestFiles.h"

/// Calls `look` with the dialog in front fifty times a second.
struct Attendant : QTimer
{
    explicit Attendant(const std::function<void(QWidget *)> &look)
    {
        callOnTimeout([look] { look(QApplication::activeModalWidget()); });
        start(20);
    }
};

PageView *viewInFront()
{
    QWidget *dialog = QApplication::activeModalWidget();
    return dialog ? dialog->findChild<PageView *>() : nullptr;
}

/// The desktop with a keeper who gives this name to each file.
struct NamingDoors : DesktopDoors
{
    explicit NamingDoors(const QString &name) : name(name), former(Doors::install(this)) {}
    ~NamingDoors() override { Doors::install(former); }
    std::optional<QString> saveDialog(const SaveDialogRequest &) override { return name; }
    const QString name;
    Doors *former;
};

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
            EXPECT_EQ(pages->whereTo(), "written to \"" + name + '"');
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

TEST_F(WrittenFiles, APdfThatCannotBeWrittenSaysWhy)
{
    EXPECT_EQ(numberOf([&] { PagesInPdf(folder.filePath("none/log.pdf")); }), int(Failure::PathNotFound));
    QDir(folder.path()).mkdir("usb");
    EXPECT_EQ(numberOf([&] { PagesInPdf(folder.filePath("usb")); }), int(Failure::PermissionDenied)) << "a folder";
    auto pages = PagesInPdf(folder.filePath("usb/log.pdf"));
    pages->beginDocument("Log");
    ASSERT_TRUE(QDir(folder.filePath("usb")).removeRecursively());
    EXPECT_EQ(numberOf([&] { pages->endDocument(); }), int(Failure::PathNotFound));

    writeFile(name, "an older log");
    pages = PagesInPdf(name);
    pages->beginDocument("Log");
    {
        const SmallDisk disk(100, false);
        EXPECT_EQ(numberOf([&] { pages->endDocument(); }), int(Failure::DiskFull));
        pages.reset();
    }
    EXPECT_EQ(content(), "an older log");
    EXPECT_EQ(contentOf(folder.path()).size(), 1u);
}

TEST_F(WrittenFiles, AFileIsAskedForByTheNameThatItGets)
{
    qputenv("CUPS_SERVER", "/nowhere"); // no printer, whatever the machine has
    for (const char *present : {"mine.csv", "mine.pdf"})
        writeFile(folder.filePath(present), "another report");
    DesktopDoors doors;
    QStringList titles, offered, asked;
    const Attendant keeper([&](QWidget *dialog) {
        if (auto *question = qobject_cast<QMessageBox *>(dialog)) {
            asked << question->text();
            question->button(asked.size() == 1 ? QMessageBox::No : QMessageBox::Yes)->click();
        } else if (auto *files = qobject_cast<QFileDialog *>(dialog); files && !titles.contains(files->windowTitle())) {
            titles << files->windowTitle();
            files->setDirectory(folder.path());
            auto *kinds = files->findChild<QComboBox *>(QStringLiteral("fileTypeCombo"));
            QTest::keyClick(kinds, Qt::Key_Down);
            emit kinds->textActivated(kinds->currentText());
            auto *box = files->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            offered << box->text();
            box->setText(QStringLiteral("mine"));
            QTimer::singleShot(0, box, [box] { QTest::keyClick(box, Qt::Key_Return); });
        } else if (files && asked.size() == titles.size()) {
            files->reject();
        }
    });
    EXPECT_EQ(doors.saveDialog(AskForPrintFile("Save Log", {"Print Log", false, "The Log", true})), std::nullopt);
    const auto answer = doors.printDialog({"Print Log", false, "Log"}); // only a PDF
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->target.fileName, folder.filePath("mine.pdf"));
    EXPECT_EQ(titles.join('|'), "Save Log|No printer is set up: save in a file");
    EXPECT_EQ(offered.join('|'), "The Log.csv|Log.pdf");
    EXPECT_TRUE(asked.at(0).contains("mine.csv") && asked.at(1).contains("mine.pdf"));
}

TEST_F(WrittenFiles, APreviewShowsItsFirstPageAtOnceAndIsPrintedAsItWasTurned)
{
    qputenv("CUPS_SERVER", "/nowhere");
    const NamingDoors doors(name);
    int midway = 0, lying = 0, turned = 0;
    const Report report{"Print Log", "Log", true, [] { return true; },
                        [&midway](Printer &page) {
                            page.setLandscape(true);
                            page.Font = {"Times New Roman", 10};
                            for (int line = 1; line <= 1500; ++line) {
                                page.Print("Reef");
                                if (line == 750 && midway == 0)
                                    midway = viewInFront() ? viewInFront()->pages() : -1;
                            }
                            page.EndDoc();
                        }};
    const Attendant keeper([&](QWidget *dialog) {
        PageView *view = viewInFront();
        if (!view || turned > 0 || dialog->findChild<QLabel *>("pageCount")->text().contains("..."))
            return;
        QMap<QString, QAction *> tools;
        for (auto *action : dialog->findChildren<QAction *>())
            tools[action->text()] = action;
        if (tools["Landscape"]->isChecked()) {
            lying = view->pages();
            return tools["Portrait"]->trigger();
        }
        turned = view->pages();
        QMetaObject::invokeMethod(tools["Print"], "trigger", Qt::QueuedConnection);
    });
    const auto pagesInFile = [&](PrintTarget target) {
        RunReport(report, target, [](const QString &) {});
        return content().mid(content().indexOf("/Count ") + 7).split('\n').constFirst().toInt();
    };
    EXPECT_EQ(pagesInFile(PrintTarget::Window), turned);
    EXPECT_EQ(pagesInFile(PrintTarget::File), lying) << "printed without a preview";
    EXPECT_LT(turned, lying) << "a page in portrait is longer";
    EXPECT_TRUE(midway >= 1 && midway < lying) << midway;
}

TEST_F(WrittenFiles, APreviewThatIsClosedEndsItsReportAndAFailureClosesThePreview)
{
    const NamingDoors doors(name);
    const int endless = 1'000'000;
    int made = 0;
    bool fails = false;
    const Report report{"Print Log", "Log", false, [] { return true; },
                        [&](Printer &page) {
                            for (made = 0; made < endless; ++made) {
                                page.Print("Reef");
                                page.NewPage();
                                if (fails)
                                    throw RuntimeFailure(Failure::DeviceError);
                            }
                        }};
    const Attendant keeper([&fails](QWidget *dialog) {
        if (PageView *view = viewInFront(); view && view->pages() > 0 && !fails)
            dialog->close();
    });
    RunReport(report, PrintTarget::Window, [](const QString &) {});
    EXPECT_LT(made, endless);
    fails = true;
    EXPECT_THROW(RunReport(report, PrintTarget::Window, [](const QString &) {}), RuntimeFailure);
    EXPECT_FALSE(viewInFront());
}

TEST_F(WrittenFiles, APrinterKeepsTheChosenPaperButNoNumberOfCopies)
{
    const auto printer = std::make_shared<QPrinter>();
    const Attendant keeper([](QWidget *dialog) {
        if (auto *print = qobject_cast<QPrintDialog *>(dialog)) {
            print->findChild<QSpinBox *>(QStringLiteral("copies"))->setValue(2);
            print->accept();
        }
    });
    EXPECT_EQ(AskPrinter(nullptr, {"Print Log", true, "Log"}, printer).value_or(PrintDialogAnswer{}).copies, 2);
    EXPECT_EQ(printer->copyCount(), 1) << "or each of the two documents would come twice";
    printer->setOutputFileName(name);
    printer->setPageSize(QPageSize(QPageSize::A5));
    for (int copy = 0; copy < 2; ++copy) {
        const auto pages = PagesOnPrinter(printer);
        pages->setLandscape(true);
        pages->beginDocument("Log");
        pages->text(0, 0, {"Arial", 14}, "Reef");
        pages->endDocument();
        pages->setLandscape(false);
        EXPECT_TRUE(content().contains("/MediaBox [0 0 595")) << "A5, landscape";
        QFile::remove(name);
    }
}

TEST_F(WrittenFiles, ASettingMayHoldACommaAndOneThatCannotBeWrittenIsAFailureAndIsNotReadBack)
{
    writeFile(name, "[SETTINGS]\nCustom1=@, b\n");
    EXPECT_EQ(SettingsStore(name).value("Custom1", ""), "@, b");
    SettingsStore settings(name + "/OMK.ini"); // in a folder that is a file
    for (int attempt = 0; attempt < 2; ++attempt) {
        EXPECT_THROW(settings.setValue("Date_Order", "YYMMDD"), RuntimeFailure);
        EXPECT_EQ(settings.value("Date_Order", "MMDDYY"), "MMDDYY");
    }
}
