#include "Keeper.h"
#include "shell/frm_OMKaboutbox.h"

namespace {

struct WayOut
{
    const char *name;
    void (*go)(QWidget &window);
};

const WayOut waysOutOfAbout[] = {
    {"click", [](QWidget &window) { QTest::mouseClick(&window, Qt::LeftButton, {}, window.rect().center()); }},
    {"Esc", [](QWidget &window) { QTest::keyClick(&window, Qt::Key_Escape); }},
    {"title bar", [](QWidget &window) { window.close(); }},
};

} // namespace

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
        control<QTimer>(box, QStringLiteral("tim_splash")).start(0);
        EXPECT_TRUE(QTest::qWaitFor([&box] { return !box.isVisible(); }));
    });
    Form<frm_OMKaboutbox>().ShowBox();

    keeper.g().splashMilliseconds = 0; // nobody to help it: it must go of itself
    Form<frm_OMKaboutbox>().ShowBox();
}
