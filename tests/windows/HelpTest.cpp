#include <QDialog>
#include <QDirIterator>
#include <QHelpEngineCore>
#include <QHelpLink>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTreeView>

#include "Hands.h"
#include "logbook/frm_WaterAddEdit.h"
#include "platform/HelpViewer.h"

namespace {

const QString helpFile = OMK_HELP_FILE;
const QString sources = OMK_SOURCE_DIR;
using At = HelpRequest::At;

QStringList filesOf(const QString &folder, const QString &pattern)
{
    QStringList found;
    for (QDirIterator it(folder, {pattern}, QDir::Files, QDirIterator::Subdirectories); it.hasNext();)
        found << it.next();
    return found;
}

/// The help file as any reader sees it.
class HelpBook : public ::testing::Test
{
protected:
    HelpBook()
    {
        m_engine.setReadOnly(false);
        EXPECT_TRUE(m_engine.setupData() && m_engine.registerDocumentation(helpFile));
    }
    /// Is there such a page, with such a place in it?
    bool leadsSomewhere(const QUrl &url) const
    {
        const QByteArray page = m_engine.fileData(url.adjusted(QUrl::RemoveFragment));
        return !page.isEmpty() &&
               (!url.hasFragment() || page.contains(QString("<a name=\"%1\"").arg(url.fragment()).toUtf8()));
    }
    void expectGoodLinks(const QUrl &page, const QByteArray &text, const char *attribute) const
    {
        const QRegularExpression link(attribute + QString("=\"([^\"]+)\""));
        for (auto it = link.globalMatch(QString::fromUtf8(text)); it.hasNext();) {
            const QString target = it.next().captured(1);
            EXPECT_TRUE(leadsSomewhere(page.resolved(target)))
                << page.fileName().toStdString() << " -> " << target.toStdString();
        }
    }

    const QTemporaryDir m_folder;
    QHelpEngineCore m_engine{m_folder.filePath("test.qhc")};
};

TEST_F(HelpBook, HasAPageForEveryWindow)
{
    const QStringList headers = filesOf(sources + "/src", "frm_*.h");
    ASSERT_GE(headers.size(), 26);
    for (const QString &header : headers) {
        const auto pages = m_engine.documentsForIdentifier(QFileInfo(header).baseName());
        ASSERT_EQ(pages.size(), 1) << header.toStdString();
        EXPECT_TRUE(leadsSomewhere(pages.front().url)) << header.toStdString();
    }
}

TEST_F(HelpBook, HasNoDeadLinkAndNoPageThatNothingLeadsTo)
{
    QFile project(sources + "/data/help/ostrelmark.qhp");
    ASSERT_TRUE(project.open(QIODevice::ReadOnly));
    const QByteArray contents = project.readAll();
    const QUrl root("qthelp://ostrelmark.help/doc/index.html");
    expectGoodLinks(root, contents, "ref");
    for (const QUrl &page : m_engine.files("ostrelmark.help", QString(), "html")) {
        EXPECT_TRUE(contents.contains(QString("\" ref=\"%1\"").arg(page.fileName()).toUtf8()))
            << page.fileName().toStdString();
        for (const char *attribute : {"href", "src"})
            expectGoodLinks(page, m_engine.fileData(page), attribute);
    }
}

TEST(Help, F1AsksForThePageOfTheWindowInFront)
{
    Keeper keeper;
    keeper.addTank("Reef", "1");
    auto &main = keeper.startProgram();
    QStringList asked;
    const auto press = [&] {
        hand::press(Qt::Key_F1);
        for (const HelpRequest &request : std::exchange(keeper.doors.helps, {}))
            asked << (request.at == At::Window ? request.window : QString("?"));
    };
    press();
    auto &logbook = hand::openLogbook(main);
    press();
    hand::clickTank(logbook, "Reef");
    keeper.inNext<frm_WaterAddEdit>([&](frm_WaterAddEdit &window) {
        press();
        QDialog box(&window); // such as the dialog of a printer
        box.setModal(true);
        box.show();
        EXPECT_TRUE(isInFront(box));
        press();
        box.close();
        window.close();
    });
    hand::press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(asked.join(' '), "frm_OMKMDIMain frm_Waterlog frm_WaterAddEdit frm_WaterAddEdit");
    main.activateWindow(); // without a window manager nobody else gives the activity back
    EXPECT_TRUE(isInFront(main));
    keeper.doors.helpIsThere = false;
    press();
    EXPECT_EQ(keeper.doors.takeText(),
              "Unable to display Help Contents. There is no Help associated with this project.");
}

/// The page that is shown, and the place in it.
QString sourceOf(HelpViewer &viewer)
{
    QCoreApplication::processEvents();
    return control<QTextBrowser>(viewer, "page").source().toString().section('/', -1);
}

TEST(Help, ViewerCanBeUsedOverADialogAndFindsWords)
{
    const QString folder = QFileInfo(helpFile).path();
    const QStringList before = filesOf(folder, "*");
    HelpViewer viewer(helpFile);
    QDialog first;
    first.setModal(true);
    first.show();
    viewer.open({At::Window, "frm_DiagDiagnosis"});
    EXPECT_TRUE(isInFront(viewer));
    auto &contents = control<QTreeView>(viewer, "contents");
    EXPECT_TRUE(QTest::qWaitFor([&contents] { // once they are read
        return contents.currentIndex().data() == "Disease diagnosis";
    }));
    EXPECT_EQ(sourceOf(viewer), "diagnosis.html#result"); // still, and not its top
    for (int steps = 4; steps > 0; --steps) // to an entry that shares its page with others, which must not take over
        QTest::keyClick(&contents, Qt::Key_Up);
    EXPECT_EQ(sourceOf(viewer), "index.html#advisers");
    EXPECT_EQ(contents.currentIndex().data(), "Advisers");
    auto &tabs = control<QTabWidget>(viewer, "tabs");
    hand::clickTab(tabs, 1);
    EXPECT_EQ(tabs.currentIndex(), 1);
    QDialog second; // over the help
    second.setModal(true);
    second.show();
    QCoreApplication::processEvents();
    hand::clickTab(tabs, 2);
    EXPECT_EQ(tabs.currentIndex(), 2);
    second.close();
    QCoreApplication::processEvents();
    hand::clickTab(tabs, 0);
    EXPECT_EQ(tabs.currentIndex(), 0);

    viewer.open({At::Search});
    EXPECT_TRUE(isInFront(viewer));
    hand::write("quarantine\n");
    EXPECT_TRUE(QTest::qWaitFor([&viewer] { return viewer.hits() >= 2; })) << viewer.hits();
    hand::press(Qt::Key_Escape);
    EXPECT_FALSE(viewer.isVisible());
    EXPECT_EQ(filesOf(folder, "*"), before); // where it is installed it cannot write
    EXPECT_THROW(HelpViewer(sources + "/data/tips.txt"), RuntimeFailure);
}

} // namespace
