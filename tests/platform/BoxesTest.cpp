// Tests of the masked box, and of the up-down beside a box.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QClipboard>
#include <QDialog>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "platform/controls/MaskedBox.h"
#include "platform/controls/UpDown.h"
#include "support/Mouse.h"
#include "support/ScriptedDoors.h"

namespace {

/// Types the characters; those in the table stand for other keys.
void play(QWidget *box, const QString &keys)
{
    static const QMap<QChar, QKeyCombination> others = {
        {'<', Qt::Key_Backspace},    {'>', Qt::Key_Delete},       {'[', Qt::Key_Home},
        {'^', Qt::CTRL | Qt::Key_A}, {'~', Qt::CTRL | Qt::Key_Z}, {'=', Qt::CTRL | Qt::SHIFT | Qt::Key_Z},
        {'@', Qt::CTRL | Qt::Key_V}, {'%', Qt::CTRL | Qt::Key_X}};
    for (const QChar key : keys)
        if (const auto other = others.find(key); other != others.end())
            QTest::keyClick(box, other->key(), other->keyboardModifiers());
        else
            QTest::keyClick(box, key.toLatin1());
}

TEST(MaskedBox, AcceptsWhatItsMaskAllows)
{
    const char *const date = "##/##/##", *const time = "##:##:## ??";
    const struct
    {
        const char *mask, *before, *keys, *text;
        int refused = 0; ///< how many ValidationErrors
    } cases[] = {
        // Typing with and without delimiters. A typed delimiter moves on, but only at its own place.
        {date, "", "031426", "03/14/26"},
        {date, "", "03/14-26", "03/14/26", 1},
        // Overtyping, selections, Backspace and Delete leave the delimiters where they are.
        {date, "03/14/26", "[11", "11/14/26"},
        {date, "03/14/26", "^x7", "7 /  /  ", 1},
        {date, "03/14/26", "[<>", " 3/14/26"},
        {date, "03/14/26", "^%", "  /  /  "},
        // Undo and redo go by whole steps.
        {date, "03/14/26", "^7~", "03/14/26"},
        {date, "03/14/26", "^7~=", "7 /  /  "},
        // The clipboard holds 12/24/25. Pasting enters all of it or nothing.
        {date, "03/14/26", "^@", "12/24/25"},
        {time, "", "@", "  :  :     ", 1},
        // A mask with digits first and letters at its end.
        {time, "", "09:26:53 PM", "09:26:53 PM"},
        {time, "", "0926531", "09:26:53   ", 1},
        // setText() fills the places that its characters fit.
        {date, "3/14/26", "", "3 /4 /6 "},
        {date, "03/14/2026", "", "03/14/20"},
    };
    for (const auto &[mask, before, keys, text, refused] : cases) {
        SCOPED_TRACE(std::string(mask) + " with " + before + ": " + keys);
        QGuiApplication::clipboard()->setText(QStringLiteral(" 12/24/25\n"));
        MaskedBox box;
        box.setMask(QLatin1String(mask));
        box.setText(QLatin1String(before));
        QSignalSpy errors(&box, &MaskedBox::ValidationError);
        play(&box, QLatin1String(keys));
        EXPECT_EQ(box.Text(), QLatin1String(text));
        EXPECT_EQ(box.ClipText(), QString(box.Text()).remove(QRegularExpression("[^0-9a-zA-Z]")));
        EXPECT_EQ(errors.count(), refused);
    }
}

/// A window with a formatted box, and another box with an up-down.
struct BoxesTest : testing::Test
{
    BoxesTest()
    {
        auto *column = new QVBoxLayout(&m_window);
        for (QWidget *widget : std::initializer_list<QWidget *>{m_box, m_other, m_upDown})
            column->addWidget(widget);
        m_box->setFormat(QStringLiteral("##0.000"));
        m_box->setMaxLength(64);
        m_window.show();
        m_window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_other->setFocus();
    }
    void turnWheel(int eighths)
    {
        QWheelEvent event(QPointF(3, 3), QPointF(3, 3), {}, {0, eighths}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(m_other, &event);
    }

    QWidget m_window;
    MaskedBox *m_box = new MaskedBox;
    QLineEdit *m_other = new QLineEdit;
    UpDown *m_upDown = new UpDown;
};

TEST_F(BoxesTest, ANumberIsFormattedWhileTheFocusIsElsewhere)
{
    for (const auto &[typed, shown] :
         {std::pair{"8.12345", "8.123"}, {"1,000", "1000.000"}, {"12ab", "12ab"}, {"", ""}, {"1e200", "1e200"}}) {
        SCOPED_TRACE(typed);
        m_box->setFocus(Qt::TabFocusReason);
        play(m_box, QStringLiteral(">") + QLatin1String(typed));
        QSignalSpy changed(m_box, &QLineEdit::textChanged);
        m_other->setFocus();
        EXPECT_EQ(m_box->text(), QLatin1String(shown));
        EXPECT_EQ(m_box->Text(), QLatin1String(typed));
        m_box->setFocus(Qt::TabFocusReason);
        EXPECT_EQ(m_box->selectedText(), QLatin1String(typed));
        EXPECT_EQ(changed.count(), 0) << "a picture is no change";
    }
}

TEST_F(BoxesTest, OneLineIsTakenOfAPastedTextOfSeveral)
{
    for (const auto &[text, line] : {std::pair{" Reef tank \r\nsecond\nthird", "Reef tanktank"},
                                     {"\n\nReef", "Reeftank"},
                                     {"Reef\u2028second", "Reeftank"},
                                     {" a  b ", " a  b tank"}}) {
        m_other->setText(QStringLiteral("tank"));
        m_other->setCursorPosition(0);
        QGuiApplication::clipboard()->setText(QString::fromUtf8(text));
        play(m_other, QStringLiteral("@"));
        EXPECT_EQ(m_other->text(), QLatin1String(line));
        EXPECT_EQ(m_other->cursorPosition(), m_other->text().size() - 4);
    }
}

TEST_F(BoxesTest, AnUpDownStepsWithinItsBoundsByArrowKeyAndWheelAndTellsEachChangeOnce)
{
    m_upDown->setMax(110);
    m_upDown->setKeyBox(m_other);
    QSignalSpy changes(m_upDown, &UpDown::Change);
    const std::pair<std::function<void()>, int> steps[] = {
        {[this] { m_upDown->setMin(100); }, 100},
        {[this] { mouse::click(m_upDown->findChild<QWidget *>(QStringLiteral("up"))); }, 101},
        {[this] { QTest::keyClick(m_other, Qt::Key_Up); }, 102},
        {[this] { QTest::keyClick(m_other, Qt::Key_PageUp); }, 110},
        {[this] { turnWheel(60); }, 110},
        {[this] { turnWheel(-240); }, 109}, // together with the half step before
        {[this] { m_upDown->setMax(105); }, 105}};
    for (const auto &[step, value] : steps) {
        step();
        EXPECT_EQ(m_upDown->Value(), value);
    }
    EXPECT_EQ(changes.count(), 6);
    m_other->clearFocus();
    turnWheel(120);
    EXPECT_EQ(m_upDown->Value(), 105) << "not without the focus";
}

TEST_F(BoxesTest, AHeldArrowStopsWhenAStepOpensABox)
{
    auto *up = m_upDown->findChild<QAbstractButton *>(QStringLiteral("up"));
    up->setAutoRepeatDelay(1);
    up->setAutoRepeatInterval(1);
    int boxes = 0;
    QObject::connect(m_upDown, &UpDown::Change, &m_window, [&] {
        if (m_upDown->Value() < 3)
            return;
        ++boxes;
        QDialog box(&m_window);
        box.open();
        EXPECT_TRUE(QTest::qWaitFor([up] { return !up->isDown(); }, 500)) << "or a heap of boxes grows";
    });
    mouse::press(up);
    ASSERT_TRUE(QTest::qWaitFor([&] { return boxes > 0; }));
    EXPECT_EQ(m_upDown->Value(), 3);
}

} // namespace
