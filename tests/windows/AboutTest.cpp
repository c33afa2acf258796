#include "Keeper.h"
#include "shell/frm_OMKaboutbox.h"
#include "shell/frm_OMKCredits.h"

namespace {

struct WayOut
{
    const char *name;
    void (*go)(QWidget &window);
};

const WayOut waysOutOfAbout[] = {
    {"click", [](QWidget &window) { QTest::mouseClick(&window, Qt::LeftButton, {}, window.rect().center()); }},
    {"Esc", [](QWidget &window) { QTest::keyClick(&window, Qt::Key_Escape); }},
    {"Enter", [](QWidget &window) { QTest::keyClick(&window, Qt::Key_Return); }},
    {"title bar", [](QWidget &window) { window.close(); }},
};

} // namespace

TEST(About, ClosesInEveryWayThatAKeeperTries)
{
    for (const WayOut &way : waysOutOfAbout) {
        SCOPED_TRACE(way.name);
        Keeper keeper;
        bool timerRan = true;
        keeper.inNext<frm_OMKaboutbox>([&](frm_OMKaboutbox &box) {
            timerRan = control<QTimer>(box, QStringLiteral("tim_splash")).isActive();
            way.go(box);
        });
        Form<frm_OMKaboutbox>().ShowBox();
        EXPECT_FALSE(timerRan);
    }
}

TEST(About, SplashScreenGoesByItsTimerAlone)
{
    Keeper keeper;
    keeper.g().gSplashMode = true;
    keeper.g().splashMilliseconds = 600'000;
    keeper.inNext<frm_OMKaboutbox>([](frm_OMKaboutbox &box) {
        EXPECT_TRUE(box.windowFlags() & Qt::FramelessWindowHint);
        for (const WayOut &way : waysOutOfAbout) {
            way.go(box);
            EXPECT_TRUE(box.isVisible()) << way.name;
        }
        bool thanked = false;
        QTimer::singleShot(0, &box, [&thanked] {
            auto *page = Forms::current().loaded<frm_OMKCredits>();
            thanked = page && page->close();
        });
        QTest::keyClick(&box, Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
        QCoreApplication::processEvents();
        EXPECT_FALSE(thanked);
        control<QTimer>(box, QStringLiteral("tim_splash")).start(0);
        EXPECT_TRUE(QTest::qWaitFor([&box] { return !box.isVisible(); }));
    });
    Form<frm_OMKaboutbox>().ShowBox();

    keeper.g().splashMilliseconds = 0; // nobody to help it: it must go of itself
    Form<frm_OMKaboutbox>().ShowBox();

    keeper.g().gSplashMode = false; // and the about box that follows has its frame and its ways out again
    keeper.inNext<frm_OMKaboutbox>([](frm_OMKaboutbox &box) {
        EXPECT_FALSE(box.windowFlags() & Qt::FramelessWindowHint);
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    Form<frm_OMKaboutbox>().ShowBox();
}

TEST(About, KeyChordOpensTheThankYouPageOverTheBox)
{
    Keeper keeper;
    bool thanked = false;
    keeper.inNext<frm_OMKaboutbox>([&](frm_OMKaboutbox &box) {
        keeper.inNext<frm_OMKCredits>([&](frm_OMKCredits &page) {
            thanked = true;
            QTest::keyClick(&page, Qt::Key_Escape);
        });
        QTest::keyClick(&box, Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_TRUE(box.isVisible());
        EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    Form<frm_OMKaboutbox>().ShowBox();
    EXPECT_TRUE(thanked);
}
