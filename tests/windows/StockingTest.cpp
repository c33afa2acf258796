#include "Desk.h"
#include "windows/advisers/frm_Compat.h"
#include "windows/advisers/frm_FantAddAnimal.h"
#include "windows/advisers/frm_Fantasy.h"
#include "windows/advisers/StockingBar.h"

class Stocking : public Desk
{
protected:
    void add(frm_Fantasy &w, int line, const std::function<void(frm_FantAddAnimal &)> &action)
    {
        w.lst_select->scrollToItem(w.lst_select->item(line));
        mouse::click(w.lst_select->viewport(), w.lst_select->visualItemRect(w.lst_select->item(line)).center());
        keeper.inNext<frm_FantAddAnimal>(action);
        mouse::click(w.cmd_AddAnimal);
    }
    /// The animals in the tank, and the label and the bar that show how full it is.
    static QString plan(const frm_Fantasy &w)
    {
        return lines(*w.lst_Fantank->model()) + w.lbl_pctfull->text() + '/' +
               QString::number(w.pb_StockingRatio->value());
    }
};

TEST_F(Stocking, WhoLivesTogetherIsListedForEitherWaterAndALonerIsWarnedOf)
{
    keeper.g().gDefaultWaterType = "SALT";
    hand::press(Qt::Key_M, Qt::ControlModifier);
    auto &w = Form<frm_Compat>();
    keeper.told();
    const auto choose = [&](int animal) -> QString {
        w.lst_Select->setCurrentIndex(animal - 1);
        const int counts[] = {w.lst_compatable->count(), w.lst_maybe->count(), w.lst_incompatable->count()};
        return QString("%1 %2 %3, ").arg(counts[0]).arg(counts[1]).arg(counts[2]) + keeper.told().left(27);
    };
    EXPECT_EQ(choose(12), "26 2 11, 0");
    mouse::click(w.but_fresh, QPoint(8, 8));
    EXPECT_EQ(choose(0), "0 0 0, 0") << "nothing of the animal before";
    EXPECT_EQ(choose(40), "0 28 11, 1|Agressive Animal Reminder");
}

TEST_F(Stocking, APlanHoldsFiftyAnimalsAndIsClearedForAnotherWaterOnlyAfterAQuestion)
{
    hand::press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(keeper.told().startsWith("1|Please NOTE!/48/REMINDER: This program is only a tool"));
    auto &w = Form<frm_Fantasy>();
    mouse::click(w.opt_Fresh, QPoint(8, 8));
    mouse::click(w.opt_Salt, QPoint(8, 8));
    EXPECT_EQ(keeper.told(), "0"); // for an empty tank there is no question
    add(w, 12, [&](frm_FantAddAnimal &dialog) {
        for (const auto &[box, bad, good] :
             {std::tuple(dialog.txt_howmany, "abc", "1"), {dialog.txt_Howbig, "0", "-2"}}) { // stored as typed
            hand::type(*box, bad);
            mouse::click(dialog.cmd_Addit);
            EXPECT_TRUE(keeper.told().startsWith("1|Oops/48/You"));
            hand::type(*box, good);
        }
        mouse::click(dialog.cmd_Addit);
    });
    for (int row = 1; row < 50; ++row)
        add(w, 12, [](frm_FantAddAnimal &dialog) { mouse::click(dialog.cmd_Addit); });
    const QString full = plan(w);
    EXPECT_TRUE(full.startsWith("1 Filefish - -2 in.|"));
    keeper.told();
    add(w, 12, [](frm_FantAddAnimal &dialog) {
        mouse::click(dialog.cmd_Addit);
        mouse::click(dialog.cmd_Cancel);
    });
    EXPECT_TRUE(keeper.told().startsWith("1|Oops/48/Your \"Fantasy Tank\" holds 50 entries already"));
    keeper.doors.answers = {MsgBoxAnswer::Cancel, MsgBoxAnswer::OK};
    mouse::click(w.opt_Fresh, QPoint(8, 8));
    EXPECT_EQ(plan(w), full);
    w.lst_Fantank->setCurrentRow(1);
    mouse::click(w.cmd_RemoveAnimal);
    EXPECT_EQ(w.lst_Fantank->count(), 49);
    mouse::click(w.opt_Salt, QPoint(8, 8));
    EXPECT_EQ(plan(w), " 0%/0");
    EXPECT_EQ(keeper.told().count("Are you sure.../33/Changing tank water type will clear"), 2);
}
