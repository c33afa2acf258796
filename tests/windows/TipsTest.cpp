// The tip of the day.
#include <QCheckBox>
#include <QPlainTextEdit>
#include <QPushButton>

#include "Hands.h"
#include "shell/Tips.h"

TEST(Tips, NextDrawsAnotherAndTheBoxIsStoredAtOnce)
{
    Keeper keeper;
    keeper.addTank("Reef", "1");
    auto &main = keeper.startProgram();
    QString setting = "No"; // each window begins with what the one before it stored
    const struct
    {
        double atLoad;
        std::deque<double> atNext;
        int loaded, next;
    } rows[] = {{0, {0.1}, 1, 8},
                {0, {0}, 1, 1}, // a draw of 0 differs from 1, and becomes 1
                {5.5 / 94, {6.5 / 82, 6.5 / 82, 0}, 6, 1}};
    for (const auto &row : rows) {
        keeper.doors.randoms = {row.atLoad};
        keeper.inNext<frm_OMKtod>([&](frm_OMKtod &window) {
            EXPECT_EQ(keeper.g().gTipNumber, row.loaded);
            keeper.doors.randoms = row.atNext;
            mouse::click(window.cmd_nexttip);
            EXPECT_EQ(window.txt_tod->toPlainText(), tips()[size_t(row.next) - 1]);
            click(*window.chk_ShowTipsAtStartup);
            EXPECT_EQ(window.chk_ShowTipsAtStartup->isChecked(), keeper.g().gShowTips);
            hand::press(Qt::Key_Return);
        });
        hand::choose(main, *main.mnu_Help, "mnu_HelpTod");
        EXPECT_EQ(keeper.setting("Show_Tips"), std::exchange(setting, setting == "No" ? "Yes" : "No"));
    }
}
