#include "Desk.h"
#include "platform/desktop/HelpViewer.h"
#include "windows/logbook/frm_WaterAddEdit.h"

namespace {

const QString helpFile = OMK_HELP_FILE;
using At = HelpRequest::At;

using Help = Desk;

TEST_F(Help, TheMenuAndF1AskForTheirPagesAndAMissingHelpIsTold)
{
    keeper.doors.helpIsThere = false;
    const QString missing = "0| Ostrelmark 98/64/Unable to display Help Contents. There is no Help associated with "
                            "this project.";
    for (const auto &[entry, at] : {std::pair("mnu_HelpContents", At::Contents), {"mnu_HelpSearch", At::Search}}) {
        hand::choose(*main, *main->mnu_Help, entry);
        EXPECT_EQ(keeper.told(), missing);
        EXPECT_TRUE(keeper.doors.helps.back().at == at);
    }
    keeper.doors.helpIsThere = true;
    const auto f1AsksFor = [&](const char *window) {
        hand::press(Qt::Key_F1);
        EXPECT_EQ(keeper.doors.helps.back().window, window);
        EXPECT_TRUE(keeper.doors.helps.back().at == At::Window);
    };
    f1AsksFor("frm_Waterlog");
    give<frm_WaterAddEdit>("addentries", 0, [&](frm_WaterAddEdit &window) {
        f1AsksFor("frm_WaterAddEdit");
        window.close();
    });
    keeper.restart();
    keeper.startProgram();
    f1AsksFor("frm_OMKMDIMain");
}

/// The page that is shown, and the position in it.
QString sourceOf(HelpViewer &viewer)
{
    QCoreApplication::processEvents();
    return control<QTextBrowser>(viewer, "page").source().toString().section('/', -1);
}

TEST(HelpViewer, CanBeUsedOverADialogAndFindsWords)
{
    const QString folder = QFileInfo(helpFile).path();
    const QStringList before = QDir(folder).entryList();
    HelpViewer viewer(helpFile);
    QDialog first;
    first.setModal(true);
    first.show();
    viewer.open({At::Window, "frm_DiagDiagnosis"});
    EXPECT_TRUE(isInFront(viewer));
    auto &contents = control<QTreeView>(viewer, "contents");
    EXPECT_TRUE(QTest::qWaitFor([&contents] { // once the contents are read
        return contents.currentIndex().data() == "Disease diagnosis";
    }));
    EXPECT_EQ(sourceOf(viewer), "diagnosis.html#result"); // still there, and not at the top of the page
    for (int steps = 4; steps > 0; --steps) // to one of several entries for a page; the others must not become current
        QTest::keyClick(&contents, Qt::Key_Up);
    EXPECT_EQ(sourceOf(viewer), "index.html#advisers");
    EXPECT_EQ(contents.currentIndex().data(), "Advisers");
    viewer.open({At::Search});
    EXPECT_TRUE(isInFront(viewer));
    hand::write("quarantine\n");
    EXPECT_TRUE(QTest::qWaitFor([&viewer] { // the pages found are links in a list of the toolkit's
        qsizetype links = 0;
        for (const QTextBrowser *list : viewer.findChildren<QTextBrowser *>())
            links += list->objectName() == "page" ? 0 : list->toHtml().count("href=");
        return links >= 2;
    }));
    hand::press(Qt::Key_Escape);
    EXPECT_FALSE(viewer.isVisible());
    EXPECT_EQ(QDir(folder).entryList(), before); // in an installed program this folder is read-only
    EXPECT_THROW(HelpViewer(folder + "/NAMESSW.TXT"), RuntimeFailure);
}

} // namespace
