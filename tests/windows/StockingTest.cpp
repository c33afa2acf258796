#include <QListWidget>
#include <QRadioButton>

#include "advisers/frm_FantAddAnimal.h"
#include "advisers/frm_Fantasy.h"
#include "advisers/StockingBar.h"
#include "Hands.h"

/// The stocking advisers, opened by their shortcuts.
class Stocking : public ::testing::Test
{
protected:
    using Action = std::function<void(frm_FantAddAnimal &)>;

    Stocking()
    {
        keeper.addTank("Reef", "r1");
        main = &keeper.startProgram();
        keeper.told();
    }
    frm_Fantasy &open(const char *water)
    {
        keeper.g().gDefaultWaterType = water;
        hand::press(Qt::Key_F, Qt::ControlModifier);
        EXPECT_TRUE(keeper.told().startsWith("1|Please NOTE!/48/REMINDER: This program is only a tool"));
        return Form<frm_Fantasy>();
    }
    static void clickLine(QListWidget &list, int line)
    {
        list.scrollToItem(list.item(line));
        mouse::click(list.viewport(), list.visualItemRect(list.item(line)).center());
    }
    void add(frm_Fantasy &w, int line, const Action &action)
    {
        clickLine(*w.lst_select, line);
        keeper.inNext<frm_FantAddAnimal>(action);
        mouse::click(w.cmd_AddAnimal);
    }
    /// Drops animals in and says what was told.
    QString drop(frm_Fantasy &w, int line, const QString &howMany = "1", const QString &howBig = {})
    {
        add(w, line, [&](frm_FantAddAnimal &dialog) {
            hand::type(*dialog.txt_howmany, howMany);
            if (!howBig.isEmpty())
                hand::type(*dialog.txt_Howbig, howBig);
            mouse::click(dialog.cmd_Addit);
        });
        return keeper.told();
    }
    static QString lines(const QListWidget &list)
    {
        QStringList texts;
        for (int i = 0; i < list.count(); ++i)
            texts << list.item(i)->text();
        return texts.join(u'|');
    }
    /// How full: the label and the bar.
    static QString fill(const frm_Fantasy &w)
    {
        return w.lbl_pctfull->text() + '/' + QString::number(w.pb_StockingRatio->value());
    }

    Keeper keeper;
    frm_OMKMDIMain *main;
};

TEST_F(Stocking, SizesAreTakenAsTyped)
{
    auto &w = open("SALT");
    const struct
    {
        const char *howBig, *line, *fill;
        int reminders;
    } sizes[] = {{"-2", "1 Gobies - -2 in.", "-7%/0", 0}, {"7.5", "1 Gobies - 7.5 in.", " 27%/27", 3}};
    for (const auto &size : sizes) {
        EXPECT_EQ(drop(w, 14, "1", size.howBig).count("|A Reminder!/48/Note! Ostrelmark's"), size.reminders);
        EXPECT_EQ(lines(*w.lst_Fantank) + fill(w), QString(size.line) + size.fill);
        clickLine(*w.lst_Fantank, 0);
        mouse::click(w.cmd_RemoveAnimal);
        EXPECT_EQ(lines(*w.lst_Fantank) + fill(w), " 0%/0");
    }
    add(w, 21, [&](frm_FantAddAnimal &dialog) {
        hand::type(*dialog.txt_howmany, "abc");
        mouse::click(dialog.cmd_Addit);
        EXPECT_EQ(keeper.told(), "1|Oops/48/You must add at least one animal to the tank.");
        hand::type(*dialog.txt_howmany, "1");
        hand::type(*dialog.txt_Howbig, "0");
        mouse::click(dialog.cmd_Addit);
        EXPECT_EQ(keeper.told(), "1|Oops/48/Your fish must be at least one inch long to add it to the tank.");
        hand::press(Qt::Key_Escape);
    });
    EXPECT_EQ(lines(*w.lst_Fantank), "");
}

TEST_F(Stocking, ANewWaterIsAskedForAndStaysWhenItWasNotWanted)
{
    auto &w = open("SALT");
    const QString question = "0|Are you sure.../33/Changing tank water type will clear your choices. Are you sure you "
                             "want to clear your Fantasy Tank?";
    mouse::click(w.opt_Fresh, QPoint(8, 8));
    mouse::click(w.opt_Salt, QPoint(8, 8));
    EXPECT_EQ(drop(w, 12), "0"); // nothing was asked about an empty tank
    keeper.doors.answers = {MsgBoxAnswer::Cancel};
    mouse::click(w.opt_Fresh, QPoint(8, 8));
    EXPECT_EQ(keeper.told(), question);
    EXPECT_EQ(drop(w, 38), "0"); // corals, read as rainbowfish
    EXPECT_EQ(lines(*w.lst_Fantank), "1 Filefish - 2 in.|1 Rainbowfish - 2 in.");
    keeper.doors.answers = {MsgBoxAnswer::OK};
    mouse::click(w.opt_Salt, QPoint(8, 8));
    EXPECT_EQ(keeper.told(), question);
    EXPECT_EQ(lines(*w.lst_Fantank) + fill(w), " 0%/0");
}

TEST_F(Stocking, A51stRowIsRefusedAndThePlanStands)
{
    auto &w = open("FRESH");
    for (int row = 0; row < 50; ++row)
        add(w, 49, [](frm_FantAddAnimal &dialog) { mouse::click(dialog.cmd_Addit); });
    EXPECT_EQ(keeper.told(), "0");
    const QString full = lines(*w.lst_Fantank) + fill(w);
    add(w, 49, [&](frm_FantAddAnimal &dialog) {
        mouse::click(dialog.cmd_Addit);
        EXPECT_TRUE(keeper.told().startsWith("1|Oops/48/Your \"Fantasy Tank\" holds 50 entries already"));
        mouse::click(dialog.cmd_Cancel);
    });
    EXPECT_EQ(lines(*w.lst_Fantank) + fill(w), full);
}
