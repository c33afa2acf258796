// Tests that what the style and the charts draw is seen on the palettes of light and dark desktops.
#include <gtest/gtest.h>

#include "platform/chart/ChartLook.h"
#include "platform/controls/Style.h"

TEST(Style, OutlinesAndTheColumnsOfChartsAreSeenOnEveryPalette)
{
    const std::pair<const char *, const char *> palettes[] = {
        // window and base
        {"#efefef", "#ffffff"}, {"#ffffff", "#ffffff"}, {"#f6f5f4", "#ffffff"}, {"#31363b", "#232629"},
        {"#2d2e30", "#1f2022"}, {"#000000", "#000000"}, {"#2e3440", "#3b4252"}, {"#002b36", "#073642"},
    };
    for (const auto &[window, base] : palettes) {
        QPalette palette{QColor(window)};
        palette.setColor(QPalette::Base, base);
        EXPECT_GE(Contrast(OutlineOn(palette), window), 3) << window;
        EXPECT_GE(Contrast(OutlineOn(palette), base), 3) << window;
        for (int column = 0; column < 13; ++column)
            EXPECT_GE(Contrast(ChartColours::onScreen(palette).look(column).colour, base), 3) << base << column;
    }
}
