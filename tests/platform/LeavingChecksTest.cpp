// Every way out of a box with a bad value, with a window that is shown modally and one that is not. The mouse enters
// through the window system, where Qt gives the focus before it delivers the press.
#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QFormLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "platform/LeavingChecks.h"
#include "support/Mouse.h"
#include "support/ScriptedDoors.h"

namespace {

/// Two boxes that take no "bad", a plain button, OK and Cancel.
class EntryWindow : public QDialog
{
public:
    EntryWindow()
    {
        auto *form = new QFormLayout(this);
        form->addRow(QStringLiteral("&First"), first);
        form->addRow(QStringLiteral("&Second"), second);
        for (QPushButton *button : {plain, ok, cancel}) {
            form->addRow(button);
            button->setAutoDefault(false);
        }
        ok->setDefault(true);
        checks.watch(first, [this] { return check(first); });
        checks.watch(second, [this] { return check(second); });
        checks.exempt(cancel);
        connect(ok, &QPushButton::clicked, this, [this] { stored += checks.passes() ? 1 : 0; });
        connect(plain, &QPushButton::clicked, this, [this] { ++plainClicks; });
        connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    }

    QLineEdit *first = new QLineEdit;
    QLineEdit *second = new QLineEdit;
    QPushButton *plain = new QPushButton(QStringLiteral("Plain"));
    QPushButton *ok = new QPushButton(QStringLiteral("&OK"));
    QPushButton *cancel = new QPushButton(QStringLiteral("Cancel"));
    LeavingChecks checks{this};
    int stored = 0;
    int plainClicks = 0;

private:
    bool check(QLineEdit *box)
    {
        if (box->text() != QStringLiteral("bad"))
            return true;
        MsgBox(QStringLiteral("Not this."), vbExclamation, QStringLiteral("Oops!"));
        return false;
    }
};

using mouse::click;
using mouse::press;
using mouse::release;

void toAnotherWindowAndBack(EntryWindow &w)
{
    QWidget other;
    QLineEdit box(&other);
    other.show();
    other.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    box.setFocus();
    w.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&w));
}

void openAndCloseItsMenu(EntryWindow &w)
{
    QContextMenuEvent wanted(QContextMenuEvent::Mouse, {}, w.first->mapToGlobal(QPoint()));
    QCoreApplication::sendEvent(w.first, &wanted);
    auto *menu = w.first->findChild<QMenu *>();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(menu));
    QTest::keyClick(menu, Qt::Key_Escape);
}

struct WayOut
{
    const char *name;
    void (*go)(EntryWindow &);
    int boxes;         ///< as many as there were attempts
    bool stays = true; ///< in the bad box, in the open window
};

const WayOut waysOut[] = {
    {"OK by mouse", [](EntryWindow &w) { click(w.ok); }, 1},
    {"OK by Enter", [](EntryWindow &w) { QTest::keyClick(w.first, Qt::Key_Return); }, 1},
    {"OK pressed, let go over the box", [](EntryWindow &w) { press(w.ok), release(w.first); }, 1},
    {"double click on OK", [](EntryWindow &w) { press(w.ok), release(w.ok), press(w.ok), release(w.ok); }, 2},
    {"another box by mouse", [](EntryWindow &w) { click(w.second); }, 1},
    {"another button", [](EntryWindow &w) { click(w.plain); }, 1},
    {"two bad boxes", [](EntryWindow &w) { w.second->setText("bad"), QTest::keyClick(w.first, Qt::Key_Tab); }, 1},
    {"Esc", [](EntryWindow &w) { QTest::keyClick(w.first, Qt::Key_Escape); }, 0, false},
    {"Cancel by mouse", [](EntryWindow &w) { click(w.cancel); }, 0, false},
    {"Cancel let go outside, then OK", [](EntryWindow &w) { press(w.cancel), release(w.plain), click(w.ok); }, 1},
    {"another window and back", toAnotherWindowAndBack, 0},
    {"another window, and back onto OK", [](EntryWindow &w) { toAnotherWindowAndBack(w), click(w.ok); }, 1},
    {"its own menu", openAndCloseItsMenu, 0},
};

/// A box that is really on the screen takes the activity, and gives it back.
void showRealBox(const MsgBoxRequest &request)
{
    QWidget *window = QApplication::activeWindow();
    QMessageBox box(window);
    box.setText(request.text);
    QTimer::singleShot(0, &box, &QDialog::accept);
    box.exec();
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window));
}

/// The focus is in the bad box, no button is stuck, and a good value goes through.
void mend(EntryWindow &w)
{
    EXPECT_TRUE(w.first->hasFocus());
    EXPECT_FALSE(w.ok->isDown() || w.plain->isDown());
    w.first->selectAll();
    QTest::keyClicks(w.first, QStringLiteral("good"));
    w.second->clear();
    click(w.ok);
    EXPECT_EQ(w.stored, 1);
}

void play(const WayOut &way, ScriptedDoors &doors, EntryWindow &w)
{
    w.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&w));
    w.first->setFocus();
    QTest::keyClicks(w.first, QStringLiteral("bad"));
    way.go(w);
    QCoreApplication::processEvents();
    EXPECT_EQ(doors.takeBoxes().size(), size_t(way.boxes));
    EXPECT_EQ(w.stored, 0);
    EXPECT_EQ(w.plainClicks, 0);
    EXPECT_EQ(w.isVisible(), way.stays);
    if (way.stays)
        mend(w);
    EXPECT_EQ(doors.takeBoxes().size(), 0u);
    w.hide();
}

TEST(LeavingChecks, LetNoBadValueThroughByAnyWayOut)
{
    for (const WayOut &way : waysOut)
        for (const bool modal : {false, true})
            for (const bool realBox : {false, true}) {
                SCOPED_TRACE(std::string(way.name) + (modal ? ", modal" : "") + (realBox ? ", box on the screen" : ""));
                ScriptedDoors doors;
                if (realBox)
                    doors.whileBoxIsUp = showRealBox;
                EntryWindow window;
                window.setModal(modal);
                window.show();
                play(way, doors, window);
            }
}

/// The window shown without being modal, with the focus in its first box.
class LeavingChecksAtWork : public testing::Test
{
protected:
    LeavingChecksAtWork()
    {
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        window.first->setFocus();
    }

    ScriptedDoors doors;
    EntryWindow window;
};

/// Enter stores but does not leave the box: what is typed into it afterwards is judged again.
TEST_F(LeavingChecksAtWork, ABoxThatPassedAndKeptTheFocusIsAskedAgain)
{
    QTest::keyClicks(window.first, QStringLiteral("good"));
    QTest::keyClick(window.first, Qt::Key_Return);
    EXPECT_EQ(window.stored, 1);
    window.first->selectAll();
    QTest::keyClicks(window.first, QStringLiteral("bad"));
    QTest::keyClick(window.first, Qt::Key_Return);
    EXPECT_EQ(window.stored, 1);
    EXPECT_EQ(doors.takeText(), QStringLiteral("Not this."));
}

TEST_F(LeavingChecksAtWork, ARecordThatWasLoadedByCodeIsForgotten)
{
    window.first->setText(QStringLiteral("bad"));
    window.checks.forget();
    QTest::keyClick(window.first, Qt::Key_Tab);
    EXPECT_EQ(doors.takeBoxes().size(), 0u);
    EXPECT_TRUE(window.second->hasFocus());
}

TEST_F(LeavingChecksAtWork, ABoxThatACheckMovesTheFocusToIsAskedInItsTurn)
{
    int asked = 0;
    window.checks.watch(window.first, [&] {
        ++asked;
        window.second->setFocus();
        return true;
    });
    EXPECT_TRUE(window.checks.passes());
    EXPECT_EQ(asked, 1);
    QTest::keyClicks(window.second, QStringLiteral("bad"));
    EXPECT_FALSE(window.checks.passes());
}

TEST_F(LeavingChecksAtWork, AFailureInACheckDoesNotEndTheChecks)
{
    bool failing = true;
    window.checks.watch(window.first, [&failing]() -> bool {
        if (failing)
            throw RuntimeFailure(Failure::TypeMismatch);
        return false;
    });
    EXPECT_THROW(window.checks.passes(), RuntimeFailure);
    failing = false;
    EXPECT_FALSE(window.checks.passes());
}

} // namespace
