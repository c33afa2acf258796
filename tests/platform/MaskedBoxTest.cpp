// The masked box by keys, clipboard, menu and focus.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QRegularExpression>
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
    const char *before, *keys, *text;
    int refused; ///< how many ValidationErrors
};

const MaskCase dateCases[] = {
    // Typed with and without delimiters; a delimiter jumps, and only where it stands.
    {"", "031426", "03/14/26", 0},
    {"", "03/14-26", "03/14/26", 1},
    {"", "0/", "0 /  /  ", 1},
    {"", "0 3", "0 /3 /  ", 0},
    {"", "0314267", "03/14/26", 1},
    // Overtyping, selections, Backspace and Delete leave the delimiters where they are.
    {"03/14/26", "[11", "11/14/26", 0},
    {"03/14/26", "^7", "7 /  /  ", 0},
    {"03/14/26", "^x", "03/14/26", 1},
    {"", "031<<", "0 /  /  ", 0},
    {"03/14/26", "[<>", " 3/14/26", 0},
    {"03/14/26", "^%", "  /  /  ", 0},
    // Undo and redo go by whole steps.
    {"03/14/26", "^7~", "03/14/26", 0},
    {"03/14/26", "^7~=", "7 /  /  ", 0},
    // The clipboard holds 12/24/25: all or nothing goes in.
    {"03/14/26", "^@", "12/24/25", 0},
};
// The time's mask wants letters at its end, and digits before.
const MaskCase timeCases[] = {
    {"", "092653am", "09:26:53 am", 0}, {"", "09:26:53 PM", "09:26:53 PM", 0}, {"", "0926531", "09:26:53   ", 1},
    {"", "0a9", "09:  :     ", 1},      {"", "@", "  :  :     ", 1},
};

void expectCase(const char *mask, const MaskCase &c)
{
    SCOPED_TRACE(std::string(mask) + " with " + c.before + ": " + c.keys);
    QGuiApplication::clipboard()->setText(QStringLiteral(" 12/24/25\n"));
    MaskedBox box;
    box.setMask(QLatin1String(mask));
    box.setText(QLatin1String(c.before));
    QSignalSpy refused(&box, &MaskedBox::ValidationError);
    play(&box, QLatin1String(c.keys));
    EXPECT_EQ(box.Text(), QLatin1String(c.text));
    EXPECT_EQ(box.ClipText(), QString(box.Text()).remove(QRegularExpression("[^0-9a-zA-Z]")));
    EXPECT_EQ(refused.count(), c.refused);
}

TEST(MaskedBox, TakesWhatItsMaskTakes)
{
    for (const MaskCase &c : dateCases)
        expectCase("##/##/##", c);
    for (const MaskCase &c : timeCases)
        expectCase("##:##:## ??", c);
    MaskedBox box;
    box.setMask(QStringLiteral("##/##/##"));
    for (const auto &[set, shown] :
         {std::pair{"3/14/26", "3_/4_/6_"}, {"  /14/  ", "__/14/__"}, {"03/14/2026", "03/14/20"}}) {
        box.setText(QLatin1String(set));
        EXPECT_EQ(box.FormattedText(), QLatin1String(shown));
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
    const std::pair<const char *, const char *> cases[] = {
        {"8.12345", "8.123"}, {"1,000", "1000.000"}, {"1e2", "100.000"}, {"12ab", "12ab"}, {"", ""},
        {"1e200", "1e200"}};
    for (const auto &[typed, shown] : cases) {
        SCOPED_TRACE(typed);
        m_box->setFocus(Qt::TabFocusReason);
        QTest::keyClick(m_box, Qt::Key_Delete);
        play(m_box, QLatin1String(typed));
        QSignalSpy changed(m_box, &QLineEdit::textChanged);
        QTest::keyClick(m_box, Qt::Key_Tab);
        EXPECT_EQ(m_box->FormattedText(), QLatin1String(shown));
        EXPECT_EQ(m_box->Text(), QLatin1String(typed));
        QTest::keyClick(m_other, Qt::Key_Tab);
        EXPECT_EQ(m_box->FormattedText(), QLatin1String(typed));
        EXPECT_EQ(changed.count(), 0) << "a picture is no change";
        EXPECT_EQ(m_box->selectedText(), QLatin1String(typed));
    }
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

} // namespace
