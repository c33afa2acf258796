// The boxes and dialogs of the real desktop as they are: what they show, and what each key and button answers.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include "platform/core/RuntimeFailure.h"
#include "platform/desktop/DesktopDoors.h"

namespace {

/// Says what the keeper does in the dialog that opens next.
template <class Dialog> void inNext(const std::function<void(Dialog &)> &action)
{
    QTimer::singleShot(0, qApp, [action] {
        QDialog *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        if (auto *expected = qobject_cast<Dialog *>(dialog))
            action(*expected);
        if (dialog->isVisible()) {
            ADD_FAILURE() << "The dialog is still open.";
            dialog->reject();
        }
    });
}

using Answer = MsgBoxAnswer;

TEST(RealDoors, EveryBoxAnswersEscEnterAndItsButtons)
{
    const QMap<QString, Answer> names{{"OK", Answer::OK},  {"Cancel", Answer::Cancel}, {"&Yes", Answer::Yes},
                                      {"&No", Answer::No}, {"&Skip", Answer::Skip},    {"&Delete", Answer::Delete}};
    const struct
    {
        int flags;
        Answer escape, enter;
        QStringList buttons;
    } rows[] = {
        {vbOKOnly | vbCritical, Answer::OK, Answer::OK, {"OK"}},
        {vbOKCancel | vbQuestion, Answer::Cancel, Answer::OK, {"OK", "Cancel"}},
        {vbOKCancel | vbDefaultButton2, Answer::Cancel, Answer::Cancel, {"OK", "Cancel"}},
        {vbYesNo, Answer::No, Answer::Yes, {"&Yes", "&No"}},
        {vbYesNo | vbDefaultButton2, Answer::No, Answer::No, {"&Yes", "&No"}},
        {vbYesNoCancel, Answer::Cancel, Answer::Yes, {"&Yes", "&No", "Cancel"}},
        {omkSkipDelete, Answer::Skip, Answer::Skip, {"&Skip", "&Delete"}},
    };
    DesktopDoors doors;
    for (const auto &row : rows) {
        SCOPED_TRACE(row.flags);
        const auto answer = [&](const std::function<void(QMessageBox &)> &action) {
            inNext<QMessageBox>(action);
            return doors.msgBox({"Really <b>?", row.flags, "Note!"});
        };
        EXPECT_EQ(answer([](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Escape); }), row.escape);
        EXPECT_EQ(answer([&](QMessageBox &box) {
                      EXPECT_EQ(box.text() + box.windowTitle(), "Really <b>?Note!");
                      EXPECT_EQ(box.textFormat(), Qt::PlainText);
                      EXPECT_EQ(box.buttons().size(), row.buttons.size());
                      QTest::keyClick(&box, Qt::Key_Return);
                  }),
                  row.enter);
        for (const QString &name : row.buttons)
            EXPECT_EQ(answer([&](QMessageBox &box) {
                          for (QAbstractButton *button : box.buttons())
                              if (button->text() == name)
                                  return button->click();
                      }),
                      names[name])
                << name.toStdString();
    }
}

TEST(RealDoors, AFailureIsShownWithEndAndWhereTheProgramCanGoOnWithReturn)
{
    DesktopDoors doors;
    for (const auto &[mayReturn, key, ends] : {std::tuple{true, Qt::Key_Escape, false},
                                               {true, Qt::Key_Return, true},
                                               {false, Qt::Key_Escape, true},
                                               {false, Qt::Key_Return, true}}) {
        inNext<QMessageBox>([mayReturn = mayReturn, key = key](QMessageBox &box) {
            EXPECT_EQ(box.text() + ' ' + box.informativeText(), "Run-time error '61': Disk full.\nThe file x.");
            EXPECT_EQ(box.buttons().size(), mayReturn ? 2 : 1);
            QTest::keyClick(&box, key);
        });
        EXPECT_EQ(doors.failureBox(RuntimeFailure(Failure::DiskFull, "The file x."), mayReturn), ends) << key;
    }
}

TEST(RealDoors, TheFileDialogOffersTheNameAndTheKindOfFile)
{
    DesktopDoors doors;
    const QTemporaryDir folder;
    const SaveDialogRequest request{"Back up", folder.filePath("OM.MDB"), "Databases (*.MDB);;All files (*)", "MDB"};
    for (const bool accepts : {true, false}) {
        inNext<QFileDialog>([&](QFileDialog &dialog) {
            EXPECT_EQ(dialog.windowTitle(), request.title);
            EXPECT_EQ(dialog.selectedFiles().value(0), request.fileName);
            EXPECT_EQ(dialog.nameFilters().join(";;"), request.filter);
            EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
            QDialog &asDialog = dialog;
            accepts ? asDialog.accept() : asDialog.reject();
        });
        EXPECT_EQ(doors.saveDialog(request), accepts ? std::optional(request.fileName) : std::nullopt);
    }
}

} // namespace
