// Gives the focus back to a box whose value was refused, with its text selected, so that typing replaces it.
#pragma once

#include <QLineEdit>

inline void FocusAtFault(QWidget &box)
{
    box.setFocus();
    if (auto *line = qobject_cast<QLineEdit *>(&box))
        line->selectAll();
}
