#include "windows/advisers/SizeColumn.h"

#include <QApplication>
#include <QPainter>

void SizeColumn::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem line = option;
    initStyleOption(&line, index);
    const qsizetype blanks = line.text.indexOf(QLatin1String("  "));
    const QString size = blanks < 0 ? QString() : line.text.mid(blanks).trimmed();
    line.text.truncate(blanks < 0 ? line.text.size() : blanks);

    const QStyle *style = line.widget ? line.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &line, painter, line.widget);
    if (size.isEmpty())
        return;
    const auto group = !(line.state & QStyle::State_Enabled) ? QPalette::Disabled
                       : line.state & QStyle::State_Active   ? QPalette::Active
                                                             : QPalette::Inactive;
    line.palette.setCurrentColorGroup(group);
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &line, line.widget) + 3;
    style->drawItemText(painter, line.rect.adjusted(margin, 0, -margin, 0), Qt::AlignRight | Qt::AlignVCenter,
                        line.palette, true, size,
                        line.state & QStyle::State_Selected ? QPalette::HighlightedText : QPalette::Text);
}
