#include <QAccessible>
#include <QCheckBox>
#include <QListWidget>
#include <QRadioButton>

#include "advisers/frm_Compat.h"
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
    template <class Window> Window &open(Qt::Key key, const char *water = "SALT")
    {
        keeper.g().gDefaultWaterType = water;
        bool visible = false;
        keeper.doors.whileBoxIsUp = [&](const MsgBoxRequest &) { visible = Form<Window>().isVisible(); };
        hand::press(key, Qt::ControlModifier);
        keeper.doors.whileBoxIsUp = nullptr;
        EXPECT_TRUE(visible);
        EXPECT_TRUE(keeper.told().startsWith("1|Please NOTE!/48/REMINDER: This program is only a tool"));
        EXPECT_FALSE(main->mnu_FilePrint->isEnabled());
        return Form<Window>();
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
    /// How full: the label, the bar, and what a screen reader hears of it.
    static QString fill(const frm_Fantasy &w)
    {
        const QString heard =
            QAccessible::queryAccessibleInterface(w.pb_StockingRatio)->text(QAccessible::Name).section(' ', 3, 3);
        return w.lbl_pctfull->text() + '/' + QString::number(w.pb_StockingRatio->value()) + '/' + heard;
    }

    Keeper keeper;
    frm_OMKMDIMain *main;
};

TEST_F(Stocking, AnAnimalChosenFillsTheListsBeforeItsNote)
{
    auto &w = open<frm_Compat>(Qt::Key_M, "OTHER");
    EXPECT_TRUE(w.but_fresh->isChecked());
    EXPECT_EQ(w.lst_Select->count(), 50);
    EXPECT_EQ(w.lst_Select->itemText(0), "African Lungfish        3 in.");
    EXPECT_EQ(w.lst_Select->currentIndex(), -1);
    QString filled;
    keeper.doors.whileBoxIsUp = [&](const MsgBoxRequest &) {
        filled = lines(*w.lst_maybe).left(26) + '/' + QString::number(w.lst_incompatable->count());
    };
    w.lst_Select->setFocus();
    hand::press(Qt::Key_Down);
    EXPECT_EQ(filled, "African Lungfish|Angelfish/21");
    EXPECT_TRUE(keeper.told().startsWith("1|Agressive Animal Reminder/48/Note: The animal you've"));
    mouse::click(w.but_salt, QPoint(8, 8));
    EXPECT_EQ(lines(*w.lst_maybe) + lines(*w.lst_incompatable), "");
    EXPECT_EQ(w.lst_Select->currentIndex(), -1);
    w.lst_Select->setCurrentIndex(10);
    EXPECT_EQ(lines(*w.lst_compatable), "Drums/High Hats          3 in.");
    EXPECT_EQ(keeper.told(), "0");
    hand::press(Qt::Key_M, Qt::ControlModifier); // open already: only brought forward, with no reminder
    EXPECT_EQ(keeper.told(), "0");
}

TEST_F(Stocking, SizesAreTakenAsTyped)
{
    auto &w = open<frm_Fantasy>(Qt::Key_F);
    const QString remind = "|A Reminder!/48/Note! Ostrelmark's";
    const struct
    {
        const char *howMany, *howBig, *line, *fill;
        int reminders;
    } sizes[] = {
        {"27", "1", "27 Gobies - 1 in.", " 100%/100/100%", 0}, {"1", "-2", "1 Gobies - -2 in.", "-7%/0/0%", 0},
        {"1", "0.5", "1 Gobies - 0.5 in.", " 1%/1/1%", 0},     {"1", "1e3", "1 Gobies - 1000 in.", " 125%/125/125%", 1},
        {"1", "7.5", "1 Gobies - 7.5 in.", " 27%/27/27%", 3},  {"0.5", "6", "0.5 Gobies - 6 in.", " 11%/11/11%", 0}};
    for (const auto &size : sizes) {
        const QString told = drop(w, 14, size.howMany, size.howBig);
        EXPECT_EQ(told.count(remind), size.reminders) << size.howBig;
        EXPECT_EQ(told.section('|', 0, 0).toInt(), 2 * size.reminders) << size.howBig;
        EXPECT_EQ(lines(*w.lst_Fantank), size.line);
        EXPECT_EQ(fill(w), size.fill);
        clickLine(*w.lst_Fantank, 0);
        mouse::click(w.cmd_RemoveAnimal);
        EXPECT_EQ(fill(w), " 0%/0/0%");
        EXPECT_FALSE(w.cmd_RemoveAnimal->isEnabled());
    }
    add(w, 21, [&](frm_FantAddAnimal &dialog) {
        EXPECT_EQ(dialog.txt_Howbig->text(), "4"); // a moray eel
        const std::pair<QLineEdit *, const char *> refusals[] = {
            {dialog.txt_howmany, "1|Oops/48/You must add at least one animal to the tank."},
            {dialog.txt_Howbig, "1|Oops/48/Your fish must be at least one inch long to add it to the tank."}};
        for (const char *none : {"", "abc", "0"})
            for (const auto &[box, told] : refusals) {
                hand::type(*box, none);
                mouse::click(dialog.cmd_Addit);
                EXPECT_EQ(keeper.told(), told);
                EXPECT_TRUE(box->hasFocus());
                hand::type(*box, "1");
            }
        for (int size = 2; size < 7; ++size)
            hand::step(dialog, "ud_HowBig", "up");
        EXPECT_EQ(keeper.told(), "0");
        hand::step(dialog, "ud_HowBig", "up");
        EXPECT_EQ(dialog.txt_Howbig->text(), "7");
        const QString told = keeper.told();
        EXPECT_EQ(told.left(2) + QString::number(told.count(remind)), "4|2");
        hand::press(Qt::Key_Escape);
    });
    EXPECT_EQ(lines(*w.lst_Fantank), "");
    mouse::click(w.cmd_AddAnimal);
    EXPECT_EQ(keeper.told(), "1|Note!/64/You must first select an animal to add.");
}

TEST_F(Stocking, WarningsComeInTheirOrderAndStopNobody)
{
    auto &w = open<frm_Fantasy>(Qt::Key_F);
    EXPECT_EQ(drop(w, 12), "0"); // a filefish
    const QStringList told = drop(w, 1, "2").split('|');
    const char *const pieces[] = {
        "4", // beeps: one, one and two
        "Possible compatibility Problem!/48/WARNING! Keeping 2 or more Angelfish (Full size) in",
        "try to put Angelfish (Full size) together with Angelfish (Full size),  depending on",
        "Serious compatibility Warning!/16/Warning! Angelfish (Full size) are generally "
        "considered INCOMPATIBLE with Filefish, and may"};
    ASSERT_EQ(told.size(), std::ssize(pieces));
    for (qsizetype i = 0; i < told.size(); ++i)
        EXPECT_TRUE(told[i].contains(pieces[i])) << told[i].toStdString();
    EXPECT_EQ(lines(*w.lst_Fantank), "1 Filefish - 2 in.|2 Angelfish (Full size) - 5 in.");
    EXPECT_EQ(fill(w), " 44%/44/44%");
    drop(w, 14, "1", "-30");
    EXPECT_EQ(fill(w), "-66%/0/0%");
    clickLine(*w.lst_Fantank, 0);
    mouse::click(w.cmd_RemoveAnimal);
    EXPECT_TRUE(w.lst_Fantank->selectedItems().isEmpty() && !w.cmd_RemoveAnimal->isEnabled());
    mouse::doubleClick(w.lst_Fantank->viewport()); // below the lines
    EXPECT_EQ(keeper.told(), "1|Oops!/48/You must first select an animal to delete.");
    EXPECT_EQ(lines(*w.lst_Fantank), "2 Angelfish (Full size) - 5 in.|1 Gobies - -30 in.");
}

TEST_F(Stocking, ANewWaterIsAskedForAndStaysWhenItWasNotWanted)
{
    auto &w = open<frm_Fantasy>(Qt::Key_F);
    const QString question = "0|Are you sure.../33/Changing tank water type will clear your choices. Are you sure you "
                             "want to clear your Fantasy Tank?";
    mouse::click(w.opt_Fresh, QPoint(8, 8));
    mouse::click(w.opt_Salt, QPoint(8, 8));
    EXPECT_EQ(drop(w, 12), "0"); // nothing was asked about an empty tank
    keeper.doors.answers = {MsgBoxAnswer::Cancel};
    mouse::click(w.opt_Fresh, QPoint(8, 8));
    EXPECT_EQ(keeper.told(), question);
    EXPECT_TRUE(w.opt_Fresh->isChecked() && w.chk_WetDryIncluded->isEnabled());
    EXPECT_EQ(w.lst_select->count(), 39);
    EXPECT_EQ(drop(w, 38), "0"); // corals, read as rainbowfish
    EXPECT_EQ(lines(*w.lst_Fantank), "1 Filefish - 2 in.|1 Rainbowfish - 2 in.");
    EXPECT_TRUE(
        w.lbl_holding->text().startsWith("A 55 gallon freshwater tank, in ideal conditions, could hold about 45"));
    keeper.doors.answers = {MsgBoxAnswer::OK};
    mouse::click(w.opt_Salt, QPoint(8, 8));
    EXPECT_EQ(keeper.told(), question);
    EXPECT_EQ(lines(*w.lst_Fantank) + fill(w), " 0%/0/0%");
    EXPECT_FALSE(w.cmd_AddAnimal->isEnabled());
}

TEST_F(Stocking, ATankSizeIsCheckedOnLeavingIt)
{
    auto &w = open<frm_Fantasy>(Qt::Key_F);
    const QString number = "1|Validation error!/48/Fantasy tank size must be a number less than 250 gallons.";
    const std::pair<const char *, QString> sizes[] = {
        {"", number},
        {"abc", number},
        {"250.5", "1|Validation error!/48/Fantasy tank size must be less than 250 gallons."},
        {"4.9", "1|Validation error!/48/Fantasy tank size must be at least 5 gallons."}};
    for (const auto &[text, told] : sizes) {
        hand::type(*w.txt_tanksize, text);
        mouse::click(w.chk_Taller, QPoint(8, 8));
        EXPECT_EQ(keeper.told(), told) << text;
        EXPECT_TRUE(w.txt_tanksize->hasFocus() && !w.chk_Taller->isChecked()) << text;
    }
    hand::type(*w.txt_tanksize, "250");
    mouse::click(w.chk_WetDryIncluded, QPoint(8, 8));
    const QString holds = "A %1 gallon saltwater tank, in ideal conditions, could hold about %2 inches of fish.";
    EXPECT_EQ(w.lbl_holding->text(), holds.arg(250).arg(138));
    hand::type(*w.txt_tanksize, "54");
    hand::step(w, "ud_Tanksize", "up"); // back to where the arrows stood
    EXPECT_EQ(w.lbl_holding->text(), holds.arg(55).arg(30));
    EXPECT_EQ(keeper.told(), "0");
}

TEST_F(Stocking, A51stRowIsRefusedAndThePlanStands)
{
    auto &w = open<frm_Fantasy>(Qt::Key_F, "FRESH");
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
    mouse::doubleClick(w.lst_Fantank->viewport(), QPoint(8, 8));
    EXPECT_EQ(drop(w, 0).left(9), "3|Possibl"); // one that 49 others may not meet, and may meet itself
    EXPECT_EQ(w.lst_Fantank->count(), 50);
}
