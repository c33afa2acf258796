// Where a value was refused, its box gets the focus back, with the text selected: typing replaces it.
#pragma once

#include <QLineEdit>

inline void FocusAtFault(QWidget &box)
{
    box.setFocus();
    if (auto *line = qobject_cast<QLineEdit *>(&box))
        line->selectAll();
}
