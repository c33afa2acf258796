// Tests that what the style and the charts draw is seen on the palettes of light and dark desktops.
#include <gtest/gtest.h>

#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>

#include "platform/chart/ChartLook.h"
#include "platform/controls/Style.h"

namespace {

/// Whether something in the picture stands out from its corner.
bool isSeen(const QImage &picture)
{
    for (int x = 0; x < picture.width(); ++x)
        for (int y = 0; y < picture.height(); ++y)
            if (Contrast(picture.pixelColor(x, y), picture.pixelColor(0, 0)) >= 3)
                return true;
    return false;
}

void expectTitlesAndButtonsAreSeen(const QPalette &palette)
{
    QMdiArea area;
    area.setPalette(palette);
    area.resize(500, 300);
    for (const int y : {20, 160}) { // the second is in front
        auto *child = area.addSubWindow(new QLabel);
        child->setWindowTitle("Child");
        child->setGeometry(20, y, 300, 120);
    }
    area.show();
    const QImage picture = area.grab().toImage();
    for (const QMdiSubWindow *child : area.subWindowList()) {
        const QRect frame = child->geometry().translated(area.viewport()->pos());
        EXPECT_TRUE(isSeen(picture.copy(frame.left() + 40, frame.top() + 6, frame.width() - 110, 14))) << "the title";
        EXPECT_TRUE(isSeen(picture.copy(frame.right() - 56, frame.top() + 6, 50, 14))) << "the buttons";
    }
}

} // namespace

TEST(Style, OutlinesTitlesButtonsAndTheColumnsOfChartsAreSeenOnEveryPalette)
{
    const std::tuple<const char *, const char *, const char *> palettes[] = {
        // window, base and highlight; first those of Fusion
        {"#efefef", "#ffffff", "#308cc6"}, {"#ffffff", "#ffffff", "#3584e4"}, {"#f6f5f4", "#ffffff", "#15539e"},
        {"#31363b", "#232629", "#3daee9"}, {"#2d2e30", "#1f2022", "#2a82a0"}, {"#000000", "#000000", "#ffff00"},
        {"#2e3440", "#3b4252", "#88c0d0"}, {"#002b36", "#073642", "#268bd2"},
    };
    for (const auto &[window, base, highlight] : palettes) {
        SCOPED_TRACE(window);
        QPalette palette{QColor(window)};
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::Highlight, highlight);
        EXPECT_GE(Contrast(OutlineOn(palette), window), 3);
        EXPECT_GE(Contrast(OutlineOn(palette), base), 3);
        for (int column = 0; column < 13; ++column)
            EXPECT_GE(Contrast(ChartColours::onScreen(palette).look(column).colour, base), 3) << column;
        expectTitlesAndButtonsAreSeen(palette);
    }
}
