// What the boxes of a window showed when they were filled from a row. A box may show less than is stored: a picture
// rounds a number, a date shows two digits of its year. So a box that the keeper has not edited is not written back.
#pragma once

#include <QHash>
#include <QString>

class QLineEdit;
class QWidget;

/// What a line edit, masked box, editable list or box of notes holds.
QString BoxText(const QWidget &box);

/// Puts a stored text into a box whole. Its maxLength is a limit on typing alone: a longer text can be shortened, and
/// the limit holds again once the text is within it.
void ShowWhole(QLineEdit &box, const QString &text);

class ShownTexts
{
public:
    /// Call once the box is filled from its column.
    void remember(const QWidget &box) { m_texts[&box] = BoxText(box); }
    /// False while the box holds the text that was remembered. A box that was not filled from a column is edited.
    bool isEdited(const QWidget &box) const;

private:
    QHash<const QWidget *, QString> m_texts;
};
