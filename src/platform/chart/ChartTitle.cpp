#include "platform/chart/ChartTitle.h"

#include <QFontMetricsF>

namespace {

constexpr double worthwhile = 3; // length of a title that has been cut off, in font heights

QString withUnit(const QString &names, const QString &unit)
{
    return unit.isEmpty() ? names : names + QStringLiteral(" (") + unit + u')';
}

QString wholeTitle(const ChartData &data, const std::vector<int> &columns)
{
    QStringList parts, names;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const QString &unit = data.columnUnits.at(columns[i]);
        names << data.columnLabels.at(columns[i]);
        if (i + 1 == columns.size() || data.columnUnits.at(columns[i + 1]) != unit)
            parts << withUnit(std::exchange(names, {}).join(QStringLiteral(", ")), unit);
    }
    return parts.join(QStringLiteral("; "));
}

/// Breaks a text that is too long for one line at the last blank that fits. The second line may still be too long.
QString wrapped(QString text, const QFontMetricsF &metrics, double pixels)
{
    if (metrics.horizontalAdvance(text) <= pixels)
        return text;
    qsizetype blank = text.lastIndexOf(u' ');
    while (blank > 0 && metrics.horizontalAdvance(text.left(blank)) > pixels)
        blank = text.lastIndexOf(u' ', blank - 1);
    return blank > 0 ? text.replace(blank, 1, u'\n') : text;
}

} // namespace

QString TitleOf(const ChartData &data, int column)
{
    return withUnit(data.columnLabels.at(column), data.columnUnits.at(column));
}

QString ValueAxisTitle(const ChartData &data, const std::vector<int> &columns, const QFontMetricsF &metrics,
                       double pixels)
{
    const QString whole = wrapped(wholeTitle(data, columns), metrics, pixels);
    if (metrics.size(0, whole).width() <= pixels)
        return whole;
    QStringList units;
    for (const int column : columns)
        if (!data.columnUnits.at(column).isEmpty() && !units.contains(data.columnUnits.at(column)))
            units << data.columnUnits.at(column);
    const QString shorter = units.isEmpty() ? wholeTitle(data, columns) : units.join(QStringLiteral(", "));
    if (metrics.horizontalAdvance(shorter) <= pixels)
        return shorter;
    return pixels < worthwhile * metrics.height() ? QString() : metrics.elidedText(shorter, Qt::ElideRight, pixels);
}
