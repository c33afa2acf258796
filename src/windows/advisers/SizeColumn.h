// Paints the lines of a list so that the sizes are aligned in any font: what follows a run of blanks is painted at the
// right edge. The text of the lines does not change. Used for the lists of animals, where name and size are one text.
#pragma once

#include <QStyledItemDelegate>

class SizeColumn : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
