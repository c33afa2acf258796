// Remembers what the boxes of a window showed when they were filled from a row. A box may show less than is stored: a
// format rounds a number, and a date has only two digits of its year. So a box that the keeper has not edited is not
// written back.
#pragma once

#include <QHash>
#include <QString>

class QLineEdit;
class QWidget;

/// The text of a line edit, masked box, editable combo box or box of notes.
QString BoxText(const QWidget &box);

/// Puts the whole stored text into a box. Its maxLength limits only typing: a longer text can be shortened, and the
/// limit holds again once the text is within it.
void ShowWhole(QLineEdit &box, const QString &text);

class ShownTexts
{
public:
    /// Must be called after the box is filled from its column.
    void remember(const QWidget &box) { m_texts[&box] = BoxText(box); }
    /// False while the box holds the remembered text. A box that was never remembered counts as edited.
    bool isEdited(const QWidget &box) const;

private:
    QHash<const QWidget *, QString> m_texts;
};
