// The masked box by keys, clipboard, menu and focus.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QDialog>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include "platform/MaskedBox.h"
#include "support/ScriptedDoors.h"

namespace {

/// Characters are typed; these stand for other keys.
void play(QWidget *box, const QString &keys)
{
    for (const QChar key : keys) {
        switch (key.unicode()) {
        case u'<': QTest::keyClick(box, Qt::Key_Backspace); break;
        case u'>': QTest::keyClick(box, Qt::Key_Delete); break;
        case u'[': QTest::keyClick(box, Qt::Key_Home); break;
        case u'^': QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier); break;
        case u'~': QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier); break;
        case u'=': QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); break;
        case u'@': QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier); break;
        case u'%': QTest::keyClick(box, Qt::Key_X, Qt::ControlModifier); break;
        default: QTest::keyClick(box, key.toLatin1());
        }
    }
}

struct MaskCase
{
    const char *mask, *before, *keys, *text, *clip;
    int refused; ///< how many ValidationErrors
};

const MaskCase maskCases[] = {
    // Typed with and without delimiters; a delimiter jumps, and only where it stands.
    {"##/##/##", "", "031426", "03/14/26", "031426", 0},
    {"##/##/##", "", "03/14/26", "03/14/26", "031426", 0},
    {"##-##-##", "", "03/14", "03-14-  ", "0314", 1},
    {"##/##/##", "", "0/", "0 /  /  ", "0", 1},
    {"##/##/##", "", "0 3", "0 /3 /  ", "03", 0},
    {"##/##/##", "", "0314267", "03/14/26", "031426", 1},
    // The time's mask wants letters at its end, and digits before.
    {"##:##:## ??", "", "092653am", "09:26:53 am", "092653am", 0},
    {"##:##:## ??", "", "09:26:53 PM", "09:26:53 PM", "092653PM", 0},
    {"##:##:## ??", "", "0926531", "09:26:53   ", "092653", 1},
    {"##:##:## ??", "", "0a9", "09:  :     ", "09", 1},
    {"AA-C", "", "a1-/", "a1-/", "a1/", 0},
    // Overtyping, selections, Backspace and Delete leave the delimiters where they are.
    {"##/##/##", "03/14/26", "[11", "11/14/26", "111426", 0},
    {"##/##/##", "03/14/26", "^7", "7 /  /  ", "7", 0},
    {"##/##/##", "03/14/26", "^x", "03/14/26", "031426", 1},
    {"##/##/##", "", "031<", "03/  /  ", "03", 0},
    {"##/##/##", "", "031<<", "0 /  /  ", "0", 0},
    {"##/##/##", "03/14/26", "[<>", " 3/14/26", "31426", 0},
    {"##/##/##", "03/14/26", "^>", "  /  /  ", "", 0},
    {"##/##/##", "03/14/26", "^%", "  /  /  ", "", 0},
    // Undo and redo go by whole steps.
    {"##/##/##", "", "03~", "0 /  /  ", "0", 0},
    {"##/##/##", "03/14/26", "^7~", "03/14/26", "031426", 0},
    {"##/##/##", "03/14/26", "^7~=", "7 /  /  ", "7", 0},
    // The clipboard holds 12/24/25: all or nothing goes in.
    {"##/##/##", "", "@", "12/24/25", "122425", 0},
    {"##/##/##", "03/14/26", "^@", "12/24/25", "122425", 0},
    {"##-##-##", "03-14-26", "[@", "03-14-26", "031426", 1},
    {"##:##:## ??", "", "@", "  :  :     ", "", 1},
};

TEST(MaskedBox, TakesWhatItsMaskTakes)
{
    for (const MaskCase &c : maskCases) {
        SCOPED_TRACE(std::string(c.mask) + " with " + c.before + ": " + c.keys);
        QGuiApplication::clipboard()->setText(QStringLiteral(" 12/24/25\n"));
        MaskedBox box;
        box.setMask(QLatin1String(c.mask));
        box.setText(QLatin1String(c.before));
        QSignalSpy refused(&box, &MaskedBox::ValidationError);
        play(&box, QLatin1String(c.keys));
        EXPECT_EQ(box.Text(), QLatin1String(c.text));
        EXPECT_EQ(box.ClipText(), QLatin1String(c.clip));
        EXPECT_EQ(refused.count(), c.refused);
    }
}

TEST(MaskedBox, TellsWhereItRefused)
{
    MaskedBox box;
    box.setMask(QStringLiteral("##:##:## ??"));
    QSignalSpy refused(&box, &MaskedBox::ValidationError);
    play(&box, QStringLiteral("0926534"));
    ASSERT_EQ(refused.count(), 1);
    EXPECT_EQ(refused.first().at(0).toString(), QStringLiteral("09:26:53   "));
    EXPECT_EQ(refused.first().at(1).toInt(), 9);
}

TEST(MaskedBox, ShapesATextThatIsSet)
{
    const struct
    {
        const char *mask, *set, *shown;
    } cases[] = {
        {"##/##/##", "03/14/26", "03/14/26"}, {"##/##/##", "3/14/26", "3_/4_/6_"},    {"##/##/##", "", "__/__/__"},
        {"##/##/##", "  /14/  ", "__/14/__"}, {"##/##/##", "03/14/2026", "03/14/20"}, {"", "any thing", "any thing"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.set);
        MaskedBox box;
        box.setMask(QLatin1String(c.mask));
        box.setText(QLatin1String(c.set));
        EXPECT_EQ(box.FormattedText(), QLatin1String(c.shown));
    }
}

/// No editing key of the platform, and no code that knows only a line edit, breaks the shape.
TEST(MaskedBox, KeepsItsShapeWhateverComes)
{
    MaskedBox box;
    box.setMask(QStringLiteral("##/##/## ??"));
    quint32 random = 20260314;
    const auto next = [&random](quint32 below) { return (random = random * 1664525u + 1013904223u) / 65536 % below; };
    const QString keys = QStringLiteral("0123456789/ ab<>[^~~~==@%");
    for (int step = 0; step < 4000; ++step) {
        const quint32 what = next(20);
        if (what == 0)
            QTest::keyClick(&box, Qt::Key_K, Qt::ControlModifier);
        else if (what == 1)
            box.setSelection(int(next(12)), int(next(12)));
        else if (what == 2)
            box.insert(QStringLiteral("9"));
        else if (what == 3)
            box.del();
        else if (what == 4)
            box.undo();
        else if (what == 5)
            box.redo();
        else if (what == 6 && next(10) == 0)
            static_cast<QLineEdit &>(box).setText(QStringLiteral("4x6"));
        else
            play(&box, keys.at(next(quint32(keys.size()))));
        const QString text = box.Text();
        ASSERT_EQ(text.size(), 11) << "step " << step;
        ASSERT_TRUE(text.at(2) == u'/' && text.at(5) == u'/' && text.at(8) == u' ')
            << text.toStdString() << " at step " << step;
        for (const int place : {0, 1, 3, 4, 6, 7})
            ASSERT_TRUE(text.at(place).isDigit() || text.at(place) == u' ')
                << text.toStdString() << " at step " << step;
    }
}

/// What would move the delimiters is refused as a whole, with nothing lost.
TEST(MaskedBox, RefusesEditsThatKnowNoMask)
{
    void (*const edits[])(MaskedBox &) = {
        [](MaskedBox &box) { box.del(); },
        [](MaskedBox &box) { box.insert(QStringLiteral("9")); },
        [](MaskedBox &box) { QTest::keyClick(&box, Qt::Key_K, Qt::ControlModifier); },
    };
    for (const auto edit : edits) {
        MaskedBox box;
        box.setMask(QStringLiteral("##/##/##"));
        box.setText(QStringLiteral("03/14/26"));
        box.setCursorPosition(1);
        edit(box);
        EXPECT_EQ(box.Text(), QStringLiteral("03/14/26"));
    }
}

TEST(MaskedBox, TakesInputMethodsAndTheMenuThroughTheMask)
{
    MaskedBox box;
    box.setMask(QStringLiteral("##/##/##"));
    box.show();
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("03"));
    QCoreApplication::sendEvent(&box, &event);
    EXPECT_EQ(box.Text(), QStringLiteral("03/  /  "));
    QGuiApplication::clipboard()->setText(QStringLiteral("14/26"));
    QContextMenuEvent wanted(QContextMenuEvent::Mouse, {}, box.mapToGlobal(QPoint()));
    QCoreApplication::sendEvent(&box, &wanted);
    auto *menu = box.findChild<QMenu *>();
    ASSERT_TRUE(menu);
    QTest::keyClick(menu, Qt::Key_P);
    EXPECT_EQ(box.Text(), QStringLiteral("03/14/26"));
}

/// A box with a format beside another one, in a window.
class FormattedBoxTest : public testing::Test
{
protected:
    FormattedBoxTest()
    {
        auto *column = new QVBoxLayout(&m_window);
        column->addWidget(m_box = new MaskedBox);
        column->addWidget(m_other = new QLineEdit);
        m_box->setFormat(QStringLiteral("##0.000"));
        m_box->setMaxLength(64);
        m_window.show();
        m_window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_other->setFocus();
    }

    QWidget m_window;
    MaskedBox *m_box = nullptr;
    QLineEdit *m_other = nullptr;
};

TEST_F(FormattedBoxTest, ShowsItsNumberInThePictureWhileElsewhere)
{
    const struct
    {
        const char *typed, *shown;
    } cases[] = {
        {"8.12345", "8.123"}, {"1,000", "1000.000"}, {"1e2", "100.000"}, {"-4", "-4.000"},
        {"abc", "abc"},       {"12ab", "12ab"},      {"", ""},           {"1e200", "1e200"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.typed);
        m_box->setFocus(Qt::TabFocusReason);
        QTest::keyClick(m_box, Qt::Key_Delete);
        play(m_box, QLatin1String(c.typed));
        QSignalSpy changed(m_box, &QLineEdit::textChanged);
        QTest::keyClick(m_box, Qt::Key_Tab);
        EXPECT_EQ(m_box->FormattedText(), QLatin1String(c.shown));
        EXPECT_EQ(m_box->Text(), QLatin1String(c.typed));
        QTest::keyClick(m_other, Qt::Key_Tab);
        EXPECT_EQ(m_box->FormattedText(), QLatin1String(c.typed));
        EXPECT_EQ(changed.count(), 0) << "a picture is no change";
        EXPECT_EQ(m_box->selectedText(), QLatin1String(c.typed));
    }
}

TEST_F(FormattedBoxTest, ShowsAsSetUntilItIsLeft)
{
    m_box->setText(QStringLiteral("8.4"));
    EXPECT_EQ(m_box->FormattedText(), QStringLiteral("8.4"));
    m_box->setFocus();
    m_other->setFocus();
    EXPECT_EQ(m_box->FormattedText(), QStringLiteral("8.400"));
    QSignalSpy changed(m_box, &QLineEdit::textChanged);
    m_box->setText(QStringLiteral("8.400")); // shown already, but another content
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(m_box->Text(), QStringLiteral("8.400"));
    static_cast<QLineEdit *>(m_box)->setText(QStringLiteral("7"));
    EXPECT_EQ(m_box->Text(), QStringLiteral("7"));
}

TEST_F(FormattedBoxTest, UndoGivesNoPictureForContent)
{
    m_box->setFocus();
    play(m_box, QStringLiteral("8.12345"));
    m_other->setFocus();
    m_box->setFocus();
    play(m_box, QStringLiteral("6~~~"));
    EXPECT_EQ(m_box->Text(), QStringLiteral("8.12345"));
}

TEST_F(FormattedBoxTest, LimitsTypingToMaxLength)
{
    m_box->setMaxLength(4);
    m_box->setFocus();
    play(m_box, QStringLiteral("123456"));
    m_other->setFocus();
    EXPECT_EQ(m_box->FormattedText(), QStringLiteral("1234")) << "1234.000 cut off would be another number";
    EXPECT_EQ(m_box->Text(), QStringLiteral("1234"));
}

TEST_F(FormattedBoxTest, TabSelectsAMaskedBoxAndTypingStartsAtItsFirstPlace)
{
    m_box->setFormat({});
    m_box->setMask(QStringLiteral("##/##/##"));
    m_box->setText(QStringLiteral("03/14/26"));
    QTest::keyClick(m_other, Qt::Key_Tab);
    play(m_box, QStringLiteral("12"));
    EXPECT_EQ(m_box->Text(), QStringLiteral("12/  /  "));
}

} // namespace
