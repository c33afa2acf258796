// Tests that what the style draws is seen on the palettes of light and dark desktops.
#include <gtest/gtest.h>

#include <QMdiArea>
#include <QMdiSubWindow>

#include "platform/controls/Style.h"

namespace {

struct Colours
{
    const char *window, *base, *highlight;
};

constexpr Colours palettes[] = {
    {"#efefef", "#ffffff", "#308cc6"}, // Fusion
    {"#ffffff", "#ffffff", "#3584e4"}, {"#f6f5f4", "#ffffff", "#15539e"}, {"#31363b", "#232629", "#3daee9"},
    {"#2d2e30", "#1f2022", "#2a82a0"}, {"#000000", "#000000", "#ffff00"}, {"#2e3440", "#3b4252", "#88c0d0"},
    {"#002b36", "#073642", "#268bd2"},
};

QPalette paletteOf(const Colours &colours)
{
    QPalette palette(QColor(colours.window));
    palette.setColor(QPalette::Base, QColor(colours.base));
    palette.setColor(QPalette::Highlight, QColor(colours.highlight));
    return palette;
}

/// The greatest contrast of any two pixels.
double contrastIn(const QImage &picture)
{
    QColor darkest = Qt::white, lightest = Qt::black;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            darkest = Contrast(pixel, Qt::white) > Contrast(darkest, Qt::white) ? pixel : darkest;
            lightest = Contrast(pixel, Qt::black) > Contrast(lightest, Qt::black) ? pixel : lightest;
        }
    return Contrast(darkest, lightest);
}

} // namespace

TEST(Style, EdgesTitlesAndButtonsOfChildrenAreSeenOnEveryPalette)
{
    for (const Colours &colours : palettes) {
        const QPalette palette = paletteOf(colours);
        const QColor outline = OutlineOn(palette);
        EXPECT_GE(Contrast(outline, palette.window().color()), 3) << colours.window;
        EXPECT_GE(Contrast(outline, palette.base().color()), 3) << colours.base;
        QMdiArea area;
        area.setPalette(palette);
        area.setBackground(palette.window());
        area.resize(500, 300);
        for (const char *name : {"Behind", "In front"}) {
            auto *child = area.addSubWindow(new QWidget);
            child->setWindowTitle(name);
            child->setGeometry(20, name[0] == 'B' ? 20 : 160, 300, 120);
        }
        area.show();
        const QImage picture = area.grab().toImage();
        for (const QMdiSubWindow *child : area.subWindowList()) {
            const QRect frame = child->geometry().translated(area.viewport()->pos());
            const QRect title(frame.topLeft() + QPoint(40, 6), QSize(frame.width() - 110, 14));
            const QRect buttons(frame.topRight() - QPoint(56, -6), QSize(50, 14));
            const QRect edge(frame.left() - 2, frame.center().y(), 8, 1);
            EXPECT_GE(contrastIn(picture.copy(title)), 3) << colours.window << qPrintable(child->windowTitle());
            EXPECT_GE(contrastIn(picture.copy(buttons)), 3) << colours.window << qPrintable(child->windowTitle());
            // On a light window Fusion's own edge stays.
            EXPECT_GE(contrastIn(picture.copy(edge)), palette.window().color().lightness() < 128 ? 3 : 1.3)
                << colours.window << qPrintable(child->windowTitle());
        }
    }
}
