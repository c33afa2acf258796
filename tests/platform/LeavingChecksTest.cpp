// Tries every way out of a box with a bad value, in a modal window and in one that is not. Mouse events go through the
// window system, because Qt then moves the focus before it delivers the press.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "platform/controls/LeavingChecks.h"
#include "support/Mouse.h"
#include "support/ScriptedDoors.h"

namespace {

/// A window with two boxes that refuse "bad", OK and Cancel. It is shown with the focus in the first box.
struct EntryWindow : QDialog
{
    explicit EntryWindow(bool modal)
    {
        auto *column = new QVBoxLayout(this);
        for (QWidget *widget : std::initializer_list<QWidget *>{first, second, ok, cancel})
            column->addWidget(widget);
        ok->setDefault(true);
        for (QLineEdit *box : {first, second})
            checks.watch(box, [box] {
                const bool good = box->text() != QStringLiteral("bad");
                if (!good)
                    MsgBox(QStringLiteral("Not this."));
                return good;
            });
        checks.exempt(cancel);
        connect(ok, &QPushButton::clicked, this, [this] { stored += checks.passes() ? 1 : 0; });
        connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
        setModal(modal);
        show();
        activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(this));
        first->setFocus();
    }
    void enter(const char *text)
    {
        first->selectAll();
        QTest::keyClicks(first, QLatin1String(text));
    }

    QLineEdit *first = new QLineEdit, *second = new QLineEdit;
    QPushButton *ok = new QPushButton, *cancel = new QPushButton;
    LeavingChecks checks{this};
    int stored = 0;
};

using namespace mouse;

void toAnotherWindowAndBack(EntryWindow &w)
{
    QWidget other;
    other.show();
    other.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    w.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&w));
}

struct WayOut
{
    const char *name;
    void (*go)(EntryWindow &);
    int boxes;         ///< how many message boxes are shown
    bool stays = true; ///< the window stays open, with the focus in the bad box
};

const WayOut waysOut[] = {
    {"OK by mouse", [](EntryWindow &w) { click(w.ok); }, 1},
    {"OK by Enter", [](EntryWindow &w) { QTest::keyClick(w.first, Qt::Key_Return); }, 1},
    {"OK pressed, let go over the box", [](EntryWindow &w) { press(w.ok), release(w.first); }, 1},
    {"double click on OK", [](EntryWindow &w) { press(w.ok), release(w.ok), press(w.ok), release(w.ok); }, 2},
    {"another box by mouse", [](EntryWindow &w) { click(w.second); }, 1},
    {"two bad boxes", [](EntryWindow &w) { w.second->setText("bad"), QTest::keyClick(w.first, Qt::Key_Tab); }, 1},
    {"Esc", [](EntryWindow &w) { QTest::keyClick(w.first, Qt::Key_Escape); }, 0, false},
    {"Cancel by mouse", [](EntryWindow &w) { click(w.cancel); }, 0, false},
    {"Cancel let go outside, then OK", [](EntryWindow &w) { press(w.cancel), release(w.second), click(w.ok); }, 1},
    {"an exempt button, and on", [](EntryWindow &w) { w.cancel->setFocus(), w.second->setFocus(); }, 1},
    {"another window and back", toAnotherWindowAndBack, 0},
};

/// Shows a real message box, which takes the activation from the window and gives it back.
void showRealBox(const MsgBoxRequest &)
{
    QWidget *window = QApplication::activeWindow();
    QMessageBox box(window);
    QTimer::singleShot(0, &box, &QDialog::accept);
    box.exec();
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window));
}

TEST(LeavingChecks, RefuseABadValueOnEveryWayOut)
{
    for (const WayOut &way : waysOut)
        for (const bool modal : {false, true})
            for (const bool realBox : {false, true}) {
                SCOPED_TRACE(std::string(way.name) + (modal ? ", modal" : "") + (realBox ? ", box on the screen" : ""));
                ScriptedDoors doors;
                if (realBox)
                    doors.whileBoxIsUp = showRealBox;
                EntryWindow w(modal);
                w.enter("bad");
                way.go(w);
                QCoreApplication::processEvents();
                EXPECT_EQ(std::exchange(doors.boxes, {}).size(), size_t(way.boxes));
                EXPECT_EQ(w.stored, 0);
                ASSERT_EQ(w.isVisible(), way.stays);
                if (!way.stays)
                    continue;
                EXPECT_TRUE(w.first->hasFocus() && !w.ok->isDown());
                EXPECT_EQ(w.first->hasSelectedText(), way.boxes > 0) << "to be typed over";
                w.enter("good");
                w.second->clear();
                click(w.ok);
                EXPECT_EQ(w.stored, 1) << "mended, it goes through";
                EXPECT_TRUE(doors.boxes.empty());
            }
}

} // namespace
