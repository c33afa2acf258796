// The logbook open on a tab of a tank, and the entry window of that tab: what the tests of the entries, of moving and
// of printing share. The tank "Reef" is called "r1" in the file, "Same" like its name; each tank has another water.
#pragma once

#include <ranges>

#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include "Hands.h"
#include "logbook/LogTab.h"
#include "platform/MaskedBox.h"

/// A text for a box and what OK then says; nothing where the box takes it.
struct Fault
{
    const char *box;
    QString typed, words;
};

template <class Window> class Desk : public ::testing::Test
{
protected:
    using Action = std::function<void(Window &)>;

    explicit Desk(LogTab tab) : m_tab(tab)
    {
        const std::pair<const char *, const char *> tanks[] = {
            {"Reef", "r1"}, {"Same", "Same"}, {"Bowl", "b1"}, {"Marsh", "k1"}, {"Pond", "p1"}};
        const char *const waters[] = {"3", "2", "1", "4", "5"};
        for (size_t i = 0; i < std::size(tanks); ++i)
            keeper.addTank(tanks[i].first, tanks[i].second, waters[i]);
        open("Reef");
    }
    void open(const QString &tank)
    {
        main = Forms::current().loaded<frm_OMKMDIMain>();
        if (!main)
            main = &keeper.startProgram();
        logbook = &hand::openLogbook(*main);
        hand::clickTank(*logbook, tank);
        hand::clickTab(*logbook->tab_logtype, m_tab);
        keeper.doors.beeps = 0;
    }
    void startWith(const char *order, const char *delimiter, const QString &tank = "Reef")
    {
        keeper.restart();
        SaveSetting("Date_Order", order);
        SaveSetting("Date_Delim", delimiter);
        open(tank);
    }
    ListView &list() const { return static_cast<ListView &>(*logbook->tab_logtype->currentWidget()); }
    QString column(int subItem) const { return hand::column(list(), subItem); }
    /// A command of the toolbar that opens no window.
    void push(const char *button)
    {
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, [] {
            if (QWidget *window = QApplication::activeModalWidget()) {
                ADD_FAILURE() << window->objectName().toStdString() << " came.";
                window->close();
            }
        });
        watch.start(0);
        hand::click<QToolButton>(*logbook, button);
    }

    /// One that opens the window, and what is done in it; a row is selected first (0: none).
    void give(const char *button, int row, const Action &action)
    {
        keeper.inNext<Window>(action);
        if (row > 0)
            hand::clickRow(list(), row);
        hand::click<QToolButton>(*logbook, button);
    }
    void add(const Action &action) { give("addentries", 0, action); }
    void change(int row, const Action &action) { give("changeentries", row, action); }
    void execute(const QString &sql) { keeper.g().gDatabase->Execute(sql); }
    QString stored(const QString &select) { return keeper.stored("SELECT " + select, "x"); }

    /// The boxes shown since last asked, as "title: text", joined by bars, flags before it where it is no warning; so
    /// many beeps came with them.
    QString told(int beeps)
    {
        QCoreApplication::processEvents();
        QStringList texts;
        for (const MsgBoxRequest &box : keeper.doors.takeBoxes())
            texts << (box.flags == vbExclamation ? QString() : QString::number(box.flags) + ' ') + box.title + ": " +
                         box.text;
        EXPECT_EQ(std::exchange(keeper.doors.beeps, 0), beeps);
        return texts.join(u'|');
    }
    /// Commands that need a row, with none selected.
    void expectNote(const char *button, const char *text)
    {
        push(button);
        EXPECT_EQ(told(0), QString("64 Note!: ") + text);
    }
    /// Deletes a row: the question about it comes first, and what is told after its answer comes back.
    QString remove(int row, const QString &entry, MsgBoxAnswer answer)
    {
        keeper.doors.answers = {answer};
        hand::clickRow(list(), row);
        push("deleteentries");
        const QString question = "33 Are you sure...: Are you sure you want to delete the  " + entry +
                                 " tank?   (Remember, you CANNOT \"undo\" a delete!)";
        const QString all = told(1);
        EXPECT_EQ(all.left(question.size()), question);
        return all.mid(question.size());
    }
    /// Starts with everything wrong and mends one box after the other: each OK tells of the first fault that is left,
    /// puts the focus there and stores nothing. The last OK is left to the test.
    void walk(Window &w, const std::vector<Fault> &faults)
    {
        const auto fill = [&](const Fault &fault) {
            const auto *box = w.template findChild<MaskedBox *>(fault.box);
            if (!box || box->Text() != fault.typed)
                hand::fill(control<QWidget>(w, fault.box), fault.typed);
        };
        for (const Fault &fault : faults | std::views::reverse) // the first of each box is what it then holds
            if (!fault.words.isEmpty())
                fill(fault);
        for (const Fault &fault : faults) {
            fill(fault);
            if (fault.words.isEmpty())
                continue;
            mouse::click(w.cmd_OK);
            EXPECT_EQ(told(1), fault.words) << fault.box << ' ' << fault.typed.toStdString();
            ASSERT_TRUE(w.isVisible()) << fault.box;
            EXPECT_TRUE(control<QWidget>(w, fault.box).hasFocus()) << fault.box;
        }
        EXPECT_EQ(told(0), "");
    }
    Keeper keeper;
    frm_OMKMDIMain *main;
    frm_Waterlog *logbook;

private:
    LogTab m_tab;
};

/// What the boxes of a window hold, joined by bars.
inline QString shown(QWidget &window, const std::vector<const char *> &boxes)
{
    QStringList texts;
    for (const char *name : boxes) {
        const auto &box = control<QWidget>(window, name);
        for (const char *property : {"text", "currentText", "plainText"})
            if (const QVariant text = box.property(property); text.isValid())
                texts << text.toString();
    }
    return texts.join(u'|');
}

/// What a combo box offers, joined by bars.
inline QString offered(const QComboBox &combo)
{
    QStringList texts;
    for (int i = 0; i < combo.count(); ++i)
        texts << combo.itemText(i);
    return texts.join(u'|');
}
