// The up-down: bounds, steps by arrow, key and wheel, and what it does to the box beside it.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "platform/UpDown.h"
#include "support/Mouse.h"
#include "support/ScriptedDoors.h"

namespace {

void turnWheel(QWidget *box, int eighths)
{
    QWheelEvent event(QPointF(3, 3), QPointF(3, 3), {}, {0, eighths}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(box, &event);
}

} // namespace

TEST(UpDown, StaysWithinItsBoundsAndTellsEachChangeOnce)
{
    UpDown upDown;
    upDown.setMax(10000);
    QSignalSpy changes(&upDown, &UpDown::Change);
    for (const auto &[to, stands] : {std::pair{84, 84}, {84, 84}, {40000, 10000}, {10001, 10000}, {-1, 0}, {-7, 0}}) {
        upDown.setValue(to);
        EXPECT_EQ(upDown.Value(), stands);
    }
    EXPECT_EQ(changes.count(), 3);
    upDown.setValue(50);
    upDown.setMax(20); // bounds that move take the value along
    EXPECT_EQ(upDown.Value(), 20);
    upDown.setMin(30); // above the upper bound for a moment
    upDown.setMax(40);
    EXPECT_EQ(upDown.Value(), 30);
    EXPECT_EQ(changes.count(), 6);
}

TEST(UpDown, StepsByArrowKeyAndWheel)
{
    QWidget window;
    auto *column = new QVBoxLayout(&window);
    auto *box = new QLineEdit(QStringLiteral("left alone"));
    auto *upDown = new UpDown;
    column->addWidget(box);
    column->addWidget(upDown);
    upDown->setMax(10000);
    upDown->setKeyBox(box);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    box->setFocus();
    upDown->setValue(100);
    mouse::click(upDown->findChild<QToolButton *>(QStringLiteral("up")));
    EXPECT_EQ(upDown->Value(), 101);
    QTest::keyClick(box, Qt::Key_Up);
    EXPECT_EQ(upDown->Value(), 102);
    QTest::keyClick(box, Qt::Key_PageDown);
    EXPECT_EQ(upDown->Value(), 92);
    turnWheel(box, 60);
    turnWheel(box, 60);
    EXPECT_EQ(upDown->Value(), 93) << "two half steps of the wheel";
    turnWheel(box, -240);
    EXPECT_EQ(upDown->Value(), 91);
    EXPECT_EQ(box->text(), QStringLiteral("left alone"));
    EXPECT_TRUE(box->hasFocus());
    box->clearFocus();
    turnWheel(box, 120);
    upDown->setEnabled(false);
    QTest::keyClick(box, Qt::Key_Up);
    EXPECT_EQ(upDown->Value(), 91) << "not without the focus, nor disabled";
}

TEST(UpDown, BoundStepsFromWhatTheBoxHolds)
{
    const struct
    {
        const char *held;
        int steps;
        const char *written;
    } cases[] = {{"5", 1, "6"},    {"99", 1, "99"},     {"1", -1, "1"},     {"abc", 1, "1"}, {"7 days", 1, "8"},
                 {"2.5", -1, "2"}, {"-1e300", -1, "1"}, {"1e300", 1, "99"}, {"95", 10, "99"}};
    for (const auto &c : cases) {
        SCOPED_TRACE(std::string(c.held) + " by " + std::to_string(c.steps));
        QLineEdit box(QLatin1String(c.held));
        UpDown upDown;
        upDown.setMin(1);
        upDown.setMax(99);
        upDown.setBoundBox(&box);
        upDown.stepBy(c.steps);
        EXPECT_EQ(box.text(), QLatin1String(c.written));
        EXPECT_EQ(upDown.Value(), box.text().toInt());
    }
}
