// Paints the lines of a list so that their sizes stand one below the other whatever the font: what follows a run of
// blanks goes to the right edge. The lines themselves keep their text as it is. Installed on the lists of animals,
// where a name and a size are one text.
#pragma once

#include <QStyledItemDelegate>

class SizeColumn : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
