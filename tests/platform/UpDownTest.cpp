// The up-down: bounds, steps by arrow, key and wheel, and what it does to the box beside it.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "platform/MaskedBox.h"
#include "platform/UpDown.h"
#include "support/Mouse.h"
#include "support/ScriptedDoors.h"

namespace {

void clickArrow(UpDown &upDown, const char *arrow)
{
    mouse::click(upDown.findChild<QToolButton *>(QLatin1String(arrow)));
}

void turnWheel(QWidget *box, int eighths)
{
    QWheelEvent event(QPointF(3, 3), QPointF(3, 3), {}, {0, eighths}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(box, &event);
}

} // namespace

TEST(UpDown, StaysWithinItsBoundsAndTellsEachChangeOnce)
{
    const struct
    {
        int from, to, stands, changes;
    } cases[] = {{0, 84, 84, 1},           {84, 84, 84, 0}, {0, 40000, 10000, 1},
                 {10000, 10001, 10000, 0}, {5, -1, 0, 1},   {0, -7, 0, 0}};
    for (const auto &c : cases) {
        SCOPED_TRACE(c.to);
        UpDown upDown;
        upDown.setMax(10000);
        upDown.setValue(c.from);
        QSignalSpy changes(&upDown, &UpDown::Change);
        upDown.setValue(c.to);
        EXPECT_EQ(upDown.Value(), c.stands);
        EXPECT_EQ(changes.count(), c.changes);
    }
}

TEST(UpDown, BoundsThatMoveTakeTheValueAlong)
{
    UpDown upDown;
    upDown.setValue(50);
    QSignalSpy changes(&upDown, &UpDown::Change);
    upDown.setMax(20);
    EXPECT_EQ(upDown.Value(), 20);
    upDown.setMin(30); // above the upper bound for a moment
    upDown.setMax(40);
    EXPECT_EQ(upDown.Value(), 30);
    EXPECT_EQ(changes.count(), 2);
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
    QSignalSpy changes(upDown, &UpDown::Change);
    const auto expect = [&](int value, const char *after) {
        EXPECT_EQ(upDown->Value(), value) << after;
        EXPECT_EQ(changes.count(), 1) << after;
        changes.clear();
    };
    upDown->setValue(100);
    expect(100, "set");
    clickArrow(*upDown, "up");
    expect(101, "arrow up");
    clickArrow(*upDown, "down");
    expect(100, "arrow down");
    QTest::keyClick(box, Qt::Key_Up);
    expect(101, "key up");
    QTest::keyClick(box, Qt::Key_PageDown);
    expect(91, "page down");
    turnWheel(box, 60);
    turnWheel(box, 60);
    expect(92, "two half steps of the wheel");
    turnWheel(box, -240);
    expect(90, "wheel down");
    EXPECT_EQ(box->text(), QStringLiteral("left alone"));
    EXPECT_TRUE(box->hasFocus());

    upDown->setFocus();
    box->clearFocus();
    turnWheel(box, 120);
    QTest::keyClick(box, Qt::Key_Up, Qt::AltModifier);
    upDown->setEnabled(false);
    QTest::keyClick(box, Qt::Key_Up);
    EXPECT_EQ(upDown->Value(), 90);
}

TEST(UpDown, BoundStepsFromWhatTheBoxHolds)
{
    const struct
    {
        const char *held;
        int steps;
        const char *written;
    } cases[] = {
        {"5", 1, "6"},   {"5", -1, "4"},     {"99", 1, "99"},     {"1", -1, "1"},   {"", 1, "1"},
        {"abc", 1, "1"}, {"7 days", 1, "8"}, {"2.5", 1, "3"},     {"2.5", -1, "2"}, {"1,000", -1, "99"},
        {"-40", 1, "1"}, {"1e300", 1, "99"}, {"-1e300", -1, "1"}, {"5", 10, "15"},  {"95", 10, "99"},
    };
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

TEST(UpDown, BoundBoxIsWrittenBeforeChangeAndKeepsItsTextWhenAPositionIsSet)
{
    MaskedBox box;
    UpDown upDown;
    upDown.setBoundBox(&box);
    upDown.setMax(9999);
    box.setText(QStringLiteral("12000"));
    upDown.setValue(12000);
    EXPECT_EQ(upDown.Value(), 9999);
    EXPECT_EQ(box.Text(), QStringLiteral("12000"));
    QString seen;
    QObject::connect(&upDown, &UpDown::Change, &box, [&] { seen = box.Text(); });
    box.setText(QStringLiteral("55"));
    upDown.stepBy(1);
    EXPECT_EQ(seen, QStringLiteral("56"));
}

TEST(UpDown, IsAsHighAsItsBoxAndCalledAfterIt)
{
    QWidget window;
    auto *row = new QHBoxLayout(&window);
    auto *label = new QLabel(QStringLiteral("&Ammonia"));
    auto *box = new MaskedBox;
    auto *upDown = new UpDown;
    label->setBuddy(box);
    for (QWidget *widget : std::initializer_list<QWidget *>{label, box, upDown})
        row->addWidget(widget);
    upDown->setKeyBox(box);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_EQ(upDown->height(), box->height());
    EXPECT_EQ(upDown->findChild<QToolButton *>(QStringLiteral("up"))->accessibleName(), QStringLiteral("Up Ammonia"));
}
