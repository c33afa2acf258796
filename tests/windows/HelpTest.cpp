#include "Desk.h"
#include "platform/desktop/HelpViewer.h"
#include "windows/logbook/frm_WaterAddEdit.h"

using At = HelpRequest::At;

using Help = Desk;

TEST_F(Help, TheMenuAndF1AskForTheirPagesAndAMissingHelpIsTold)
{
    keeper.doors.helpIsThere = false;
    for (const auto &[entry, at] : {std::pair("mnu_HelpContents", At::Contents), {"mnu_HelpSearch", At::Search}}) {
        hand::choose(*main, *main->mnu_Help, entry);
        EXPECT_EQ(keeper.told(), "0| Ostrelmark 98/64/Unable to display Help Contents. There is no Help associated "
                                 "with this project.");
        EXPECT_TRUE(keeper.doors.helps.back().at == at);
    }
    keeper.doors.helpIsThere = true;
    give<frm_WaterAddEdit>("addentries", 0, [&](frm_WaterAddEdit &window) {
        hand::press(Qt::Key_F1);
        window.close();
    });
    EXPECT_EQ(keeper.doors.helps.back().window, "frm_WaterAddEdit");
    EXPECT_TRUE(keeper.doors.helps.back().at == At::Window);
}

TEST(HelpViewer, CanBeUsedOverADialogAndFindsWords)
{
    HelpViewer viewer(OMK_HELP_FILE);
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    viewer.open({At::Window, "frm_DiagDiagnosis"});
    EXPECT_TRUE(isInFront(viewer));
    auto &contents = control<QTreeView>(viewer, "contents");
    EXPECT_TRUE(QTest::qWaitFor([&contents] { // once the contents are read
        return contents.currentIndex().data() == "Disease diagnosis";
    }));
    EXPECT_TRUE(control<QTextBrowser>(viewer, "page").source().toString().endsWith("/diagnosis.html#result"))
        << "not at the top of the page";
    viewer.open({At::Search});
    hand::write("quarantine\n");
    EXPECT_TRUE(QTest::qWaitFor([&viewer] { // the pages found are links in a list of the toolkit's
        qsizetype links = 0;
        for (const QTextBrowser *list : viewer.findChildren<QTextBrowser *>())
            links += list->objectName() == "page" ? 0 : list->toHtml().count("href=");
        return links >= 2;
    }));
    hand::press(Qt::Key_Escape);
    EXPECT_FALSE(viewer.isVisible());
}
