// The tip of the day.
#include <set>

#include <QCheckBox>
#include <QPlainTextEdit>
#include <QPushButton>

#include "Hands.h"
#include "shell/Tips.h"

TEST(Tips, AreShortTextsEachToldOnceWithTheOldOnesAtTheirPlaces)
{
    const std::set<std::string> different(tips().begin(), tips().end());
    EXPECT_EQ(different.size(), 94u);
    for (const std::string &tip : different)
        EXPECT_TRUE(tip.size() >= 35 && tip.size() < 400 && !tip.ends_with(' ') && !tip.starts_with(' ')) << tip;
    const std::pair<size_t, const char *> old[] = {
        {2, "Plastic army men make a great bio-filter material."},
        {3, "Small plastic hair curlers can be used to great bio-filter media."},
        {87, "You can have many of Ostrelmark's windows open at one time!"},
        {88, "You can ROTATE graphs on the logging window by holding down the CTRL key while moving the mouse!"},
        {90, "You should never run with scissors!"}};
    for (const auto &[number, text] : old)
        EXPECT_STREQ(tips()[number - 1], text);
}

TEST(Tips, NextDrawsAnotherTipOfTheFirst)
{
    Keeper keeper;
    keeper.addTank("Reef", "1");
    auto &main = keeper.startProgram();
    const double below1 = std::nextafter(1.0, 0.0);
    const struct
    {
        double atLoad;
        std::deque<double> atNext;
        int loaded, next;
    } rows[] = {{0, {0.1}, 1, 8},
                {below1, {below1}, 94, 81},
                {0, {0}, 1, 1}, // a draw of 0 differs from 1, and becomes 1
                {5.5 / 94, {6.5 / 82, 6.5 / 82, 0}, 6, 1}};
    for (const auto &row : rows) {
        keeper.doors.randoms = {row.atLoad};
        keeper.inNext<frm_OMKtod>([&](frm_OMKtod &window) {
            EXPECT_EQ(keeper.g().gTipNumber, row.loaded);
            keeper.doors.randoms = row.atNext;
            hand::click<QPushButton>(window, "cmd_nexttip");
            EXPECT_EQ(keeper.g().gTipNumber, row.next);
            EXPECT_EQ(window.txt_tod->toPlainText(), tips()[size_t(row.next) - 1]);
            hand::press(Qt::Key_Return);
        });
        hand::choose(main, *main.mnu_Help, "mnu_HelpTod");
    }
}

TEST(Tips, StayAwayFromTheStartOnceTurnedOff)
{
    Keeper keeper;
    keeper.addTank("Reef", "1");
    for (const bool on : {false, true}) {
        auto *main = &keeper.startProgram();
        keeper.inNext<frm_OMKtod>([&](frm_OMKtod &window) {
            EXPECT_EQ(window.chk_ShowTipsAtStartup->isChecked(), !on);
            click(*window.chk_ShowTipsAtStartup);
            mouse::click(window.cmd_ok);
        });
        hand::choose(*main, *main->mnu_Help, "mnu_HelpTod");
        EXPECT_EQ(keeper.setting("Show_Tips"), on ? "Yes" : "No");
        keeper.tipsAtStart = 0;
        keeper.restart();
        keeper.startProgram();
        EXPECT_EQ(keeper.tipsAtStart, on);
        keeper.restart();
    }
}
