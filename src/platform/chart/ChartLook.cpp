#include "platform/chart/ChartLook.h"

#include <QPalette>

namespace {

// Found by a search for the greatest difference between any two, in the eyes of readers with full colour vision, with
// deuteranopia and with protanopia. Neighbours are as different as possible.
constexpr QRgb forLight[] = {0x0072b2, 0xd55e00, 0x009e73, 0x770044, 0x9977ff, 0x775522, 0xff4477,
                             0x004466, 0xdd00bb, 0x994488, 0x0000dd, 0x660099, 0x6622ff};
constexpr QRgb forDark[] = {0x55aaee, 0xffaa00, 0x00bb77, 0xff8899, 0xaaff22, 0xddbbff, 0xcc8822,
                            0x99ffff, 0xdd66bb, 0xaacc66, 0xaa77ff, 0xffddaa, 0x22ddcc};
constexpr int looks = int(std::size(forLight));
static_assert(looks == int(std::size(forDark)));

QColor mixed(const QColor &one, const QColor &other, double share)
{
    const auto part = [share](int a, int b) { return int(a * share + b * (1 - share)); };
    return {part(one.red(), other.red()), part(one.green(), other.green()), part(one.blue(), other.blue())};
}

} // namespace

ChartColours ChartColours::onScreen(const QPalette &palette)
{
    const QColor paper = palette.color(QPalette::Base), ink = palette.color(QPalette::Text);
    return {paper, ink, mixed(ink, paper, 0.18)};
}

ChartColours ChartColours::onPaper() { return {Qt::white, Qt::black, QColor(0xd2, 0xd2, 0xd2)}; }

ChartLook ChartColours::look(int column) const
{
    const int place = column % looks;
    return {QColor(isDark() ? forDark[place] : forLight[place]), place, place > looks / 2};
}

QPen ChartLook::rim() const { return {colour.darker(115), 1}; }

// Square caps close the corners of lines that are drawn in segments. Dashes would take several times as long.
QPen ChartLook::line() const { return {colour, thin ? 1.0 : 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin}; }
