#include "platform/chart/ChartLook.h"

#include <QPalette>

namespace {

// The palette of Okabe and Ito, "Color Universal Design" (2008), with a grey added, and without yellow and black, which
// are hard to see on a light or a dark background.
constexpr QRgb hues[] = {0x0072b2, 0xe69f00, 0x009e73, 0xd55e00, 0x56b4e9, 0xcc79a7, 0x707070};
constexpr int hueCount = int(std::size(hues));

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

ChartLook ChartLookOf(int column)
{
    return {QColor(hues[column % hueCount]), column / hueCount % 2 == 1, column % (2 * hueCount)};
}

QBrush ChartLook::body(const QColor &paper) const { return second ? mixed(colour, paper, 0.35) : colour; }

QPen ChartLook::rim() const { return {second ? colour : colour.darker(115), second ? 2.0 : 1.0}; }

// Square caps close the corners of lines that are drawn in segments.
QPen ChartLook::line() const { return {colour, second ? 1.0 : 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin}; }
