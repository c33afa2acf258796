// The files that the program writes besides the database: PDFs and settings. If writing fails, an existing file does
// not change.
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

/// Calls `look` with the dialog in front fifty times a second. After ten seconds it closes every dialog instead, so
/// that a fault fails the test and does not hang it.
class Attendant
{
public:
    explicit Attendant(const std::function<void(QWidget *)> &look)
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this, look] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (++m_looks <= 500)
                look(dialog);
            else if (dialog)
                dialog->close();
        });
        m_timer.start(20);
    }

private:
    QTimer m_timer;
    int m_looks = 0;
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
        pages = PagesInPdf(name);
        pages->beginDocument("Log");
        const auto printManyPages = [&] {
            for (int page = 0; page < 50; ++page) {
                pages->text(0, 0, {"Arial", 14}, QString(3000, QChar(u'a' + page)));
                pages->newPage();
            }
        };
        EXPECT_EQ(numberOf(printManyPages), int(Failure::DiskFull)) << "not after the last page";
        pages.reset();
    }
    EXPECT_EQ(content(), "an older log");
    EXPECT_EQ(contentOf(folder.path()).size(), 1u);
}

TEST_F(WrittenFiles, APdfIsAskedForByTheNameThatItGets)
{
    qputenv("CUPS_SERVER", "/nowhere"); // no printer, whatever the machine has
    const QString mine = folder.filePath("mine.pdf");
    writeFile(mine, "another report");
    DesktopDoors doors;
    QStringList questions;
    const Attendant keeper([&](QWidget *dialog) {
        if (auto *question = qobject_cast<QMessageBox *>(dialog)) {
            questions << question->text();
            question->button(QMessageBox::No)->click();
        } else if (auto *files = qobject_cast<QFileDialog *>(dialog); files && questions.isEmpty()) {
            files->setDirectory(folder.path());
            auto *box = files->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            box->clear();
            QTest::keyClicks(box, QStringLiteral("mine"));
            QTimer::singleShot(0, box, [box] { QTest::keyClick(box, Qt::Key_Return); });
        } else if (files) {
            files->reject();
        }
    });
    EXPECT_EQ(doors.saveDialog(AskForPrintFile("Print Log", {"Print Log", false, "Log"})), std::nullopt);
    EXPECT_EQ(questions.size(), 1);
    EXPECT_TRUE(std::exchange(questions, {}).join(' ').contains("mine.pdf"));
    EXPECT_FALSE(doors.printDialog({"Print Log", false, "Log"})) << "no printer";
    EXPECT_TRUE(questions.join(' ').contains("mine.pdf"));
}

TEST_F(WrittenFiles, TheKindOfFileThatIsChosenGivesTheSuffix)
{
    DesktopDoors doors;
    QStringList offered;
    const Attendant keeper([&](QWidget *dialog) {
        auto *files = qobject_cast<QFileDialog *>(dialog);
        if (!files)
            return;
        const auto *box = files->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        offered << box->text();
        files->setDirectory(folder.path());
        auto *kinds = files->findChild<QComboBox *>(QStringLiteral("fileTypeCombo"));
        QTest::keyClick(kinds, Qt::Key_Down);
        emit kinds->textActivated(kinds->currentText());
        offered << box->text();
        QMetaObject::invokeMethod(files, "accept");
    });
    EXPECT_EQ(doors.saveDialog(AskForPrintFile("Print Log", {"Print Log", false, "The Log", true})),
              folder.filePath("The Log.csv"));
    EXPECT_EQ(offered, QStringList({"The Log.pdf", "The Log.csv"}));
}

TEST_F(WrittenFiles, APreviewLiesAsItsToolbarSaysAndIsPrintedSo)
{
    qputenv("CUPS_SERVER", "/nowhere");
    DesktopDoors doors;
    Doors *former = Doors::install(&doors);
    QStringList painted;
    const PreviewRequest request{{"Print Log", true, "Log"}, [&](PageSink &pages) {
                                     painted << (pages.width() > pages.height() ? "landscape" : "portrait");
                                     pages.beginDocument("Log");
                                     pages.text(0, 0, {"Arial", 14}, "Reef");
                                     pages.endDocument();
                                 }};
    const auto button = [](QWidget *dialog, const QString &text) {
        for (auto *action : dialog->findChildren<QAction *>())
            if (action->text() == text)
                return action;
        return static_cast<QAction *>(nullptr);
    };
    int step = 0;
    const Attendant keeper([&](QWidget *dialog) {
        if (auto *files = qobject_cast<QFileDialog *>(dialog)) {
            files->selectFile(name + ".pdf");
            QTest::keyClick(files->findChild<QLineEdit *>(QStringLiteral("fileNameEdit")), Qt::Key_Return);
        } else if (dialog && dialog->findChild<PageView *>() && !painted.isEmpty() && ++step == 1) {
            EXPECT_TRUE(button(dialog, "Landscape")->isChecked());
            EXPECT_EQ(painted.back(), "landscape");
            button(dialog, "Portrait")->trigger();
        } else if (step == 2) {
            EXPECT_EQ(painted.back(), "portrait");
            QMetaObject::invokeMethod(button(dialog, "Print"), "trigger", Qt::QueuedConnection);
            step = 3;
        }
    });
    const auto answer = doors.preview(request);
    Doors::install(former);
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->copies, 1);
    EXPECT_EQ(answer->target.fileName, name + ".pdf");
    EXPECT_TRUE(answer->target.keepsOrientation);
    const auto pages = doors.openPages(answer->target);
    EXPECT_LT(pages->width(), pages->height());
}

/// A report of pages with one word each. `atPage` is called when that many pages are complete.
Report pagesOf(
    int pages, const std::function<void(int)> &atPage = [](int) {})
{
    return {"Print Log", "Log", false, [] { return true; },
            [=](Printer &page) {
                for (int number = 1; number <= pages; ++number) {
                    page.Print("Reef");
                    if (number < pages)
                        page.NewPage();
                    atPage(number);
                }
                page.EndDoc();
            }};
}

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

TEST_F(WrittenFiles, AReportThatFailsLeavesTheOlderFileAndOneThatEndsReplacesIt)
{
    const NamingDoors doors(name);
    for (const bool fails : {true, false}) {
        writeFile(name, "an older log");
        QString panel;
        const auto run = [&] {
            RunReport(pagesOf(30,
                              [fails](int page) {
                                  if (fails && page == 20)
                                      throw RuntimeFailure(Failure::DeviceError);
                              }),
                      PrintTarget::File, [&panel](const QString &text) { panel = text; });
        };
        if (fails)
            EXPECT_THROW(run(), RuntimeFailure);
        else
            run();
        EXPECT_EQ(content() == "an older log", fails);
        EXPECT_EQ(content().contains("/Count 30"), !fails);
        EXPECT_EQ(contentOf(folder.path()).size(), 1u);
        EXPECT_EQ(panel, fails ? QString("Ready.") : "Log: written to \"" + name + "\".");
    }
}

TEST_F(WrittenFiles, APreviewShowsItsFirstPageAtOnceAndHasThePagesThatArePrinted)
{
    qputenv("CUPS_SERVER", "/nowhere");
    const NamingDoors doors(name);
    int midway = 0, shown = 0;
    const Report report{"Print Log", "Log", false, [] { return true; },
                        [&midway](Printer &page) {
                            page.Font = {"Times New Roman", 10};
                            for (int line = 1; line <= 4000; ++line) {
                                page.Print("Reef");
                                if (line == 2000 && midway == 0)
                                    midway = viewInFront() ? viewInFront()->pages() : -1;
                            }
                            page.EndDoc();
                        }};
    const Attendant keeper([&shown](QWidget *dialog) {
        PageView *view = viewInFront();
        if (!view || shown > 0 || dialog->findChild<QLabel *>("pageCount")->text().contains("..."))
            return;
        shown = view->pages();
        view->goTo(shown / 2);
        view->zoomTo(2 * view->zoom());
        EXPECT_EQ(view->page(), shown / 2) << "the same page, larger";
        for (auto *action : dialog->findChildren<QAction *>())
            if (action->text() == "Print")
                QMetaObject::invokeMethod(action, "trigger", Qt::QueuedConnection);
    });
    RunReport(report, PrintTarget::Window, [](const QString &) {});
    EXPECT_TRUE(midway >= 1 && midway < shown) << midway;
    const auto printed = [this] {
        return content().mid(content().indexOf("/Count ") + 7).split('\n').constFirst().toInt();
    };
    EXPECT_EQ(printed(), shown) << "printed from the preview";
    RunReport(report, PrintTarget::File, [](const QString &) {});
    EXPECT_EQ(printed(), shown) << "printed without a preview";
}

TEST_F(WrittenFiles, APreviewThatIsClosedEndsItsReportAndAFailureClosesThePreview)
{
    const NamingDoors doors(name);
    const int endless = 1'000'000;
    int made = 0;
    bool closes = true;
    const Attendant keeper([&closes](QWidget *dialog) {
        if (PageView *view = viewInFront(); view && view->pages() > 0 && closes)
            dialog->close();
    });
    RunReport(pagesOf(endless, [&made](int page) { made = page; }), PrintTarget::Window, [](const QString &) {});
    EXPECT_LT(made, endless);
    closes = false;
    EXPECT_THROW(RunReport(pagesOf(3,
                                   [](int page) {
                                       if (page == 2)
                                           throw RuntimeFailure(Failure::DeviceError);
                                   }),
                           PrintTarget::Window, [](const QString &) {}),
                 RuntimeFailure);
    EXPECT_FALSE(viewInFront());
}

TEST_F(WrittenFiles, CopiesAreAskedForOnceAndTheirCountDoesNotStayInThePrinter)
{
    const auto printer = std::make_shared<QPrinter>();
    printer->setOutputFileName(name);
    const Attendant keeper([](QWidget *dialog) {
        if (auto *print = qobject_cast<QPrintDialog *>(dialog)) {
            print->findChild<QSpinBox *>(QStringLiteral("copies"))->setValue(3);
            print->accept();
        }
    });
    const auto answer = AskPrinter(nullptr, {"Print Log", false, "Log"}, printer);
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->copies, 3);
    EXPECT_EQ(printer->copyCount(), 1) << "or each of the three documents would come three times";
}

TEST_F(WrittenFiles, APrinterKeepsTheChosenPaper)
{
    const auto printer = std::make_shared<QPrinter>();
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
