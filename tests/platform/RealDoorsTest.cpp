// The message boxes of the real desktop as they are: what they show, and what each key and button answers.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include "platform/core/RuntimeFailure.h"
#include "platform/desktop/DesktopDoors.h"

namespace {

/// Says what the keeper does in the box that opens next.
void inNextBox(const std::function<void(QMessageBox &)> &action)
{
    QTimer::singleShot(0, qApp, [action] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        action(*box);
        EXPECT_FALSE(box->isVisible());
        box->close();
    });
}

TEST(RealDoors, EveryBoxAnswersEscEnterAndItsButtons)
{
    using enum MsgBoxAnswer;
    const std::pair<int, QMap<QString, MsgBoxAnswer>> rows[] = {
        {vbOKOnly | vbCritical, {{"Esc", OK}, {"Enter", OK}, {"OK", OK}}},
        {vbOKCancel | vbQuestion, {{"Esc", Cancel}, {"Enter", OK}, {"OK", OK}, {"Cancel", Cancel}}},
        {vbOKCancel | vbDefaultButton2, {{"Esc", Cancel}, {"Enter", Cancel}, {"OK", OK}, {"Cancel", Cancel}}},
        {vbYesNo, {{"Esc", No}, {"Enter", Yes}, {"&Yes", Yes}, {"&No", No}}},
        {vbYesNo | vbDefaultButton2, {{"Esc", No}, {"Enter", No}, {"&Yes", Yes}, {"&No", No}}},
        {vbYesNoCancel, {{"Esc", Cancel}, {"Enter", Yes}, {"&Yes", Yes}, {"&No", No}, {"Cancel", Cancel}}},
        {omkSkipDelete, {{"Esc", Skip}, {"Enter", Skip}, {"&Skip", Skip}, {"&Delete", Delete}}},
    };
    DesktopDoors doors;
    for (const auto &[flags, ways] : rows)
        for (const auto &[way, answer] : ways.asKeyValueRange()) {
            inNextBox([&](QMessageBox &box) {
                EXPECT_EQ(box.text() + box.windowTitle(), "Really <b>?Note!");
                EXPECT_EQ(box.textFormat(), Qt::PlainText);
                EXPECT_EQ(box.buttons().size(), ways.size() - 2);
                if (way == "Esc" || way == "Enter")
                    return QTest::keyClick(&box, way == "Esc" ? Qt::Key_Escape : Qt::Key_Return);
                for (QAbstractButton *button : box.buttons())
                    if (button->text() == way)
                        return button->click();
            });
            EXPECT_EQ(doors.msgBox({"Really <b>?", flags, "Note!"}), answer) << flags << ' ' << way.toStdString();
        }
}

TEST(RealDoors, AFailureIsShownWithEndAndWhereTheProgramCanGoOnWithReturn)
{
    DesktopDoors doors;
    for (const bool mayReturn : {true, false})
        for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
            inNextBox([&](QMessageBox &box) {
                EXPECT_EQ(box.text() + ' ' + box.informativeText(), "Run-time error '61': Disk full.\nThe file x.");
                EXPECT_EQ(box.buttons().size(), mayReturn ? 2 : 1);
                QTest::keyClick(&box, key);
            });
            EXPECT_EQ(doors.failureBox(RuntimeFailure(Failure::DiskFull, "The file x."), mayReturn),
                      !mayReturn || key == Qt::Key_Return);
        }
}

} // namespace
